#include "desktop/elided_label.h"

#include <QEvent>

namespace kelvo::desktop {

ElidedLabel::ElidedLabel(QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
}

void ElidedLabel::setWholeText(const QString& text) {
    whole_ = text;
    // Assistive technology reads the whole of it.
    setAccessibleName(text);
    fit();
}

void ElidedLabel::fit() {
    const QString shown = fontMetrics().elidedText(whole_, Qt::ElideMiddle, width());
    setText(shown);
    setToolTip(shown == whole_ ? QString() : whole_);
}

void ElidedLabel::resizeEvent(QResizeEvent* event) {
    QLabel::resizeEvent(event);
    fit();
}

void ElidedLabel::changeEvent(QEvent* event) {
    QLabel::changeEvent(event);
    if (event->type() == QEvent::FontChange) fit();
}

}  // namespace kelvo::desktop
