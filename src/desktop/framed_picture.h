// How much of a drawing a picture shows: one rule for the screen and for files.
#pragma once

#include <QPainter>
#include <QRectF>
#include <vector>

#include "desktop/plot_picture.h"

namespace kelvo::desktop {

struct FramedPicture {
    PlotPicture picture;            // what is shown
    std::vector<QRectF> extents{};  // of its items
    QRectF frame;                   // in twips: all of it, and a narrow margin
    int pointsLeftOut = 0;          // circles too far away to be shown
};

// All that is drawn on the page of a plot and up to the width of that page around it; texts that
// begin there are shown whole. What lies farther away would make all else too small to be read: it
// is left out, and counted.
[[nodiscard]] FramedPicture framed(const PlotPicture& picture);

// Paints, in twips, the items that reach into this part of the surface.
void paintPart(QPainter& painter, const FramedPicture& shown, const QRectF& part);

// Tells how many points aren't shown; empty if all are.
[[nodiscard]] QString leftOutNote(int points);

}  // namespace kelvo::desktop
