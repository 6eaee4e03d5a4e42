// What can be done with the text on view beside the form's own buttons, and what the bottom line
// says of it.
#pragma once

#include <QObject>
#include <QString>
#include <vector>

#include "desktop/status_bar.h"
#include "desktop/widget_book.h"
#include "shell/frm_kelvo.h"

namespace kelvo::desktop {

class TextOnView final : public QObject {
    Q_OBJECT

public:
    // All of them outlive it.
    TextOnView(frmKelvo& program, WidgetBook& book, StatusBar& status, MessageBoxes& messages);

    // After whatever may have changed the text, its file or the messages of a run.
    void refresh();

    // Writes the text to its file and leaves the screen as it is; of the plot, asks for a file.
    // What fails is said in a box.
    void save();

    // Shows a file that is there, unless it is on view already, and a line of it.
    void goToLine(const QString& path, int line);

    // Asks for a result file and shows it.
    void openResult();

private:
    void showSaving();
    void check();
    void showNotes();
    [[nodiscard]] bool plotIsOnView() const;
    [[nodiscard]] bool textIsOnView() const;

    frmKelvo& program_;
    WidgetBook& book_;
    StatusBar& status_;
    MessageBoxes& messages_;
    std::vector<RunMessage> findings_;  // in the text on view
};

}  // namespace kelvo::desktop
