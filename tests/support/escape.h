// Texts on one line of a transcript: CR, LF, tab and backslash stand as \r, \n, \t and \\.
#pragma once

#include <string>
#include <string_view>

namespace kelvo::testing {

[[nodiscard]] std::string escaped(std::string_view text);

// The same with \" for a double quote, between double quotes.
[[nodiscard]] std::string quoted(std::string_view text);

// The other direction; a backslash in front of any other character stands for that character.
[[nodiscard]] std::string unescaped(std::string_view text);

}  // namespace kelvo::testing
