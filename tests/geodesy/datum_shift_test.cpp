#include "geodesy/datum_shift.h"

#include <gtest/gtest.h>

#include <cmath>

#include "support/faults.h"

namespace kelvo {
namespace {

using testing::faultOf;

constexpr ShiftKind kMolodensky = ShiftKind::Molodensky;
constexpr ShiftKind kBursa = ShiftKind::Bursa;

DatumShift shiftOf(double dX, double dY, double dZ, double Omega, double Phi, double Kappa,
                   double dS, ShiftKind Kind) {
    DatumState state;
    KelvoSub::SetDatumPara(state, {dX, dY, dZ, Omega, Phi, Kappa, dS}, Kind);
    return state.shift;
}

DatumShift nationalShift(ShiftKind Kind) {
    return shiftOf(115.8, -474.99, -674.11, 1.16, -2.31, -1.63, -6.43, Kind);
}

Geographic thereAndBack(double Phi, double Lam, double h) {
    return KelvoSub::XYZToWgs(KelvoSub::WgsToXYZ(Phi, Lam, h)).value;
}

TEST(XYZToGeo, AWorkedPointDoesNotComeBackExactly) {
    const Geocentric xyz = KelvoSub::GeoToXYZ(37.5, 127, 100, kWgs84);
    EXPECT_NEAR(xyz.X, -3049086.2377, 0.00005);
    EXPECT_NEAR(xyz.Y, 4046274.1024, 0.00005);
    EXPECT_NEAR(xyz.Z, 3861624.9750, 0.00005);
    const Geographic back = KelvoSub::XYZToGeo(xyz, kWgs84).value;
    EXPECT_NEAR(back.Phi, 37.5000000085, 5e-11);
    EXPECT_NEAR(back.Lam, 127.0, 1e-13);
    EXPECT_NEAR(back.h, 100.0007, 0.00005);
}

TEST(XYZToGeo, TheErrorGrowsWithTheLatitudeAsItMust) {
    struct Row {
        double latitude;
        double error;  // degrees, as printed, and half of its last digit
        double errorSlack;
        double height;
        double heightSlack;
    };
    const Row rows[] = {
        {35, 2.8e-11, 0.05e-11, 0.000002, 5e-7}, {37, 2.7e-9, 0.05e-9, 0.000227, 5e-7},
        {38, 2.6e-8, 0.05e-8, 0.002235, 5e-7},   {39, 2.4e-7, 0.05e-7, 0.021534, 5e-7},
        {40, 2.2e-6, 0.05e-6, 0.2038, 5e-5},     {42, 1.75e-4, 0.005e-4, 17.50, 5e-3},
        {44, 1.3e-2, 0.05e-2, 1448.0, 0.05},     {46, 1.0, 0.05, 121271, 0.5},
    };
    for (const Row& row : rows) {
        const Geographic back = thereAndBack(row.latitude, 127, 0);
        EXPECT_NEAR(std::fabs(back.Phi - row.latitude), row.error, row.errorSlack) << row.latitude;
        EXPECT_NEAR(back.h, row.height, row.heightSlack) << row.latitude;
    }
}

TEST(XYZToGeo, AtTenDegreesTheErrorIsBelowTheResolution) {
    const Geographic back = thereAndBack(10, 127, 0);
    EXPECT_LT(std::fabs(back.Phi - 10), 1e-14);
    EXPECT_NEAR(back.h, 0, 5e-7);
}

TEST(XYZToGeo, FailsFromItsNamedLatitudeOn) {
    const auto failsAt = [](double latitude) {
        return KelvoSub::XYZToWgs(KelvoSub::WgsToXYZ(latitude, 127, 0)).failed;
    };
    EXPECT_TRUE(failsAt(kLatitudeWithoutResult));
    EXPECT_FALSE(failsAt(kLatitudeWithoutResult - 0.0002));
}

TEST(XYZToGeo, FailsFromFortyEightDegreesOn) {
    for (const double latitude : {48.0, 50.0, 60.0, 75.0, 85.32, 89.0, -48.0, -70.0}) {
        const auto back = KelvoSub::XYZToWgs(KelvoSub::WgsToXYZ(latitude, 127, 0));
        EXPECT_TRUE(back.failed) << latitude;
        EXPECT_EQ(back.value.Phi, 0);
        EXPECT_EQ(back.value.Lam, 0);
        EXPECT_TRUE(std::isfinite(back.value.h));
    }
}

TEST(XYZToGeo, TheEquatorPlaneHasNoHeightWhateverItsTrueOne) {
    for (const double h : {0.0, 100.0, 5000.0, -300.0}) {
        const Geographic back = thereAndBack(0, 127.25, h);
        EXPECT_EQ(back.Phi, 0);
        EXPECT_EQ(back.h, 0);
        EXPECT_NEAR(back.Lam, 127.25, 1e-12);
    }
}

TEST(XYZToGeo, AnXOfExactlyZeroFailsWithHeightZero) {
    const auto back = KelvoSub::XYZToGeo({0, 5000000, 3900000}, kWgs84);
    EXPECT_TRUE(back.failed);
    EXPECT_EQ(back.value.Phi, 0);
    EXPECT_EQ(back.value.Lam, 0);
    EXPECT_EQ(back.value.h, 0);
}

TEST(XYZToGeo, APointOnThePolarAxisFails) {
    EXPECT_TRUE(KelvoSub::XYZToGeo({0, 0, 6356752.3142}, kWgs84).failed);
}

TEST(XYZToGeo, AZAtOrAboveItsLimitFailsInTheFirstPassWithHeightZero) {
    for (const double Z : {6335439.328, 6400000.0, -6400000.0, 1e9}) {
        const auto back = KelvoSub::XYZToGeo({-3e6, 4e6, Z}, kWgs84);
        EXPECT_TRUE(back.failed) << Z;
        EXPECT_EQ(back.value.h, 0) << Z;
    }
}

TEST(XYZToGeo, AZOfExactlyItsLimitFailsToo) {
    const EllipsoidShape shape(kWgs84);
    const double limit = shape.b2OverA2 * shape.a;  // the root of the near side is 0 there
    const auto back = KelvoSub::XYZToGeo({-3e6, 4e6, limit}, kWgs84);
    EXPECT_TRUE(back.failed);
    EXPECT_EQ(back.value.Phi, 0);
    EXPECT_EQ(back.value.h, 0);
    EXPECT_TRUE(KelvoSub::XYZToGeo({-3e6, 4e6, -limit}, kWgs84).failed);
}

TEST(XYZToGeo, ALongitudeComesBackBetweenZeroAndThreeHundredAndSixty) {
    EXPECT_NEAR(thereAndBack(-12, -70, 0).Lam, 290, 1e-12);
    EXPECT_NEAR(thereAndBack(20, 127, 0).Lam, 127, 1e-12);
    EXPECT_NEAR(thereAndBack(20, -127, 0).Lam, 233, 1e-12);
    EXPECT_NEAR(thereAndBack(20, 10, 0).Lam, 10, 1e-12);
}

TEST(XYZToGeo, ASouthLatitudeMirrorsTheNorthernOne) {
    const Geographic north = thereAndBack(38, 127, 12.5);
    const Geographic south = thereAndBack(-38, 127, 12.5);
    EXPECT_EQ(south.Phi, -north.Phi);
    EXPECT_EQ(south.h, north.h);
    EXPECT_EQ(south.Lam, north.Lam);
    EXPECT_NE(north.Phi, 38.0);
}

TEST(SetDatumPara, KeepsRadiansAndAPlainRatio) {
    const DatumShift shift = nationalShift(ShiftKind{7});
    EXPECT_EQ(shift.dX, 115.8);
    EXPECT_EQ(shift.dY, -474.99);
    EXPECT_EQ(shift.dZ, -674.11);
    EXPECT_DOUBLE_EQ(shift.Omega, 1.16 / 3600 * std::atan(1.0) / 45);
    EXPECT_DOUBLE_EQ(shift.Phi, -2.31 / 3600 * std::atan(1.0) / 45);
    EXPECT_DOUBLE_EQ(shift.Kappa, -1.63 / 3600 * std::atan(1.0) / 45);
    EXPECT_DOUBLE_EQ(shift.dS, -6.43e-6);
    EXPECT_EQ(shift.Kind, ShiftKind{7});
}

TEST(DatumShift, StartsAsAllZeroAndMolodensky) {
    const DatumState state;
    const Geocentric moved = KelvoSub::ShiftForward(state.shift, {1, 2, 3});
    EXPECT_EQ(moved.X, 1);
    EXPECT_EQ(moved.Y, 2);
    EXPECT_EQ(moved.Z, 3);
    EXPECT_LE(state.shift.Kind, kMolodensky);
}

TEST(DatumShift, WithoutRotationsMolodenskyOnlyAddsAndBursaScales) {
    const Geocentric point{-3049086.25, 4046274.5, 3861624.75};
    const DatumShift shift = shiftOf(10, 20, 30, 0, 0, 0, 1000, ShiftKind{0});
    const Geocentric molod = KelvoSub::MolodForward(shift, point);
    EXPECT_EQ(molod.X, point.X + 10);
    EXPECT_EQ(molod.Y, point.Y + 20);
    EXPECT_EQ(molod.Z, point.Z + 30);
    const Geocentric bursa = KelvoSub::BursaForward(shift, point);
    EXPECT_NEAR(bursa.X, point.X * 1.001 + 10, 1e-8);
    EXPECT_NEAR(bursa.Y, point.Y * 1.001 + 20, 1e-8);
    EXPECT_NEAR(bursa.Z, point.Z * 1.001 + 30, 1e-8);
}

TEST(DatumShift, TheRotationsTurnAsACoordinateFrame) {
    // one radian-sized rotation at a time, no scale: Kappa about Z, Phi about Y, Omega about X
    DatumShift shift;
    shift.Kappa = 1;
    Geocentric out = KelvoSub::BursaForward(shift, {10, 200, 3000});
    EXPECT_EQ(out.X, 210);
    EXPECT_EQ(out.Y, 190);
    EXPECT_EQ(out.Z, 3000);
    shift = {};
    shift.Phi = 1;
    out = KelvoSub::MolodForward(shift, {10, 200, 3000});
    EXPECT_EQ(out.X, -2990);
    EXPECT_EQ(out.Y, 200);
    EXPECT_EQ(out.Z, 3010);
    shift = {};
    shift.Omega = 1;
    out = KelvoSub::BursaForward(shift, {10, 200, 3000});
    EXPECT_EQ(out.X, 10);
    EXPECT_EQ(out.Y, 3200);
    EXPECT_EQ(out.Z, 2800);
    out = KelvoSub::BursaInverse(shift, {10, 200, 3000});
    EXPECT_EQ(out.X, 10);
    EXPECT_EQ(out.Y, -2800);
    EXPECT_EQ(out.Z, 3200);
}

TEST(DatumShift, TheScaleCancelsOutOfTheMolodenskyInverse) {
    const Geocentric point{-3049086.25, 4046274.5, 3861624.75};
    const Geocentric with =
        KelvoSub::MolodInverse(shiftOf(10, 20, 30, 1, 2, 3, 500, kMolodensky), point);
    const Geocentric without =
        KelvoSub::MolodInverse(shiftOf(10, 20, 30, 1, 2, 3, 0, kMolodensky), point);
    EXPECT_NEAR(with.X, without.X, 1e-8);
    EXPECT_NEAR(with.Y, without.Y, 1e-8);
    EXPECT_NEAR(with.Z, without.Z, 1e-8);
}

TEST(DatumShift, NeitherInverseUndoesItsForwardStep) {
    const Geocentric point{-3049086.2377, 4046274.1024, 3861624.9750};
    const DatumShift shift = nationalShift(kMolodensky);
    const Geocentric molod = KelvoSub::MolodInverse(shift, KelvoSub::MolodForward(shift, point));
    const Geocentric bursa = KelvoSub::BursaInverse(shift, KelvoSub::BursaForward(shift, point));
    // second-order terms: rotations of 1e-5 squared, times the earth's radius
    EXPECT_GT(std::fabs(molod.X - point.X), 1e-5);
    EXPECT_LT(std::fabs(molod.X - point.X), 0.01);
    EXPECT_GT(std::fabs(bursa.X - point.X), 1e-5);
    EXPECT_LT(std::fabs(bursa.X - point.X), 0.01);
}

TEST(DatumShift, AKindAboveOneTakesBursaAndAnyOtherMolodensky) {
    const Geocentric point{-3049086.25, 4046274.5, 3861624.75};
    for (const int kind : {-5, 0, 1}) {
        const DatumShift shift = nationalShift(ShiftKind{static_cast<std::int16_t>(kind)});
        EXPECT_EQ(KelvoSub::ShiftForward(shift, point).X, KelvoSub::MolodForward(shift, point).X);
        EXPECT_EQ(KelvoSub::ShiftInverse(shift, point).X, KelvoSub::MolodInverse(shift, point).X);
    }
    for (const int kind : {2, 3, 32767}) {
        const DatumShift shift = nationalShift(ShiftKind{static_cast<std::int16_t>(kind)});
        EXPECT_EQ(KelvoSub::ShiftForward(shift, point).X, KelvoSub::BursaForward(shift, point).X);
        EXPECT_EQ(KelvoSub::ShiftInverse(shift, point).X, KelvoSub::BursaInverse(shift, point).X);
    }
    EXPECT_NE(KelvoSub::ShiftForward(nationalShift(kMolodensky), point).X,
              KelvoSub::ShiftForward(nationalShift(kBursa), point).X);
}

TEST(WgsToUser, WithZeroParametersAndWgs84ReturnsTheInputButForTheIteration) {
    for (const ShiftKind kind : {kMolodensky, kBursa}) {
        const DatumShift shift = shiftOf(0, 0, 0, 0, 0, 0, 0, kind);
        const Geographic user =
            KelvoSub::WgsToUser(shift, 37, 127.5, 0, {6378137.0, 298.257223563}).value;
        EXPECT_NEAR(std::fabs(user.Phi - 37), 2.7e-9, 0.05e-9);
        EXPECT_NEAR(user.Lam, 127.5, 1e-12);
        EXPECT_NEAR(user.h, 0.000227, 1e-6);
    }
}

TEST(WgsToUser, TakesTheShiftByItsKind) {
    const Ellipsoid bessel{6377397.155, 299.1528128};
    const Geographic molod =
        KelvoSub::WgsToUser(nationalShift(kMolodensky), 37.5, 127, 50, bessel).value;
    const Geographic bursa =
        KelvoSub::WgsToUser(nationalShift(kBursa), 37.5, 127, 50, bessel).value;
    // the scale of -6.43 parts per million lowers a point by 6.43e-6 earth radii, some 41 m
    EXPECT_NEAR(molod.h - bursa.h, 41, 1);
    EXPECT_NEAR(molod.Phi, bursa.Phi, 1e-4);
}

TEST(Chains, AreTheirStepsInTurn) {
    for (const ShiftKind kind : {kMolodensky, kBursa}) {
        const DatumShift shift = nationalShift(kind);
        const Geographic bessel = KelvoSub::WgsToBessel(shift, 37.25, 127.75, 88).value;
        const Geographic steps =
            KelvoSub::XYZToGeo(
                KelvoSub::ShiftForward(shift, KelvoSub::GeoToXYZ(37.25, 127.75, 88, kWgs84)),
                kBessel)
                .value;
        EXPECT_EQ(bessel.Phi, steps.Phi);
        EXPECT_EQ(bessel.Lam, steps.Lam);
        EXPECT_EQ(bessel.h, steps.h);

        const Geographic wgs = KelvoSub::BesselToWgs(shift, 37.25, 127.75, 88).value;
        const Geographic same =
            KelvoSub::UserToWgs(shift, 37.25, 127.75, 88, {6377397.155, 299.152813}).value;
        EXPECT_NEAR(wgs.Phi, same.Phi, 1e-13);
        EXPECT_NEAR(wgs.Lam, same.Lam, 1e-13);
        EXPECT_NEAR(wgs.h, same.h, 1e-7);

        int zone = 0;
        const GridHeight grid = KelvoSub::WgsToTM(shift, 37.25, 127.75, 88, zone, 10.405).value;
        EXPECT_EQ(zone, 2);
        EXPECT_EQ(grid.h, bessel.h);
        int sameZone = 2;
        const GridPoint tm = KelvoSub::BesselToTM(bessel.Phi, bessel.Lam, sameZone, 10.405).value;
        EXPECT_EQ(grid.X, tm.X);
        EXPECT_EQ(grid.Y, tm.Y);

        const Geographic back =
            KelvoSub::TMToWgs(shift, grid.X, grid.Y, grid.h, zone, 10.405).value;
        EXPECT_NEAR(back.Phi, 37.25, 1e-7);
        EXPECT_NEAR(back.Lam, 127.75, 1e-7);
        EXPECT_NEAR(back.h, 88, 0.02);
    }
}

TEST(XYZToGeo, ADistanceBeyondADoubleFails) {
    const auto found = KelvoSub::XYZToGeo({1e160, 1e160, 1e3}, kWgs84);
    EXPECT_TRUE(found.failed);
    EXPECT_EQ(found.value.Phi, 0);
    EXPECT_EQ(found.value.h, 0);
}

TEST(XYZToGeo, AnEllipsoidBeyondADoubleFails) {
    EXPECT_TRUE(KelvoSub::XYZToGeo({1e7, 1e7, 1e6}, Ellipsoid{1e155, 298}).failed);
}

TEST(DatumShift, AnOverflowFaultsWithoutAGuard) {
    const DatumShift shift = shiftOf(1.7e308, 0, 0, 0, 0, 0, 0, kMolodensky);
    EXPECT_EQ(faultOf([&] { return KelvoSub::MolodForward(shift, {1.7e308, 2, 3}); }), 6);
    EXPECT_EQ(faultOf([&] { return KelvoSub::BursaForward(shift, {1.7e308, 2, 3}); }), 6);
    EXPECT_EQ(faultOf([&] { return KelvoSub::MolodInverse(shift, {-1.7e308, 2, 3}); }), 6);
    EXPECT_EQ(faultOf([&] { return KelvoSub::BursaInverse(shift, {-1.7e308, 2, 3}); }), 6);
    EXPECT_EQ(faultOf([] { return KelvoSub::GeoToXYZ(37, 127, 1, {1e200, 299}); }), 6);
}

TEST(GeoToXYZ, HasNoGuardSoAnEllipsoidOfZeroFaults) {
    EXPECT_NE(faultOf([] { return KelvoSub::GeoToXYZ(37, 127, 0, {0, 299}); }), 0);
    EXPECT_NE(faultOf([] { return KelvoSub::GeoToXYZ(37, 127, 0, {6378137, 0}); }), 0);
    const DatumShift shift = nationalShift(kMolodensky);
    EXPECT_NE(faultOf([&] { return KelvoSub::UserToWgs(shift, 37, 127, 0, {0, 299}).value; }), 0);
}

TEST(WgsToUser, AnEllipsoidOfZeroEndsInTheGuardOfTheIteration) {
    const auto user = KelvoSub::WgsToUser(nationalShift(kMolodensky), 37, 127, 0, {0, 299});
    EXPECT_TRUE(user.failed);
    EXPECT_EQ(user.value.Phi, 0);
    EXPECT_EQ(user.value.Lam, 0);
}

TEST(DatumShift, AScaleOfMinusAMillionFaultsInTheInverse) {
    const DatumShift shift = shiftOf(0, 0, 0, 0, 0, 0, -1000000, kMolodensky);
    EXPECT_EQ(faultOf([&] { return KelvoSub::MolodInverse(shift, {1, 2, 3}); }), 11);
    EXPECT_EQ(faultOf([&] { return KelvoSub::BursaInverse(shift, {1, 2, 3}); }), 11);
}

}  // namespace
}  // namespace kelvo
