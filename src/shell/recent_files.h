// The list of recent data files. Entry 1 is the current data file: what the next run reads, and
// what the window's caption says.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "common/disk.h"
#include "common/ports.h"
#include "panels/program_state.h"
#include "shell/window_controls.h"

namespace kelvo {

// Entries 1 to 5 of the list with the name put on top: lowered if that still names the same
// file; then the others, up to the first empty one, without those equal to an entry before them
// in either case of letters. The rest is empty.
[[nodiscard]] std::array<std::string, 6> withNameOnTop(const std::array<std::string, 6>& list,
                                                       const std::string& name, Disk& disk);

// The folder to change to for a file, empty for a file that stands in the top folder or has no
// folder (required: for these nothing is changed).
[[nodiscard]] std::string folderToWorkIn(std::string_view path);

// Keeps the list, the File menu and the window's caption in step.
class RecentFileList {
public:
    RecentFileList(ProgramState& state, Control& window, const MenuControls& menus, Disk& disk,
                   MessageBoxes& messages);

    // Puts a file on top of the list, making it (empty) if it is missing, makes its folder the
    // current one and rebuilds menu and caption. Nothing for an empty name. A step that fails is
    // reported in a message box, and the next one follows.
    void UpdateRecentFiles(const std::string& name);

    // Program, owner, version and the current data file.
    void showCaption();

private:
    void rebuildMenu();

    ProgramState& state_;
    Control& window_;
    Control& mnuFileItem_;
    Disk& disk_;
    MessageBoxes& messages_;
};

}  // namespace kelvo
