#include "common/path_text.h"

#include <charconv>

#include "common/utf8.h"

namespace kelvo {

namespace {

constexpr std::string_view kHead = "file://";
constexpr std::string_view kDigits = "0123456789ABCDEF";
constexpr std::size_t kEscapeLength = 3;

bool standsForItself(unsigned char byte) {
    return byte > 0x20 && byte < 0x7F && byte != '%' && byte != ',' && byte != '"';
}

bool isPlainText(std::string_view text) {
    while (!text.empty()) {
        const Utf8Character character = firstCharacter(text);
        const bool illFormed = character.length == 1 && character.code > 0x7F;
        if (illFormed || character.code < 0x20 || character.code == 0x7F) return false;
        text.remove_prefix(character.length);
    }
    return true;
}

}  // namespace

bool isLocator(std::string_view text) {
    return text.starts_with(kHead);
}

std::string pathAsLine(std::string_view path) {
    return isLocator(path) || !isPlainText(path) ? pathAsLocator(path) : std::string(path);
}

std::string pathAsLocator(std::string_view path) {
    std::string text(kHead);
    for (const char byte : path) {
        const auto value = static_cast<unsigned char>(byte);
        if (standsForItself(value)) {
            text += byte;
        } else {
            text += '%';
            text += kDigits[value / 16U];
            text += kDigits[value % 16U];
        }
    }
    return text;
}

std::string pathFromText(std::string_view text) {
    if (!isLocator(text)) return std::string(text);
    text.remove_prefix(kHead.size());
    std::string path;
    for (std::size_t at = 0; at < text.size(); ++at) {
        unsigned value = 0;
        const std::string_view escape = text.substr(at, kEscapeLength);
        if (escape.front() == '%' && escape.size() == kEscapeLength &&
            std::from_chars(escape.data() + 1, escape.data() + kEscapeLength, value, 16).ptr ==
                escape.data() + kEscapeLength) {
            path += static_cast<char>(value);
            at += kEscapeLength - 1;
        } else {
            path += text[at];
        }
    }
    return path;
}

}  // namespace kelvo
