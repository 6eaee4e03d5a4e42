#include "desktop/korean_faces.h"

#include <QFontInfo>
#include <QFontMetricsF>
#include <QPainterPath>
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

namespace {

// Moves a painter to the top left of a text cell and to the units of the font, and back.
class AtCell {
public:
    AtCell(QPainter& painter, double x, double y, double scale)
        : painter_(painter), before_(painter.transform()) {
        painter_.translate(x, y);
        painter_.scale(scale, scale);
    }
    ~AtCell() { painter_.setTransform(before_); }
    AtCell(const AtCell&) = delete;
    AtCell& operator=(const AtCell&) = delete;

private:
    QPainter& painter_;
    QTransform before_;
};

// Calls with each word and the place of its first letter.
template <class Action>
void eachWord(const QString& text, const Action& action) {
    for (qsizetype at = 0; at < text.size();) {
        qsizetype end = at;
        while (end < text.size() && text[end] != QLatin1Char(' ')) ++end;
        if (end > at) action(text.mid(at, end - at), at);
        at = end + 1;
    }
}

}  // namespace

void TextFace::draw(QPainter& painter, double x, double y, const QString& text) const {
    if (text.isEmpty()) return;
    const AtCell cell(painter, x, y, scale_);
    if (fitsCells_) {
        drawLines(painter, text);
        drawCells(painter, text);
    } else {
        painter.setFont(font_);
        painter.drawText(QPointF(0, ascent_), text);
    }
}

void TextFace::drawInDocument(QPainter& painter, double x, double y, const QString& text) const {
    if (text.isEmpty()) return;
    const AtCell cell(painter, x, y, scale_);
    drawLines(painter, text);
    if (fitsCells_) {
        drawOutlines(painter, text);
        drawUnseenWords(painter, text);
    } else {
        drawWords(painter, text);
    }
}

QFont TextFace::withoutLines() const {
    QFont plain = font_;
    plain.setUnderline(false);
    plain.setStrikeOut(false);
    return plain;
}

// Lines under and through the text run on from word to word, so they are drawn whole.
void TextFace::drawLines(QPainter& painter, const QString& text) const {
    const QFontMetricsF metrics(font_);
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
}

// How a letter sits in its cell: squeezed if it is too wide, in the middle otherwise.
QTransform TextFace::placeInCell(const QFontMetricsF& metrics, QChar letter, double left) const {
    const double cell = cellWidth(letter);
    const double advance = metrics.horizontalAdvance(letter);
    QTransform place;
    place.translate(advance > cell ? left : left + (cell - advance) / 2, ascent_);
    if (advance > cell) place.scale(cell / advance, 1);
    return place;
}

void TextFace::drawCells(QPainter& painter, const QString& text) const {
    const QTransform start = painter.transform();
    const QFontMetricsF metrics(font_);
    painter.setFont(withoutLines());
    double left = 0;
    for (const QChar letter : text) {
        painter.setTransform(placeInCell(metrics, letter, left), true);
        painter.drawText(QPointF(0, 0), QString(letter));
        painter.setTransform(start);
        left += cellWidth(letter);
    }
}

namespace {

QPainterPath outlineOf(QFont font, bool bold) {
    font.setBold(bold);
    QPainterPath outline;
    outline.addText(QPointF(0, 0), font, QStringLiteral("가H"));
    return outline;
}

}  // namespace

void TextFace::drawOutlines(QPainter& painter, const QString& text) const {
    const QFontMetricsF metrics(font_);
    const QFont plain = withoutLines();
    QPainterPath outlines;
    outlines.setFillRule(Qt::WindingFill);
    double left = 0;
    for (const QChar letter : text) {
        QPainterPath outline;
        outline.addText(QPointF(0, 0), plain, QString(letter));
        outlines.addPath(placeInCell(metrics, letter, left).map(outline));
        left += cellWidth(letter);
    }
    const QColor colour = painter.pen().color();
    painter.fillPath(outlines, colour);
    // Outlines come as the face has them; one without a bold cut is made bold by a pen.
    if (font_.bold() && outlineOf(font_, false) == outlineOf(font_, true)) {
        painter.strokePath(
            outlines, QPen(colour, kFontEm / 24.0, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    }
}

void TextFace::drawUnseenWords(QPainter& painter, const QString& text) const {
    const QPen seen = painter.pen();
    QFont cells = fixedPitchFont(1);
    cells.setPixelSize(kFontEm);
    const QFontMetricsF metrics(cells);
    painter.setFont(cells);
    painter.setPen(QColor(0, 0, 0, 0));
    eachWord(text, [&](const QString& word, qsizetype at) {
        const double advance = metrics.horizontalAdvance(word);
        if (!(advance > 0)) return;
        const QTransform start = painter.transform();
        painter.translate(width(text.left(at)) / scale_, ascent_);
        painter.scale(width(word) / scale_ / advance, 1);
        painter.drawText(QPointF(0, 0), word);
        painter.setTransform(start);
    });
    painter.setPen(seen);
}

void TextFace::drawWords(QPainter& painter, const QString& text) const {
    painter.setFont(withoutLines());
    eachWord(text, [&](const QString& word, qsizetype at) {
        painter.drawText(QPointF(width(text.left(at)) / scale_, ascent_), word);
    });
}

}  // namespace kelvo::desktop
