#include "panels/print_mode_panel.h"

#include <gtest/gtest.h>

#include "support/faults.h"

namespace kelvo {
namespace {

using testing::faultOf;

class PrintMode : public ::testing::Test {
protected:
    PrintMode() {
        window.setSize(12000, 9000);
        panel.fillLists();
        frame.setVisible(false);
        one.setVisible(false);
        file.setVisible(false);
    }
    Control& at(const char* name) { return *form.find(name); }

    Form form;
    Control& window = form.window("frmKelvo");
    Control& one = form.frame("frmeOne", "frmKelvo", "");
    Control& file = form.frame("frmeFile", "frmKelvo", "");
    PrintModePanel panel{form, window, one, file};
    Control& frame = at("frmePrintMode");
};

TEST_F(PrintMode, StartsWithItsFaceItsStyleAndTenPoints) {
    EXPECT_EQ(at("cmbFont").items(),
              (std::vector<std::string>{"굴림", "굴림체", "궁서", "궁서체", "돋움", "돋움체",
                                        "바탕", "바탕체"}));
    EXPECT_EQ(at("cmbFont").selectedItem(), "굴림체");
    EXPECT_EQ(at("cmbFontStyle").items(),
              (std::vector<std::string>{"보통", "기울임꼴", "굵게", "굵게기울임꼴"}));
    EXPECT_EQ(at("cmbFontStyle").selectedItem(), "보통");
    EXPECT_EQ(at("cmbSize").items(), (std::vector<std::string>{"7", "8", "9", "10", "11", "12"}));
    EXPECT_EQ(at("cmbSize").selectedItem(), "10");
    EXPECT_TRUE(at("Option1").value());
    EXPECT_FALSE(at("optFast").value());
}

TEST_F(PrintMode, StandsInTheMiddleOfTheWindowAndThreeHundredTwipsHigher) {
    frame.setSize(6000, 4500);
    panel.mnuPrintMode_Click();
    EXPECT_EQ(frame.left(), 3000);
    EXPECT_EQ(frame.top(), 1950);
    window.setSize(6400, 5301);
    panel.mnuPrintMode_Click();
    EXPECT_EQ(frame.left(), 200);
    EXPECT_EQ(frame.top(), 100.5);
}

TEST_F(PrintMode, HidesWhatWasShownAndBringsThatBack) {
    for (const bool oneShown : {false, true}) {
        for (const bool fileShown : {false, true}) {
            for (const char* leave : {"cmdModeSave", "cmdModeCancel"}) {
                one.setVisible(oneShown);
                file.setVisible(fileShown);
                panel.mnuPrintMode_Click();
                EXPECT_TRUE(frame.visible());
                EXPECT_FALSE(one.visible());
                EXPECT_FALSE(file.visible());
                at(leave).click();
                EXPECT_FALSE(frame.visible());
                EXPECT_EQ(one.visible(), oneShown) << leave;
                EXPECT_EQ(file.visible(), fileShown) << leave;
            }
        }
    }
}

TEST_F(PrintMode, TakesTheMarginOfTheFastPrintOnlyAndOnlyByOk) {
    const auto marginAfter = [this](const char* option, const char* margin, const char* leave) {
        panel.mnuPrintMode_Click();
        at(option).switchOn();
        at("txtLmr").typeText(margin);
        at(leave).click();
        panel.mnuPrintMode_Click();
        return at("txtLmr").text();
    };
    panel.mnuPrintMode_Click();
    const std::string first = at("txtLmr").text();
    EXPECT_EQ(marginAfter("Option1", "7", "cmdModeSave"), first);
    EXPECT_EQ(marginAfter("optFast", "7", "cmdModeCancel"), first);
    EXPECT_EQ(marginAfter("optFast", " 7 ", "cmdModeSave"), "7");
    EXPECT_EQ(marginAfter("Option1", "abc", "cmdModeSave"), "7");
}

TEST_F(PrintMode, StaysOpenWithAMarginThatIsNone) {
    at("optFast").switchOn();
    panel.mnuPrintMode_Click();
    for (const auto& [margin, fault] : {std::pair{"abc", 13}, {"", 13}, {"32768", 6}}) {
        at("txtLmr").typeText(margin);
        EXPECT_EQ(faultOf([&] { at("cmdModeSave").click(); }), fault) << margin;
        EXPECT_TRUE(frame.visible());
    }
}

}  // namespace
}  // namespace kelvo
