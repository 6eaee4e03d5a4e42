#include "desktop/picture_painter.h"

#include <QPainterPath>
#include <QPen>
#include <algorithm>
#include <cmath>
#include <numbers>
#include <optional>

#include "desktop/raster_modes.h"

namespace kelvo::desktop {

namespace {

constexpr double kSixteenthsPerRadian = 16 * 180 / std::numbers::pi;

std::vector<TextFace> facesOf(const PlotPicture& picture) {
    return {picture.looks.begin(), picture.looks.end()};
}

class ItemPainter {
public:
    ItemPainter(QPainter& painter, const PlotPicture& picture, Medium medium)
        : painter_(painter),
          faces_(facesOf(picture)),
          medium_(medium),
          toDevice_(painter.deviceTransform()),
          fromDevice_(toDevice_.inverted()),
          onWholePixels_(medium == Medium::Pixels && toDevice_.type() <= QTransform::TxScale) {}

    void operator()(const DrawnLine& line) {
        // Grid lines are crisp without smoothing, slanted ones are smooth with it; a raster
        // operation needs whole pixels.
        const bool upright = std::abs(line.from.x() - line.to.x()) < 0.5;
        const bool level = upright || std::abs(line.from.y() - line.to.y()) < 0.5;
        // Only thin ones: the round ends of a wide one show.
        const bool thin = line.pen.width * toDevice_.m11() < 2.5;
        if (level && thin && onWholePixels_ && line.pen.mode == RasterMode::CopyPen) {
            return drawLevelLine(line, upright);
        }
        if (!usePen(line.pen)) return;
        smooth((!level || !thin) && line.pen.mode == RasterMode::CopyPen);
        painter_.drawLine(line.from, line.to);
    }

    void operator()(const DrawnBox& box) {
        const std::optional<QColor> ink = useMode(box.pen);
        if (!ink) return;
        smooth(false);
        if (box.filled) {
            painter_.fillRect(box.box, *ink);
            return;
        }
        if (!usePen(box.pen)) return;
        painter_.setBrush(Qt::NoBrush);
        painter_.drawRect(box.box);
    }

    void operator()(const DrawnCircle& circle) {
        if (!usePen(circle.pen)) return;
        smooth(circle.pen.mode == RasterMode::CopyPen);
        const QRectF frame(circle.centre.x() - circle.radiusX, circle.centre.y() - circle.radiusY,
                           2 * circle.radiusX, 2 * circle.radiusY);
        const bool whole = !(circle.start < circle.end) && !(circle.end < circle.start);
        if (whole && !circle.filled && circle.pen.mode == RasterMode::CopyPen)
            return drawRing(circle);
        if (whole) {
            const std::optional<QColor> fill = inkOf({circle.fill, 0, circle.pen.mode});
            painter_.setBrush(circle.filled && fill ? QBrush(*fill) : QBrush(Qt::NoBrush));
            painter_.drawEllipse(frame);
            return;
        }
        double span = circle.end - circle.start;
        if (span < 0) span += 2 * std::numbers::pi;
        painter_.setBrush(Qt::NoBrush);
        painter_.drawArc(frame, static_cast<int>(std::lround(circle.start * kSixteenthsPerRadian)),
                         static_cast<int>(std::lround(span * kSixteenthsPerRadian)));
    }

    // Text never knows a raster operation.
    void operator()(const DrawnText& text) {
        setMode(QPainter::CompositionMode_SourceOver);
        smooth(true);
        painter_.setPen(text.colour);
        penIsKnown_ = false;
        const TextFace& face = faces_[text.look];
        if (std::abs(text.angle) < 0.05) {
            drawText(face, text.corner, text.text);
            return;
        }
        painter_.save();
        painter_.translate(text.corner);
        painter_.rotate(-text.angle);
        drawText(face, QPointF(), text.text);
        painter_.restore();
    }

private:
    void drawText(const TextFace& face, QPointF corner, const QString& text) {
        if (medium_ == Medium::Paper) {
            face.drawInDocument(painter_, corner.x(), corner.y(), text);
        } else {
            face.draw(painter_, corner.x(), corner.y(), text);
        }
    }

    // As a rectangle of whole pixels, so that all lines of a grid are equally wide; much quicker
    // than a pen, too.
    void drawLevelLine(const DrawnLine& line, bool upright) {
        setMode(QPainter::CompositionMode_SourceOver);
        smooth(false);
        QRectF place = QRectF(line.from, line.to).normalized();
        place = toDevice_.mapRect(place);
        const double width = std::max(1.0, std::round(line.pen.width * toDevice_.m11()));
        if (upright) {
            place.setLeft(std::round(place.left() - width / 2));
            place.setWidth(width);
        } else {
            place.setTop(std::round(place.top() - width / 2));
            place.setHeight(width);
        }
        painter_.fillRect(fromDevice_.mapRect(place), line.pen.colour);
    }

    // A plot's circles are many and small. Filling the ring between two circles takes a fraction
    // of the time of drawing one with a pen.
    void drawRing(const DrawnCircle& circle) {
        const auto near = [](double one, double other) { return std::abs(one - other) < 0.01; };
        if (!near(circle.radiusX, ringRadius_) || !near(circle.pen.width, ringWidth_)) {
            ringRadius_ = circle.radiusX;
            ringWidth_ = circle.pen.width;
            ring_ = QPainterPath();
            const double outer = ringRadius_ + ringWidth_ / 2;
            const double inner = std::max(0.0, ringRadius_ - ringWidth_ / 2);
            ring_.addEllipse(QPointF(0, 0), outer, outer);
            ring_.addEllipse(QPointF(0, 0), inner, inner);
        }
        painter_.fillPath(ring_.translated(circle.centre), circle.pen.colour);
    }

    void smooth(bool on) {
        if (on == smooth_) return;
        painter_.setRenderHint(QPainter::Antialiasing, on);
        smooth_ = on;
    }

    void setMode(QPainter::CompositionMode mode) {
        if (medium_ == Medium::Paper || mode == mode_) return;
        painter_.setCompositionMode(mode);
        mode_ = mode;
    }

    [[nodiscard]] std::optional<QColor> inkOf(const Pen& pen) const {
        if (medium_ == Medium::Paper) return inkOnPaper(pen.mode, pen.colour);
        return compositionOf(pen.mode) ? std::optional(pen.colour) : std::nullopt;
    }

    // The colour to draw with, and the raster operation set; nothing if nothing is to be drawn.
    std::optional<QColor> useMode(const Pen& pen) {
        const std::optional<QPainter::CompositionMode> mode = compositionOf(pen.mode);
        if (!mode) return std::nullopt;
        setMode(*mode);
        return inkOf(pen);
    }

    bool usePen(const Pen& pen) {
        const std::optional<QColor> ink = useMode(pen);
        if (!ink) return false;
        if (penIsKnown_ && *ink == ink_ && !(pen.width < width_) && !(width_ < pen.width)) {
            return true;
        }
        painter_.setPen(QPen(*ink, pen.width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        ink_ = *ink;
        width_ = pen.width;
        penIsKnown_ = true;
        return true;
    }

    QPainter& painter_;
    std::vector<TextFace> faces_;
    Medium medium_;
    QTransform toDevice_;
    QTransform fromDevice_;
    bool onWholePixels_ = false;
    QPainterPath ring_;
    double ringRadius_ = -1;
    double ringWidth_ = 0;
    QPainter::CompositionMode mode_ = QPainter::CompositionMode_SourceOver;
    bool smooth_ = false;
    bool penIsKnown_ = false;
    QColor ink_;
    double width_ = 0;
};

QRectF widened(const QRectF& box, double width) {
    return box.adjusted(-width / 2, -width / 2, width / 2, width / 2);
}

struct Extent {
    const std::vector<TextFace>& faces;

    QRectF operator()(const DrawnLine& line) const {
        return widened(QRectF(line.from, line.to).normalized(), line.pen.width);
    }
    QRectF operator()(const DrawnBox& box) const { return widened(box.box, box.pen.width); }
    QRectF operator()(const DrawnCircle& circle) const {
        const QRectF frame(circle.centre.x() - circle.radiusX, circle.centre.y() - circle.radiusY,
                           2 * circle.radiusX, 2 * circle.radiusY);
        return widened(frame, circle.pen.width);
    }
    QRectF operator()(const DrawnText& text) const {
        const TextFace& face = faces[text.look];
        const QRectF cell(0, 0, face.width(text.text), face.height());
        QTransform turn;
        turn.translate(text.corner.x(), text.corner.y());
        turn.rotate(-text.angle);
        return turn.mapRect(cell);
    }
};

}  // namespace

void paintPicture(QPainter& painter, const PlotPicture& picture, Medium medium) {
    painter.save();
    painter.setRenderHint(QPainter::TextAntialiasing, true);
    painter.setRenderHint(QPainter::Antialiasing, false);
    ItemPainter itemPainter(painter, picture, medium);
    for (const DrawnItem& item : picture.items) {
        std::visit([&itemPainter](const auto& drawn) { itemPainter(drawn); }, item);
    }
    painter.restore();
}

QRectF PictureExtent::operator()(const DrawnItem& item) const {
    return std::visit(Extent{faces_}, item);
}

}  // namespace kelvo::desktop
