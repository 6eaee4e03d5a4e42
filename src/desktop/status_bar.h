// The bottom line of the window: what was done last, the messages of the last run, and about the
// text on view where its caret is, whether it is saved, and what Ctrl+S does.
#pragma once

#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QWidget>
#include <vector>

#include "desktop/elided_label.h"
#include "shell/status_line.h"

namespace kelvo::desktop {

class StatusBar final : public QWidget {
    Q_OBJECT

public:
    // Follows the status line, which outlives it.
    StatusBar(StatusLine& line, QWidget* parent);

    void setPlace(const QString& place);
    void setUnsaved(bool on);
    // What Ctrl+S would do now; empty for nothing.
    void setSaving(const QString& words, const QString& wholePath);
    // What the check finds in the data file on view; none hides the button.
    void setFindings(const QString& dataFile, std::vector<RunMessage> findings);
    // A button beside the sentence; hidden while there is nothing to do.
    [[nodiscard]] QPushButton& bringBack() { return *bringBack_; }
    // A button that opens a folder, as long as the sentence that stands now.
    void offerFolder(const QString& folder);

    // The messages of the last run, or what the check found, to choose one from.
    void openMessages();
    void openFindings();

signals:
    // A message was chosen: its line in the data file of the run.
    void lineWanted(const QString& dataFile, int line);
    void folderWanted(const QString& folder);

private:
    void refresh();
    void openList(const QPushButton& button, const QString& dataFile,
                  const std::vector<RunMessage>& messages);
    void choose(const QListWidgetItem* item);

    StatusLine& line_;
    ElidedLabel* sentence_;
    QPushButton* messages_;
    QPushButton* findings_;
    QPushButton* bringBack_;
    QPushButton* openFolder_;
    ElidedLabel* saving_;
    QLabel* unsaved_;
    QLabel* place_;
    QListWidget* list_;
    QString folder_;
    std::string sentenceOfFolder_;
    QString listFile_;  // that the lines of the list belong to
    QString checkedFile_;
    std::vector<RunMessage> found_;
};

}  // namespace kelvo::desktop
