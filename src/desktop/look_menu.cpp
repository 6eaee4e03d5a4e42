#include "desktop/look_menu.h"

#include <QApplication>
#include <QMenu>
#include <array>
#include <utility>

namespace kelvo::desktop {

namespace {

struct ThemeWords {
    Theme theme;
    const char* words;
};
constexpr std::array<ThemeWords, 3> kThemes{
    {{Theme::System, "시스템 따라(&S)"}, {Theme::Light, "밝게(&L)"}, {Theme::Dark, "어둡게(&D)"}}};

struct SizeWords {
    int percent;
    const char* words;
};
constexpr std::array<SizeWords, 5> kSizes{{{85, "글자 작게(&1)"},
                                           {100, "글자 보통(&2)"},
                                           {115, "글자 크게(&3)"},
                                           {135, "글자 더 크게(&4)"},
                                           {160, "글자 아주 크게(&5)"}}};

QApplication& application() {
    return *static_cast<QApplication*>(QApplication::instance());
}

}  // namespace

LookMenu::LookMenu(QString settingsFile, QWidget* parent)
    : QToolButton(parent),
      systemIsDark(&desktop::systemIsDark),
      settingsFile_(std::move(settingsFile)) {
    setObjectName(QStringLiteral("look"));
    setText(QStringLiteral("화면(&V)"));
    setToolTip(QStringLiteral("화면의 색과 글자 크기"));
    setPopupMode(QToolButton::InstantPopup);
    setAutoRaise(true);
    setFocusPolicy(Qt::TabFocus);
    auto* menu = new QMenu(this);
    menu->setObjectName(QStringLiteral("lookMenu"));
    addThemes(*menu);
    menu->addSeparator();
    addTextSizes(*menu);
    setMenu(menu);
}

void LookMenu::addThemes(QMenu& menu) {
    auto* group = new QActionGroup(this);
    for (const auto& [theme, words] : kThemes) {
        QAction* action = menu.addAction(QString::fromUtf8(words));
        action->setCheckable(true);
        action->setChecked(theme == themeOf(application()));
        group->addAction(action);
        connect(action, &QAction::triggered, this, [this, theme = theme] { choose(theme); });
    }
}

void LookMenu::addTextSizes(QMenu& menu) {
    auto* group = new QActionGroup(this);
    for (const auto& [percent, words] : kSizes) {
        QAction* action = menu.addAction(QString::fromUtf8(words));
        action->setCheckable(true);
        action->setChecked(percent == textPercentOf(application()));
        group->addAction(action);
        connect(action, &QAction::triggered, this, [this, percent = percent] {
            setTextPercent(application(), percent);
            QSettings(settingsFile_, QSettings::IniFormat)
                .setValue(QStringLiteral("text"), percent);
        });
    }
}

void LookMenu::choose(Theme theme) {
    setTheme(application(), theme, systemIsDark());
    QSettings(settingsFile_, QSettings::IniFormat).setValue(QStringLiteral("theme"), nameOf(theme));
}

void LookMenu::followSystem() {
    const Theme theme = themeOf(application());
    if (theme == Theme::System) setTheme(application(), theme, systemIsDark());
}

}  // namespace kelvo::desktop
