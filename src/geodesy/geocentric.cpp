#include "geodesy/geocentric.h"

#include <cmath>

#include "common/checked_arithmetic.h"
#include "common/run_time_fault.h"
#include "geodesy/latitude_pass.h"

namespace kelvo::KelvoSub {

namespace {

// Below the resolution of a latitude but at the equator: met when two passes agree.
constexpr double kSettled = 1e-18;

Guarded<Geographic> iterated(const Geocentric& point, const EllipsoidShape& shape) {
    const LatitudeProblem problem = latitudeProblem(point);
    LatitudeState state{.N = shape.a};
    if (!std::isfinite(problem.slope) || !std::isfinite(problem.p)) return {.failed = true};
    double previous = 0;
    for (int pass = 1; pass <= kLatitudePasses; ++pass) {
        const double d = nearSideSquared(problem.Z2, shape, state.N, state.h);
        const double tangent = problem.Z / std::sqrt(d);
        const Guarded<Geographic> noResult{.value = {.h = state.h}, .failed = true};
        if (!std::isfinite(d) || !std::isfinite(tangent)) return noResult;
        const double phi = std::atan(tangent);
        // N and h stay those of the pass before.
        state.phi = phi;
        if (std::abs(phi - previous) < kSettled) break;
        state = latitudeStateAt(problem.p, shape, phi, std::sin(phi), std::cos(phi));
        if (!std::isfinite(state.N) || !std::isfinite(state.h)) return noResult;
        previous = phi;
    }
    return {.value = positionAt(point, problem, state, degreeToRadian())};
}

}  // namespace

Geocentric GeoToXYZ(double Phi, double Lam, double h, const Ellipsoid& ellipsoid) {
    return GeoToXYZ(Phi, Lam, h, EllipsoidShape(ellipsoid));
}

Geocentric GeoToXYZ(double Phi, double Lam, double h, const EllipsoidShape& shape) {
    const double phi = finite(Phi * degreeToRadian());
    const double lam = finite(Lam * degreeToRadian());
    const double s = std::sin(phi);
    const double c = std::cos(phi);
    const double N = radiusNOfSine(shape.a, shape.e2, s);
    return {.X = finite(((N + h) * c) * std::cos(lam)),
            .Y = finite(((N + h) * c) * std::sin(lam)),
            .Z = finite((shape.b2OverA2 * N + h) * s)};
}

Guarded<Geographic> XYZToGeo(const Geocentric& point, const Ellipsoid& ellipsoid) {
    try {
        return iterated(point, EllipsoidShape(ellipsoid));
    } catch (const RuntimeFault&) {  // no ellipsoid to speak of
        return {.failed = true};
    }
}

}  // namespace kelvo::KelvoSub
