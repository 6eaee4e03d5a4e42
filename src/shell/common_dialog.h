// `cmd`: the one common dialog that serves every file dialog of the window.
#pragma once

#include <string>

#include "common/run_time_fault.h"
#include "form/services.h"

namespace kelvo {

// A property that a command doesn't set keeps what the last use left. Cancelling is fault 32755.
struct CommonDialog {
    explicit CommonDialog(Dialogs& owner) : dialogs(owner) {}

    // Show the dialog and give the chosen name, which becomes the file name of the dialog.
    std::string showOpen() { return choose(DialogKind::Open); }
    std::string showSave() { return choose(DialogKind::Save); }
    void showPrinter() {
        if (!dialogs.show(DialogKind::Printer, properties)) raise(Fault::DialogCancelled);
    }

    DialogProperties properties;

private:
    std::string choose(DialogKind kind) {
        const std::optional<std::string> chosen = dialogs.show(kind, properties);
        if (!chosen) raise(Fault::DialogCancelled);
        properties.fileName = *chosen;
        return *chosen;
    }

    Dialogs& dialogs;
};

inline constexpr const char* kDataFileFilter = "Data Files (*.dat)|*.dat|All Files (*.*)|*.*";

}  // namespace kelvo
