// A save, with the power going at every one of its calls: afterwards the file holds the old text or
// the new one, whatever of bytes and names the medium kept.
#include <gtest/gtest.h>

#include <cstdio>
#include <functional>

#include "common/file_replacement.h"
#include "common/run_time_fault.h"
#include "trust/forgetful_disk.h"

namespace kelvo::testing {
namespace {

constexpr const char* kFile = "/job/work.dat";
constexpr const char* kOther = "/job/linked.dat";
const std::string kOld = "an old text, rather long, of the user's own making\r\n";
const std::string kNew =
    "a new one\r\nof two lines, so that neither is a beginning of the other\r\n";

struct Case {
    const char* name;
    bool isThere = true;
    std::function<void(ForgetfulDisk&)> prepare = [](ForgetfulDisk&) {};
    std::map<std::string, std::string> links;
};

void PrintTo(const Case& one, std::ostream* out) {
    *out << one.name;
}

const Case kCases[] = {
    {"AFileOfItsOwn", true, [](ForgetfulDisk&) {}, {}},
    {"AFileThatIsNew", false, [](ForgetfulDisk&) {}, {}},
    {"AFileWithTwoNames",
     true,
     [](ForgetfulDisk& disk) { disk.link(kFile, kOther); },
     {{kOther, kFile}}},
    {"AFileOfAnotherUser", true, [](ForgetfulDisk& disk) { disk.foreignFile = kFile; }, {}},
    {"AFolderThatMayNotBeWritten",
     true,
     [](ForgetfulDisk& disk) { disk.closedFolder = "/job"; },
     {}},
    {"AFolderWhereOnlyOwnersRename",
     true,
     [](ForgetfulDisk& disk) { disk.stickyFolder = "/job"; },
     {}},
};

// What the next start does with what was left.
void startAgain(ForgetfulDisk& disk) {
    for (const auto& [path, bytes] : disk.now())
        if (isNameOfCopy(std::filesystem::path(path).filename().string()))
            finishInPlace(disk, path, bytes);
    for (const auto& [path, bytes] : disk.now())
        if (isNameOfNewFile(std::filesystem::path(path).filename().string())) disk.remove(path);
}

struct Result {
    int cuts = 0;
    int finds = 0;
    int lost = 0;        // neither the old text nor the new one
    int undone = 0;      // the save had returned, and its text isn't there
    int left = 0;        // something of the save is still beside the file
    bool works = false;  // with steady power the new text stands
};

// Whether the file holds what it may; `done` if the save had come to its end.
void judge(const Case& one, const ForgetfulDisk& cut, bool done, Result& result) {
    for (const auto& found : cut.possibleFinds()) {
        ++result.finds;
        ForgetfulDisk disk = ForgetfulDisk::holding(found, one.links);
        startAgain(disk);
        const auto after = disk.now();
        const auto file = after.find(kFile);
        const bool isOld =
            one.isThere ? file != after.end() && file->second == kOld : file == after.end();
        const bool isNew = file != after.end() && file->second == kNew;
        if (!isOld && !isNew) ++result.lost;
        if (done && !isNew) ++result.undone;
        if (after.size() > one.links.size() + (file != after.end() ? 1U : 0U)) ++result.left;
    }
}

Result cutEverywhere(const Case& one, bool forgetsToSettle) {
    Result result;
    for (int at = 1;; ++at) {
        ForgetfulDisk disk;
        if (one.isThere) disk.put(kFile, kOld);
        one.prepare(disk);
        disk.forgetsToSettle = forgetsToSettle;
        disk.cutAt = at;
        bool returned = true;
        try {
            replaceFile(disk, kFile, kNew);
        } catch (const RuntimeFault&) {
            returned = false;
        }
        const bool wasCut = disk.calls >= at;
        result.cuts += wasCut ? 1 : 0;
        judge(one, disk, returned && !wasCut, result);
        if (wasCut) continue;
        result.works = returned && disk.now().at(kFile) == kNew;
        return result;
    }
}

class PowerCut : public ::testing::TestWithParam<Case> {};

TEST_P(PowerCut, LeavesTheOldTextOrTheNewOne) {
    const Result result = cutEverywhere(GetParam(), false);
    EXPECT_GE(result.cuts, 3);
    EXPECT_TRUE(result.works);
    EXPECT_EQ(result.lost, 0) << "of " << result.finds;
    EXPECT_EQ(result.undone, 0) << "a save that returned was undone";
    EXPECT_EQ(result.left, 0) << "something stayed beside the file";
    std::printf("%s: %d cuts, %d finds\n", GetParam().name, result.cuts, result.finds);
}

// The test itself can fail: a save that settles nothing is found out.
TEST_P(PowerCut, WouldFindASaveThatSettlesNothing) {
    const Result result = cutEverywhere(GetParam(), true);
    EXPECT_GT(result.lost + result.undone, 0);
}

// What is made beside a text that was private is private from its first moment.
TEST_P(PowerCut, MakesOnlyANewFileSoThatOthersMayLookIntoIt) {
    ForgetfulDisk disk;
    if (GetParam().isThere) disk.put(kFile, kOld);
    GetParam().prepare(disk);
    replaceFile(disk, kFile, kNew);
    EXPECT_EQ(disk.madeOpen, GetParam().isThere ? 0 : 1);
}

INSTANTIATE_TEST_SUITE_P(Files, PowerCut, ::testing::ValuesIn(kCases),
                         [](const auto& one) { return std::string(one.param.name); });

}  // namespace
}  // namespace kelvo::testing
