// What stands between WGS84 coordinates and user coordinates, but for the known points.
#pragma once

#include "geodesy/datum_shift.h"

namespace kelvo {

// The constant first adjustment, given from WGS84 to the user ellipsoid: seconds of arc, metres.
struct FirstAdjustment {
    double dPhi = 0;
    double dLam = 0;
    double dH = 0;
};

struct LocalDatum {
    Ellipsoid user;
    DatumState datum;  // the shift as it was loaded last, and the geoid
    FirstAdjustment adjustment;
};

}  // namespace kelvo
