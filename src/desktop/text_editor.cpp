#include "desktop/text_editor.h"

#include <QHelpEvent>
#include <QPainter>
#include <QScrollBar>
#include <QTextBlock>
#include <QToolTip>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>

#include "desktop/korean_faces.h"

namespace kelvo::desktop {

namespace {

constexpr double kSmallest = 6;  // points
constexpr double kLargest = 40;
constexpr int kEdgeMargin = 6;  // pixels on both sides of a number

QColor noteColour(const QPalette& palette) {
    return palette.base().color().lightness() < 128 ? QColor(0xE8, 0x8A, 0x5C)
                                                    : QColor(0xB8, 0x3A, 0x12);
}

}  // namespace

class TextEditor::Edge final : public QWidget {
public:
    explicit Edge(TextEditor& editor) : QWidget(&editor), editor_(editor) {}

protected:
    void paintEvent(QPaintEvent* event) override { editor_.paintEdge(event); }

private:
    TextEditor& editor_;
};

TextEditor::TextEditor(QWidget* parent) : QPlainTextEdit(parent), edge_(new Edge(*this)) {
    setLineWrapMode(QPlainTextEdit::NoWrap);
    setTabChangesFocus(false);
    connect(this, &QPlainTextEdit::blockCountChanged, this, [this] { fitEdge(); });
    connect(this, &QPlainTextEdit::updateRequest, this, [this](const QRect& rect, int scrolled) {
        if (scrolled != 0) {
            edge_->scroll(0, scrolled);
        } else {
            edge_->update(0, rect.y(), edge_->width(), rect.height());
        }
    });
    connect(this, &QPlainTextEdit::cursorPositionChanged, this, [this] { mark(); });
    setTextSize(font().pointSizeF() + 1);
}

void TextEditor::goToLine(int line) {
    const int last = document()->blockCount();
    setTextCursor(QTextCursor(document()->findBlockByNumber(std::clamp(line, 1, last) - 1)));
    centerCursor();
}

void TextEditor::setNotes(const std::vector<LineNote>& notes) {
    notes_.clear();
    for (const LineNote& note : notes) {
        QString& words = notes_[note.line];
        if (!words.isEmpty()) words += QLatin1Char('\n');
        words += note.text;
    }
    mark();
    edge_->update();
}

QString TextEditor::noteOf(int line) const {
    const auto found = notes_.find(line);
    return found == notes_.end() ? QString() : found->second;
}

// The line of the caret, and the lines that have notes.
void TextEditor::mark() {
    QList<QTextEdit::ExtraSelection> marks;
    QTextEdit::ExtraSelection caretLine;
    caretLine.format.setBackground(palette().alternateBase());
    caretLine.format.setProperty(QTextFormat::FullWidthSelection, true);
    caretLine.cursor = textCursor();
    caretLine.cursor.clearSelection();
    marks << caretLine;
    for (const auto& [line, words] : notes_) {
        const QTextBlock block = document()->findBlockByNumber(line - 1);
        if (!block.isValid()) continue;
        QTextEdit::ExtraSelection note;
        note.format.setUnderlineStyle(QTextCharFormat::WaveUnderline);
        note.format.setUnderlineColor(noteColour(palette()));
        note.cursor = QTextCursor(block);
        note.cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
        marks << note;
    }
    setExtraSelections(marks);
}

void TextEditor::setTextSize(double points) {
    const double size = std::clamp(points, kSmallest, kLargest);
    setFont(fixedPitchFont(size));
    setTabStopDistance(8 * QFontMetricsF(font()).horizontalAdvance(QLatin1Char(' ')));
    fitEdge();
    emit textSizeChanged(size);
}

double TextEditor::textSize() const {
    return font().pointSizeF();
}

void TextEditor::wheelEvent(QWheelEvent* event) {
    if (event->modifiers() != Qt::ControlModifier) return QPlainTextEdit::wheelEvent(event);
    if (event->angleDelta().y() != 0) {
        setTextSize(std::round(textSize()) + (event->angleDelta().y() > 0 ? 1 : -1));
    }
    event->accept();
}

void TextEditor::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::ZoomIn) ||
        (event->modifiers() == Qt::ControlModifier && event->key() == Qt::Key_Equal)) {
        return setTextSize(std::round(textSize()) + 1);
    }
    if (event->matches(QKeySequence::ZoomOut)) return setTextSize(std::round(textSize()) - 1);
    if (event->modifiers() == Qt::ControlModifier && event->key() == Qt::Key_0) {
        return setTextSize(QFont().pointSizeF() + 1);
    }
    // Tab alone is a letter of a text; this is the way on without a mouse.
    if (event->modifiers().testFlag(Qt::ControlModifier) &&
        (event->key() == Qt::Key_Tab || event->key() == Qt::Key_Backtab)) {
        const bool back =
            event->key() == Qt::Key_Backtab || event->modifiers().testFlag(Qt::ShiftModifier);
        setTabChangesFocus(true);
        focusNextPrevChild(!back);
        setTabChangesFocus(false);
        return;
    }
    QPlainTextEdit::keyPressEvent(event);
}

int TextEditor::lineAt(int y) const {
    QTextBlock block = firstVisibleBlock();
    while (block.isValid()) {
        const QRectF place = blockBoundingGeometry(block).translated(contentOffset());
        if (y < place.bottom()) return block.blockNumber() + 1;
        block = block.next();
    }
    return 0;
}

bool TextEditor::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip) return QPlainTextEdit::event(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    const QString words = noteOf(lineAt(viewport()->mapFromParent(help->pos()).y()));
    QToolTip::showText(help->globalPos(), words, this);
    return true;
}

int TextEditor::edgeWidth() const {
    const int digits = std::max<int>(3, static_cast<int>(QString::number(blockCount()).size()));
    return digits * fontMetrics().horizontalAdvance(QLatin1Char('0')) + 2 * kEdgeMargin;
}

void TextEditor::fitEdge() {
    setViewportMargins(edgeWidth(), 0, 0, 0);
    const QRect inside = contentsRect();
    edge_->setGeometry(inside.left(), inside.top(), edgeWidth(), inside.height());
    edge_->update();
}

void TextEditor::resizeEvent(QResizeEvent* event) {
    QPlainTextEdit::resizeEvent(event);
    fitEdge();
}

void TextEditor::paintEdge(QPaintEvent* event) {
    QPainter painter(edge_);
    painter.fillRect(event->rect(), palette().window());
    painter.setFont(font());
    const int caretLine = textCursor().blockNumber();
    const QColor quiet = palette().color(QPalette::Disabled, QPalette::WindowText);
    for (QTextBlock block = firstVisibleBlock(); block.isValid(); block = block.next()) {
        const QRectF place = blockBoundingGeometry(block).translated(contentOffset());
        if (place.top() > event->rect().bottom()) break;
        const int line = block.blockNumber() + 1;
        const bool noted = notes_.contains(line);
        if (noted) {
            painter.fillRect(QRectF(0, place.top(), 3, place.height()), noteColour(palette()));
        }
        painter.setPen(noted                              ? noteColour(palette())
                       : block.blockNumber() == caretLine ? palette().color(QPalette::WindowText)
                                                          : quiet);
        painter.drawText(QRectF(0, place.top(), edge_->width() - kEdgeMargin, place.height()),
                         Qt::AlignRight | Qt::AlignVCenter, QString::number(line));
    }
}

}  // namespace kelvo::desktop
