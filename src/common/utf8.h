// Walking over UTF-8 text character by character.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace kelvo {

struct Utf8Character {
    char32_t code = 0;       // U+FFFD for a byte that belongs to no character
    std::size_t length = 0;  // bytes that it takes, at least 1
};

// The character at the front of a text that isn't empty. A byte that begins no well-formed
// character is one character by itself.
[[nodiscard]] Utf8Character firstCharacter(std::string_view text);

// How many bytes at the front are ASCII, which is one byte a letter in every encoding here.
[[nodiscard]] std::size_t asciiLength(std::string_view text);

// The bytes that some editors put in front of a text in UTF-8.
inline constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";

// UTF-8 without the mark in front.
[[nodiscard]] std::string_view withoutMark(std::string_view text);

// Whether every byte belongs to a character.
[[nodiscard]] bool isWellFormedUtf8(std::string_view bytes);

void appendUtf8(char32_t code, std::string& text);

// The number of characters.
[[nodiscard]] std::size_t characterCount(std::string_view text);

// `count` characters from the character `first` on, counted from 1; fewer if the text ends.
[[nodiscard]] std::string_view middleOf(std::string_view text, std::size_t first,
                                        std::size_t count);

}  // namespace kelvo
