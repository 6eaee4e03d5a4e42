// KelvoSub: the transverse Mercator series, forward and inverse.
//
// Method: the closed series in powers of the longitude difference, to the eighth power in the
// northing and the seventh in the easting (P. D. Thomas, Conformal Projections in Geodesy and
// Cartography, US Coast and Geodetic Survey Special Publication 251, 1952; as coefficients T1 to
// T17 in J. W. Hager and others, The Universal Grids, DMA TM 8358.2, 1989, sections 2-5 and 2-6),
// on the meridian arc in the third flattening n (F. R. Helmert, Die mathematischen und
// physikalischen Theorieen der höheren Geodäsie I, 1880; DMA TM 8358.2, 2-4).
//
// Error: within kSeriesWidth degrees of the central meridian it agrees with the exact projection
// to better than kSeriesError; see docs/numbers.md. Left out: grid scale and convergence. No range
// is checked: any finite position gives numbers. Terms are added in a fixed order, since printed
// digits depend on it.
//
//   northing, X = S0 M + T1..T5        T1 arc of the meridian, T2 dl^2, T3 dl^4, T4 dl^6, T5 dl^8
//   easting,  Y = Y0   + T6..T9        T6 dl,   T7 dl^3,  T8 dl^5,  T9 dl^7
//   latitude  = foot point - T10..T13  T10 dy^2, T11 dy^4, T12 dy^6, T13 dy^8
//   longitude = Lam0 + T14..T17        T14 dy,   T15 dy^3, T16 dy^5, T17 dy^7
//
// Angles are decimal degrees, north and east positive; grid X is the northing and comes first,
// Y the easting; lengths are metres.
#pragma once

#include "common/guarded.h"
#include "geodesy/ellipsoid.h"

namespace kelvo {

// Metres by which the series may differ from the exact projection within kSeriesWidth degrees of
// the central meridian.
inline constexpr double kSeriesError = 1e-5;
inline constexpr double kSeriesWidth = 3;

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
// computed once where many points go to one grid. A grid that can't be computed makes all its
// points fail.
class TmGrid {
public:
    TmGrid(const Ellipsoid& ellipsoid, const Projection& projection);

    [[nodiscard]] const Projection& projection() const { return projection_; }

    // Arc of the meridian from the equator, metres; phi in radians.
    [[nodiscard]] double meridianArc(double phi) const;

    // Whether a latitude on the other grid's ellipsoid is one on this grid's.
    [[nodiscard]] bool sharesEllipsoid(const TmGrid& other) const;

    [[nodiscard]] bool computable() const { return computable_; }
    [[nodiscard]] double a() const { return a_; }
    [[nodiscard]] double e2() const { return e2_; }    // first eccentricity, squared
    [[nodiscard]] double ep2() const { return ep2_; }  // second eccentricity, squared
    [[nodiscard]] double M0() const { return M0_; }    // arc to the origin, scaled

private:
    void derive();

    Ellipsoid ellipsoid_;
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

// A latitude on an ellipsoid: what the forward series has in common for all grids on it. One that
// can't be computed makes its points fail.
class TmLatitude {
public:
    // Latitude in degrees, on the ellipsoid of the grid.
    TmLatitude(const TmGrid& grid, double Phi);

    [[nodiscard]] bool computable() const { return computable_; }

private:
    friend class TmParallel;

    void derive(const TmGrid& grid, double Phi);

    bool computable_ = true;
    double arc_ = 0;  // of the meridian, metres
    double N_ = 0;    // radius in the prime vertical, metres
    double c_ = 0;    // cosine, and products of its powers with N and the sine
    double sNc_ = 0;
    double sNc3_ = 0;
    double sNc5_ = 0;
    double sNc7_ = 0;
    double Nc3_ = 0;
    double Nc5_ = 0;
    double Nc7_ = 0;
    double P3_ = 0;  // polynomials of T3, T4, T5, T7, T8, T9
    double P4_ = 0;
    double P5_ = 0;
    double P7_ = 0;
    double P8_ = 0;
    double P9_ = 0;
};

// One parallel of latitude on a grid: the terms of the forward series that rest on the latitude
// alone.
class TmParallel {
public:
    // A latitude on the grid's ellipsoid.
    TmParallel(const TmGrid& grid, const TmLatitude& latitude);

    // The point at a longitude, for a central meridian, both in degrees. Data that can't be
    // computed fails and gives X0, Y0.
    [[nodiscard]] Guarded<GridPoint> at(double Lam, double Lam0) const;

private:
    bool computable_ = true;
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

namespace KelvoSub {

// Meridian arc from the equator, A phi - B sin 2phi + C sin 4phi - D sin 6phi + E sin 8phi;
// phi in radians, coefficients and result in metres. Fault 6 where that overflows.
[[nodiscard]] double MeridianArc(double A, double B, double C, double D, double E, double phi);

// Position to grid. Data that can't be computed (a zero axis or flattening, an overflow) fails
// and gives X0, Y0.
[[nodiscard]] Guarded<GridPoint> GeoToTM(double Phi, double Lam, const Ellipsoid& ellipsoid,
                                         const Projection& projection);

// The same on a grid that is computed once, for a central meridian in degrees.
[[nodiscard]] Guarded<GridPoint> GeoToTM(double Phi, double Lam, const TmGrid& grid, double Lam0);

// Grid to position. Exactly five passes for the latitude of the foot point. Data that can't be
// computed (a zero scale, say) fails and gives Phi0, Lam0.
[[nodiscard]] Guarded<Position> TMToGeo(double X, double Y, const Ellipsoid& ellipsoid,
                                        const Projection& projection);
[[nodiscard]] Guarded<Position> TMToGeo(double X, double Y, const TmGrid& grid, double Lam0);

}  // namespace KelvoSub
}  // namespace kelvo
