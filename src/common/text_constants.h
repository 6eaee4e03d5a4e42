// Texts that the program shows of itself.
#pragma once

#include <string_view>

namespace kelvo {

inline constexpr std::string_view AppVersion = "Ver 3.5 Beta(2004.6.7)";
inline constexpr std::string_view kLineEnd = "\r\n";
// Stands in the window's caption and under a plot; empty until a copy has an owner.
inline constexpr std::string_view kOwnerLine;

}  // namespace kelvo
