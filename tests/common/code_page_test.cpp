#include "common/code_page.h"

#include <gtest/gtest.h>
#include <iconv.h>

#include <array>
#include <optional>
#include <random>

#include "common/utf8.h"

namespace kelvo {
namespace {

// What the platform's converter makes of the bytes; nothing where it refuses them.
class Iconv {
public:
    Iconv(const char* to, const char* from) : handle_(iconv_open(to, from)) {}
    ~Iconv() { iconv_close(handle_); }
    Iconv(const Iconv&) = delete;
    Iconv& operator=(const Iconv&) = delete;

    std::optional<std::string> convert(std::string bytes) {
        std::array<char, 64> out{};
        char* in = bytes.data();
        char* to = out.data();
        std::size_t inLeft = bytes.size();
        std::size_t outLeft = out.size();
        iconv(handle_, nullptr, nullptr, nullptr, nullptr);
        const std::size_t result = iconv(handle_, &in, &inLeft, &to, &outLeft);
        if (result != 0 || inLeft != 0) return std::nullopt;
        return std::string(out.data(), out.size() - outLeft);
    }

private:
    iconv_t handle_;
};

std::string utf8(char32_t code) {
    std::string text;
    appendUtf8(code, text);
    return text;
}

TEST(CodePage, AgreesWithThePlatformOnEveryPair) {
    Iconv platform("UTF-8", "CP949");
    int pairs = 0;
    for (int lead = 0x81; lead <= 0xFE; ++lead) {
        for (int trail = 0x40; trail <= 0xFE; ++trail) {
            const std::string bytes{static_cast<char>(lead), static_cast<char>(trail)};
            const auto expected = platform.convert(bytes);
            if (!expected || firstCharacter(*expected).length != expected->size()) continue;
            ++pairs;
            ASSERT_EQ(decodeCodePage(bytes), *expected) << std::hex << lead << trail;
            ASSERT_EQ(encodeCodePage(*expected), bytes) << std::hex << lead << trail;
            ASSERT_EQ(codePageWidth(firstCharacter(*expected).code), 2);
        }
    }
    EXPECT_EQ(pairs, 17048);
}

TEST(CodePage, AgreesWithThePlatformOnEveryCharacter) {
    Iconv platform("CP949", "UTF-8");
    for (char32_t code = 1; code < 0x10000; ++code) {
        if (code >= 0xD800 && code <= 0xDFFF) continue;
        if (code == 0x80 || (code >= 0xE000 && code <= 0xF8FF)) continue;
        const auto expected = platform.convert(utf8(code));
        ASSERT_EQ(encodeCodePage(utf8(code)), expected.value_or("?"))
            << std::hex << static_cast<unsigned>(code);
    }
}

TEST(CodePage, TheFirstHundredAndTwentyEightBytesAreThemselves) {
    for (int byte = 0; byte < 0x80; ++byte) {
        const std::string text(1, static_cast<char>(byte));
        EXPECT_EQ(decodeCodePage(text), text);
        EXPECT_EQ(encodeCodePage(text), text);
        EXPECT_EQ(codePageWidth(static_cast<char32_t>(byte)), 1);
    }
}

TEST(CodePage, TheUserAreaStandsInThePrivateUseArea) {
    EXPECT_EQ(decodeCodePage("\xC9\xA1"), utf8(0xE000));
    EXPECT_EQ(decodeCodePage("\xC9\xFE"), utf8(0xE05D));
    EXPECT_EQ(decodeCodePage("\xFE\xA1"), utf8(0xE05E));
    EXPECT_EQ(decodeCodePage("\xFE\xFE"), utf8(0xE0BB));
    EXPECT_EQ(encodeCodePage(utf8(0xE0BB)), "\xFE\xFE");
    EXPECT_EQ(encodeCodePage(utf8(0xE0BC)), "?");
}

TEST(CodePage, AByteThatWasHeldGoesBackAndItsNeighboursHaveNone) {
    EXPECT_EQ(encodeCodePage(utf8(0xF780)), "?");
    EXPECT_EQ(encodeCodePage(utf8(0xF781)), "\x81");
    EXPECT_EQ(encodeCodePage(utf8(0xF7FE)), "\xFE");
    EXPECT_EQ(encodeCodePage(utf8(0xF7FF)), "?");
}

TEST(CodePage, TheSingleBytes80AndFFAreCharacters) {
    EXPECT_EQ(decodeCodePage("\x80"), utf8(0x80));
    EXPECT_EQ(decodeCodePage("\xFF"), utf8(0xF8F7));
    EXPECT_EQ(encodeCodePage(utf8(0x80)), "\x80");
    EXPECT_EQ(encodeCodePage(utf8(0xF8F7)), "\xFF");
}

TEST(CodePage, AByteThatBeginsNoPairIsHeldAndGoesBack) {
    EXPECT_EQ(decodeCodePage("\x81 "), utf8(0xF781) + " ");
    EXPECT_EQ(decodeCodePage("a\xB0"), "a" + utf8(0xF7B0));
    EXPECT_EQ(encodeCodePage(utf8(0xF781)), "\x81");
}

TEST(CodePage, ACharacterThatItLacksBecomesAQuestionMark) {
    EXPECT_EQ(encodeCodePage("a😀é가"), std::string("a??\xB0\xA1"));
}

TEST(CodePage, IllFormedTextGivesOneQuestionMarkAByte) {
    EXPECT_EQ(encodeCodePage(std::string_view("a\xFF\xC0"
                                              "b")),
              "a??b");
}

TEST(CodePage, AnyBytesComeBackAsTheyWere) {
    std::mt19937 random(949);
    std::uniform_int_distribution<int> byte(0, 255);
    for (int i = 0; i < 2000; ++i) {
        std::string bytes;
        for (int k = 0; k < 64; ++k) bytes.push_back(static_cast<char>(byte(random)));
        ASSERT_EQ(encodeCodePage(decodeCodePage(bytes)), bytes);
    }
}

TEST(CodePage, TheAppendingFormsAppend) {
    std::string text = "x";
    decodeCodePage("\xB0\xA1", text);
    EXPECT_EQ(text, "x가");
    std::string bytes = "y";
    encodeCodePage("가", bytes);
    EXPECT_EQ(bytes, "y\xB0\xA1");
}

}  // namespace
}  // namespace kelvo
