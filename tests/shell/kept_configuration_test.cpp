// What a start may replace, and what it keeps before it does: the settings and data of a user are
// never gone.
#include "shell/configuration.h"

#include "batch/sample_data.h"
#include "shell/window_bench.h"

namespace kelvo {
namespace {

using testing::faultOf;
using testing::kUsualCfg;
using testing::Program;
using testing::WindowBench;

class KeptConfiguration : public WindowBench {
protected:
    void close() {
        Control& menu = program->at("mnuFileItem");
        menu.clickEntry(menu.highestIndex());
    }
    void open(const std::string& path) {
        disk.putText(path, "* " + path + "\r\n");
        program->queueDialog(path);
        program->file(2);
    }
    [[nodiscard]] std::string cfg() { return disk.text("/app/kelvo.cfg"); }
};

TEST_F(KeptConfiguration, APathWithACommaComesBack) {
    putConfiguration({"/app/data/a.dat"});
    start();
    program->type("txtdX", "99.5");
    disk.addFolder("/job");
    disk.setCurrentFolder("/job");
    const std::string names[] = {"/job/x,y.dat", "/job/a, b, c.dat", " lead.dat", "\"q\".dat",
                                 "\"a b.dat"};
    for (std::size_t i = 1; i <= 5; ++i) {
        const std::string& name = names[i - 1];
        disk.putText(name.front() == '/' ? name : "/job/" + name, "*\r\n");
        program->window.state().RecentFiles[i] = name;
    }
    close();
    EXPECT_NE(cfg().find("\r\n\"/job/x,y.dat\"\r\n"), std::string::npos) << cfg();
    EXPECT_NE(cfg().find("\r\n\" lead.dat\"\r\n"), std::string::npos) << cfg();
    start();
    EXPECT_EQ(program->cfg().dX, 99.5);
    std::set<std::string> found;
    for (std::size_t i = 1; i <= 5; ++i) found.insert(program->recent(i));
    EXPECT_EQ(found, std::set<std::string>(std::begin(names), std::end(names)));
    EXPECT_FALSE(disk.has("/app/kelvo.cfg.old"));
}

TEST_F(KeptConfiguration, APathWithCommaAndQuoteStandsBare) {
    putConfiguration({"/app/data/a.dat"});
    start();
    open("/app/data/x,\"y.dat");
    EXPECT_NE(cfg().find("\r\n/app/data/x,\"y.dat\r\n"), std::string::npos) << cfg();
}

TEST_F(KeptConfiguration, AnEditorWithACommaComesBack) {
    putConfiguration({"/app/data/a.dat"});
    start();
    disk.putText("/app/data/my,editor", "");
    program->queueDialog("/app/data/my,editor");
    program->click("mnuEditorSelect");
    close();
    EXPECT_TRUE(cfg().starts_with("\"/app/data/my,editor\"\r\n")) << cfg();
    EXPECT_EQ(start().cfg().Editor, "/app/data/my,editor");
}

TEST_F(KeptConfiguration, ANameOutsideOfTheCodePageComesBack) {
    putConfiguration({"/app/data/a.dat"});
    for (const std::string name : {"/app/data/é.dat", "/app/data/\xff\xfe.dat", "/app/data/😀,.dat",
                                   "/app/data/two\r\nlines.dat"}) {
        start();
        open(name);
        close();
        EXPECT_EQ(cfg().find('?'), std::string::npos) << cfg();
        start();
        EXPECT_EQ(program->recent(1), name);
    }
}

TEST_F(KeptConfiguration, ARecoveryKeepsWhatItReplaces) {
    const std::string mine = kUsualCfg.substr(0, 60) + "ten thousand\r\n";
    disk.putText("/app/kelvo.cfg", mine);
    disk.putText("/app/data/test.dat", "* a day of work\r\n");
    start();
    EXPECT_EQ(disk.text("/app/kelvo.cfg.old"), mine);
    EXPECT_EQ(disk.text("/app/data/test.dat.old"), "* a day of work\r\n");
    EXPECT_EQ(disk.text("/app/data/test.dat"), sampleDataText());
}

TEST_F(KeptConfiguration, AFirstStartKeepsNothingSinceThereIsNothing) {
    start();
    EXPECT_EQ(disk.files.count("/app/kelvo.cfg.old"), 0U);
    EXPECT_EQ(disk.files.count("/app/data/test.dat.old"), 0U);
    disk.files.erase("/app/kelvo.cfg");
    start();
    EXPECT_EQ(disk.files.count("/app/data/test.dat.old"), 0U) << "it is the sample";
}

TEST_F(KeptConfiguration, ASecondRecoveryKeepsBoth) {
    disk.putText("/app/kelvo.cfg", "first");
    disk.putText("/app/data/test.dat", "* first\r\n");
    start();
    disk.putText("/app/kelvo.cfg", "second");
    disk.putText("/app/data/test.dat", "* second\r\n");
    start();
    EXPECT_EQ(disk.text("/app/kelvo.cfg.old"), "second");
    EXPECT_EQ(disk.text("/app/kelvo.cfg.old2"), "first");
    EXPECT_EQ(disk.text("/app/data/test.dat.old"), "* second\r\n");
    EXPECT_EQ(disk.text("/app/data/test.dat.old2"), "* first\r\n");
}

TEST_F(KeptConfiguration, TheSameRecoveryTwiceKeepsItOnce) {
    for (int times = 0; times < 2; ++times) {
        disk.putText("/app/kelvo.cfg", "broken");
        start();
    }
    EXPECT_TRUE(disk.has("/app/kelvo.cfg.old"));
    EXPECT_FALSE(disk.has("/app/kelvo.cfg.old2"));
}

TEST_F(KeptConfiguration, AFileThatCannotBeReadIsKeptByItsName) {
    disk.putText("/app/kelvo.cfg", kUsualCfg);
    int reads = 0;
    disk.before = [&](const std::string& operation, const std::string& path) {
        // The medium fails for as long as these bytes are in question.
        if (operation == "read" && path == "/app/kelvo.cfg" && ++reads <= 2)
            raise(Fault::DiskNotReady);
    };
    start();
    EXPECT_EQ(disk.text("/app/kelvo.cfg.old"), kUsualCfg);
}

TEST_F(KeptConfiguration, WhereNothingCanBeKeptNothingIsReplaced) {
    disk.putText("/app/kelvo.cfg", "broken");
    disk.putText("/app/data/test.dat", "* a day of work\r\n");
    disk.before = [](const std::string& operation, const std::string& path) {
        if (path.find(".old") != std::string::npos || operation == "rename")
            if (operation != "openForReading") raise(Fault::DiskFull);
    };
    EXPECT_EQ(faultOf([&] { start(); }), 61);
    EXPECT_EQ(disk.text("/app/kelvo.cfg"), "broken");
    EXPECT_EQ(disk.text("/app/data/test.dat"), "* a day of work\r\n");
}

TEST_F(KeptConfiguration, AFileThatIsOpenElsewhereIsTriedAgain) {
    putConfiguration({"/app/data/a.dat"});
    const std::string before = cfg();
    int tries = 0;
    disk.before = [&](const std::string& operation, const std::string& path) {
        if (operation == "openForReading" && path == "/app/kelvo.cfg" && ++tries <= 3)
            raise(Fault::FileAlreadyOpen);
    };
    start();
    EXPECT_EQ(cfg(), before);
    EXPECT_EQ(program->cfg().Kind, ShiftKind::Bursa);
}

TEST_F(KeptConfiguration, AFileThatStaysOpenElsewhereDoesNotHoldTheStartForEver) {
    putConfiguration({"/app/data/a.dat"});
    disk.before = [](const std::string& operation, const std::string& path) {
        if (operation == "openForReading" && path == "/app/kelvo.cfg")
            raise(Fault::FileAlreadyOpen);
    };
    EXPECT_EQ(faultOf([&] { start(); }), 55);
}

TEST_F(KeptConfiguration, AnOverlongListNamesItsFile) {
    std::string text = kUsualCfg;
    for (int i = 0; i < 7; ++i) text += "/app/data/gone.dat\r\n";
    disk.putText("/app/kelvo.cfg", text);
    try {
        start();
        FAIL() << "no fault";
    } catch (const RuntimeFault& fault) {
        EXPECT_EQ(fault.number(), 9);
        EXPECT_NE(fault.text().find("kelvo.cfg"), std::string::npos) << fault.text();
    }
}

TEST_F(KeptConfiguration, TheDefaultEntryTakesTheNameThatIsThere) {
    if (kFileNamesIgnoreCase) GTEST_SKIP() << "both are one name";
    disk.putText("/app/data/test.dat", "* mine\r\n");
    putConfiguration({});
    EXPECT_EQ(start().recent(1), "/app/data/test.dat");
    EXPECT_FALSE(disk.has("/app/data/test.DAT"));
    disk.putText("/app/data/test.DAT", "* older\r\n");
    putConfiguration({});
    EXPECT_EQ(start().recent(1), "/app/data/test.DAT");
}

TEST_F(KeptConfiguration, DamagedPlotSettingsAreKept) {
    disk.putText("/app/plot.cfg", " 1 \r\n 1 \r\nten\r\n");
    start();
    EXPECT_EQ(disk.text("/app/plot.cfg.old"), " 1 \r\n 1 \r\nten\r\n");
}

}  // namespace
}  // namespace kelvo
