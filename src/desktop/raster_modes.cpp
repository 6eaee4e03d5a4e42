#include "desktop/raster_modes.h"

namespace kelvo::desktop {

std::optional<QPainter::CompositionMode> compositionOf(RasterMode mode) {
    switch (mode) {
        case RasterMode::Black:
            return QPainter::RasterOp_ClearDestination;
        case RasterMode::NotPenAndNotPaper:
            return QPainter::RasterOp_NotSourceAndNotDestination;
        case RasterMode::NotPenAndPaper:
            return QPainter::RasterOp_NotSourceAndDestination;
        case RasterMode::NotPen:
            return QPainter::RasterOp_NotSource;
        case RasterMode::PenAndNotPaper:
            return QPainter::RasterOp_SourceAndNotDestination;
        case RasterMode::NotPaper:
            return QPainter::RasterOp_NotDestination;
        case RasterMode::PenXorPaper:
            return QPainter::RasterOp_SourceXorDestination;
        case RasterMode::NotPenOrNotPaper:
            return QPainter::RasterOp_NotSourceOrNotDestination;
        case RasterMode::PenAndPaper:
            return QPainter::RasterOp_SourceAndDestination;
        case RasterMode::NotPenXorPaper:
            return QPainter::RasterOp_NotSourceXorDestination;
        case RasterMode::Nothing:
            return std::nullopt;
        case RasterMode::NotPenOrPaper:
            return QPainter::RasterOp_NotSourceOrDestination;
        case RasterMode::PenOrNotPaper:
            return QPainter::RasterOp_SourceOrNotDestination;
        case RasterMode::PenOrPaper:
            return QPainter::RasterOp_SourceOrDestination;
        case RasterMode::White:
            return QPainter::RasterOp_SetDestination;
        default:
            return QPainter::CompositionMode_SourceOver;
    }
}

std::optional<QColor> inkOnPaper(RasterMode mode, const QColor& pen) {
    const QColor inverted(255 - pen.red(), 255 - pen.green(), 255 - pen.blue());
    switch (mode) {
        case RasterMode::Black:
        case RasterMode::NotPenAndNotPaper:
        case RasterMode::PenAndNotPaper:
        case RasterMode::NotPaper:
            return QColor(Qt::black);
        case RasterMode::NotPenAndPaper:
        case RasterMode::NotPen:
        case RasterMode::PenXorPaper:
        case RasterMode::NotPenOrNotPaper:
            return inverted;
        case RasterMode::Nothing:
            return std::nullopt;
        case RasterMode::NotPenOrPaper:
        case RasterMode::PenOrPaper:
        case RasterMode::White:
            return QColor(Qt::white);
        default:
            return pen;
    }
}

}  // namespace kelvo::desktop
