#include "common/plane_geometry.h"

#include <gtest/gtest.h>

#include <cmath>

#include "support/faults.h"
#include "support/recording_messages.h"

namespace kelvo {
namespace {

using genSub::DistanceAndDirection;
using genSub::DistanceToLine;
using genSub::LineIntersection;
using genSub::PolarPoint;
using testing::faultOf;

// X is north and Y east, so a direction counts clockwise from north.
TEST(DistanceAndDirection, CountsClockwiseFromNorth) {
    const auto northEast = DistanceAndDirection(0, 0, 100, 100);
    EXPECT_DOUBLE_EQ(northEast.direction, 45.00000038242425);
    EXPECT_DOUBLE_EQ(northEast.distance, 141.4213562373095);
    const auto southEast = DistanceAndDirection(10, 20, 7, 24);
    EXPECT_NEAR(southEast.direction, 126.8698972, 1e-6);
    EXPECT_DOUBLE_EQ(southEast.distance, 5);
    const auto southWest = DistanceAndDirection(10, 20, 7, 16);
    EXPECT_NEAR(southWest.direction, 233.1301028, 1e-6);
}

TEST(DistanceAndDirection, UsesTheFiveDigitFactorAsWritten) {
    EXPECT_DOUBLE_EQ(DistanceAndDirection(0, 0, 1, 1).direction, std::atan(1.0) * 57.29578);
    EXPECT_NE(DistanceAndDirection(0, 0, 1, 1).direction, 45.0);
}

TEST(DistanceAndDirection, IntoTheNorthWestComesOutBelowZero) {
    EXPECT_NEAR(DistanceAndDirection(0, 0, 3, -4).direction, -53.1301028, 1e-6);
}

TEST(DistanceAndDirection, DueEastAndDueWestAreNinetyEitherWay) {
    EXPECT_NEAR(DistanceAndDirection(5, 0, 5, 10).direction, 90, 1e-5);
    EXPECT_NEAR(DistanceAndDirection(5, 10, 5, 0).direction, -90, 1e-5);
}

TEST(DistanceAndDirection, IdenticalPointsGiveZeroAndZero) {
    const auto none = DistanceAndDirection(4.5, -3, 4.5, -3);
    EXPECT_EQ(none.direction, 0);
    EXPECT_EQ(none.distance, 0);
}

TEST(DistanceAndDirection, ADifferenceBeyondADoubleIsAnOverflow) {
    EXPECT_EQ(faultOf([] { return DistanceAndDirection(0, 0, 1e200, 0); }), 6);
    EXPECT_EQ(faultOf([] { return DistanceAndDirection(-1.7e308, 0, 1.7e308, 1); }), 6);
}

TEST(DistanceToLine, GoesFromTheFootOfThePerpendicularToThePoint) {
    const auto result = DistanceToLine(0, 0, 10, 10, 0, 10);
    EXPECT_NEAR(result.distance, std::sqrt(50.0), 1e-12);
    EXPECT_NEAR(result.direction, 135, 1e-5);
}

TEST(DistanceToLine, AnUprightLineCountsWithOffsetZero) {
    // so every upright line is taken for the one through the origin
    const auto result = DistanceToLine(2, 0, 2, 10, 3, 4);
    EXPECT_NEAR(result.distance, 3, 1e-9);
    EXPECT_NEAR(result.direction, 0, 1e-9);
}

TEST(DistanceToLine, ALevelLineIsMeasuredFromWhereItLies) {
    const auto result = DistanceToLine(0, 5, 10, 5, 3, 9);
    EXPECT_NEAR(result.distance, 4, 1e-9);
    EXPECT_NEAR(result.direction, 90, 1e-5);
}

TEST(PolarPoint, UsesTheFactorAsWritten) {
    const auto east = PolarPoint(1000, 2000, 90, 100);
    EXPECT_NEAR(east.x, 1000 + 2.267949e-05, 1e-10);
    EXPECT_NEAR(east.y, 2100, 1e-9);
    const auto north = PolarPoint(1000, 2000, 0, 100);
    EXPECT_EQ(north.x, 1100);
    EXPECT_EQ(north.y, 2000);
}

TEST(PolarPoint, UndoesDistanceAndDirectionToFiveDigits) {
    const auto there = DistanceAndDirection(377504.2345, 125963.974, 378120.5, 125001.25);
    const auto back = PolarPoint(377504.2345, 125963.974, there.direction, there.distance);
    EXPECT_NEAR(back.x, 378120.5, 1e-3);
    EXPECT_NEAR(back.y, 125001.25, 1e-3);
}

TEST(LineIntersection, FindsWhereTwoLinesMeet) {
    const auto point = LineIntersection(0, 0, 10, 10, 0, 10, 10, 0);
    EXPECT_DOUBLE_EQ(point.x, 5);
    EXPECT_DOUBLE_EQ(point.y, 5);
}

TEST(LineIntersection, AnUprightLineGetsASteepSlopeAndItsOffset) {
    const auto point = LineIntersection(5, 0, 5, 10, 0, 3, 10, 3);
    EXPECT_NEAR(point.x, 5, 1e-9);
    EXPECT_DOUBLE_EQ(point.y, 3);
}

TEST(LineIntersection, ParallelLinesFault) {
    EXPECT_EQ(faultOf([] { return LineIntersection(0, 0, 1, 1, 0, 1, 1, 2); }), 11);
    EXPECT_EQ(faultOf([] { return LineIntersection(0, 0, 1, 1, 0, 0, 1, 1); }), 6);
}

TEST(Log10Guard, DividesByTheConstantAsWritten) {
    EXPECT_DOUBLE_EQ(genSub::Log10Guard(1000), 2.999999999992242);
    EXPECT_NE(genSub::Log10Guard(1000), 3.0);
    EXPECT_EQ(genSub::Log10Guard(1), 0);
}

TEST(Log10Guard, IsZeroAtAndBelowZero) {
    EXPECT_EQ(genSub::Log10Guard(0), 0);
    EXPECT_EQ(genSub::Log10Guard(-10), 0);
}

TEST(SqrGuard, IsZeroAtAndBelowZeroWithoutAMessage) {
    testing::RecordingMessages messages;
    EXPECT_EQ(genSub::SqrGuard(0, messages), 0);
    EXPECT_EQ(genSub::SqrGuard(-4, messages), 0);
    EXPECT_EQ(genSub::SqrGuard(2.25, messages), 1.5);
    EXPECT_TRUE(messages.shown.empty());
}

TEST(MinOf, GivesTheSmallerOne) {
    EXPECT_EQ(genSub::MinOf(1, 2), 1);
    EXPECT_EQ(genSub::MinOf(2, -3), -3);
    EXPECT_EQ(genSub::MinOf(2, 2), 2);
    EXPECT_FALSE(std::signbit(genSub::MinOf(0.0, -0.0))) << "the first one when they are equal";
}

TEST(Log10Guard, BetweenZeroAndOneIsBelowZero) {
    EXPECT_EQ(genSub::Log10Guard(0.5), std::log(0.5) / 2.302585093);
    EXPECT_EQ(genSub::Log10Guard(1e-300), std::log(1e-300) / 2.302585093);
    EXPECT_EQ(genSub::Log10Guard(1), 0);
}

}  // namespace
}  // namespace kelvo
