// The text box of many lines: fixed-pitch Korean face, search, undo, place of the caret.
//
// Its text is handed over with CR LF line ends, and only when somebody asks for it: a long text
// would be too much to hand over with every letter typed.
#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTimer>
#include <QWidget>
#include <string>

namespace kelvo::desktop {

class TextViewer final : public QWidget {
    Q_OBJECT

public:
    explicit TextViewer(QWidget* parent = nullptr);

    // Replaces the text, forgets what could be undone, puts the caret to the front.
    void load(const std::string& text);
    [[nodiscard]] std::string text() const;

    // True while text was typed that nobody has taken yet.
    [[nodiscard]] bool hasUntakenText() const { return untaken_; }
    void markTaken() { untaken_ = false; }

    [[nodiscard]] bool isModified() const;
    void setModified(bool on);

    [[nodiscard]] QPlainTextEdit& editor() { return *editor_; }
    void openSearch();
    // Looks on from the caret, around the end if needed. False if it is nowhere.
    bool findNext(bool backward);

signals:
    void edited();  // a while after the last letter typed
    void modifiedChanged(bool on);

private:
    void buildSearchBar();
    void showPlace();
    void closeSearch();

    QPlainTextEdit* editor_;
    QWidget* searchBar_;
    QLineEdit* wanted_;
    QLabel* searchResult_;
    QLabel* place_;
    QTimer pause_;
    bool untaken_ = false;
    bool loading_ = false;
};

}  // namespace kelvo::desktop
