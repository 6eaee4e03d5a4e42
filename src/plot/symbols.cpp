// The plot object: the symbols that mark a point.
#include "common/checked_arithmetic.h"
#include "plot/clsplot1.h"

namespace kelvo {
namespace {

// Symbols measure this share of their width as a 32-bit float (required).
double share(double factor, double size) {
    return static_cast<double>(toSingle(factor * size));
}

}  // namespace

void clsplot1::ticmark(double x, double y, double size, double kind, double& lw) {
    latchWidth(lw);
    const double s = size;
    const auto move = [&](double dx, double dy) { pmovemmto(x, dx, y, dy); };
    const auto line = [&](double dx, double dy) { plinemmto(x, dx, y, dy, lw); };
    if (kind == 0) {
        pcircle(x, y, quotient(s * 0.5, Curxs_), 0, 0, lw);
    } else if (kind == 1) {
        move(0, 0.7 * s);
        line(0.5 * s, -0.3 * s);
        line(-0.5 * s, -0.3 * s);
        line(0, 0.7 * s);
    } else if (kind == 2) {
        const double a = share(0.75, s);
        move(0.5 * a, 0.5 * s);
        line(0.5 * a, -0.5 * s);
        line(-0.5 * a, -0.5 * s);
        line(-0.5 * a, 0.5 * s);
        line(0.5 * a, 0.5 * s);
    } else if (kind == 3) {
        const double a = share(0.8, s);
        lw = lw * 1.4;
        move(0, 0.5 * a);
        line(0, -0.5 * a);
        move(-0.5 * a, 0);
        line(0.5 * a, 0);
    } else if (kind == 4) {
        const double a = share(0.8, s);
        lw = lw * 1.4;
        move(0.5 * a, 0.5 * s);
        line(-0.5 * a, -0.5 * s);
        move(-0.5 * a, 0.5 * s);
        line(0.5 * a, -0.5 * s);
    } else if (kind == 5) {
        move(0, -0.7 * s);
        line(-0.5 * s, 0.3 * s);
        line(0.5 * s, 0.3 * s);
        line(0, -0.7 * s);
    }
}

}  // namespace kelvo
