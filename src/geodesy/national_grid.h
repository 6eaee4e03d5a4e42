// KelvoSub: the national TM grid on Bessel, and the length of a second of arc on it.
#pragma once

#include "geodesy/transverse_mercator.h"

namespace kelvo {

// Metres of one second of arc of latitude and of longitude at a place. `unprojected` counts the
// places, of the four that they are measured between (the place itself twice), that couldn't be
// brought to the grid; these stood at its false origin. Lengths that overflow aren't finite.
struct ArcSecLengths {
    double MPhi = 0;
    double MLam = 0;
    int unprojected = 0;
};

// Length in metres of a difference in degrees, where a second of arc has these lengths. Fault 6
// where they or the result aren't finite.
[[nodiscard]] double lengthInMetres(double DPhi, double DLam, const ArcSecLengths& second);

namespace KelvoSub {

// Position to grid. A zone below 1 is chosen by the longitude (126 and 128 belong to zone 2, what
// is east of 128 to zone 3) and written back; a zone above has no upper limit. Central meridians
// are 123 + 2 zone degrees, plus a shift in seconds of arc.
[[nodiscard]] Guarded<GridPoint> BesselToTM(double Phi, double Lam, int& zone, double shiftSeconds);

// The way back. The zone is limited to 1..3 and written back, unlike BesselToTM (required).
[[nodiscard]] Guarded<Position> TMToBessel(double X, double Y, int& zone, double shiftSeconds);

// The lengths of a second at a place, with the 10.405 seconds. Where the step crosses a zone
// border the length is the distance between the zones (required).
[[nodiscard]] ArcSecLengths ArcSecLen(double Phi, double Lam);

}  // namespace KelvoSub
}  // namespace kelvo
