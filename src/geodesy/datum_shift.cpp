#include "geodesy/datum_shift.h"

#include <cmath>

#include "common/checked_arithmetic.h"
#include "common/run_time_fault.h"

namespace kelvo::KelvoSub {

namespace {

// The shape of an ellipsoid as the geocentric formulas use it.
struct Shape {
    double a = 0;
    double e2 = 0;
    double b2OverA2 = 0;

    explicit Shape(const Ellipsoid& ellipsoid) : a(ellipsoid.a) {
        double f = ellipsoid.f;
        NormFlat(f);
        const double invf = quotient(1, f);
        const double b = quotient((invf - 1) * a, invf);
        const double a2 = a * a;
        const double b2 = b * b;
        e2 = quotient(a2 - b2, a2);
        b2OverA2 = quotient(b2, a2);
    }
};

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

// The iteration. `h` is handed out as it goes, since after a fault it keeps its last value.
Position iterate(const Geocentric& point, const Ellipsoid& ellipsoid, double& h) {
    constexpr int kMostPasses = 31;
    constexpr double kSettled = 1e-18;
    const Shape shape(ellipsoid);

    const double lam = std::atan(quotient(point.Y, point.X));
    const double p = squareRoot(point.X * point.X + point.Y * point.Y);
    const double Z2 = point.Z * point.Z;
    double phi = 0;
    double N = shape.a;
    double previous = 0;
    for (int pass = 1; pass <= kMostPasses; ++pass) {
        const double r = shape.b2OverA2 * N + h;
        phi = std::atan(quotient(point.Z, squareRoot(r * r - Z2)));
        if (std::abs(phi - previous) < kSettled) break;
        const double s = std::sin(phi);  // side by side, so that both come from one call
        const double c = std::cos(phi);
        N = quotient(shape.a, squareRoot(1 - s * s * shape.e2));  // RadiusN at phi
        h = quotient(p, c) - N;
        previous = phi;
    }
    const double radian = degreeToRadian();
    Position position{.Phi = phi / radian, .Lam = lam / radian};
    if (point.X < 0) position.Lam += 180;
    if (position.Lam < 0) position.Lam += 360;
    return position;
}

}  // namespace

Geocentric GeoToXYZ(double Phi, double Lam, double h, const Ellipsoid& ellipsoid) {
    const Shape shape(ellipsoid);
    const double phi = finite(Phi * degreeToRadian());
    const double lam = finite(Lam * degreeToRadian());
    const double N = RadiusN(shape.a, shape.e2, phi);
    return finitePoint({.X = ((N + h) * std::cos(phi)) * std::cos(lam),
                        .Y = ((N + h) * std::cos(phi)) * std::sin(lam),
                        .Z = (shape.b2OverA2 * N + h) * std::sin(phi)});
}

Geographic XYZToGeo(const Geocentric& point, const Ellipsoid& ellipsoid, MessageBoxes& messages) {
    double h = 0;
    try {
        const Position position = iterate(point, ellipsoid, h);
        return {.Phi = position.Phi, .Lam = position.Lam, .h = h};
    } catch (const RuntimeFault&) {
        messages.tell("경위도로 변환 할 수 없는 GPS 좌표 입니다. 확인후 다시 변환 하십시오");
        return {.Phi = 0, .Lam = 0, .h = h};
    }
}

void SetDatumPara(DatumState& state, double dX, double dY, double dZ, double Omega, double Phi,
                  double Kappa, double dS, int Kind) {
    const double radian = degreeToRadian();
    state.shift = {.dX = dX,
                   .dY = dY,
                   .dZ = dZ,
                   .Omega = (Omega / 3600) * radian,
                   .Phi = (Phi / 3600) * radian,
                   .Kappa = (Kappa / 3600) * radian,
                   .dS = dS * 1e-6,
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
    return shift.Kind > 1 ? BursaForward(shift, point) : MolodForward(shift, point);
}

Geocentric ShiftInverse(const DatumShift& shift, const Geocentric& point) {
    return shift.Kind > 1 ? BursaInverse(shift, point) : MolodInverse(shift, point);
}

Geocentric WgsToXYZ(double Phi, double Lam, double h) {
    return GeoToXYZ(Phi, Lam, h, kWgs84);
}

Geocentric BesselToXYZ(double Phi, double Lam, double h) {
    return GeoToXYZ(Phi, Lam, h, kBessel);
}

Geographic XYZToWgs(const Geocentric& point, MessageBoxes& messages) {
    return XYZToGeo(point, kWgs84, messages);
}

Geographic XYZToBessel(const Geocentric& point, MessageBoxes& messages) {
    return XYZToGeo(point, kBessel, messages);
}

Geographic WgsToBessel(const DatumShift& shift, double Phi, double Lam, double h,
                       MessageBoxes& messages) {
    return XYZToBessel(ShiftForward(shift, WgsToXYZ(Phi, Lam, h)), messages);
}

Geographic BesselToWgs(const DatumShift& shift, double Phi, double Lam, double h,
                       MessageBoxes& messages) {
    return XYZToWgs(ShiftInverse(shift, BesselToXYZ(Phi, Lam, h)), messages);
}

Geographic WgsToUser(const DatumShift& shift, double Phi, double Lam, double h,
                     const Ellipsoid& user, MessageBoxes& messages) {
    return XYZToGeo(ShiftForward(shift, WgsToXYZ(Phi, Lam, h)), user, messages);
}

Geographic UserToWgs(const DatumShift& shift, double Phi, double Lam, double h,
                     const Ellipsoid& user, MessageBoxes& messages) {
    return XYZToWgs(ShiftInverse(shift, GeoToXYZ(Phi, Lam, h, user)), messages);
}

GridHeight WgsToTM(const DatumShift& shift, double Phi, double Lam, double h, int& zone,
                   double shiftSeconds, MessageBoxes& messages) {
    const Geographic bessel = WgsToBessel(shift, Phi, Lam, h, messages);
    const GridPoint grid = BesselToTM(bessel.Phi, bessel.Lam, zone, shiftSeconds, messages);
    return {.X = grid.X, .Y = grid.Y, .h = bessel.h};
}

Geographic TMToWgs(const DatumShift& shift, double X, double Y, double h, int& zone,
                   double shiftSeconds, MessageBoxes& messages) {
    const Position bessel = TMToBessel(X, Y, zone, shiftSeconds, messages);
    return BesselToWgs(shift, bessel.Phi, bessel.Lam, h, messages);
}

}  // namespace kelvo::KelvoSub
