// What stands under the pointer on the plot of the points.
#pragma once

#include <string>

#include "common/point_table.h"
#include "plot/plot_cfg.h"

namespace kelvo {

class clsplot1;

struct PlotPlace {
    std::string coordinates;  // of the place itself, in the coordinates that are plotted
    std::string point;        // name and coordinates of the nearest point; empty if none is near
};

// (x, y) is a place of the surface that the object draws on, `reach` how near a point has to be,
// all in twips. Both texts are empty where the plot has no coordinates.
[[nodiscard]] PlotPlace placeOnPlot(const clsplot1& object, const PointTable& points,
                                    PointPlot kind, double x, double y, double reach);

}  // namespace kelvo
