// KelvoSub: the seven-parameter datum shift.
//
// Forward is from WGS84 to the local datum, inverse from the local datum to WGS84; parameters
// are those of the forward direction. Rotations have the signs of a coordinate frame rotation
// (EPSG Guidance Note 7-2, methods 1032 and 9607), not those of a position vector transformation
// (9606): whoever takes them for these ends up 23 to 42 m off. Angles are decimal degrees, lengths
// metres.
#pragma once

#include <cstdint>

#include "common/guarded.h"
#include "geodesy/geocentric.h"
#include "geodesy/geoid.h"
#include "geodesy/national_grid.h"

namespace kelvo {

// The method of the shift. Files hold any 16-bit number: one above Molodensky counts as Bursa,
// any other as Molodensky.
enum class ShiftKind : std::int16_t { Molodensky = 1, Bursa = 2 };

// A shift as it is given: metres, seconds of arc, parts per million.
struct ShiftParameters {
    double dX = 0;
    double dY = 0;
    double dZ = 0;
    double Omega = 0;  // rotation about X
    double Phi = 0;    // about Y; nothing to do with a latitude
    double Kappa = 0;  // about Z
    double dS = 0;
};

// WGS84 to Bessel as the survey regulations of 2002 recommend it.
inline constexpr ShiftParameters kRecommendedShift{115.8, -474.99, -674.11, 1.16,
                                                   -2.31, -1.63,   -6.43};

// The shift as loaded: metres, radians, a plain ratio.
struct DatumShift {
    double dX = 0;
    double dY = 0;
    double dZ = 0;
    double Omega = 0;
    double Phi = 0;
    double Kappa = 0;
    double dS = 0;
    ShiftKind Kind{};
};

// What lasts from one SetDatumPara to the next.
struct DatumState {
    DatumShift shift;
    GeoidTables geoid;
};

struct GridHeight {
    double X = 0;
    double Y = 0;
    double h = 0;
};

// A result that passed two guards: through earth-centred coordinates and through the grid.
template <class T>
struct TwiceGuarded {
    T value{};
    bool notGeographic = false;  // earth-centred coordinates without latitude and longitude
    bool notProjected = false;   // the grid step failed
};

namespace KelvoSub {

// Loads a shift and fills the geoid tables.
void SetDatumPara(DatumState& state, const ShiftParameters& given, ShiftKind Kind);

// Bursa-Wolf shift, EPSG method 1032, and its first-order inverse: the rotation transposed, no
// second-order terms (required). Fault 6 where a coordinate overflows; 11 in the inverses for a
// scale of -1,000,000 ppm.
[[nodiscard]] Geocentric BursaForward(const DatumShift& shift, const Geocentric& point);
[[nodiscard]] Geocentric BursaInverse(const DatumShift& shift, const Geocentric& point);
// As the trade here keeps it, without a pivot point, so not EPSG's Molodensky-Badekas (9636): the
// scale acts on the rotation terms only, and cancels out of the inverse (required).
[[nodiscard]] Geocentric MolodForward(const DatumShift& shift, const Geocentric& point);
[[nodiscard]] Geocentric MolodInverse(const DatumShift& shift, const Geocentric& point);
// By Kind.
[[nodiscard]] Geocentric ShiftForward(const DatumShift& shift, const Geocentric& point);
[[nodiscard]] Geocentric ShiftInverse(const DatumShift& shift, const Geocentric& point);

// On the fixed ellipsoids.
[[nodiscard]] Geocentric WgsToXYZ(double Phi, double Lam, double h);
[[nodiscard]] Geocentric BesselToXYZ(double Phi, double Lam, double h);
[[nodiscard]] Guarded<Geographic> XYZToWgs(const Geocentric& point);
[[nodiscard]] Guarded<Geographic> XYZToBessel(const Geocentric& point);

// The chains: geographic to earth-centred, shift, and back. Only the last step stands under a
// guard; faults of the others come out.
[[nodiscard]] Guarded<Geographic> WgsToBessel(const DatumShift& shift, double Phi, double Lam,
                                              double h);
[[nodiscard]] Guarded<Geographic> BesselToWgs(const DatumShift& shift, double Phi, double Lam,
                                              double h);
[[nodiscard]] Guarded<Geographic> WgsToUser(const DatumShift& shift, double Phi, double Lam,
                                            double h, const Ellipsoid& user);
[[nodiscard]] Guarded<Geographic> UserToWgs(const DatumShift& shift, double Phi, double Lam,
                                            double h, const Ellipsoid& user);

// Through the national grid; `zone` as in BesselToTM and TMToBessel.
[[nodiscard]] TwiceGuarded<GridHeight> WgsToTM(const DatumShift& shift, double Phi, double Lam,
                                               double h, int& zone, double shiftSeconds);
[[nodiscard]] TwiceGuarded<Geographic> TMToWgs(const DatumShift& shift, double X, double Y,
                                               double h, int& zone, double shiftSeconds);

}  // namespace KelvoSub
}  // namespace kelvo
