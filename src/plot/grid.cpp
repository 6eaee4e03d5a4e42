// The plot object: a window with its grid.
#include <algorithm>
#include <cmath>

#include "common/checked_arithmetic.h"
#include "common/plane_geometry.h"
#include "plot/clsplot1.h"

namespace kelvo {
namespace {

// Added to each count of lines, so that a span of exact multiples keeps its last line.
constexpr double kCountMargin = 0.00001;
constexpr double kPenColour = 2;  // of ChangeColor

}  // namespace

// One axis of a grid: its values, and the ends of its lines on the other axis.
struct clsplot1::GridAxis {
    bool ofX = true;
    double lo = 0, hi = 0;
    double from = 0, to = 0;
    double major = 0, minor = 0;
    std::int32_t majorColour = 0, minorColour = 0;
};

void clsplot1::pgrid(double pl, double ul, double pr, double ur, double mx, double nx, double pb,
                     double ub, double pt, double ut, double my, double ny, double kind,
                     std::int32_t majorColour, std::int32_t minorColour) {
    pwindow(pl, ul, pr, ur, pb, ub, pt, ut, kind);
    const GridAxis x{true, std::min(ul, ur), std::max(ul, ur), ub, ut, mx,
                     nx,   majorColour,      minorColour};
    const GridAxis y{false, std::min(ub, ut), std::max(ub, ut), ul, ur, my,
                     ny,    majorColour,      minorColour};
    int strokesLeft = kMostStrokes;
    if (linearX()) drawLinearAxis(x, strokesLeft);
    if (logarithmicX()) drawLogarithmicAxis(x, strokesLeft);
    if (linearY()) drawLinearAxis(y, strokesLeft);
    if (logarithmicY()) drawLogarithmicAxis(y, strokesLeft);
}

void clsplot1::gridLine(const GridAxis& axis, double v, double lw, int& strokesLeft) {
    --strokesLeft;
    if (axis.ofX)
        pline(v, axis.from, v, axis.to, lw, false);
    else
        pline(axis.from, v, axis.to, v, lw, false);
}

void clsplot1::drawLinearAxis(const GridAxis& axis, int& strokesLeft) {
    double c = quotient(axis.hi - axis.lo, axis.minor) + kCountMargin;
    ChangeColor(axis.minorColour, kPenColour);
    for (int i = 1; i <= c - 1 && strokesLeft > 0; ++i)
        gridLine(axis, axis.lo + axis.minor * i, 1, strokesLeft);
    c = quotient(axis.hi - axis.lo, axis.major) + kCountMargin;
    ChangeColor(axis.majorColour, kPenColour);
    for (int i = 0; i <= c && strokesLeft > 0; ++i)
        gridLine(axis, axis.lo + axis.major * i, 2, strokesLeft);
}

void clsplot1::drawLogarithmicAxis(const GridAxis& axis, int& strokesLeft) {
    const double d = genSub::Log10Guard(quotient(axis.hi, axis.lo)) + kCountMargin;
    const double c5 = quotient(10 * axis.lo, axis.major) + kCountMargin;
    const double c6 = quotient(10 * axis.lo, axis.minor) + kCountMargin;
    for (int i = 0; i <= d - 1 && strokesLeft > 0; ++i) {
        ChangeColor(axis.majorColour, kPenColour);
        const double b = std::pow(10.0, i) * axis.lo;
        gridLine(axis, b, 2, strokesLeft);
        double s = quotient(10 * b, c5);
        for (int j = 1; j <= c5 - 1 && strokesLeft > 0; ++j)
            gridLine(axis, j * s, 2, strokesLeft);  // without b (required)
        s = quotient(10 * b, c6);
        ChangeColor(axis.minorColour, kPenColour);
        for (int j = 1; j <= c6 - 1 && strokesLeft > 0; ++j) {
            const double v = b + s * j;
            if (v > 10 * b) break;
            gridLine(axis, v, 1, strokesLeft);
        }
    }
}

}  // namespace kelvo
