#include "correction/find_corr.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace kelvo {

namespace {

// Latitude counts more than longitude in the distance; not derived from the place.
constexpr double kLatitudeStretch = 1.2;

constexpr std::size_t kLanes = 32;
using Lane = std::array<double, kLanes>;

// The weight of a known point is its own one over this.
double divisorAt(const CorrPoint& known, double Phi, double Lam) {
    const double d1 = known.WgsPhi - Phi;
    const double d2 = known.WgsLam - Lam;
    double Q = d1 * d1 * kLatitudeStretch + d2 * d2;
    if (Q == 0) Q = kSmallestDistance2;
    return Q * Q;
}

float weightOf(const CorrPoint& known, double divisor) {
    return static_cast<float>(static_cast<double>(known.Weight) / divisor);
}

// Weighted sums of up to kLanes positions. The loops over positions are plain, so that the compiler
// turns them into vector instructions; each position's sums are added up in the order of the
// known points.
struct Sums {
    Lane Phi{};
    Lane Lam{};
    Lane H{};
    Lane W{};
    Lane WH{};
    Lane divisors{};  // not finite where one of them wasn't

    void add(const CorrPoint& known, const Lane& atPhi, const Lane& atLam) {
        Lane w;
        for (std::size_t i = 0; i < kLanes; ++i) {
            const double divisor = divisorAt(known, atPhi[i], atLam[i]);
            divisors[i] += divisor;
            w[i] = static_cast<double>(weightOf(known, divisor));
        }
        for (std::size_t i = 0; i < kLanes; ++i) {
            Phi[i] += w[i] * known.DPhi;
            Lam[i] += w[i] * known.DLam;
            W[i] += w[i];
        }
        if (known.DH != 0)
            for (std::size_t i = 0; i < kLanes; ++i) {
                H[i] += w[i] * known.DH;
                WH[i] += w[i];
            }
    }
};

FoundCorrection failed(NoCorrection why, Fault fault = Fault::Overflow) {
    return {.value = {}, .failure = why, .fault = fault};
}

FoundCorrection unweighable(std::span<const CorrPoint> known, std::size_t place,
                            const Position& at) {
    FoundCorrection result = failed(NoCorrection::WeightTooLarge);
    result.known = place;
    result.weight =
        static_cast<double>(known[place].Weight) / divisorAt(known[place], at.Phi, at.Lam);
    return result;
}

// The place of the first known point whose weight can't be worked out there, or the number of all.
std::size_t firstUnweighable(std::span<const CorrPoint> known, const Position& at) {
    const auto found = std::find_if(known.begin(), known.end(), [&at](const CorrPoint& point) {
        const double divisor = divisorAt(point, at.Phi, at.Lam);
        return !std::isfinite(divisor) || !std::isfinite(weightOf(point, divisor));
    });
    return static_cast<std::size_t>(found - known.begin());
}

FoundCorrection meanOf(const Sums& sums, std::size_t i) {
    if (sums.W[i] == 0)
        return failed(NoCorrection::NoWeight,
                      sums.Phi[i] == 0 ? Fault::Overflow : Fault::DivisionByZero);
    const double DPhi = sums.Phi[i] / sums.W[i];
    const double DLam = sums.Lam[i] / sums.W[i];
    if (!std::isfinite(DPhi) || !std::isfinite(DLam)) return failed(NoCorrection::TooLarge);
    if (sums.WH[i] == 0)
        return failed(NoCorrection::NoHeight,
                      sums.H[i] == 0 ? Fault::Overflow : Fault::DivisionByZero);
    const double DH = sums.H[i] / sums.WH[i];
    if (!std::isfinite(DH)) return failed(NoCorrection::TooLarge);
    return {.value = {.DPhi = DPhi, .DLam = DLam, .DH = DH}};
}

void findTogether(std::span<const CorrPoint> known, std::span<const Position> wgs,
                  std::span<FoundCorrection> results) {
    Lane Phi;
    Lane Lam;
    for (std::size_t i = 0; i < kLanes; ++i) {
        const Position& at = wgs[i < wgs.size() ? i : 0];
        Phi[i] = at.Phi;
        Lam[i] = at.Lam;
    }
    Sums sums;
    for (const CorrPoint& point : known) sums.add(point, Phi, Lam);
    for (std::size_t i = 0; i < wgs.size(); ++i) {
        const bool weighed = std::isfinite(sums.W[i]) && std::isfinite(sums.divisors[i]);
        const std::size_t bad = weighed ? known.size() : firstUnweighable(known, wgs[i]);
        results[i] = bad == known.size() ? meanOf(sums, i) : unweighable(known, bad, wgs[i]);
    }
}

}  // namespace

void findCorr(std::span<const CorrPoint> known, std::span<const Position> wgs,
              std::span<FoundCorrection> results) {
    while (!wgs.empty()) {
        const std::size_t count = std::min(wgs.size(), kLanes);
        findTogether(known, wgs.first(count), results.first(count));
        wgs = wgs.subspan(count);
        results = results.subspan(count);
    }
}

FoundCorrection findCorr(std::span<const CorrPoint> known, const Position& wgs) {
    FoundCorrection result;
    findCorr(known, {&wgs, 1}, {&result, 1});
    return result;
}

}  // namespace kelvo
