// The automatic scale of a point plot: a square of whole intervals around the points.
#pragma once

#include "plot/plot_cfg.h"

namespace kelvo {

// The extent of the points in the north (N) and the east (E), degrees or metres.
struct Extents {
    double maxN = -10000000000.0;
    double minN = 10000000000.0;
    double maxE = -10000000000.0;
    double minE = 10000000000.0;

    // Replaces a bound on a strictly larger or smaller value.
    void add(double N, double E);
};

// The square around extents in degrees, all four values in seconds of arc. The wider axis (north,
// when they are equal) is snapped to whole intervals, the other one centred in the same width.
[[nodiscard]] PlotScale angleScale(const Extents& degrees);

// The same around extents in metres; the start of the narrower axis is rounded down here, where
// the angle plots round to the nearest (required).
[[nodiscard]] PlotScale gridScale(const Extents& metres);

// The grid interval by the wider range: seconds, metres.
[[nodiscard]] float angleInterval(double seconds);
[[nodiscard]] float gridInterval(double metres);

}  // namespace kelvo
