// The button "화면": colours and size of the interface.
#pragma once

#include <QActionGroup>
#include <QSettings>
#include <QToolButton>
#include <functional>

#include "desktop/look_of_window.h"

namespace kelvo::desktop {

class LookMenu final : public QToolButton {
    Q_OBJECT

public:
    // Settings remember what is chosen here.
    LookMenu(QString settingsFile, QWidget* parent);

    // The platform's own colours have changed: a theme that goes by them changes, too.
    void followSystem();

    // Whether the platform's colours are dark; another source in tests.
    std::function<bool()> systemIsDark;

private:
    void addThemes(QMenu& menu);
    void addTextSizes(QMenu& menu);
    void choose(Theme theme);

    QString settingsFile_;
};

}  // namespace kelvo::desktop
