// The picture of a run: its points on a square grid, on the screen or on paper.
#pragma once

#include <array>
#include <string>

#include "common/point_table.h"
#include "common/ports.h"
#include "plot/plot_cfg.h"

namespace kelvo {

class clsplot1;
class Surface;
enum class SurfaceKind;

// What a plot asks of the scale panel.
class ScalePanel {
public:
    virtual ~ScalePanel() = default;
    // An automatic scale of the kind that is being drawn: the texts for txtXb, txtYb, txtSpan,
    // txtInter. They go into the settings with the rounding of the texts.
    virtual void takeScale(PointPlot drawn, const std::array<std::string, 4>& texts) = 0;
};

// What stands in the picture beside the points.
struct PlotTexts {
    std::string dataFile;  // RecentFiles(1)
    std::string date;
    std::string time;
};

struct PlotSource {
    const PointTable& points;
    PlotCfg& cfg;
    ScalePanel& panel;
    const PlotTexts& texts;
};

// Binds the plot object to the surface (on the printer 15 mm from the left, 40 mm from the top,
// 1.3 times as large) and draws the plot that cfg.PlotKind names.
void plot(clsplot1& object, SurfaceKind kind, Surface& surface, PlotSource& source);

// WGS84 latitude and longitude, user latitude and longitude, TM grid. With the automatic scale
// the square is laid around the points first. No points, or a scale that can't be drawn
// (interval or span not above 0, more than 2,000 grid lines a side): no grid, no points that
// can't be placed; title and footer stand all the same.
void plotWGS(clsplot1& object, PlotSource& source);
void plotUGS(clsplot1& object, PlotSource& source);
void plotXY(clsplot1& object, PlotSource& source);

}  // namespace kelvo
