#include "desktop/korean_faces.h"

#include <QFontInfo>
#include <QFontMetricsF>
#include <QStringList>
#include <algorithm>
#include <array>
#include <cmath>

namespace kelvo::desktop {

namespace {

struct Substitute {
    const char* face;
    std::array<const char*, 2> standIns;
};

constexpr std::array<Substitute, 8> kSubstitutes{{
    {"굴림", {"LexiGulim", "NanumGothic"}},
    {"굴림체", {"NanumGothicCoding", "D2Coding"}},
    {"돋움", {"UnDotum", "NanumGothic"}},
    {"돋움체", {"NanumGothicCoding", "D2Coding"}},
    {"바탕", {"UnBatang", "NanumMyeongjo"}},
    {"바탕체", {"UnBatang", "NanumMyeongjo"}},
    {"궁서", {"UnGungseo", "UnBatang"}},
    {"궁서체", {"UnGungseo", "UnBatang"}},
}};

// Advances are compared at a size at which rounding can't hide a difference.
constexpr int kProbeEm = 1000;

bool keepsPitch(const QFont& font) {
    const QFontMetricsF metrics(font);
    const double half = metrics.horizontalAdvance(QLatin1Char('W'));
    const auto near = [](double one, double other) { return std::abs(one - other) < 5; };
    return near(half, kProbeEm / 2.0) && near(metrics.horizontalAdvance(QLatin1Char('i')), half) &&
           near(metrics.horizontalAdvance(QStringLiteral("가")), kProbeEm);
}

// A font's em is a whole number of pixels, so that every look is drawn from this one size.
constexpr int kFontEm = 200;

double cellWidth(const QChar& letter) {
    return letter.unicode() < 0x80 ? kFontEm / 2.0 : kFontEm;
}

QFont fontOf(const TextLook& look) {
    QFont font(look.face);
    font.setPixelSize(kFontEm);
    font.setBold(look.bold);
    font.setItalic(look.italic);
    font.setStrikeOut(look.strikethru);
    font.setUnderline(look.underline);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

bool needsCells(const TextLook& look) {
    if (!look.face.endsWith(QStringLiteral("체"))) return false;
    QFont font = fontOf(look);
    font.setPixelSize(kProbeEm);
    return !keepsPitch(font);
}

}  // namespace

void installFaceSubstitutes() {
    for (const Substitute& entry : kSubstitutes) {
        QStringList names;
        for (const char* name : entry.standIns) names << QString::fromUtf8(name);
        QFont::insertSubstitutions(QString::fromUtf8(entry.face), names);
    }
}

QFont fixedPitchFont(double points) {
    QFont font(QStringLiteral("굴림체"));
    font.setPointSizeF(points);
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setStyleHint(QFont::Monospace);
    return font;
}

TextFace::TextFace(const TextLook& look)
    : font_(fontOf(look)), scale_(look.em / kFontEm), fitsCells_(needsCells(look)) {
    const QFontMetricsF metrics(font_);
    ascent_ = metrics.ascent();
    height_ = metrics.height() * scale_;
}

double TextFace::width(const QString& text) const {
    double width = 0;
    if (fitsCells_) {
        for (const QChar letter : text) width += cellWidth(letter);
    } else {
        width = QFontMetricsF(font_).horizontalAdvance(text);
    }
    return width * scale_;
}

QString TextFace::installedName() const {
    return QFontInfo(font_).family();
}

void TextFace::draw(QPainter& painter, double x, double y, const QString& text) const {
    if (text.isEmpty()) return;
    const QTransform before = painter.transform();
    painter.translate(x, y);
    painter.scale(scale_, scale_);
    painter.setFont(font_);
    if (fitsCells_) {
        drawCells(painter, text);
    } else {
        painter.drawText(QPointF(0, ascent_), text);
    }
    painter.setTransform(before);
}

void TextFace::drawCells(QPainter& painter, const QString& text) const {
    const QFontMetricsF metrics(font_);
    const QTransform start = painter.transform();
    // Lines under and through the text run on from cell to cell, so they are drawn whole.
    QFont plain = font_;
    plain.setUnderline(false);
    plain.setStrikeOut(false);
    painter.setFont(plain);
    const double thickness = std::max(metrics.lineWidth(), kFontEm / 20.0);
    const double whole = width(text) / scale_;
    const QColor colour = painter.pen().color();
    if (font_.underline()) {
        const double y = ascent_ + metrics.underlinePos();
        painter.fillRect(QRectF(0, y, whole, thickness), colour);
    }
    if (font_.strikeOut()) {
        const double y = ascent_ - metrics.strikeOutPos();
        painter.fillRect(QRectF(0, y, whole, thickness), colour);
    }
    double left = 0;
    for (const QChar letter : text) {
        const double cell = cellWidth(letter);
        const double advance = metrics.horizontalAdvance(letter);
        if (advance > cell) {
            painter.translate(left, ascent_);
            painter.scale(cell / advance, 1);
        } else {
            painter.translate(left + (cell - advance) / 2, ascent_);
        }
        painter.drawText(QPointF(0, 0), QString(letter));
        painter.setTransform(start);
        left += cell;
    }
}

}  // namespace kelvo::desktop
