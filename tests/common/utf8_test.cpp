#include "common/utf8.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <string>

namespace kelvo {
namespace {

// The code in hexadecimal, and the bytes taken.
std::string firstOf(std::string_view bytes) {
    const Utf8Character first = firstCharacter(bytes);
    std::array<char, 16> text{};
    std::snprintf(text.data(), text.size(), "%X", static_cast<unsigned>(first.code));
    return text.data() + std::string("/") + std::to_string(first.length);
}

TEST(FirstCharacter, IsTheShortestFirstAndLastOfEachLength) {
    EXPECT_EQ(firstOf(std::string_view("\0x", 2)), "0/1");
    EXPECT_EQ(firstOf("\x7Fx"), "7F/1");
    EXPECT_EQ(firstOf("\xC2\x80x"), "80/2");
    EXPECT_EQ(firstOf("\xDF\xBFx"), "7FF/2");
    EXPECT_EQ(firstOf("\xE0\xA0\x80x"), "800/3");
    EXPECT_EQ(firstOf("\xEF\xBF\xBFx"), "FFFF/3");
    EXPECT_EQ(firstOf("\xF0\x90\x80\x80x"), "10000/4");
    EXPECT_EQ(firstOf("\xF4\x8F\xBF\xBFx"), "10FFFF/4");
}

TEST(FirstCharacter, IsOneByteThatBelongsToNoneWhereNoneBegins) {
    for (const char* bytes : {
             "\x80x", "\xBFx", "\xC0\x80", "\xC1\xBF", "\xE0\x9F\xBF",
             "\xF0\x8F\xBF\xBF",                                                         // too long
             "\xF4\x90\x80\x80", "\xF5\x80\x80\x80", "\xFF", "\xFE",                     // beyond
             "\xC2", "\xC2x", "\xE1\x80", "\xE1\x80x", "\xF1\x80\x80", "\xF1\x80\x80x",  // cut off
         })
        EXPECT_EQ(firstOf(bytes), "FFFD/1") << ::testing::PrintToString(std::string(bytes));
}

TEST(FirstCharacter, IsNoHalfOfAPair) {
    EXPECT_EQ(firstOf("\xED\x9F\xBF"), "D7FF/3");
    EXPECT_EQ(firstOf("\xED\xA0\x80"), "FFFD/1");
    EXPECT_EQ(firstOf("\xED\xBF\xBF"), "FFFD/1");
    EXPECT_EQ(firstOf("\xEE\x80\x80"), "E000/3");
}

}  // namespace
}  // namespace kelvo
