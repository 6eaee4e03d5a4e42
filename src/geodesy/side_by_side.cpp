#include "geodesy/side_by_side.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "common/run_time_fault.h"
#include "geodesy/latitude_pass.h"

namespace kelvo::KelvoSub {

namespace {

constexpr std::size_t kLanes = 32;
constexpr double kFarthest = 1e7;  // metres; farther out a square may overflow unseen
// Radians, half a degree and 39 degrees. Nearer to the equator two passes may agree before the last
// one but for their last bits; farther north the passes with angles don't wear off enough.
constexpr double kSouthernmost = 0.009;
constexpr double kNorthernmost = 0.6807;

using Lane = std::array<double, kLanes>;

// The passes of up to kLanes points. Lanes beyond the last point hold the first one.
class Lanes {
public:
    Lanes(std::span<const Geocentric> points, const EllipsoidShape& shape) : shape_(shape) {
        for (std::size_t i = 0; i < kLanes; ++i) {
            const Geocentric& point = points[i < points.size() ? i : 0];
            problems_[i] = latitudeProblem(point);
            p_[i] = problems_[i].p;
            Z_[i] = problems_[i].Z;
            Z2_[i] = problems_[i].Z2;
            N_[i] = shape.a;
            h_[i] = 0;
        }
    }

    // Plain loops over arrays, which the compiler turns into vector instructions.
    void passWithoutAngles() {
        const double k = shape_.b2OverA2;
        const double a = shape_.a;
        const double e2 = shape_.e2;
        for (std::size_t i = 0; i < kLanes; ++i) {
            const double r = k * N_[i] + h_[i];
            const double r2 = r * r;
            const double N = a * r / std::sqrt(r2 - e2 * Z2_[i]);
            h_[i] = p_[i] * r / std::sqrt(r2 - Z2_[i]) - N;
            N_[i] = N;
        }
    }

    // Step by step over all points: within one point each step waits for the one before.
    void pass(std::size_t count) {
        for (std::size_t i = 0; i < count; ++i) {
            const double d = nearSideSquared(Z2_[i], shape_, N_[i], h_[i]);
            tangent_[i] = Z_[i] / std::sqrt(d);
        }
        for (std::size_t i = 0; i < count; ++i) phi_[i] = std::atan(tangent_[i]);
        for (std::size_t i = 0; i < count; ++i) {
            sine_[i] = std::sin(phi_[i]);
            cosine_[i] = std::cos(phi_[i]);
        }
        for (std::size_t i = 0; i < count; ++i) {
            const LatitudeState state =
                latitudeStateAt(p_[i], shape_, phi_[i], sine_[i], cosine_[i]);
            N_[i] = state.N;
            h_[i] = state.h;
        }
    }

    // Whether XYZToGeo goes the same way for this point.
    [[nodiscard]] bool plain(std::size_t i) const {
        return std::isfinite(N_[i]) && std::isfinite(h_[i]) && std::isfinite(problems_[i].slope) &&
               std::abs(phi_[i]) > kSouthernmost && std::abs(phi_[i]) < kNorthernmost &&
               p_[i] < kFarthest && std::abs(problems_[i].Z) < kFarthest;
    }

    [[nodiscard]] Geographic result(const Geocentric& point, std::size_t i, double radian) const {
        return positionAt(point, problems_[i], {.N = N_[i], .h = h_[i], .phi = phi_[i]}, radian);
    }

private:
    const EllipsoidShape& shape_;
    std::array<LatitudeProblem, kLanes> problems_;
    Lane p_;
    Lane Z_;
    Lane Z2_;
    Lane N_;
    Lane h_;
    Lane tangent_;
    Lane phi_;
    Lane sine_;
    Lane cosine_;
};

void iterateTogether(std::span<const Geocentric> points, const Ellipsoid& ellipsoid,
                     const EllipsoidShape& shape, std::span<Guarded<Geographic>> results) {
    Lanes lanes(points, shape);
    int pass = 0;
    for (; pass < kAlgebraicPasses; ++pass) lanes.passWithoutAngles();
    for (; pass < kLatitudePasses; ++pass) lanes.pass(points.size());
    const double radian = degreeToRadian();
    for (std::size_t i = 0; i < points.size(); ++i)
        if (lanes.plain(i))
            results[i] = {.value = lanes.result(points[i], i, radian)};
        else
            results[i] = XYZToGeo(points[i], ellipsoid);
}

}  // namespace

void XYZToGeo(std::span<const Geocentric> points, const Ellipsoid& ellipsoid,
              std::span<Guarded<Geographic>> results) {
    try {
        const EllipsoidShape shape(ellipsoid);
        while (!points.empty()) {
            const std::size_t count = std::min(points.size(), kLanes);
            iterateTogether(points.first(count), ellipsoid, shape, results.first(count));
            points = points.subspan(count);
            results = results.subspan(count);
        }
    } catch (const RuntimeFault&) {  // no ellipsoid to speak of
        std::fill(results.begin(), results.end(), Guarded<Geographic>{.failed = true});
    }
}

}  // namespace kelvo::KelvoSub
