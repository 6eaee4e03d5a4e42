#include "cli/terminal_line.h"

#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

namespace kelvo {

void print(std::FILE* stream, const std::string& text) {
    std::fwrite(text.data(), 1, text.size(), stream);
}

std::string barOf(std::size_t filled) {
    return "[" + std::string(filled, '#') + std::string(kBarWidth - filled, '-') + "]";
}

bool standardErrorIsTerminal() {
#ifdef _WIN32
    return _isatty(_fileno(stderr)) != 0;
#else
    return isatty(STDERR_FILENO) != 0;
#endif
}

void TerminalLine::show(const std::string& text) {
    wipe();
    print(stderr, text);
    std::fflush(stderr);
    shown_ = text.size();
}

void TerminalLine::wipe() {
    if (shown_ == 0) return;
    print(stderr, "\r" + std::string(shown_, ' ') + "\r");
    std::fflush(stderr);
    shown_ = 0;
}

}  // namespace kelvo
