#include "cli/progress_bar.h"

#include <algorithm>

namespace kelvo {

namespace {

bool continuesCharacter(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

}  // namespace

std::string progressLine(std::size_t done, std::size_t total, const std::string& name,
                         std::size_t columns) {
    const std::size_t filled = total == 0 ? kBarWidth : done * kBarWidth / total;
    const std::string line =
        barOf(filled) + " " + std::to_string(done) + "/" + std::to_string(total) + " ";
    // Bytes for columns: a Hangul letter takes three bytes and two columns, so that's safe.
    const std::size_t room = columns - std::min(columns, line.size());
    std::size_t from = name.size() - std::min(name.size(), room);
    while (from < name.size() && continuesCharacter(name[from])) ++from;
    return line + name.substr(from);
}

void ProgressBar::show(std::size_t done, const std::string& name) {
    if (wanted_) line_.show(progressLine(done, total_, name));
}

}  // namespace kelvo
