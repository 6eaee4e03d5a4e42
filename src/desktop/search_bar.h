// Finding and replacing in a text editor.
#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QWidget>

namespace kelvo::desktop {

class SearchBar final : public QWidget {
    Q_OBJECT

public:
    SearchBar(QPlainTextEdit& editor, QWidget* parent);

    // Shows itself and takes the keyboard; a selection becomes what is looked for.
    void openFor(bool replacing);
    void leave();

    // Looks on from the caret, around the end if needed. False if it is nowhere.
    bool findNext(bool backward);

    // Replaces the selection if it is what was looked for, and looks on.
    void replaceNext();
    // Replaces all of them in one step that can be undone.
    void replaceAll();

private:
    void buildFindRow(QLayout& rows);
    void buildReplaceRow(QLayout& rows);
    [[nodiscard]] bool selectionIsWanted() const;

    QPlainTextEdit& editor_;
    QLineEdit* wanted_;
    QLineEdit* replacement_;
    QLabel* result_;
    QWidget* replaceRow_;
};

}  // namespace kelvo::desktop
