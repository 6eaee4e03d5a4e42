#include "convert/coordinate_text.h"

#include <charconv>

#include "common/blanks.h"
#include "common/number_text.h"
#include "common/utf8.h"

namespace kelvo {

namespace {

using Outcome = CoordinateRead::Outcome;

constexpr std::size_t kLongestPiece = 40;
constexpr char32_t kNoCharacter = 0xFFFD;

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

std::size_t skipDigits(std::string_view text, std::size_t at) {
    while (at < text.size() && isDigit(text[at])) ++at;
    return at;
}

bool hasSign(std::string_view text, std::size_t at) {
    return at < text.size() && (text[at] == '+' || text[at] == '-');
}

bool isNumber(std::string_view text) {
    std::size_t at = hasSign(text, 0) ? 1 : 0;
    const std::size_t first = at;
    at = skipDigits(text, at);
    std::size_t digits = at - first;
    if (at < text.size() && text[at] == '.') {
        const std::size_t afterPoint = skipDigits(text, at + 1);
        digits += afterPoint - at - 1;
        at = afterPoint;
    }
    if (digits == 0) return false;
    if (at < text.size() && (text[at] == 'e' || text[at] == 'E')) {
        const std::size_t power = at + (hasSign(text, at + 1) ? 2 : 1);
        at = skipDigits(text, power);
        if (at == power) return false;
    }
    return at == text.size();
}

}  // namespace

CoordinateRead readCoordinate(std::string_view text) {
    text = trimmed(text);
    if (text.empty()) return {};
    if (!isNumber(text)) return {.outcome = Outcome::NoNumber};
    double value = 0;
    const char* const first = text.data() + (text.front() == '+' ? 1 : 0);
    const auto [end, error] = std::from_chars(first, text.data() + text.size(), value);
    if (error == std::errc{}) return {.outcome = Outcome::Number, .value = value};
    const NumberRead read = readNumber(text);
    return {.outcome = read.tooLarge ? Outcome::OutOfRange : Outcome::Number, .value = read.value};
}

std::string quotedPiece(std::string_view bytes) {
    std::string piece;
    while (!bytes.empty()) {
        const Utf8Character character = firstCharacter(bytes);
        if (piece.size() + character.length > kLongestPiece) return piece + "...";
        const bool isControl =
            character.code < 0x20 || (character.code >= 0x7F && character.code < 0xA0);
        if (isControl || character.code == kNoCharacter)
            piece += '?';
        else
            piece += bytes.substr(0, character.length);
        bytes.remove_prefix(character.length);
    }
    return piece;
}

}  // namespace kelvo
