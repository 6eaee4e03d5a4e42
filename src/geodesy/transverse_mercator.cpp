#include "geodesy/transverse_mercator.h"

#include <cmath>

#include "common/checked_arithmetic.h"
#include "common/run_time_fault.h"

namespace kelvo::KelvoSub {

namespace {

// What both series derive from the ellipsoid: squares of the first and second eccentricity and
// the coefficients of the meridian arc, by the third flattening n (after Helmert).
struct DerivedConstants {
    double a = 0;
    double e2 = 0;
    double ep2 = 0;
    double A = 0;
    double B = 0;
    double C = 0;
    double D = 0;
    double E = 0;

    explicit DerivedConstants(const Ellipsoid& ellipsoid) : a(ellipsoid.a) {
        double f = ellipsoid.f;
        NormFlat(f);
        const double invf = quotient(1, f);
        const double b = quotient((invf - 1) * a, invf);
        const double a2 = a * a;
        const double b2 = b * b;
        e2 = quotient(a2 - b2, a2);
        ep2 = quotient(a2 - b2, b2);

        const double n = quotient(a - b, b + a);
        const double n2 = n * n;
        const double n3 = std::pow(n, 3);
        const double n4 = std::pow(n, 4);
        const double n5 = std::pow(n, 5);
        A = (81 * (n4 - n5) / 64 + (5 * (n2 - n3) / 4 + (1 - n))) * a;
        B = ((55 * n5 / 64 + ((n - n2) + 7 * (n3 - n4) / 8)) * (3 * a)) / 2;
        C = (((n2 - n3) + 3 * (n4 - n5) / 4) * (15 * a)) / 16;
        D = ((11 * n5 / 16 + (n3 - n4)) * (35 * a)) / 48;
        E = ((n4 - n5) * (315 * a)) / 512;
    }

    [[nodiscard]] double arc(double phi) const { return MeridianArc(A, B, C, D, E, phi); }
};

GridPoint gridOf(double Phi, double Lam, const Ellipsoid& ellipsoid, const Projection& p) {
    const double radian = degreeToRadian();
    const double phi = Phi * radian;
    const double phi0 = p.Phi0 * radian;
    const double S0 = p.S0;

    const DerivedConstants k(ellipsoid);
    const double dl = Lam * radian - p.Lam0 * radian;
    const double M0 = k.arc(phi0) * S0;

    const double s = std::sin(finite(phi));
    const double c = std::cos(phi);
    const double t = quotient(s, c);
    const double h = c * c * k.ep2;  // the square of the usual eta
    const double N = RadiusN(k.a, k.e2, phi);
    const double sN = s * N;

    const double c3 = std::pow(c, 3);
    const double c5 = std::pow(c, 5);
    const double c7 = std::pow(c, 7);
    const double t2 = t * t;
    const double t4 = std::pow(t, 4);
    const double t6 = std::pow(t, 6);
    const double h2 = h * h;
    const double h3 = std::pow(h, 3);
    const double h4 = std::pow(h, 4);

    const double P3 = 5 - t2 + 9 * h + 4 * h2;
    const double P4 = 61 - 58 * t2 + t4 + 270 * h - 330 * t2 * h + 445 * h2 + 324 * h3 -
                      680 * t2 * h2 + 88 * h4 - 600 * t2 * h3 - 192 * t2 * h4;
    const double P5 = 1385 - 3111 * t2 + 543 * t4 - t6;

    const double T1 = k.arc(phi) * S0;
    const double T2 = (sN * c * S0) / 2;
    const double T3 = (c3 * sN * S0 * P3) / 24;
    const double T4 = (c5 * sN * S0 * P4) / 720;
    const double T5 = (c7 * sN * S0 * P5) / 40320;

    const double dl2 = dl * dl;
    const double dl4 = std::pow(dl, 4);
    const double dl6 = std::pow(dl, 6);
    const double dl8 = std::pow(dl, 8);
    const double X = (dl2 * T2 + T1) + dl4 * T3 + dl6 * T4 + dl8 * T5 - M0 + p.X0;

    const double P8 =
        5 - 18 * t2 + t4 + 14 * h - 58 * t2 * h + 13 * h2 + 4 * h3 - 64 * t2 * h2 - 24 * t2 * h3;
    const double P9 = 61 - 479 * t2 + 179 * t4 - t6;

    const double T6 = c * N * S0;
    const double T7 = (c3 * N * S0 * (1 - t2 + h)) / 6;
    const double T8 = (c5 * N * S0 * P8) / 120;
    const double T9 = (c7 * N * S0 * P9) / 5040;

    const double dl3 = std::pow(dl, 3);
    const double dl5 = std::pow(dl, 5);
    const double dl7 = std::pow(dl, 7);
    const double Y = (T6 * dl + p.Y0) + dl3 * T7 + dl5 * T8 + dl7 * T9;

    return {.X = finite(X), .Y = finite(Y)};
}

// The latitude whose meridian arc is S: exactly five passes, whatever the data.
double footPointLatitude(const DerivedConstants& k, double S) {
    double phi = quotient(S, RadiusM(k.a, k.e2, 0));
    for (int pass = 0; pass < 5; ++pass)
        phi = finite(quotient(S - k.arc(phi), RadiusM(k.a, k.e2, phi)) + phi);
    return phi;
}

Position positionOf(double X, double Y, const Ellipsoid& ellipsoid, const Projection& p) {
    const double radian = degreeToRadian();
    const double S0 = p.S0;

    const DerivedConstants k(ellipsoid);
    const double S = quotient((k.arc(finite(p.Phi0 * radian)) * S0 + X) - p.X0, S0);
    const double phi = footPointLatitude(k, S);

    const double M = RadiusM(k.a, k.e2, phi);
    const double N = RadiusN(k.a, k.e2, phi);
    const double s = std::sin(phi);
    const double c = std::cos(phi);
    const double t = quotient(s, c);
    const double h = c * c * k.ep2;
    const double dy = Y - p.Y0;

    const double t2 = t * t;
    const double t4 = std::pow(t, 4);
    const double t6 = std::pow(t, 6);
    const double h2 = h * h;
    const double h3 = std::pow(h, 3);
    const double h4 = std::pow(h, 4);
    const double N3 = std::pow(N, 3);
    const double N5 = std::pow(N, 5);
    const double N7 = std::pow(N, 7);

    const double Q11 = 5 + 3 * t2 + h - 4 * h2 - 9 * t2 * h;
    const double Q12 = 61 + 90 * t2 + 46 * h + 45 * t4 - 252 * t2 * h - 3 * h2 + 100 * h3 -
                       66 * t2 * h2 - 90 * t4 * h + 88 * h4 + 225 * t4 * h2 + 84 * t2 * h3 -
                       192 * t2 * h4;
    const double Q13 = 1385 + 3633 * t2 + 4095 * t4 + 1575 * t6;

    const double T10 = quotient(t, S0 * S0 * ((M + M) * N));
    const double T11 = quotient(Q11 * t, std::pow(S0, 4) * (N3 * (24 * M)));
    const double T12 = quotient(Q12 * t, std::pow(S0, 6) * (N5 * (720 * M)));
    const double T13 = quotient(Q13 * t, std::pow(S0, 8) * (N7 * (40320 * M)));
    const double phi1 =
        phi - dy * dy * T10 + std::pow(dy, 4) * T11 - std::pow(dy, 6) * T12 + std::pow(dy, 8) * T13;

    const double Q16 =
        5 + 6 * h + 28 * t2 - 3 * h2 + 8 * t2 * h + 24 * t4 - 4 * h3 + 4 * t2 * h2 + 24 * t2 * h3;
    const double Q17 = 61 + 662 * t2 + 1320 * t4 + 720 * t6;

    const double T14 = quotient(1, c * N * S0);
    const double T15 = quotient(t2 + t2 + 1 + h, std::pow(S0, 3) * (N3 * 6 * c));
    const double T16 = quotient(Q16, std::pow(S0, 5) * (N5 * 120 * c));
    const double T17 = quotient(Q17, std::pow(S0, 7) * (N7 * 5040 * c));
    const double lam1 =
        (dy * T14 - std::pow(dy, 3) * T15 + std::pow(dy, 5) * T16 - std::pow(dy, 7) * T17) +
        p.Lam0 * radian;

    return {.Phi = finite(phi1 / radian), .Lam = finite(lam1 / radian)};
}

// The national grid, its central meridian by zone: 125, 127, 129 and so on, plus the shift.
Projection nationalGrid(int zone, double shiftSeconds) {
    return {.X0 = 500000.0,
            .Y0 = 200000.0,
            .Phi0 = 38.0,
            .Lam0 = (2.0 * zone + 123) + shiftSeconds / 3600,
            .S0 = 1.0};
}

}  // namespace

double MeridianArc(double A, double B, double C, double D, double E, double phi) {
    return A * phi - std::sin(phi + phi) * B + std::sin(4 * phi) * C - std::sin(6 * phi) * D +
           std::sin(8 * phi) * E;
}

GridPoint GeoToTM(double Phi, double Lam, const Ellipsoid& ellipsoid, const Projection& projection,
                  MessageBoxes& messages) {
    try {
        return gridOf(Phi, Lam, ellipsoid, projection);
    } catch (const RuntimeFault&) {
        messages.tell(
            "직교좌표로 변환할 수 없는 데이터 입니다. 타원체 제원과 경위도를 확인후 다시 하십시오");
        return {.X = projection.X0, .Y = projection.Y0};
    }
}

Position TMToGeo(double X, double Y, const Ellipsoid& ellipsoid, const Projection& projection,
                 MessageBoxes& messages) {
    try {
        return positionOf(X, Y, ellipsoid, projection);
    } catch (const RuntimeFault&) {
        messages.tell(
            "경위도로 변환할 수 없는 직교좌표 입니다. 타원체 제원과 좌표를 확인후 다시 하십시오");
        return {.Phi = projection.Phi0, .Lam = projection.Lam0};
    }
}

GridPoint BesselToTM(double Phi, double Lam, int& zone, double shiftSeconds,
                     MessageBoxes& messages) {
    if (zone < 1) {
        zone = 2;
        if (Lam < 126.0) zone = 1;
        if (Lam > 128.0) zone = 3;
    }
    return GeoToTM(Phi, Lam, kBessel, nationalGrid(zone, shiftSeconds), messages);
}

Position TMToBessel(double X, double Y, int& zone, double shiftSeconds, MessageBoxes& messages) {
    if (zone < 1) zone = 1;
    if (zone > 3) zone = 3;
    return TMToGeo(X, Y, kBessel, nationalGrid(zone, shiftSeconds), messages);
}

void chkZone(double lam, std::int16_t& Zone, double& Lam0) {
    if (Zone >= 5) return;
    if (lam < 126) {
        Zone = 1;
        Lam0 = 125;
    } else if (lam <= 128) {
        Zone = 2;
        Lam0 = 127;
    } else if (lam <= 130) {
        Zone = 3;
        Lam0 = 129;
    } else {
        Zone = 4;
        Lam0 = 131;
    }
}

void chkUZone(double lam, std::int16_t& UZone, double& ULam0) {
    if (UZone >= 4) return;
    UZone = lam < 126 ? 1 : 2;
    ULam0 = lam < 126 ? 123 : 129;
}

}  // namespace kelvo::KelvoSub
