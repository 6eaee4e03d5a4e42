#include "desktop/raster_modes.h"

namespace kelvo::desktop {

std::optional<QPainter::CompositionMode> compositionOf(int drawMode) {
    switch (drawMode) {
        case 1:
            return QPainter::RasterOp_ClearDestination;
        case 2:
            return QPainter::RasterOp_NotSourceAndNotDestination;
        case 3:
            return QPainter::RasterOp_NotSourceAndDestination;
        case 4:
            return QPainter::RasterOp_NotSource;
        case 5:
            return QPainter::RasterOp_SourceAndNotDestination;
        case 6:
            return QPainter::RasterOp_NotDestination;
        case 7:
            return QPainter::RasterOp_SourceXorDestination;
        case 8:
            return QPainter::RasterOp_NotSourceOrNotDestination;
        case 9:
            return QPainter::RasterOp_SourceAndDestination;
        case 10:
            return QPainter::RasterOp_NotSourceXorDestination;
        case 11:
            return std::nullopt;
        case 12:
            return QPainter::RasterOp_NotSourceOrDestination;
        case 14:
            return QPainter::RasterOp_SourceOrNotDestination;
        case 15:
            return QPainter::RasterOp_SourceOrDestination;
        case 16:
            return QPainter::RasterOp_SetDestination;
        default:
            return QPainter::CompositionMode_SourceOver;
    }
}

std::optional<QColor> inkOnPaper(int drawMode, const QColor& pen) {
    const QColor inverted(255 - pen.red(), 255 - pen.green(), 255 - pen.blue());
    switch (drawMode) {
        case 1:
        case 2:
        case 5:
        case 6:
            return QColor(Qt::black);
        case 3:
        case 4:
        case 7:
        case 8:
            return inverted;
        case 11:
            return std::nullopt;
        case 12:
        case 15:
        case 16:
            return QColor(Qt::white);
        default:
            return pen;
    }
}

}  // namespace kelvo::desktop
