// The numbers that stand for an undefined slope in the plane geometry, at sizes where they show,
// and the guard of the square root.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "common/plane_geometry.h"
#include "support/recording_messages.h"

namespace kelvo {
namespace {

TEST(DistanceAndDirection, TakesANorthDifferenceOfZeroFor1eMinus15) {
    constexpr double kAsWritten = 57.29578;
    EXPECT_DOUBLE_EQ(genSub::DistanceAndDirection(7, 0, 7, 1e-15).direction,
                     std::atan(1.0) * kAsWritten);
    EXPECT_DOUBLE_EQ(genSub::DistanceAndDirection(7, 0, 7, -1e-15).direction,
                     -std::atan(1.0) * kAsWritten);
    EXPECT_EQ(genSub::DistanceAndDirection(7, 0, 7, 1e-15).distance, 1e-15) << "by the true zero";
}

TEST(DistanceToLine, TakesTheSlopeOfAnUprightLineFor1e15) {
    // so far up, the line through the origin with that slope has come one metre to the side
    const auto result = genSub::DistanceToLine(2, 0, 2, 10, 3, 1e15);
    EXPECT_DOUBLE_EQ(result.distance, 2);
}

TEST(DistanceToLine, TakesTheSlopeOfAPerpendicularToALevelLineFor1e15) {
    constexpr double kAsWritten = 57.29578;
    // One metre to the side at such a height; half of it would be two units in the last place.
    EXPECT_NEAR(genSub::DistanceToLine(0, 0, 10, 0, 0, 1e15).direction,
                std::atan(1e15) * kAsWritten, 1.5e-14);
}

TEST(LineIntersection, TakesTheSlopeOfAnUprightLineFor1e25) {
    // y = 1e25 x - 5e25 meets y = 1e24 x
    const auto meeting = genSub::LineIntersection(5, 0, 5, 10, 0, 0, 1, 1e24);
    EXPECT_DOUBLE_EQ(meeting.x, 50.0 / 9);
    const auto other = genSub::LineIntersection(0, 0, 1, 1e24, 5, 0, 5, 10);
    EXPECT_DOUBLE_EQ(other.x, 50.0 / 9);
}

TEST(SqrGuard, ShowsOneBoxForARootThatFailsAndGivesZero) {
    testing::RecordingMessages messages;
    EXPECT_EQ(genSub::SqrGuard(std::numeric_limits<double>::infinity(), messages), 0);
    ASSERT_EQ(messages.shown.size(), 1U);
    EXPECT_EQ(messages.shown[0].text, "Error in calculation of Square Root");
    EXPECT_EQ(messages.shown[0].buttons, Buttons::Ok);
    EXPECT_EQ(messages.shown[0].icon, Icon::None);
    EXPECT_EQ(messages.shown[0].title, "");
}

}  // namespace
}  // namespace kelvo
