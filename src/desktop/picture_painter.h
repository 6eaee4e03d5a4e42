// Painting a picture, on pixels or on paper.
#pragma once

#include <QPainter>
#include <QRectF>

#include "desktop/plot_picture.h"

namespace kelvo::desktop {

enum class Medium {
    Pixels,  // raster operations are carried out on what stands there
    Paper,   // printer, PDF, SVG: they are translated, white taken as what stands there
};

// Paints in twips: the caller scales the painter so that one unit is one twip. The paper's
// colour isn't painted.
void paintPicture(QPainter& painter, const PlotPicture& picture, Medium medium);

// The smallest rectangle, in twips, that holds all that is drawn, the width of pens included.
[[nodiscard]] QRectF extentOf(const PlotPicture& picture);

}  // namespace kelvo::desktop
