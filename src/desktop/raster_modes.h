// The sixteen raster operations of a pen, on pixels and on paper.
#pragma once

#include <QColor>
#include <QPainter>
#include <optional>

#include "plot/surface_members.h"

namespace kelvo::desktop {

// The composition that a raster operation means on pixels; none for the one that draws nothing.
[[nodiscard]] std::optional<QPainter::CompositionMode> compositionOf(RasterMode mode);

// Paper and vector files know no raster operations. What a pen of the colour leaves on white
// paper under the mode; none for the one that draws nothing.
[[nodiscard]] std::optional<QColor> inkOnPaper(RasterMode mode, const QColor& pen);

}  // namespace kelvo::desktop
