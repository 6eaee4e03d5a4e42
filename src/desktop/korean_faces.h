// Korean type faces by their Windows names, on a machine that may not have them.
#pragma once

#include <QFont>
#include <QFontMetricsF>
#include <QPainter>
#include <QString>

namespace kelvo::desktop {

// How a piece of text looks. The height of the em is in units of the painter it is drawn with:
// on a plot these are twips.
struct TextLook {
    QString face;
    double em = 0;
    bool bold = false;
    bool italic = false;
    bool strikethru = false;
    bool underline = false;
};

// Names for each Windows face the free faces that stand in for it where it isn't installed.
// To be called once, before the first text is measured.
void installFaceSubstitutes();

// The face of numbers and of the viewer: fixed pitch, a Hangul letter two Latin ones.
[[nodiscard]] QFont fixedPitchFont(double points);

// A look made ready to be measured and drawn. Hinting is off: with it, a Hangul letter isn't two
// Latin ones wide. A face whose name promises a fixed pitch ("...체") while what is installed
// doesn't keep it is fitted into cells: half an em for ASCII, one em for all else.
class TextFace {
public:
    explicit TextFace(const TextLook& look);

    // In the unit of the look's em.
    [[nodiscard]] double height() const { return height_; }
    [[nodiscard]] double ascent() const { return ascent_ * scale_; }
    [[nodiscard]] double width(const QString& text) const;

    // (x, y) is the top left of the text cell; colour is the painter's pen.
    void draw(QPainter& painter, double x, double y, const QString& text) const;

    // The same for a document, in which a reader finds the text: words stand there as words,
    // blanks as the room between them (a face's blank can stand for another letter there, and
    // letters that were fitted into cells would each be a word).
    void drawInDocument(QPainter& painter, double x, double y, const QString& text) const;

    [[nodiscard]] bool fitsCells() const { return fitsCells_; }

    // The face that is really drawn with.
    [[nodiscard]] QString installedName() const;

private:
    // Each draws from the origin, in the units of the font.
    void drawCells(QPainter& painter, const QString& text) const;
    void drawLines(QPainter& painter, const QString& text) const;
    void drawWords(QPainter& painter, const QString& text) const;
    void drawOutlines(QPainter& painter, const QString& text) const;
    void drawUnseenWords(QPainter& painter, const QString& text) const;
    [[nodiscard]] QFont withoutLines() const;
    [[nodiscard]] QTransform placeInCell(const QFontMetricsF& metrics, QChar letter,
                                         double left) const;

    QFont font_;
    double scale_ = 1;  // of the font, which is made at one size, to the look's em
    double ascent_ = 0;
    double height_ = 0;
    bool fitsCells_ = false;
};

}  // namespace kelvo::desktop
