// The button "작업": what the window offers beside the form's own menus.
#pragma once

#include <QToolButton>
#include <functional>

namespace kelvo::desktop {

class WorkMenu final : public QToolButton {
    Q_OBJECT

public:
    explicit WorkMenu(QWidget* parent);

    // An entry of the menu. `name` is the action's object name.
    void add(const QString& words, const QString& name, std::function<void()> work);
    void addSeparator();
};

}  // namespace kelvo::desktop
