// Pictures as files: PNG, SVG, PDF.
#pragma once

#include <QString>

#include "desktop/plot_picture.h"

namespace kelvo::desktop {

// The kind follows the name's ending (png, svg, pdf). The file holds the drawing with a narrow
// margin around it, on its paper's colour. False if the ending is another one or the file can't
// be written.
[[nodiscard]] bool savePicture(const PlotPicture& picture, const QString& path);

// The picture as an SVG document; text stays text.
[[nodiscard]] QString svgOf(const PlotPicture& picture);

}  // namespace kelvo::desktop
