// The text of a coordinate reference system, whole: what another program reads of a grid of one's
// own.
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "exchange/coordinate_system.h"
#include "support/usual_definition.h"

namespace kelvo {
namespace {

using testing::usualDefinition;

// No number of it is that of a known system.
Definition foreignDefinition() {
    Definition definition = usualDefinition(ShiftKind::Bursa);
    definition.local.user = {6378206.4, 294.9786982};
    KelvoSub::SetDatumPara(definition.local.datum, {120.5, -480.25, -650, 0.75, -1.5, -1.25, -3.5},
                           ShiftKind::Bursa);
    definition.Zone = TmZone::User;
    definition.tm = {.X0 = 450000, .Y0 = 250000, .Phi0 = 37, .Lam0 = 127.25, .S0 = 0.9999};
    definition.utm.projection = {.X0 = 5, .Y0 = 500001, .Phi0 = 1, .Lam0 = 129, .S0 = 0.9995};
    return definition;
}

const std::string kDegreeUnit = R"(ANGLEUNIT["degree",0.0174532925199433])";
const std::string kMetreUnit = R"(LENGTHUNIT["metre",1])";

// The seven parameters from WGS84, all with their signs turned.
std::string bound(const std::string& system) {
    return "BOUNDCRS[SOURCECRS[" + system +
           R"(],TARGETCRS[GEOGCRS["WGS 84",DATUM["World Geodetic System 1984",)"
           R"(ELLIPSOID["WGS 84",6378137,298.257223563,LENGTHUNIT["metre",1]]],)"
           R"(PRIMEM["Greenwich",0,)" +
           kDegreeUnit + R"(],CS[ellipsoidal,2],AXIS["latitude",north,ORDER[1],)" + kDegreeUnit +
           R"(],AXIS["longitude",east,ORDER[2],)" + kDegreeUnit +
           R"(],ID["EPSG",4326]]],ABRIDGEDTRANSFORMATION["Kelvo, seven parameters",)"
           R"x(METHOD["Coordinate Frame rotation (geog2D domain)",ID["EPSG",9607]],)x"
           R"(PARAMETER["X-axis translation",-120.5,ID["EPSG",8605]],)"
           R"(PARAMETER["Y-axis translation",480.25,ID["EPSG",8606]],)"
           R"(PARAMETER["Z-axis translation",650,ID["EPSG",8607]],)"
           R"(PARAMETER["X-axis rotation",-0.75,ID["EPSG",8608]],)"
           R"(PARAMETER["Y-axis rotation",1.5,ID["EPSG",8609]],)"
           R"(PARAMETER["Z-axis rotation",1.25,ID["EPSG",8610]],)"
           R"(PARAMETER["Scale difference",1.0000035,ID["EPSG",8611]]]])";
}

std::string datum(const std::string& name, const std::string& ellipsoid) {
    return "DATUM[\"" + name + "\",ELLIPSOID[" + ellipsoid + "," + kMetreUnit +
           R"(]],PRIMEM["Greenwich",0,)" + kDegreeUnit + "]";
}

struct GridNumbers {
    std::string north, meridian, scale, easting, northing;
};

std::string grid(const std::string& name, const std::string& base, const std::string& ellipsoid,
                 const GridNumbers& numbers) {
    return "PROJCRS[\"" + name + "\",BASEGEOGCRS[\"" + base + "\"," + datum(base, ellipsoid) +
           "],CONVERSION[\"" + name + R"(",METHOD["Transverse Mercator",ID["EPSG",9807]],)" +
           R"(PARAMETER["Latitude of natural origin",)" + numbers.north + "," + kDegreeUnit +
           R"(,ID["EPSG",8801]],PARAMETER["Longitude of natural origin",)" + numbers.meridian +
           "," + kDegreeUnit + R"(,ID["EPSG",8802]],PARAMETER["Scale factor at natural origin",)" +
           numbers.scale + R"(,SCALEUNIT["unity",1],ID["EPSG",8805]],PARAMETER["False easting",)" +
           numbers.easting + "," + kMetreUnit + R"(,ID["EPSG",8806]],PARAMETER["False northing",)" +
           numbers.northing + "," + kMetreUnit +
           R"(,ID["EPSG",8807]]],CS[Cartesian,2],AXIS["easting",east,ORDER[1],)" + kMetreUnit +
           R"(],AXIS["northing",north,ORDER[2],)" + kMetreUnit + "]]";
}

const std::string kOwnEllipsoid = R"("User ellipsoid",6378206.4,294.9786982)";

TEST(SystemText, OfATmGridIsBoundToWgs84) {
    Definition definition = foreignDefinition();
    definition.shiftsOrigin = false;
    EXPECT_EQ(coordinateSystemOf(definition, PlaceSystem::Tm, 127.5),
              bound(grid("Kelvo TM", "Kelvo user datum", kOwnEllipsoid,
                         {"37", "127.5", "0.9999", "250000", "450000"})));
    definition.shiftsOrigin = true;  // 10.405 seconds east
    EXPECT_EQ(coordinateSystemOf(definition, PlaceSystem::Tm, 127.5),
              bound(grid("Kelvo TM", "Kelvo user datum", kOwnEllipsoid,
                         {"37", "127.502890277778", "0.9999", "250000", "450000"})));
}

TEST(SystemText, OfUtmIsOnTheEllipsoidOfItsGrid) {
    EXPECT_EQ(
        coordinateSystemOf(foreignDefinition(), PlaceSystem::Utm, 123),
        bound(grid("Kelvo UTM", "Kelvo user datum", R"("Bessel 1841",6377397.155,299.1528128)",
                   {"1", "123", "0.9995", "500001", "5"})));
}

TEST(SystemText, OfAnUnusualUtmOnWgs84IsNotBound) {
    EXPECT_EQ(coordinateSystemOf(foreignDefinition(), PlaceSystem::WgsUtm, 123),
              grid("Kelvo WGS84 UTM", "World Geodetic System 1984",
                   R"("WGS 84",6378137,298.257223563)", {"1", "123", "0.9995", "500001", "5"}));
}

TEST(SystemText, OfAnglesHasItsEllipsoidByName) {
    const auto angles = [](const std::string& ellipsoid) {
        return bound(R"(GEOGCRS["Kelvo user ellipsoid",)" + datum("Kelvo user datum", ellipsoid) +
                     R"(,CS[ellipsoidal,2],AXIS["longitude",east,ORDER[1],)" + kDegreeUnit +
                     R"(],AXIS["latitude",north,ORDER[2],)" + kDegreeUnit + "]]");
    };
    Definition definition = foreignDefinition();
    EXPECT_EQ(coordinateSystemOf(definition, PlaceSystem::User, 0), angles(kOwnEllipsoid));
    definition.local.user = {6378137, 298.257222101};
    EXPECT_EQ(coordinateSystemOf(definition, PlaceSystem::User, 0),
              angles(R"("GRS 1980",6378137,298.257222101)"));
    definition.local.user = {6377397.155, 299.1528128};
    EXPECT_EQ(coordinateSystemOf(definition, PlaceSystem::User, 0),
              angles(R"("Bessel 1841",6377397.155,299.1528128)"));
    definition.local.user = {6378137, 1 / 298.257223563};
    EXPECT_EQ(coordinateSystemOf(definition, PlaceSystem::User, 0),
              angles(R"("WGS 84",6378137,298.257223563)"));
    definition.local.user = {6377397, 299.1528128};
    EXPECT_EQ(coordinateSystemOf(definition, PlaceSystem::User, 0),
              angles(R"("User ellipsoid",6377397,299.1528128)"));
}

bool hasCode(const Definition& definition, PlaceSystem system, double meridian) {
    return coordinateSystemOf(definition, system, meridian).starts_with("EPSG:");
}

using Edits = std::vector<std::function<void(Definition&)>>;

TEST(SystemCode, AnyNumberOfTheGridThatDiffersTakesItAway) {
    const Edits edits{[](Definition& d) { d.tm.X0 += 1; },
                      [](Definition& d) { d.tm.Y0 += 1; },
                      [](Definition& d) { d.tm.Phi0 += 1; },
                      [](Definition& d) { d.tm.S0 = 0.9996; },
                      [](Definition& d) { d.utm.projection.X0 += 1; },
                      [](Definition& d) { d.utm.projection.Y0 += 1; },
                      [](Definition& d) { d.utm.projection.Phi0 += 1; },
                      [](Definition& d) { d.utm.projection.S0 = 1; }};
    for (std::size_t i = 0; i < edits.size(); ++i) {
        Definition definition = usualDefinition();
        edits[i](definition);
        EXPECT_EQ(hasCode(definition, PlaceSystem::Tm, 127), i >= 4) << i;
        EXPECT_EQ(hasCode(definition, PlaceSystem::WgsUtm, 129), i < 4) << i;
    }
    EXPECT_FALSE(hasCode(usualDefinition(), PlaceSystem::Tm, 128));
}

TEST(SystemCode, AnyNumberOfTheDatumThatDiffersTakesItAway) {
    const std::vector<double ShiftParameters::*> numbers{
        &ShiftParameters::dX,    &ShiftParameters::dY,  &ShiftParameters::dZ,
        &ShiftParameters::Omega, &ShiftParameters::Phi, &ShiftParameters::Kappa,
        &ShiftParameters::dS};
    Definition grs = usualDefinition();
    grs.local.user = {6378137, 298.257222101};
    grs.shiftsOrigin = false;
    grs.tm = {.X0 = 600000, .Y0 = 200000, .Phi0 = 38, .Lam0 = 127, .S0 = 1};
    KelvoSub::SetDatumPara(grs.local.datum, {}, ShiftKind::Molodensky);
    EXPECT_TRUE(hasCode(grs, PlaceSystem::Tm, 127));
    for (double ShiftParameters::*number : numbers) {
        ShiftParameters shift = kRecommendedShift;
        shift.*number += 0.01;
        Definition definition = usualDefinition();
        KelvoSub::SetDatumPara(definition.local.datum, shift, ShiftKind::Molodensky);
        EXPECT_FALSE(hasCode(definition, PlaceSystem::Tm, 127));
        EXPECT_FALSE(hasCode(definition, PlaceSystem::User, 0));
        ShiftParameters little{};
        little.*number = 0.01;
        KelvoSub::SetDatumPara(grs.local.datum, little, ShiftKind::Molodensky);
        EXPECT_FALSE(hasCode(grs, PlaceSystem::Tm, 127));
    }
    Definition other = usualDefinition();
    other.local.user.f += 0.001;
    EXPECT_FALSE(hasCode(other, PlaceSystem::User, 0));
    EXPECT_FALSE(hasCode(usualDefinition(ShiftKind::Bursa), PlaceSystem::User, 0));
}

TEST(SystemCode, OfKorea2000IsForItsOwnMeridiansAndOriginsOnly) {
    Definition grs = usualDefinition();
    grs.local.user = {6378137, 298.257222101};
    grs.shiftsOrigin = false;
    KelvoSub::SetDatumPara(grs.local.datum, {}, ShiftKind::Molodensky);
    const Projection belt{.X0 = 600000, .Y0 = 200000, .Phi0 = 38, .Lam0 = 127, .S0 = 1};
    const Projection unified{.X0 = 2000000, .Y0 = 1000000, .Phi0 = 38, .Lam0 = 127.5, .S0 = 0.9996};
    grs.tm = belt;
    for (const double meridian : {123.0, 124.0, 126.0, 127.5, 133.0})
        EXPECT_FALSE(hasCode(grs, PlaceSystem::Tm, meridian)) << meridian;
    grs.tm = unified;
    EXPECT_TRUE(hasCode(grs, PlaceSystem::Tm, 127.5));
    EXPECT_FALSE(hasCode(grs, PlaceSystem::Tm, 127));
    const std::vector<double Projection::*> numbers{&Projection::X0, &Projection::Y0,
                                                    &Projection::Phi0, &Projection::S0};
    for (double Projection::*number : numbers) {
        grs.tm = belt;
        grs.tm.*number += 0.0001;
        EXPECT_FALSE(hasCode(grs, PlaceSystem::Tm, 127));
        grs.tm = unified;
        grs.tm.*number += 0.0001;
        EXPECT_FALSE(hasCode(grs, PlaceSystem::Tm, 127.5));
    }
}

TEST(SystemCode, OfUtmIsForTheSixtyZones) {
    const Definition usual = usualDefinition();
    EXPECT_EQ(coordinateSystemOf(usual, PlaceSystem::WgsUtm, -177), "EPSG:32601");
    EXPECT_EQ(coordinateSystemOf(usual, PlaceSystem::WgsUtm, 177), "EPSG:32660");
    for (const double meridian : {-183.0, 183.0, 0.0, 126.0, 129.5})
        EXPECT_FALSE(hasCode(usual, PlaceSystem::WgsUtm, meridian)) << meridian;
}

TEST(DifferenceFromASystem, IsOneOfAdjustmentKnownPointsOrTheEllipsoidOfUtm) {
    const auto differs = [](const std::function<void(Definition&)>& edit) {
        Definition definition = usualDefinition();
        edit(definition);
        std::string systems;
        for (const auto& [system, letter] :
             {std::pair(PlaceSystem::Wgs, 'W'), std::pair(PlaceSystem::User, 'U'),
              std::pair(PlaceSystem::Tm, 'T'), std::pair(PlaceSystem::Utm, 'M'),
              std::pair(PlaceSystem::WgsUtm, 'G')})
            if (differsFromItsSystem(definition, system)) systems += letter;
        return systems;
    };
    EXPECT_EQ(differs([](Definition&) {}), "");
    EXPECT_EQ(differs([](Definition& d) { d.local.adjustment.dPhi = 0.1; }), "UTM");
    EXPECT_EQ(differs([](Definition& d) { d.local.adjustment.dLam = -0.1; }), "UTM");
    EXPECT_EQ(differs([](Definition& d) { d.corrects = true; }), "UTM");
    EXPECT_EQ(differs([](Definition& d) { d.utm.ellipsoid = kWgs84; }), "M");
}

// On a sphere of 180 / pi metres around its equator a degree is a metre.
TEST(DifferenceFromASystem, IsTheCorrectionAndTheAdjustmentTogether) {
    Definition definition = usualDefinition();
    definition.local.user.a = 180 / 3.14159265358979323846;
    const ConvertedPoint point{.UserPhi = 60, .CorrPhi = 2, .CorrLam = 6};
    EXPECT_NEAR(metresBesideSystem(definition, PlaceSystem::Tm, point), std::hypot(2, 3), 1e-9);
    definition.local.adjustment = {.dPhi = 3600, .dLam = 7200, .dH = 0};
    EXPECT_NEAR(metresBesideSystem(definition, PlaceSystem::User, point), 5, 1e-9);
    EXPECT_EQ(metresBesideSystem(definition, PlaceSystem::Wgs, point), 0);
    EXPECT_EQ(metresBesideSystem(definition, PlaceSystem::WgsUtm, point), 0);
}

}  // namespace
}  // namespace kelvo
