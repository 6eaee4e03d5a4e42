#include "common/letter_case.h"

#include <gtest/gtest.h>

#include <utility>

namespace kelvo {
namespace {

TEST(UpperCased, CoversLatinGreekCyrillicAndFullWidthLetters) {
    EXPECT_EQ(upperCased("wgs u-1"), "WGS U-1");
    EXPECT_EQ(upperCased("ａｂｚ"), "ＡＢＺ");
    EXPECT_EQ(upperCased("αβγω"), "ΑΒΓΩ");
    EXPECT_EQ(upperCased("абвяё"), "АБВЯЁ");
    EXPECT_EQ(upperCased("æðħĳŀłøœþŧŋ"), "ÆÐĦĲĿŁØŒÞŦŊ");
    EXPECT_EQ(upperCased("ⅰⅹ"), "ⅠⅩ");
    EXPECT_EQ(upperCased("ⓐⓩ"), "ⒶⓏ");
}

TEST(UpperCased, LeavesOtherCharactersAlone) {
    EXPECT_EQ(upperCased("인천No-3 日本 ①※12"), "인천NO-3 日本 ①※12");
}

TEST(UpperCased, ChangesOneCharacterForOne) {
    EXPECT_EQ(upperCased("ßŉ"), "ßŉ");
}

TEST(UpperCased, BytesThatAreNoCharacterStay) {
    EXPECT_EQ(upperCased(std::string_view("a\xFFz")), "A\xFFZ");
}

TEST(LowerCased, UndoesUpperCasing) {
    for (const char* text : {"wgs", "ａｂ", "αω", "яё", "æøœ", "가a", "ⅰⅹ", "ⓐⓩ"}) {
        EXPECT_EQ(lowerCased(upperCased(std::string_view(text))), text);
    }
}

// The letters of the code page that have two cases, one beside the other.
constexpr std::pair<const char*, const char*> kBothCases[] = {{"azæðøþđħĳŀłŋœŧ", "AZÆÐØÞĐĦĲĿŁŊŒŦ"},
                                                              {"αρσω", "ΑΡΣΩ"},
                                                              {"аяё", "АЯЁ"},
                                                              {"ⅰⅹ", "ⅠⅩ"},
                                                              {"ⓐⓩ", "ⒶⓏ"},
                                                              {"ａｚ", "ＡＺ"}};

TEST(LetterCase, GoesBothWaysForTheFirstAndTheLastOfEachRow) {
    for (const auto& [lower, upper] : kBothCases) {
        EXPECT_EQ(upperCased(std::string_view(lower)), upper);
        EXPECT_EQ(lowerCased(std::string_view(upper)), lower);
        EXPECT_EQ(upperCased(std::string_view(upper)), upper);
        EXPECT_EQ(lowerCased(std::string_view(lower)), lower);
    }
    // A letter without a dot has a capital that belongs to another one.
    EXPECT_EQ(upperCased(std::string_view("ı")), "I");
    EXPECT_EQ(lowerCased(std::string_view("I")), "i");
}

TEST(LetterCase, LeavesTheNeighboursOfEachRowAlone) {
    for (const std::string_view text :
         {"`{@[", "åçïñ÷ùýÿ", "ÅÇÏÑ×ÙÝß", "ΰϊς", "ѐђЀЂ", "ⅺⅪ", "⓪⒵", "｀｛＠［"}) {
        EXPECT_EQ(upperCased(text), text);
        EXPECT_EQ(lowerCased(text), text);
    }
}

TEST(SameIgnoringCase, ComparesUpperCasedTexts) {
    EXPECT_TRUE(sameIgnoringCase("인천no-3", "인천NO-3"));
    EXPECT_TRUE(sameIgnoringCase("ａ", "Ａ"));
    EXPECT_FALSE(sameIgnoringCase("ａ", "a"));
    EXPECT_FALSE(sameIgnoringCase("a", "a "));
    EXPECT_TRUE(sameIgnoringCase("", ""));
}

}  // namespace
}  // namespace kelvo
