#include "correction/corr_statistics.h"

#include <cmath>

#include "common/checked_arithmetic.h"

namespace kelvo {

namespace {

// Where the length of the deviations is measured.
constexpr double kDeviationPhi = 35;
constexpr double kDeviationLam = 127;

void measure(CorrPoint& point, const LocalDatum& local, MeasuredMiss& miss) {
    const auto computed =
        KelvoSub::WgsToUser(local.datum.shift, point.WgsPhi, point.WgsLam, point.WgsH, local.user);
    miss.notGeographic = computed.failed;
    miss.CPhi = computed.value.Phi + local.adjustment.dPhi / 3600;
    miss.CLam = computed.value.Lam + local.adjustment.dLam / 3600;
    miss.CH = computed.value.h;
    point.DPhi = finite(point.UserPhi - miss.CPhi);
    point.DLam = finite(point.UserLam - miss.CLam);
    const ArcSecLengths second = KelvoSub::ArcSecLen(miss.CPhi, miss.CLam);
    miss.unprojected = second.unprojected;
    miss.L = lengthInMetres(point.DPhi, point.DLam, second);
    if (!point.hasBothHeights()) return;
    miss.CH -= KelvoSub::GeoidHeightBessel(local.datum.geoid, miss.CPhi, miss.CLam);
    miss.CH += local.adjustment.dH;
    point.DH = finite(point.UserH - miss.CH);
}

}  // namespace

MeasuredMiss measureMiss(CorrPoint& point, const LocalDatum& local) {
    MeasuredMiss miss;
    try {
        measure(point, local, miss);
    } catch (const RuntimeFault& fault) {
        miss.fault = fault;
    }
    return miss;
}

void MissTotals::add(const CorrPoint& point, double L) {
    SumPhi = finite(SumPhi + point.DPhi);
    SumLam = finite(SumLam + point.DLam);
    SumL = finite(SumL + L);
    if (!point.hasBothHeights()) return;
    ++NH;
    SumH = finite(SumH + point.DH);
}

MissMeans meansOf(const MissTotals& totals, std::size_t count) {
    const auto all = static_cast<double>(count);
    return {.MeanPhi = quotient(totals.SumPhi, all),
            .MeanLam = quotient(totals.SumLam, all),
            .MeanH = quotient(totals.SumH, totals.NH),
            .MeanL = quotient(totals.SumL, all)};
}

MissDeviations deviationsOf(std::span<const CorrPoint> points, const MissMeans& means,
                            MissTotals& totals) {
    double SqPhi = 0;
    double SqLam = 0;
    double SqH = 0;
    for (const CorrPoint& point : points) {
        const double offPhi = point.DPhi - means.MeanPhi;
        const double offLam = point.DLam - means.MeanLam;
        SqPhi += offPhi * offPhi;
        SqLam += offLam * offLam;
        if (point.hasBothHeights()) {
            ++totals.NH;
            const double offH = point.DH - means.MeanH;
            SqH += offH * offH;
        }
    }
    const auto count = static_cast<double>(points.size());
    return {.SdPhi = squareRoot(quotient(SqPhi, count)),
            .SdLam = squareRoot(quotient(SqLam, count)),
            .SdH = squareRoot(quotient(SqH, totals.NH))};
}

DeviationLength lengthOf(const MissDeviations& deviations) {
    const ArcSecLengths second = KelvoSub::ArcSecLen(kDeviationPhi, kDeviationLam);
    return {.L = lengthInMetres(deviations.SdPhi, deviations.SdLam, second),
            .unprojected = second.unprojected};
}

Outlier outlierOf(const CorrPoint& point, const MissMeans& means,
                  const MissDeviations& deviations) {
    return {
        .latitude = std::abs(point.DPhi - means.MeanPhi) > kOutlierMultiple * deviations.SdPhi,
        .longitude = std::abs(point.DLam - means.MeanLam) > kOutlierMultiple * deviations.SdLam};
}

}  // namespace kelvo
