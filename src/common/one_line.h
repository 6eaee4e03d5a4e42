// Texts of a run as one line.
#pragma once

#include <string>
#include <string_view>

namespace kelvo {

// A line break of a message box as one blank, as a shell shows it.
[[nodiscard]] inline std::string oneLine(std::string_view text) {
    constexpr std::string_view kLineBreak = "\r\n";
    std::string line;
    for (std::size_t end = text.find(kLineBreak); end != std::string_view::npos;
         end = text.find(kLineBreak)) {
        line.append(text.substr(0, end)).push_back(' ');
        text.remove_prefix(end + kLineBreak.size());
    }
    return line.append(text);
}

}  // namespace kelvo
