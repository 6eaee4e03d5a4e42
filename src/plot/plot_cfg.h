// The plot settings of the application.
#pragma once

#include <cstdint>

namespace kelvo {

// A square of the plot: decimal degrees for the angle plots, metres for the grid plot. While an
// angle plot scales itself the group holds seconds of arc for a moment.
struct PlotScale {
    float Xb = 0;     // north value at the first grid line
    float Yb = 0;     // east value at the first grid line
    float Span = 0;   // width of the square, both ways
    float Inter = 0;  // grid interval
};

// Which coordinates of the points are plotted. plot.cfg may name another number, which is kept
// and draws nothing.
enum class PointPlot : std::int16_t {
    WGS = 1,  // plotWGS
    UGS = 2,  // plotUGS
    XY = 3,   // plotXY
};

struct PlotCfg {
    PointPlot PlotKind{};
    std::int16_t PlotManual = 0;  // 1 manual scale, 0 automatic
    float PlotFontSize = 0;       // text size of labels and point names
    PlotScale WGS;
    PlotScale UGS;
    PlotScale XY;

    // The group of a kind; null for a number that is none.
    [[nodiscard]] PlotScale* scaleOf(PointPlot kind) {
        switch (kind) {
            case PointPlot::WGS:
                return &WGS;
            case PointPlot::UGS:
                return &UGS;
            case PointPlot::XY:
                return &XY;
        }
        return nullptr;
    }
};

}  // namespace kelvo
