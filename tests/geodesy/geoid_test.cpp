#include "geodesy/geoid.h"

#include <gtest/gtest.h>

#include <array>

#include "geodesy/datum_shift.h"
#include "support/faults.h"

namespace kelvo {
namespace {

using KelvoSub::GeoidHeight;
using KelvoSub::GeoidHeightBessel;

GeoidTables filled() {
    DatumState state;
    KelvoSub::SetDatumPara(state, {}, ShiftKind::Molodensky);
    return state.geoid;
}

TEST(Geoid, OnAGridPointOfTheFirstFifteenItIsAlmostTheStoredHeight) {
    const GeoidTables tables = filled();
    EXPECT_NEAR(GeoidHeightBessel(tables, 36, 127), -56.0000000005, 5e-11);
    EXPECT_NE(GeoidHeightBessel(tables, 36, 127), -56.0);
    EXPECT_NEAR(GeoidHeight(tables, 36, 127), 24.999999999873, 5e-13);
}

TEST(Geoid, HoldsTwentyFiveRowsOfWhichTheLastTenAreOnlyStored) {
    struct Stored {
        double latitude;
        double longitude;
        double besselHeight;
        double wgsHeight;
        double weight;
    };
    constexpr Stored kStored[] = {
        {34, 126, -50, 24.5, 3}, {35, 126, -55, 23.8, 2}, {36, 126, -60, 23.3, 2},
        {37, 126, -64, 22.7, 2}, {38, 126, -65, 22.9, 3}, {34, 127, -46, 26.2, 2},
        {35, 127, -49, 26.0, 1}, {36, 127, -56, 25.0, 1}, {37, 127, -63, 24.0, 1},
        {38, 127, -65, 23.8, 2}, {34, 128, -43, 27.8, 2}, {35, 128, -45, 28.5, 1},
        {36, 128, -52, 28.0, 1}, {37, 128, -58, 27.0, 1}, {38, 128, -62, 25.8, 2},
        {34, 129, -42, 28.8, 2}, {35, 129, -42, 29.3, 1}, {36, 129, -47, 29.7, 1},
        {37, 129, -52, 28.8, 1}, {38, 129, -60, 27.0, 2}, {34, 130, -42, 29.3, 3},
        {35, 130, -42, 29.4, 2}, {36, 130, -44, 29.4, 2}, {37, 130, -48, 28.9, 2},
        {38, 130, -53, 27.8, 3},
    };
    const GeoidTables tables = filled();
    for (std::size_t i = 0; i < std::size(kStored); ++i) {
        const Stored& stored = kStored[i];
        for (const GeoidTable* table : {&tables.bessel, &tables.wgs}) {
            const GeoidTable::Row& row = table->rows[i + 1];
            EXPECT_EQ(row.latitude, stored.latitude) << i + 1;
            EXPECT_EQ(row.longitude, stored.longitude) << i + 1;
            EXPECT_EQ(row.weight, stored.weight) << i + 1;
        }
        EXPECT_EQ(tables.bessel.rows[i + 1].height, stored.besselHeight) << i + 1;
        EXPECT_EQ(tables.wgs.rows[i + 1].height, stored.wgsHeight) << i + 1;
    }
}

TEST(Geoid, TheEasternRowsHaveNoInfluence) {
    GeoidTables tables = filled();
    EXPECT_NEAR(GeoidHeightBessel(tables, 38, 129), -59.7861, 0.00005);
    EXPECT_NEAR(GeoidHeight(tables, 38, 129), 25.3434, 0.00005);
    const double before = GeoidHeightBessel(tables, 38, 129);
    for (std::size_t row = 16; row <= 25; ++row) tables.bessel.rows[row].height = 1000;
    EXPECT_EQ(GeoidHeightBessel(tables, 38, 129), before);
    EXPECT_EQ(tables.wgs.rows[16].latitude, 34);
    EXPECT_EQ(tables.wgs.rows[25].height, 27.8);
}

TEST(Geoid, WorkedPlacesComeOutToTheDigit) {
    const GeoidTables tables = filled();
    EXPECT_NEAR(GeoidHeightBessel(tables, 37.5, 127.0), -62.6548, 0.00005);
    EXPECT_NEAR(GeoidHeight(tables, 37.5, 127.0), 24.1023, 0.00005);
    EXPECT_NEAR(GeoidHeightBessel(tables, 33, 125), -52.0519, 0.00005);
    EXPECT_NEAR(GeoidHeight(tables, 33, 125), 24.8601, 0.00005);
}

TEST(Geoid, FarAwayItStaysWithinTheStoredHeights) {
    const GeoidTables tables = filled();
    for (double Phi = -90; Phi <= 90; Phi += 15) {
        for (double Lam = -180; Lam <= 180; Lam += 15) {
            const double bessel = GeoidHeightBessel(tables, Phi, Lam);
            EXPECT_TRUE(bessel >= -65 && bessel <= -43) << Phi << ' ' << Lam;
            const double wgs = GeoidHeight(tables, Phi, Lam);
            EXPECT_TRUE(wgs >= 22.7 && wgs <= 28.5) << Phi << ' ' << Lam;
        }
    }
}

TEST(Geoid, BeforeTheTablesAreFilledBesselIsZero) {
    const GeoidTables tables;
    EXPECT_EQ(GeoidHeightBessel(tables, 37.5, 127), 0);
    EXPECT_EQ(testing::faultOf([&] { return GeoidHeight(tables, 37.5, 127); }), 6);
}

TEST(Geoid, BothTablesHoldTheirOwnGridAndWeights) {
    const GeoidTables tables = filled();
    const std::array<double, 26> weights{0, 3, 2, 2, 2, 3, 2, 1, 1, 1, 2, 2, 1,
                                         1, 1, 2, 2, 1, 1, 1, 2, 3, 2, 2, 2, 3};
    for (std::size_t i = 1; i <= 25; ++i) {
        for (const auto* table : {&tables.bessel, &tables.wgs}) {
            EXPECT_EQ(table->rows[i].latitude, 34 + static_cast<double>((i - 1) % 5));
            EXPECT_EQ(table->rows[i].longitude, 126 + static_cast<double>((i - 1) / 5));
            EXPECT_EQ(table->rows[i].weight, weights[i]) << i;
        }
    }
}

TEST(Geoid, ADistanceBeyondADoubleFaults) {
    const GeoidTables tables = filled();
    EXPECT_EQ(testing::faultOf([&] { return GeoidHeightBessel(tables, 1e200, 127); }), 6);
}

}  // namespace
}  // namespace kelvo
