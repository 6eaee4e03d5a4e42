#include "panels/settings_file.h"

#include <gtest/gtest.h>

#include <vector>

#include "support/faults.h"
#include "support/memory_disk.h"

namespace kelvo {
namespace {

using testing::faultOf;

constexpr const char* kPath = "/app/x.cfg";

class SettingsOnDisk : public ::testing::Test {
protected:
    SettingsOnDisk() { disk.addFolder("/app"); }

    void write(const std::string& bytes) {
        file.write(bytes, [&] {
            ++merges;
            return "merged " + bytes;
        });
    }
    [[nodiscard]] std::string held(const std::string& more = "") {
        return disk.has(kPath + more) ? disk.bytes(kPath + more) : "none";
    }

    testing::MemoryDisk disk;
    SeenFile seen;
    SettingsFile file{disk, kPath, seen};
    int merges = 0;
};

TEST_F(SettingsOnDisk, AreWrittenAsTheyStandWhileNobodyElseSaves) {
    write("1");
    EXPECT_EQ(held(), "1");
    EXPECT_EQ(seen.bytes, "1");
    write("2");
    write("3");
    EXPECT_EQ(held(), "3");
    EXPECT_EQ(merges, 0);
    EXPECT_FALSE(seen.isShared);
}

TEST_F(SettingsOnDisk, AreMergedFromTheFirstChangeOfAnotherProgramOn) {
    write("1");
    disk.putBytes(kPath, "theirs");
    write("2");
    EXPECT_EQ(held(), "merged 2");
    EXPECT_EQ(seen.bytes, "merged 2");
    EXPECT_TRUE(seen.isShared);
    // Here and ever after.
    write("3");
    EXPECT_EQ(held(), "merged 3");
    EXPECT_EQ(merges, 2);
}

TEST_F(SettingsOnDisk, AreNotMergedWithAFileThatWasNeverReadOrIsGone) {
    disk.putBytes(kPath, "somebody's");
    write("1");
    EXPECT_EQ(held(), "1");
    disk.files.erase(kPath);
    write("2");
    EXPECT_EQ(held(), "2");
    EXPECT_EQ(merges, 0);
    EXPECT_FALSE(seen.isShared);
    disk.putBytes(kPath, "theirs");
    write("3");
    disk.files.erase(kPath);
    write("4");
    EXPECT_EQ(held(), "4");
    EXPECT_EQ(merges, 1);
}

TEST_F(SettingsOnDisk, AreWrittenInTheTurnOfTheirFolder) {
    std::set<std::string> turns;
    disk.before = [&](const std::string& operation, const std::string&) {
        if (operation == "replace") turns = disk.inTurn;
    };
    write("1");
    EXPECT_EQ(turns, std::set<std::string>{"/app"});
    EXPECT_TRUE(disk.inTurn.empty());
}

TEST_F(SettingsOnDisk, ThatCanBeReadAreNotReplaced) {
    disk.putBytes(kPath, "fine");
    int reads = 0;
    file.readOrReplace([&] { ++reads; }, [&](int) { ADD_FAILURE(); });
    EXPECT_EQ(reads, 1);
    EXPECT_EQ(seen.bytes, "fine");
    EXPECT_EQ(held(".old"), "none");
}

TEST_F(SettingsOnDisk, ThatCannotBeReadAreKeptOnceAndReplacedTwice) {
    disk.putBytes(kPath, "bad");
    std::vector<int> recoveries;
    const auto replace = [&](int recovery) {
        recoveries.push_back(recovery);
        disk.putBytes(kPath, "new " + std::to_string(recovery));
    };
    int reads = 0;
    file.readOrReplace(
        [&] {
            if (++reads < 3) raise(Fault::TypeMismatch);
        },
        replace);
    EXPECT_EQ(recoveries, (std::vector<int>{1, 2}));
    EXPECT_EQ(held(), "new 2");
    EXPECT_EQ(seen.bytes, "new 2");
    EXPECT_EQ(held(".old"), "bad");
    EXPECT_EQ(held(".old2"), "none");
}

TEST_F(SettingsOnDisk, TheThirdFailureComesOutWithTheNameOfTheFile) {
    int reads = 0;
    int replaced = 0;
    try {
        file.readOrReplace(
            [&] {
                ++reads;
                raise(Fault::TypeMismatch);
            },
            [&](int) { ++replaced; });
        ADD_FAILURE();
    } catch (const RuntimeFault& fault) {
        EXPECT_EQ(fault.number(), 13);
        EXPECT_NE(std::string(fault.what()).find(kPath), std::string::npos) << fault.what();
    }
    EXPECT_EQ(reads, 3);
    EXPECT_EQ(replaced, 2);
}

TEST_F(SettingsOnDisk, ThatAreOpenElsewhereAreTriedFiveTimes) {
    int reads = 0;
    file.readOrReplace(
        [&] {
            if (++reads < 5) raise(Fault::FileAlreadyOpen);
        },
        [](int) { ADD_FAILURE() << "the fifth try reads it"; });
    EXPECT_EQ(reads, 5);

    reads = 0;
    int replaced = 0;
    const auto stubborn = [&] {
        ++reads;
        raise(Fault::FileAlreadyOpen);
    };
    EXPECT_EQ(faultOf([&] { file.readOrReplace(stubborn, [&](int) { ++replaced; }); }), 55);
    EXPECT_EQ(reads, 15);
    EXPECT_EQ(replaced, 2);
}

TEST_F(SettingsOnDisk, KeepWhatWasKeptBeforeUnderTheNextNumber) {
    for (int i = 1; i <= 12; ++i) {
        disk.putBytes(kPath, std::to_string(i));
        keepAside(disk, kPath);
    }
    EXPECT_EQ(held(), "12");
    EXPECT_EQ(held(".old"), "12");
    for (int i = 2; i <= 8; ++i) EXPECT_EQ(held(".old" + std::to_string(i)), std::to_string(i - 1));
    // The ninth and last name takes what comes after.
    EXPECT_EQ(held(".old9"), "11");
    EXPECT_EQ(held(".old10"), "none");
}

TEST_F(SettingsOnDisk, KeepTheSameContentOnlyOnceAndNothingOfNoFile) {
    keepAside(disk, kPath);
    EXPECT_EQ(held(".old"), "none");
    disk.putBytes(kPath, "1");
    keepAside(disk, kPath);
    keepAside(disk, kPath);
    EXPECT_EQ(held(".old"), "1");
    EXPECT_EQ(held(".old2"), "none");
}

TEST_F(SettingsOnDisk, ThatCannotBeCopiedAreRenamed) {
    disk.putBytes(kPath, "2");
    disk.putBytes(std::string(kPath) + ".old", "1");
    disk.before = [](const std::string& operation, const std::string&) {
        if (operation == "replace") raise(Fault::DiskFull);
    };
    keepAside(disk, kPath);
    EXPECT_EQ(held(), "none");
    EXPECT_EQ(held(".old"), "2");
    EXPECT_EQ(held(".old2"), "1");
    disk.putBytes(kPath, "3");
    disk.before = [](const std::string& operation, const std::string&) {
        if (operation == "replace" || operation == "rename") raise(Fault::PermissionDenied);
    };
    EXPECT_EQ(faultOf([&] { keepAside(disk, kPath); }), 70);
    EXPECT_EQ(held(), "3");
}

}  // namespace
}  // namespace kelvo
