// A data file as the check sees it: lines, fields, numbers, remarks, and words quoted from it.
#include "batch/check_text.h"

#include <gtest/gtest.h>

#include "batch/check_encoding.h"
#include "batch/check_finding.h"
#include "common/code_page.h"
#include "common/utf8.h"

namespace kelvo {
namespace {

using State = NumberField::State;

std::vector<std::string> textsOf(std::string_view text) {
    std::vector<std::string> texts;
    long number = 0;
    for (const TextLine& line : kelvo::linesOf(text)) {
        EXPECT_EQ(line.number, ++number);
        texts.emplace_back(line.text);
    }
    return texts;
}

TEST(CheckText, ThreeLineEndsAreEqualAndTheLastLineMayHaveNone) {
    using Texts = std::vector<std::string>;
    EXPECT_EQ(textsOf(""), Texts{});
    EXPECT_EQ(textsOf("a"), Texts{"a"});
    EXPECT_EQ(textsOf("a\n"), Texts{"a"});
    EXPECT_EQ(textsOf("a\r"), Texts{"a"});
    EXPECT_EQ(textsOf("a\r\nb\rc\nd"), (Texts{"a", "b", "c", "d"}));
    EXPECT_EQ(textsOf("\n\r\r\n\r\n"), (Texts{"", "", "", ""}));
}

TEST(CheckText, FieldsStandAtTheirBytesUpToTwelve) {
    const LineFields fields("  a,bc\t\td");
    EXPECT_EQ(fields.count(), 3);
    EXPECT_EQ(fields[1].text, "a");
    EXPECT_EQ(fields[1].at, 2U);
    EXPECT_EQ(fields[2].text, "bc");
    EXPECT_EQ(fields[2].at, 4U);
    EXPECT_EQ(fields[3].text, "d");
    EXPECT_EQ(fields[3].at, 8U);
    for (const int beyond : {-1, 0, 4, 100}) EXPECT_TRUE(fields[beyond].empty()) << beyond;
    const LineFields many("1 2 3 4 5 6 7 8 9 10 11 12 13");
    EXPECT_EQ(many.count(), 12);
    EXPECT_EQ(many[12].text, "12");
    EXPECT_TRUE(many[13].empty());
}

NumberField numberIn(const std::string& text) {
    return numberOf({.text = text});
}

TEST(CheckText, ANumberIsWholeCutTooLargeOrAWord) {
    struct Case {
        std::string text;
        State state;
        double value;
    };
    for (const Case& each : std::vector<Case>{{"", State::Absent, 0},
                                              {"37.5", State::Whole, 37.5},
                                              {"-2", State::Whole, -2},
                                              {"30.5m", State::Whole, 30.5},
                                              {"7/", State::Whole, 7},
                                              {"7:", State::Whole, 7},
                                              {"37-35-33", State::Cut, 37},
                                              {"37x0", State::Cut, 37},
                                              {"37x9", State::Cut, 37},
                                              {"x1", State::Word, 0},
                                              {"-", State::Word, 0},
                                              {"1e999", State::TooLarge, 0}}) {
        const NumberField number = numberIn(each.text);
        EXPECT_EQ(number.state, each.state) << each.text;
        EXPECT_EQ(number.value, each.value) << each.text;
        EXPECT_EQ(number.reads(), each.state == State::Whole) << each.text;
    }
}

bool isRemarkLine(const std::string& line) {
    return isRemark(LineFields(line));
}

std::string letter(char32_t code) {
    std::string text;
    for (int shift = 12; shift >= 0; shift -= 6) {
        const auto bits = static_cast<unsigned char>((code >> shift) & (shift == 12 ? 0x0F : 0x3F));
        text += static_cast<char>((shift == 12 ? 0xE0 : 0x80) | bits);
    }
    return text;
}

TEST(CheckText, ALineIsARemarkUnlessALetterOrANumberStandsInFront) {
    for (const std::string line : {"", "  ", "*", "* WGS", "*WGS", "*9", "# 1 2", "// x", "- x",
                                   "@A", "[", "`", "{", "/", ":", "+x"})
        EXPECT_TRUE(isRemarkLine(line)) << line;
    for (const std::string line :
         {"A", "Z", "a", "z", " a *", "0", "9x", "-1", "+2", ".5", "가", "&H1F"})
        EXPECT_FALSE(isRemarkLine(line)) << line;
}

TEST(CheckText, LettersOfKoreanTextAreTheSyllablesTheJamoTheCharactersAndTheFullWidthForms) {
    struct Run {
        char32_t first, last;
    };
    for (const Run run :
         {Run{0xAC00, 0xD7A3}, Run{0x3131, 0x318E}, Run{0x4E00, 0x9FFF}, Run{0xF900, 0xFAFF},
          Run{0xFF10, 0xFF19}, Run{0xFF21, 0xFF3A}, Run{0xFF41, 0xFF5A}}) {
        EXPECT_FALSE(isRemarkLine(letter(run.first) + " 1")) << static_cast<unsigned>(run.first);
        EXPECT_FALSE(isRemarkLine(letter(run.last) + " 1")) << static_cast<unsigned>(run.last);
        EXPECT_TRUE(isRemarkLine(letter(run.first - 1) + " 1")) << static_cast<unsigned>(run.first);
        EXPECT_TRUE(isRemarkLine(letter(run.last + 1) + " 1")) << static_cast<unsigned>(run.last);
    }
}

TEST(CheckText, AWideBlankInFrontIsABlank) {
    EXPECT_TRUE(isRemarkLine("\u3000"));
    EXPECT_TRUE(isRemarkLine("\u3000 \u3000* 비고"));
    EXPECT_TRUE(isRemarkLine("\u3000* 비고"));
    EXPECT_FALSE(isRemarkLine("\u3000가 1 2"));
    EXPECT_FALSE(isRemarkLine("\u3000 \u3000B 1 2"));
    EXPECT_FALSE(isRemarkLine("\u3000-1 2"));
}

TEST(CheckText, AQuotedWordHasTwentyFourCharactersAndNoControlCharacter) {
    const std::string longest = "가나다라마바사아자차카타파하거너더러머버서어저처";
    EXPECT_EQ(kelvo::quoted(longest), "\"" + longest + "\"");
    EXPECT_EQ(kelvo::quoted(longest + "x"), "\"" + longest + "…\"");
    EXPECT_EQ(kelvo::quoted(""), "\"\"");
    EXPECT_EQ(kelvo::quoted("a\x1f"
                            "b\x7f"
                            "c\u0080\u009f~"),
              "\"a·b·c··~\"");
    EXPECT_EQ(kelvo::quoted("a b\u00a0"), "\"a b\u00a0\"");
}

TEST(CheckText, AStopIsSaidWithItsNumberAndThreeHundredCharactersOfItsText) {
    EXPECT_EQ(stopText(RuntimeFault(Fault::FileNotFound, "x")), "실행이 멈춥니다 (오류 53): x");
    const std::string longest(300, 'y');
    EXPECT_EQ(stopText(RuntimeFault(Fault::Overflow, longest)),
              "실행이 멈춥니다 (오류 6): " + longest);
    EXPECT_EQ(stopText(RuntimeFault(Fault::Overflow, longest + "z")),
              "실행이 멈춥니다 (오류 6): " + longest + "…");
}

TEST(CheckText, AFindingStandsAtItsFieldInCharactersAndAtNoneForAnEmptyField) {
    const std::string text = "가나 다라마";
    const TextLine line{.number = 7, .text = text};
    const LineFields fields(text);
    Findings findings(Finding::In::KnownPoints);
    findings.add(FindingKind::BadAdd, {.number = 9, .text = text}, "셋");
    findings.add(FindingKind::BadZone, line, fields[2], "하나");
    findings.add(FindingKind::BadAngle, line, fields[3], "둘");
    const auto found = findings.takeSorted();
    ASSERT_EQ(found.size(), 3U);
    EXPECT_EQ(found[0].kind, FindingKind::BadZone);
    EXPECT_EQ(found[0].in, Finding::In::KnownPoints);
    EXPECT_EQ(found[0].line, 7);
    EXPECT_EQ(found[0].column, 4);
    EXPECT_EQ(found[0].length, 3);
    EXPECT_EQ(found[0].text, "하나");
    EXPECT_EQ(found[1].text, "둘");
    EXPECT_EQ(found[1].column, 0);
    EXPECT_EQ(found[1].length, 0);
    EXPECT_EQ(found[2].text, "셋");
    EXPECT_TRUE(findings.takeSorted().empty());
}

TEST(CheckText, AnEncodingIsWrongByItsMarkOrByTwoLettersOfUtf8) {
    const auto said = [](std::string_view bytes) { return wrongEncoding(decodeCodePage(bytes)); };
    using namespace std::string_view_literals;
    const std::string utf16 =
        "UTF-16으로 저장된 파일이라 명령을 읽지 못합니다. CP949(ANSI)로 저장하십시오";
    for (const std::string_view bytes : {"\xFF\xFEW\0"sv, "\xFE\xFF\0W"sv}) {
        EXPECT_EQ(said(bytes).text, utf16);
        EXPECT_TRUE(said(bytes).hidesCommands);
    }
    const WrongEncoding marked = said("\xEF\xBB\xBFWGS");
    EXPECT_EQ(marked.text,
              "UTF-8 표식(BOM)으로 시작하는 파일이라 첫 줄을 바르게 읽지 못합니다. "
              "CP949(ANSI)로 저장하십시오");
    EXPECT_FALSE(marked.hidesCommands);
    const WrongEncoding letters = said("* 가나");
    EXPECT_EQ(letters.text, "UTF-8로 저장된 파일이라 한글이 깨집니다. CP949(ANSI)로 저장하십시오");
    EXPECT_FALSE(letters.hidesCommands);
    // One letter of three bytes may be two of the code page by chance; so may letters of two.
    for (const std::string_view bytes :
         {"* 가"sv, ""sv, "WGS A\0B"sv, "* \xC2\xB0\xC2\xB0"sv, "가나\xB0"sv, "\xB0\xA1\xB3\xAA"sv})
        EXPECT_EQ(said(bytes).text, "") << bytes;
}

}  // namespace
}  // namespace kelvo
