#include "library/text_bytes.h"

#include "common/code_page.h"
#include "common/utf8.h"

namespace kelvo {

namespace {

constexpr std::string_view kMark = "\xEF\xBB\xBF";

bool isWellFormed(std::string_view bytes) {
    constexpr char32_t kNoCharacter = 0xFFFD;
    while (!bytes.empty()) {
        const std::size_t ascii = asciiLength(bytes);
        bytes.remove_prefix(ascii);
        if (bytes.empty()) break;
        const Utf8Character character = firstCharacter(bytes);
        if (character.code == kNoCharacter && character.length == 1) return false;
        bytes.remove_prefix(character.length);
    }
    return true;
}

}  // namespace

std::string_view withoutMark(std::string_view text) {
    if (text.starts_with(kMark)) text.remove_prefix(kMark.size());
    return text;
}

std::string textOfBytes(std::string_view bytes) {
    const std::string_view text = withoutMark(bytes);
    return isWellFormed(text) ? std::string(text) : decodeCodePage(text);
}

}  // namespace kelvo
