// The command line of kelvo-batch and its progress bar.
#include "cli/command_line.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "cli/progress_bar.h"
#include "common/disk.h"

namespace kelvo {
namespace {

CommandLineReading read(const std::vector<std::string>& arguments) {
    return readCommandLine(arguments);
}

TEST(BatchCommandLine, TakesSeveralDataFilesInTheirOrder) {
    const auto reading = read({"b.dat", "--quiet", "a.dat"});
    ASSERT_TRUE(reading.line);
    EXPECT_EQ(reading.line->dataFiles, (std::vector<std::string>{"b.dat", "a.dat"}));
    EXPECT_TRUE(reading.line->quiet);
    EXPECT_FALSE(reading.line->applicationFolder);
}

TEST(BatchCommandLine, TheApplicationFolderLosesItsTrailingSeparator) {
    const auto reading = read({"--app-folder", std::string("dir") + kPathSeparator, "a.dat"});
    ASSERT_TRUE(reading.line);
    EXPECT_EQ(reading.line->applicationFolder, "dir");
}

TEST(BatchCommandLine, AnEmptyApplicationFolderIsRefused) {
    EXPECT_FALSE(read({"--app-folder", "", "a.dat"}).line);
    EXPECT_FALSE(read({"--app-folder"}).line);
}

TEST(BatchCommandLine, TheRootFolderStaysItself) {
    const auto reading = read({"--app-folder", std::string(1, kPathSeparator), "a.dat"});
    ASSERT_TRUE(reading.line);
    EXPECT_EQ(reading.line->applicationFolder, std::string(1, kPathSeparator));
}

TEST(BatchCommandLine, ALoneHyphenIsRefusedWithTheReason) {
    const auto reading = read({"-"});
    EXPECT_FALSE(reading.line);
    EXPECT_NE(reading.complaint.find("standard input"), std::string::npos);
}

TEST(BatchCommandLine, NoDataFileAndAnEmptyNameAreRefused) {
    EXPECT_FALSE(read({}).line);
    EXPECT_FALSE(read({"--quiet"}).line);
    EXPECT_FALSE(read({""}).line);
}

TEST(BatchCommandLine, AnUnknownOptionIsRefusedByName) {
    const auto reading = read({"--loud", "a.dat"});
    EXPECT_FALSE(reading.line);
    EXPECT_NE(reading.complaint.find("--loud"), std::string::npos);
}

TEST(BatchCommandLine, AnApplicationFolderMustFollowItsOption) {
    EXPECT_FALSE(read({"a.dat", "--app-folder"}).line);
}

TEST(BatchCommandLine, BehindTwoHyphensANameMayBeginWithOne) {
    const auto reading = read({"--", "-a.dat", "-"});
    ASSERT_TRUE(reading.line);
    EXPECT_EQ(reading.line->dataFiles, (std::vector<std::string>{"-a.dat", "-"}));
}

TEST(BatchCommandLine, HelpAndVersionNeedNoDataFile) {
    ASSERT_TRUE(read({"--help"}).line);
    EXPECT_EQ(read({"--help"}).line->wish, CommandLine::Wish::Help);
    ASSERT_TRUE(read({"--version"}).line);
    EXPECT_EQ(read({"--version"}).line->wish, CommandLine::Wish::Version);
}

TEST(ProgressLine, TellsHowManyFilesAreDone) {
    EXPECT_EQ(progressLine(1, 4, "b.dat"), "[#####---------------] 1/4 b.dat");
    EXPECT_EQ(progressLine(4, 4, ""), "[####################] 4/4 ");
}

TEST(ProgressLine, ALongNameIsCutFromTheFrontBetweenCharacters) {
    const std::string line = progressLine(0, 5, "/한글/이름이/긴/자료.dat", 43);
    EXPECT_LE(line.size(), 43U);
    EXPECT_EQ(line, "[--------------------] 0/5 /긴/자료.dat");
}

TEST(ProgressLine, OfNoFilesIsFull) {
    EXPECT_EQ(progressLine(0, 0, "x"), "[####################] 0/0 x");
    EXPECT_EQ(progressLine(3, 7, "x"), "[########------------] 3/7 x");
}

TEST(ProgressLine, FillsItsColumnsAndNoMore) {
    const std::string bar = "[##########----------] 1/2 ";  // 27 columns
    EXPECT_EQ(progressLine(1, 2, std::string(52, 'x')), bar + std::string(52, 'x'));
    EXPECT_EQ(progressLine(1, 2, "a" + std::string(52, 'x')), bar + std::string(52, 'x'));
    EXPECT_EQ(progressLine(1, 2, "abc", 29), bar + "bc");
    EXPECT_EQ(progressLine(1, 2, "abc", 28), bar + "c");
    EXPECT_EQ(progressLine(1, 2, "abc", 27), bar);
    EXPECT_EQ(progressLine(1, 2, "abc", 5), bar);
    EXPECT_EQ(progressLine(1, 2, "가", 29), bar);
    EXPECT_EQ(progressLine(1, 2, "가", 30), bar + "가");
}

TEST(ProgressBar, ShowsALineThatGivesWay) {
    ::testing::internal::CaptureStderr();
    {
        ProgressBar bar(2, true);
        bar.show(1, "a");
        bar.clear();
        ProgressBar none(2, false);
        none.show(1, "b");
    }
    const std::string line = "[##########----------] 1/2 a";
    EXPECT_EQ(::testing::internal::GetCapturedStderr(),
              line + "\r" + std::string(line.size(), ' ') + "\r");
}

}  // namespace
}  // namespace kelvo
