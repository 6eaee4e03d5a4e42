// KelvoSub: earth-centred coordinates, and the way back to latitude, longitude and height.
//
// Angles are decimal degrees, lengths metres.
#pragma once

#include "common/guarded.h"
#include "geodesy/ellipsoid.h"

namespace kelvo {

// Latitude, longitude (decimal degrees) and ellipsoidal height (metres).
struct Geographic {
    double Phi = 0;
    double Lam = 0;
    double h = 0;
};

// Earth-centred coordinates, metres, Z along the polar axis.
struct Geocentric {
    double X = 0;
    double Y = 0;
    double Z = 0;
};

// The passes of the latitude iteration: always that many unless it settles before.
inline constexpr int kLatitudePasses = 31;
// From this latitude on, at height 0 on WGS84, the iteration runs into the root of a negative
// number before its last pass.
inline constexpr double kLatitudeWithoutResult = 47.4973;

namespace KelvoSub {

// Geographic to earth-centred coordinates (closed formulas; EPSG Guidance Note 7-2, method 9602).
// Faults 11, 5 and 6 for an ellipsoid that can't be computed, 6 for an overflow.
[[nodiscard]] Geocentric GeoToXYZ(double Phi, double Lam, double h, const Ellipsoid& ellipsoid);
[[nodiscard]] Geocentric GeoToXYZ(double Phi, double Lam, double h, const EllipsoidShape& shape);

// The way back by a fixed-point iteration of the trade's own: tan(phi) = Z / sqrt(r^2 - Z^2) with
// r = (b^2/a^2) N + h, at most kLatitudePasses passes. A pass multiplies the error of the latitude
// by about -tan(Phi)^2, so it settles below 45 degrees only, ever more slowly towards it (error
// 2.7e-9 degrees at 37, 2.2e-6 at 40), and runs away beyond. That is required: the printed digits
// depend on it. Data that it can't compute fails and gives Phi = Lam = 0 with the height of the
// last full pass. Longitude comes in 0..360.
[[nodiscard]] Guarded<Geographic> XYZToGeo(const Geocentric& point, const Ellipsoid& ellipsoid);

}  // namespace KelvoSub
}  // namespace kelvo
