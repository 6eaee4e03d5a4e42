#include "desktop/number_box.h"

#include <QFocusEvent>
#include <QMouseEvent>

#include "desktop/korean_faces.h"

namespace kelvo::desktop {

namespace {

constexpr int kEdges = 14;  // frame and inner margins of a line edit

}  // namespace

NumberBox::NumberBox(QWidget* parent) : QLineEdit(parent) {
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    // The face alone: the size stays that of the text around the box.
    const QFont face = fixedPitchFont(font().pointSizeF());
    QFont own;
    own.setFamilies(face.families());
    own.setHintingPreference(face.hintingPreference());
    own.setStyleHint(face.styleHint());
    setFont(own);
}

void NumberBox::setLetters(int letters) {
    letters_ = letters;
    setMinimumWidth(letters_ * fontMetrics().horizontalAdvance(QLatin1Char('0')) + kEdges);
}

void NumberBox::changeEvent(QEvent* event) {
    QLineEdit::changeEvent(event);
    if (event->type() == QEvent::FontChange && letters_ > 0) setLetters(letters_);
}

void NumberBox::focusInEvent(QFocusEvent* event) {
    const int caret = cursorPosition();
    QLineEdit::focusInEvent(event);
    if (event->reason() == Qt::PopupFocusReason || event->reason() == Qt::ActiveWindowFocusReason) {
        return;
    }
    const bool selects = selectsOnEntry_ && selectsOnEntry_();
    if (!selects) {
        deselect();
        setCursorPosition(caret);
    }
    enteredByThisPress_ = selects && event->reason() == Qt::MouseFocusReason;
    emit entered();
}

void NumberBox::mousePressEvent(QMouseEvent* event) {
    QLineEdit::mousePressEvent(event);
    // The press that brought the focus puts the caret somewhere; the selection stays all the same.
    if (enteredByThisPress_) selectAll();
}

void NumberBox::mouseMoveEvent(QMouseEvent* event) {
    if (!enteredByThisPress_) QLineEdit::mouseMoveEvent(event);
}

void NumberBox::mouseReleaseEvent(QMouseEvent* event) {
    QLineEdit::mouseReleaseEvent(event);
    enteredByThisPress_ = false;
}

}  // namespace kelvo::desktop
