// The text box of many lines with its search bar: undo that outlives other files, colours for data
// files, place of the caret.
//
// Its text is handed over with CR LF line ends, and only when somebody asks for it: a long text
// would be too much to hand over with every letter typed.
#pragma once

#include <QPointer>
#include <QTimer>
#include <QWidget>
#include <string>
#include <vector>

#include "desktop/data_file_highlighter.h"
#include "desktop/search_bar.h"
#include "desktop/text_editor.h"
#include "desktop/viewer_documents.h"

namespace kelvo::desktop {

class TextViewer final : public QWidget {
    Q_OBJECT

public:
    explicit TextViewer(QWidget* parent = nullptr);

    // Shows the text of a file. One that was on view before comes back with its caret and with
    // what can be undone in it.
    void load(const QString& path, const std::string& text);
    [[nodiscard]] std::string text() const;

    // True while text was typed that nobody has taken yet.
    [[nodiscard]] bool hasUntakenText() const { return untaken_; }
    void markTaken() { untaken_ = false; }

    [[nodiscard]] bool isModified() const;
    void setModified(bool on);

    [[nodiscard]] TextEditor& editor() { return *editor_; }
    [[nodiscard]] SearchBar& searchBar() { return *searchBar_; }
    bool findNext(bool backward) { return searchBar_->findNext(backward); }

    // "12행 34열"; columns count as in the files, a Hangul letter is two.
    [[nodiscard]] QString place() const;

    // Stand at the end of the context menu.
    void addFurtherAction(QAction* action) { furtherActions_.push_back(action); }

signals:
    void loaded();
    void edited();  // a while after the last letter typed
    void modifiedChanged(bool on);
    void placeChanged();
    void menuComes();  // the context menu is about to show the further actions

private:
    void addShortcuts();
    void showMenu(const QPoint& place);

    TextEditor* editor_;
    SearchBar* searchBar_;
    ViewerDocuments documents_{this};
    ViewerDocuments::Kept* shown_ = nullptr;
    QPointer<DataFileHighlighter> highlighter_;
    std::vector<QAction*> furtherActions_;
    QTimer pause_;
    bool untaken_ = false;
    bool loading_ = false;
};

}  // namespace kelvo::desktop
