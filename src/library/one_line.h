// Texts of a run as one line.
#pragma once

#include <string>

namespace kelvo {

// A line break of a message box as one blank, as a shell shows it.
[[nodiscard]] inline std::string oneLine(std::string text) {
    for (std::size_t at = text.find("\r\n"); at != std::string::npos; at = text.find("\r\n", at))
        text.replace(at, 2, " ");
    return text;
}

}  // namespace kelvo
