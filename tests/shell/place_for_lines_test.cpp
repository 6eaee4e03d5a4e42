// Where further lines of points go, line by line.
#include "shell/place_for_lines.h"

#include <gtest/gtest.h>

#include <string>

namespace kelvo {
namespace {

// The line; "d" where angles are decimal degrees, "e" where an `end` is needed.
std::string placed(std::string_view text, std::size_t line, std::size_t column) {
    const PlaceForLines place = placeForLines(text, line, column);
    return std::to_string(place.line) + (place.readsDegrees ? "d" : "") +
           (place.needsEnd ? "e" : "");
}

TEST(PlaceForLines, IsInFrontOfTheCaretAtTheStartOfALineAndElseAfterIt) {
    constexpr const char* text = "* x\n* y\n* z\nend\n";
    EXPECT_EQ(placed(text, 0, 0), "0");
    EXPECT_EQ(placed(text, 0, 1), "1");
    EXPECT_EQ(placed(text, 1, 0), "1");
    EXPECT_EQ(placed(text, 1, 3), "2");
    EXPECT_EQ(placed(text, 2, 3), "3");
}

TEST(PlaceForLines, OfACaretInAnEmptyLineIsThatLine) {
    for (const char* blank : {"", " ", "   ", "\t", ", ,", "\r", "    \t,"}) {
        const std::string text = std::string("* x\n") + blank + "\n* y\nend\n";
        EXPECT_EQ(placed(text, 1, 0), "1") << blank;
        EXPECT_EQ(placed(text, 1, 1), "1") << blank;
    }
}

TEST(PlaceForLines, IsInFrontOfTheEnd) {
    constexpr const char* text = "* x\nend\n* y\nend\n\n";
    for (std::size_t line = 1; line < 8; ++line) {
        EXPECT_EQ(placed(text, line, 0), "1") << line;
        EXPECT_EQ(placed(text, line, 2), "1") << line;
    }
    EXPECT_EQ(placed("end", 0, 0), "0");
    EXPECT_EQ(placed("end", 0, 3), "0");
    EXPECT_EQ(placed("END\n", 1, 0), "0");
}

TEST(PlaceForLines, NeedsAnEndWhereOnlyEmptyLinesFollowAndNoneIsThere) {
    EXPECT_EQ(placed("", 0, 0), "0e");
    EXPECT_EQ(placed("", 9, 9), "0e");
    EXPECT_EQ(placed("* x", 0, 0), "0");
    EXPECT_EQ(placed("* x", 0, 1), "1e");
    EXPECT_EQ(placed("* x\n* y", 0, 1), "1");
    EXPECT_EQ(placed("* x\n* y", 9, 1), "2e");
    EXPECT_EQ(placed("* x\n", 0, 1), "1e");
    EXPECT_EQ(placed("* x\n\n \n", 1, 0), "1e");
    EXPECT_EQ(placed("* x\n\n \n", 9, 0), "3e");
    EXPECT_EQ(placed("* x\n\n* y\n", 1, 0), "1");
}

TEST(PlaceForLines, IsAfterTheLinesThatGoOnWithTheOneBefore) {
    constexpr const char* text =
        "WGS A 37.3 127.3 1\n   B 37.3 127.3 1\n       C 37.3 127.3 1\nTM D 5 5 1\nend\n";
    EXPECT_EQ(placed(text, 0, 0), "0");
    for (const std::size_t column : {std::size_t{0}, std::size_t{3}}) {
        EXPECT_EQ(placed(text, 1, column), "3");
        EXPECT_EQ(placed(text, 2, column), "3");
    }
    EXPECT_EQ(placed(text, 0, 3), "3");
    EXPECT_EQ(placed(text, 3, 0), "3");
    EXPECT_EQ(placed(text, 3, 3), "4");
    EXPECT_EQ(placed("WGS A 37.3 127.3 1\n  B\nend\n", 1, 0), "1");
    EXPECT_EQ(placed("WGS A 37.3 127.3 1\n    \n   B 37.3 127.3 1\nend\n", 1, 0), "1");
    EXPECT_EQ(placed("WGS A 37.3 127.3 1\n   B 37.3 127.3 1", 0, 1), "2e");
    EXPECT_EQ(placed("WGS A 37.3 127.3 1\n   B 37.3 127.3 1\nend", 1, 1), "2");
}

TEST(PlaceForLines, IsAfterTheParametersOfACommand) {
    constexpr const char* text = "7 para\n1 2 3\n4 5 6\n7\nzone 2\nend\n";
    EXPECT_EQ(placed(text, 0, 0), "0");
    EXPECT_EQ(placed(text, 0, 1), "4");
    EXPECT_EQ(placed(text, 1, 0), "4");
    EXPECT_EQ(placed(text, 2, 1), "4");
    EXPECT_EQ(placed(text, 3, 0), "4");
    EXPECT_EQ(placed(text, 3, 1), "4");
    EXPECT_EQ(placed(text, 4, 0), "4");
    EXPECT_EQ(placed(text, 4, 1), "5");
    EXPECT_EQ(placed("7 para\n1 2 3", 1, 3), "2e");
}

TEST(PlaceForLines, KnowsTheFormOfAnglesThatWasAskedForLast) {
    constexpr const char* text =
        "INPUT deg\n* x\ninput ddd.mmssss\n* y\nInput DEG\nOUTPUT deg\nend\n";
    EXPECT_EQ(placed(text, 0, 0), "0");
    EXPECT_EQ(placed(text, 0, 1), "1d");
    EXPECT_EQ(placed(text, 2, 0), "2d");
    EXPECT_EQ(placed(text, 3, 0), "3");
    EXPECT_EQ(placed(text, 4, 0), "4");
    EXPECT_EQ(placed(text, 5, 0), "5d");
    EXPECT_EQ(placed(text, 6, 0), "6d");
    EXPECT_EQ(placed("OUTPUT deg\n* x\n", 1, 0), "1");
    EXPECT_EQ(placed("* INPUT deg\n* x\n", 1, 0), "1");
    EXPECT_EQ(placed("INPUT deg", 0, 5), "1de");
}

}  // namespace
}  // namespace kelvo
