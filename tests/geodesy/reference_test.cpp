// The engine against the plain formulas: the same text in every cell.
#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "common/fixed_width.h"
#include "geodesy/angle_forms.h"
#include "geodesy/datum_shift.h"
#include "geodesy/transverse_mercator.h"
#include "reference/angle_forms.h"
#include "reference/datum_shift.h"
#include "reference/transverse_mercator.h"
#include "support/case_count.h"
#include "support/guarded.h"

namespace kelvo {
namespace {

using testing::good;

constexpr int kPoints = testing::caseCount(100000);

struct Setting {
    Ellipsoid ellipsoid;
    Projection projection;
};

const Setting kSettings[] = {
    {{6377397.155, 299.1528128}, {500000, 200000, 38, 127, 1}},
    {{6377397.155, 299.1528128}, {500000, 200000, 38, 127 + 10.405 / 3600, 1}},
    {{6377397.155, 299.1528128}, {550000, 200000, 38, 127, 1}},
    {{6377397.155, 299.1528128}, {0, 500000, 0, 129, 0.9996}},
    {{6377397.155, 1 / 299.152813}, {500000, 200000, 38, 129 + 10.405 / 3600, 1}},
    {{6378137.0, 0.0033528106647474805}, {0, 500000, 0, 123, 0.9996}},
};

struct Place {
    double Phi;
    double Lam;
    double h;
    const Setting& setting;
};

template <class Check>
void atRandomPlaces(unsigned seed, Check check) {
    std::mt19937_64 random(seed);
    std::uniform_real_distribution<double> latitude(32.5, 43.5);
    std::uniform_real_distribution<double> longitude(123.5, 132.5);
    std::uniform_real_distribution<double> height(-50, 2000);
    for (int i = 0; i < kPoints; ++i) {
        const Setting& setting = kSettings[static_cast<std::size_t>(i) % std::size(kSettings)];
        const Place place{latitude(random), longitude(random), height(random), setting};
        ASSERT_NO_FATAL_FAILURE(check(place)) << place.Phi << ' ' << place.Lam;
    }
}

std::string grid(double value) {
    return reference::FormatNum(value, 12, 6);
}

TEST(Reference, GeoToTMGivesTheSameCellsAtRandomPlaces) {
    int bitsDiffer = 0;
    atRandomPlaces(1, [&](const Place& p) {
        const auto& [e, o] = p.setting;
        const auto expected =
            reference::GeoToTM(p.Phi, p.Lam, e.a, e.f, o.X0, o.Y0, o.Phi0, o.Lam0, o.S0);
        const GridPoint found = good(KelvoSub::GeoToTM(p.Phi, p.Lam, e, o));
        ASSERT_EQ(genSub::FormatNum(found.X, 12, 6), grid(expected.first));
        ASSERT_EQ(genSub::FormatNum(found.Y, 12, 6), grid(expected.second));
        if (found.X != expected.first || found.Y != expected.second) ++bitsDiffer;
    });
    EXPECT_EQ(bitsDiffer, 0) << "places where a number isn't the very same";
}

// Two of its sines are put together from the others, where it makes no difference.
TEST(Reference, AGridsMeridianArcIsTheSeriesToTheLastBit) {
    std::mt19937_64 random(7);
    std::uniform_real_distribution<double> latitude(-90, 90);
    constexpr double kSharp = 0.5;  // every sixth arc would differ
    for (const double f : {1 / 299.1528128, 0.0033528106647474805, -0.0033, 0.005, kSharp, -1.0}) {
        const double a = 6377397.155;
        const TmGrid grid({a, f}, {.S0 = 1});
        const reference::Derived k = reference::derived(a, f);
        for (int i = 0; i < kPoints; ++i) {
            const double phi = latitude(random) * reference::radian();
            ASSERT_EQ(grid.meridianArc(phi), reference::MeridianArc(k.A, k.B, k.C, k.D, k.E, phi))
                << f << ' ' << phi;
        }
    }
}

TEST(Reference, TMToGeoGivesTheSameCellsAtRandomPlaces) {
    int bitsDiffer = 0;
    atRandomPlaces(2, [&](const Place& p) {
        const auto& [e, o] = p.setting;
        const auto xy =
            reference::GeoToTM(p.Phi, p.Lam, e.a, e.f, o.X0, o.Y0, o.Phi0, o.Lam0, o.S0);
        const auto expected =
            reference::TMToGeo(xy.first, xy.second, e.a, e.f, o.X0, o.Y0, o.Phi0, o.Lam0, o.S0);
        const Position found = good(KelvoSub::TMToGeo(xy.first, xy.second, e, o));
        for (const int form : {1, 3}) {
            ASSERT_EQ(KelvoSub::AngleText(found.Phi, AngleForm{form}),
                      reference::AngleText(expected.first, form));
            ASSERT_EQ(KelvoSub::AngleText(found.Lam, AngleForm{form}),
                      reference::AngleText(expected.second, form));
        }
        if (found.Phi != expected.first || found.Lam != expected.second) ++bitsDiffer;
    });
    EXPECT_EQ(bitsDiffer, 0) << "places where a number isn't the very same";
}

TEST(Reference, XYZToGeoGivesTheSameCellsAtRandomPlaces) {
    int bitsDiffer = 0;
    atRandomPlaces(3, [&](const Place& p) {
        const auto& e = p.setting.ellipsoid;
        const auto xyz = reference::GeoToXYZ(p.Phi, p.Lam, p.h, e.a, e.f);
        const auto expected = reference::XYZToGeo(xyz.x, xyz.y, xyz.z, e.a, e.f);
        const Geographic found = good(KelvoSub::XYZToGeo({xyz.x, xyz.y, xyz.z}, e));
        for (const int form : {1, 3}) {
            ASSERT_EQ(KelvoSub::AngleText(found.Phi, AngleForm{form}),
                      reference::AngleText(expected.x, form));
            ASSERT_EQ(KelvoSub::AngleText(found.Lam, AngleForm{form}),
                      reference::AngleText(expected.y, form));
        }
        ASSERT_EQ(genSub::FormatNum(found.h, 8, 4), reference::FormatNum(expected.z, 8, 4));
        if (found.Phi != expected.x || found.Lam != expected.y || found.h != expected.z) {
            ++bitsDiffer;
        }
    });
    EXPECT_EQ(bitsDiffer, 0) << "places where a number isn't the very same";
}

TEST(Reference, TheShiftsGiveTheSameNumbersAtRandomPlaces) {
    std::mt19937_64 random(4);
    std::uniform_real_distribution<double> parameter(-1000, 1000);
    atRandomPlaces(5, [&](const Place& p) {
        const double dX = parameter(random);
        const double dY = parameter(random);
        const double dZ = parameter(random);
        const double Omega = parameter(random) / 100;
        const double Phi = parameter(random) / 100;
        const double Kappa = parameter(random) / 100;
        const double dS = parameter(random) / 50;
        const auto expected = reference::shiftOf(dX, dY, dZ, Omega, Phi, Kappa, dS);
        DatumState state;
        KelvoSub::SetDatumPara(state, {dX, dY, dZ, Omega, Phi, Kappa, dS}, ShiftKind::Molodensky);
        const auto xyz = reference::GeoToXYZ(p.Phi, p.Lam, p.h, 6378137.0, 1 / 298.257223563);
        const Geocentric at{xyz.x, xyz.y, xyz.z};
        const auto same = [](const Geocentric& found, const reference::Triple& want) {
            ASSERT_EQ(found.X, want.x);
            ASSERT_EQ(found.Y, want.y);
            ASSERT_EQ(found.Z, want.z);
        };
        same(KelvoSub::BursaForward(state.shift, at),
             reference::BursaForward(expected, at.X, at.Y, at.Z));
        same(KelvoSub::BursaInverse(state.shift, at),
             reference::BursaInverse(expected, at.X, at.Y, at.Z));
        same(KelvoSub::MolodForward(state.shift, at),
             reference::MolodForward(expected, at.X, at.Y, at.Z));
        same(KelvoSub::MolodInverse(state.shift, at),
             reference::MolodInverse(expected, at.X, at.Y, at.Z));
    });
}

TEST(Reference, GeoToXYZGivesTheSameCellsAtRandomPlaces) {
    atRandomPlaces(6, [&](const Place& p) {
        const auto& e = p.setting.ellipsoid;
        const auto expected = reference::GeoToXYZ(p.Phi, p.Lam, p.h, e.a, e.f);
        const Geocentric found = KelvoSub::GeoToXYZ(p.Phi, p.Lam, p.h, e);
        ASSERT_EQ(genSub::FormatNum(found.X, 12, 6), grid(expected.x));
        ASSERT_EQ(genSub::FormatNum(found.Y, 12, 6), grid(expected.y));
        ASSERT_EQ(genSub::FormatNum(found.Z, 12, 6), grid(expected.z));
    });
}

TEST(Reference, AngleTextGivesTheSameTextForRandomAngles) {
    std::mt19937_64 random(8);
    std::uniform_real_distribution<double> angle(-400, 400);
    std::uniform_real_distribution<double> small(-1e-3, 1e-3);
    std::uniform_int_distribution<int> seconds(0, 180 * 3600 - 1);
    for (int i = 0; i < kPoints; ++i) {
        double x = angle(random);
        if (i % 4 == 1) x = small(random);
        // a hair on either side of a whole second
        if (i % 4 == 2) x = (seconds(random) + small(random) * 1e-2) / 3600;
        if (i % 4 == 3) x = seconds(random) / 3600.0;
        for (int form = 1; form <= 4; ++form) {
            ASSERT_EQ(KelvoSub::AngleText(x, AngleForm{form}), reference::AngleText(x, form))
                << std::hexfloat << x << " in form " << form;
        }
    }
}

TEST(Reference, DmsToDegGivesTheSameNumberForRandomAngles) {
    std::mt19937_64 random(9);
    std::uniform_real_distribution<double> angle(-400, 400);
    std::uniform_int_distribution<int> ten(0, 9);
    for (int i = 0; i < kPoints; ++i) {
        const double x = i % 2 == 0 ? angle(random)
                                    : 127 + ten(random) / 10.0 + ten(random) / 100.0 +
                                          ten(random) / 1000.0 + ten(random) / 1e7;
        ASSERT_EQ(KelvoSub::DmsToDeg(x).degrees, reference::DmsToDeg(x)) << std::hexfloat << x;
        ASSERT_EQ(KelvoSub::DegToDms(x), reference::DegToDms(x)) << std::hexfloat << x;
    }
}

}  // namespace
}  // namespace kelvo
