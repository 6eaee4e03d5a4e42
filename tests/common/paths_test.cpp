#include "common/paths.h"

#include <gtest/gtest.h>

#include "common/run_time_fault.h"
#include "support/memory_disk.h"
#include "support/recording_messages.h"

namespace kelvo {
namespace {

using testing::MemoryDisk;
using testing::RecordingMessages;

TEST(Paths, ANameWithTwoPointsLosesOnlyWhatStandsBehindTheSecond) {
    EXPECT_EQ(genSub::StripExtension("/d/a.b.dat"), "/d/a.b");
    EXPECT_EQ(genSub::FileExtensionOf("/d/a.b.dat"), "dat");
}

TEST(Paths, WithoutAPointThereIsNoExtensionAndNothingToStrip) {
    EXPECT_EQ(genSub::FileExtensionOf("/d/a"), "");
    EXPECT_EQ(genSub::StripExtension("/d/a"), "/d/a");
    EXPECT_EQ(genSub::FileExtensionOf("/d/a."), "");
    EXPECT_EQ(genSub::StripExtension("/d/a."), "/d/a");
}

TEST(Paths, APointInAFolderNameCounts) {
    EXPECT_EQ(genSub::FileExtensionOf("/d.x/a"), "x/a");
    EXPECT_EQ(genSub::StripExtension("/d.x/a"), "/d");
}

TEST(Paths, TheFolderGoesUpToTheLastSeparator) {
    MemoryDisk disk;
    EXPECT_EQ(genSub::FolderOf(disk, "/data/job/a.dat"), "/data/job/");
    EXPECT_EQ(genSub::FolderOf(disk, "/a.dat"), "/");
}

TEST(Paths, WithoutASeparatorTheFolderIsTheCurrentOne) {
    MemoryDisk disk;
    disk.addFolder("/here");
    disk.setCurrentFolder("/here");
    EXPECT_EQ(genSub::FolderOf(disk, "a.dat"), "/here");
}

TEST(Paths, TheTitleStandsBetweenTheLastSeparatorAndTheLastPoint) {
    EXPECT_EQ(genSub::FileTitleOf("/data/강화.1.dat"), "강화.1");
    EXPECT_EQ(genSub::FileTitleOf("/data/a"), "a");
}

TEST(Paths, WithoutASeparatorTheTitleIsAStar) {
    EXPECT_EQ(genSub::FileTitleOf("a.dat"), "*");
}

TEST(FileExists, TellsAFileFromAMissingOne) {
    MemoryDisk disk;
    disk.putText("/a", "x");
    EXPECT_EQ(genSub::FileExists(disk, "/a"), 1);
    EXPECT_EQ(genSub::FileExists(disk, "/b"), 2);
    EXPECT_EQ(genSub::FileExists(disk, "/no/b"), 2);
}

TEST(FileExists, GoesByTheNumberOfTheFailure) {
    const auto whenOpeningFails = [](Fault fault) {
        MemoryDisk disk;
        disk.before = [fault](const std::string& operation, const std::string&) {
            if (operation == "openForReading") raise(fault);
        };
        return genSub::FileExists(disk, "/a");
    };
    EXPECT_EQ(whenOpeningFails(Fault::FileNotFound), 2);
    EXPECT_EQ(whenOpeningFails(Fault::DiskNotReady), 2);
    EXPECT_EQ(whenOpeningFails(Fault::PathNotFound), 2);
    EXPECT_EQ(whenOpeningFails(Fault::PermissionDenied), 1);
    EXPECT_EQ(whenOpeningFails(Fault::FileAlreadyOpen), 3);
    EXPECT_EQ(whenOpeningFails(Fault::PathFileAccess), std::nullopt);
    EXPECT_EQ(whenOpeningFails(Fault::DiskFull), std::nullopt);
}

TEST(CopyFileGuard, CopiesEveryByte) {
    MemoryDisk disk;
    RecordingMessages messages;
    const std::string bytes("a\r\nb\xFF\x80\0c", 9);
    disk.putBytes("/from", bytes);
    disk.putBytes("/to", "something longer than the source");
    genSub::CopyFileGuard(disk, messages, "/from", "/to");
    EXPECT_EQ(disk.bytes("/to"), bytes);
    EXPECT_TRUE(messages.shown.empty());
}

TEST(CopyFileGuard, TellsAFailureAndReturns) {
    MemoryDisk disk;
    RecordingMessages messages;
    genSub::CopyFileGuard(disk, messages, "/from", "/to");
    ASSERT_EQ(messages.texts(), std::vector<std::string>{"파일 복사에 실패했습니다"});
    EXPECT_EQ(messages.shown[0].buttons, Buttons::Ok);
}

class Starter final : public ProgramStarter {
public:
    void start(const std::string& command) override {
        if (fails) throw RuntimeFault(Fault::FileNotFound, "없는 프로그램");
        started = command;
    }
    bool fails = false;
    std::string started;
};

TEST(RunProgram, StartsTheCommand) {
    Starter programs;
    RecordingMessages messages;
    genSub::RunProgram(programs, messages, "edit a.dat");
    EXPECT_EQ(programs.started, "edit a.dat");
    EXPECT_TRUE(messages.shown.empty());
}

TEST(RunProgram, TellsAFailureWithCommandNumberAndDescription) {
    Starter programs;
    programs.fails = true;
    RecordingMessages messages;
    genSub::RunProgram(programs, messages, "edit a.dat");
    ASSERT_EQ(messages.shown.size(), 1U);
    EXPECT_EQ(messages.shown[0].text,
              "Shell Program 실행에러\r\nedit a.dat Err = 53  없는 프로그램");
}

}  // namespace
}  // namespace kelvo
