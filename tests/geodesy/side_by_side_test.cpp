#include "geodesy/side_by_side.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>
#include <vector>

#include "common/fixed_width.h"
#include "geodesy/datum_shift.h"
#include "geodesy/zones.h"

namespace kelvo {
namespace {

using genSub::FormatNum;

std::vector<Guarded<Geographic>> together(const std::vector<Geocentric>& points,
                                          const Ellipsoid& ellipsoid = kBesselOfParameters) {
    std::vector<Guarded<Geographic>> results(points.size());
    KelvoSub::XYZToGeo(points, ellipsoid, results);
    return results;
}

Geocentric at(double Phi, double Lam, double h) {
    return KelvoSub::GeoToXYZ(Phi, Lam, h, kWgs84);
}

// The printed cells that rest on a position.
std::string cells(const Geographic& position) {
    static const TmGrid grid(kBesselOfParameters, originOf(TmZone::Centre));
    const GridPoint tm = KelvoSub::GeoToTM(position.Phi, position.Lam, grid, 127).value;
    return FormatNum(position.h, 8, 4) + FormatNum(tm.X, 12, 6) + FormatNum(tm.Y, 12, 6);
}

TEST(SideBySide, ThePrintedCellsAreThoseOfEachPointByItself) {
    std::mt19937_64 random(1);
    std::uniform_real_distribution<double> latitude(33, 38.7);
    std::uniform_real_distribution<double> longitude(124.5, 132);
    std::uniform_real_distribution<double> height(-50, 2000);
    std::vector<Geocentric> points;
    for (int i = 0; i < 50001; ++i)
        points.push_back(at(latitude(random), longitude(random), height(random)));
    const auto found = together(points);
    int differing = 0;
    for (std::size_t i = 0; i < points.size(); ++i) {
        const auto alone = KelvoSub::XYZToGeo(points[i], kBesselOfParameters);
        ASSERT_FALSE(found[i].failed);
        ASSERT_EQ(cells(found[i].value), cells(alone.value)) << i;
        if (found[i].value.Phi != alone.value.Phi) ++differing;
    }
    EXPECT_LT(differing, 100) << "of 50,001 latitudes, in their last bit";
}

TEST(SideBySide, NorthOf39DegreesEachPointHasTheVeryNumbersOfItsOwn) {
    std::vector<Geocentric> points;
    for (double Phi = 39.01; Phi < 50; Phi += 0.01) points.push_back(at(Phi, 127, 100));
    const auto found = together(points);
    int failed = 0;
    for (std::size_t i = 0; i < points.size(); ++i) {
        const auto alone = KelvoSub::XYZToGeo(points[i], kBesselOfParameters);
        ASSERT_EQ(found[i].failed, alone.failed) << i;
        ASSERT_EQ(found[i].value.Phi, alone.value.Phi) << i;
        ASSERT_EQ(found[i].value.Lam, alone.value.Lam) << i;
        ASSERT_EQ(found[i].value.h, alone.value.h) << i;
        if (alone.failed) ++failed;
    }
    EXPECT_GT(failed, 100);
}

TEST(SideBySide, APointThatCannotBeComputedLeavesItsNeighboursAlone) {
    const Geocentric good = at(37.5, 127, 100);
    const std::vector<Geocentric> bad{{0, 5e6, 3.9e6},     {0, 0, 6356752},    {1e160, 1e160, 1e3},
                                      {-3e6, 4e6, 6.4e6},  {-3e6, 4e6, 1e200}, at(60, 127, 0),
                                      {-3e6, 4e6, -6.4e6}, {0, 0, 0}};
    for (const Geocentric& point : bad) {
        const auto found = together({good, point, good});
        const auto alone = KelvoSub::XYZToGeo(point, kBesselOfParameters);
        EXPECT_TRUE(found[1].failed);
        EXPECT_EQ(found[1].value.Phi, 0);
        EXPECT_EQ(found[1].value.h, alone.value.h);
        EXPECT_FALSE(found[0].failed);
        EXPECT_EQ(found[0].value.Phi, found[2].value.Phi);
        EXPECT_EQ(cells(found[0].value),
                  cells(KelvoSub::XYZToGeo(good, kBesselOfParameters).value));
    }
}

TEST(SideBySide, OnTheEquatorPlaneThereIsNoHeightWhateverTheTrueOne) {
    const auto found = together({at(0, 127.25, 5000), at(1e-9, 127, 5000), at(-0.3, 127, 80)});
    EXPECT_EQ(found[0].value.Phi, 0);
    EXPECT_EQ(found[0].value.h, 0);
    for (std::size_t i = 0; i < 3; ++i) EXPECT_FALSE(found[i].failed) << i;
    EXPECT_NEAR(found[2].value.h, 80 + 6378137 - 6377397.155, 1);
}

TEST(SideBySide, FarOutWhereASquareOverflowsThePointGoesByItself) {
    for (const double far : {2e7, 1e12, 1e100, 1e153, 1e155}) {
        const Geocentric point{-0.5 * far, 0.6 * far, 0.4 * far};
        const auto found = together({point});
        const auto alone = KelvoSub::XYZToGeo(point, kBesselOfParameters);
        EXPECT_EQ(found[0].failed, alone.failed) << far;
        EXPECT_EQ(found[0].value.Phi, alone.value.Phi) << far;
        EXPECT_EQ(found[0].value.h, alone.value.h) << far;
    }
}

TEST(SideBySide, AnEllipsoidThatCannotBeComputedMakesEveryPointFail) {
    for (const Ellipsoid& none : {Ellipsoid{0, 299}, Ellipsoid{6377397, 0}}) {
        const auto found = together({at(37, 127, 0), at(38, 127, 0)}, none);
        EXPECT_TRUE(found[0].failed);
        EXPECT_TRUE(found[1].failed);
        EXPECT_EQ(found[1].value.h, 0);
    }
}

TEST(SideBySide, NoPointsAreNoWork) {
    EXPECT_TRUE(together({}).empty());
}

}  // namespace
}  // namespace kelvo
