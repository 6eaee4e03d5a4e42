#include "shell/plot_place.h"

#include <cmath>

#include "common/fixed_width.h"
#include "common/number_text.h"
#include "common/run_time_fault.h"
#include "panels/angle_text.h"
#include "plot/clsplot1.h"

namespace kelvo {

namespace {

struct NorthEast {
    double north = 0;
    double east = 0;
};

NorthEast coordinatesOf(const PointRec& point, PointPlot kind) {
    switch (kind) {
        case PointPlot::WGS:
            return {point.WgsPhi, point.WgsLam};
        case PointPlot::UGS:
            return {point.UserPhi, point.UserLam};
        case PointPlot::XY:
            break;
    }
    return {point.TmX, point.TmY};
}

std::string shown(const NorthEast& place, PointPlot kind) {
    if (kind == PointPlot::XY) {
        return "X " + genSub::FormatNum(place.north, 1, 3) + "  Y " +
               genSub::FormatNum(place.east, 1, 3);
    }
    const auto angle = [](double degrees) {
        return readingOf(generalText(degrees), CoordinateForm::Degrees);
    };
    return "위도 " + angle(place.north) + "  경도 " + angle(place.east);
}

// How far the point stands from the place; nothing near for one that has no place.
double distanceTo(const clsplot1& object, const NorthEast& point, double x, double y) {
    try {
        return std::hypot(object.cx(point.east) - x, object.cy(point.north) - y);
    } catch (const RuntimeFault&) {
        return HUGE_VAL;
    }
}

}  // namespace

PlotPlace placeOnPlot(const clsplot1& object, const PointTable& points, PointPlot kind, double x,
                      double y, double reach) {
    PlotPlace place;
    try {
        place.coordinates = shown({object.cyInv(y), object.cxInv(x)}, kind);
    } catch (const RuntimeFault&) {
        return {};
    }
    for (int i = 1; i <= points.PointCount; ++i) {
        const NorthEast point = coordinatesOf(points.row(i), kind);
        const double distance = distanceTo(object, point, x, y);
        if (!(distance <= reach)) continue;
        reach = distance;
        place.point = points.row(i).name + "  " + shown(point, kind);
    }
    return place;
}

}  // namespace kelvo
