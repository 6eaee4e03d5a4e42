// Several data files converted in one go, each as a run of its own.
#pragma once

#include <QStringList>
#include <functional>
#include <string>
#include <vector>

#include "desktop/widget_book.h"
#include "shell/frm_kelvo.h"

namespace kelvo::desktop {

class SeveralRuns {
public:
    // Makes a file the current data file; false if it didn't become that.
    using Open = std::function<bool(const std::string& path)>;

    SeveralRuns(frmKelvo& program, WidgetBook& book, Open open)
        : program_(program), book_(book), open_(std::move(open)) {}

    // Shows how far it is and can be cancelled between two files. A fault of a run ends the
    // program as it does for a single file. Gives a line a file: its points and messages, or that
    // it couldn't be opened.
    QStringList convert(const std::vector<std::string>& paths, QWidget* parent);

    // Called before each file with what was done so far; for tests and for a view of the progress.
    std::function<void(int done)> onProgress;

private:
    [[nodiscard]] QString convertOne(const std::string& path);

    frmKelvo& program_;
    WidgetBook& book_;
    Open open_;
};

}  // namespace kelvo::desktop
