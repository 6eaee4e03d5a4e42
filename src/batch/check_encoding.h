// The rule on the encoding of a file.
#pragma once

#include <string>
#include <string_view>

namespace kelvo {

// What is wrong with the encoding of a file; empty if it is the code page, as far as its letters
// show.
struct WrongEncoding {
    std::string text;
    bool hidesCommands = false;  // no line of the file can be read
};

// Of a text that was decoded from the code page.
[[nodiscard]] WrongEncoding wrongEncoding(std::string_view decoded);

}  // namespace kelvo
