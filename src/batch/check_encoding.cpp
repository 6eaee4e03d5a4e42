#include "batch/check_encoding.h"

#include "common/code_page.h"
#include "common/utf8.h"

namespace kelvo {

namespace {

constexpr std::size_t kEnoughLetters = 2;  // by chance one can be well formed

// How many letters of three bytes, such as Hangul, a text of UTF-8 holds; 0 if it isn't UTF-8.
std::size_t longLetters(std::string_view bytes) {
    std::size_t found = 0;
    while (!bytes.empty()) {
        bytes.remove_prefix(asciiLength(bytes));
        if (bytes.empty()) break;
        const Utf8Character letter = firstCharacter(bytes);
        if (letter.length == 1) return 0;
        if (letter.length == 3) ++found;
        bytes.remove_prefix(letter.length);
    }
    return found;
}

}  // namespace

WrongEncoding wrongEncoding(std::string_view decoded) {
    if (asciiLength(decoded) == decoded.size()) return {};
    const std::string bytes = encodeCodePage(decoded);
    if (bytes.starts_with("\xFF\xFE") || bytes.starts_with("\xFE\xFF"))
        return {
            .text = "UTF-16으로 저장된 파일이라 명령을 읽지 못합니다. CP949(ANSI)로 저장하십시오",
            .hidesCommands = true};
    if (bytes.starts_with(kUtf8Mark))
        return {.text =
                    "UTF-8 표식(BOM)으로 시작하는 파일이라 첫 줄을 바르게 읽지 못합니다. "
                    "CP949(ANSI)로 저장하십시오"};
    if (longLetters(bytes) >= kEnoughLetters)
        return {.text = "UTF-8로 저장된 파일이라 한글이 깨집니다. CP949(ANSI)로 저장하십시오"};
    return {};
}

}  // namespace kelvo
