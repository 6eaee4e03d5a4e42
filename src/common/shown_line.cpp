#include "common/shown_line.h"

#include <vector>

#include "common/utf8.h"

namespace kelvo {

namespace {

constexpr std::string_view kGap = " ... ";
constexpr std::string_view kDigits = "0123456789abcdef";

bool isSafe(const Utf8Character& character) {
    const char32_t code = character.code;
    if (code < 0x20 || (code >= 0x7F && code < 0xA0)) return false;
    if (character.length == 1) return code < 0x80;
    // Line and paragraph separators; marks that turn the direction of what follows.
    return !(code >= 0x2028 && code <= 0x202E) && !(code >= 0x2066 && code <= 0x2069) &&
           code != 0x200E && code != 0x200F && code != 0x061C && code != 0xFEFF;
}

// One character as it is shown.
std::string shown(std::string_view bytes, const Utf8Character& character) {
    if (isSafe(character)) return std::string(bytes);
    if (bytes == "\n") return "\\n";
    if (bytes == "\r") return "\\r";
    if (bytes == "\t") return "\\t";
    std::string text;
    for (const char byte : bytes) {
        const auto value = static_cast<unsigned char>(byte);
        text.append("\\x").append(1, kDigits[value / 16U]).append(1, kDigits[value % 16U]);
    }
    return text;
}

// As many characters from the front as give at most `most` bytes; `text` loses them.
std::string shownFront(std::string_view& text, std::size_t most) {
    std::string line;
    while (!text.empty()) {
        const Utf8Character character = firstCharacter(text);
        const std::string next = shown(text.substr(0, character.length), character);
        if (line.size() + next.size() > most) break;
        line += next;
        text.remove_prefix(character.length);
    }
    return line;
}

bool continuesCharacter(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

std::string shownBack(std::string_view text, std::size_t most) {
    // No character is shown in fewer bytes than it has.
    if (text.size() > most) text.remove_prefix(text.size() - most);
    while (!text.empty() && continuesCharacter(text.front())) text.remove_prefix(1);
    std::vector<std::string> pieces;
    std::size_t size = 0;
    while (!text.empty()) {
        const Utf8Character character = firstCharacter(text);
        pieces.push_back(shown(text.substr(0, character.length), character));
        size += pieces.back().size();
        text.remove_prefix(character.length);
    }
    std::size_t first = 0;
    while (size > most) size -= pieces[first++].size();
    std::string line;
    for (; first < pieces.size(); ++first) line += pieces[first];
    return line;
}

}  // namespace

std::string shownLine(std::string_view text, std::size_t most) {
    std::string_view rest = text;
    std::string line = shownFront(rest, most);
    if (rest.empty()) return line;
    const std::size_t half = (most - kGap.size()) / 2;
    line = shownFront(text, half);
    line += kGap;
    return line + shownBack(text, half);
}

}  // namespace kelvo
