// Kelvo.out: a notebook of one-point results in the application folder.
//
// A note takes the panel as it stands; only the decimal-degree boxes are read for angles, and
// strictly so: one that holds no number is fault 13, with what was written before it standing.
#pragma once

#include <string>

#include "common/ports.h"
#include "common/text_file.h"
#include "panels/one_point_panel.h"
#include "shell/viewer.h"
#include "shell/window_controls.h"

namespace kelvo {

class SavedResults {
public:
    SavedResults(const MenuControls& menus, const ParameterControls& parameters,
                 const CoordinateControls& coordinates, const ProgramState& state,
                 ResultViewer& viewer, Disk& disk, MessageBoxes& messages);
    SavedResults(const SavedResults&) = delete;
    SavedResults& operator=(const SavedResults&) = delete;

    void mnuPrintBrief_Click();
    void mnuPrintDetail_Click();
    void mnuPrintClear_Click();
    void mnuPrintShow_Click();

private:
    void writeResultBlock(TextWriter& file);
    [[nodiscard]] std::string dms(const Control& box);

    const ParameterControls& para_;
    const CoordinateControls& on_;
    std::string path_;
    ResultViewer& viewer_;
    Disk& disk_;
    MessageBoxes& messages_;
};

}  // namespace kelvo
