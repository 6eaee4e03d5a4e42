#include "plot/format_picture.h"

#include <gtest/gtest.h>

namespace kelvo::testing {
namespace {

TEST(FormatPicture, ZerosAreAlwaysShown) {
    EXPECT_EQ(formatByPicture(3.14159, "0.00"), "3.14");
    EXPECT_EQ(formatByPicture(7, "000"), "007");
    EXPECT_EQ(formatByPicture(0, "0.0"), "0.0");
}

TEST(FormatPicture, HashesAreShownWhereTheySaySomething) {
    EXPECT_EQ(formatByPicture(0.5, "#.00"), ".50");
    EXPECT_EQ(formatByPicture(1.5, "#.###"), "1.5");
    EXPECT_EQ(formatByPicture(1.25, "0.0##"), "1.25");
    EXPECT_EQ(formatByPicture(12, "####"), "12");
    EXPECT_EQ(formatByPicture(0, "#"), "");
    EXPECT_EQ(formatByPicture(5, "#00"), "05");
}

TEST(FormatPicture, PointStandsAlsoWithoutDecimals) {
    EXPECT_EQ(formatByPicture(3, "0.##"), "3.");
}

TEST(FormatPicture, DigitsInFrontOfThePlacesAreKept) {
    EXPECT_EQ(formatByPicture(12345.6, "0.0"), "12345.6");
    EXPECT_EQ(formatByPicture(12345, "#"), "12345");
    EXPECT_EQ(formatByPicture(12.5, ".0"), "12.5");
}

TEST(FormatPicture, HalvesAreRoundedAwayFromZero) {
    EXPECT_EQ(formatByPicture(2.5, "0"), "3");
    EXPECT_EQ(formatByPicture(-2.5, "0"), "-3");
    EXPECT_EQ(formatByPicture(1.005, "0.00"), "1.01");  // 1.00500000000000 at 15 digits
}

TEST(FormatPicture, MinusIsKept) {
    EXPECT_EQ(formatByPicture(-3.14159, "0.00"), "-3.14");
    EXPECT_EQ(formatByPicture(-0.001, "0.00"), "-0.00");
}

TEST(FormatPicture, OtherCharactersStandAsTheyAre) {
    EXPECT_EQ(formatByPicture(12.5, "0.0 m"), "12.5 m");
    EXPECT_EQ(formatByPicture(1234, "(0)"), "(1234)");
    EXPECT_EQ(formatByPicture(12, "m"), "m");
}

TEST(FormatPicture, EmptyPictureGivesTheGeneralText) {
    EXPECT_EQ(formatByPicture(1.5, ""), "1.5");
}

}  // namespace
}  // namespace kelvo::testing
