// A file's name in a text that is read back: as it stands where that can be, otherwise as a
// locator, which is "file://" and its bytes, those that a line or the code page may not hold as
// %XX.
#pragma once

#include <string>
#include <string_view>

namespace kelvo {

[[nodiscard]] std::string pathAsLocator(std::string_view path);

// On a line of its own in UTF-8.
[[nodiscard]] std::string pathAsLine(std::string_view path);

// The name again. A text that doesn't begin with "file://" is a name as it stands.
[[nodiscard]] std::string pathFromText(std::string_view text);

[[nodiscard]] bool isLocator(std::string_view text);

}  // namespace kelvo
