#include "cli/progress_bar.h"

#include <cstdio>

#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

namespace kelvo {

namespace {

constexpr std::size_t kBarWidth = 20;

void print(const std::string& text) {
    std::fwrite(text.data(), 1, text.size(), stderr);
    std::fflush(stderr);
}

bool continuesCharacter(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

}  // namespace

std::string progressLine(std::size_t done, std::size_t total, const std::string& name,
                         std::size_t columns) {
    const std::size_t filled = total == 0 ? kBarWidth : done * kBarWidth / total;
    std::string line = "[" + std::string(filled, '#') + std::string(kBarWidth - filled, '-') +
                       "] " + std::to_string(done) + "/" + std::to_string(total) + " ";
    // Bytes for columns: a Hangul letter takes three bytes and two columns, so that's safe.
    const std::size_t room = columns > line.size() ? columns - line.size() : 0;
    std::size_t from = name.size() > room ? name.size() - room : 0;
    while (from < name.size() && continuesCharacter(name[from])) ++from;
    return line + name.substr(from);
}

void ProgressBar::show(std::size_t done, const std::string& name) {
    if (!wanted_) return;
    clear();
    const std::string line = progressLine(done, total_, name);
    print(line);
    shown_ = line.size();
}

void ProgressBar::clear() {
    if (shown_ == 0) return;
    print("\r" + std::string(shown_, ' ') + "\r");
    shown_ = 0;
}

bool standardErrorIsTerminal() {
#ifdef _WIN32
    return _isatty(_fileno(stderr)) != 0;
#else
    return isatty(STDERR_FILENO) != 0;
#endif
}

}  // namespace kelvo
