// Pictures as files: PNG, SVG, PDF.
#pragma once

#include <QString>

#include "desktop/framed_picture.h"

namespace kelvo::desktop {

// The kind follows the name's ending (png, svg, pdf). The file holds what the screen shows, on the
// colour of its paper. False if the ending is another one or the file can't be written.
[[nodiscard]] bool savePicture(const FramedPicture& shown, const QString& path);

// The picture as an SVG document; text stays text.
[[nodiscard]] QString svgOf(const FramedPicture& shown);

}  // namespace kelvo::desktop
