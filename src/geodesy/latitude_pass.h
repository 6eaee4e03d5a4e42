// One pass of the iteration from earth-centred coordinates to latitude and height.
#pragma once

#include <cmath>

#include "geodesy/ellipsoid.h"
#include "geodesy/geocentric.h"

namespace kelvo {

// What stays the same through the passes of a point.
struct LatitudeProblem {
    double p = 0;  // distance from the polar axis, metres
    double Z = 0;
    double Z2 = 0;     // Z squared
    double slope = 0;  // Y / X, the tangent of the longitude
};

// What a pass hands to the next.
struct LatitudeState {
    double N = 0;  // radius in the prime vertical, metres
    double h = 0;
    double phi = 0;  // radians
};

// Not finite where X is 0 or a square overflows.
[[nodiscard]] inline LatitudeProblem latitudeProblem(const Geocentric& point) {
    return {.p = std::sqrt(point.X * point.X + point.Y * point.Y),
            .Z = point.Z,
            .Z2 = point.Z * point.Z,
            .slope = point.Y / point.X};
}

// The square of the side next to the latitude, in the triangle whose far side is Z: r^2 - Z^2. Not
// above 0 where r is too small for Z.
[[nodiscard]] inline double nearSideSquared(double Z2, const EllipsoidShape& shape, double N,
                                            double h) {
    const double r = shape.b2OverA2 * N + h;
    return r * r - Z2;
}

// N and h at a latitude, which is given by its sine and cosine, too.
[[nodiscard]] inline LatitudeState latitudeStateAt(double p, const EllipsoidShape& shape,
                                                   double phi, double s, double c) {
    const double N = shape.a / std::sqrt(1 - s * s * shape.e2);  // RadiusN at phi
    return {.N = N, .h = p / c - N, .phi = phi};
}

// The position of the last pass, longitude in 0..360.
[[nodiscard]] inline Geographic positionAt(const Geocentric& point, const LatitudeProblem& problem,
                                           const LatitudeState& last, double radian) {
    Geographic position{
        .Phi = last.phi / radian, .Lam = std::atan(problem.slope) / radian, .h = last.h};
    if (point.X < 0) position.Lam += 180;
    if (position.Lam < 0) position.Lam += 360;
    return position;
}

}  // namespace kelvo
