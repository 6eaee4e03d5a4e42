#include "common/utf8.h"

#include <cstdint>
#include <cstring>

namespace kelvo {

namespace {

constexpr char32_t kNoCharacter = 0xFFFD;

struct LeadByte {
    std::size_t length;
    char32_t bits;
    char32_t smallest;  // a smaller code in this length would be an overlong form
};

LeadByte leadByteOf(unsigned char byte) {
    if (byte >= 0xC2 && byte <= 0xDF) return {2, byte & 0x1FU, 0x80};
    if (byte >= 0xE0 && byte <= 0xEF) return {3, byte & 0x0FU, 0x800};
    if (byte >= 0xF0 && byte <= 0xF4) return {4, byte & 0x07U, 0x10000};
    return {1, kNoCharacter, 0};
}

}  // namespace

Utf8Character firstCharacter(std::string_view text) {
    const auto byte = static_cast<unsigned char>(text.front());
    if (byte < 0x80) return {byte, 1};
    const LeadByte lead = leadByteOf(byte);
    if (lead.length == 1 || text.size() < lead.length) return {kNoCharacter, 1};
    char32_t code = lead.bits;
    for (std::size_t i = 1; i < lead.length; ++i) {
        const auto next = static_cast<unsigned char>(text[i]);
        if ((next & 0xC0U) != 0x80U) return {kNoCharacter, 1};
        code = (code << 6U) | (next & 0x3FU);
    }
    const bool surrogate = code >= 0xD800 && code <= 0xDFFF;
    if (code < lead.smallest || code > 0x10FFFF || surrogate) return {kNoCharacter, 1};
    return {code, lead.length};
}

std::size_t asciiLength(std::string_view text) {
    std::size_t i = 0;
    for (; i + sizeof(std::uint64_t) <= text.size(); i += sizeof(std::uint64_t)) {
        std::uint64_t chunk = 0;
        std::memcpy(&chunk, text.data() + i, sizeof chunk);
        if ((chunk & 0x8080808080808080U) != 0) break;
    }
    while (i < text.size() && static_cast<unsigned char>(text[i]) < 0x80) ++i;
    return i;
}

std::string_view withoutMark(std::string_view text) {
    if (text.starts_with(kUtf8Mark)) text.remove_prefix(kUtf8Mark.size());
    return text;
}

bool isWellFormedUtf8(std::string_view bytes) {
    while (!bytes.empty()) {
        bytes.remove_prefix(asciiLength(bytes));
        if (bytes.empty()) break;
        // U+FFFD itself takes three bytes.
        const Utf8Character character = firstCharacter(bytes);
        if (character.code == kNoCharacter && character.length == 1) return false;
        bytes.remove_prefix(character.length);
    }
    return true;
}

void appendUtf8(char32_t code, std::string& text) {
    const auto put = [&text](char32_t byte) { text.push_back(static_cast<char>(byte)); };
    if (code < 0x80) {
        put(code);
    } else if (code < 0x800) {
        put(0xC0 | (code >> 6U));
        put(0x80 | (code & 0x3FU));
    } else if (code < 0x10000) {
        put(0xE0 | (code >> 12U));
        put(0x80 | ((code >> 6U) & 0x3FU));
        put(0x80 | (code & 0x3FU));
    } else {
        put(0xF0 | (code >> 18U));
        put(0x80 | ((code >> 12U) & 0x3FU));
        put(0x80 | ((code >> 6U) & 0x3FU));
        put(0x80 | (code & 0x3FU));
    }
}

std::size_t characterCount(std::string_view text) {
    std::size_t count = 0;
    while (!text.empty()) {
        text.remove_prefix(firstCharacter(text).length);
        ++count;
    }
    return count;
}

std::string_view middleOf(std::string_view text, std::size_t first, std::size_t count) {
    for (; first > 1 && !text.empty(); --first) text.remove_prefix(firstCharacter(text).length);
    std::size_t length = 0;
    for (; count > 0 && length < text.size(); --count)
        length += firstCharacter(text.substr(length)).length;
    return text.substr(0, length);
}

}  // namespace kelvo
