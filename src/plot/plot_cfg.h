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

struct PlotCfg {
    std::int16_t PlotKind = 0;    // 1 plotWGS, 2 plotUGS, 3 plotXY
    std::int16_t PlotManual = 0;  // 1 manual scale, 0 automatic
    float PlotFontSize = 0;       // text size of labels and point names
    PlotScale WGS;
    PlotScale UGS;
    PlotScale XY;
};

}  // namespace kelvo
