#include "geodesy/transverse_mercator.h"

#include <cmath>

#include "common/checked_arithmetic.h"
#include "common/integer_power.h"
#include "common/run_time_fault.h"

namespace kelvo {

namespace {

// Metres. Where the arc's last two terms are smaller (2 centimetres on the earth), their sines can
// be those of multiple angles, made of the first two: of 20,000,000 arcs no bit differs.
constexpr double kSmallTerm = 0.1;

void requireComputable(const TmGrid& grid) {
    if (!grid.computable()) raise(Fault::Overflow);
}

}  // namespace

TmGrid::TmGrid(const Ellipsoid& ellipsoid, const Projection& projection)
    : ellipsoid_(ellipsoid), projection_(projection) {
    try {
        derive();
        M0_ = meridianArc(finite(projection.Phi0 * KelvoSub::degreeToRadian())) * projection.S0;
    } catch (const RuntimeFault&) {
        computable_ = false;
    }
}

// The second eccentricity, and the coefficients of the meridian arc by the third flattening n.
void TmGrid::derive() {
    const EllipsoidShape shape(ellipsoid_);
    const double a = shape.a;
    const double b = shape.b;
    const double a2 = a * a;
    const double b2 = b * b;
    a_ = a;
    e2_ = shape.e2;
    ep2_ = quotient(a2 - b2, b2);

    const Powers<5> n(quotient(a - b, b + a));
    A_ = (81 * (n(4) - n(5)) / 64 + (5 * (n(2) - n(3)) / 4 + (1 - n(1)))) * a;
    B_ = ((55 * n(5) / 64 + ((n(1) - n(2)) + 7 * (n(3) - n(4)) / 8)) * (3 * a)) / 2;
    C_ = (((n(2) - n(3)) + 3 * (n(4) - n(5)) / 4) * (15 * a)) / 16;
    D_ = ((11 * n(5) / 16 + (n(3) - n(4))) * (35 * a)) / 48;
    E_ = ((n(4) - n(5)) * (315 * a)) / 512;
}

double TmGrid::meridianArc(double phi) const {
    if (!(std::abs(D_) < kSmallTerm)) return KelvoSub::MeridianArc(A_, B_, C_, D_, E_, phi);
    const double sin2 = std::sin(phi + phi);
    const double sin4 = std::sin(4 * phi);
    const double square = sin2 * sin2;
    const double sin6 = sin2 * (3 - 4 * square);
    const double sin8 = 2 * sin4 * (1 - 2 * square);
    return finite(A_ * phi - sin2 * B_ + sin4 * C_ - sin6 * D_ + sin8 * E_);
}

bool TmGrid::sharesEllipsoid(const TmGrid& other) const {
    return ellipsoid_.a == other.ellipsoid_.a && ellipsoid_.f == other.ellipsoid_.f;
}

TmLatitude::TmLatitude(const TmGrid& grid, double Phi) {
    try {
        requireComputable(grid);
        derive(grid, Phi);
    } catch (const RuntimeFault&) {
        computable_ = false;
    }
}

void TmLatitude::derive(const TmGrid& grid, double Phi) {
    const double phi = Phi * KelvoSub::degreeToRadian();
    const double s = std::sin(finite(phi));
    const Powers<7> c(std::cos(phi));
    const Powers<6> t(quotient(s, c(1)));
    const Powers<4> h(c(2) * grid.ep2());  // the square of the usual eta
    const double N = KelvoSub::radiusNOfSine(grid.a(), grid.e2(), s);
    const double sN = s * N;

    arc_ = grid.meridianArc(phi);
    N_ = N;
    c_ = c(1);
    sNc_ = sN * c(1);
    sNc3_ = c(3) * sN;
    sNc5_ = c(5) * sN;
    sNc7_ = c(7) * sN;
    Nc3_ = c(3) * N;
    Nc5_ = c(5) * N;
    Nc7_ = c(7) * N;
    P3_ = 5 - t(2) + 9 * h(1) + 4 * h(2);
    P4_ = 61 - 58 * t(2) + t(4) + 270 * h(1) - 330 * t(2) * h(1) + 445 * h(2) + 324 * h(3) -
          680 * t(2) * h(2) + 88 * h(4) - 600 * t(2) * h(3) - 192 * t(2) * h(4);
    P5_ = 1385 - 3111 * t(2) + 543 * t(4) - t(6);
    P7_ = 1 - t(2) + h(1);
    P8_ = 5 - 18 * t(2) + t(4) + 14 * h(1) - 58 * t(2) * h(1) + 13 * h(2) + 4 * h(3) -
          64 * t(2) * h(2) - 24 * t(2) * h(3);
    P9_ = 61 - 479 * t(2) + 179 * t(4) - t(6);
}

TmParallel::TmParallel(const TmGrid& grid, const TmLatitude& latitude)
    : computable_(grid.computable() && latitude.computable_),
      X0_(grid.projection().X0),
      Y0_(grid.projection().Y0),
      M0_(grid.M0()) {
    const double S0 = grid.projection().S0;
    T1_ = latitude.arc_ * S0;
    T2_ = (latitude.sNc_ * S0) / 2;
    T3_ = (latitude.sNc3_ * S0 * latitude.P3_) / 24;
    T4_ = (latitude.sNc5_ * S0 * latitude.P4_) / 720;
    T5_ = (latitude.sNc7_ * S0 * latitude.P5_) / 40320;
    T6_ = latitude.c_ * latitude.N_ * S0;
    T7_ = (latitude.Nc3_ * S0 * latitude.P7_) / 6;
    T8_ = (latitude.Nc5_ * S0 * latitude.P8_) / 120;
    T9_ = (latitude.Nc7_ * S0 * latitude.P9_) / 5040;
}

Guarded<GridPoint> TmParallel::at(double Lam, double Lam0) const {
    const double radian = KelvoSub::degreeToRadian();
    const Powers<8> dl(Lam * radian - Lam0 * radian);
    const double X = (dl(2) * T2_ + T1_) + dl(4) * T3_ + dl(6) * T4_ + dl(8) * T5_ - M0_ + X0_;
    const double Y = (T6_ * dl(1) + Y0_) + dl(3) * T7_ + dl(5) * T8_ + dl(7) * T9_;
    if (!computable_ || !std::isfinite(X) || !std::isfinite(Y))
        return {.value = {.X = X0_, .Y = Y0_}, .failed = true};
    return {.value = {.X = X, .Y = Y}};
}

}  // namespace kelvo

namespace kelvo::KelvoSub {

namespace {

// The latitude whose meridian arc is S: exactly five passes, whatever the data.
double footPointLatitude(const TmGrid& grid, double S) {
    double phi = quotient(S, RadiusM(grid.a(), grid.e2(), 0));
    for (int pass = 0; pass < 5; ++pass)
        phi = finite(quotient(S - grid.meridianArc(phi), RadiusM(grid.a(), grid.e2(), phi)) + phi);
    return phi;
}

Position positionOf(double X, double Y, const TmGrid& grid, double Lam0) {
    const double radian = degreeToRadian();
    const Projection& p = grid.projection();
    const Powers<8> S0(p.S0);

    requireComputable(grid);
    const double S = quotient((grid.M0() + X) - p.X0, S0(1));
    const double phi = footPointLatitude(grid, S);

    const double M = RadiusM(grid.a(), grid.e2(), phi);
    const Powers<7> N(RadiusN(grid.a(), grid.e2(), phi));
    const double s = std::sin(phi);
    const double c = std::cos(phi);
    const Powers<6> t(quotient(s, c));
    const Powers<4> h(c * c * grid.ep2());
    const Powers<8> dy(Y - p.Y0);

    const double Q11 = 5 + 3 * t(2) + h(1) - 4 * h(2) - 9 * t(2) * h(1);
    const double Q12 = 61 + 90 * t(2) + 46 * h(1) + 45 * t(4) - 252 * t(2) * h(1) - 3 * h(2) +
                       100 * h(3) - 66 * t(2) * h(2) - 90 * t(4) * h(1) + 88 * h(4) +
                       225 * t(4) * h(2) + 84 * t(2) * h(3) - 192 * t(2) * h(4);
    const double Q13 = 1385 + 3633 * t(2) + 4095 * t(4) + 1575 * t(6);

    const double T10 = quotient(t(1), S0(2) * ((M + M) * N(1)));
    const double T11 = quotient(Q11 * t(1), S0(4) * (N(3) * (24 * M)));
    const double T12 = quotient(Q12 * t(1), S0(6) * (N(5) * (720 * M)));
    const double T13 = quotient(Q13 * t(1), S0(8) * (N(7) * (40320 * M)));
    const double phi1 = phi - dy(2) * T10 + dy(4) * T11 - dy(6) * T12 + dy(8) * T13;

    const double Q16 = 5 + 6 * h(1) + 28 * t(2) - 3 * h(2) + 8 * t(2) * h(1) + 24 * t(4) -
                       4 * h(3) + 4 * t(2) * h(2) + 24 * t(2) * h(3);
    const double Q17 = 61 + 662 * t(2) + 1320 * t(4) + 720 * t(6);

    const double T14 = quotient(1, c * N(1) * S0(1));
    const double T15 = quotient(t(2) + t(2) + 1 + h(1), S0(3) * (N(3) * 6 * c));
    const double T16 = quotient(Q16, S0(5) * (N(5) * 120 * c));
    const double T17 = quotient(Q17, S0(7) * (N(7) * 5040 * c));
    const double lam1 = (dy(1) * T14 - dy(3) * T15 + dy(5) * T16 - dy(7) * T17) + Lam0 * radian;

    return {.Phi = finite(phi1 / radian), .Lam = finite(lam1 / radian)};
}

}  // namespace

double MeridianArc(double A, double B, double C, double D, double E, double phi) {
    return finite(A * phi - std::sin(phi + phi) * B + std::sin(4 * phi) * C -
                  std::sin(6 * phi) * D + std::sin(8 * phi) * E);
}

Guarded<GridPoint> GeoToTM(double Phi, double Lam, const Ellipsoid& ellipsoid,
                           const Projection& projection) {
    return GeoToTM(Phi, Lam, TmGrid(ellipsoid, projection), projection.Lam0);
}

Guarded<GridPoint> GeoToTM(double Phi, double Lam, const TmGrid& grid, double Lam0) {
    return TmParallel(grid, TmLatitude(grid, Phi)).at(Lam, Lam0);
}

Guarded<Position> TMToGeo(double X, double Y, const Ellipsoid& ellipsoid,
                          const Projection& projection) {
    return TMToGeo(X, Y, TmGrid(ellipsoid, projection), projection.Lam0);
}

Guarded<Position> TMToGeo(double X, double Y, const TmGrid& grid, double Lam0) {
    try {
        return {.value = positionOf(X, Y, grid, Lam0)};
    } catch (const RuntimeFault&) {
        return {.value = {.Phi = grid.projection().Phi0, .Lam = Lam0}, .failed = true};
    }
}

}  // namespace kelvo::KelvoSub
