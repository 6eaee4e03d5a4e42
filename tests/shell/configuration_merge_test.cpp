// What two programs that save the same settings make of each other's values, value by value.
#include "shell/configuration_merge.h"

#include <gtest/gtest.h>

#include "panels/program_state.h"
#include "shell/configuration.h"
#include "shell/configuration_text.h"
#include "support/memory_disk.h"
#include "support/recording_messages.h"

namespace kelvo {
namespace {

using Names = std::array<std::string, 6>;
using Conflicts = std::vector<std::string>;

void assignNumber(double& field, int value) {
    field = value;
}
template <class Named>
void assignNumber(Named& field, int value) {
    field = Named{static_cast<std::int16_t>(value)};
}

TransPara with(std::size_t place, int value) {
    TransPara para;
    std::visit([&](auto field) { assignNumber(para.*field, value); }, kStoredNumbers[place].field);
    return para;
}

// The words for the values that belong together, by the place of one of them in the file.
const char* wordsOf(std::size_t place) {
    if (place < 8) return "변환 매개변수";
    if (place < 11) return "1차 조정량";
    return place < 19 ? "TM 투영원점과 타원체" : "UTM 투영원점과 타원체";
}

TEST(MergedConfiguration, NamesEachValueThatBothChangedByTheGroupThatItBelongsTo) {
    const TransPara untouched = with(0, 0);
    for (std::size_t place = 0; place < kStoredNumbers.size(); ++place) {
        const Configuration mine{with(place, 1), {}};
        const Configuration theirs{with(place, 2), {}};
        const MergedConfiguration merged =
            mergedConfiguration(mine, untouched, theirs, {untouched, {}});
        EXPECT_EQ(merged.conflicts, Conflicts{wordsOf(place)}) << place;
        const StoredNumber& stored = kStoredNumbers[place];
        EXPECT_EQ(storedText(merged.configuration.Cfg, stored), " 1 ") << place;
        // Both changed it to the same: nothing to speak of.
        EXPECT_EQ(mergedConfiguration(mine, untouched, mine, {untouched, {}}).conflicts,
                  Conflicts{});
    }
}

TEST(MergedConfiguration, TakesFromTheOtherOneWhatThisOneDidNotChange) {
    const TransPara untouched = with(0, 0);
    for (std::size_t place = 0; place < kStoredNumbers.size(); ++place) {
        const Configuration before{untouched, {}};
        const Configuration changed{with(place, 2), {}};
        const StoredNumber& stored = kStoredNumbers[place];
        const auto theirs = mergedConfiguration(before, untouched, changed, before);
        EXPECT_EQ(storedText(theirs.configuration.Cfg, stored), " 2 ") << place;
        EXPECT_EQ(theirs.conflicts, Conflicts{});
        const auto mine = mergedConfiguration(changed, untouched, before, before);
        EXPECT_EQ(storedText(mine.configuration.Cfg, stored), " 2 ") << place;
        EXPECT_EQ(mine.conflicts, Conflicts{});
    }
}

TEST(MergedConfiguration, KeepsTheValuesOfAGroupTogether) {
    const TransPara untouched = with(0, 0);
    TransPara mine = untouched;
    mine.dPhi = 1;
    mine.a = 6378137;
    TransPara theirs = untouched;
    theirs.dH = 2;
    theirs.UX0 = 3;
    theirs.dS = 4;
    const auto merged = mergedConfiguration({mine, {}}, untouched, {theirs, {}}, {untouched, {}});
    EXPECT_EQ(merged.conflicts, Conflicts{"1차 조정량"});
    EXPECT_EQ(merged.configuration.Cfg.dPhi, 1);
    EXPECT_EQ(merged.configuration.Cfg.dH, untouched.dH);
    EXPECT_EQ(merged.configuration.Cfg.a, 6378137);
    EXPECT_EQ(merged.configuration.Cfg.UX0, 3);
    EXPECT_EQ(merged.configuration.Cfg.dS, 4);
}

TEST(MergedConfiguration, TakesFlagsAndEditorEachByItself) {
    TransPara untouched = with(0, 0);
    untouched.AddFlag = untouched.CorrFlag = Flag::Off;
    untouched.Editor = "vi";
    const Configuration before{untouched, {}};
    Configuration one = before;
    one.Cfg.AddFlag = Flag::On;
    one.Cfg.Editor = "ed";
    Configuration other = before;
    other.Cfg.CorrFlag = Flag::On;
    const auto merged = mergedConfiguration(one, untouched, other, before);
    EXPECT_EQ(merged.configuration.Cfg.AddFlag, Flag::On);
    EXPECT_EQ(merged.configuration.Cfg.CorrFlag, Flag::On);
    EXPECT_EQ(merged.configuration.Cfg.Editor, "ed");
    EXPECT_EQ(merged.conflicts, Conflicts{});
    EXPECT_EQ(mergedConfiguration(other, untouched, one, before).configuration.Cfg.Editor, "ed");

    Configuration third = before;
    third.Cfg.AddFlag = Flag{2};
    third.Cfg.CorrFlag = Flag{2};
    EXPECT_EQ(mergedConfiguration(one, untouched, third, before).conflicts, Conflicts{"경도 가산"});
    EXPECT_EQ(mergedConfiguration(other, untouched, third, before).conflicts,
              Conflicts{"기존점 보정"});
}

Names merged(const Names& mine, const Names& theirs, const Names& before) {
    const TransPara para;
    return mergedConfiguration({para, mine}, para, {para, theirs}, {para, before})
        .configuration.RecentFiles;
}

TEST(MergedRecentFiles, BeginWithTheCurrentOneThenComeNewOnesOfTheOtherProgramThenTheRest) {
    EXPECT_EQ(merged({"", "a", "m", "b"}, {"", "t", "b", "u"}, {"", "b", "c"}),
              (Names{"", "a", "t", "u", "m", "b"}));
    EXPECT_EQ(merged({"", "a"}, {"", "b", "c"}, {"", "b", "c"}), (Names{"", "a", "b", "c"}));
    EXPECT_EQ(merged({"", "b", "a"}, {"", "a", "b"}, {}), (Names{"", "b", "a"}));
    EXPECT_EQ(merged({}, {}, {}), Names{});
}

TEST(MergedRecentFiles, AreFiveAtMostAndEachOnlyOnce) {
    EXPECT_EQ(merged({"", "a", "b", "c", "d", "e"}, {"", "v", "w", "x", "y", "z"}, {}),
              (Names{"", "a", "v", "w", "x", "y"}));
    EXPECT_EQ(merged({"", "a", "b", "c", "d", "e"}, {"", "b", "a", "e", "d", "c"}, {"", "x"}),
              (Names{"", "a", "b", "e", "d", "c"}));
}

// The file of another program may hold five paths, and all of them count.
TEST(MergedRecentFiles, ReadAllFiveOfTheOtherProgram) {
    testing::MemoryDisk disk;
    testing::RecordingMessages messages;
    disk.addFolder("/app");
    disk.addFolder("/app/data");
    ProgramState state;
    state.applicationFolder = "/app";
    state.CfgPath = "/app/kelvo.cfg";
    fillFirstStart(state.Cfg);
    state.RecentFiles[1] = "/d/a.dat";
    for (const char* path : {"/d/a.dat", "/d/1.dat", "/d/2.dat", "/d/3.dat", "/d/5.dat"})
        disk.putText(path, "");
    WriteCfgFile(state, disk, messages);
    const std::string first = disk.text(state.CfgPath);
    const std::size_t paths = first.find("/d/a.dat");
    ASSERT_NE(paths, std::string::npos);
    const std::string parameters = first.substr(0, paths);
    disk.putText(state.CfgPath,
                 parameters + "/d/1.dat\r\n/d/2.dat\r\n/d/3.dat\r\n/d/a.dat\r\n/d/5.dat\r\n");
    WriteCfgFile(state, disk, messages);
    EXPECT_EQ(disk.text(state.CfgPath),
              parameters + "/d/a.dat\r\n/d/1.dat\r\n/d/2.dat\r\n/d/3.dat\r\n/d/5.dat\r\n");
    EXPECT_TRUE(messages.shown.empty());
}

}  // namespace
}  // namespace kelvo
