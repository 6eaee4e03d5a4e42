#include "desktop/text_viewer.h"

#include <QHBoxLayout>
#include <QShortcut>
#include <QTextBlock>
#include <QToolButton>
#include <QVBoxLayout>
#include <chrono>

#include "desktop/korean_faces.h"

namespace kelvo::desktop {

namespace {

// Columns count as in the files: a Hangul letter is two.
int columnOf(const QString& line, int caret) {
    int column = 1;
    for (int at = 0; at < caret && at < line.size(); ++at) {
        const QChar letter = line[at];
        if (letter.isLowSurrogate()) continue;
        column += letter.unicode() < 0x80 ? 1 : 2;
    }
    return column;
}

}  // namespace

TextViewer::TextViewer(QWidget* parent)
    : QWidget(parent),
      editor_(new QPlainTextEdit(this)),
      searchBar_(new QWidget(this)),
      wanted_(new QLineEdit(searchBar_)),
      searchResult_(new QLabel(searchBar_)),
      place_(new QLabel(this)) {
    editor_->setLineWrapMode(QPlainTextEdit::NoWrap);
    editor_->setFont(fixedPitchFont(font().pointSizeF() + 1));
    editor_->setTabChangesFocus(false);
    editor_->setTabStopDistance(8 * QFontMetricsF(editor_->font()).horizontalAdvance(' '));
    setFocusProxy(editor_);

    buildSearchBar();
    place_->setAlignment(Qt::AlignRight);
    place_->setTextInteractionFlags(Qt::NoTextInteraction);

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(3);
    column->addWidget(editor_, 1);
    column->addWidget(searchBar_);
    column->addWidget(place_);

    pause_.setSingleShot(true);
    pause_.setInterval(std::chrono::milliseconds(400));
    connect(&pause_, &QTimer::timeout, this, &TextViewer::edited);
    connect(editor_, &QPlainTextEdit::textChanged, this, [this] {
        if (loading_) return;
        untaken_ = true;
        pause_.start();
    });
    connect(editor_->document(), &QTextDocument::modificationChanged, this,
            &TextViewer::modifiedChanged);
    connect(editor_, &QPlainTextEdit::cursorPositionChanged, this, &TextViewer::showPlace);

    const auto shortcut = [this](const QKeySequence& keys, auto&& action) {
        auto* made = new QShortcut(keys, this);
        made->setContext(Qt::WidgetWithChildrenShortcut);
        connect(made, &QShortcut::activated, this, action);
    };
    shortcut(QKeySequence::Find, [this] { openSearch(); });
    shortcut(QKeySequence::FindNext, [this] { findNext(false); });
    shortcut(QKeySequence::FindPrevious, [this] { findNext(true); });
    auto* leave = new QShortcut(Qt::Key_Escape, searchBar_);
    leave->setContext(Qt::WidgetWithChildrenShortcut);
    connect(leave, &QShortcut::activated, this, &TextViewer::closeSearch);
    showPlace();
}

void TextViewer::buildSearchBar() {
    auto* row = new QHBoxLayout(searchBar_);
    row->setContentsMargins(0, 0, 0, 0);
    auto* label = new QLabel(QStringLiteral("찾기"), searchBar_);
    label->setBuddy(wanted_);
    wanted_->setObjectName(QStringLiteral("viewerSearch"));
    wanted_->setAccessibleName(QStringLiteral("찾을 글"));
    wanted_->setClearButtonEnabled(true);
    searchResult_->setObjectName(QStringLiteral("viewerSearchResult"));
    const auto button = [this](const QString& text, const QString& name) {
        auto* made = new QToolButton(searchBar_);
        made->setText(text);
        made->setObjectName(name);
        return made;
    };
    auto* previous = button(QStringLiteral("이전"), QStringLiteral("viewerSearchPrevious"));
    auto* next = button(QStringLiteral("다음"), QStringLiteral("viewerSearchNext"));
    auto* close = button(QStringLiteral("닫기"), QStringLiteral("viewerSearchClose"));
    row->addWidget(label);
    row->addWidget(wanted_, 1);
    row->addWidget(previous);
    row->addWidget(next);
    row->addWidget(searchResult_);
    row->addWidget(close);
    connect(wanted_, &QLineEdit::returnPressed, this, [this] { findNext(false); });
    connect(previous, &QToolButton::clicked, this, [this] { findNext(true); });
    connect(next, &QToolButton::clicked, this, [this] { findNext(false); });
    connect(close, &QToolButton::clicked, this, &TextViewer::closeSearch);
    searchBar_->hide();
}

void TextViewer::load(const std::string& text) {
    loading_ = true;
    editor_->setPlainText(QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())));
    editor_->document()->setModified(false);
    loading_ = false;
    untaken_ = false;
    pause_.stop();
    showPlace();
}

std::string TextViewer::text() const {
    // The raw text keeps blanks that don't break; paragraphs and lines end in marks of their own.
    QString text = editor_->document()->toRawText();
    text.replace(QChar::ParagraphSeparator, QLatin1Char('\n'));
    text.replace(QChar::LineSeparator, QLatin1Char('\n'));
    text.replace(QLatin1Char('\n'), QStringLiteral("\r\n"));
    return text.toStdString();
}

bool TextViewer::isModified() const {
    return editor_->document()->isModified();
}
void TextViewer::setModified(bool on) {
    editor_->document()->setModified(on);
}

void TextViewer::openSearch() {
    const QString selected = editor_->textCursor().selectedText();
    if (!selected.isEmpty() && !selected.contains(QChar::ParagraphSeparator)) {
        wanted_->setText(selected);
    }
    searchResult_->clear();
    searchBar_->show();
    wanted_->setFocus(Qt::ShortcutFocusReason);
    wanted_->selectAll();
}

void TextViewer::closeSearch() {
    searchBar_->hide();
    editor_->setFocus(Qt::OtherFocusReason);
}

bool TextViewer::findNext(bool backward) {
    const QString text = wanted_->text();
    if (text.isEmpty()) {
        openSearch();
        return false;
    }
    const QTextDocument::FindFlags flags =
        backward ? QTextDocument::FindBackward : QTextDocument::FindFlags();
    bool found = editor_->find(text, flags);
    bool around = false;
    if (!found) {
        const QTextCursor before = editor_->textCursor();
        editor_->moveCursor(backward ? QTextCursor::End : QTextCursor::Start);
        found = editor_->find(text, flags);
        around = found;
        if (!found) editor_->setTextCursor(before);
    }
    searchResult_->setText(!found     ? QStringLiteral("없음")
                           : !around  ? QString()
                           : backward ? QStringLiteral("끝에서부터 다시 찾음")
                                      : QStringLiteral("처음부터 다시 찾음"));
    return found;
}

void TextViewer::showPlace() {
    const QTextCursor caret = editor_->textCursor();
    place_->setText(QStringLiteral("%1행 %2열")
                        .arg(caret.blockNumber() + 1)
                        .arg(columnOf(caret.block().text(), caret.positionInBlock())));
}

}  // namespace kelvo::desktop
