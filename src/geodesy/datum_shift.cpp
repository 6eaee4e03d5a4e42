#include "geodesy/datum_shift.h"

#include <algorithm>
#include <array>
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

    Shape() = default;
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

// One point on its way through the passes. Where a plain operation would give an infinity or a
// NaN the iteration has failed, and h keeps the value of the last full pass.
class LatitudeIteration {
public:
    LatitudeIteration() = default;
    LatitudeIteration(const Geocentric& point, const Shape& shape)
        : shape_(shape), X_(point.X), Z_(point.Z), Z2_(point.Z * point.Z), N_(shape.a) {
        const double slope = point.Y / point.X;
        lam_ = std::atan(slope);
        p_ = std::sqrt(point.X * point.X + point.Y * point.Y);
        if (!std::isfinite(slope) || !std::isfinite(p_)) state_ = State::Failed;
    }

    [[nodiscard]] bool goesOn() const { return state_ == State::GoesOn; }
    [[nodiscard]] bool failed() const { return state_ == State::Failed; }

    void pass() {
        constexpr int kMostPasses = 31;
        constexpr double kSettled = 1e-18;
        ++passes_;
        const double r = shape_.b2OverA2 * N_ + h_;
        const double d = r * r - Z2_;
        const double tangent = Z_ / std::sqrt(d);
        if (!(d > 0 && std::isfinite(tangent) && std::isfinite(d))) return fail();
        phi_ = std::atan(tangent);
        if (std::abs(phi_ - previous_) < kSettled) {
            state_ = State::Settled;
            return;
        }
        const double s = std::sin(phi_);  // side by side, so that both come from one call
        const double c = std::cos(phi_);
        const double N = shape_.a / std::sqrt(1 - s * s * shape_.e2);  // RadiusN at phi
        const double h = p_ / c - N;
        if (!std::isfinite(N) || !std::isfinite(h)) return fail();
        N_ = N;
        h_ = h;
        previous_ = phi_;
        if (passes_ == kMostPasses) state_ = State::Settled;
    }

    // Behind the last pass; (0, 0) after a failure. Longitude in 0..360.
    [[nodiscard]] Geographic result() const {
        if (failed()) return {.Phi = 0, .Lam = 0, .h = h_};
        const double radian = degreeToRadian();
        Geographic position{.Phi = phi_ / radian, .Lam = lam_ / radian, .h = h_};
        if (X_ < 0) position.Lam += 180;
        if (position.Lam < 0) position.Lam += 360;
        return position;
    }

private:
    enum class State { GoesOn, Settled, Failed };

    void fail() { state_ = State::Failed; }

    Shape shape_;
    double X_ = 0;
    double Z_ = 0;
    double Z2_ = 0;
    double lam_ = 0;
    double p_ = 0;
    double N_ = 0;
    double h_ = 0;
    double phi_ = 0;
    double previous_ = 0;
    int passes_ = 0;
    State state_ = State::GoesOn;
};

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
    Geographic result;
    if (!XYZToGeoTogether({&point, 1}, ellipsoid, {&result, 1}))
        messages.tell("경위도로 변환 할 수 없는 GPS 좌표 입니다. 확인후 다시 변환 하십시오");
    return result;
}

bool XYZToGeoTogether(std::span<const Geocentric> points, const Ellipsoid& ellipsoid,
                      std::span<Geographic> results) {
    std::array<LatitudeIteration, kMostTogether> iterations;
    try {
        const Shape shape(ellipsoid);
        for (std::size_t i = 0; i < points.size(); ++i)
            iterations[i] = LatitudeIteration(points[i], shape);
    } catch (const RuntimeFault&) {  // no ellipsoid to speak of
        std::fill(results.begin(), results.end(), Geographic{});
        return false;
    }
    const std::span ways(iterations.data(), points.size());
    for (bool goesOn = true; goesOn;) {
        goesOn = false;
        for (LatitudeIteration& way : ways)
            if (way.goesOn()) {
                way.pass();
                goesOn = true;
            }
    }
    bool all = true;
    for (std::size_t i = 0; i < ways.size(); ++i) {
        results[i] = ways[i].result();
        all = all && !ways[i].failed();
    }
    return all;
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
