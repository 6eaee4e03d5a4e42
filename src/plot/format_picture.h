// Numbers written by a format picture.
#pragma once

#include <string>
#include <string_view>

namespace kelvo {

// A picture knows "0" (a digit, always shown), "#" (a digit, shown where it says something) and
// "." (the first one is the decimal point). Other characters stand in the text as they are.
// Digits in front of the first place are kept. Rounds the decimal text of the double at 15
// significant digits, halves away from zero; a number below zero keeps its minus. A picture
// without places gives the picture, an empty one the number's general text.
[[nodiscard]] std::string formatByPicture(double value, std::string_view picture);

}  // namespace kelvo
