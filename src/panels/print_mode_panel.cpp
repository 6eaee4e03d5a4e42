#include "panels/print_mode_panel.h"

#include "common/checked_arithmetic.h"
#include "common/number_text.h"
#include "panels/entry.h"

namespace kelvo {

namespace {

// The size that a view without a say of its own gives the panel, twips.
constexpr double kFrameWidth = 6000;
constexpr double kFrameHeight = 4500;

}  // namespace

PrintModePanel::PrintModePanel(Form& form, Control& window, Control& frmeOne, Control& frmeFile)
    : on_(form), window_(window), frmeOne_(frmeOne), frmeFile_(frmeFile) {
    on_.frmePrintMode.setSize(kFrameWidth, kFrameHeight);
    on_.cmdModeSave.onClick = [this] { cmdModeSave_Click(); };
    on_.cmdModeCancel.onClick = [this] { cmdModeCancel_Click(); };
}

void PrintModePanel::fillLists() {
    on_.cmbFont.setItems({"굴림", "굴림체", "궁서", "궁서체", "돋움", "돋움체", "바탕", "바탕체"});
    on_.cmbFont.choose(1);
    on_.cmbFontStyle.setItems({"보통", "기울임꼴", "굵게", "굵게기울임꼴"});
    on_.cmbFontStyle.choose(0);
    on_.cmbSize.setItems({"7", "8", "9", "10", "11", "12"});
    on_.cmbSize.choose(3);
    on_.Option1.switchOn();
}

void PrintModePanel::mnuPrintMode_Click() {
    OneWasShown_ = frmeOne_.visible();
    FileWasShown_ = frmeFile_.visible();
    frmeOne_.setVisible(false);
    frmeFile_.setVisible(false);
    on_.frmePrintMode.setPosition((window_.width() - on_.frmePrintMode.width()) / 2.0,
                                  (window_.height() - on_.frmePrintMode.height()) / 2.0 - 300);
    on_.txtLmr.setText(generalText(LeftMargin_));
    on_.frmePrintMode.setVisible(true);
}

void PrintModePanel::showWhatWasShown() {
    if (OneWasShown_) frmeOne_.setVisible(true);
    if (FileWasShown_) frmeFile_.setVisible(true);
}

void PrintModePanel::cmdModeSave_Click() {
    if (on_.optFast.value()) LeftMargin_ = roundedInteger16(strictNumberOf(on_.txtLmr));
    cmdModeCancel_Click();
}

void PrintModePanel::cmdModeCancel_Click() {
    on_.frmePrintMode.setVisible(false);
    showWhatWasShown();
}

}  // namespace kelvo
