// What a conversion rests on.
#pragma once

#include <memory>
#include <vector>

#include "correction/corr_points.h"
#include "correction/local_datum.h"
#include "geodesy/zones.h"

namespace kelvo {

// Known points with their misses measured; null for none.
using KnownPoints = std::shared_ptr<const std::vector<CorrPoint>>;

// A grid on an ellipsoid.
struct GridDefinition {
    Ellipsoid ellipsoid;
    Projection projection;
};

// A value; cheap to copy, since the known points are shared.
struct Definition {
    LocalDatum local;  // the user ellipsoid is that of the TM grid

    Projection tm;              // Lam0 without the 10.405 seconds
    TmZone Zone{};              // below 5 each point chooses its own origin
    bool shiftsOrigin = false;  // 10.405 seconds are added to the longitude of the TM origin

    GridDefinition utm;  // the ellipsoid counts for UTM on the user ellipsoid only
    UtmZone UZone{};     // below 4 each point chooses its own origin

    bool corrects = false;  // by the known points
    KnownPoints known;

    [[nodiscard]] double originShift() const {  // degrees
        return shiftsOrigin ? kOriginShiftSeconds / 3600 : 0;
    }
};

}  // namespace kelvo
