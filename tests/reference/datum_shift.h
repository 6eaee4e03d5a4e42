// Geocentric coordinates and the two shifts by their plain formulas. Shares no line with src/.
#pragma once

#include <cmath>

#include "reference/transverse_mercator.h"

namespace kelvo::reference {

struct Triple {
    double x = 0;  // X, or latitude
    double y = 0;  // Y, or longitude
    double z = 0;  // Z, or height
    bool failed = false;
};

inline Triple GeoToXYZ(double Phi, double Lam, double height, double a, double f) {
    const double b = derived(a, f).b;
    const double e2 = (std::pow(a, 2) - std::pow(b, 2)) / std::pow(a, 2);
    const double phi = Phi * radian();
    const double lam = Lam * radian();
    const double N = RadiusN(a, e2, phi);
    return {((N + height) * std::cos(phi)) * std::cos(lam),
            ((N + height) * std::cos(phi)) * std::sin(lam),
            ((std::pow(b, 2) / std::pow(a, 2)) * N + height) * std::sin(phi), false};
}

inline Triple XYZToGeo(double X, double Y, double Z, double a, double f) {
    const double b = derived(a, f).b;
    const double e2 = (std::pow(a, 2) - std::pow(b, 2)) / std::pow(a, 2);
    if (X == 0) return {0, 0, 0, true};
    const double lam = std::atan(Y / X);
    const double p = std::sqrt(X * X + Y * Y);
    double N = a;
    double h = 0;
    double previous = 0;
    double phi = 0;
    int passes = 0;
    while (true) {
        passes = passes + 1;
        const double r = (std::pow(b, 2) / std::pow(a, 2)) * N + h;
        const double square = std::pow(r, 2) - std::pow(Z, 2);
        if (!(square > 0)) return {0, 0, h, true};
        phi = std::atan(Z / std::sqrt(square));
        if (std::fabs(phi - previous) < 1e-18) break;
        N = RadiusN(a, e2, phi);
        h = p / std::cos(phi) - N;
        previous = phi;
        if (passes > 30) break;
    }
    double Lam = lam / radian();
    if (X < 0) Lam = Lam + 180;
    if (Lam < 0) Lam = Lam + 360;
    return {phi / radian(), Lam, h, false};
}

struct Shift {
    double dX = 0, dY = 0, dZ = 0;         // metres
    double Omega = 0, Phi = 0, Kappa = 0;  // radians
    double dS = 0;                         // ratio
};

inline Shift shiftOf(double dX, double dY, double dZ, double Omega, double Phi, double Kappa,
                     double dS) {
    return {dX,
            dY,
            dZ,
            (Omega / 3600) * radian(),
            (Phi / 3600) * radian(),
            (Kappa / 3600) * radian(),
            dS * 1e-6};
}

inline Triple BursaForward(const Shift& s, double X, double Y, double Z) {
    return {((s.Kappa * Y + X) - s.Phi * Z) * (s.dS + 1) + s.dX,
            ((-s.Kappa * X + Y) + s.Omega * Z) * (s.dS + 1) + s.dY,
            ((s.Phi * X - s.Omega * Y) + Z) * (s.dS + 1) + s.dZ, false};
}

inline Triple MolodForward(const Shift& s, double X, double Y, double Z) {
    return {(s.Kappa * Y - s.Phi * Z) * (s.dS + 1) + X + s.dX,
            (-s.Kappa * X + s.Omega * Z) * (s.dS + 1) + Y + s.dY,
            (s.Phi * X - s.Omega * Y) * (s.dS + 1) + Z + s.dZ, false};
}

inline Triple rotatedBack(const Shift& s, double u, double v, double w) {
    return {((u - s.Kappa * v) + s.Phi * w) * (1 / (s.dS + 1)),
            ((s.Kappa * u + v) - s.Omega * w) * (1 / (s.dS + 1)),
            ((-s.Phi * u + s.Omega * v) + w) * (1 / (s.dS + 1)), false};
}

inline Triple BursaInverse(const Shift& s, double X, double Y, double Z) {
    return rotatedBack(s, X - s.dX, Y - s.dY, Z - s.dZ);
}

inline Triple MolodInverse(const Shift& s, double X, double Y, double Z) {
    const double w = s.dS + 1;
    return rotatedBack(s, (X - s.dX) * w, (Y - s.dY) * w, (Z - s.dZ) * w);
}

}  // namespace kelvo::reference
