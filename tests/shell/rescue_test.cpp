// Where a text goes that can't be saved where it belongs.
#include "shell/rescue.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>

#include "common/code_page.h"
#include "common/disk.h"
#include "common/run_time_fault.h"
#include "support/memory_disk.h"
#include "support/temporary_folder.h"
#include "support/unprivileged.h"

namespace kelvo {
namespace {

using testing::MemoryDisk;

class Rescue : public ::testing::Test {
protected:
    Rescue() {
        for (const char* folder : {"/app", "/job", "/home"}) disk.addFolder(folder);
    }
    std::string rescue(const std::string& text) {
        return rescueText(disk, {"/app", "/job", "/gone", "/home"}, "20040607-093000", text)
            .value_or("nowhere");
    }
    void fillUp(const std::string& folder) {
        full.insert(folder);
        disk.before = [this](const std::string& operation, const std::string& path) {
            if (operation == "replace" && full.count(path.substr(0, path.rfind('/'))) != 0)
                raise(Fault::DiskFull);
        };
    }

    MemoryDisk disk;
    std::set<std::string> full;
};

TEST_F(Rescue, GoesIntoTheApplicationFolder) {
    EXPECT_EQ(rescue("밤새 친 글\r\n"), "/app/rescue-20040607-093000-1.txt");
    EXPECT_EQ(disk.text("/app/rescue-20040607-093000-1.txt"), "밤새 친 글\r\n");
}

TEST_F(Rescue, NeverTakesTheNameOfAnother) {
    rescue("one");
    EXPECT_EQ(rescue("two"), "/app/rescue-20040607-093000-2.txt");
    EXPECT_EQ(disk.text("/app/rescue-20040607-093000-1.txt"), "one");
}

TEST_F(Rescue, GoesElsewhereAfterAHundredOfOneSecond) {
    for (int i = 1; i <= 99; ++i)
        disk.putText("/app/rescue-20040607-093000-" + std::to_string(i) + ".txt", "another");
    EXPECT_EQ(rescue("the hundredth"), "/app/rescue-20040607-093000-100.txt");
    EXPECT_EQ(rescue("one more"), "/job/rescue-20040607-093000-1.txt");
}

TEST_F(Rescue, GoesElsewhereWhereADiskIsFullOrGone) {
    fillUp("/app");
    EXPECT_EQ(rescue("one"), "/job/rescue-20040607-093000-1.txt");
    fillUp("/job");
    EXPECT_EQ(rescue("two"), "/home/rescue-20040607-093000-1.txt");
    fillUp("/home");
    EXPECT_EQ(rescue("three"), "nowhere");
    EXPECT_EQ(disk.files.size(), 2U);
}

TEST_F(Rescue, KeepsLettersThatTheCodePageLacks) {
    const std::string path = rescue("강산 é 😀\r\n");
    EXPECT_EQ(disk.bytes(path), "\xEF\xBB\xBF강산 é 😀\r\n");
}

TEST_F(Rescue, KeepsBytesThatAreNoLetters) {
    const std::string bytes = encodeCodePage("가") + "\x81";
    EXPECT_EQ(disk.bytes(rescue(decodeCodePage(bytes))), bytes);
}

TEST(RescueOnDisk, GoesElsewhereWhereTheApplicationFolderMayNotBeWritten) {
    const testing::TemporaryFolder app;
    const testing::TemporaryFolder home;
    std::filesystem::permissions(app.path(), std::filesystem::perms{0555});
    std::filesystem::permissions(home.path(), std::filesystem::perms::all);
    EXPECT_TRUE(testing::asUnprivileged([&] {
        PlatformDisk disk;
        return rescueText(disk, {app.path(), home.path()}, "20040607-093000", "글").has_value();
    }));
    EXPECT_EQ(home.bytes("rescue-20040607-093000-1.txt"), encodeCodePage("글"));
}

TEST(RescueFolders, AreThoseThatMayHaveRoomBestFirst) {
    setenv("HOME", "/home/me", 1);
    setenv("TMPDIR", "/tmp", 1);
    EXPECT_EQ(rescueFolders("/app", "/job/a.dat"),
              (std::vector<std::string>{"/app", "/job", "/home/me", "/tmp"}));
    EXPECT_EQ(rescueFolders("/app", ""), (std::vector<std::string>{"/app", "/home/me", "/tmp"}));
}

}  // namespace
}  // namespace kelvo
