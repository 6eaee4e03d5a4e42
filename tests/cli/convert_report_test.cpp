// What kelvo-convert says on standard error while it works.
#include "cli/convert_report.h"

#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <thread>

namespace kelvo {
namespace {

using ::testing::internal::CaptureStderr;
using ::testing::internal::GetCapturedStderr;

// Rows of which the first `bad` are bad points; they stand on the lines from 11.
RowBlock blockWithBad(std::size_t rows, std::size_t bad) {
    RowBlock block;
    for (std::size_t i = 0; i < rows; ++i) {
        const auto line = static_cast<long>(11 + i);
        if (i < bad)
            block.addUnread("P", line, "reason " + std::to_string(i));
        else
            block.add("P", {}, line);
    }
    return block;
}

std::string linesOfBad(std::size_t first, std::size_t end) {
    std::string lines;
    for (std::size_t i = first; i < end; ++i)
        lines += "line " + std::to_string(11 + i) + ": reason " + std::to_string(i) + "\n";
    return lines;
}

std::size_t timesIn(const std::string& text, const std::string& piece) {
    std::size_t times = 0;
    for (std::size_t at = text.find(piece); at != std::string::npos; at = text.find(piece, at + 1))
        ++times;
    return times;
}

TEST(ProgressText, HasABarAPercentageAndThePoints) {
    EXPECT_EQ(progressText(0, 0), "[--------------------]   0 %  0 points");
    EXPECT_EQ(progressText(0.25, 1200000), "[#####---------------]  25 %  1200000 points");
    EXPECT_EQ(progressText(0.999, 7), "[###################-]  99 %  7 points");
    EXPECT_EQ(progressText(1, 8), "[####################] 100 %  8 points");
}

TEST(ProgressText, HasThePointsAloneWhereTheEndIsUnknown) {
    EXPECT_EQ(progressText(-1, 1200000), "1200000 points");
}

TEST(ConvertReport, NamesTheFirstTwentyBadPointsOfAllBlocks) {
    CaptureStderr();
    ConvertReport report(false, true);
    report.taken(blockWithBad(4, 3), {.points = 4, .notConverted = 3}, 0);
    const std::string first = GetCapturedStderr();
    EXPECT_EQ(first, linesOfBad(0, 3));
    CaptureStderr();
    report.taken(blockWithBad(19, 19), {.points = 23, .notConverted = 22}, 0);
    report.taken(blockWithBad(2, 2), {.points = 25, .notConverted = 24}, 0);
    report.end({.points = 25, .notConverted = 24});
    EXPECT_EQ(GetCapturedStderr(), linesOfBad(0, 17) + "25 points, 24 not converted\n");
}

TEST(ConvertReport, WithoutSummaryEndsInSilence) {
    CaptureStderr();
    ConvertReport report(false, false);
    report.taken(blockWithBad(2, 1), {.points = 2, .notConverted = 1}, 0);
    report.end({.points = 2, .notConverted = 1});
    EXPECT_EQ(GetCapturedStderr(), linesOfBad(0, 1));
}

TEST(ConvertReport, ShowsABarAfterASecondAndThenTenTimesASecond) {
    using Clock = std::chrono::steady_clock;
    const RowBlock good = blockWithBad(1, 0);
    CaptureStderr();
    ConvertReport report(true, true);
    const auto second = Clock::now() + std::chrono::seconds(1);
    report.taken(good, {.points = 1, .notConverted = 0}, 0.5);
    const bool early = Clock::now() < second;
    const std::string soon = GetCapturedStderr();
    if (early) {
        EXPECT_EQ(soon, "");
    }
    std::this_thread::sleep_until(second);
    const std::string bar = "[##########----------]  50 %  2 points";
    const std::string wiped = "\r" + std::string(bar.size(), ' ') + "\r";
    CaptureStderr();
    const auto start = Clock::now();
    while (Clock::now() < start + std::chrono::milliseconds(350))
        report.taken(good, {.points = 2, .notConverted = 0}, 0.5);
    const auto tenths = (Clock::now() - start) / std::chrono::milliseconds(100);
    const std::string shown = GetCapturedStderr();
    const std::size_t bars = timesIn(shown, bar);
    EXPECT_GE(bars, 2U);
    EXPECT_LE(bars, static_cast<std::size_t>(tenths) + 1);
    EXPECT_EQ(timesIn(shown, wiped), bars - (shown.starts_with(bar) ? 1 : 0)) << shown;
    CaptureStderr();
    report.taken(blockWithBad(1, 1), {.points = 3, .notConverted = 1}, 0.5);
    EXPECT_TRUE(GetCapturedStderr().starts_with(wiped + linesOfBad(0, 1)));
    CaptureStderr();
    report.end({.points = 3, .notConverted = 1});
    EXPECT_TRUE(GetCapturedStderr().ends_with("3 points, 1 not converted\n"));
}

TEST(ConvertReport, WithoutABarShowsNoneHoweverLongItTakes) {
    CaptureStderr();
    ConvertReport report(false, true);
    std::this_thread::sleep_for(std::chrono::milliseconds(1010));
    report.taken(blockWithBad(1, 0), {.points = 1, .notConverted = 0}, 0.5);
    EXPECT_EQ(GetCapturedStderr(), "");
}

TEST(TerminalLine, GivesWayToTheNextOneAndToNothingAtItsEnd) {
    CaptureStderr();
    {
        TerminalLine line;
        line.show("abc");
        line.show("de");
        line.wipe();
        line.wipe();
        line.show("f");
    }
    EXPECT_EQ(GetCapturedStderr(), "abc\r   \rde\r  \rf\r \r");
}

TEST(TerminalLine, ABarHasTwentyPlaces) {
    EXPECT_EQ(barOf(0), "[--------------------]");
    EXPECT_EQ(barOf(3), "[###-----------------]");
    EXPECT_EQ(barOf(20), "[####################]");
}

}  // namespace
}  // namespace kelvo
