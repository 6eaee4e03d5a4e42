#include "cli/convert_report.h"

#include <algorithm>
#include <cstdio>

namespace kelvo {

namespace {

constexpr std::size_t kShownBadPoints = 20;
constexpr std::size_t kBarWidth = 20;
constexpr auto kBetweenTwoBars = std::chrono::milliseconds(100);

void print(const std::string& text) {
    std::fwrite(text.data(), 1, text.size(), stderr);
}

}  // namespace

std::string progressText(double progress, std::uint64_t points) {
    std::string count = std::to_string(points) + " points";
    if (progress < 0) return count;
    const auto filled = static_cast<std::size_t>(progress * kBarWidth);
    const std::string percent = std::to_string(static_cast<int>(progress * 100));
    return "[" + std::string(filled, '#') + std::string(kBarWidth - filled, '-') + "] " +
           std::string(3 - std::min<std::size_t>(percent.size(), 3), ' ') + percent + " %  " +
           count;
}

void ConvertReport::taken(const RowBlock& block, const Converted& soFar, double progress) {
    for (const auto& [place, status] : block.statuses) {
        if (badPoints_ == kShownBadPoints) break;
        ++badPoints_;
        wipe();
        print("line " + std::to_string(block.lines[place]) + ": " + status + "\n");
    }
    if (bar_ && Clock::now() >= due_) show(soFar, progress);
}

void ConvertReport::show(const Converted& soFar, double progress) {
    wipe();
    const std::string text = progressText(progress, soFar.points);
    print(text);
    std::fflush(stderr);
    shown_ = text.size();
    due_ = Clock::now() + kBetweenTwoBars;
}

void ConvertReport::wipe() {
    if (shown_ == 0) return;
    print("\r" + std::string(shown_, ' ') + "\r");
    shown_ = 0;
}

void ConvertReport::end(const Converted& all) {
    wipe();
    if (summary_)
        print(std::to_string(all.points) + " points, " + std::to_string(all.notConverted) +
              " not converted\n");
}

}  // namespace kelvo
