// Words of pasted and typed coordinates: which belong together, and what each one is.
#include "panels/coordinate_words.h"

#include <gtest/gtest.h>

namespace kelvo {
namespace {

std::string described(const CoordinateWord& word) {
    std::string text;
    if (word.kind == CoordinateWord::Kind::Other) return "other " + word.text;
    if (word.kind == CoordinateWord::Kind::Number)
        text = "number " + word.text + (word.saysDegrees ? " degrees" : "");
    else
        text = std::string("angle ") + (word.negative ? "minus " : "") + word.degrees + ' ' +
               word.minutes + ' ' + word.seconds;
    if (word.hemisphere != '\0') text = text + ' ' + word.hemisphere;
    return text;
}

// The words of a text in words, "; " between them.
std::string wordsOf(std::string_view text) {
    std::string all;
    for (const CoordinateWord& word : coordinateWords(text).words)
        all += (all.empty() ? "" : "; ") + described(word);
    return all;
}

TEST(CoordinateWords, ArePartedByEveryKindOfGap) {
    for (const char* gap : {" ", "\t", "\n", "\r\n", "\r", ";", ",", "\u00A0", "\u3000", " ,; "})
        EXPECT_EQ(wordsOf(std::string("1") + gap + "a"), "number 1; other a") << gap;
    EXPECT_EQ(wordsOf(" \t 12.5 , 7 \n"), "number 12.5; number 7");
    EXPECT_EQ(wordsOf(""), "");
    EXPECT_EQ(wordsOf(" ;\t,\n"), "");
    EXPECT_EQ(wordsOf("1/2_3"), "other 1/2_3");
}

TEST(CoordinateWords, AreNumbersWhereTheyAreOneFromEndToEnd) {
    for (const char* number :
         {"5", "-5", "5.", ".5", "-.5", "12.25", "5e3", "5E3", "5e-3", "5e+3", "-1.5e10", "0"})
        EXPECT_EQ(wordsOf(number), std::string("number ") + number);
    for (const char* other : {"-", "+", ".", "-.", "5ee", "5e-", "5e3x", "--5", "+-5", "5-",
                              "5.5.5", "1,5x", "x5", "5x", "e5x", ".e5", "5e3.5"}) {
        const auto words = coordinateWords(other).words;
        EXPECT_EQ(words.back().kind, CoordinateWord::Kind::Other) << other;
    }
}

TEST(CoordinateWords, OfANumberLeaveOutItsPlusItsMetresAndItsDegrees) {
    EXPECT_EQ(wordsOf("+5"), "number 5");
    EXPECT_EQ(wordsOf("+.5m"), "number .5");
    EXPECT_EQ(wordsOf("5m"), "number 5");
    EXPECT_EQ(wordsOf("12.5M"), "number 12.5");
    EXPECT_EQ(wordsOf("5°"), "number 5 degrees");
    EXPECT_EQ(wordsOf("-37.5º"), "number -37.5 degrees");
    EXPECT_EQ(wordsOf("37.5도"), "number 37.5 degrees");
    EXPECT_EQ(wordsOf("5mm"), "other 5mm");
    EXPECT_EQ(wordsOf("m"), "other m");
    EXPECT_EQ(wordsOf("M"), "other M");
    for (const char* noNumber : {"°", "37.5°°", "a°", "37-35-°"}) {
        const auto words = coordinateWords(noNumber).words;
        ASSERT_EQ(words.size(), 1U) << noNumber;
        EXPECT_EQ(words[0].kind, CoordinateWord::Kind::Other) << noNumber;
        EXPECT_FALSE(words[0].saysDegrees) << noNumber;
    }
}

TEST(CoordinateWords, AreAnglesInHyphensColonsAndSigns) {
    for (const char* angle :
         {"37-35-33.25", "37:35:33.25", "37-35:33.25", "37°35′33.25″", "37º35'33.25\"",
          "37°35’33.25”", "37°35′33.25", "37도35분33.25초", "37-35-33.25″", "+37-35-33.25"})
        EXPECT_EQ(wordsOf(angle), "angle 37 35 33.25") << angle;
    EXPECT_EQ(wordsOf("-37-35-33"), "angle minus 37 35 33");
    EXPECT_EQ(wordsOf("−37–35–33"), "angle minus 37 35 33");
    EXPECT_EQ(wordsOf("1-2-3"), "angle 1 2 3");
    EXPECT_EQ(wordsOf("126-05-03.0"), "angle 126 05 03.0");
}

TEST(CoordinateWords, AreNoAnglesWithAPartMissingTooLongOrWithTheWrongSign) {
    for (const char* other :
         {"-35-33",     "37--33",    "37-35-",       "37-35",      "1026-35-33", "37-035-33",
          "37-35-033",  "37-35-33.", "37-35-33.5.5", "37-35-33-1", "37-35-33a",  "a37-35-33",
          "37°35-33",   "37-35′33″", "37°35:33",     "37.5-35-33", "37-35.5-33", "--37-35-33",
          "37-35-33″″", "37°35′",    "°35′33″",      "37°′33″",    "37°35′″",    "37-35-.5"}) {
        const auto words = coordinateWords(other).words;
        ASSERT_EQ(words.size(), 1U) << other;
        EXPECT_EQ(words[0].kind, CoordinateWord::Kind::Other) << other;
        EXPECT_TRUE(words[0].degrees.empty()) << other;
    }
    EXPECT_EQ(wordsOf("126-35-33"), "angle 126 35 33");
}

TEST(CoordinateWords, TakeKoreanUnitsForSignsAfterADigitOnly) {
    EXPECT_EQ(wordsOf("도 도근점 37도 분할점 35초소"),
              "other 도; other 도근점; number 37 degrees; other 분할점; other 35\x03소");
    EXPECT_EQ(wordsOf("분5 초5"), "other 분5; other 초5");
}

TEST(CoordinateWords, OfAnAngleStayTogetherOverBlanks) {
    EXPECT_EQ(wordsOf("37- 5- 1.5000"), "angle 37 5 1.5000");
    EXPECT_EQ(wordsOf("7- 5- 1"), "angle 7 5 1");
    EXPECT_EQ(wordsOf("37-   5-   1.5   9"), "angle 37 5 1.5; number 9");
    EXPECT_EQ(wordsOf("37° 35′ 33.5″ 126°  32′  29.5″"), "angle 37 35 33.5; angle 126 32 29.5");
    EXPECT_EQ(wordsOf("37°35′ 33.5 126°32′ 29.5"), "angle 37 35 33.5; angle 126 32 29.5");
    EXPECT_EQ(wordsOf("37도 35분 33초"), "angle 37 35 33");
}

TEST(CoordinateWords, ThatBeginTheNextCoordinateStayApart) {
    EXPECT_EQ(wordsOf("37.5° 126.5°"), "number 37.5 degrees; number 126.5 degrees");
    EXPECT_EQ(wordsOf("37° 35"), "number 37 degrees; number 35");
    EXPECT_EQ(wordsOf("37° 35″"), "number 37 degrees; other 35\x03");
    // No seconds were given: the next degrees, or the next minutes, aren't taken for them.
    EXPECT_EQ(wordsOf("37°35′ 126°32′"),
              "other 37\x01"
              "35\x02; other 126\x01"
              "32\x02");
    EXPECT_EQ(wordsOf("35′ 32′"), "other 35\x02; other 32\x02");
    EXPECT_EQ(wordsOf("1 - 5"), "number 1; other -; number 5");
    EXPECT_EQ(wordsOf("- 5"), "other -; number 5");
    EXPECT_EQ(wordsOf("A- 5"), "other A-; number 5");
    EXPECT_EQ(wordsOf("37- A"), "other 37-; other A");
    EXPECT_EQ(wordsOf("37-"), "other 37-");
    EXPECT_EQ(wordsOf("37-  "), "other 37-");
}

TEST(CoordinateWords, TakeTheHemisphereInFrontOrAtTheEnd) {
    EXPECT_EQ(wordsOf("5N n5 5S s5 5E e5 5W w5"),
              "number 5 N; number 5 N; number 5 S; number 5 S; number 5 E; number 5 E; number 5 W; "
              "number 5 W");
    EXPECT_EQ(wordsOf("N37.5 126.5e"), "number 37.5 N; number 126.5 E");
    EXPECT_EQ(wordsOf("5.N"), "number 5. N");
    EXPECT_EQ(wordsOf("37.5°N"), "number 37.5 degrees N");
    EXPECT_EQ(wordsOf("S37-35-33 37-35-33W"), "angle 37 35 33 S; angle 37 35 33 W");
    EXPECT_EQ(wordsOf("37°35′33″S"), "angle 37 35 33 S");
    EXPECT_EQ(wordsOf("37.5x 37.5A D37.5"), "other 37.5x; other 37.5A; other D37.5");
    EXPECT_EQ(wordsOf("N-5 N.5 5mN 5e1xE"), "other N-5; other N.5; other 5mN; other 5e1xE");
    EXPECT_EQ(wordsOf("NN"), "other NN");
}

TEST(CoordinateWords, KeepALoneHemisphereWithItsNumber) {
    EXPECT_EQ(wordsOf("37.5 N 126.5 E 30"), "number 37.5 N; number 126.5 E; number 30");
    EXPECT_EQ(wordsOf("N 37.5 E 126.5 30"), "number 37.5 N; number 126.5 E; number 30");
    EXPECT_EQ(wordsOf("A 37-35-33 S b 126-32-29 w"),
              "other A; angle 37 35 33 S; other b; angle 126 32 29 W");
    // The number in front comes first, if it has none yet.
    EXPECT_EQ(wordsOf("37.5 S 126.5"), "number 37.5 S; number 126.5");
    EXPECT_EQ(wordsOf("37.5N E 126.5"), "number 37.5 N; number 126.5 E");
    EXPECT_EQ(wordsOf("S N 37.5"), "other S; number 37.5 N");
}

TEST(CoordinateWords, LeaveALoneHemisphereWhereNoNumberIsFree) {
    EXPECT_EQ(wordsOf("N"), "other N");
    EXPECT_EQ(wordsOf("A N B"), "other A; other N; other B");
    EXPECT_EQ(wordsOf("E 37.5N W"), "other E; number 37.5 N; other W");
    EXPECT_EQ(wordsOf("N A 37.5"), "other N; other A; number 37.5");
    EXPECT_EQ(wordsOf("37.5 A N"), "number 37.5; other A; other N");
    EXPECT_EQ(wordsOf("37.5 X 5"), "number 37.5; other X; number 5");
}

TEST(CoordinateWords, AreWholeIfTheyAreNumbersOfDigitsAlone) {
    const auto isWhole = [](std::string_view text) {
        return coordinateWords(text).words[0].isWhole();
    };
    for (const char* text : {"101", "+101", "101m", "101°", "N101"})
        EXPECT_TRUE(isWhole(text)) << text;
    for (const char* text : {"-101", "101.0", "1e3", "1-2-3", "A101"})
        EXPECT_FALSE(isWhole(text)) << text;
    const auto hasDigits = [](std::string_view text) {
        return coordinateWords(text).words[0].hasDigits();
    };
    for (const char* text : {"A1", "1A", "5", "37-35-33"}) EXPECT_TRUE(hasDigits(text)) << text;
    for (const char* text : {"A", "도근점", "-", ":", "/"}) EXPECT_FALSE(hasDigits(text)) << text;
}

TEST(CoordinateWords, SayWhetherACommaStandsBetweenDigits) {
    const struct {
        const char* text;
        bool tight;
        bool other;
    } cases[] = {{"37,5", true, false},    {"37,5 3", true, true}, {"37,5,3", true, false},
                 {"37, 5", false, true},   {"37 ,5", false, true}, {"37;5", false, true},
                 {"37,,5", false, true},   {"37,-5", false, true}, {"37.,5", false, true},
                 {"37", false, false},     {" 37 ", false, false}, {",37,", false, false},
                 {"A,5", false, true},     {"5,A", false, true},   {"1 2,5", true, true},
                 {"  37,5 ", true, false}, {"1\t2", false, true}};
    for (const auto& c : cases) {
        const CoordinateLine line = coordinateWords(c.text);
        EXPECT_EQ(line.tightCommas, c.tight) << c.text;
        EXPECT_EQ(line.otherGaps, c.other) << c.text;
    }
}

}  // namespace
}  // namespace kelvo
