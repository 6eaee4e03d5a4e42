#include "geodesy/transverse_mercator.h"

#include <gtest/gtest.h>

#include "common/run_time_fault.h"

#include <cmath>

#include "geodesy/national_grid.h"
#include "geodesy/zones.h"

namespace kelvo {
namespace {

using KelvoSub::GeoToTM;
using KelvoSub::TMToGeo;
constexpr Ellipsoid kUserBessel{6377397.155, 299.1528128};
constexpr Projection kCentre{500000, 200000, 38, 127, 1};

TEST(GeoToTM, TheOriginGivesExactlyItsFalseCoordinates) {
    const GridPoint point = GeoToTM(38, 127, kUserBessel, kCentre).value;
    EXPECT_EQ(point.X, 500000);
    EXPECT_EQ(point.Y, 200000);
    const Position back = TMToGeo(500000, 200000, kUserBessel, kCentre).value;
    EXPECT_NEAR(back.Phi, 38, 1e-13);
    EXPECT_NEAR(back.Lam, 127, 1e-13);
}

TEST(GeoToTM, AFlatteningAndItsReciprocalGiveTheSame) {
    const GridPoint one = GeoToTM(37.5, 127.5, {6377397.155, 299.152813}, kCentre).value;
    const GridPoint other = GeoToTM(37.5, 127.5, {6377397.155, 1 / 299.152813}, kCentre).value;
    EXPECT_EQ(one.X, other.X);
    EXPECT_EQ(one.Y, other.Y);
}

TEST(NormFlat, AFlatteningOfExactlyOneStands) {
    double f = 1.0;
    KelvoSub::NormFlat(f);
    EXPECT_EQ(f, 1.0);
    f = 4;
    KelvoSub::NormFlat(f);
    EXPECT_EQ(f, 0.25);
    f = -3;
    KelvoSub::NormFlat(f);
    EXPECT_EQ(f, -3);
}

TEST(GeoToTM, WithoutALongitudeDifferenceTheEastingIsTheFalseOne) {
    for (double phi = -80; phi <= 80; phi += 8.25) {
        EXPECT_EQ(GeoToTM(phi, 127, kUserBessel, kCentre).value.Y, 200000);
    }
}

TEST(GeoToTM, IsEvenInTheLongitudeDifference) {
    const GridPoint east = GeoToTM(37.5, 128.25, kUserBessel, kCentre).value;
    const GridPoint west = GeoToTM(37.5, 125.75, kUserBessel, kCentre).value;
    EXPECT_NEAR(east.X, west.X, 1e-8);
    EXPECT_NEAR(east.Y - 200000, 200000 - west.Y, 1e-8);
}

TEST(GeoToTM, DataThatCannotBeComputedFailsAndGivesTheFalseCoordinates) {
    const auto point = GeoToTM(37.5, 127.5, {0, 299}, kCentre);
    EXPECT_TRUE(point.failed);
    EXPECT_EQ(point.value.X, 500000);
    EXPECT_EQ(point.value.Y, 200000);
}

TEST(GeoToTM, AZeroScaleGivesTheFalseCoordinatesWithoutFailing) {
    const auto point = GeoToTM(37.5, 127.5, kUserBessel, {500000, 200000, 38, 127, 0});
    EXPECT_FALSE(point.failed);
    EXPECT_EQ(point.value.X, 500000);
    EXPECT_EQ(point.value.Y, 200000);
}

TEST(TMToGeo, AZeroScaleFailsAndGivesTheOriginAsGiven) {
    const auto point = TMToGeo(444627, 244207, kUserBessel, {500000, 200000, 38.25, 127.125, 0});
    EXPECT_TRUE(point.failed);
    EXPECT_EQ(point.value.Phi, 38.25);
    EXPECT_EQ(point.value.Lam, 127.125);
}

TEST(GeoToTM, AnyFinitePositionGivesFiniteNumbersOrTheMessage) {
    for (const double phi : {0.0, 45.0, 90.0, 90.5, 180.0, -1e4, 1e6, 1e15, 1e308}) {
        for (const double lam : {0.0, 127.0, -180.0, 1e6, 1e12, 1e200, -1e308}) {
            const GridPoint p = GeoToTM(phi, lam, kUserBessel, kCentre).value;
            EXPECT_TRUE(std::isfinite(p.X) && std::isfinite(p.Y)) << phi << ' ' << lam;
            const Position q = TMToGeo(phi * 1e5, lam * 1e5, kUserBessel, kCentre).value;
            EXPECT_TRUE(std::isfinite(q.Phi) && std::isfinite(q.Lam)) << phi << ' ' << lam;
        }
    }
}

TEST(GeoToTM, EllipsoidsThatMakeNoSenseNeverGiveInfinity) {
    for (const double a : {0.0, -1.0, 1e-300, 1e300, 6377397.155}) {
        for (const double f : {0.0, 1.0, 1e-300, 1e300, -1.0, 0.5, 2.0}) {
            for (const double S0 : {0.0, 1.0, -1.0, 1e-300, 1e300}) {
                const Projection p{500000, 200000, 38, 127, S0};
                const GridPoint g = GeoToTM(37.5, 127.5, {a, f}, p).value;
                EXPECT_TRUE(std::isfinite(g.X) && std::isfinite(g.Y)) << a << ' ' << f << ' ' << S0;
                const Position q = TMToGeo(444627, 244207, {a, f}, p).value;
                EXPECT_TRUE(std::isfinite(q.Phi) && std::isfinite(q.Lam))
                    << a << ' ' << f << ' ' << S0;
            }
        }
    }
}

TEST(TMToGeo, AnOverflowIsNotHiddenByTheDivisionAfterIt) {
    // the seventh power of such a radius is beyond a double, and its reciprocal would be 0
    const auto point = TMToGeo(444627, 244207, {1e50, 299}, kCentre);
    EXPECT_TRUE(point.failed);
    EXPECT_EQ(point.value.Phi, 38);
    EXPECT_EQ(point.value.Lam, 127);
    for (const double S0 : {1e50, 1e-50})
        EXPECT_TRUE(TMToGeo(444627, 244207, kUserBessel, {500000, 200000, 38, 127, S0}).failed)
            << S0;
}

TEST(TmGrid, KeptFromPointToPointGivesWhatAFreshOneGives) {
    const TmGrid kept(kUserBessel, kCentre);
    for (const double Lam0 : {127.0, 129.25, 125.0, 127.0}) {
        Projection projection = kCentre;
        projection.Lam0 = Lam0;
        const GridPoint fresh = GeoToTM(36.25, 128.5, kUserBessel, projection).value;
        const GridPoint again = GeoToTM(36.25, 128.5, kept, Lam0).value;
        EXPECT_EQ(again.X, fresh.X);
        EXPECT_EQ(again.Y, fresh.Y);
        const Position back = TMToGeo(fresh.X, fresh.Y, kUserBessel, projection).value;
        const Position backAgain = TMToGeo(fresh.X, fresh.Y, kept, Lam0).value;
        EXPECT_EQ(backAgain.Phi, back.Phi);
        EXPECT_EQ(backAgain.Lam, back.Lam);
    }
}

TEST(TmGrid, OneThatCannotBeComputedMakesEveryPointFail) {
    const TmGrid impossible({0, 299}, kCentre);
    EXPECT_FALSE(impossible.computable());
    const auto point = GeoToTM(36.25, 128.5, impossible, 127);
    EXPECT_TRUE(point.failed);
    EXPECT_EQ(point.value.X, 500000);
    const auto back = TMToGeo(444627, 244207, impossible, 129.5);
    EXPECT_TRUE(back.failed);
    EXPECT_EQ(back.value.Lam, 129.5);
}

TEST(GeoToTM, FailsWhereOneCoordinateAloneLeavesTheRange) {
    // the eighth power of such a longitude overflows, the seventh doesn't
    const auto point = GeoToTM(37, 1e40, kUserBessel, kCentre);
    EXPECT_TRUE(point.failed);
    EXPECT_EQ(point.value.X, kCentre.X0);
    EXPECT_EQ(point.value.Y, kCentre.Y0);
}

TEST(TmGrid, SharesAnEllipsoidOnlyWhereAxisAndFlatteningAreTheSame) {
    const TmGrid grid(kUserBessel, kCentre);
    EXPECT_TRUE(grid.sharesEllipsoid(TmGrid(kUserBessel, originOf(TmZone::East))));
    EXPECT_FALSE(grid.sharesEllipsoid(TmGrid({kUserBessel.a, 298}, kCentre)));
    EXPECT_FALSE(grid.sharesEllipsoid(TmGrid({6378137, kUserBessel.f}, kCentre)));
}

TEST(RadiusN, IsTheAxisAtTheEquatorAndGrowsToThePole) {
    const double e2 = 0.00669437999014132;
    EXPECT_EQ(KelvoSub::RadiusN(6378137, e2, 0), 6378137);
    EXPECT_NEAR(KelvoSub::RadiusN(6378137, e2, std::atan(1.0) * 2), 6399593.6258, 1e-4);
    EXPECT_NEAR(KelvoSub::RadiusM(6378137, e2, 0), 6335439.3273, 1e-4);
    EXPECT_NEAR(KelvoSub::RadiusM(6378137, e2, std::atan(1.0) * 2), 6399593.6258, 1e-4);
    EXPECT_NEAR(KelvoSub::RadiusW(e2, std::atan(1.0) * 2), std::sqrt(1 - e2), 1e-15);
}

TEST(MeridianArc, AddsTheFiveTermsWithAlternatingSigns) {
    const double phi = 0.5;
    EXPECT_DOUBLE_EQ(KelvoSub::MeridianArc(1, 0, 0, 0, 0, phi), 0.5);
    EXPECT_DOUBLE_EQ(KelvoSub::MeridianArc(0, 1, 0, 0, 0, phi), -std::sin(1.0));
    EXPECT_DOUBLE_EQ(KelvoSub::MeridianArc(0, 0, 1, 0, 0, phi), std::sin(2.0));
    EXPECT_DOUBLE_EQ(KelvoSub::MeridianArc(0, 0, 0, 1, 0, phi), -std::sin(3.0));
    EXPECT_DOUBLE_EQ(KelvoSub::MeridianArc(0, 0, 0, 0, 1, phi), std::sin(4.0));
}

TEST(BesselToTM, AZoneBelowOneIsChosenByTheLongitude) {
    const auto zoneAt = [&](double lam, int zone) {
        (void)KelvoSub::BesselToTM(37, lam, zone, 10.405).value;
        return zone;
    };
    EXPECT_EQ(zoneAt(125.9, 0), 1);
    EXPECT_EQ(zoneAt(126.0, 0), 2);
    EXPECT_EQ(zoneAt(128.0, 0), 2);
    EXPECT_EQ(zoneAt(128.1, 0), 3);
    EXPECT_EQ(zoneAt(131.9, -4), 3);
    EXPECT_EQ(zoneAt(128.1, 1), 1) << "a zone given is kept";
}

TEST(BesselToTM, AZoneAboveHasNoLimitUnlikeTheWayBack) {
    int zone = 5;
    const GridPoint point = KelvoSub::BesselToTM(37.5, 133, zone, 0).value;
    EXPECT_EQ(zone, 5);
    EXPECT_EQ(point.Y, 200000) << "on its own central meridian of 133 degrees";
    const Position back = KelvoSub::TMToBessel(point.X, point.Y, zone, 0).value;
    EXPECT_EQ(zone, 3);
    EXPECT_NEAR(back.Lam, 129, 1e-12);
    EXPECT_NEAR(back.Phi, 37.5, 1e-12);
    zone = 4;
    EXPECT_NEAR(KelvoSub::TMToBessel(point.X, point.Y, zone, 0).value.Lam, 129, 1e-12);
    EXPECT_EQ(zone, 3) << "the first one above counts as above";
    zone = 0;
    (void)KelvoSub::TMToBessel(point.X, point.Y, zone, 0).value;
    EXPECT_EQ(zone, 1);
}

TEST(BesselToTM, TheShiftMovesTheCentralMeridianEast) {
    int zone = 2;
    const GridPoint point =
        KelvoSub::BesselToTM(37.5, 127 + 10.405 / 3600, zone, kOriginShiftSeconds).value;
    EXPECT_NEAR(point.Y, 200000, 1e-7);
}

TEST(ChkZone, TakesTheZoneByTheLongitudeUpToAndIncludingItsEasternBorder) {
    struct Case {
        double lam;
        int zone;
        double origin;
    };
    for (const auto& [lam, expected, origin] : {Case{124, 1, 125},
                                                {125.9999999, 1, 125},
                                                {126, 2, 127},
                                                {128, 2, 127},
                                                {128.0000001, 3, 129},
                                                {130, 3, 129},
                                                {130.0000001, 4, 131},
                                                {1e6, 4, 131},
                                                {-10, 1, 125}}) {
        for (const int before : {-7, 0, 1, 4}) {
            auto zone = TmZone{static_cast<std::int16_t>(before)};
            double Lam0 = 111;
            KelvoSub::chkZone(lam, zone, Lam0);
            EXPECT_EQ(static_cast<int>(zone), expected) << lam;
            EXPECT_EQ(Lam0, origin) << lam;
        }
    }
}

TEST(ChkZone, LeavesZoneFiveAndAboveAlone) {
    for (const int zone : {5, 6, 32767}) {
        auto after = TmZone{static_cast<std::int16_t>(zone)};
        double Lam0 = 126.5;
        KelvoSub::chkZone(129.5, after, Lam0);
        EXPECT_EQ(static_cast<int>(after), zone);
        EXPECT_EQ(Lam0, 126.5);
    }
}

TEST(ChkUZone, OverridesAlsoTheUserOriginOfThree) {
    UtmZone zone = UtmZone::User;
    double Lam0 = 117;
    KelvoSub::chkUZone(126, zone, Lam0);
    EXPECT_EQ(zone, UtmZone::East);
    EXPECT_EQ(Lam0, 129);
    zone = UtmZone::User;
    KelvoSub::chkUZone(125.9999, zone, Lam0);
    EXPECT_EQ(zone, UtmZone::West);
    EXPECT_EQ(Lam0, 123);
    zone = UtmZone{4};
    Lam0 = 117;
    KelvoSub::chkUZone(126, zone, Lam0);
    EXPECT_EQ(zone, UtmZone{4});
    EXPECT_EQ(Lam0, 117);
}

TEST(MeridianArc, BeyondADoubleIsAnOverflow) {
    EXPECT_THROW(static_cast<void>(KelvoSub::MeridianArc(1e308, 0, 0, 0, 0, 10)), RuntimeFault);
    EXPECT_THROW(static_cast<void>(KelvoSub::MeridianArc(1, 1, 1, 1, 1, 1e308)), RuntimeFault);
}

// The eighth power of 1e40 is beyond a double, the seventh isn't, so that X alone has no value.
TEST(TmParallel, ALongitudeWhoseXAloneIsBeyondADoubleFails) {
    const TmGrid grid(kUserBessel, kCentre);
    const auto point = TmParallel(grid, TmLatitude(grid, 37)).at(6e41, 127);
    EXPECT_TRUE(point.failed);
    EXPECT_EQ(point.value.X, 500000);
    EXPECT_EQ(point.value.Y, 200000);
}

}  // namespace
}  // namespace kelvo
