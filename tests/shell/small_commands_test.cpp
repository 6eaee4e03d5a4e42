#include "shell/small_commands.h"

#include "shell/window_bench.h"

namespace kelvo {
namespace {

using testing::faultOf;
using testing::Lines;
using testing::Program;
using testing::WindowBench;

const std::string kEditorDialog =
    "dialog|open|Editor Program 설정|EXE files (*.exe)|*.exe|All Files (*.*)|*.*|1||";

class SmallCommand : public WindowBench {
protected:
    SmallCommand() {
        putConfiguration({"/app/data/a.dat"});
        start();
    }
};

TEST_F(SmallCommand, EditsTheDataFileAndTheKnownPointsInTheViewer) {
    program->click("mnuBatchEdit");
    EXPECT_EQ(program->caption("frmeFile"), "/app/data/a.dat");
    disk.putText("/app/kelvo.cor", "P1\r\n");
    program->click("mnuCorrEdit");
    EXPECT_EQ(program->text("Richtxt"), "P1\r\n");
}

TEST_F(SmallCommand, MissingKnownPointsAreAFault) {
    EXPECT_EQ(faultOf([&] { program->click("mnuCorrEdit"); }), 53);
}

TEST_F(SmallCommand, DetailShowsAnEmptyFileAfterARunWithoutCorrection) {
    program->click("mnuBatchGo");
    program->click("mnuCorrShow");
    EXPECT_EQ(program->caption("frmeFile"), "/app/kelvo.det");
    EXPECT_EQ(program->text("Richtxt"), "");
}

TEST_F(SmallCommand, DetailIsAFaultWhenNoRunHasMadeIt) {
    EXPECT_EQ(faultOf([&] { program->click("mnuCorrShow"); }), 53);
}

TEST_F(SmallCommand, OpensThePanelInPlaceOfTheViewer) {
    program->click("mnuBatchEdit");
    program->click("mnuOneOpen");
    EXPECT_TRUE(program->visible("frmeOne"));
    EXPECT_FALSE(program->visible("frmeFile"));
}

TEST_F(SmallCommand, EditorThatExistsIsTakenWithoutAMessage) {
    disk.putText("/app/ed.exe", "");
    program->queueDialog("/app/ed.exe");
    program->click("mnuEditorSelect");
    EXPECT_EQ(program->told(), Lines{kEditorDialog + "editor.exe"});
    EXPECT_EQ(program->caption("mnuEditorSelect"), "Editor Program 설정(/app/ed.exe)");
    program->window.Form_Close();
    EXPECT_EQ(disk.text("/app/kelvo.cfg").substr(0, 13), "/app/ed.exe\r\n");
}

TEST_F(SmallCommand, CancelledEditorDialogShowsTheStoredPath) {
    program->click("mnuEditorSelect");
    EXPECT_EQ(program->caption("mnuEditorSelect"), "Editor Program 설정(editor.exe)");
}

TEST_F(SmallCommand, EditorThatIsMissingStaysStoredWhenTheUserLeavesItAtThat) {
    const std::string question =
        "message||warning|okcancel|파일 /app/no.exe 이 없습니다.\\r\\n다시 설정하십시오";
    program->queueDialog("/app/no.exe");
    program->queueAnswer(Answer::Ok);
    program->queueDialog("/app/no.exe");
    program->queueAnswer(Answer::Cancel);
    program->click("mnuEditorSelect");
    EXPECT_EQ(program->told(), (Lines{kEditorDialog + "editor.exe", question,
                                      kEditorDialog + "/app/no.exe", question}));
    EXPECT_EQ(program->cfg().Editor, "/app/no.exe");
    EXPECT_EQ(program->caption("mnuEditorSelect"), "Editor Program 설정(/app/no.exe)");
}

TEST_F(SmallCommand, EditorDialogKeepsTheFolderOfTheLastUse) {
    program->file(2);
    (void)program->told();
    program->click("mnuEditorSelect");
    EXPECT_EQ(program->told(),
              Lines{"dialog|open|Editor Program 설정|EXE files (*.exe)|*.exe|All Files "
                    "(*.*)|*.*|1|/app/data/|editor.exe"});
}

TEST_F(SmallCommand, HelpIsShownInTheViewer) {
    disk.putText("/app/KelvoHelp.txt", "도움말\r\n");
    program->click("mnuHelpFile");
    EXPECT_EQ(program->text("Richtxt"), "도움말\r\n");
}

TEST_F(SmallCommand, MissingHelpIsToldOnceAndLeavesThePanelsChanged) {
    program->click("mnuHelpFile");
    EXPECT_EQ(program->told(),
              Lines{"message||none|ok|도움말 File Kelvohelp.txt를 열수 없습니다."});
    EXPECT_TRUE(program->visible("frmeFile"));
    EXPECT_EQ(program->caption("frmeFile"), "/app/KelvoHelp.txt");
}

TEST_F(SmallCommand, AboutIsOneBoxOfFiveParagraphs) {
    program->click("mnuAbout");
    const Lines told = program->told();
    ASSERT_EQ(told.size(), 1U);
    EXPECT_EQ(told[0].rfind("message||none|ok|Kelvo", 0), 0U);
    std::size_t breaks = 0;
    for (std::size_t at = told[0].find("\\r\\n"); at != std::string::npos;
         at = told[0].find("\\r\\n", at + 1))
        ++breaks;
    EXPECT_EQ(breaks, 4U);
}

}  // namespace
}  // namespace kelvo
