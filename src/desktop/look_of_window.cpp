#include "desktop/look_of_window.h"

#include <QApplication>
#include <QFontDatabase>
#include <QPalette>
#include <QRawFont>
#include <QStyle>
#include <QStyleFactory>

#include "desktop/korean_faces.h"

namespace kelvo::desktop {

namespace {

// What the application object remembers.
constexpr const char* kTheme = "kelvo theme";
constexpr const char* kTextPercent = "kelvo text percent";
constexpr const char* kWholeTextSize = "kelvo text size";

QPalette lightPalette() {
    QPalette palette(QColor(0xEF, 0xF1, 0xF3));
    palette.setColor(QPalette::WindowText, QColor(0x1C, 0x20, 0x24));
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::AlternateBase, QColor(0xF2, 0xF6, 0xFA));
    palette.setColor(QPalette::Text, QColor(0x1C, 0x20, 0x24));
    palette.setColor(QPalette::Button, QColor(0xE6, 0xE9, 0xEC));
    palette.setColor(QPalette::ButtonText, QColor(0x1C, 0x20, 0x24));
    palette.setColor(QPalette::Highlight, QColor(0x2F, 0x5D, 0x7C));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::ToolTipBase, QColor(0xFF, 0xFD, 0xEE));
    palette.setColor(QPalette::ToolTipText, QColor(0x1C, 0x20, 0x24));
    return palette;
}

QPalette darkPalette() {
    QPalette palette(QColor(0x3A, 0x3F, 0x44));
    const QColor text(0xE6, 0xE8, 0xEA);
    palette.setColor(QPalette::WindowText, text);
    palette.setColor(QPalette::Base, QColor(0x23, 0x27, 0x2A));
    palette.setColor(QPalette::AlternateBase, QColor(0x2D, 0x32, 0x37));
    palette.setColor(QPalette::Text, text);
    palette.setColor(QPalette::Button, QColor(0x4A, 0x50, 0x56));
    palette.setColor(QPalette::ButtonText, text);
    palette.setColor(QPalette::BrightText, Qt::white);
    palette.setColor(QPalette::Highlight, QColor(0x3B, 0x73, 0x99));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, QColor(0x8A, 0xC4, 0xE8));
    palette.setColor(QPalette::ToolTipBase, QColor(0x38, 0x3D, 0x42));
    palette.setColor(QPalette::ToolTipText, text);
    palette.setColor(QPalette::PlaceholderText, QColor(0x9A, 0xA0, 0xA6));
    return palette;
}

QColor mixed(const QColor& one, const QColor& other, double share) {
    const auto mix = [share](int a, int b) {
        return static_cast<int>(a * share + b * (1 - share));
    };
    return QColor(mix(one.red(), other.red()), mix(one.green(), other.green()),
                  mix(one.blue(), other.blue()));
}

// Results stand in closed boxes as well: their text keeps most of its contrast.
void keepClosedReadable(QPalette& palette) {
    const QColor text = palette.color(QPalette::Active, QPalette::Text);
    const QColor window = palette.color(QPalette::Active, QPalette::Window);
    palette.setColor(QPalette::Disabled, QPalette::Text, mixed(text, window, 0.72));
    palette.setColor(QPalette::Disabled, QPalette::WindowText, mixed(text, window, 0.62));
    palette.setColor(QPalette::Disabled, QPalette::ButtonText, mixed(text, window, 0.5));
    palette.setColor(QPalette::Disabled, QPalette::Base, window);
}

}  // namespace

void setUpFonts(QApplication& application) {
    installFaceSubstitutes();
    QFont font = QApplication::font();
    if (QRawFont::fromFont(font).supportsCharacter(QChar(0xAC00))) return;
    const QStringList installed = QFontDatabase::families();
    for (const char* name :
         {"Noto Sans CJK KR", "NanumBarunGothic", "NanumGothic", "UnDotum", "LexiGulim"}) {
        if (!installed.contains(QLatin1String(name))) continue;
        font.setFamily(QLatin1String(name));
        if (font.pointSizeF() > 9.5) font.setPointSizeF(9.5);
        application.setFont(font);
        return;
    }
}

void setTheme(QApplication& application, Theme theme) {
    setTheme(application, theme, theme == Theme::System && systemIsDark());
}

void setTheme(QApplication& application, Theme theme, bool systemDark) {
    application.setProperty(kTheme, nameOf(theme));
    if (QApplication::style()->name() != QLatin1String("fusion")) {
        if (QStyle* style = QStyleFactory::create(QStringLiteral("Fusion"))) {
            QApplication::setStyle(style);
        }
    }
    const bool dark = theme == Theme::Dark || (theme == Theme::System && systemDark);
    QPalette palette = dark ? darkPalette() : lightPalette();
    keepClosedReadable(palette);
    application.setPalette(palette);
}

Theme themeOf(const QApplication& application) {
    return themeNamed(application.property(kTheme).toString());
}

bool systemIsDark() {
    // Without a palette of ours the application has the platform's.
    QApplication::setPalette(QPalette());
    return QApplication::palette().window().color().lightness() < 128;
}

void setTextPercent(QApplication& application, int percent) {
    QFont font = QApplication::font();
    QVariant whole = application.property(kWholeTextSize);
    if (!whole.isValid()) {
        whole = font.pointSizeF();
        application.setProperty(kWholeTextSize, whole);
    }
    application.setProperty(kTextPercent, percent);
    font.setPointSizeF(whole.toDouble() * percent / 100);
    application.setFont(font);
}

int textPercentOf(const QApplication& application) {
    const QVariant percent = application.property(kTextPercent);
    return percent.isValid() ? percent.toInt() : 100;
}

Theme themeNamed(const QString& name) {
    if (name == QLatin1String("light")) return Theme::Light;
    if (name == QLatin1String("dark")) return Theme::Dark;
    return Theme::System;
}

QString nameOf(Theme theme) {
    switch (theme) {
        case Theme::Light:
            return QStringLiteral("light");
        case Theme::Dark:
            return QStringLiteral("dark");
        case Theme::System:
            break;
    }
    return QStringLiteral("system");
}

}  // namespace kelvo::desktop
