// The plot object: filled shapes. All but box and circle are made of strokes.
#include <array>
#include <cmath>

#include "common/checked_arithmetic.h"
#include "common/plane_geometry.h"
#include "plot/clsplot1.h"
#include "plot/plot_constants.h"

namespace kelvo {

using genSub::LineIntersection;
using genSub::PlanePoint;
using genSub::PolarPoint;

void clsplot1::pfillMode(double mode) {
    if (!(mode >= 1 && mode <= 16) || mode != std::trunc(mode) || mode == 6) return;
    if (mode == kFillBlack && PrinterColor_) mode = kFillCopying;
    surface().setDrawMode(static_cast<RasterMode>(static_cast<int>(mode)));
}

void clsplot1::pfill(double x1, double y1, double x2, double y2, std::int32_t colour) {
    pFillBox(x1, y1, x2, y2, colour);
}

void clsplot1::pFillBox(double x1, double y1, double x2, double y2, std::int32_t colour) {
    Surface& on = surface();
    const FillKind style = on.FillStyle();
    const std::int32_t pen = on.ForeColor();
    const RasterMode mode = on.DrawMode();
    on.setFillStyle(FillKind::Solid);
    on.setForeColor(colour);
    on.setDrawMode(RasterMode::CopyPen);
    const double X1 = cx(x1);
    const double Y1 = cy(y1);
    const double X2 = cx(x2);
    const double Y2 = cy(y2);
    on.Line(X1, Y1, X2, Y2, colour, LineForm::FilledBox);
    on.setFillStyle(style);
    on.setForeColor(pen);
    on.setDrawMode(mode);
}

void clsplot1::pFillCircle(double x, double y, double r, std::int32_t colour) {
    Surface& on = surface();
    // Kept in 16 bits: a colour above 32767 overflows here (required).
    const std::int16_t pen = roundedInteger16(on.ForeColor());
    const std::int16_t fill = roundedInteger16(on.FillColor());
    const FillKind style = on.FillStyle();
    const RasterMode mode = on.DrawMode();
    on.setFillStyle(FillKind::Solid);
    on.setForeColor(colour);
    on.setFillColor(colour);
    on.setDrawMode(RasterMode::CopyPen);
    const double R = surfaceRadius(r);
    const double X = cx(x);
    on.Circle(X, cy(y), R, 0, 0, 0, 0, CircleForm::Whole);
    on.setFillStyle(style);
    on.setForeColor(pen);
    on.setFillColor(fill);
    on.setDrawMode(mode);
}

void clsplot1::pFillEllipse(double x, double y, double a, double turn, double ratio,
                            std::int32_t colour) {
    Surface& on = surface();
    const std::int32_t pen = on.ForeColor();
    const RasterMode mode = on.DrawMode();
    on.setForeColor(colour);
    on.setDrawMode(RasterMode::CopyPen);
    const double r = finite((kPlotPi * turn) / 180);
    const double A = Curxs_ * a;
    constexpr int kSectors = 24;
    constexpr double kStep = 6.283185308 / kSectors;
    double prevX = 0;
    double prevY = 0;
    for (int i = 0; i <= kSectors; ++i) {
        const double t = kStep * i;
        const double e = std::cos(t) * A;
        const double f = ratio * (std::sin(t) * A);
        const double g = f * std::sin(r) + e * std::cos(r);
        const double k = f * std::cos(r) + e * (-std::sin(r));
        const double px = g + x;
        const double py = quotient(Curxs_ * k, Curys_) + y;
        // The first corner only opens the fan; one on a zero value breaks it (required).
        if (prevX != 0 && prevY != 0) pFillTri(prevX, prevY, px, py, x, y);
        prevX = px;
        prevY = py;
    }
    on.setForeColor(pen);
    on.setDrawMode(mode);
}

void clsplot1::pFillPoly(std::span<const double> xs, std::span<const double> ys, int n,
                         std::int32_t colour) {
    // The lists count from 1.
    const auto at = [](std::span<const double> list, int i) {
        if (i < 1 || static_cast<std::size_t>(i) > list.size()) raise(Fault::Subscript);
        return list[static_cast<std::size_t>(i - 1)];
    };
    Surface& on = surface();
    const std::int16_t pen = roundedInteger16(on.ForeColor());  // 16 bits: required
    const RasterMode mode = on.DrawMode();
    on.setForeColor(colour);
    on.setDrawMode(colour != 0 ? RasterMode::CopyPen : RasterMode::Black);
    double sumX = 0;
    double sumY = 0;
    for (int i = 1; i <= n; ++i) {
        sumX += at(xs, i);
        sumY += at(ys, i);
    }
    const double mx = quotient(sumX, n);
    const double my = quotient(sumY, n);
    for (int i = 1; i <= n - 1; ++i)
        pFillTri(at(xs, i), at(ys, i), at(xs, i + 1), at(ys, i + 1), mx, my);
    pFillTri(at(xs, n), at(ys, n), at(xs, 1), at(ys, 1), mx, my);
    on.setForeColor(pen);
    on.setDrawMode(mode);
}

void clsplot1::pFillTri(double x1, double y1, double x2, double y2, double x3, double y3) {
    Surface& on = surface();
    on.setDrawWidth(1);
    pline(x1, y1, x2, y2, 1);
    pline(x2, y2, x3, y3, 1);
    pline(x3, y3, x1, y1, 1);
    const double X1 = cx(x1);
    const double Y1 = cy(y1);
    const double X2 = cx(x2);
    const double Y2 = cy(y2);
    const double X3 = cx(x3);
    const double Y3 = cy(y3);
    double step = 11;
    if (onPrinter()) step = genSub::MinOf(on.TwipsPerPixelX(), on.TwipsPerPixelY());
    // An upright line counts as lying on x = 0 there, so it is handed over with its corner there.
    const bool upright = X1 == X2;
    const auto [D, height] =
        upright ? genSub::DistanceToLine(0, 0, 0, finite(Y2 - Y1), finite(X3 - X1), finite(Y3 - Y1))
                : genSub::DistanceToLine(X1, Y1, X2, Y2, X3, Y3);
    double H = height;
    double off = 0;
    for (int k = 0; k < kMostTriangleStrokes; ++k) {
        const int w = k <= 0 ? 1 : k;
        const double s = step * w;
        const Stroke stroke = TriStroke(X1, Y1, X2, Y2, X3, Y3, off, D);
        const PlanePoint P = PolarPoint(stroke.ax, stroke.ay, D, s / 2);
        const PlanePoint Q = PolarPoint(stroke.bx, stroke.by, D, s / 2);
        on.setDrawWidth(w + 1);
        on.Line(finite(P.x), finite(P.y), finite(Q.x), finite(Q.y), on.ForeColor(), LineForm::Line);
        off += s;
        H -= s;
        if (!(H >= 0)) break;
    }
    on.setDrawWidth(1);
}

clsplot1::Stroke clsplot1::TriStroke(double x1, double y1, double x2, double y2, double x3,
                                     double y3, double distance, double direction) {
    const PlanePoint p = PolarPoint(x1, y1, direction, distance);
    const PlanePoint q = PolarPoint(x2, y2, direction, distance);
    // The meeting point takes its y from the line that comes second; the slope that stands for
    // upright leaves no digit of it, so an upright moved side comes first.
    const auto meeting = [&](double x, double y) {
        return p.x == q.x ? LineIntersection(p.x, p.y, q.x, q.y, x, y, x3, y3)
                          : LineIntersection(x, y, x3, y3, p.x, p.y, q.x, q.y);
    };
    const PlanePoint a = meeting(x1, y1);
    const PlanePoint b = meeting(x2, y2);
    return {.ax = a.x, .ay = a.y, .bx = b.x, .by = b.y};
}

}  // namespace kelvo
