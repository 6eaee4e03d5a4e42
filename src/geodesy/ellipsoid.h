// KelvoSub: the reference ellipsoid and its radii.
#pragma once

namespace kelvo {

// A reference ellipsoid as the surveyor gives it.
struct Ellipsoid {
    double a = 0;  // semi-major axis, metres
    double f = 0;  // flattening, or its inverse if above 1
};

// The fixed ellipsoids of the datum chains. Bessel 1841 here has the inverse flattening
// 299.152813; parameter sets carry 299.1528128.
inline constexpr Ellipsoid kWgs84{6378137.0, 1.0 / 298.257223563};
inline constexpr Ellipsoid kBessel{6377397.155, 1.0 / 299.152813};

namespace KelvoSub {

// The degree-to-radian factor: the arctangent of 1 divided by 45.
[[nodiscard]] double degreeToRadian();

// A flattening above 1 is an inverse flattening and is replaced by its reciprocal.
void NormFlat(double& f);

// W = sqrt(1 - e2 sin^2 phi), phi in radians. Fault 5 where the root is of a negative number.
[[nodiscard]] double RadiusW(double e2, double phi);

// Radius of curvature in the prime vertical, a / W, metres.
[[nodiscard]] double RadiusN(double a, double e2, double phi);

// Radius of curvature in the meridian, a (1 - e2) / W^3, metres.
[[nodiscard]] double RadiusM(double a, double e2, double phi);

}  // namespace KelvoSub
}  // namespace kelvo
