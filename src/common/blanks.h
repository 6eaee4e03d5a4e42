// Blanks around a text.
#pragma once

#include <cstddef>
#include <string_view>

namespace kelvo {

constexpr std::string_view kBlanksAndLineEnds = " \t\r\n";

// Without the characters of `blanks` before and behind; nothing of a text that holds no others.
[[nodiscard]] inline std::string_view trimmed(std::string_view text,
                                              std::string_view blanks = " ") {
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

}  // namespace kelvo
