#include "geodesy/angle_forms.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

#include "common/fixed_width.h"
#include "common/number_text.h"
#include "geodesy/national_grid.h"
#include "support/faults.h"

namespace kelvo {
namespace {

using testing::faultOf;

class Angles : public ::testing::Test {
protected:
    static void expectSplit(double x, int D, int M, double S, double slack = 0) {
        const auto [split, rebuilds] = KelvoSub::SplitDeg(x);
        EXPECT_TRUE(rebuilds) << x;
        EXPECT_EQ(split.D, D) << x;
        EXPECT_EQ(split.M, M) << x;
        EXPECT_NEAR(split.S, S, slack) << x;
    }
    static std::string text(double x, int form) { return KelvoSub::AngleText(x, AngleForm{form}); }
};

TEST_F(Angles, ASplitGivesDegreesMinutesAndSeconds) {
    expectSplit(127.5, 127, 30, 0);
    expectSplit(0, 0, 0, 0);
    expectSplit(128.426667, 128, 25, 36.0012, 1e-7);
}

TEST_F(Angles, AHairBelowAWholeMinuteIsRoundedUp) {
    expectSplit(127 + 29.0 / 60 + 59.999995 / 3600, 127, 30, 0);
    expectSplit(0.999999999, 1, 0, 0);
}

TEST_F(Angles, SecondsOfExactly59_99999Stay) {
    // the doubles around that angle whose seconds come out on either side of the limit
    double x = 59.99999 / 3600;
    for (int i = 0; i < 4; ++i) x = std::nextafter(x, 0.0);
    int stayed = 0;
    int carried = 0;
    for (int i = 0; i < 8; ++i, x = std::nextafter(x, 1.0)) {
        const double seconds = x * 3600;
        const auto split = KelvoSub::SplitDeg(x).parts;
        if (seconds > 59.99999) {
            EXPECT_EQ(split.M, 1);
            EXPECT_EQ(split.S, 0);
            ++carried;
        } else {
            EXPECT_EQ(split.M, 0);
            EXPECT_EQ(split.S, seconds);
            ++stayed;
        }
    }
    EXPECT_GT(stayed, 0);
    EXPECT_GT(carried, 0);
}

TEST_F(Angles, AMinuteOfExactlySixtyIsCarried) {
    expectSplit(59.999999999, 60, 0, 0);
    expectSplit(359.9999999999, 360, 0, 0);
}

TEST_F(Angles, ASplitOfSixteenBitDegreesAlwaysRebuildsTheAngle) {
    std::mt19937_64 random(11);
    std::uniform_real_distribution<double> anywhere(-32768, 32767);
    std::uniform_int_distribution<int> seconds(-32767 * 3600, 32766 * 3600);
    for (int i = 0; i < 200000; ++i) {
        double x = i % 2 == 0 ? anywhere(random) : seconds(random) / 3600.0;
        if (i % 4 == 3) x = std::nextafter(x, i % 8 == 3 ? -1e9 : 1e9);
        ASSERT_TRUE(KelvoSub::SplitDeg(x).rebuilds) << std::hexfloat << x;
    }
}

TEST_F(Angles, ANegativeValueIsSplitFromTheDegreesBelow) {
    expectSplit(-37.5, -38, 30, 0);
    expectSplit(-0.5, -1, 30, 0);
}

TEST_F(Angles, DegreesBeyondSixteenBitsOverflow) {
    EXPECT_EQ(faultOf([&] { return KelvoSub::SplitDeg(32768).parts; }), 6);
    EXPECT_EQ(faultOf([&] { return KelvoSub::SplitDeg(-32769).parts; }), 6);
    EXPECT_EQ(faultOf([&] { return KelvoSub::SplitDeg(32767.99999999999).parts; }), 6)
        << "the carry goes beyond";
    EXPECT_EQ(KelvoSub::SplitDeg(-32768).parts.D, -32768);
    EXPECT_EQ(KelvoSub::SplitDeg(32767.5).parts.D, 32767);
    for (const int form : {0, 1, 2, 3, 4, 9}) {
        EXPECT_EQ(faultOf([&] { return text(32768, form); }), 6) << form;
        EXPECT_EQ(faultOf([&] { return text(-1e300, form); }), 6) << form;
    }
}

TEST_F(Angles, ParseDmsTakesSixtyAndMoreAtFaceValue) {
    EXPECT_DOUBLE_EQ(KelvoSub::ParseDms(127.6000).degrees, 128);
    EXPECT_DOUBLE_EQ(KelvoSub::ParseDms(127.9999).degrees, 128.6775);
    EXPECT_DOUBLE_EQ(KelvoSub::ParseDms(127.3).degrees, 127.5);
}

TEST_F(Angles, ParseDmsReadsEveryDigitOfTheSeconds) {
    EXPECT_DOUBLE_EQ(KelvoSub::ParseDms(37.35332567).degrees, 37 + 35.0 / 60 + 33.2567 / 3600);
    EXPECT_DOUBLE_EQ(KelvoSub::ParseDms(0.0000000001).degrees, 0.000001 / 3600);
}

TEST_F(Angles, DecimalsPastTheTenthPlaceAreLost) {
    EXPECT_EQ(KelvoSub::ParseDms(1.00000000005).degrees, KelvoSub::ParseDms(1.0000000001).degrees)
        << "rounded up";
    EXPECT_EQ(KelvoSub::ParseDms(1.00000000004).degrees, 1);
}

TEST_F(Angles, ParseDmsDoubtsAnAngleThatItsSplitDoesNotRebuild) {
    // seconds of 59.999991 are above the limit of the carry and off by 2.5e-9 degrees
    const ParsedAngle angle = KelvoSub::ParseDms(37.2959999991);
    EXPECT_NEAR(angle.degrees, 37.4999999975, 1e-13) << "and stays what was read";
    EXPECT_FALSE(angle.rebuilds);
    EXPECT_TRUE(angle.split.rebuilds) << "the split itself is within its wider limit";
    EXPECT_TRUE(angle.doubtful());
    EXPECT_FALSE(KelvoSub::ParseDms(37.29).doubtful());
}

TEST_F(Angles, DmsToDegAndBackKeepTheSign) {
    EXPECT_DOUBLE_EQ(KelvoSub::DmsToDeg(-127.3).degrees, -127.5);
    EXPECT_DOUBLE_EQ(KelvoSub::DegToDms(-127.5), -127.3);
    EXPECT_DOUBLE_EQ(KelvoSub::DegToDms(127.5), 127.3);
}

TEST_F(Angles, ZeroStaysZeroWithoutAMessage) {
    EXPECT_EQ(KelvoSub::DmsToDeg(0).degrees, 0);
    EXPECT_EQ(KelvoSub::DegToDms(0), 0);
}

TEST_F(Angles, PartsOfANegativeAngleComeOutAsTheyFall) {
    const auto negative = KelvoSub::DegToDmsParts(-37.5).parts;
    EXPECT_EQ(negative.D, 38);
    EXPECT_EQ(negative.M, 30);
    EXPECT_EQ(negative.S, 0);
    const auto positive = KelvoSub::DegToDmsParts(37.5).parts;
    EXPECT_EQ(positive.D, 37);
    EXPECT_EQ(positive.M, 30);
    EXPECT_EQ(KelvoSub::DegToDmsParts(0).parts.D, 0);
}

TEST_F(Angles, TheTextOfEachFormIsNineteenColumnsWide) {
    EXPECT_EQ(text(127.5, 1), "     127.5000000000");
    EXPECT_EQ(text(127.5, 2), "     127 30 00.0000");
    EXPECT_EQ(text(127.5, 3), "     127-30-00.0000");
    EXPECT_EQ(text(127.5, 4), "     127.3000000000");
    for (const double x : {0.0, -0.5, 5.051, 37.123456789, -127.999999, 359.99}) {
        for (int form = 1; form <= 4; ++form) EXPECT_EQ(text(x, form).size(), 19U) << x;
    }
}

TEST_F(Angles, TheSignComesFromTheValueAndNotFromTheDegrees) {
    EXPECT_EQ(text(-0.5, 3), "      -0-30-00.0000");
    EXPECT_EQ(text(-0.5, 2), "      -0 30 00.0000");
    EXPECT_EQ(text(-0.5, 1), "      -0.5000000000");
    EXPECT_EQ(text(-0.5, 4), "      -0.3000000000");
}

TEST_F(Angles, ANegativeAngleIsSplitFromItsAbsoluteValue) {
    EXPECT_EQ(text(-37.25, 3), "     -37-15-00.0000");
}

TEST_F(Angles, AnUnknownFormGivesNoText) {
    EXPECT_EQ(text(127.5, 0), "");
    EXPECT_EQ(text(127.5, 5), "");
    EXPECT_EQ(text(127.5, -1), "");
}

TEST_F(Angles, SecondsJustBelowTheCarryPrintAsSixty) {
    const double x = 127 + 29.0 / 60 + 59.99996 / 3600;
    EXPECT_EQ(text(x, 3), "     127-29-60.0000");
    EXPECT_EQ(text(127 + 29.0 / 60 + 59.99994 / 3600, 3), "     127-29-59.9999");
}

TEST_F(Angles, SmallMinutesAndSecondsGetALeadingZero) {
    EXPECT_EQ(text(36 + 1.0 / 60 + 5.25 / 3600, 3), "      36-01-05.2500");
}

TEST_F(Angles, TheAppendingFormGivesTheSameText) {
    std::string line = "A-1       ";
    KelvoSub::appendAngleText(line, 127.5, AngleForm::Hyphens);
    EXPECT_EQ(line, "A-1            127-30-00.0000");
}

TEST_F(Angles, TextOfFormFourReadsBackToTheAngle) {
    for (double x = 0.0137; x < 180; x += 0.7391) {
        const double read = KelvoSub::DmsToDeg(leadingNumber(text(x, 4))).degrees;
        // six decimals of a second
        EXPECT_NEAR(read, x, 0.6e-6 / 3600) << x;
    }
}

TEST_F(Angles, ArcSecLenGivesMetresOfASecond) {
    const auto lengths = KelvoSub::ArcSecLen(35, 127);
    EXPECT_NEAR(lengths.MPhi, 30.8136, 0.00005);
    EXPECT_NEAR(lengths.MLam, 25.3548, 0.00005);
}

TEST_F(Angles, ArcSecLenAcrossAZoneBorderIsTheDistanceBetweenTheZones) {
    const auto border = KelvoSub::ArcSecLen(37, 128.0);
    EXPECT_NEAR(border.MLam, 177980, 10);
    EXPECT_NEAR(border.MPhi, 30.82, 0.01) << "the latitude stays sound";
    const auto west = KelvoSub::ArcSecLen(37, 126 - 0.5 / 3600);
    EXPECT_GT(west.MLam, 170000);
    const auto inside = KelvoSub::ArcSecLen(37, 127.9);
    EXPECT_LT(inside.MLam, 25);
}

// The product with 60 may round up to the whole minute, and the seconds then come out below zero.
TEST_F(Angles, AHairBelowAWholeMinuteIsThatMinute) {
    for (int minute = 1; minute <= 59; ++minute) {
        double x = minute / 60.0;
        for (int hairs = 1; hairs <= 4; ++hairs) {
            x = std::nextafter(x, 0.0);
            expectSplit(x, 0, minute, 0);
        }
    }
}

}  // namespace
}  // namespace kelvo
