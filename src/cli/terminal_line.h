// What the programs say on a terminal: plain texts, and a line that gives way to what follows it.
#pragma once

#include <cstddef>
#include <cstdio>
#include <string>

namespace kelvo {

void print(std::FILE* stream, const std::string& text);

constexpr std::size_t kBarWidth = 20;

// "[#####---------------]" with `filled` of kBarWidth.
[[nodiscard]] std::string barOf(std::size_t filled);

// True if standard error is a terminal.
[[nodiscard]] bool standardErrorIsTerminal();

// A line at the end of standard error, no byte of it wider than a column. To be wiped before
// anything else is printed there; at the end of its life it wipes itself.
class TerminalLine {
public:
    TerminalLine() = default;
    TerminalLine(const TerminalLine&) = delete;
    TerminalLine& operator=(const TerminalLine&) = delete;
    ~TerminalLine() { wipe(); }

    void show(const std::string& text);
    void wipe();

private:
    std::size_t shown_ = 0;  // columns to wipe
};

}  // namespace kelvo
