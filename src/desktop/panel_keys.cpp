#include "desktop/panel_keys.h"

#include <QKeyEvent>
#include <utility>

namespace kelvo::desktop {

PanelKeys::PanelKeys(QWidget& panel, Action enter, Action escape)
    : QObject(&panel), enter_(std::move(enter)), escape_(std::move(escape)) {
    panel.installEventFilter(this);
}

// A key that the widget with the focus doesn't take travels up through its parents.
bool PanelKeys::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress) return QObject::eventFilter(watched, event);
    const auto* key = static_cast<QKeyEvent*>(event);
    const bool plain = (key->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    const bool enters = key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
    const Action& action = enters ? enter_ : escape_;
    if (!plain || !action || (!enters && key->key() != Qt::Key_Escape)) {
        return QObject::eventFilter(watched, event);
    }
    action();
    return true;
}

}  // namespace kelvo::desktop
