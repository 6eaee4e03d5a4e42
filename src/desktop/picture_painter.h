// Painting a picture, on pixels or on paper.
#pragma once

#include <QPainter>
#include <QRectF>
#include <vector>

#include "desktop/plot_picture.h"

namespace kelvo::desktop {

enum class Medium {
    Pixels,  // raster operations are carried out on what stands there
    Paper,   // printer, PDF, SVG: they are translated, white taken as what stands there
};

// Paints in twips: the caller scales the painter so that one unit is one twip. The paper's
// colour isn't painted.
void paintPicture(QPainter& painter, const PlotPicture& picture, Medium medium);

// Measures items of a picture.
class PictureExtent {
public:
    explicit PictureExtent(const PlotPicture& picture)
        : faces_(picture.looks.begin(), picture.looks.end()) {}

    // The smallest rectangle, in twips, that holds the item, the width of its pen included.
    [[nodiscard]] QRectF operator()(const DrawnItem& item) const;

private:
    std::vector<TextFace> faces_;
};

}  // namespace kelvo::desktop
