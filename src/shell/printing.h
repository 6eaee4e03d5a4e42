// Printing what is on view, and the choice of the printer.
#pragma once

#include <string>

#include "form/services.h"
#include "panels/print_mode_panel.h"
#include "shell/common_dialog.h"
#include "shell/point_pictures.h"
#include "shell/viewer.h"
#include "shell/window_controls.h"

namespace kelvo {

class Printing {
public:
    Printing(const ViewerControls& viewerControls, const MenuControls& menus,
             PrintModePanel& printMode, ResultViewer& viewer, PointPictures& pictures,
             CommonDialog& cmd, ProgramState& state, const Services& services);
    Printing(const Printing&) = delete;
    Printing& operator=(const Printing&) = delete;

    // The picture, or the text in the viewer by way of "kelvo.tmp" in the current folder. The
    // caption of cmdShow alone says which.
    void cmdPrint_Click();

    void mnuPrinterSelect_Click();

    // Prints a text file in the mode of the print mode panel.
    void PrintFile(const std::string& name);

private:
    PrintModePanel& printMode_;
    ResultViewer& viewer_;
    PointPictures& pictures_;
    CommonDialog& cmd_;
    ProgramState& state_;
    const Services& services_;
};

}  // namespace kelvo
