#include "desktop/search_bar.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/panel_keys.h"

namespace kelvo::desktop {

namespace {

QPushButton* button(QWidget* parent, const QString& text, const QString& name) {
    auto* made = new QPushButton(text, parent);
    made->setObjectName(name);
    made->setAutoDefault(true);
    return made;
}

}  // namespace

SearchBar::SearchBar(QPlainTextEdit& editor, QWidget* parent)
    : QWidget(parent),
      editor_(editor),
      wanted_(new QLineEdit(this)),
      replacement_(new QLineEdit(this)),
      result_(new QLabel(this)),
      replaceRow_(new QWidget(this)) {
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(3);
    buildFindRow(*rows);
    buildReplaceRow(*rows);
    new PanelKeys(*this, {}, [this] { leave(); });
    hide();
}

void SearchBar::buildFindRow(QLayout& rows) {
    auto* find = new QWidget(this);
    auto* row = new QHBoxLayout(find);
    row->setContentsMargins(0, 0, 0, 0);
    auto* label = new QLabel(QStringLiteral("찾기"), find);
    label->setBuddy(wanted_);
    wanted_->setObjectName(QStringLiteral("viewerSearch"));
    wanted_->setAccessibleName(QStringLiteral("찾을 글"));
    wanted_->setClearButtonEnabled(true);
    result_->setObjectName(QStringLiteral("viewerSearchResult"));
    auto* previous = button(find, QStringLiteral("이전"), QStringLiteral("viewerSearchPrevious"));
    auto* next = button(find, QStringLiteral("다음"), QStringLiteral("viewerSearchNext"));
    auto* close = button(find, QStringLiteral("찾기 끝"), QStringLiteral("viewerSearchClose"));
    row->addWidget(label);
    row->addWidget(wanted_, 1);
    row->addWidget(previous);
    row->addWidget(next);
    row->addWidget(result_);
    row->addWidget(close);
    rows.addWidget(find);
    connect(wanted_, &QLineEdit::returnPressed, this, [this] { findNext(false); });
    connect(previous, &QPushButton::clicked, this, [this] { findNext(true); });
    connect(next, &QPushButton::clicked, this, [this] { findNext(false); });
    connect(close, &QPushButton::clicked, this, &SearchBar::leave);
}

void SearchBar::buildReplaceRow(QLayout& rows) {
    auto* row = new QHBoxLayout(replaceRow_);
    row->setContentsMargins(0, 0, 0, 0);
    auto* label = new QLabel(QStringLiteral("바꿀 글"), replaceRow_);
    label->setBuddy(replacement_);
    replacement_->setObjectName(QStringLiteral("viewerReplacement"));
    replacement_->setAccessibleName(QStringLiteral("바꿀 글"));
    auto* one = button(replaceRow_, QStringLiteral("바꾸기"), QStringLiteral("viewerReplaceNext"));
    auto* all =
        button(replaceRow_, QStringLiteral("모두 바꾸기"), QStringLiteral("viewerReplaceAll"));
    row->addWidget(label);
    row->addWidget(replacement_, 1);
    row->addWidget(one);
    row->addWidget(all);
    rows.addWidget(replaceRow_);
    connect(replacement_, &QLineEdit::returnPressed, this, &SearchBar::replaceNext);
    connect(one, &QPushButton::clicked, this, &SearchBar::replaceNext);
    connect(all, &QPushButton::clicked, this, &SearchBar::replaceAll);
}

void SearchBar::openFor(bool replacing) {
    const QString selected = editor_.textCursor().selectedText();
    if (!selected.isEmpty() && !selected.contains(QChar::ParagraphSeparator)) {
        wanted_->setText(selected);
    }
    result_->clear();
    replaceRow_->setVisible(replacing);
    show();
    wanted_->setFocus(Qt::ShortcutFocusReason);
    wanted_->selectAll();
}

void SearchBar::leave() {
    hide();
    editor_.setFocus(Qt::OtherFocusReason);
}

bool SearchBar::findNext(bool backward) {
    const QString text = wanted_->text();
    if (text.isEmpty()) {
        openFor(replaceRow_->isVisible());
        return false;
    }
    const QTextDocument::FindFlags flags =
        backward ? QTextDocument::FindBackward : QTextDocument::FindFlags();
    bool found = editor_.find(text, flags);
    bool around = false;
    if (!found) {
        const QTextCursor before = editor_.textCursor();
        editor_.moveCursor(backward ? QTextCursor::End : QTextCursor::Start);
        found = editor_.find(text, flags);
        around = found;
        if (!found) editor_.setTextCursor(before);
    }
    result_->setText(!found     ? QStringLiteral("없음")
                     : !around  ? QString()
                     : backward ? QStringLiteral("끝에서부터 다시 찾음")
                                : QStringLiteral("처음부터 다시 찾음"));
    return found;
}

bool SearchBar::selectionIsWanted() const {
    return !wanted_->text().isEmpty() &&
           editor_.textCursor().selectedText().compare(wanted_->text(), Qt::CaseInsensitive) == 0;
}

void SearchBar::replaceNext() {
    if (selectionIsWanted()) editor_.textCursor().insertText(replacement_->text());
    findNext(false);
}

void SearchBar::replaceAll() {
    const QString text = wanted_->text();
    if (text.isEmpty()) return;
    int replaced = 0;
    QTextCursor all(editor_.document());
    all.beginEditBlock();
    QTextCursor found = editor_.document()->find(text, 0);
    while (!found.isNull()) {
        found.insertText(replacement_->text());
        ++replaced;
        found = editor_.document()->find(text, found);
    }
    all.endEditBlock();
    result_->setText(QStringLiteral("%1곳을 바꿈").arg(replaced));
}

}  // namespace kelvo::desktop
