// The File menu: new, open, save, save as, the recent files, the end.
#pragma once

#include <functional>
#include <string>

#include "shell/common_dialog.h"
#include "shell/recent_files.h"
#include "shell/viewer.h"

namespace kelvo {

class FileMenu {
public:
    // closeWindow runs the closing sequence.
    FileMenu(const MenuControls& menus, Control& frmeOne, ProgramState& state, ResultViewer& viewer,
             RecentFileList& recent, CommonDialog& cmd, const Services& services,
             std::function<void()> closeWindow);
    FileMenu(const FileMenu&) = delete;
    FileMenu& operator=(const FileMenu&) = delete;

    // Every index hides the one-point panel first and stores the configuration last. One guard
    // covers all of them: a cancel or any fault ends the command without a word, the
    // configuration not stored (required).
    void mnuFileItem_Click(int Index);

private:
    // False when the program has ended.
    bool dispatch(int Index, int highest);
    void newFile();
    void openFile();
    void saveFileAs();
    void recentFile(int Index);
    void tellAlreadyOpen();
    [[nodiscard]] bool passesExtensionTest(const std::string& name);
    [[nodiscard]] Answer ask(const std::string& name, std::string_view state,
                             std::string_view question, Icon icon, Buttons buttons);

    const MenuControls& menus_;
    Control& frmeOne_;
    ProgramState& state_;
    ResultViewer& viewer_;
    RecentFileList& recent_;
    CommonDialog& cmd_;
    const Services& services_;
    std::function<void()> closeWindow_;
};

}  // namespace kelvo
