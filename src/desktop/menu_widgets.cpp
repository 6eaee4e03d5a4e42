// The menus of the window.
#include <QMenu>
#include <QMenuBar>

#include "desktop/widget_book.h"

namespace kelvo::desktop {

namespace {

bool isSeparator(const std::string& caption) {
    return caption == "-";
}

// An entry of the recent list has its access key in front; an "&" in the path is just a letter. A
// separator has no text: it would be shown as the title of what follows.
QString actionText(const std::string& caption) {
    if (isSeparator(caption)) return {};
    if (caption.size() < 2 || caption.front() != '&') return qt(caption);
    QString rest = qt(std::string_view(caption).substr(1));
    rest.replace(QLatin1Char('&'), QStringLiteral("&&"));
    return QLatin1Char('&') + rest;
}

}  // namespace

void WidgetBook::makeMenu(Control& control) {
    QMenu* menu = menuBar_.addMenu(qt(control.caption()));
    menu->setObjectName(qt(control.name()));
    menu->setAccessibleDescription(qt(control.name()));
    menus_.emplace(control.name(), menu);
    actions_.emplace(control.name(), menu->menuAction());
    control.watch([&control, menu](Property) {
        menu->setTitle(qt(control.caption()));
        menu->setEnabled(control.enabled());
        menu->menuAction()->setVisible(control.visible());
    });
}

void WidgetBook::makeMenuItem(Control& control) {
    QMenu* menu = menus_.at(control.parent());
    auto* action = new QAction(actionText(control.caption()), menu);
    action->setObjectName(qt(control.name()));
    action->setSeparator(isSeparator(control.caption()));
    menu->addAction(action);
    QObject::connect(action, &QAction::triggered, action,
                     [this, &control] { gate_.run([&] { control.click(); }); });
    control.watch([&control, action](Property) {
        action->setText(actionText(control.caption()));
        action->setEnabled(control.enabled());
        action->setVisible(control.visible());
    });
    actions_.emplace(control.name(), action);
}

void WidgetBook::makeMenuArray(Control& control) {
    QMenu* menu = menus_.at(control.parent());
    const auto rebuild = [this, &control, menu] {
        for (QAction* old : menu->actions()) {
            if (!old->property("entry").isValid()) continue;
            menu->removeAction(old);
            old->deleteLater();  // it may be the one that is being clicked
        }
        for (int index = 0; index <= control.highestIndex(); ++index) {
            const MenuEntry& entry = control.entries()[static_cast<std::size_t>(index)];
            auto* action = new QAction(actionText(entry.caption), menu);
            action->setObjectName(QStringLiteral("%1(%2)").arg(qt(control.name())).arg(index));
            action->setProperty("entry", index);
            action->setSeparator(isSeparator(entry.caption));
            action->setEnabled(entry.enabled);
            if (index == 0) action->setShortcut(QKeySequence::New);
            if (index == 2) action->setShortcut(QKeySequence::Open);
            menu->addAction(action);
            QObject::connect(action, &QAction::triggered, menu, [this, &control, index] {
                gate_.run([&] { control.clickEntry(index); });
            });
        }
    };
    rebuild();
    control.watch([rebuild](Property) { rebuild(); });
}

}  // namespace kelvo::desktop
