// The projection by its plain formulas, every power by std::pow and nothing kept between
// steps: the yardstick for the digits of the fast one. Shares no line with src/.
#pragma once

#include <cmath>

namespace kelvo::reference {

inline double radian() {
    return std::atan(1.0) / 45.0;
}

inline double RadiusN(double a, double e2, double phi) {
    return a / std::sqrt(1 - std::pow(std::sin(phi), 2) * e2);
}

inline double RadiusM(double a, double e2, double phi) {
    const double W = std::sqrt(1 - std::pow(std::sin(phi), 2) * e2);
    return ((1 - e2) * a) / std::pow(W, 3);
}

inline double MeridianArc(double A, double B, double C, double D, double E, double phi) {
    return A * phi - std::sin(phi + phi) * B + std::sin(4 * phi) * C - std::sin(6 * phi) * D +
           std::sin(8 * phi) * E;
}

struct Derived {
    double b, e2, ep2, A, B, C, D, E;
};

inline Derived derived(double a, double f) {
    if (f > 1.0) f = 1 / f;
    const double invf = 1 / f;
    Derived k{};
    k.b = ((invf - 1) * a) / invf;
    const double b = k.b;
    k.e2 = (std::pow(a, 2) - std::pow(b, 2)) / std::pow(a, 2);
    k.ep2 = (std::pow(a, 2) - std::pow(b, 2)) / std::pow(b, 2);
    const double n = (a - b) / (b + a);
    const auto p = [n](int power) { return std::pow(n, power); };
    k.A = (81 * (p(4) - p(5)) / 64 + (5 * (p(2) - p(3)) / 4 + (1 - n))) * a;
    k.B = ((55 * p(5) / 64 + ((n - p(2)) + 7 * (p(3) - p(4)) / 8)) * (3 * a)) / 2;
    k.C = (((p(2) - p(3)) + 3 * (p(4) - p(5)) / 4) * (15 * a)) / 16;
    k.D = ((11 * p(5) / 16 + (p(3) - p(4))) * (35 * a)) / 48;
    k.E = ((p(4) - p(5)) * (315 * a)) / 512;
    return k;
}

struct Pair {
    double first = 0;
    double second = 0;
};

inline Pair GeoToTM(double Phi, double Lam, double a, double f, double X0, double Y0, double Phi0,
                    double Lam0, double S0) {
    using std::pow;
    const double rad = radian();
    const double phi = Phi * rad;
    const double lam = Lam * rad;
    const double phi0 = Phi0 * rad;
    const double lam0 = Lam0 * rad;
    const Derived k = derived(a, f);
    const double dl = lam - lam0;
    const double M0 = MeridianArc(k.A, k.B, k.C, k.D, k.E, phi0) * S0;
    const double s = std::sin(phi);
    const double c = std::cos(phi);
    const double t = s / c;
    const double h = pow(c, 2) * k.ep2;
    const double N = RadiusN(a, k.e2, phi);
    const double sN = s * N;

    const double T1 = MeridianArc(k.A, k.B, k.C, k.D, k.E, phi) * S0;
    const double T2 = (sN * c * S0) / 2;
    const double P3 = 5 - pow(t, 2) + 9 * h + 4 * pow(h, 2);
    const double T3 = (pow(c, 3) * sN * S0 * P3) / 24;
    const double P4 = 61 - 58 * pow(t, 2) + pow(t, 4) + 270 * h - 330 * pow(t, 2) * h +
                      445 * pow(h, 2) + 324 * pow(h, 3) - 680 * pow(t, 2) * pow(h, 2) +
                      88 * pow(h, 4) - 600 * pow(t, 2) * pow(h, 3) - 192 * pow(t, 2) * pow(h, 4);
    const double T4 = (pow(c, 5) * sN * S0 * P4) / 720;
    const double P5 = 1385 - 3111 * pow(t, 2) + 543 * pow(t, 4) - pow(t, 6);
    const double T5 = (pow(c, 7) * sN * S0 * P5) / 40320;
    double X = (pow(dl, 2) * T2 + T1) + pow(dl, 4) * T3 + pow(dl, 6) * T4 + pow(dl, 8) * T5;
    X = X - M0 + X0;

    const double T6 = c * N * S0;
    const double T7 = (pow(c, 3) * N * S0 * (1 - pow(t, 2) + h)) / 6;
    const double P8 = 5 - 18 * pow(t, 2) + pow(t, 4) + 14 * h - 58 * pow(t, 2) * h +
                      13 * pow(h, 2) + 4 * pow(h, 3) - 64 * pow(t, 2) * pow(h, 2) -
                      24 * pow(t, 2) * pow(h, 3);
    const double T8 = (pow(c, 5) * N * S0 * P8) / 120;
    const double P9 = 61 - 479 * pow(t, 2) + 179 * pow(t, 4) - pow(t, 6);
    const double T9 = (pow(c, 7) * N * S0 * P9) / 5040;
    const double Y = (T6 * dl + Y0) + pow(dl, 3) * T7 + pow(dl, 5) * T8 + pow(dl, 7) * T9;
    return {X, Y};
}

inline Pair TMToGeo(double X, double Y, double a, double f, double X0, double Y0, double Phi0,
                    double Lam0, double S0) {
    using std::pow;
    const double rad = radian();
    const double phi0 = Phi0 * rad;
    const double lam0 = Lam0 * rad;
    const Derived k = derived(a, f);
    const double S = ((MeridianArc(k.A, k.B, k.C, k.D, k.E, phi0) * S0 + X) - X0) / S0;
    double phi = S / RadiusM(a, k.e2, 0);
    for (int pass = 1; pass <= 5; ++pass) {
        phi = (S - MeridianArc(k.A, k.B, k.C, k.D, k.E, phi)) / RadiusM(a, k.e2, phi) + phi;
    }
    const double M = RadiusM(a, k.e2, phi);
    const double N = RadiusN(a, k.e2, phi);
    const double s = std::sin(phi);
    const double c = std::cos(phi);
    const double t = s / c;
    const double h = pow(c, 2) * k.ep2;
    const double dy = Y - Y0;

    const double T10 = t / (pow(S0, 2) * ((M + M) * N));
    const double Q11 = 5 + 3 * pow(t, 2) + h - 4 * pow(h, 2) - 9 * pow(t, 2) * h;
    const double T11 = (Q11 * t) / (pow(S0, 4) * (pow(N, 3) * (24 * M)));
    const double Q12 = 61 + 90 * pow(t, 2) + 46 * h + 45 * pow(t, 4) - 252 * pow(t, 2) * h -
                       3 * pow(h, 2) + 100 * pow(h, 3) - 66 * pow(t, 2) * pow(h, 2) -
                       90 * pow(t, 4) * h + 88 * pow(h, 4) + 225 * pow(t, 4) * pow(h, 2) +
                       84 * pow(t, 2) * pow(h, 3) - 192 * pow(t, 2) * pow(h, 4);
    const double T12 = (Q12 * t) / (pow(S0, 6) * (pow(N, 5) * (720 * M)));
    const double Q13 = 1385 + 3633 * pow(t, 2) + 4095 * pow(t, 4) + 1575 * pow(t, 6);
    const double T13 = (Q13 * t) / (pow(S0, 8) * (pow(N, 7) * (40320 * M)));
    const double phiOut =
        phi - pow(dy, 2) * T10 + pow(dy, 4) * T11 - pow(dy, 6) * T12 + pow(dy, 8) * T13;

    const double T14 = 1 / (c * N * S0);
    const double T15 = (pow(t, 2) + pow(t, 2) + 1 + h) / (pow(S0, 3) * (pow(N, 3) * 6 * c));
    const double Q16 = 5 + 6 * h + 28 * pow(t, 2) - 3 * pow(h, 2) + 8 * pow(t, 2) * h +
                       24 * pow(t, 4) - 4 * pow(h, 3) + 4 * pow(t, 2) * pow(h, 2) +
                       24 * pow(t, 2) * pow(h, 3);
    const double T16 = Q16 / (pow(S0, 5) * (pow(N, 5) * 120 * c));
    const double Q17 = 61 + 662 * pow(t, 2) + 1320 * pow(t, 4) + 720 * pow(t, 6);
    const double T17 = Q17 / (pow(S0, 7) * (pow(N, 7) * 5040 * c));
    const double lamOut =
        (dy * T14 - pow(dy, 3) * T15 + pow(dy, 5) * T16 - pow(dy, 7) * T17) + lam0;
    return {phiOut / rad, lamOut / rad};
}

}  // namespace kelvo::reference
