// Fonts and colours of the window.
#pragma once

#include <QString>

class QApplication;

namespace kelvo::desktop {

enum class Theme { System, Light, Dark };

// The substitutes of the Korean faces, and for the window a face that has Hangul.
void setUpFonts(QApplication& application);

// Colours of the theme; what is closed to typing stays easy to read in every one. Theme::System is
// light or dark as the platform's own colours are. The application remembers its theme.
void setTheme(QApplication& application, Theme theme);
void setTheme(QApplication& application, Theme theme, bool systemDark);
[[nodiscard]] Theme themeOf(const QApplication& application);

// Whether the platform's own colours are dark. Ours have to be set again afterwards.
[[nodiscard]] bool systemIsDark();

// The size of the interface's text in percent of the platform's; 100 before it was set.
void setTextPercent(QApplication& application, int percent);
[[nodiscard]] int textPercentOf(const QApplication& application);

[[nodiscard]] Theme themeNamed(const QString& name);
[[nodiscard]] QString nameOf(Theme theme);

}  // namespace kelvo::desktop
