// Text of any origin as one line for people: on a terminal, in a box.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace kelvo {

// The longest line that is shown, in bytes, without its line end.
inline constexpr std::size_t kLongestShownLine = 1999;

// The text with every character that would steer a terminal or turn the direction of writing, and
// every byte that belongs to no character, as \n, \r, \t or \xHH; all else as it stands. What is
// longer than `most` bytes then loses its middle, in whose place stands " ... ".
[[nodiscard]] std::string shownLine(std::string_view text, std::size_t most = kLongestShownLine);

}  // namespace kelvo
