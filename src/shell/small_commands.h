// The small commands of the menus: editing and looking at files, the editor's path, help, about.
#pragma once

#include "common/ports.h"
#include "panels/program_state.h"
#include "shell/common_dialog.h"
#include "shell/viewer.h"
#include "shell/window_controls.h"

namespace kelvo {

class SmallCommands {
public:
    SmallCommands(const MenuControls& menus, Control& frmeOne, Control& frmeFile,
                  ProgramState& state, ResultViewer& viewer, CommonDialog& cmd, Disk& disk,
                  MessageBoxes& messages);
    SmallCommands(const SmallCommands&) = delete;
    SmallCommands& operator=(const SmallCommands&) = delete;

    // The data file, the known points, the detail of the last run. A missing file is fault 53.
    void mnuBatchEdit_Click();
    void mnuCorrEdit_Click();
    void mnuCorrShow_Click();

    void mnuOneOpen_Click();

    // Chooses the editor's path, which is kept, shown and stored; nothing starts that program.
    // A path that doesn't exist stays, when the user leaves it at that (required).
    void mnuEditorSelect_Click();

    void mnuHelpFile_Click();
    void mnuAbout_Click();

private:
    void chooseEditor();

    const MenuControls& menus_;
    Control& frmeOne_;
    Control& frmeFile_;
    ProgramState& state_;
    ResultViewer& viewer_;
    CommonDialog& cmd_;
    Disk& disk_;
    MessageBoxes& messages_;
};

}  // namespace kelvo
