#include "desktop/menu_keys.h"

#include <QApplication>
#include <QKeyEvent>
#include <QShortcut>

namespace kelvo::desktop {

void leadIntoMenus(QMenuBar& bar) {
    // The menu bar knows the Alt key alone, and only as a key: a menu made active opens at once.
    const auto pressAlt = [&bar] {
        QWidget* window = bar.window();
        for (const QEvent::Type type :
             {QEvent::ShortcutOverride, QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent alt(type, Qt::Key_Alt,
                          type == QEvent::KeyRelease ? Qt::NoModifier : Qt::AltModifier);
            QApplication::sendEvent(window, &alt);
        }
    };
    auto* key = new QShortcut(Qt::Key_F10, bar.window());
    QObject::connect(key, &QShortcut::activated, &bar, pressAlt);
}

}  // namespace kelvo::desktop
