#include "plot/point_plots.h"

#include <optional>
#include <vector>

#include "common/checked_arithmetic.h"
#include "common/fixed_width.h"
#include "common/text_constants.h"
#include "common/utf8.h"
#include "geodesy/angle_forms.h"
#include "plot/automatic_scale.h"
#include "plot/clsplot1.h"

namespace kelvo {
namespace {

using genSub::FormatNum;

// In what one kind of plot differs from another.
struct PlotFields {
    double PointRec::*north;
    double PointRec::*east;
    PlotScale PlotCfg::*group;
    bool angles;
};

constexpr PlotFields kWgsFields{&PointRec::WgsPhi, &PointRec::WgsLam, &PlotCfg::WGS, true};
constexpr PlotFields kUgsFields{&PointRec::UserPhi, &PointRec::UserLam, &PlotCfg::UGS, true};
constexpr PlotFields kXyFields{&PointRec::TmX, &PointRec::TmY, &PlotCfg::XY, false};

constexpr int kMostGridLines = 2000;  // a side
constexpr double kPageWidth = 137;    // mm, the square with its margins

Extents extentsOf(const PointTable& points, const PlotFields& fields) {
    Extents extents;
    for (int i = 1; i <= points.PointCount; ++i) {
        const PointRec& point = points.row(i);
        extents.add(point.*fields.north, point.*fields.east);
    }
    return extents;
}

void scaleAutomatically(const PlotFields& fields, PlotSource& source) {
    const Extents extents = extentsOf(source.points, fields);
    PlotScale& G = source.cfg.*fields.group;
    G = fields.angles ? angleScale(extents) : gridScale(extents);
    std::array<std::string, 4> texts;
    const std::array<float, 4> values{G.Xb, G.Yb, G.Span, G.Inter};
    for (std::size_t i = 0; i < values.size(); ++i) {
        const auto v = static_cast<double>(values[i]);
        texts[i] = fields.angles ? FormatNum(KelvoSub::DegToDms((v + 0.1) / 3600), 4, 4)
                                 : FormatNum(v, 7, 0);
    }
    source.panel.takeScale(source.cfg.PlotKind, texts);
}

// The values of the grid lines from `begin` over the span; nothing if there are too many of them
// or the step is too small to move on. The angle plots add up in 64 bits, the grid plot in 32.
std::optional<std::vector<double>> gridValues(float begin, const PlotScale& G, bool angles) {
    if (!(G.Span > 0) || !(G.Inter > 0)) return std::nullopt;
    const auto last = static_cast<float>(static_cast<double>(begin) + static_cast<double>(G.Span));
    std::vector<double> values;
    double v = begin;
    while (static_cast<float>(v) <= last) {
        if (values.size() == kMostGridLines) return std::nullopt;
        values.push_back(v);
        double next = v + static_cast<double>(G.Inter);
        if (!angles) next = static_cast<double>(static_cast<float>(next));
        if (!(next > v)) return std::nullopt;
        v = next;
    }
    return values;
}

std::string labelOf(double v, const PlotFields& fields) {
    if (!fields.angles) return FormatNum(v, 7, 0);
    // The last four columns of the degrees, the minutes and the whole seconds.
    return std::string(middleOf(KelvoSub::AngleText(v + 0.00001, AngleForm::Hyphens), 5, 10));
}

void drawGrid(clsplot1& object, const PlotFields& fields, PlotSource& source) {
    const PlotScale& G = source.cfg.*fields.group;
    const auto norths = gridValues(G.Xb, G, fields.angles);
    const auto easts = gridValues(G.Yb, G, fields.angles);
    if (!norths || !easts) return;
    const auto Xb = static_cast<double>(G.Xb);
    const auto Yb = static_cast<double>(G.Yb);
    const auto S = static_cast<double>(G.Span);
    const auto size = static_cast<double>(source.cfg.PlotFontSize);
    for (const double v : *norths) {
        object.pline(Yb - 0.03 * S, v, Yb + 1.03 * S, v, 1);
        const double k = v == Xb ? 0.01 : 0.06;
        object.ptext(labelOf(v, fields), Yb - k * S, v + 0.005 * S, size);
    }
    for (const double v : *easts) {
        object.pline(v, Xb - 0.03 * S, v, Xb + 1.03 * S, 1);
        object.ptextR(labelOf(v, fields), v - 0.03 * S, Xb - 0.06 * S, 90, size);
    }
}

// True if the point has a place on the surface, and its neighbourhood one in 32 bits.
bool canBePlaced(const clsplot1& object, double N, double E) {
    try {
        static_cast<void>(object.cx(E));
        static_cast<void>(object.cy(N));
        static_cast<void>(toSingle(2 * E));
        static_cast<void>(toSingle(2 * N));
        return true;
    } catch (const RuntimeFault&) {
        return false;
    }
}

void drawPoints(clsplot1& object, const PlotFields& fields, PlotSource& source) {
    const auto S = static_cast<double>((source.cfg.*fields.group).Span);
    const auto size = static_cast<double>(source.cfg.PlotFontSize);
    for (int i = 1; i <= source.points.PointCount; ++i) {
        const PointRec& point = source.points.row(i);
        const double N = point.*fields.north;
        const double E = point.*fields.east;
        if (!canBePlaced(object, N, E)) continue;
        double circleWidth = 2;
        object.ticmark(E, N, size / 6, 0, circleWidth);
        double plusWidth = 1;
        object.ticmark(E, N, size / 1.5, 3, plusWidth);
        object.ptext(point.name, E - 0.03 * S, N + 0.02 * S, size);
    }
}

void plotPoints(clsplot1& object, const PlotFields& fields, PlotSource& source) {
    const bool noPoints = source.points.PointCount < 1;
    if (source.cfg.PlotManual == 0 && !noPoints) scaleAutomatically(fields, source);

    object.Clear();
    const PlotScale& G = source.cfg.*fields.group;
    const auto Xb = static_cast<double>(G.Xb);
    const auto Yb = static_cast<double>(G.Yb);
    const auto S = static_cast<double>(G.Span);
    const double left = Yb - 0.05 * S;
    const double right = Yb + 1.05 * S;
    const double top = Xb + 1.05 * S;
    const double bottom = Xb - 0.05 * S;
    object.pwindow(0, left, kPageWidth, right, 0, top, kPageWidth, bottom, 0);
    const bool hasWindow = left != right && top != bottom;
    if (!noPoints && hasWindow) {
        drawGrid(object, fields, source);
        drawPoints(object, fields, source);
    }
    std::string title = "Kelvo ";
    title += AppVersion;
    title += kOwnerLine;
    object.ptext(title, Yb - 0.03 * S, Xb - 0.2 * S, 10);
    object.ptext("Data File = " + source.texts.dataFile + "  " + source.texts.date + "  " +
                     source.texts.time,
                 Yb - 0.03 * S, Xb - 0.24 * S, 10);
    object.EndPlot();
}

}  // namespace

void plot(clsplot1& object, SurfaceKind kind, Surface& surface, PlotSource& source) {
    const int number = static_cast<int>(kind);
    if (kind == SurfaceKind::Screen)
        object.pinitialize(0, 0, 1, 1, number, surface);
    else
        object.pinitialize(15, 40, 1.3, 1.3, number, surface);
    switch (source.cfg.PlotKind) {
        case PointPlot::WGS:
            plotWGS(object, source);
            break;
        case PointPlot::UGS:
            plotUGS(object, source);
            break;
        case PointPlot::XY:
            plotXY(object, source);
            break;
    }
}

void plotWGS(clsplot1& object, PlotSource& source) {
    plotPoints(object, kWgsFields, source);
}

void plotUGS(clsplot1& object, PlotSource& source) {
    plotPoints(object, kUgsFields, source);
}

void plotXY(clsplot1& object, PlotSource& source) {
    plotPoints(object, kXyFields, source);
}

}  // namespace kelvo
