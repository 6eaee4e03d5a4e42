// KelvoSub: the transverse Mercator series, forward and inverse.
//
// Method: the closed series in powers of the longitude difference, to the eighth power in the
// northing and the seventh in the easting, on the meridian arc in the third flattening n (P. D.
// Thomas, Conformal Projections in Geodesy and Cartography, 1952; the meridian arc after
// Helmert). Within 3 degrees of the central meridian it agrees with the exact projection to
// better than 0.1 mm. Computed in the order of terms told, since printed digits depend on it.
//
// Angles are decimal degrees, north and east positive; grid X is the northing and comes first,
// Y the easting; lengths are metres. No range is checked: any finite position gives numbers.
#pragma once

#include <cstdint>

#include "common/ports.h"
#include "geodesy/ellipsoid.h"

namespace kelvo {

// Origin and scale of a transverse Mercator grid.
struct Projection {
    double X0 = 0;    // false northing, metres
    double Y0 = 0;    // false easting, metres
    double Phi0 = 0;  // latitude of the origin, degrees
    double Lam0 = 0;  // central meridian, degrees
    double S0 = 0;    // scale factor on the central meridian
};

struct GridPoint {
    double X = 0;  // northing, metres
    double Y = 0;  // easting, metres
};

struct Position {
    double Phi = 0;  // latitude, decimal degrees
    double Lam = 0;  // longitude, decimal degrees
};

// What a grid on an ellipsoid has in common for all its points, whatever the central meridian:
// computed once where many points go to one grid. Data that can't be computed is told by the
// points, each for itself.
class TmGrid {
public:
    TmGrid(const Ellipsoid& ellipsoid, const Projection& projection);

    [[nodiscard]] const Projection& projection() const { return projection_; }
    void setCentralMeridian(double Lam0) { projection_.Lam0 = Lam0; }

    // Arc of the meridian from the equator, metres; phi in radians.
    [[nodiscard]] double meridianArc(double phi) const;

    [[nodiscard]] bool computable() const { return computable_; }
    [[nodiscard]] double a() const { return a_; }
    [[nodiscard]] double e2() const { return e2_; }    // first eccentricity, squared
    [[nodiscard]] double ep2() const { return ep2_; }  // second eccentricity, squared
    [[nodiscard]] double M0() const { return M0_; }    // arc to the origin, scaled

private:
    void derive(const Ellipsoid& ellipsoid);

    Projection projection_;
    double a_ = 0;
    double e2_ = 0;
    double ep2_ = 0;
    double A_ = 0;
    double B_ = 0;
    double C_ = 0;
    double D_ = 0;
    double E_ = 0;
    double M0_ = 0;
    bool computable_ = true;
};

// One parallel of latitude on a grid: the terms of the forward series that rest on the latitude
// alone, computed once for all its points. Raises faults instead of showing messages.
class TmParallel {
public:
    // Latitude in degrees.
    TmParallel(const TmGrid& grid, double Phi);

    // The point at a longitude, for a central meridian, both in degrees.
    [[nodiscard]] GridPoint at(double Lam, double Lam0) const;

private:
    double X0_ = 0;
    double Y0_ = 0;
    double M0_ = 0;
    double T1_ = 0;
    double T2_ = 0;
    double T3_ = 0;
    double T4_ = 0;
    double T5_ = 0;
    double T6_ = 0;
    double T7_ = 0;
    double T8_ = 0;
    double T9_ = 0;
};

// The seconds of arc by which the longitude of the Korean TM origins is raised: the difference
// between the longitude of the old origin point and its later determination.
inline constexpr double kOriginShiftSeconds = 10.405;

namespace KelvoSub {

// The national grid on Bessel; its zone by longitude (126 and 128 belong to zone 2) and the
// central meridian of a zone, 125, 127, 129 and so on, plus a shift in seconds of arc.
[[nodiscard]] const TmGrid& nationalGrid();
[[nodiscard]] int nationalZone(double Lam);
[[nodiscard]] double nationalMeridian(int zone, double shiftSeconds);

// Meridian arc from the equator, A phi - B sin 2phi + C sin 4phi - D sin 6phi + E sin 8phi;
// phi in radians, coefficients and result in metres. Fault 6 where that overflows.
[[nodiscard]] double MeridianArc(double A, double B, double C, double D, double E, double phi);

// Position to grid. Data that can't be computed (a zero axis or flattening, an overflow) shows
// a message and gives X0, Y0.
[[nodiscard]] GridPoint GeoToTM(double Phi, double Lam, const Ellipsoid& ellipsoid,
                                const Projection& projection, MessageBoxes& messages);

// The same on a grid that is computed once.
[[nodiscard]] GridPoint GeoToTM(double Phi, double Lam, const TmGrid& grid, MessageBoxes& messages);

// Grid to position. Exactly five passes for the foot-point latitude. Data that can't be computed
// (a zero scale, say) shows a message and gives Phi0, Lam0.
[[nodiscard]] Position TMToGeo(double X, double Y, const Ellipsoid& ellipsoid,
                               const Projection& projection, MessageBoxes& messages);

// The national grid on Bessel. A zone below 1 is chosen by the longitude (126 and 128 belong to
// zone 2) and written back; a zone above has no upper limit. The shift is in seconds of arc.
[[nodiscard]] GridPoint BesselToTM(double Phi, double Lam, int& zone, double shiftSeconds,
                                   MessageBoxes& messages);

// The way back. The zone is limited to 1..3 and written back, unlike BesselToTM (required).
[[nodiscard]] Position TMToBessel(double X, double Y, int& zone, double shiftSeconds,
                                  MessageBoxes& messages);

// Sets the TM origin by the longitude in degrees, unless Zone is 5 or greater: below 126 zone 1
// (125), up to 128 zone 2 (127), up to 130 zone 3 (129), above zone 4 (131).
void chkZone(double lam, std::int16_t& Zone, double& Lam0);

// Sets the UTM origin by the longitude, unless UZone is 4 or greater, so also over a user origin
// (required): below 126 zone 1 (123), otherwise zone 2 (129).
void chkUZone(double lam, std::int16_t& UZone, double& ULam0);

}  // namespace KelvoSub
}  // namespace kelvo
