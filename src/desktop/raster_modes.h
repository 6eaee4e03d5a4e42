// The sixteen raster operations of a pen, on pixels and on paper.
#pragma once

#include <QColor>
#include <QPainter>
#include <optional>

namespace kelvo::desktop {

// The composition that a raster operation means on pixels; none for 11, which draws nothing.
// A number outside 1 to 16 copies the pen.
[[nodiscard]] std::optional<QPainter::CompositionMode> compositionOf(int drawMode);

// Paper and vector files know no raster operations. What a pen of the colour leaves on white
// paper under the mode; none for 11.
[[nodiscard]] std::optional<QColor> inkOnPaper(int drawMode, const QColor& pen);

}  // namespace kelvo::desktop
