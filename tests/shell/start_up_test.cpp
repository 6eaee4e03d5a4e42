#include "shell/configuration.h"
#include "shell/window_bench.h"

namespace kelvo {
namespace {

using testing::faultOf;
using testing::kUsualCfg;
using testing::Lines;
using testing::Program;
using testing::WindowBench;

class StartUp : public WindowBench {
protected:
    void putCfg(const std::string& text) { disk.putText("/app/kelvo.cfg", text); }
    [[nodiscard]] std::string cfgFile() { return disk.text("/app/kelvo.cfg"); }
};

TEST_F(StartUp, FirstStartWritesSampleAndConfigurationAndReadsThem) {
    Program& kelvo = start();
    EXPECT_TRUE(disk.has("/app/data/test.dat"));
    EXPECT_EQ(kelvo.cfg().dX, 115.8);
    EXPECT_EQ(kelvo.cfg().Kind, ShiftKind{0});
    EXPECT_EQ(kelvo.cfg().Zone, TmZone::Centre);
    EXPECT_EQ(kelvo.cfg().Lam0, 129);
    EXPECT_EQ(kelvo.cfg().US0, 0);
    EXPECT_EQ(kelvo.recent(1), "/app/data/test.dat");
    EXPECT_EQ(kelvo.recent(2), "");
    EXPECT_TRUE(kelvo.told().empty());
}

// What a save that was cut short has left there goes.
TEST_F(StartUp, TidiesTheApplicationFolderAndItsDataBeforeItReads) {
    std::set<std::string> tidied;
    disk.before = [&](const std::string& operation, const std::string& path) {
        if (operation == "openForReading" && path == "/app/kelvo.cfg" && tidied.empty())
            tidied = disk.tidied;
    };
    start();
    EXPECT_EQ(tidied, (std::set<std::string>{"/app", "/app/data"}));
}

TEST_F(StartUp, FirstConfigurationIsWrittenInZonesOfFourteenColumns) {
    start();
    const std::string editor = kFileNamesIgnoreCase ? "Notepad.exe" : "xdg-open";
    EXPECT_EQ(cfgFile(), editor +
                             "\r\n"
                             " 115.8        -474.99       -674.11 \r\n"
                             " 1.16         -2.31         -1.63 \r\n"
                             "-6.43 \r\n"
                             " 0 \r\n"
                             " 0             0             0 \r\n"
                             " 6377397.155   299.1528128 \r\n"
                             " 2 \r\n"
                             " 0             129 \r\n"
                             " 0             500000 \r\n"
                             " .9996 \r\n"
                             " 6377397.155   299.1528128 \r\n"
                             " 2 \r\n"
                             " 0             0 \r\n"
                             " 0             0 \r\n"
                             " 0 \r\n"
                             " 1                           0 \r\n"
                             "/app/data/test.dat\r\n");
}

TEST_F(StartUp, KindZeroOfAFirstStartShowsBursa) {
    EXPECT_TRUE(start().on("optBursa"));
}

TEST_F(StartUp, WithoutTheFolderDataIsAFault) {
    disk.folders.erase("/app/data");
    EXPECT_EQ(faultOf([&] { start(); }), 76);
}

TEST_F(StartUp, ShortConfigurationIsReplacedButKeepsTheAdjustmentsThatWereRead) {
    putCfg("editor\r\n 1  2  3 \r\n 4  5  6 \r\n 7 \r\n 1 \r\n .5  .25  .125 \r\n 10  20 \r\n");
    Program& kelvo = start();
    EXPECT_EQ(kelvo.cfg().dX, 115.8);
    EXPECT_EQ(kelvo.cfg().a, 6377397.155);
    EXPECT_EQ(kelvo.cfg().dPhi, 0.5);
    EXPECT_EQ(kelvo.cfg().dLam, 0.25);
    EXPECT_EQ(kelvo.cfg().dH, 0.125);
    EXPECT_NE(cfgFile().find(" .5            .25           .125 \r\n"), std::string::npos);
}

TEST_F(StartUp, DamagedNumberIsReplaced) {
    putCfg(kUsualCfg.substr(0, 30) + "garbage" + kUsualCfg.substr(37));
    EXPECT_EQ(start().recent(1), "/app/data/test.dat");
    EXPECT_NE(cfgFile().find("-674.11"), std::string::npos);
}

TEST_F(StartUp, EmptyConfigurationAndBareLineEndsAreReplaced) {
    for (const char* bad : {"", "\r\n\r\n\r\n", "editor", "\"", "1,2,3"}) {
        putCfg(bad);
        EXPECT_EQ(start().cfg().Kind, ShiftKind{0}) << bad;
    }
}

TEST_F(StartUp, IntegerBeyondItsTypeIsReplaced) {
    std::string text = kUsualCfg;
    text.replace(text.find("\r\n 2 \r\n"), 7, "\r\n 40000 \r\n");
    putCfg(text);
    EXPECT_EQ(start().cfg().Kind, ShiftKind{0});
}

TEST_F(StartUp, NumbersAreReadAsAStreamPartedByBlanksCommasAndLineEnds) {
    disk.putText("/app/data/a.dat", "*");
    putCfg(
        "editor\n1,2 , 3\r4 5\r\n\r\n6 7, 2\n.1 .2 .3 6377397.155 299 6 38 127 5 6 1\n"
        "6377397 299 3 0 129 0 500000 .9996  2,1 rest\n/app/data/a.dat\n");
    Program& kelvo = start();
    EXPECT_EQ(kelvo.cfg().dZ, 3);
    EXPECT_EQ(kelvo.cfg().dS, 7);
    EXPECT_EQ(kelvo.cfg().dH, 0.3);
    EXPECT_EQ(kelvo.cfg().US0, 0.9996);
    // What follows the 27th number is the line of the flags.
    EXPECT_EQ(kelvo.cfg().AddFlag, kNotAdded);
    EXPECT_EQ(kelvo.cfg().CorrFlag, Flag::On);
    EXPECT_EQ(kelvo.recent(1), "/app/data/a.dat");
}

TEST_F(StartUp, EditorWithACommaIsSplitAndItsRestTakenForANumber) {
    putCfg("my,editor" + kUsualCfg.substr(10));
    EXPECT_EQ(start().cfg().Kind, ShiftKind{0});  // "editor" is no number: replaced
}

TEST_F(StartUp, EditorLosesBlanksInFrontAndQuotes) {
    putCfg("  my editor.exe " + kUsualCfg.substr(10));
    EXPECT_EQ(start().cfg().Editor, "my editor.exe ");
    putCfg("\"C:\\a, b.exe\"" + kUsualCfg.substr(10));
    EXPECT_EQ(start().cfg().Editor, "C:\\a, b.exe");
}

TEST_F(StartUp, PathWithACommaCountsAsTwoEntries) {
    disk.putText("/app/data/b.dat", "*");
    putCfg(kUsualCfg + "/app/data/x,y.dat\r\n/app/data/b.dat\r\n");
    Program& kelvo = start();
    // Two entries that are gone, then b: count 3, so 1 and 2 change places.
    EXPECT_EQ(kelvo.recent(1), "/app/data/test.DAT");
    EXPECT_EQ(kelvo.recent(2), "");
}

TEST_F(StartUp, ListOfFiveEndsWithTheSecondAndThirdExchanged) {
    putConfiguration({"/app/data/a.dat", "/app/data/b.dat", "/app/data/c.dat", "/app/data/d.dat",
                      "/app/data/e.dat"});
    Program& kelvo = start();
    EXPECT_EQ(kelvo.recent(1), "/app/data/a.dat");
    EXPECT_EQ(kelvo.recent(2), "/app/data/c.dat");
    EXPECT_EQ(kelvo.recent(3), "/app/data/b.dat");
    EXPECT_EQ(kelvo.recent(4), "/app/data/d.dat");
    EXPECT_EQ(kelvo.recent(5), "/app/data/e.dat");
    EXPECT_EQ(disk.currentFolder(), "/app/data");
}

TEST_F(StartUp, ListOfTwoStaysAsItIs) {
    putConfiguration({"/app/data/a.dat", "/app/data/b.dat"});
    Program& kelvo = start();
    EXPECT_EQ(kelvo.recent(1), "/app/data/a.dat");
    EXPECT_EQ(kelvo.recent(2), "/app/data/b.dat");
    EXPECT_EQ(kelvo.recent(3), "");
}

TEST_F(StartUp, EmptyListTakesTheDefaultFileAndMakesIt) {
    putConfiguration({});
    Program& kelvo = start();
    EXPECT_EQ(kelvo.recent(1), "/app/data/test.DAT");
    EXPECT_TRUE(disk.has("/app/data/test.DAT"));
    EXPECT_EQ(disk.bytes("/app/data/test.DAT"), "");
}

TEST_F(StartUp, FirstEntryThatIsGoneLeavesTheDefaultInItsPlace) {
    disk.putText("/app/data/b.dat", "*");
    putCfg(kUsualCfg + "/app/data/gone.dat\r\n/app/data/b.dat\r\n");
    Program& kelvo = start();
    EXPECT_EQ(kelvo.recent(1), "/app/data/test.DAT");
    EXPECT_EQ(kelvo.recent(2), "/app/data/b.dat");
}

TEST_F(StartUp, EmptyLineIsAnEntryThatCountsItsPlace) {
    disk.putText("/app/data/b.dat", "*");
    putCfg(kUsualCfg + "\r\n/app/data/b.dat\r\n");
    Program& kelvo = start();
    EXPECT_EQ(kelvo.recent(1), "/app/data/test.DAT");
    EXPECT_EQ(kelvo.recent(2), "/app/data/b.dat");
}

TEST_F(StartUp, SixExistingEntriesDoNotGoRoundForEver) {
    putConfiguration({"/app/data/a.dat", "/app/data/b.dat", "/app/data/c.dat", "/app/data/d.dat",
                      "/app/data/e.dat", "/app/data/f.dat"});
    Program& kelvo = start();
    // The second replacement resets the count: one entry, read into the first place.
    EXPECT_EQ(kelvo.recent(1), "/app/data/test.dat");
    EXPECT_EQ(kelvo.recent(2), "/app/data/b.dat");
    EXPECT_EQ(kelvo.cfg().Kind, ShiftKind{0});
}

TEST_F(StartUp, ReplacementDoesNotResetTheCount) {
    // Three entries, the third of them past what can be read: the one of the new file is the
    // fourth, and so changes places with the third.
    disk.putText("/app/data/a.dat", "*");
    disk.putText("/app/data/b.dat", "*");
    putCfg(kUsualCfg + "/app/data/a.dat\r\n/app/data/b.dat\r\nlast\r\n");
    int reads = 0;
    disk.before = [&](const std::string& operation, const std::string& path) {
        if (operation == "openForReading" && path == "last" && ++reads == 1)
            disk.before = [&](const std::string& next, const std::string& file) {
                if (next == "read" && file == "/app/kelvo.cfg") {
                    disk.before = {};
                    raise(Fault::DiskNotReady);
                }
            };
    };
    ProgramState state;
    state.applicationFolder = "/app";
    state.CfgPath = "/app/kelvo.cfg";
    EXPECT_EQ(readConfiguration(state, disk), 4);
    EXPECT_EQ(state.RecentFiles[1], "/app/data/a.dat");
    EXPECT_EQ(state.RecentFiles[4], "/app/data/test.dat");
}

TEST_F(StartUp, ConfigurationThatCanNeverBeReadEndsInItsFault) {
    disk.before = [](const std::string& operation, const std::string& path) {
        if (operation == "openForReading" && path == "/app/kelvo.cfg")
            raise(Fault::PermissionDenied);
    };
    EXPECT_EQ(faultOf([&] { start(); }), 70);
}

TEST_F(StartUp, ListOfSevenThatAreGoneIsASubscriptFault) {
    std::string text = kUsualCfg;
    for (int i = 0; i < 7; ++i) text += "/app/data/gone.dat\r\n";
    putCfg(text);
    EXPECT_EQ(faultOf([&] { start(); }), 9);
}

TEST_F(StartUp, AddFlagTwoShowsTheAdditionAsOff) {
    std::string text = kUsualCfg;
    text.replace(text.find(" 1                "), 2, " 2");
    putCfg(text);
    Program& kelvo = start();
    EXPECT_TRUE(kelvo.on("optNotAdd"));
    EXPECT_FALSE(kelvo.on("optAdd"));
}

TEST_F(StartUp, FlagsAreRoundedHalvesToEven) {
    std::string text = kUsualCfg.substr(0, kUsualCfg.rfind(" 1       ")) + "1.5 2.5\r\n";
    putCfg(text);
    ProgramState state;
    state.applicationFolder = "/app";
    state.CfgPath = "/app/kelvo.cfg";
    readConfiguration(state, disk);
    EXPECT_EQ(state.Cfg.AddFlag, kNotAdded);
    EXPECT_EQ(state.Cfg.CorrFlag, Flag{2});
}

TEST_F(StartUp, PlacesTheWindowByTheScreen) {
    Program& kelvo = start();
    EXPECT_EQ(kelvo.at("frmKelvo").left(), 0);
    EXPECT_DOUBLE_EQ(kelvo.at("frmKelvo").width(), 0.88 * 15360);
    EXPECT_DOUBLE_EQ(kelvo.at("frmKelvo").height(), 0.88 * 11520);
    EXPECT_DOUBLE_EQ(kelvo.at("Image1").height(), 0.88 * 11520 - 700);
    EXPECT_EQ(kelvo.at("frmeFile").left(), 300);
    EXPECT_EQ(kelvo.at("frmeOne").top(), 50);
    EXPECT_EQ(kelvo.at("frmePrintMode").left(), 3000);
}

TEST_F(StartUp, HidesEveryPanel) {
    Program& kelvo = start();
    for (const char* name : {"frmeFile", "frmeOne", "frmePcfg", "pctPlot", "frmePrintMode"})
        EXPECT_FALSE(kelvo.visible(name)) << name;
    EXPECT_TRUE(kelvo.visible("Image1"));
}

TEST_F(StartUp, ShowsTheDataFileInTheCaption) {
    EXPECT_EQ(start().caption("frmKelvo"),
              "좌표변환프로그램 Kelvo Ver 3.5 Beta(2004.6.7) - /app/data/test.dat");
}

TEST_F(StartUp, NumberThatFillsItsZoneSendsTheNextOneAZoneFurther) {
    putConfiguration({});
    Program& kelvo = start();
    kelvo.type("txtdX", "123456789.12");  // 12 digits and point: 14 with sign place and blank
    kelvo.type("txtdY", "123456789.1");
    kelvo.window.Form_Close();
    EXPECT_NE(
        cfgFile().find("\r\n 123456789.12 " + std::string(14, ' ') + " 123456789.1  -674.11 \r\n"),
        std::string::npos);
}

TEST_F(StartUp, ClosingAndStartingAgainFindsTheParametersAsLeft) {
    Program& first = start();
    first.type("txtdX", "-.00012345");
    first.click("optUser");
    first.type("txtPhi0", "37.123456789");
    first.type("txta", "1e20");
    first.click("optMolod");
    first.click("optNotAdd");
    first.window.Form_Close();
    EXPECT_EQ(first.told(), Lines{"end"});
    Program& second = start();
    EXPECT_EQ(second.text("txtdX"), "-0.00012345");
    EXPECT_EQ(second.text("txtPhi0"), "37.123456789");
    EXPECT_EQ(second.text("txta"), "1E+20");
    EXPECT_TRUE(second.on("optUser"));
    EXPECT_TRUE(second.on("optMolod"));
    EXPECT_TRUE(second.on("optNotAdd"));
    // The user's TM origin made the UTM origin the user's, too.
    EXPECT_TRUE(second.on("optUUser"));
}

TEST_F(StartUp, ConfigurationThatCannotBeWrittenIsToldAndTheOldFileStands) {
    putConfiguration({"/app/data/a.dat"});
    Program& kelvo = start();
    const std::string before = disk.bytes("/app/kelvo.cfg");
    disk.before = [](const std::string& operation, const std::string& path) {
        if (operation == "replace" && path == "/app/kelvo.cfg") raise(Fault::DiskFull);
    };
    kelvo.type("txtdX", "1");
    kelvo.click("cmdOneClose");
    EXPECT_EQ(kelvo.told(), Lines{"message||none|ok|CFG파일 에러"});
    EXPECT_EQ(disk.bytes("/app/kelvo.cfg"), before);
}

TEST_F(StartUp, ClosingWithABadBoxIsAFaultAndTheProgramGoesOn) {
    Program& kelvo = start();
    kelvo.type("txtdX", "abc");
    EXPECT_EQ(faultOf([&] { kelvo.window.Form_Close(); }), 13);
    EXPECT_FALSE(kelvo.services.ended);
}

TEST_F(StartUp, TwoWindowsInOneProcessDoNotTouchEachOther) {
    putConfiguration({"/app/data/a.dat"});
    Program one(disk);
    Program two(disk);
    Main(one.window);
    Main(two.window);
    one.click("optJeju");
    one.type("txtdX", "1");
    one.click("mnuBatchEdit");
    EXPECT_EQ(two.text("txtX0"), "500000");
    EXPECT_EQ(two.text("txtdX"), "115.8");
    EXPECT_FALSE(two.visible("frmeFile"));
    two.window.state().conversion.ParaDirty = false;
    one.click("optAdd");
    EXPECT_FALSE(two.window.state().conversion.ParaDirty);
    one.window.Form_Close();
    EXPECT_FALSE(two.services.ended);
}

}  // namespace
}  // namespace kelvo
