// A picture as the list of what was drawn. It is drawn once, and can then be painted at any
// size: on the screen, on paper, into a file.
#pragma once

#include <QColor>
#include <QPointF>
#include <QRectF>
#include <QString>
#include <variant>
#include <vector>

#include "desktop/korean_faces.h"
#include "plot/surface_members.h"

namespace kelvo::desktop {

// All lengths are twips. A pen is `width` twips wide; `mode` is how it meets what stands there.
struct Pen {
    QColor colour;
    double width = 0;
    RasterMode mode = RasterMode::CopyPen;
};

struct DrawnLine {
    Pen pen;
    QPointF from;
    QPointF to;
};

struct DrawnBox {
    Pen pen;
    QRectF box;
    bool filled = false;
};

// An arc from start to end, radians, counter-clockwise; a whole circle when both are equal.
// Only a whole circle is filled.
struct DrawnCircle {
    Pen pen;
    QPointF centre;
    double radiusX = 0;
    double radiusY = 0;
    double start = 0;
    double end = 0;
    bool filled = false;
    QColor fill;
};

// Text from the top left of its cell, turned about that point by `angle` degrees
// counter-clockwise. `look` is the place in the picture's list of looks.
struct DrawnText {
    QColor colour;
    QPointF corner;
    double angle = 0;
    std::size_t look = 0;
    QString text;
};

using DrawnItem = std::variant<DrawnLine, DrawnBox, DrawnCircle, DrawnText>;

struct PlotPicture {
    QColor paper{Qt::white};
    std::vector<TextLook> looks;
    std::vector<DrawnItem> items;

    void clear() { items.clear(), looks.clear(); }
};

}  // namespace kelvo::desktop
