#include "common/fixed_width.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace kelvo {
namespace {

using genSub::Align;
using genSub::Blanks;
using genSub::DisplayLen;
using genSub::FormatNum;
using genSub::FormatText;

TEST(FormatNum, ZeroIsWrittenWithOneIntegerDigit) {
    EXPECT_EQ(FormatNum(0, 8, 4), "       0.0000");
    EXPECT_EQ(FormatNum(0, 2, 0), " 0");
}

TEST(FormatNum, TheMinusStandsDirectlyInFrontOfTheFirstDigit) {
    EXPECT_EQ(FormatNum(-7.2, 8, 4), "      -7.2000");
    EXPECT_EQ(FormatNum(-0.5, 8, 4), "      -0.5000");
    EXPECT_EQ(FormatNum(-3.5, 5, 3), "   -3.500");
    EXPECT_EQ(FormatNum(3.5, 5, 3), "    3.500");
}

TEST(FormatNum, WithoutDecimalsThereIsNoPoint) {
    EXPECT_EQ(FormatNum(12, 2, 0), "12");
    EXPECT_EQ(FormatNum(5, 2, 0), " 5");
}

TEST(FormatNum, ANegativeNumberAsWideAsTheMaskLosesItsSign) {
    EXPECT_EQ(FormatNum(-12345678.5, 8, 4), "12345678.5000");
    EXPECT_EQ(FormatNum(-123456789.5, 8, 4), "123456789.5000");
    EXPECT_EQ(FormatNum(-1234567.5, 8, 4), "-1234567.5000");
    EXPECT_EQ(FormatNum(-12, 2, 0), "12");
    EXPECT_EQ(FormatNum(-5, 2, 0), "-5");
}

TEST(FormatNum, ANegativeNumberRoundedToZeroKeepsItsSignAndZeros) {
    EXPECT_EQ(FormatNum(-0.00001, 8, 4), "-00000000.0000");
    EXPECT_EQ(FormatNum(-1e-300, 4, 2), "-0000.00");
    EXPECT_EQ(FormatNum(-0.4, 2, 0), "-00");
}

TEST(FormatNum, ANegativeZeroIsNotBelowZero) {
    EXPECT_EQ(FormatNum(-0.0, 8, 4), "       0.0000");
}

TEST(FormatNum, MoreIntegerDigitsThanTheWidthMakeTheTextWider) {
    EXPECT_EQ(FormatNum(123456789.5, 8, 4), "123456789.5000");
    EXPECT_EQ(FormatNum(123, 2, 0), "123");
}

TEST(FormatNum, TheCellsOfATableRowComeOutAsDrawn) {
    EXPECT_EQ(FormatNum(377504.2345, 12, 6), "      377504.234500");
    EXPECT_EQ(FormatNum(125963.97405, 12, 6), "      125963.974050");
    EXPECT_EQ(FormatNum(7.239, 8, 4), "       7.2390");
    EXPECT_EQ(FormatNum(3, 2, 1), " 3.0");
}

TEST(FormatNum, HalvesOfTheDecimalTextAreRoundedAwayFromZero) {
    // 1.005 and 2.675 lie below the half in binary; their text of 15 digits ends in the half
    EXPECT_EQ(FormatNum(1.005, 3, 2), "  1.01");
    EXPECT_EQ(FormatNum(2.675, 3, 2), "  2.68");
    EXPECT_EQ(FormatNum(0.125, 3, 2), "  0.13");
    EXPECT_EQ(FormatNum(-0.125, 3, 2), " -0.13");
    EXPECT_EQ(FormatNum(2.5, 1, 0), "3");
    EXPECT_EQ(FormatNum(99.5, 2, 0), "100");
}

TEST(FormatNum, DigitsBehindTheFifteenthAreZeros) {
    EXPECT_EQ(FormatNum(123456789.123456789, 8, 10), "123456789.1234570000");
    EXPECT_EQ(FormatNum(0.1, 1, 20), "0.10000000000000000000");
    EXPECT_EQ(FormatNum(1e20, 4, 2), "100000000000000000000.00");
}

TEST(FormatNum, ATextIsReadByTheNumberRule) {
    EXPECT_EQ(FormatNum("12abc", 4, 2), "  12.00");
    EXPECT_EQ(FormatNum("abc", 4, 2), "   0.00");
    EXPECT_EQ(FormatNum("", 4, 2), "   0.00");
    EXPECT_EQ(FormatNum(" 7.5", 4, 2), "   7.50");
    EXPECT_EQ(FormatNum("&HFF", 4, 0), " 255");
}

TEST(FormatNum, ATextTooLargeForANumberCountsAsZero) {
    EXPECT_EQ(FormatNum("1e400", 4, 2), "   0.00");
    EXPECT_EQ(FormatNum("-1e999", 4, 2), "   0.00");
}

TEST(FormatNum, AMaskOfMoreThan65536PlacesGivesNoText) {
    EXPECT_EQ(FormatNum(7, 65536, 0).size(), 65536U);
    EXPECT_EQ(FormatNum(7, 65537, 0), "");
    EXPECT_EQ(FormatNum(7, 1, 65537), "");
}

TEST(FormatNum, TheAppendingFormGivesTheSameText) {
    std::string line = "X";
    genSub::appendFormatNum(line, -7.2, 8, 4);
    EXPECT_EQ(line, "X      -7.2000");
}

TEST(FormatText, FillsOrCutsToTheWidth) {
    EXPECT_EQ(FormatText("abc", 10, Align::Left), "abc       ");
    EXPECT_EQ(FormatText("abc", 10, Align::Right), "       abc");
    EXPECT_EQ(FormatText("abc", 10, Align{2}), "abc");
    EXPECT_EQ(FormatText("abcdefghijk", 10, Align::Left), "abcdefghij");
    EXPECT_EQ(FormatText("", 4, Align::Right), "    ");
    EXPECT_EQ(FormatText("abc", 0, Align::Left), "");
    EXPECT_EQ(FormatText("abc", -1, Align::Left), "");
    EXPECT_EQ(FormatText("abc", -1, Align::Right), "");
}

TEST(FormatText, ASixLetterHangulNameKeepsFiveLettersInTenColumns) {
    EXPECT_EQ(FormatText("가나다라마바", 10, Align::Left), "가나다라마");
}

TEST(FormatText, ALetterThatWouldCrossTheLimitLeavesABlank) {
    EXPECT_EQ(FormatText("a가나다라마", 10, Align::Left), "a가나다라 ");
    EXPECT_EQ(FormatText("a가나다라마", 10, Align::Right), " a가나다라");
    EXPECT_EQ(FormatText("a가나다라마", 10, Align{2}), "a가나다라");
    EXPECT_EQ(FormatText("가", 1, Align::Left), " ");
}

TEST(FormatText, EveryWidthOfEveryPrefixComesOutExactlyThatWide) {
    const std::string name = "인천No-3부두";
    for (int width = 0; width <= 14; ++width) {
        EXPECT_EQ(DisplayLen(FormatText(name, width, Align::Left)), width);
        EXPECT_EQ(DisplayLen(FormatText(name, width, Align::Right)), width);
    }
}

TEST(DisplayLen, CountsTheBytesOfTheCodePage) {
    EXPECT_EQ(DisplayLen(""), 0);
    EXPECT_EQ(DisplayLen("abc"), 3);
    EXPECT_EQ(DisplayLen("가나다"), 6);
    EXPECT_EQ(DisplayLen("인천No-3"), 8);
    EXPECT_EQ(DisplayLen("뷁똠방각하"), 10);
    EXPECT_EQ(DisplayLen("日本"), 4);
}

TEST(DisplayLen, ACharacterThatTheCodePageLacksTakesTheColumnOfItsQuestionMark) {
    EXPECT_EQ(DisplayLen("😀"), 1);
    EXPECT_EQ(DisplayLen("é"), 1);
}

TEST(Blanks, GivesNothingBelowOne) {
    EXPECT_EQ(Blanks(7), "       ");
    EXPECT_EQ(Blanks(0), "");
    EXPECT_EQ(Blanks(-3), "");
}

}  // namespace
}  // namespace kelvo
