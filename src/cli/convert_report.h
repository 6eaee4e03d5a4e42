// What kelvo-convert says on standard error while it works.
#pragma once

#include <chrono>
#include <cstddef>
#include <string>

#include "cli/terminal_line.h"
#include "convert/conversion_of_rows.h"

namespace kelvo {

// "[#####---------------]  25 %  1200000 points"; without a known end the points alone.
[[nodiscard]] std::string progressText(double progress, std::uint64_t points);

// The first bad points line by line, a bar for work longer than a second, the summary.
class ConvertReport final : public Watcher {
public:
    ConvertReport(bool bar, bool summary) : bar_(bar), summary_(summary) {}

    void taken(const RowBlock& block, const Converted& soFar, double progress) override;
    void end(const Converted& all);
    void wipe() { line_.wipe(); }

private:
    using Clock = std::chrono::steady_clock;

    void show(const Converted& soFar, double progress);

    bool bar_;
    bool summary_;
    std::size_t badPoints_ = 0;
    Clock::time_point due_ = Clock::now() + std::chrono::seconds(1);
    TerminalLine line_;
};

}  // namespace kelvo
