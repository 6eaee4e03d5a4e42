#include "shell/printing.h"

#include "shell/window_bench.h"

namespace kelvo {
namespace {

using testing::faultOf;
using testing::Lines;
using testing::Program;
using testing::WindowBench;

class Prints : public WindowBench {
protected:
    Prints() {
        putConfiguration({"/app/data/a.dat"});
        disk.putText("/app/data/a.dat",
                     "WGS    w1   37.35332567   126.32293454   30.1756\r\nend\r\n*\r\n");
        start();
    }
    void setFastPrint(const char* margin) {
        program->click("mnuPrintMode");
        program->click("optFast");
        program->type("txtLmr", margin);
        program->click("cmdModeSave");
    }
};

TEST_F(Prints, ModePanelTakesThePlaceOfTheOthersAndBringsThemBack) {
    program->click("mnuOneOpen");
    program->click("mnuPrintMode");
    EXPECT_TRUE(program->visible("frmePrintMode"));
    EXPECT_FALSE(program->visible("frmeOne"));
    EXPECT_EQ(program->text("txtLmr"), "0");
    program->click("cmdModeCancel");
    EXPECT_FALSE(program->visible("frmePrintMode"));
    EXPECT_TRUE(program->visible("frmeOne"));
    EXPECT_FALSE(program->visible("frmeFile"));
}

TEST_F(Prints, ModePanelStandsInTheMiddleALittleAbove) {
    program->click("cmdPrintMode");
    EXPECT_DOUBLE_EQ(program->at("frmePrintMode").left(), (0.88 * 15360 - 6000) / 2);
    EXPECT_DOUBLE_EQ(program->at("frmePrintMode").top(), (0.88 * 11520 - 4500) / 2 - 300);
}

TEST_F(Prints, ListsStartWithTheirFirstChoice) {
    EXPECT_EQ(program->at("cmbFont").selectedItem(), "굴림체");
    EXPECT_EQ(program->at("cmbFontStyle").selectedItem(), "보통");
    EXPECT_EQ(program->at("cmbSize").selectedItem(), "10");
    EXPECT_EQ(program->at("cmbFont").items().size(), 8U);
    EXPECT_TRUE(program->on("Option1"));
    EXPECT_FALSE(program->on("chk1"));
}

TEST_F(Prints, CancelKeepsTheOldMargin) {
    setFastPrint("4");
    program->click("mnuPrintMode");
    EXPECT_EQ(program->text("txtLmr"), "4");
    program->type("txtLmr", "9");
    program->click("cmdModeCancel");
    program->click("mnuPrintMode");
    EXPECT_EQ(program->text("txtLmr"), "4");
}

TEST_F(Prints, UserPrintKeepsTheOldMarginToo) {
    program->click("mnuPrintMode");
    program->type("txtLmr", "not even a number");
    program->click("cmdModeSave");
    program->click("mnuPrintMode");
    EXPECT_EQ(program->text("txtLmr"), "0");
}

TEST_F(Prints, CancelKeepsWhatWasChosenInTheControls) {
    program->click("mnuPrintMode");
    program->click("optFast");
    program->at("cmbSize").choose(5);
    program->click("cmdModeCancel");
    EXPECT_TRUE(program->on("optFast"));
    EXPECT_EQ(program->at("cmbSize").selectedItem(), "12");
}

TEST_F(Prints, MarginThatIsNoIntegerIsAFault) {
    program->click("mnuPrintMode");
    program->click("optFast");
    program->type("txtLmr", "wide");
    EXPECT_EQ(faultOf([&] { program->click("cmdModeSave"); }), 13);
    program->type("txtLmr", "40000");
    EXPECT_EQ(faultOf([&] { program->click("cmdModeSave"); }), 6);
    program->type("txtLmr", "2.5");
    program->click("cmdModeSave");
    program->click("mnuPrintMode");
    EXPECT_EQ(program->text("txtLmr"), "2");
}

TEST_F(Prints, FastPrintHandsTheTextInTheViewerToTheRawPrinter) {
    setFastPrint("0");
    program->click("mnuBatchGo");
    program->type("Richtxt", "가\r\n");
    program->click("cmdPrint");
    EXPECT_EQ(disk.text("/app/data/kelvo.tmp"), "가\r\n");
    EXPECT_EQ(disk.bytes("/app/code.bat"), "copy kelvo.tmp Lpt1\r\n");
    EXPECT_EQ(program->told(), Lines{"rawprint|kelvo.tmp"});
    // The box keeps its own name.
    program->click("cmdSave");
    EXPECT_EQ(disk.text("/app/data/a.out"), "가\r\n");
}

TEST_F(Prints, FastPrintWithAMarginCopiesTheText) {
    setFastPrint("3");
    program->click("mnuBatchGo");
    program->type("Richtxt", "one\r\ntwo\r\n");
    program->click("cmdPrint");
    EXPECT_EQ(disk.bytes("/app/data/temp"), "   one\r\n   two\r\n\f\r\n");
    EXPECT_EQ(disk.bytes("/app/code.bat"), "copy temp Lpt1\r\n");
    EXPECT_EQ(program->told(), Lines{"rawprint|temp"});
    EXPECT_FALSE(program->services.busy);
}

TEST_F(Prints, UserPrintDrawsTheTextOnThePrinter) {
    program->click("mnuBatchGo");
    program->click("cmdPrint");
    const auto& calls = program->services.printerCalls;
    EXPECT_NE(std::find(calls.begin(), calls.end(), "EndDoc"), calls.end());
    EXPECT_TRUE(program->services.screenCalls.empty());
}

TEST_F(Prints, PictureOnViewIsPrintedAndTheTextIsNot) {
    program->click("mnuBatchGo");
    program->click("cmdShow");
    program->click("cmdPrint");
    EXPECT_FALSE(disk.has("/app/data/kelvo.tmp"));
    const auto& calls = program->services.printerCalls;
    EXPECT_NE(std::find(calls.begin(), calls.end(), "print Kelvo Ver 3.5 Beta(2004.6.7)"),
              calls.end());
}

TEST_F(Prints, MissingFileIsTold) {
    program->window.PrintFile("/app/none.out");
    EXPECT_EQ(program->told(), Lines{"message||none|ok|먼저 실행을 하십시오"});
}

TEST_F(Prints, ChoiceOfThePrinterKeepsWhatTheLastDialogLeft) {
    program->click("mnuPrinterSelect");
    EXPECT_EQ(program->told(), Lines{"dialog|printer|||0||"});
    program->file(2);
    (void)program->told();
    program->queueDialog("any");
    program->click("mnuPrinterSelect");
    EXPECT_EQ(program->told(),
              Lines{"dialog|printer|열기|Data Files (*.dat)|*.dat|All Files (*.*)|*.*|1|"
                    "/app/data/|*.dat"});
}

}  // namespace
}  // namespace kelvo
