// KelvoSub: the reference ellipsoid and its radii.
#pragma once

namespace kelvo {

// A reference ellipsoid as the surveyor gives it.
struct Ellipsoid {
    double a = 0;  // semi-major axis, metres
    double f = 0;  // flattening, or its inverse if above 1
};

// Bessel 1841 by its axis and inverse flattening, as parameter sets carry them. The fixed datum
// chains and the national grid have the flattening 1 / 299.152813 instead (required).
inline constexpr Ellipsoid kBesselOfParameters{6377397.155, 299.1528128};
inline constexpr Ellipsoid kBessel{6377397.155, 1.0 / 299.152813};
// World Geodetic System 1984 (NIMA TR8350.2).
inline constexpr Ellipsoid kWgs84{6378137.0, 1.0 / 298.257223563};

// The figures of an ellipsoid that geocentric coordinates rest on, worked out once for many
// points. Fault 11 (0/0: 6) for an ellipsoid without axis or flattening, 6 for an overflow.
struct EllipsoidShape {
    explicit EllipsoidShape(const Ellipsoid& ellipsoid);

    double a = 0;         // semi-major axis, metres
    double b = 0;         // semi-minor axis, metres
    double e2 = 0;        // first eccentricity, squared
    double b2OverA2 = 0;  // square of the ratio of the axes, 1 - e2 as it is rounded
};

namespace KelvoSub {

// The degree-to-radian factor: the arctangent of 1 divided by 45.
[[nodiscard]] double degreeToRadian();

// A flattening above 1 is an inverse flattening and is replaced by its reciprocal.
void NormFlat(double& f);

// W = sqrt(1 - e2 sin^2 phi), phi in radians. Fault 5 where the root is of a negative number.
[[nodiscard]] double RadiusW(double e2, double phi);

// Radius of curvature in the prime vertical, a / W, metres (P. D. Thomas, Conformal Projections
// in Geodesy and Cartography, US Coast and Geodetic Survey Special Publication 251, 1952).
[[nodiscard]] double RadiusN(double a, double e2, double phi);
// The same where the sine of the latitude is at hand.
[[nodiscard]] double radiusNOfSine(double a, double e2, double sine);

// Radius of curvature in the meridian, a (1 - e2) / W^3, metres (the same).
[[nodiscard]] double RadiusM(double a, double e2, double phi);

}  // namespace KelvoSub
}  // namespace kelvo
