// Fonts and colours of the window.
#pragma once

#include <QString>

class QApplication;

namespace kelvo::desktop {

enum class Theme { System, Light, Dark };

// The substitutes of the Korean faces, and for the window a face that has Hangul.
void setUpFonts(QApplication& application);

// Colours of the theme; what is closed to typing stays easy to read in every one.
void setTheme(QApplication& application, Theme theme);

[[nodiscard]] Theme themeNamed(const QString& name);
[[nodiscard]] QString nameOf(Theme theme);
[[nodiscard]] bool isDark();

}  // namespace kelvo::desktop
