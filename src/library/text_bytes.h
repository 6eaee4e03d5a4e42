// Text that people made with one editor or another.
#pragma once

#include <string>
#include <string_view>

namespace kelvo {

// The text of a file's bytes as UTF-8: they are UTF-8 if they are well-formed as such, otherwise
// in the Korean code page. A mark in front is dropped.
[[nodiscard]] std::string textOfBytes(std::string_view bytes);

}  // namespace kelvo
