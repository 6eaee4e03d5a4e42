#include "shell/recent_files.h"

#include "shell/window_bench.h"

namespace kelvo {
namespace {

using testing::Lines;
using testing::MemoryDisk;
using testing::Program;
using testing::WindowBench;
using List = std::array<std::string, 6>;

TEST(RecentFiles, PutTheNewNameOnTop) {
    MemoryDisk disk;
    EXPECT_EQ(withNameOnTop({"", "/a", "/b"}, "/c", disk), (List{"", "/c", "/a", "/b"}));
}

TEST(RecentFiles, HoldANameOnceWhateverItsCase) {
    MemoryDisk disk;
    EXPECT_EQ(withNameOnTop({"", "/a", "/B", "/c"}, "/b", disk), (List{"", "/b", "/a", "/c"}));
}

TEST(RecentFiles, HoldFiveNames) {
    MemoryDisk disk;
    EXPECT_EQ(withNameOnTop({"", "/a", "/b", "/c", "/d", "/e"}, "/f", disk),
              (List{"", "/f", "/a", "/b", "/c", "/d"}));
}

TEST(RecentFiles, EndAtTheFirstEmptyEntry) {
    MemoryDisk disk;
    EXPECT_EQ(withNameOnTop({"", "/a", "", "/c"}, "/b", disk), (List{"", "/b", "/a"}));
}

TEST(RecentFiles, KeepTheCaseWhereTheLoweredNameIsAnotherFile) {
    if (kFileNamesIgnoreCase) GTEST_SKIP();
    MemoryDisk disk;
    disk.putText("/Data.DAT", "");
    EXPECT_EQ(withNameOnTop({}, "/Data.DAT", disk)[1], "/Data.DAT");
}

TEST(RecentFiles, WorkInTheFolderOfTheFileUnlessItIsTheTopOne) {
    if (kPathSeparator != '/') GTEST_SKIP();
    EXPECT_EQ(folderToWorkIn("/app/data/a.dat"), "/app/data");
    EXPECT_EQ(folderToWorkIn("/a.dat"), "");
    EXPECT_EQ(folderToWorkIn("a.dat"), "");
    EXPECT_EQ(folderToWorkIn("C:/a.dat"), "C:/");
}

class RecentMenu : public WindowBench {};

TEST_F(RecentMenu, ShowsTheFilesBetweenTheFixedItemsAndTheEnd) {
    putConfiguration({"/app/data/a.dat", "/app/data/b.dat"});
    Program& kelvo = start();
    EXPECT_EQ(kelvo.at("mnuFileItem").highestIndex(), 10);
    EXPECT_EQ(kelvo.item(5), "다른이름으로 저장");
    EXPECT_EQ(kelvo.item(7), "&1 /app/data/a.dat");
    EXPECT_EQ(kelvo.item(8), "&2 /app/data/b.dat");
    EXPECT_EQ(kelvo.item(9), "-");
    EXPECT_EQ(kelvo.item(10), "종료");
}

TEST_F(RecentMenu, DoesNothingForAnEmptyName) {
    putConfiguration({"/app/data/a.dat"});
    Program& kelvo = start();
    kelvo.at("frmKelvo").setCaption("as it was");
    kelvo.window.UpdateRecentFiles("");
    EXPECT_EQ(kelvo.recent(1), "/app/data/a.dat");
    EXPECT_EQ(kelvo.caption("frmKelvo"), "as it was");
}

TEST_F(RecentMenu, TellsOfAStepThatFailsAndGoesOn) {
    putConfiguration({"/app/data/a.dat"});
    Program& kelvo = start();
    kelvo.window.UpdateRecentFiles("/nowhere/x.dat");
    const Lines told = kelvo.told();
    ASSERT_EQ(told.size(), 2U);  // the file can't be made, the folder can't be entered
    for (const std::string& line : told)
        EXPECT_EQ(line.rfind("message||none|ok|Error  76  ", 0), 0U) << line;
    EXPECT_EQ(kelvo.recent(1), "/nowhere/x.dat");
    EXPECT_EQ(kelvo.item(7), "&1 /nowhere/x.dat");
    EXPECT_NE(kelvo.caption("frmKelvo").find(" - /nowhere/x.dat"), std::string::npos);
}

}  // namespace
}  // namespace kelvo
