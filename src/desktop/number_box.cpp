#include "desktop/number_box.h"

#include <QFocusEvent>
#include <QMouseEvent>

#include "desktop/korean_faces.h"

namespace kelvo::desktop {

NumberBox::NumberBox(QWidget* parent) : QLineEdit(parent) {
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    setFont(fixedPitchFont(font().pointSizeF()));
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
