#include "shell/file_menu.h"

#include "shell/window_bench.h"

namespace kelvo {
namespace {

using testing::Lines;
using testing::Program;
using testing::WindowBench;

constexpr int kNew = 0;
constexpr int kOpen = 2;
constexpr int kSave = 4;
constexpr int kSaveAs = 5;

constexpr const char* kNewDialog =
    "dialog|open|새 파일|Data Files (*.dat)|*.dat|All Files (*.*)|*.*|1|/app/data/|.dat";
constexpr const char* kOpenDialog =
    "dialog|open|열기|Data Files (*.dat)|*.dat|All Files (*.*)|*.*|1|/app/data/|*.dat";
constexpr const char* kSaveDialog =
    "dialog|save|다른 이름으로 저장|Data Files (*.dat)|*.dat|All Files (*.*)|*.*|1|/app/data/|"
    "a.dat";
constexpr const char* kExtension = "message||none|ok|확장자가 'dat'인 파일을 선택 하십시오";
constexpr const char* kAlreadyOpen =
    "message|Kelvo Program|information|ok|파일이 이미 열려 있습니다.";

class FileCommands : public WindowBench {
protected:
    FileCommands() {
        putConfiguration({"/app/data/a.dat", "/app/data/b.dat"});
        start();
        disk.files.erase("/app/kelvo.cfg");
    }
    // Every command that wasn't cancelled stores the configuration.
    [[nodiscard]] bool stored() { return disk.has("/app/kelvo.cfg"); }
};

TEST_F(FileCommands, NewFileGetsTheSampleAndIsShown) {
    program->queueDialog("/app/data/new.dat");
    program->file(kNew);
    EXPECT_EQ(program->told(), Lines{kNewDialog});
    EXPECT_EQ(program->recent(1), "/app/data/new.dat");
    EXPECT_NE(disk.text("/app/data/new.dat").find("*"), std::string::npos);
    EXPECT_EQ(program->text("Richtxt"), disk.text("/app/data/new.dat"));
    EXPECT_EQ(program->caption("frmeFile"), "/app/data/new.dat");
    EXPECT_TRUE(program->visible("frmeFile"));
    EXPECT_TRUE(stored());
}

TEST_F(FileCommands, NewFileOfTheNameInUseBeepsAndEnds) {
    program->queueDialog("/APP/data/A.dat");
    program->file(kNew);
    EXPECT_EQ(program->told(), (Lines{kNewDialog, "beep", kAlreadyOpen}));
    EXPECT_FALSE(program->visible("frmeFile"));
    EXPECT_FALSE(stored());
}

TEST_F(FileCommands, NewFileAsksBeforeItReplacesOne) {
    const std::string question =
        "message||question|yesnocancel|파일 /app/data/b.dat 이 이미 있습니다.\\r\\n"
        "새로 만들겠습니까 ? ";
    program->queueDialog("/app/data/b.dat");
    program->queueAnswer(Answer::No);
    program->queueDialog("/app/data/b.dat");
    program->queueAnswer(Answer::Cancel);
    program->file(kNew);
    EXPECT_EQ(program->told(), (Lines{kNewDialog, question, kNewDialog, question}));
    EXPECT_EQ(disk.text("/app/data/b.dat"), "* /app/data/b.dat\r\n");
    EXPECT_FALSE(stored());

    program->queueDialog("/app/data/b.dat");
    program->queueAnswer(Answer::Yes);
    program->file(kNew);
    EXPECT_NE(disk.text("/app/data/b.dat"), "* /app/data/b.dat\r\n");
    EXPECT_TRUE(stored());
}

TEST_F(FileCommands, NamesWithoutTheEndingComeBack) {
    for (const char* name : {"/app/data/new", "/app/data/new.txt", "/app/data/new.dat1", "at", ""})
        program->queueDialog(name);
    program->file(kNew);
    EXPECT_EQ(program->told(),
              (Lines{kNewDialog, kExtension, kNewDialog, kExtension, kNewDialog, kExtension,
                     kNewDialog, kExtension, kNewDialog, kExtension, kNewDialog}));
}

TEST_F(FileCommands, EndingPassesInAnyCase) {
    program->queueDialog("/app/data/new.DaT");
    program->file(kNew);
    EXPECT_EQ(program->told(), Lines{kNewDialog});
    EXPECT_EQ(program->recent(1), "/app/data/new.DaT");
}

TEST_F(FileCommands, OpenShowsTheFileAndPutsItOnTop) {
    program->queueDialog("/app/data/b.dat");
    program->file(kOpen);
    EXPECT_EQ(program->told(), Lines{kOpenDialog});
    EXPECT_EQ(program->recent(1), "/app/data/b.dat");
    EXPECT_EQ(program->recent(2), "/app/data/a.dat");
    EXPECT_EQ(program->text("Richtxt"), "* /app/data/b.dat\r\n");
    EXPECT_TRUE(stored());
}

TEST_F(FileCommands, OpenOfTheFileInUseTellsAndOpensIt) {
    program->queueDialog("/app/data/a.dat");
    program->file(kOpen);
    EXPECT_EQ(program->told(), (Lines{kOpenDialog, kAlreadyOpen}));  // no beep
    EXPECT_EQ(program->text("Richtxt"), "* /app/data/a.dat\r\n");
}

TEST_F(FileCommands, OpenOfANameInOtherCaseTellsNothing) {
    disk.putText("/app/data/A.dat", "*");
    program->queueDialog("/app/data/A.dat");
    program->file(kOpen);
    EXPECT_EQ(program->told(), Lines{kOpenDialog});
}

TEST_F(FileCommands, OpenOfAMissingFileAsksForAnother) {
    const std::string question =
        "message||warning|okcancel|파일 /app/data/x.dat 이 없습니다.\\r\\n새로 선택하십시오 ";
    program->queueDialog("/app/data/x.dat");
    program->queueAnswer(Answer::Ok);
    program->queueDialog("/app/data/x.dat");
    program->queueAnswer(Answer::Cancel);
    program->file(kOpen);
    EXPECT_EQ(program->told(), (Lines{kOpenDialog, question, kOpenDialog, question}));
    EXPECT_FALSE(stored());
}

TEST_F(FileCommands, OpenOfAFolderGoesRound) {
    disk.addFolder("/app/data/folder.dat");
    program->queueDialog("/app/data/folder.dat");
    program->file(kOpen);
    EXPECT_EQ(program->told(), (Lines{kOpenDialog, kOpenDialog}));
}

TEST_F(FileCommands, CancelLeavesListViewerAndCaptionButHidesThePanel) {
    program->click("mnuOneOpen");
    const std::string caption = program->caption("frmKelvo");
    for (const int index : {kNew, kOpen, kSaveAs}) {
        program->at("frmeOne").setVisible(true);
        program->file(index);
        EXPECT_FALSE(program->visible("frmeOne")) << index;
        EXPECT_FALSE(program->visible("frmeFile")) << index;
        EXPECT_EQ(program->recent(1), "/app/data/a.dat") << index;
        EXPECT_EQ(program->caption("frmKelvo"), caption) << index;
        EXPECT_FALSE(stored()) << index;
    }
}

TEST_F(FileCommands, SavePutsTheTextIntoTheDataFile) {
    disk.putText("/app/kelvo.cor", "known\r\n");
    program->click("mnuCorrEdit");
    program->type("Richtxt", "새 자료\r\n");
    program->file(kSave);
    EXPECT_EQ(disk.text("/app/data/a.dat"), "새 자료\r\n");
    EXPECT_EQ(disk.text("/app/kelvo.cor"), "known\r\n");
    EXPECT_FALSE(program->visible("Richtxt"));
    EXPECT_TRUE(program->visible("frmeFile"));
    EXPECT_TRUE(stored());
    // The box keeps the name from now on.
    program->type("Richtxt", "again\r\n");
    program->click("cmdSave");
    EXPECT_EQ(disk.text("/app/data/a.dat"), "again\r\n");
    program->click("mnuBatchEdit");
    EXPECT_TRUE(program->visible("Richtxt"));
}

TEST_F(FileCommands, SaveAsCopiesTheFileOnDiskAndLosesWhatWasTyped) {
    program->click("mnuBatchEdit");
    program->type("Richtxt", "typed and not saved");
    program->queueDialog("/app/data/copy.dat");
    program->file(kSaveAs);
    EXPECT_EQ(program->told(), Lines{kSaveDialog});
    EXPECT_EQ(disk.text("/app/data/copy.dat"), "* /app/data/a.dat\r\n");
    EXPECT_EQ(program->text("Richtxt"), "* /app/data/a.dat\r\n");
    EXPECT_EQ(program->recent(1), "/app/data/copy.dat");
    EXPECT_TRUE(stored());
}

TEST_F(FileCommands, SaveAsAsksBeforeItReplacesAFile) {
    const std::string question =
        "message||none|yesnocancel|파일 /app/data/b.dat 이 있습니다.\\r\\n"
        "덧 씌워서 저장하시겠습니까 ? ";
    program->queueDialog("/app/data/b.dat");
    program->queueAnswer(Answer::No);
    program->queueDialog("/app/data/b.dat");
    program->queueAnswer(Answer::Yes);
    program->file(kSaveAs);
    EXPECT_EQ(program->told(), (Lines{kSaveDialog, question, kSaveDialog, question}));
    EXPECT_EQ(disk.text("/app/data/b.dat"), "* /app/data/a.dat\r\n");
}

TEST_F(FileCommands, RecentFileIsShownAndComesOnTop) {
    program->file(8);
    EXPECT_EQ(program->recent(1), "/app/data/b.dat");
    EXPECT_EQ(program->text("Richtxt"), "* /app/data/b.dat\r\n");
    EXPECT_TRUE(stored());
}

TEST_F(FileCommands, RecentFileThatIsGoneIsAskedForAgainAndAgain) {
    const std::string question =
        "message||none|yesnocancel|파일 /app/data/b.dat 이 없습니다.\\r\\n새로 만들겠습니까 ? ";
    disk.files.erase("/app/data/b.dat");
    program->queueAnswer(Answer::No);
    program->queueAnswer(Answer::No);
    program->file(8);
    EXPECT_EQ(program->told(), (Lines{question, question, question}));
    EXPECT_EQ(program->recent(1), "/app/data/a.dat");
    EXPECT_FALSE(stored());

    program->queueAnswer(Answer::Yes);
    program->file(8);
    EXPECT_EQ(program->recent(1), "/app/data/b.dat");
    EXPECT_TRUE(disk.has("/app/data/b.dat"));
    EXPECT_EQ(program->text("Richtxt"), "");
    EXPECT_TRUE(stored());
}

TEST_F(FileCommands, RecentEntryThatIsAFolderLeavesAsIfCancelled) {
    disk.files.erase("/app/data/b.dat");
    disk.addFolder("/app/data/b.dat");
    program->file(8);
    EXPECT_TRUE(program->told().empty());
    EXPECT_EQ(program->recent(1), "/app/data/a.dat");
    EXPECT_FALSE(stored());
}

TEST_F(FileCommands, SeparatorsOnlyHideThePanelAndStore) {
    for (const int index : {1, 3, 6, 9}) {
        disk.files.erase("/app/kelvo.cfg");
        program->at("frmeOne").setVisible(true);
        program->file(index);
        EXPECT_FALSE(program->visible("frmeOne")) << index;
        EXPECT_TRUE(stored()) << index;
    }
    EXPECT_TRUE(program->told().empty());
}

TEST_F(FileCommands, EndRunsTheClosingSequence) {
    program->type("txtdX", "42");
    program->file(10);
    EXPECT_EQ(program->told(), Lines{"end"});
    EXPECT_NE(disk.text("/app/kelvo.cfg").find(" 42 "), std::string::npos);
}

TEST_F(FileCommands, EndWithABadBoxEndsTheCommandWithoutAWord) {
    program->type("txtdX", "abc");
    program->file(10);
    EXPECT_TRUE(program->told().empty());
    EXPECT_FALSE(program->services.ended);
    EXPECT_FALSE(stored());
}

TEST_F(FileCommands, SaveThatFailsEndsWithoutAWordAndLeavesTheOldFileWhole) {
    program->click("mnuBatchEdit");
    program->type("Richtxt", "new");
    disk.before = [](const std::string& operation, const std::string&) {
        if (operation == "replace") raise(Fault::DiskFull);
    };
    program->file(kSave);
    EXPECT_TRUE(program->told().empty());
    EXPECT_EQ(disk.text("/app/data/a.dat"), "* /app/data/a.dat\r\n");
    EXPECT_FALSE(stored());
}

TEST_F(FileCommands, CopyThatFailsIsTold) {
    disk.before = [](const std::string& operation, const std::string& path) {
        if (operation == "replace" && path == "/app/data/copy.dat") raise(Fault::DiskFull);
    };
    program->queueDialog("/app/data/copy.dat");
    program->file(kSaveAs);
    EXPECT_EQ(program->told(), (Lines{kSaveDialog, "message||none|ok|파일 복사에 실패했습니다"}));
    EXPECT_EQ(program->recent(1), "/app/data/a.dat");  // the copy can't be shown
}

TEST_F(FileCommands, CopyThatFailsLeavesTheFileThatWasThere) {
    disk.before = [](const std::string& operation, const std::string& path) {
        if (operation == "replace" && path == "/app/data/b.dat") raise(Fault::DiskFull);
    };
    program->queueDialog("/app/data/b.dat");
    program->queueAnswer(Answer::Yes);
    program->file(kSaveAs);
    EXPECT_EQ(disk.text("/app/data/b.dat"), "* /app/data/b.dat\r\n");
}

TEST_F(FileCommands, SaveItemsStartEnabled) {
    EXPECT_TRUE(program->at("mnuFileItem").entries().at(kSave).enabled);
    EXPECT_TRUE(program->at("mnuFileItem").entries().at(kSaveAs).enabled);
}

}  // namespace
}  // namespace kelvo
