// One line on a terminal that shows how far a row of runs has come.
#pragma once

#include <cstddef>
#include <string>

#include "cli/terminal_line.h"

namespace kelvo {

// "[#####---------------] 1/4 NAME", a name too long for `columns` cut from the front.
[[nodiscard]] std::string progressLine(std::size_t done, std::size_t total, const std::string& name,
                                       std::size_t columns = 79);

// Shown on standard error, where the line gives way to whatever else is printed there.
class ProgressBar {
public:
    // A bar that isn't wanted prints nothing.
    ProgressBar(std::size_t total, bool wanted) : total_(total), wanted_(wanted) {}

    void show(std::size_t done, const std::string& name);
    void clear() { line_.wipe(); }

private:
    std::size_t total_;
    bool wanted_;
    TerminalLine line_;
};

}  // namespace kelvo
