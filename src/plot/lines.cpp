// The plot object: lines, boxes and the arrow.
#include <cmath>

#include "common/checked_arithmetic.h"
#include "common/plane_geometry.h"
#include "plot/clsplot1.h"
#include "plot/plot_constants.h"

namespace kelvo {

void clsplot1::lineTo(double x1, double y1, double x2, double y2) {
    const double X1 = cx(x1);
    const double Y1 = cy(y1);
    const double X2 = cx(x2);
    const double Y2 = cy(y2);
    surface().Line(X1, Y1, X2, Y2, surface().ForeColor(), LineForm::Line);
}

void clsplot1::pline(double x1, double y1, double x2, double y2, double lw, bool alt) {
    // Only what the surface fails in is swallowed, so the arithmetic stands outside the guards.
    if (lw != 0 && lw != LineWidth_) {
        const double width = penWidth(lw);
        try {
            surface().setDrawWidth(width);
        } catch (const RuntimeFault&) {
            return;
        }
        LineWidth_ = lw;
    }
    const double X1 = cx(x1);
    const double Y1 = cy(y1);
    const double X2 = cx(x2);
    const double Y2 = cy(y2);
    try {
        surface().Line(X1, Y1, X2, Y2, alt ? kGreen : surface().ForeColor(), LineForm::Line);
    } catch (const RuntimeFault&) {
        return;
    }
    LastX_ = x2;
    LastY_ = y2;
}

void clsplot1::plineto(double x, double y, double lw) {
    latchWidth(lw);
    lineTo(LastX_, LastY_, x, y);
    LastX_ = x;
    LastY_ = y;
}

void clsplot1::plinerelto(double dx, double dy, double lw) {
    latchWidth(lw);
    lineTo(LastX_, LastY_, dx + LastX_, dy + LastY_);
    LastX_ = dx + LastX_;
    LastY_ = dy + LastY_;
}

void clsplot1::plinemmto(double x, double dx, double y, double dy, double lw) {
    latchWidth(lw);
    const auto tx = static_cast<double>(toSingle(cxInv(shiftedX(x, dx))));
    const auto ty = static_cast<double>(toSingle(cyInv(shiftedY(y, dy))));
    lineTo(LastX_, LastY_, tx, ty);
    LastX_ = tx;
    LastY_ = ty;
}

void clsplot1::plinedot(double x1, double y1, double x2, double y2, double lw, double dash,
                        double gap) {
    latchWidth(lw);
    const double dx = quotient(cx(x2) - cx(x1), kTwipsPerMillimetre * ScaleX_);
    const double dy = quotient(-(cy(y2) - cy(y1)), kTwipsPerMillimetre * ScaleY_);
    const double L = genSub::SqrGuard(finite(dx * dx + dy * dy), messages_);
    const double n = quotient(L, dash + gap);
    const double px = quotient(dx, n);
    const double py = quotient(dy, n);
    const double qx = quotient(dash * px, dash + gap);
    const double qy = quotient(dash * py, dash + gap);
    pline(x1, y1, x1, y1, lw, false);
    for (int i = 1; i <= n && i <= kMostStrokes; ++i) {
        plinemmto(x1, qx + (i - 1) * px, y1, qy + (i - 1) * py, lw);
        pmovemmto(x1, i * px, y1, i * py);
    }
}

void clsplot1::pbox(double x1, double y1, double x2, double y2, double lw) {
    latchWidth(lw);
    plwidth(lw);
    const double X1 = cx(x1);
    const double Y1 = cy(y1);
    const double X2 = cx(x2);
    const double Y2 = cy(y2);
    surface().Line(X1, Y1, X2, Y2, surface().ForeColor(), LineForm::Box);
}

void clsplot1::parrow(double x, double y, double length, double width, double angle, double lw) {
    const double t = finite((kPlotPi * angle) / 180);
    const double tipX = length * std::cos(t) + x;
    const double tipY = length * std::sin(t) + y;
    const double u = t + 0.1;  // required: not quite square to the shaft
    const double h = width / 2;
    const double ax = x - h * std::sin(u);
    const double ay = y + h * std::cos(u);
    const double wingX = x + h * std::sin(u);
    const double wingY = y - h * std::cos(u);
    constexpr double kTwo = 2.0 / 3.0;
    constexpr double kOne = 1.0 / 3.0;
    pline(tipX, tipY, x, y, lw);
    pline(ax, ay, wingX, wingY, lw);
    pline(tipX, tipY, kTwo * ax + kOne * x, kTwo * ay + kOne * y, lw);
    pline(tipX, tipY, kOne * ax + kTwo * x, kOne * ay + kTwo * y, lw);
    pline(tipX, tipY, kTwo * x + kOne * wingX, kTwo * y + kOne * wingY, lw);
    pline(tipX, tipY, kOne * x + kTwo * wingX, kOne * y + kTwo * wingY, lw);
}

}  // namespace kelvo
