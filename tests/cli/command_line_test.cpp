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

TEST(BatchCommandLine, EveryComplaintSaysWhatIsWrong) {
    const std::string endings =
        "--export needs a file whose name ends in gpkg, geojson, shp, kml, gpx, dxf, xlsx or ods";
    const std::vector<std::pair<std::vector<std::string>, std::string>> complaints{
        {{""}, "a data file has an empty name"},
        {{"--", ""}, "a data file has an empty name"},
        {{}, "no data file is given"},
        {{"--quiet", "--"}, "no data file is given"},
        {{"a.dat", "--app-folder"}, "--app-folder needs a folder"},
        {{"--app-folder", "", "a.dat"}, "--app-folder needs a folder"},
        {{"a.dat", "--export"}, endings},
        {{"--export", "a.csv", "a.dat"}, endings},
        {{"-"},
         "standard input can't be converted: the result stands beside the data file and "
         "takes its name from it"},
        {{"-x", "a.dat"}, "unknown option -x"},
        {{"--check", "--export", "a.kml", "a.dat"}, "--check writes nothing, --export writes"},
        {{"--export", "a.kml", "a.dat", "b.dat"}, "--export takes the tables of one data file"}};
    for (const auto& [arguments, complaint] : complaints) {
        const auto reading = read(arguments);
        EXPECT_FALSE(reading.line);
        EXPECT_EQ(reading.complaint, complaint);
    }
}

TEST(BatchCommandLine, EveryOptionIsTaken) {
    const auto reading =
        read({"--export", "a.kml", "--app-folder", "f//", "--export", "b.shp", "a.dat"});
    ASSERT_TRUE(reading.line);
    EXPECT_EQ(reading.line->wish, CommandLine::Wish::Convert);
    EXPECT_EQ(reading.line->exports, (std::vector<std::string>{"a.kml", "b.shp"}));
    EXPECT_EQ(reading.line->applicationFolder, "f");
    EXPECT_EQ(reading.line->dataFiles, std::vector<std::string>{"a.dat"});
    EXPECT_FALSE(reading.line->quiet);
    EXPECT_EQ(read({"--check", "a.dat", "b.dat"}).line->wish, CommandLine::Wish::Check);
    EXPECT_EQ(read({"a.dat"}).line->wish, CommandLine::Wish::Convert);
    EXPECT_FALSE(read({"a.dat"}).line->applicationFolder);
    EXPECT_EQ(read({"--", "--help"}).line->dataFiles, std::vector<std::string>{"--help"});
    EXPECT_EQ(read({"--bogus", "--help"}).complaint, "unknown option --bogus");
    EXPECT_TRUE(helpText().starts_with(usageText()));
}

}  // namespace
}  // namespace kelvo
