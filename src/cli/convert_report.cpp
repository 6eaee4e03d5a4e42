#include "cli/convert_report.h"

#include <algorithm>
#include <cstdio>

namespace kelvo {

namespace {

constexpr std::size_t kShownBadPoints = 20;
constexpr auto kBetweenTwoBars = std::chrono::milliseconds(100);

}  // namespace

std::string progressText(double progress, std::uint64_t points) {
    std::string count = std::to_string(points) + " points";
    if (progress < 0) return count;
    const auto filled = static_cast<std::size_t>(progress * kBarWidth);
    const std::string percent = std::to_string(static_cast<int>(progress * 100));
    return barOf(filled) + " " + std::string(3 - std::min<std::size_t>(percent.size(), 3), ' ') +
           percent + " %  " + count;
}

void ConvertReport::taken(const RowBlock& block, const Converted& soFar, double progress) {
    for (const auto& [place, status] : block.statuses) {
        if (badPoints_ == kShownBadPoints) break;
        ++badPoints_;
        wipe();
        print(stderr, "line " + std::to_string(block.lines[place]) + ": " + status + "\n");
    }
    if (bar_ && Clock::now() >= due_) show(soFar, progress);
}

void ConvertReport::show(const Converted& soFar, double progress) {
    line_.show(progressText(progress, soFar.points));
    due_ = Clock::now() + kBetweenTwoBars;
}

void ConvertReport::end(const Converted& all) {
    wipe();
    if (summary_)
        print(stderr, std::to_string(all.points) + " points, " + std::to_string(all.notConverted) +
                          " not converted\n");
}

}  // namespace kelvo
