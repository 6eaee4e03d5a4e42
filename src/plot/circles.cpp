// The plot object: circles and arcs.
#include <cmath>

#include "common/checked_arithmetic.h"
#include "plot/clsplot1.h"
#include "plot/plot_constants.h"

namespace kelvo {
namespace {

double radians(double degrees) {
    return finite((degrees * kPlotPi) / 180);
}

}  // namespace

// The radius goes by the x scale alone, so a circle stays round whatever the axes.
double clsplot1::surfaceRadius(double r) const {
    return finite(ScaleMean_ * (kTwipsPerMillimetre * (Curxs_ * r)));
}

clsplot1::Arc clsplot1::arcOf(double x, double y, double r, double start, double end) const {
    const double span = std::fabs(finite(start - end));
    if (span > 358 && span < 363) {
        start = 0;
        end = 0;
    }
    Arc arc{.x = cx(x), .y = cy(y), .radius = surfaceRadius(r), .start = start, .end = end};
    if (arc.start < 0) arc.start += 360;
    if (arc.end < 0) arc.end += 360;
    if (arc.start > 360) arc.start -= 360;
    if (arc.end > 360) arc.end -= 360;
    return arc;
}

void clsplot1::pcircle(double x, double y, double r, double start, double end, double lw) {
    latchWidth(lw);
    const Arc arc = arcOf(x, y, r, start, end);
    if (arc.whole())
        surface().Circle(arc.x, arc.y, arc.radius, 0, 0, 0, 0, CircleForm::Whole);
    else
        surface().Circle(arc.x, arc.y, arc.radius, surface().ForeColor(), radians(arc.start),
                         radians(arc.end), 0, CircleForm::Arc);
}

void clsplot1::pcircledot(double x, double y, double r, double start, double end, double lw,
                          double dash, double gap) {
    latchWidth(lw);
    Arc arc = arcOf(x, y, r, start, end);
    if (arc.whole()) arc.end = 360;
    const double a1 = radians(arc.start);
    const double a2 = radians(arc.end);
    const double way = (a2 - a1) * arc.radius;
    const double n = quotient(quotient(way, dash + gap), ScaleMean_ * kTwipsPerMillimetre);
    const double ad = quotient(dash * (ScaleMean_ * kTwipsPerMillimetre), arc.radius);
    const double ag = quotient(gap * (ScaleMean_ * kTwipsPerMillimetre), arc.radius);
    const auto draw = [&](double from, double to) {
        surface().Circle(arc.x, arc.y, arc.radius, surface().ForeColor(), finite(from), finite(to),
                         0, CircleForm::Arc);
    };
    double e = 0;
    for (int i = 1; i <= n && i <= kMostStrokes; ++i) {
        const double s = (i - 1) * (ad + ag) + a1;
        e = s + ad;
        draw(s, e);
    }
    draw(e, a2);
}

}  // namespace kelvo
