#include "convert/coordinate_text.h"

#include <gtest/gtest.h>

namespace kelvo {
namespace {

using Outcome = CoordinateRead::Outcome;

class Numbers : public testing::TestWithParam<std::pair<std::string, double>> {};

TEST_P(Numbers, AreReadAsAWhole) {
    const auto& [text, value] = GetParam();
    const CoordinateRead read = readCoordinate(text);
    EXPECT_EQ(read.outcome, Outcome::Number) << text;
    EXPECT_EQ(read.value, value) << text;
}

INSTANTIATE_TEST_SUITE_P(CoordinateText, Numbers,
                         testing::Values(std::pair("37.5", 37.5), std::pair("  37.5 ", 37.5),
                                         std::pair("+3", 3.0), std::pair("-.25", -.25),
                                         std::pair("5.", 5.0), std::pair("1e3", 1000.0),
                                         std::pair("1E-7", 1e-7), std::pair("+1.5e+2", 150.0),
                                         std::pair("007", 7.0), std::pair("1e-400", 0.0),
                                         std::pair("-0", -0.0)));

class NoNumbers : public testing::TestWithParam<std::string> {};

TEST_P(NoNumbers, AreRefusedAsAWhole) {
    EXPECT_EQ(readCoordinate(GetParam()).outcome, Outcome::NoNumber) << GetParam();
}

INSTANTIATE_TEST_SUITE_P(CoordinateText, NoNumbers,
                         testing::Values("12abc", "1d5", "1D5", "&H1F", "&O7", "3,5", "nan", "inf",
                                         "-inf", "1e", "1e+", ".", "+", "-", "1.2.3", "1 2", "e5",
                                         "\t1", "+-1", "0x10", "1_000", "가", "1'", "infinity"));

TEST(CoordinateText, AnEmptyOneIsNeitherNumberNorNonsense) {
    EXPECT_EQ(readCoordinate("").outcome, Outcome::Empty);
    EXPECT_EQ(readCoordinate("   ").outcome, Outcome::Empty);
}

TEST(CoordinateText, OneThatADoubleCannotHoldIsOutOfRange) {
    EXPECT_EQ(readCoordinate("1e999").outcome, Outcome::OutOfRange);
    EXPECT_EQ(readCoordinate("-1e309").outcome, Outcome::OutOfRange);
}

TEST(CoordinateText, ANulIsNoPartOfANumber) {
    EXPECT_EQ(readCoordinate(std::string("1\0", 2)).outcome, Outcome::NoNumber);
}

TEST(CoordinateText, APieceInASentenceIsShortOnOneLineAndWellFormed) {
    EXPECT_EQ(quotedPiece("a\nb\tc\x7f"), "a?b?c?");
    EXPECT_EQ(quotedPiece("\xff가\xea"), "?가?");
    EXPECT_EQ(quotedPiece(std::string(100, 'x')), std::string(40, 'x') + "...");
}

TEST(CoordinateText, APieceHasFortyBytesAtMostAndNoHalfCharacter) {
    const std::string forty(40, 'x');
    EXPECT_EQ(quotedPiece(forty), forty);
    EXPECT_EQ(quotedPiece(forty + "x"), forty + "...");
    EXPECT_EQ(quotedPiece(std::string(37, 'x') + "가"), std::string(37, 'x') + "가");
    EXPECT_EQ(quotedPiece(std::string(38, 'x') + "가"), std::string(38, 'x') + "...");
    EXPECT_EQ(quotedPiece(""), "");
}

TEST(CoordinateText, AControlCharacterInAPieceIsAQuestionMark) {
    EXPECT_EQ(quotedPiece(std::string("\0", 1)), "?");
    EXPECT_EQ(quotedPiece("\x1F \x7E\x7F"), "? ~?");
    EXPECT_EQ(quotedPiece("\xC2\x80|\xC2\x9F|\xC2\xA0"), "?|?|\xC2\xA0");
}

TEST(CoordinateText, ASignIsReadAndAnEmptyExponentIsNot) {
    EXPECT_EQ(readCoordinate("+0.5").value, 0.5);
    EXPECT_EQ(readCoordinate("-0.5").value, -0.5);
    EXPECT_EQ(readCoordinate("12e01").value, 120);
    EXPECT_EQ(readCoordinate("12e-01").value, 1.2);
    for (const char* text :
         {"1e-", "1E", "1e+-1", "1e1.5", "1e1x", "+.", "-.e1", ".e1", "5.e", "1.5x"})
        EXPECT_EQ(readCoordinate(text).outcome, Outcome::NoNumber) << text;
    for (const char* text : {"1e999", "-1e999"}) EXPECT_TRUE(readCoordinate(text).isSpelled());
    EXPECT_FALSE(readCoordinate("").isSpelled());
    EXPECT_FALSE(readCoordinate("x").isSpelled());
    EXPECT_EQ(readCoordinate("-1e-400").value, 0);
    EXPECT_EQ(readCoordinate("-1e-400").outcome, Outcome::Number);
}

}  // namespace
}  // namespace kelvo
