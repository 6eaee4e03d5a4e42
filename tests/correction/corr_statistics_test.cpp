#include "correction/corr_statistics.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "support/faults.h"

namespace kelvo {
namespace {

using testing::faultOf;

CorrPoint missing(double DPhi, double DLam, double DH, bool heights = true) {
    CorrPoint point;
    point.DPhi = DPhi;
    point.DLam = DLam;
    point.DH = DH;
    point.WgsH = heights ? 10 : 0;
    point.UserH = 20;
    return point;
}

struct Statistics {
    explicit Statistics(std::vector<CorrPoint> of) : points(std::move(of)) {
        for (const CorrPoint& point : points) totals.add(point, 1.5);
        means = meansOf(totals, points.size());
        deviations = deviationsOf(points, means, totals);
    }

    std::vector<CorrPoint> points;
    MissTotals totals;
    MissMeans means;
    MissDeviations deviations;
};

TEST(MissStatistics, AreMeansAndPopulationDeviations) {
    const Statistics of({missing(1, 10, 5), missing(3, 30, 7)});
    EXPECT_EQ(of.means.MeanPhi, 2);
    EXPECT_EQ(of.means.MeanLam, 20);
    EXPECT_EQ(of.means.MeanH, 6);
    EXPECT_EQ(of.means.MeanL, 1.5);
    EXPECT_EQ(of.deviations.SdPhi, 1);
    EXPECT_EQ(of.deviations.SdLam, 10);
    EXPECT_DOUBLE_EQ(of.deviations.SdH, std::sqrt(0.5)) << "the count isn't reset: required";
    EXPECT_EQ(of.totals.NH, 4);
}

// A slot keeps the miss of an earlier run where a height isn't known. It counts nowhere here.
TEST(MissStatistics, APointWithoutHeightsStaysOutOfTheHeightsThoughItsSlotKeepsAMiss) {
    const Statistics of({missing(1, 1, 5), missing(1, 1, 900, false), missing(1, 1, 7)});
    EXPECT_EQ(of.totals.SumH, 12);
    EXPECT_EQ(of.means.MeanH, 6);
    EXPECT_EQ(of.totals.NH, 4);
    EXPECT_DOUBLE_EQ(of.deviations.SdH, std::sqrt(0.5));
}

TEST(MissStatistics, TheSecondPassAsksForHeightsAndNotForMisses) {
    // a miss of exactly 0 with both heights known takes part
    const Statistics of({missing(1, 1, 0), missing(1, 1, 4)});
    EXPECT_EQ(of.totals.NH, 4);
    EXPECT_EQ(of.means.MeanH, 2);
    EXPECT_DOUBLE_EQ(of.deviations.SdH, std::sqrt(2.0));
}

TEST(MissStatistics, ASumFaultsWhereItOverflows) {
    for (const int which : {0, 1, 2}) {
        MissTotals totals;
        const auto value = [which](int of) { return of == which ? 1.7e308 : 0.0; };
        const CorrPoint point = missing(value(0), value(1), value(2));
        totals.add(point, 1);
        EXPECT_EQ(faultOf([&] { totals.add(point, 1); }), 6) << which;
    }
    MissTotals totals;
    totals.add(missing(0, 0, 0), 1.7e308);
    EXPECT_EQ(faultOf([&] { totals.add(missing(0, 0, 0), 1.7e308); }), 6);
}

TEST(MissStatistics, WithoutAPointOrAHeightThereIsNoMean) {
    EXPECT_EQ(faultOf([] { return meansOf({}, 0); }), 6);
    MissTotals totals;
    totals.add(missing(1, 1, 5, false), 1);
    EXPECT_EQ(faultOf([&] { return meansOf(totals, 1); }), 6);
}

TEST(MissStatistics, AnOutlierIsStrictlyBeyondThreeDeviations) {
    const MissMeans means{.MeanPhi = 1, .MeanLam = 2};
    const MissDeviations deviations{.SdPhi = 1, .SdLam = 2};
    EXPECT_FALSE(outlierOf(missing(4, 8, 0), means, deviations).latitude);
    EXPECT_FALSE(outlierOf(missing(4, 8, 0), means, deviations).longitude);
    EXPECT_TRUE(outlierOf(missing(-2.0000001, 8, 0), means, deviations).latitude);
    EXPECT_TRUE(outlierOf(missing(1, 8.0000001, 0), means, deviations).longitude);
    EXPECT_FALSE(outlierOf(missing(1, 8.0000001, 0), means, deviations).latitude);
}

TEST(MissStatistics, TheDeviationsAreMeasuredAtOneFixedPlace) {
    const DeviationLength length = lengthOf({.SdPhi = 3.0 / 3600, .SdLam = 4.0 / 3600});
    EXPECT_NEAR(length.L, std::hypot(3 * 30.8136, 4 * 25.3548), 3e-4) << "35 N, 127 E";
}

TEST(MeasureMiss, AFaultComesWithWhatWasReachedBeforeIt) {
    CorrPoint point;
    point.WgsPhi = 60;  // beyond the reach of the iteration
    point.WgsLam = 127;
    point.UserPhi = 1.7e308;
    LocalDatum local;
    local.user = kBesselOfParameters;
    local.adjustment.dPhi = -1.7e308 * 3600;
    const MeasuredMiss miss = measureMiss(point, local);
    EXPECT_TRUE(miss.notGeographic);
    ASSERT_TRUE(miss.fault);
    EXPECT_EQ(miss.fault->number(), 6);
}

}  // namespace
}  // namespace kelvo
