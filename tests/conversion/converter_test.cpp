#include "conversion/converter.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <vector>

#include "support/usual_definition.h"

namespace kelvo {
namespace {

using testing::usualDefinition;

Definition corrected(std::vector<CorrPoint> known) {
    Definition definition = usualDefinition();
    definition.corrects = true;
    definition.known = std::make_shared<const std::vector<CorrPoint>>(std::move(known));
    return definition;
}

CorrPoint knownPoint(double Phi, double Lam, double DPhi, double DLam, double DH) {
    CorrPoint point;
    point.Name = "기지";
    point.WgsPhi = Phi;
    point.WgsLam = Lam;
    point.Weight = 1;
    point.DPhi = DPhi;
    point.DLam = DLam;
    point.DH = DH;
    return point;
}

struct Conversion {
    std::vector<ConvertedPoint> points;
    Outcomes outcomes;
};

Conversion convert(const Definition& definition, System system,
                   const std::vector<GivenPoint>& given, AngleForm form = AngleForm::Degrees) {
    Conversion result;
    result.points.resize(given.size());
    Converter(definition).convert(system, form, given, result.points, result.outcomes);
    return result;
}

ConvertedPoint convertOne(const Definition& definition, System system, const GivenPoint& given) {
    const Conversion result = convert(definition, system, {given});
    EXPECT_TRUE(result.outcomes.empty());
    return result.points[0];
}

std::vector<GivenPoint> randomPlaces(std::size_t count) {
    std::mt19937_64 random(5);
    std::uniform_real_distribution<double> phi(33, 38.6);
    std::uniform_real_distribution<double> lam(124.6, 131.9);
    std::uniform_real_distribution<double> h(-10, 1900);
    std::vector<GivenPoint> given(count);
    for (GivenPoint& point : given) point = {phi(random), lam(random), h(random)};
    return given;
}

void expectSame(const ConvertedPoint& one, const ConvertedPoint& other) {
    EXPECT_EQ(one.WgsPhi, other.WgsPhi);
    EXPECT_EQ(one.WgsLam, other.WgsLam);
    EXPECT_EQ(one.WgsH, other.WgsH);
    EXPECT_EQ(one.UserPhi, other.UserPhi);
    EXPECT_EQ(one.UserLam, other.UserLam);
    EXPECT_EQ(one.UserH, other.UserH);
    EXPECT_EQ(one.TmX, other.TmX);
    EXPECT_EQ(one.TmY, other.TmY);
    EXPECT_EQ(one.TmH, other.TmH);
    EXPECT_EQ(one.UtmX, other.UtmX);
    EXPECT_EQ(one.UtmY, other.UtmY);
    EXPECT_EQ(one.UtmH, other.UtmH);
    EXPECT_EQ(one.CorrPhi, other.CorrPhi);
    EXPECT_EQ(one.CorrL, other.CorrL);
    EXPECT_EQ(one.Lam0, other.Lam0);
    EXPECT_EQ(one.ULam0, other.ULam0);
}

TEST(Converter, APointHasTheSameNumbersInWhateverCompany) {
    const Definition definition =
        corrected({knownPoint(37, 127, 1e-5, -2e-5, 0.3), knownPoint(35, 129, -1e-5, 3e-5, -0.2)});
    const auto given = randomPlaces(301);
    const Conversion all = convert(definition, System::Wgs, given);
    ASSERT_TRUE(all.outcomes.empty());
    for (std::size_t i = 0; i < given.size(); i += 7)
        expectSame(all.points[i], convertOne(definition, System::Wgs, given[i]));
}

TEST(Converter, TheFourSystemsLeadToOnePlace) {
    const Definition definition = usualDefinition();
    for (const GivenPoint& given : randomPlaces(40)) {
        const ConvertedPoint wgs = convertOne(definition, System::Wgs, given);
        const ConvertedPoint user =
            convertOne(definition, System::User, {wgs.UserPhi, wgs.UserLam, wgs.UserH});
        // back by the first-order inverse and the iteration: some tenths of a second-order term
        EXPECT_NEAR(user.WgsPhi, given.first, 1e-6);
        EXPECT_NEAR(user.WgsLam, given.second, 1e-6);
        EXPECT_EQ(user.TmX, wgs.TmX);
        EXPECT_EQ(user.UtmY, wgs.UtmY);

        Definition there = definition;
        there.tm.Lam0 = wgs.Lam0;
        there.utm.projection.Lam0 = wgs.ULam0;
        const ConvertedPoint tm = convertOne(there, System::Tm, {wgs.TmX, wgs.TmY, wgs.UserH});
        EXPECT_NEAR(tm.UserPhi, wgs.UserPhi, 1e-10);
        EXPECT_NEAR(tm.UserLam, wgs.UserLam, 1e-10);
        EXPECT_NEAR(tm.UtmX, wgs.UtmX, 1e-5);
        const ConvertedPoint utm = convertOne(there, System::Utm, {wgs.UtmX, wgs.UtmY, wgs.UserH});
        EXPECT_NEAR(utm.TmX, wgs.TmX, 1e-5);
        EXPECT_NEAR(utm.TmY, wgs.TmY, 1e-5);
    }
}

TEST(Converter, EachPointChoosesItsOriginsAndSaysWhich) {
    const Definition definition = usualDefinition();
    const Conversion result =
        convert(definition, System::User,
                {{37, 125.9, 0}, {37, 126, 0}, {37, 128, 0}, {37, 128.1, 0}, {37, 130.1, 0}});
    const double Lam0[] = {125, 127, 127, 129, 131};
    const double ULam0[] = {123, 129, 129, 129, 129};
    for (std::size_t i = 0; i < 5; ++i) {
        EXPECT_EQ(result.points[i].Lam0, Lam0[i]) << i;
        EXPECT_EQ(result.points[i].ULam0, ULam0[i]) << i;
    }
    EXPECT_EQ(result.points[4].Zone, TmZone::EastSea);
    EXPECT_EQ(result.points[0].UZone, UtmZone::West);
}

TEST(Converter, AGridIsReadOnTheOriginOfTheDefinition) {
    Definition definition = usualDefinition();
    definition.tm.Lam0 = 129;
    const ConvertedPoint p = convertOne(definition, System::Tm, {450000, 200000, 10});
    EXPECT_EQ(p.Lam0, 129);
    EXPECT_NEAR(p.UserLam, 129 + kOriginShiftSeconds / 3600, 1e-12);
    EXPECT_EQ(p.ULam0, 129);
    definition.utm.projection.Lam0 = 117;
    definition.UZone = UtmZone::User;
    const ConvertedPoint u = convertOne(definition, System::Utm, {4100000, 500000, 10});
    EXPECT_NEAR(u.UserLam, 117, 1e-12);
    EXPECT_EQ(u.ULam0, 117);
    EXPECT_EQ(u.Lam0, 125);
}

TEST(Converter, AUserZoneOfTheTmGridStaysAndOneOfTheUtmGridIsOverridden) {
    Definition definition = usualDefinition();
    definition.Zone = TmZone::User;
    definition.tm.Lam0 = 126.5;
    definition.UZone = UtmZone::User;
    definition.utm.projection.Lam0 = 117;
    const ConvertedPoint p = convertOne(definition, System::Wgs, {37, 129.5, 0});
    EXPECT_EQ(p.Lam0, 126.5);
    EXPECT_EQ(p.ULam0, 129);
}

TEST(Converter, AUtmPointLeavesTheHeightOfTheTmTableUnwritten) {
    const Conversion result = convert(usualDefinition(), System::Utm, {{4100000, 400000, 12.5}});
    EXPECT_EQ(result.points[0].TmH, 0);
    EXPECT_EQ(result.points[0].UtmH, 12.5);
    EXPECT_EQ(result.points[0].UserH, 12.5);
}

TEST(Converter, GivenCoordinatesStayAsTheyAreOnTheWayBackward) {
    Definition definition = corrected({knownPoint(37, 127, 1e-5, -2e-5, 0.3)});
    definition.local.adjustment = {.dPhi = 1, .dLam = -2, .dH = 3};
    const ConvertedPoint p = convertOne(definition, System::User, {37.1, 127.1, 50});
    EXPECT_EQ(p.UserPhi, 37.1);
    EXPECT_EQ(p.UserLam, 127.1);
    EXPECT_EQ(p.UserH, 50);
    Definition plain = usualDefinition();
    const ConvertedPoint without = convertOne(plain, System::User, {37.1, 127.1, 50});
    EXPECT_NEAR(p.WgsPhi, without.WgsPhi - 1.0 / 3600 - 1e-5, 1e-13);
    EXPECT_NEAR(p.WgsLam, without.WgsLam + 2.0 / 3600 + 2e-5, 1e-13);
    EXPECT_NEAR(p.WgsH, without.WgsH - 3 - 0.3, 1e-9);
}

TEST(Converter, ForwardAdjustmentAndCorrectionAreAddedToTheUserCoordinates) {
    Definition definition = corrected({knownPoint(37, 127, 1e-5, -2e-5, 0.3)});
    definition.local.adjustment = {.dPhi = 1, .dLam = -2, .dH = 3};
    const ConvertedPoint p = convertOne(definition, System::Wgs, {37.1, 127.1, 50});
    const ConvertedPoint without = convertOne(usualDefinition(), System::Wgs, {37.1, 127.1, 50});
    EXPECT_NEAR(p.UserPhi, without.UserPhi + 1.0 / 3600 + 1e-5, 1e-13);
    EXPECT_NEAR(p.UserLam, without.UserLam - 2.0 / 3600 - 2e-5, 1e-13);
    EXPECT_NEAR(p.UserH, without.UserH + 3 + 0.3, 1e-9);
    EXPECT_EQ(p.WgsPhi, 37.1);
    // a second of arc at 35 N is 30.81 and 25.35 m; somewhat less of longitude farther north
    EXPECT_NEAR(p.CorrL, std::hypot(1e-5 * 3600 * 30.82, 2e-5 * 3600 * 24.7), 0.002);
}

TEST(Converter, TheTenSecondsMoveTheTmOriginOnly) {
    Definition without = usualDefinition();
    without.shiftsOrigin = false;
    const ConvertedPoint with = convertOne(usualDefinition(), System::Wgs, {37, 127.5, 0});
    const ConvertedPoint plain = convertOne(without, System::Wgs, {37, 127.5, 0});
    EXPECT_NEAR(plain.TmY - with.TmY, 10.405 * 24.7, 0.5);
    EXPECT_EQ(plain.UtmX, with.UtmX);
    EXPECT_EQ(plain.UtmY, with.UtmY);
    EXPECT_EQ(with.Lam0, 127) << "without the seconds";
}

// What is wrong with a point, and what isn't with its neighbours.

TEST(Converter, APointWithoutResultsLeavesItsNeighboursAlone) {
    const Definition definition = usualDefinition();
    const GivenPoint good{37.3, 127, 40};
    const Conversion result =
        convert(definition, System::User, {good, {60, 127, 0}, good, {1e300, 1e300, 1}, good});
    const ConvertedPoint alone = convertOne(definition, System::User, good);
    for (const std::size_t i : {0U, 2U, 4U}) {
        expectSame(result.points[i], alone);
        EXPECT_FALSE(result.outcomes.contains(i));
    }
    const PointOutcome& far = result.outcomes.at(1);
    ASSERT_EQ(far.beforeDetail.size(), 1U);
    EXPECT_EQ(far.beforeDetail[0].kind, Remark::Kind::NotGeographic);
    EXPECT_FALSE(far.ended());
    EXPECT_TRUE(result.outcomes.at(3).ended());
}

TEST(Converter, AnAngleThatItsSplitDoesNotRebuildIsRemarkedAndConverted) {
    const Conversion result =
        convert(usualDefinition(), System::User, {{37.2959999991, 127.0, 5}}, AngleForm::Dms);
    const PointOutcome& outcome = result.outcomes.at(0);
    ASSERT_EQ(outcome.beforeDetail.size(), 1U);
    EXPECT_EQ(outcome.beforeDetail[0].kind, Remark::Kind::DoubtfulAngle);
    EXPECT_EQ(outcome.beforeDetail[0].given, 37.2959999991);
    EXPECT_FALSE(outcome.ended());
    EXPECT_NEAR(result.points[0].UserPhi, 37.4999999975, 1e-12);
}

TEST(Converter, AnEllipsoidThatCannotBeComputedIsRemarkedForwardAndAFaultBackward) {
    Definition definition = usualDefinition();
    definition.local.user = {.a = 0, .f = 299};
    const Conversion forward = convert(definition, System::Wgs, {{37, 127, 0}});
    ASSERT_TRUE(forward.outcomes.contains(0));
    EXPECT_EQ(forward.outcomes.at(0).beforeDetail[0].kind, Remark::Kind::NotGeographic);
    EXPECT_EQ(forward.outcomes.at(0).afterDetail[0].kind, Remark::Kind::NotProjected);
    EXPECT_FALSE(forward.outcomes.at(0).ended());
    const Conversion backward = convert(definition, System::User, {{37, 127, 0}});
    EXPECT_TRUE(backward.outcomes.at(0).fault.has_value());
}

TEST(Converter, WithoutAUsableKnownPointThereIsNoCorrection) {
    Definition definition = usualDefinition();
    definition.corrects = true;
    const Conversion none = convert(definition, System::Wgs, {{37, 127, 0}});
    ASSERT_TRUE(none.outcomes.at(0).uncorrected);
    EXPECT_EQ(none.outcomes.at(0).uncorrected->failure, NoCorrection::NoWeight);
    EXPECT_FALSE(none.outcomes.at(0).faultAfterDetail);
}

TEST(Converter, AFaultAfterTheCorrectionIsToldApartFromOneBeforeIt) {
    // Three degrees off, so that the weight stays small: a correction of height by itself is fine,
    // together with the adjustment it overflows.
    Definition definition = corrected({knownPoint(34, 127, 0, 0, 1e308)});
    EXPECT_TRUE(convert(definition, System::Wgs, {{37, 127, 0}}).outcomes.empty());
    definition.local.adjustment.dH = 1.7e308;
    const Conversion after = convert(definition, System::Wgs, {{37, 127, 0}});
    ASSERT_TRUE(after.outcomes.at(0).fault);
    EXPECT_TRUE(after.outcomes.at(0).faultAfterDetail);
    // the length of such a correction of latitude overflows, and there is no row for it
    const Definition longOne = corrected({knownPoint(34, 127, 1e307, 0, 1)});
    const Conversion before = convert(longOne, System::Wgs, {{37, 127, 0}});
    ASSERT_TRUE(before.outcomes.at(0).fault);
    EXPECT_FALSE(before.outcomes.at(0).faultAfterDetail);
}

TEST(Converter, OutcomesAreClearedByTheNextConversion) {
    const Converter converter(usualDefinition());
    std::vector<ConvertedPoint> points(1);
    Outcomes outcomes;
    converter.convert(System::Wgs, AngleForm::Degrees, std::vector<GivenPoint>{{60, 127, 0}},
                      points, outcomes);
    EXPECT_EQ(outcomes.size(), 1U);
    converter.convert(System::Wgs, AngleForm::Degrees, std::vector<GivenPoint>{{37, 127, 0}},
                      points, outcomes);
    EXPECT_TRUE(outcomes.empty());
}

TEST(WgsUtm, TakesTheOriginByTheWgsLongitudeAndTheHeightOfTheTmTable) {
    const Converter converter(usualDefinition());
    std::vector<ConvertedPoint> points(2);
    Outcomes outcomes;
    // 125.999 on WGS84 is 126.001 on Bessel
    converter.convert(System::Wgs, AngleForm::Degrees,
                      std::vector<GivenPoint>{{37, 125.999, 10}, {37, 127, 20}}, points, outcomes);
    converter.addWgsUtm(points, outcomes);
    EXPECT_EQ(points[0].ULam0, 129);
    EXPECT_EQ(points[0].WgsULam0, 123);
    EXPECT_EQ(points[1].WgsULam0, 129);
    EXPECT_GT(points[0].WgsUtmY, 500000);
    EXPECT_EQ(points[1].WgsUtmH, points[1].TmH);
    EXPECT_TRUE(outcomes.empty());
}

}  // namespace
}  // namespace kelvo
