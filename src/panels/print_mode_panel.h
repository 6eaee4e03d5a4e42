// The print mode panel. It takes the place of the one-point panel and the viewer while it is
// open, and brings back what it took away.
#pragma once

#include <cstdint>

#include "panels/print_mode_controls.h"

namespace kelvo {

class PrintModePanel {
public:
    PrintModePanel(Form& form, Control& window, Control& frmeOne, Control& frmeFile);
    PrintModePanel(const PrintModePanel&) = delete;
    PrintModePanel& operator=(const PrintModePanel&) = delete;

    // The lists of faces, styles and sizes, and their first choice.
    void fillLists();

    // Puts the panel into the middle of the window, a little above.
    void mnuPrintMode_Click();

    // With the fast print on, takes the margin over: fault 13 for a text that is no number, 6
    // for one beyond 16 bits. Options, lists and boxes have no copy to go back to.
    void cmdModeSave_Click();
    void cmdModeCancel_Click();

    // Shows the panels that were on view when this one opened last.
    void showWhatWasShown();

    [[nodiscard]] std::int16_t LeftMargin() const { return LeftMargin_; }
    [[nodiscard]] const PrintModeControls& controls() const { return on_; }

private:
    PrintModeControls on_;
    Control& window_;
    Control& frmeOne_;
    Control& frmeFile_;
    std::int16_t LeftMargin_ = 0;  // not kept from one start to the next
    bool OneWasShown_ = false;
    bool FileWasShown_ = false;
};

}  // namespace kelvo
