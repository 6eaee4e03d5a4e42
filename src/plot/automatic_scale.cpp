#include "plot/automatic_scale.h"

#include <cmath>
#include <span>

#include "common/checked_arithmetic.h"

namespace kelvo {
namespace {

struct Row {
    double upTo;  // the first row reaches up to, but not including, its bound
    float interval;
};

float intervalOf(double width, std::span<const Row> rows, float beyond) {
    if (width < rows[0].upTo) return rows[0].interval;
    for (const Row& row : rows.subspan(1))
        if (width <= row.upTo) return row.interval;
    return beyond;
}

PlotScale scaleOf(const Extents& extents, float interval, bool northIsWider, double roundUp) {
    const auto I = static_cast<double>(interval);
    const auto snapDown = [I](double value) { return std::floor(value / I) * I; };
    const double wideMin = northIsWider ? extents.minN : extents.minE;
    const double wideMax = northIsWider ? extents.maxN : extents.maxE;
    const double narrowMin = northIsWider ? extents.minE : extents.minN;
    const double narrowMax = northIsWider ? extents.maxE : extents.maxN;
    const double begin = snapDown(wideMin);
    const double end = (std::floor(wideMax / I) + 1) * I;
    const float s = toSingle(end - begin);
    const double other =
        std::floor(((narrowMax + narrowMin) / 2 - static_cast<double>(s) / 2) / I + roundUp) * I;
    PlotScale scale;
    scale.Inter = interval;
    scale.Span = s;
    scale.Xb = toSingle(northIsWider ? begin : other);
    scale.Yb = toSingle(northIsWider ? other : begin);
    return scale;
}

double widerRange(const Extents& extents) {
    const double rN = extents.maxN - extents.minN;
    const double rE = extents.maxE - extents.minE;
    return rE > rN ? rE : rN;
}

bool northIsWider(const Extents& extents) {
    return widerRange(extents) == extents.maxN - extents.minN;
}

}  // namespace

void Extents::add(double N, double E) {
    if (N > maxN) maxN = N;
    if (N < minN) minN = N;
    if (E > maxE) maxE = E;
    if (E < minE) minE = E;
}

float angleInterval(double seconds) {
    static constexpr Row kRows[] = {{5, 1},    {10, 2},    {20, 5},    {60, 10},
                                    {180, 30}, {600, 120}, {1800, 300}};
    return intervalOf(seconds, kRows, 3600);
}

float gridInterval(double metres) {
    static constexpr Row kRows[] = {{30, 5},     {60, 20},     {300, 50},     {600, 200},
                                    {3000, 500}, {6000, 2000}, {30000, 5000}, {60000, 20000}};
    return intervalOf(metres, kRows, 50000);
}

PlotScale angleScale(const Extents& degrees) {
    const Extents seconds{.maxN = degrees.maxN * 3600,
                          .minN = degrees.minN * 3600,
                          .maxE = degrees.maxE * 3600,
                          .minE = degrees.minE * 3600};
    return scaleOf(seconds, angleInterval(widerRange(seconds)), northIsWider(seconds), 0.5);
}

PlotScale gridScale(const Extents& metres) {
    return scaleOf(metres, gridInterval(widerRange(metres)), northIsWider(metres), 0);
}

}  // namespace kelvo
