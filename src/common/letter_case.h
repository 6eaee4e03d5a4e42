// Upper and lower case, one character for one, for every letter of the code page.
#pragma once

#include <string>
#include <string_view>

namespace kelvo {

[[nodiscard]] char32_t upperCased(char32_t character);
[[nodiscard]] char32_t lowerCased(char32_t character);
[[nodiscard]] std::string upperCased(std::string_view text);
[[nodiscard]] std::string lowerCased(std::string_view text);

// True if the texts are equal when both are upper-cased.
[[nodiscard]] bool sameIgnoringCase(std::string_view one, std::string_view other);

}  // namespace kelvo
