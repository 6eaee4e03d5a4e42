// The correction of a point by the known points around it.
//
// Method: the mean of the known points' misses, inverse-distance weighted (after D. Shepard, A
// two-dimensional interpolation function for irregularly-spaced data, 1968) with the trade's own
// weight: the point's own weight over the fourth power of the distance in degrees, latitude
// stretched by the root of 1.2, the weight rounded to a 32-bit float (required: printed digits
// depend on it).
#pragma once

#include <span>

#include "common/run_time_fault.h"
#include "correction/corr_points.h"
#include "geodesy/transverse_mercator.h"

namespace kelvo {

// Degrees and metres.
struct Correction {
    double DPhi = 0;
    double DLam = 0;
    double DH = 0;
};

// Why there is no correction.
enum class NoCorrection {
    None,
    WeightTooLarge,  // that of `known`: beyond a 32-bit float, or its distance beyond a double
    NoWeight,        // no known point, or their weights add up to 0
    NoHeight,        // of none, or none with weight, a miss of height is known
    TooLarge,        // a mean overflows
};

struct FoundCorrection {
    Correction value;
    NoCorrection failure = NoCorrection::None;
    Fault fault = Fault::Overflow;  // as which the failure counts
    std::size_t known = 0;          // place in the list of known points
    double weight = 0;              // the one that is too large
};

// The distance at which a known point counts that the point itself lies on, squared, in square
// degrees.
inline constexpr double kSmallestDistance2 = 1e-8;

// The corrections at WGS84 positions. Known points take part in the heights by `DH != 0`: required,
// so that a miss of exactly 0 counts as not known, and one that a slot has kept counts. The cost
// is proportional to the number of known points; many positions at once share it.
void findCorr(std::span<const CorrPoint> known, std::span<const Position> wgs,
              std::span<FoundCorrection> results);
[[nodiscard]] FoundCorrection findCorr(std::span<const CorrPoint> known, const Position& wgs);

}  // namespace kelvo
