// The misses of the known points and what they add up to. Angles in degrees, lengths in metres.
//
// The misses are those of a plain mean and population standard deviation, with the two oddities
// named below; what they are measured against is the run's own way from WGS84 to the user
// ellipsoid.
#pragma once

#include <optional>
#include <span>
#include <string>

#include "common/run_time_fault.h"
#include "correction/corr_points.h"
#include "correction/local_datum.h"

namespace kelvo {

// Where the run's own way brings a known point, and how far from its known place. With a fault
// the rest is what was reached before it.
struct MeasuredMiss {
    double CPhi = 0;
    double CLam = 0;
    double CH = 0;               // orthometric if both heights are known, otherwise ellipsoidal
    double L = 0;                // length of the miss, metres
    bool notGeographic = false;  // the shift back to latitude and longitude failed
    int unprojected = 0;         // as in ArcSecLengths
    std::optional<RuntimeFault> fault;
};

// Sets the misses of the point, DPhi and DLam always, DH only if it has both heights.
[[nodiscard]] MeasuredMiss measureMiss(CorrPoint& point, const LocalDatum& local);

struct MissTotals {
    double SumPhi = 0;
    double SumLam = 0;
    double SumH = 0;
    double SumL = 0;
    // Points with both heights. Required: not reset between the two passes, so that it ends at
    // twice their number.
    int NH = 0;

    // The first pass, point by point. Fault 6 where a sum overflows.
    void add(const CorrPoint& point, double L);
};

struct MissMeans {
    double MeanPhi = 0;
    double MeanLam = 0;
    double MeanH = 0;
    double MeanL = 0;
};

// Fault 6 with no point, or with none that has both heights.
[[nodiscard]] MissMeans meansOf(const MissTotals& totals, std::size_t count);

struct MissDeviations {
    double SdPhi = 0;
    double SdLam = 0;
    double SdH = 0;  // smaller by the root of 2 than the plain deviation, since NH is twice as high
};

// The second pass; whether a point takes part in the heights goes by its heights, not its miss.
// Raises NH of `totals`. Fault 6 where a square overflows.
[[nodiscard]] MissDeviations deviationsOf(std::span<const CorrPoint> points, const MissMeans& means,
                                          MissTotals& totals);

// The length of the deviations in metres, measured at one fixed place whatever the points
// (required).
struct DeviationLength {
    double L = 0;
    int unprojected = 0;
};
[[nodiscard]] DeviationLength lengthOf(const MissDeviations& deviations);

// From how many deviations on a miss is an outlier. Latitude and longitude by themselves, heights
// not at all; strictly more, so that it takes at least 11 points for one.
inline constexpr int kOutlierMultiple = 3;

struct Outlier {
    bool latitude = false;
    bool longitude = false;
};
[[nodiscard]] Outlier outlierOf(const CorrPoint& point, const MissMeans& means,
                                const MissDeviations& deviations);

}  // namespace kelvo
