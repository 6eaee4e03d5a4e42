// KelvoSub: geocentric coordinates and the seven-parameter datum shift.
//
// Forward is from WGS84 to the local datum, inverse from the local datum to WGS84; parameters
// are those of the forward direction. Angles are decimal degrees, lengths metres.
#pragma once

#include <cstddef>
#include <span>

#include "common/ports.h"
#include "geodesy/ellipsoid.h"
#include "geodesy/geoid.h"
#include "geodesy/transverse_mercator.h"

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

// The shift as loaded: metres, radians, a plain ratio.
struct DatumShift {
    double dX = 0;
    double dY = 0;
    double dZ = 0;
    double Omega = 0;
    double Phi = 0;
    double Kappa = 0;
    double dS = 0;
    int Kind = 0;  // above 1 Bursa, otherwise Molodensky
};

// What the geodesy keeps from one SetDatumPara to the next.
struct DatumState {
    DatumShift shift;
    GeoidTables geoid;
};

namespace KelvoSub {

[[nodiscard]] Geocentric GeoToXYZ(double Phi, double Lam, double h, const Ellipsoid& ellipsoid);

// Fixed-point iteration of at most 31 passes. It converges below 45 degrees of latitude only,
// ever more slowly towards it (error 2.7e-9 degrees at 37, 2.2e-6 at 40), and fails from 48
// degrees on; that is required, the printed digits depend on it. A failure shows a message and
// gives Phi = Lam = 0 with the height of the last full pass. Longitude comes in 0..360.
[[nodiscard]] Geographic XYZToGeo(const Geocentric& point, const Ellipsoid& ellipsoid,
                                  MessageBoxes& messages);

// Several points, at most kMostTogether, each with the very result of XYZToGeo; no message. False
// if one of them failed. A pass is a chain of roots and quotients that wait for each other, so
// the passes of some points side by side take little longer than those of one.
inline constexpr std::size_t kMostTogether = 4;
[[nodiscard]] bool XYZToGeoTogether(std::span<const Geocentric> points, const Ellipsoid& ellipsoid,
                                    std::span<Geographic> results);

// Loads the shift (rotations in seconds of arc, dS in parts per million) and fills the geoid
// tables.
void SetDatumPara(DatumState& state, double dX, double dY, double dZ, double Omega, double Phi,
                  double Kappa, double dS, int Kind);

// Bursa-Wolf position-vector shift and its first-order inverse.
[[nodiscard]] Geocentric BursaForward(const DatumShift& shift, const Geocentric& point);
[[nodiscard]] Geocentric BursaInverse(const DatumShift& shift, const Geocentric& point);
// As kept by the trade here: the scale acts on the rotation terms only, and cancels out of the
// inverse (required).
[[nodiscard]] Geocentric MolodForward(const DatumShift& shift, const Geocentric& point);
[[nodiscard]] Geocentric MolodInverse(const DatumShift& shift, const Geocentric& point);
// By Kind.
[[nodiscard]] Geocentric ShiftForward(const DatumShift& shift, const Geocentric& point);
[[nodiscard]] Geocentric ShiftInverse(const DatumShift& shift, const Geocentric& point);

[[nodiscard]] Geocentric WgsToXYZ(double Phi, double Lam, double h);
[[nodiscard]] Geocentric BesselToXYZ(double Phi, double Lam, double h);
[[nodiscard]] Geographic XYZToWgs(const Geocentric& point, MessageBoxes& messages);
[[nodiscard]] Geographic XYZToBessel(const Geocentric& point, MessageBoxes& messages);

[[nodiscard]] Geographic WgsToBessel(const DatumShift& shift, double Phi, double Lam, double h,
                                     MessageBoxes& messages);
[[nodiscard]] Geographic BesselToWgs(const DatumShift& shift, double Phi, double Lam, double h,
                                     MessageBoxes& messages);
[[nodiscard]] Geographic WgsToUser(const DatumShift& shift, double Phi, double Lam, double h,
                                   const Ellipsoid& user, MessageBoxes& messages);
[[nodiscard]] Geographic UserToWgs(const DatumShift& shift, double Phi, double Lam, double h,
                                   const Ellipsoid& user, MessageBoxes& messages);

struct GridHeight {
    double X = 0;
    double Y = 0;
    double h = 0;
};
[[nodiscard]] GridHeight WgsToTM(const DatumShift& shift, double Phi, double Lam, double h,
                                 int& zone, double shiftSeconds, MessageBoxes& messages);
[[nodiscard]] Geographic TMToWgs(const DatumShift& shift, double X, double Y, double h, int& zone,
                                 double shiftSeconds, MessageBoxes& messages);

}  // namespace KelvoSub
}  // namespace kelvo
