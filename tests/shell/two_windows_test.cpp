// Two programs that save the settings of one application folder.
#include "shell/window_bench.h"

namespace kelvo {
namespace {

using testing::kUsualCfg;
using testing::Lines;
using testing::Program;
using testing::WindowBench;

class TwoWindows : public WindowBench {
protected:
    TwoWindows() { putConfiguration({"/app/data/a.dat", "/app/data/b.dat"}); }

    // Both start on the same files; the first one goes on as `one`.
    void startBoth() {
        one = std::make_unique<Program>(disk);
        Main(one->window);
        start();
    }
    static void close(Program& window) {
        Control& menu = window.at("mnuFileItem");
        menu.clickEntry(menu.highestIndex());
        EXPECT_TRUE(window.services.ended);
    }
    // What a third one reads.
    Program& next() {
        third = std::make_unique<Program>(disk);
        Main(third->window);
        return *third;
    }
    [[nodiscard]] Program& other() { return *program; }
    // The boxes that the second one has shown since it was last asked.
    [[nodiscard]] Lines boxes() {
        Lines lines = other().told();
        std::erase_if(lines, [](const std::string& line) { return !line.starts_with("message|"); });
        return lines;
    }

    std::unique_ptr<Program> one;
    std::unique_ptr<Program> third;
};

TEST_F(TwoWindows, WhatOneChangedOutlivesTheOtherThatDidNot) {
    startBoth();
    one->type("txtdX", "99.5");
    one->click("optNotAdd");
    close(*one);
    close(other());
    EXPECT_TRUE(boxes().empty()) << "nothing is in dispute";
    Program& after = next();
    EXPECT_EQ(after.cfg().dX, 99.5);
    EXPECT_EQ(after.cfg().AddFlag, kNotAdded);
    EXPECT_EQ(after.cfg().dY, -474.99);
}

TEST_F(TwoWindows, WhatBothChangedInDifferentPlacesStands) {
    startBoth();
    one->type("txtdPhi", "0.5");
    close(*one);
    other().click("OptCorr");
    other().click("optEast");
    close(other());
    EXPECT_TRUE(boxes().empty());
    Program& after = next();
    EXPECT_EQ(after.cfg().dPhi, 0.5);
    EXPECT_EQ(after.cfg().CorrFlag, Flag::On);
    EXPECT_EQ(after.cfg().Zone, TmZone::East);
    EXPECT_EQ(after.cfg().Lam0, 129);
}

TEST_F(TwoWindows, ValuesThatBelongTogetherAreNeverMixed) {
    startBoth();
    one->type("txtdX", "1");
    one->type("txtdY", "2");
    close(*one);
    other().type("txtdZ", "3");
    close(other());
    Program& after = next();
    EXPECT_EQ(after.cfg().dX, 115.8);
    EXPECT_EQ(after.cfg().dY, -474.99);
    EXPECT_EQ(after.cfg().dZ, 3);
}

TEST_F(TwoWindows, WhatBothChangedIsToldAndTheOthersFileKept) {
    startBoth();
    one->type("txtdX", "1");
    close(*one);
    const std::string theirs = disk.text("/app/kelvo.cfg");
    other().type("txtdX", "3");
    (void)boxes();
    close(other());
    const Lines told = boxes();
    ASSERT_FALSE(told.empty());
    EXPECT_NE(told.front().find("변환 매개변수"), std::string::npos) << told.front();
    EXPECT_NE(told.front().find("kelvo.cfg.old"), std::string::npos);
    EXPECT_EQ(told.front().find("TM"), std::string::npos) << "only what is in dispute is named";
    EXPECT_EQ(disk.text("/app/kelvo.cfg.old"), theirs);
    EXPECT_EQ(next().cfg().dX, 3);
}

TEST_F(TwoWindows, TheSameChangeInBothIsNoDispute) {
    startBoth();
    one->type("txtdX", "1");
    close(*one);
    other().type("txtdX", "1");
    close(other());
    EXPECT_TRUE(boxes().empty());
    EXPECT_FALSE(disk.has("/app/kelvo.cfg.old"));
}

// Or what the other one saves between this one's look and its save would be lost.
TEST_F(TwoWindows, WhatTheOtherHasSavedIsReadAndReplacedInOneTurn) {
    startBoth();
    one->type("txtdX", "1");
    close(*one);
    other().type("txtdPhi", "2");
    int looks = 0;
    int saves = 0;
    disk.before = [&](const std::string& operation, const std::string& path) {
        if (path != "/app/kelvo.cfg" && path != "/app/plot.cfg") return;
        if (operation == "openForReading") ++looks;
        if (operation == "replace") ++saves;
        EXPECT_TRUE(disk.inTurn.contains("/app")) << operation << " " << path;
    };
    close(other());
    EXPECT_GE(looks, 3) << "both files to compare them, and one to merge it";
    EXPECT_EQ(saves, 2);
    EXPECT_TRUE(disk.inTurn.empty());
}

TEST_F(TwoWindows, ATurnThatIsNotHadInTimeDoesNotKeepTheSettingsFromBeingSaved) {
    startBoth();
    one->type("txtdX", "1");
    const auto turn = disk.takeTurn("/app");
    ASSERT_NE(turn, nullptr);
    close(*one);
    EXPECT_EQ(next().cfg().dX, 1);
}

TEST_F(TwoWindows, WhatTheOtherSavedStaysThroughFurtherSaves) {
    startBoth();
    one->type("txtdX", "1");
    close(*one);
    for (int save = 0; save < 3; ++save) {
        other().click("mnuOneOpen");
        other().click("cmdOneClose");
    }
    close(other());
    EXPECT_EQ(next().cfg().dX, 1);
}

TEST_F(TwoWindows, TheListsOfFilesAreJoined) {
    startBoth();
    disk.putText("/app/data/new.dat", "*\r\n");
    disk.putText("/app/data/mine.dat", "*\r\n");
    one->queueDialog("/app/data/new.dat");
    one->file(2);
    other().queueDialog("/app/data/mine.dat");
    other().file(2);
    const std::string list = disk.text("/app/kelvo.cfg").substr(kUsualCfg.size());
    EXPECT_EQ(list,
              "/app/data/mine.dat\r\n/app/data/new.dat\r\n/app/data/a.dat\r\n/app/data/b.dat\r\n");
}

TEST_F(TwoWindows, AFullListOfTheOtherIsReadToItsFifthFile) {
    startBoth();
    for (const char* name : {"c", "d", "e"}) {
        const std::string path = std::string("/app/data/") + name + ".dat";
        disk.putText(path, "*\r\n");
        one->queueDialog(path);
        one->file(2);
    }
    // The second window changes a parameter only.
    other().click("OptCorr");
    close(other());
    const std::string list = disk.text("/app/kelvo.cfg");
    for (const char* name : {"a", "b", "c", "d", "e"})
        EXPECT_NE(list.find(std::string("/app/data/") + name + ".dat"), std::string::npos) << name;
}

TEST_F(TwoWindows, AWindowAloneWritesWhatItHas) {
    start();
    other().type("txtdX", "1");
    close(other());
    // By hand, between two starts: nobody's save.
    disk.putText("/app/kelvo.cfg", kUsualCfg + "/app/data/a.dat\r\n");
    start();
    close(other());
    EXPECT_EQ(next().cfg().dX, 115.8);
    EXPECT_FALSE(disk.has("/app/kelvo.cfg.old"));
}

TEST_F(TwoWindows, AFileThatCannotBeReadIsKeptAside) {
    start();
    disk.putText("/app/kelvo.cfg", "somebody's own words\r\n");
    other().type("txtdX", "1");
    close(other());
    EXPECT_EQ(disk.text("/app/kelvo.cfg.old"), "somebody's own words\r\n");
    EXPECT_EQ(next().cfg().dX, 1);
}

TEST_F(TwoWindows, PlotScalesOfBothStand) {
    startBoth();
    one->click("optManual");
    one->click("optWGS");
    one->type("txtXb", "37.3000");
    close(*one);
    other().click("optXY");
    other().type("txtSpan", "1500");
    close(other());
    Program& after = next();
    EXPECT_NEAR(after.plotCfg().WGS.Xb, 37.5, 1e-4);
    EXPECT_EQ(after.plotCfg().XY.Span, 1500);
    EXPECT_EQ(after.plotCfg().PlotManual, 1);
    EXPECT_FALSE(disk.has("/app/plot.cfg.old"));
}

TEST_F(TwoWindows, APlotScaleThatBothChangedIsTold) {
    startBoth();
    one->type("txtSpan", "1000");
    close(*one);
    other().type("txtSpan", "2000");
    (void)boxes();
    close(other());
    const Lines told = boxes();
    ASSERT_FALSE(told.empty());
    EXPECT_NE(told.front().find("plot.cfg.old"), std::string::npos);
    EXPECT_EQ(next().plotCfg().XY.Span, 2000);
}

}  // namespace
}  // namespace kelvo
