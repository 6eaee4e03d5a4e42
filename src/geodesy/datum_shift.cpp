#include "geodesy/datum_shift.h"

#include "common/checked_arithmetic.h"

namespace kelvo::KelvoSub {

namespace {

Geocentric finitePoint(const Geocentric& point) {
    return {.X = finite(point.X), .Y = finite(point.Y), .Z = finite(point.Z)};
}

// The last step of both inverses: the transposed rotation and the reciprocal of the scale.
Geocentric turnedBack(const DatumShift& s, double u, double v, double w1) {
    const double w = s.dS + 1;
    const double reciprocal = quotient(1, w);
    return finitePoint({.X = ((u - s.Kappa * v) + s.Phi * w1) * reciprocal,
                        .Y = ((s.Kappa * u + v) - s.Omega * w1) * reciprocal,
                        .Z = ((-s.Phi * u + s.Omega * v) + w1) * reciprocal});
}

bool isBursa(const DatumShift& shift) {
    return shift.Kind > ShiftKind::Molodensky;
}

}  // namespace

void SetDatumPara(DatumState& state, const ShiftParameters& given, ShiftKind Kind) {
    const double radian = degreeToRadian();
    state.shift = {.dX = given.dX,
                   .dY = given.dY,
                   .dZ = given.dZ,
                   .Omega = (given.Omega / 3600) * radian,
                   .Phi = (given.Phi / 3600) * radian,
                   .Kappa = (given.Kappa / 3600) * radian,
                   .dS = given.dS * 1e-6,
                   .Kind = Kind};
    fillGeoidTables(state.geoid);
}

Geocentric BursaForward(const DatumShift& s, const Geocentric& q) {
    const double w = s.dS + 1;
    return finitePoint({.X = ((s.Kappa * q.Y + q.X) - s.Phi * q.Z) * w + s.dX,
                        .Y = ((-s.Kappa * q.X + q.Y) + s.Omega * q.Z) * w + s.dY,
                        .Z = ((s.Phi * q.X - s.Omega * q.Y) + q.Z) * w + s.dZ});
}

Geocentric MolodForward(const DatumShift& s, const Geocentric& q) {
    const double w = s.dS + 1;
    return finitePoint({.X = (s.Kappa * q.Y - s.Phi * q.Z) * w + q.X + s.dX,
                        .Y = (-s.Kappa * q.X + s.Omega * q.Z) * w + q.Y + s.dY,
                        .Z = (s.Phi * q.X - s.Omega * q.Y) * w + q.Z + s.dZ});
}

Geocentric BursaInverse(const DatumShift& s, const Geocentric& q) {
    return turnedBack(s, q.X - s.dX, q.Y - s.dY, q.Z - s.dZ);
}

Geocentric MolodInverse(const DatumShift& s, const Geocentric& q) {
    const double w = s.dS + 1;
    return turnedBack(s, (q.X - s.dX) * w, (q.Y - s.dY) * w, (q.Z - s.dZ) * w);
}

Geocentric ShiftForward(const DatumShift& shift, const Geocentric& point) {
    return isBursa(shift) ? BursaForward(shift, point) : MolodForward(shift, point);
}

Geocentric ShiftInverse(const DatumShift& shift, const Geocentric& point) {
    return isBursa(shift) ? BursaInverse(shift, point) : MolodInverse(shift, point);
}

Geocentric WgsToXYZ(double Phi, double Lam, double h) {
    static const EllipsoidShape shape(kWgs84);
    return GeoToXYZ(Phi, Lam, h, shape);
}

Geocentric BesselToXYZ(double Phi, double Lam, double h) {
    static const EllipsoidShape shape(kBessel);
    return GeoToXYZ(Phi, Lam, h, shape);
}

Guarded<Geographic> XYZToWgs(const Geocentric& point) {
    return XYZToGeo(point, kWgs84);
}

Guarded<Geographic> XYZToBessel(const Geocentric& point) {
    return XYZToGeo(point, kBessel);
}

Guarded<Geographic> WgsToBessel(const DatumShift& shift, double Phi, double Lam, double h) {
    return XYZToBessel(ShiftForward(shift, WgsToXYZ(Phi, Lam, h)));
}

Guarded<Geographic> BesselToWgs(const DatumShift& shift, double Phi, double Lam, double h) {
    return XYZToWgs(ShiftInverse(shift, BesselToXYZ(Phi, Lam, h)));
}

Guarded<Geographic> WgsToUser(const DatumShift& shift, double Phi, double Lam, double h,
                              const Ellipsoid& user) {
    return XYZToGeo(ShiftForward(shift, WgsToXYZ(Phi, Lam, h)), user);
}

Guarded<Geographic> UserToWgs(const DatumShift& shift, double Phi, double Lam, double h,
                              const Ellipsoid& user) {
    return XYZToWgs(ShiftInverse(shift, GeoToXYZ(Phi, Lam, h, user)));
}

TwiceGuarded<GridHeight> WgsToTM(const DatumShift& shift, double Phi, double Lam, double h,
                                 int& zone, double shiftSeconds) {
    const auto bessel = WgsToBessel(shift, Phi, Lam, h);
    const auto grid = BesselToTM(bessel.value.Phi, bessel.value.Lam, zone, shiftSeconds);
    return {.value = {.X = grid.value.X, .Y = grid.value.Y, .h = bessel.value.h},
            .notGeographic = bessel.failed,
            .notProjected = grid.failed};
}

TwiceGuarded<Geographic> TMToWgs(const DatumShift& shift, double X, double Y, double h, int& zone,
                                 double shiftSeconds) {
    const auto bessel = TMToBessel(X, Y, zone, shiftSeconds);
    const auto wgs = BesselToWgs(shift, bessel.value.Phi, bessel.value.Lam, h);
    return {.value = wgs.value, .notGeographic = wgs.failed, .notProjected = bessel.failed};
}

}  // namespace kelvo::KelvoSub
