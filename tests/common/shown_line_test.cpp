#include "common/shown_line.h"

#include <gtest/gtest.h>

namespace kelvo {
namespace {

TEST(ShownLine, LeavesWhatIsNoHarmAsItStands) {
    const std::string line = "run-time error 53: 파일을 찾을 수 없습니다 (C:\\자료\\é 😀~.dat)";
    EXPECT_EQ(shownLine(line), line);
    EXPECT_EQ(shownLine(""), "");
}

TEST(ShownLine, EscapesWhatSteersATerminal) {
    EXPECT_EQ(shownLine("a\x1b[31mb"), "a\\x1b[31mb");
    EXPECT_EQ(shownLine("a\nb\r\tc\x07\x7f"), "a\\nb\\r\\tc\\x07\\x7f");
    EXPECT_EQ(shownLine(std::string("a\0b", 3)), "a\\x00b");
    EXPECT_EQ(shownLine("a\xC2\x9B"
                        "31m"),
              "a\\xc2\\x9b31m");
}

TEST(ShownLine, EscapesWhatTurnsTheDirectionOfWriting) {
    EXPECT_EQ(shownLine("a\u202Etad.b"), "a\\xe2\\x80\\xaetad.b");
    EXPECT_EQ(shownLine("a\u2066b\u2028c"), "a\\xe2\\x81\\xa6b\\xe2\\x80\\xa8c");
}

TEST(ShownLine, EscapesFromTheFirstToTheLastOfEachKind) {
    // A blank, ~, no-break space, and the neighbours of what steers.
    for (const char* safe : {"\x20", "\x7E", "\xC2\xA0", "\xD8\x9B", "\xD8\x9D", "\xE2\x80\x8D",
                             "\xE2\x80\x90", "\xE2\x80\xA7", "\xE2\x80\xAF", "\xE2\x81\xA5",
                             "\xE2\x81\xAA", "\xEF\xBB\xBE", "\xEF\xBC\x80"})
        EXPECT_EQ(shownLine(safe), safe);
    for (const char* steering :
         {"\x1F", "\x7F", "\xC2\x80", "\xC2\x9F", "\xD8\x9C", "\xE2\x80\x8E", "\xE2\x80\x8F",
          "\xE2\x80\xA8", "\xE2\x80\xAE", "\xE2\x81\xA6", "\xE2\x81\xA9", "\xEF\xBB\xBF"})
        EXPECT_TRUE(shownLine(steering).starts_with("\\x")) << shownLine(steering);
}

TEST(ShownLine, EscapesBytesThatBelongToNoCharacter) {
    EXPECT_EQ(shownLine("\xff\xfe.dat"), "\\xff\\xfe.dat");
    EXPECT_EQ(shownLine("\xEA\xB0"), "\\xea\\xb0");
}

TEST(ShownLine, LosesItsMiddleWhereItIsTooLong) {
    EXPECT_EQ(shownLine("0123456789", 10), "0123456789");
    EXPECT_EQ(shownLine("0123456789A", 10), "01 ... 9A");
    EXPECT_EQ(shownLine("0123456789AB", 11), "012 ... 9AB");
    const std::string line = shownLine("first " + std::string(15'000'000, 'x') + " last");
    EXPECT_EQ(line.size(), kLongestShownLine);
    EXPECT_TRUE(line.starts_with("first x"));
    EXPECT_TRUE(line.ends_with("x last"));
}

TEST(ShownLine, NeverCutsThroughACharacterOrAnEscape) {
    for (std::size_t most = 15; most < 40; ++most) {
        for (const std::string unit : {"가", "\x1b", "\xff"}) {
            std::string text;
            for (int i = 0; i < 100; ++i) text += unit;
            const std::string line = shownLine(text, most);
            EXPECT_LE(line.size(), most);
            std::string rest = line;
            rest.replace(rest.find(" ... "), 5, "");
            std::string whole;
            while (whole.size() < rest.size()) whole += shownLine(unit);
            EXPECT_EQ(rest, whole) << most;
        }
    }
}

}  // namespace
}  // namespace kelvo
