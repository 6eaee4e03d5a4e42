#include "shell/viewer.h"

#include "shell/window_bench.h"

namespace kelvo {
namespace {

using testing::faultOf;
using testing::Lines;
using testing::Program;
using testing::WindowBench;

constexpr const char* kSaveDialog =
    "dialog|save|다른 이름으로 저장|Data Files (*.dat)|*.dat|All Files (*.*)|*.*|2|/app/data/|"
    "/app/data/a.dat";

class Viewer : public WindowBench {
protected:
    Viewer() {
        putConfiguration({"/app/data/a.dat"});
        disk.putText("/app/data/a.dat",
                     "WGS    w1   37.35332567   126.32293454   30.1756\r\nend\r\n*\r\n");
        start();
    }
};

TEST_F(Viewer, ShowsAFileWithItsPath) {
    program->at("pctPlot").setVisible(true);
    program->at("frmePcfg").setVisible(true);
    program->click("mnuBatchEdit");
    EXPECT_TRUE(program->visible("frmeFile"));
    EXPECT_TRUE(program->visible("Richtxt"));
    EXPECT_FALSE(program->visible("pctPlot"));
    EXPECT_FALSE(program->visible("frmePcfg"));
    EXPECT_FALSE(program->at("cmdShow").enabled());
    EXPECT_EQ(program->caption("frmeFile"), "/app/data/a.dat");
    EXPECT_EQ(program->text("Richtxt"), disk.text("/app/data/a.dat"));
}

TEST_F(Viewer, ShowsAnyFileThatTheWindowIsHanded) {
    disk.addFolder("/elsewhere");
    disk.putText("/elsewhere/b.out", "result\r\n");
    program->window.OpenRichText("/elsewhere/b.out");
    EXPECT_EQ(program->caption("frmeFile"), "/elsewhere/b.out");
    EXPECT_EQ(program->text("Richtxt"), disk.text("/elsewhere/b.out"));
}

TEST_F(Viewer, FileThatCannotBeLoadedIsAFaultAfterThePanelsChanged) {
    disk.files.erase("/app/data/a.dat");
    EXPECT_EQ(faultOf([&] { program->click("mnuBatchEdit"); }), 53);
    EXPECT_TRUE(program->visible("frmeFile"));
    EXPECT_EQ(program->caption("frmeFile"), "/app/data/a.dat");
}

TEST_F(Viewer, RunShowsTheNumbersAtOnceAndThePlotAClickAway) {
    program->click("mnuOneOpen");
    program->click("mnuBatchGo");
    EXPECT_FALSE(program->visible("frmeOne"));
    EXPECT_TRUE(program->visible("frmeFile"));
    EXPECT_EQ(program->caption("frmeFile"), "/app/data/a.out");
    EXPECT_EQ(program->text("Richtxt"), disk.text("/app/data/a.out"));
    EXPECT_EQ(program->caption("cmdShow"), "그림보기");
    EXPECT_TRUE(program->at("cmdShow").enabled());
    EXPECT_TRUE(program->services.screenCalls.empty());

    program->click("cmdShow");
    EXPECT_EQ(program->caption("cmdShow"), "수치보기");
    EXPECT_FALSE(program->visible("Richtxt"));
    EXPECT_TRUE(program->visible("pctPlot"));
    EXPECT_TRUE(program->visible("frmePcfg"));
    EXPECT_EQ(program->caption("frmeFile"), "/app/data/a.out");
    EXPECT_FALSE(program->services.screenCalls.empty());

    program->click("cmdShow");
    EXPECT_TRUE(program->visible("Richtxt"));
    EXPECT_FALSE(program->visible("pctPlot"));
    EXPECT_EQ(program->caption("cmdShow"), "그림보기");
    EXPECT_TRUE(program->at("cmdShow").enabled());
}

TEST_F(Viewer, AResultThatIsGoneLeavesTheButtonForTheNumbers) {
    program->click("mnuBatchGo");
    program->click("cmdShow");
    disk.files.erase("/app/data/a.out");
    EXPECT_EQ(faultOf([&] { program->click("cmdShow"); }), 53);
    EXPECT_EQ(program->caption("cmdShow"), "수치보기");
}

TEST_F(Viewer, AnyOtherFileDisablesTheWayToThePlot) {
    program->click("mnuBatchGo");
    program->click("mnuBatchEdit");
    EXPECT_FALSE(program->at("cmdShow").enabled());
    EXPECT_EQ(program->caption("cmdShow"), "그림보기");
}

TEST_F(Viewer, ShowingWithoutAResultFileIsAFault) {
    EXPECT_EQ(faultOf([&] { program->click("cmdShow"); }), 53);
}

TEST_F(Viewer, RunTellsWhenItsResultCannotBeShown) {
    disk.before = [](const std::string& operation, const std::string& path) {
        if (operation == "openForReading" && path == "/app/data/a.out")
            raise(Fault::PermissionDenied);
    };
    program->click("mnuBatchGo");
    EXPECT_EQ(program->told(), Lines{"message||none|ok|파일을 보여주는데 에러가 발생하였습니다."});
    EXPECT_EQ(program->window.state().conversion.points.PointCount, 1);
}

TEST_F(Viewer, CloseLosesTheEditsWithoutAQuestion) {
    program->click("mnuBatchEdit");
    const std::string before = disk.text("/app/data/a.dat");
    program->type("Richtxt", "edited");
    program->click("cmdClose");
    EXPECT_FALSE(program->visible("frmeFile"));
    EXPECT_EQ(disk.text("/app/data/a.dat"), before);
    EXPECT_TRUE(program->told().empty());
}

TEST_F(Viewer, SaveWritesTheKnownPointsWhenTheyAreShown) {
    disk.putText("/app/kelvo.cor", "old");
    program->click("mnuCorrEdit");
    program->type("Richtxt", "P1 37.3\n");
    program->click("cmdSave");
    EXPECT_EQ(disk.bytes("/app/kelvo.cor"), "P1 37.3\r\n");
    EXPECT_FALSE(program->visible("frmeFile"));
}

TEST_F(Viewer, SaveWithNothingLoadedIsAFault) {
    EXPECT_EQ(faultOf([&] { program->click("cmdSave"); }), 76);
}

TEST_F(Viewer, SaveBringsBackWhatThePrintModePanelTookAway) {
    program->click("mnuBatchEdit");
    program->click("mnuPrintMode");
    program->click("cmdModeCancel");
    program->click("cmdSave");
    EXPECT_TRUE(program->visible("frmeFile"));
}

TEST_F(Viewer, SaveAsTakesAnyNameWithoutAQuestionAndShowsIt) {
    disk.putText("/app/copy.txt", "there already");
    program->click("mnuBatchEdit");
    program->type("Richtxt", "edited");
    program->queueDialog("/app/copy.txt");
    program->click("cmdSaveAs");
    EXPECT_EQ(program->told(), Lines{kSaveDialog});
    EXPECT_EQ(disk.text("/app/copy.txt"), "edited");
    EXPECT_EQ(program->caption("frmeFile"), "/app/copy.txt");
    EXPECT_EQ(program->recent(1), "/app/data/a.dat");
}

TEST_F(Viewer, SaveAsPutsOnlyADataFileIntoTheRecentList) {
    program->click("mnuBatchEdit");
    program->queueDialog("/app/data/new.Dat");
    program->click("cmdSaveAs");
    EXPECT_EQ(program->recent(1), "/app/data/new.Dat");
    EXPECT_EQ(program->recent(2), "/app/data/a.dat");
}

TEST_F(Viewer, CancelledSaveAsEndsWithoutAWord) {
    program->click("mnuBatchEdit");
    program->type("Richtxt", "edited");
    program->click("cmdSaveAs");
    EXPECT_EQ(program->told(), Lines{kSaveDialog});
    EXPECT_EQ(program->text("Richtxt"), "edited");
}

TEST_F(Viewer, BytesThatBelongToNoCharacterSurviveLoadAndSave) {
    const std::string bytes = std::string("가\xC9 ", 5) + "\x80\xFF\xB0\r\nA\xFE\r\n";
    disk.putBytes("/app/data/a.dat", bytes);
    program->click("mnuBatchEdit");
    program->click("cmdSave");
    EXPECT_EQ(disk.bytes("/app/data/a.dat"), bytes);
}

TEST_F(Viewer, LineEndsBecomeCrLfWhateverTheFileHad) {
    disk.putBytes("/app/data/a.dat", "a\nb\rc\r\n");
    program->click("mnuBatchEdit");
    EXPECT_EQ(program->text("Richtxt"), "a\r\nb\r\nc\r\n");
    program->click("cmdSave");
    EXPECT_EQ(disk.bytes("/app/data/a.dat"), "a\r\nb\r\nc\r\n");
}

TEST_F(Viewer, FullDiskWhileSavingLeavesTheOldFileWholeAndIsReported) {
    program->click("mnuBatchEdit");
    const std::string before = disk.bytes("/app/data/a.dat");
    program->type("Richtxt", "edited");
    disk.before = [](const std::string& operation, const std::string&) {
        if (operation == "replace") raise(Fault::DiskFull);
    };
    EXPECT_EQ(faultOf([&] { program->click("cmdSave"); }), 61);
    program->queueDialog("/app/data/a.dat");
    EXPECT_EQ(faultOf([&] { program->click("cmdSaveAs"); }), 61);
    EXPECT_EQ(disk.bytes("/app/data/a.dat"), before);
    EXPECT_TRUE(program->visible("frmeFile"));
}

TEST_F(Viewer, FolderThatMayNotBeWrittenIsReportedAndLeavesTheOldFileWhole) {
    program->click("mnuBatchEdit");
    const std::string before = disk.bytes("/app/data/a.dat");
    program->type("Richtxt", "edited");
    disk.before = [](const std::string& operation, const std::string&) {
        if (operation == "replace") raise(Fault::PermissionDenied);
    };
    EXPECT_EQ(faultOf([&] { program->click("cmdSave"); }), 70);
    EXPECT_EQ(disk.bytes("/app/data/a.dat"), before);
}

TEST_F(Viewer, ATextThatNoScreenCanUseIsAFault) {
    start();
    const std::pair<std::string, int> texts[] = {
        {std::string(kLargestOnView + 1, '\n'), 6},
        {std::string(kMostLinesOnView + 1, '\n'), 6},
        {std::string(kMostLinesOnView, '\n'), 0},
        {"a\n" + std::string(kLongestLineOnView + 1, 'x') + "\nb\n", 6},
        {"a\n" + std::string(kLongestLineOnView, 'x') + "\nb\n", 0},
    };
    for (const auto& [text, fault] : texts) {
        disk.putBytes("/app/kelvo.det", text);
        EXPECT_EQ(testing::faultOf([&] { program->click("mnuCorrShow"); }), fault) << text.size();
    }
}

}  // namespace
}  // namespace kelvo
