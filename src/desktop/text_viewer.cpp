#include "desktop/text_viewer.h"

#include <QMenu>
#include <QScrollBar>
#include <QShortcut>
#include <QTextBlock>
#include <QVBoxLayout>
#include <chrono>

namespace kelvo::desktop {

namespace {

constexpr int kMostColouredLines = 20'000;  // colouring more holds up the opening of a file

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
    : QWidget(parent), editor_(new TextEditor(this)), searchBar_(new SearchBar(*editor_, this)) {
    setFocusProxy(editor_);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(3);
    column->addWidget(editor_, 1);
    column->addWidget(searchBar_);

    pause_.setSingleShot(true);
    pause_.setInterval(std::chrono::milliseconds(400));
    connect(&pause_, &QTimer::timeout, this, &TextViewer::edited);
    connect(editor_, &QPlainTextEdit::textChanged, this, [this] {
        if (loading_) return;
        untaken_ = true;
        pause_.start();
    });
    connect(editor_, &QPlainTextEdit::modificationChanged, this, &TextViewer::modifiedChanged);
    connect(editor_, &QPlainTextEdit::cursorPositionChanged, this, &TextViewer::placeChanged);
    editor_->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(editor_, &QWidget::customContextMenuRequested, this, &TextViewer::showMenu);
    addShortcuts();
    load(QString(), std::string());
}

void TextViewer::addShortcuts() {
    const auto shortcut = [this](const QKeySequence& keys, auto&& action) {
        auto* made = new QShortcut(keys, this);
        made->setContext(Qt::WidgetWithChildrenShortcut);
        connect(made, &QShortcut::activated, this, action);
    };
    shortcut(QKeySequence::Find, [this] { searchBar_->openFor(false); });
    shortcut(QKeySequence(Qt::CTRL | Qt::Key_H), [this] { searchBar_->openFor(true); });
    shortcut(QKeySequence::FindNext, [this] { findNext(false); });
    shortcut(QKeySequence::FindPrevious, [this] { findNext(true); });
}

void TextViewer::load(const QString& path, const std::string& text) {
    loading_ = true;
    if (shown_ != nullptr) {
        shown_->caret = editor_->textCursor().position();
        shown_->scrolled = editor_->verticalScrollBar()->value();
    }
    delete highlighter_;
    shown_ = &documents_.open(path, text);
    QTextDocument* document = shown_->document;
    document->setDefaultFont(editor_->font());
    editor_->setDocument(document);
    const bool isDataFile = path.endsWith(QLatin1String(".dat"), Qt::CaseInsensitive);
    if (isDataFile && document->blockCount() <= kMostColouredLines) {
        highlighter_ = new DataFileHighlighter(document);
    }
    QTextCursor caret(document);
    caret.setPosition(std::min(shown_->caret, document->characterCount() - 1));
    editor_->setTextCursor(caret);
    editor_->setTextSize(editor_->textSize());
    editor_->verticalScrollBar()->setValue(shown_->scrolled);
    loading_ = false;
    untaken_ = false;
    pause_.stop();
    emit modifiedChanged(false);
    emit placeChanged();
    emit loaded();
}

std::string TextViewer::text() const {
    return plainText(*editor_->document());
}

bool TextViewer::isModified() const {
    return editor_->document()->isModified();
}
void TextViewer::setModified(bool on) {
    editor_->document()->setModified(on);
}

QString TextViewer::place() const {
    const QTextCursor caret = editor_->textCursor();
    return QStringLiteral("%1행 %2열")
        .arg(caret.blockNumber() + 1)
        .arg(columnOf(caret.block().text(), caret.positionInBlock()));
}

void TextViewer::showMenu(const QPoint& place) {
    QMenu* menu = editor_->createStandardContextMenu(place);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addSeparator();
    menu->addAction(QStringLiteral("찾기\tCtrl+F"), this, [this] { searchBar_->openFor(false); });
    menu->addAction(QStringLiteral("바꾸기\tCtrl+H"), this, [this] { searchBar_->openFor(true); });
    menu->addSeparator();
    for (QAction* action : furtherActions_) menu->addAction(action);
    emit menuComes();
    menu->popup(editor_->viewport()->mapToGlobal(place));
}

}  // namespace kelvo::desktop
