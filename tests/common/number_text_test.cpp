#include "common/number_text.h"

#include <gtest/gtest.h>

#include "support/faults.h"

namespace kelvo {
namespace {

using testing::faultOf;

struct Spelling {
    const char* text;
    double value;
};

TEST(NumberRule, ReadsTheLongestPrefixThatFormsANumber) {
    const Spelling spellings[] = {
        {"37.35332567", 37.35332567},
        {"12abc", 12},
        {"A-1", 0},
        {"인천", 0},
        {"1.2.3", 1.2},
        {"+400000", 400000},
        {"-.5", -0.5},
        {"5.", 5},
        {"--5", 0},
        {"", 0},
        {"   7", 7},
        {"-", 0},
        {"+", 0},
        {".", 0},
        {"-.", 0},
    };
    for (const auto& [text, value] : spellings) EXPECT_EQ(leadingNumber(text), value) << text;
}

TEST(NumberRule, AnExponentIsIntroducedByEOrD) {
    const Spelling spellings[] = {
        {"4.0e5", 400000}, {"2D5", 200000}, {"2E+05", 200000}, {"1d-3", 0.001},
        {"4d+5", 400000},  {"1D2", 100},    {"2e5e1", 200000}, {".5e1x", 5},
    };
    for (const auto& [text, value] : spellings) EXPECT_EQ(leadingNumber(text), value) << text;
}

TEST(NumberRule, AnExponentWithoutDigitsIsLeftOut) {
    for (const char* text : {"1E", "1e+", "1D-", "1exy", "1e+-2"}) {
        EXPECT_EQ(leadingNumber(text), 1) << text;
    }
}

TEST(NumberRule, AmpersandHAndOReadHexadecimalAndOctal) {
    const Spelling spellings[] = {
        {"&H1F", 31},      {"&h1f", 31},        {"&O17", 15},   {"&o17", 15},
        {"&HFFFF", 65535}, {"&H61A80", 400000}, {"&HFFx", 255}, {"&O606500", 200000},
        {"&H", 0},         {"&O8", 0},          {"&O178", 15},
    };
    for (const auto& [text, value] : spellings) EXPECT_EQ(leadingNumber(text), value) << text;
}

TEST(NumberRule, NoSignStandsInFrontOfAnAmpersand) {
    EXPECT_EQ(leadingNumber("-&H1F"), 0);
    EXPECT_EQ(leadingNumber("+&O17"), 0);
}

TEST(NumberRule, InfNanAndForeignSpellingsAreNoNumbers) {
    EXPECT_EQ(leadingNumber("inf"), 0);
    EXPECT_EQ(leadingNumber("-infinity"), 0);
    EXPECT_EQ(leadingNumber("nan"), 0);
    EXPECT_EQ(leadingNumber("0x10"), 0);
    EXPECT_EQ(leadingNumber("1_0"), 1);
}

TEST(NumberRule, ANumberBeyondADoubleIsMarkedAndReadsAsZero) {
    const NumberRead read = readNumber("1e400");
    EXPECT_TRUE(read.tooLarge);
    EXPECT_EQ(read.value, 0);
    EXPECT_TRUE(readNumber("-1e309x").tooLarge);
    EXPECT_TRUE(readNumber(std::string(400, '9')).tooLarge);
    EXPECT_FALSE(readNumber("1.7976931348623157e308").tooLarge);
    EXPECT_FALSE(readNumber("0e999").tooLarge);
}

TEST(NumberRule, ANumberBelowTheSmallestDoubleIsZeroAndNotTooLarge) {
    const NumberRead read = readNumber("1e-400");
    EXPECT_FALSE(read.tooLarge);
    EXPECT_EQ(read.value, 0);
}

TEST(NumberRule, AVeryLongExponentDoesNotOverflow) {
    EXPECT_TRUE(readNumber("1e99999999999999999999").tooLarge);
    EXPECT_EQ(leadingNumber("1e-99999999999999999999"), 0);
}

TEST(NumberRule, AnExponentAtTheLimitOfAnIntegerIsAsLargeOrSmallAsItSays) {
    for (const char* text :
         {"1e9223372036854775807", "12345e9223372036854775800", "0.001e9223372036854775807",
          "-1d9223372036854775807", "1e9223372036854775808", "1e2147483647", "1e4294967295"}) {
        EXPECT_TRUE(readNumber(text).tooLarge) << text;
        EXPECT_EQ(readNumber(text).value, 0) << text;
    }
    for (const char* text :
         {"1e-9223372036854775808", "0.0001e-9223372036854775808", "12345e-9223372036854775807",
          "1e-9223372036854775809", "1e-2147483648", "0e9223372036854775807"}) {
        EXPECT_FALSE(readNumber(text).tooLarge) << text;
        EXPECT_EQ(readNumber(text).value, 0) << text;
    }
}

TEST(NumberRule, EveryDigitOfALongNumberCounts) {
    EXPECT_EQ(leadingNumber("400000.000000000000000000001"), 400000);
    EXPECT_EQ(leadingNumber("200000.99999999999999999999"), 200001);
}

TEST(StrictNumber, TakesTheWholeText) {
    EXPECT_EQ(strictNumber("  12.5 "), 12.5);
    EXPECT_EQ(strictNumber("-3"), -3);
    for (const char* text : {"", "   ", "12abc", "abc", "1.2.3", "inf", "nan", "0x10"}) {
        EXPECT_EQ(faultOf([&] { return strictNumber(text); }), 13) << text;
    }
    EXPECT_EQ(faultOf([] { return strictNumber("1e400"); }), 6);
}

std::string textOfFault(const std::string& text) {
    try {
        static_cast<void>(strictNumber(text));
    } catch (const RuntimeFault& fault) {
        return fault.text();
    }
    return {};
}

TEST(StrictNumber, AFaultQuotesTheFirstTwoHundredCharacters) {
    const std::string word(200, 'x');
    EXPECT_EQ(textOfFault(word), "숫자가 아닙니다 (" + word + ")");
    EXPECT_EQ(textOfFault(word + "y"), "숫자가 아닙니다 (" + word + ")");
    const std::string digits(400, '9');
    EXPECT_EQ(textOfFault(digits), "숫자가 너무 큽니다 (" + digits.substr(0, 200) + ")");
    EXPECT_EQ(textOfFault(" 1e400 "), "숫자가 너무 큽니다 (1e400)");
}

TEST(StrictNumber, ANumberBeyondItsTypeIsAnOverflow) {
    EXPECT_EQ(faultOf([] { return strictSingle("1e39"); }), 6);
    EXPECT_EQ(faultOf([] { return strictInteger16("32768"); }), 6);
    EXPECT_EQ(faultOf([] { return strictInteger16("-32769"); }), 6);
    EXPECT_EQ(strictInteger16("-32768"), -32768);
}

TEST(StrictNumber, IntegersRoundHalvesToTheEvenNeighbour) {
    EXPECT_EQ(strictInteger16("2.5"), 2);
    EXPECT_EQ(strictInteger16("3.5"), 4);
    EXPECT_EQ(strictInteger16("-2.5"), -2);
    EXPECT_EQ(strictInteger16("32767.4"), 32767);
    EXPECT_EQ(faultOf([] { return strictInteger16("32767.5"); }), 6);
}

TEST(GeneralText, StandsWithoutAnExponentWhileItFitsIntoFifteenDigits) {
    EXPECT_EQ(generalText(0.9996), "0.9996");
    EXPECT_EQ(generalText(0), "0");
    EXPECT_EQ(generalText(-0.0), "0");
    EXPECT_EQ(generalText(-0.5), "-0.5");
    EXPECT_EQ(generalText(0.1 + 0.2), "0.3");
    EXPECT_EQ(generalText(123456789012345), "123456789012345");
    EXPECT_EQ(generalText(100000000000000), "100000000000000");
    EXPECT_EQ(generalText(1e-15), "0.000000000000001");
    EXPECT_EQ(generalText(6377397.155), "6377397.155");
}

TEST(GeneralText, OtherwiseHasAnExponent) {
    EXPECT_EQ(generalText(1.5e-20), "1.5E-20");
    EXPECT_EQ(generalText(1e15), "1E+15");
    EXPECT_EQ(generalText(-2.25e300), "-2.25E+300");
    EXPECT_EQ(generalText(1e-16), "1E-16");
}

TEST(GeneralText, InAFileThereIsNoZeroInFrontOfThePoint) {
    EXPECT_EQ(generalTextInFile(0.9996), ".9996");
    EXPECT_EQ(generalTextInFile(-0.5), "-.5");
    EXPECT_EQ(generalTextInFile(0), "0");
    EXPECT_EQ(generalTextInFile(10.5), "10.5");
}

TEST(GeneralText, ReadsBackToTheSameNumberWithinFifteenDigits) {
    for (const double value : {0.9996, 299.1528128, -474.99, 1.5e-20, 4098671.926334}) {
        EXPECT_EQ(leadingNumber(generalText(value)), value);
        EXPECT_EQ(leadingNumber(generalTextInFile(value)), value);
    }
}

TEST(SingleText, HasAtMostSevenDigitsAndNoExponent) {
    EXPECT_EQ(singleText(0.02F, true), "0.02");
    EXPECT_EQ(singleText(0.02F, false), ".02");
    EXPECT_EQ(singleText(-0.02F, false), "-.02");
    EXPECT_EQ(singleText(1.5F, true), "1.5");
    EXPECT_EQ(singleText(1.0F, true), "1");
    EXPECT_EQ(singleText(0.1F, true), "0.1");
    EXPECT_EQ(singleText(0.0F, true), "0");
    EXPECT_EQ(singleText(100.0F, true), "100");
}

TEST(NumberLength, CountsWhatTheNumberRuleReads) {
    EXPECT_EQ(numberLength("12.5m"), 4U);
    EXPECT_EQ(numberLength("37-35-33"), 2U);
    EXPECT_EQ(numberLength("  -1D2x"), 6U);
    EXPECT_EQ(numberLength("1E"), 1U);
    EXPECT_EQ(numberLength("&H1Fg"), 4U);
    EXPECT_EQ(numberLength("abc"), 0U);
    EXPECT_EQ(numberLength(""), 0U);
    EXPECT_EQ(numberLength("."), 0U);
}

}  // namespace
}  // namespace kelvo
