#include "exchange/coordinate_system.h"

#include <array>
#include <cmath>
#include <map>
#include <sstream>

#include "exchange_samples.h"
#include "support/program.h"
#include "support/temporary_folder.h"

namespace kelvo {
namespace {

using testing::convertedFromWgs;
using testing::placeIn;
using testing::runProgram;
using testing::TemporaryFolder;
using testing::usualDefinition;

std::string tmSystem(TmZone zone, bool shifted) {
    Definition definition = usualDefinition();
    definition.Zone = zone;
    definition.tm = originOf(zone);
    if (zone == TmZone::Jeju) definition.tm.X0 = 550000;
    definition.shiftsOrigin = shifted;
    return coordinateSystemOf(definition, PlaceSystem::Tm, definition.tm.Lam0);
}

TEST(CoordinateSystem, EveryZoneWithTheSecondsHasItsCode) {
    EXPECT_EQ(tmSystem(TmZone::West, true), "EPSG:5173");
    EXPECT_EQ(tmSystem(TmZone::Centre, true), "EPSG:5174");
    EXPECT_EQ(tmSystem(TmZone::East, true), "EPSG:5176");
    EXPECT_EQ(tmSystem(TmZone::EastSea, true), "EPSG:5177");
    EXPECT_EQ(tmSystem(TmZone::Jeju, true), "EPSG:5175");
}

TEST(CoordinateSystem, EveryZoneWithoutTheSecondsHasItsCode) {
    EXPECT_EQ(tmSystem(TmZone::West, false), "EPSG:2098");
    EXPECT_EQ(tmSystem(TmZone::Centre, false), "EPSG:2097");
    EXPECT_EQ(tmSystem(TmZone::East, false), "EPSG:2096");
    EXPECT_EQ(tmSystem(TmZone::EastSea, false), "EPSG:5167");
    EXPECT_EQ(tmSystem(TmZone::Jeju, false), "EPSG:5168");
}

TEST(CoordinateSystem, TheSystemsOfLatitudeAndLongitudeAndOfWgs84UtmHaveTheirCodes) {
    const Definition usual = usualDefinition();
    EXPECT_EQ(coordinateSystemOf(usual, PlaceSystem::Wgs, 0), "EPSG:4326");
    EXPECT_EQ(coordinateSystemOf(usual, PlaceSystem::User, 0), "EPSG:4162");
    EXPECT_EQ(coordinateSystemOf(usual, PlaceSystem::WgsUtm, 123), "EPSG:32651");
    EXPECT_EQ(coordinateSystemOf(usual, PlaceSystem::WgsUtm, 129), "EPSG:32652");
}

TEST(CoordinateSystem, TheGridsOfKorea2000HaveTheirCodes) {
    Definition definition = usualDefinition();
    definition.local.user = {6378137, 298.257222101};
    KelvoSub::SetDatumPara(definition.local.datum, {}, ShiftKind::Molodensky);
    definition.shiftsOrigin = false;
    definition.tm = {.X0 = 600000, .Y0 = 200000, .Phi0 = 38, .Lam0 = 127, .S0 = 1};
    EXPECT_EQ(coordinateSystemOf(definition, PlaceSystem::Tm, 125), "EPSG:5185");
    EXPECT_EQ(coordinateSystemOf(definition, PlaceSystem::Tm, 127), "EPSG:5186");
    EXPECT_EQ(coordinateSystemOf(definition, PlaceSystem::Tm, 129), "EPSG:5187");
    EXPECT_EQ(coordinateSystemOf(definition, PlaceSystem::Tm, 131), "EPSG:5188");
    definition.tm = {.X0 = 2000000, .Y0 = 1000000, .Phi0 = 38, .Lam0 = 127.5, .S0 = 0.9996};
    EXPECT_EQ(coordinateSystemOf(definition, PlaceSystem::Tm, 127.5), "EPSG:5179");
    definition.shiftsOrigin = true;
    EXPECT_EQ(coordinateSystemOf(definition, PlaceSystem::Tm, 127.5).substr(0, 8), "BOUNDCRS");
}

TEST(CoordinateSystem, OneNumberThatDiffersTakesTheCodeAway) {
    const auto isBound = [](const Definition& definition) {
        return coordinateSystemOf(definition, PlaceSystem::Tm, definition.tm.Lam0).substr(0, 8) ==
               "BOUNDCRS";
    };
    EXPECT_FALSE(isBound(usualDefinition()));
    EXPECT_TRUE(isBound(usualDefinition(ShiftKind::Bursa)));
    Definition definition = usualDefinition();
    definition.tm.X0 = 600000;
    EXPECT_TRUE(isBound(definition));
    definition = usualDefinition();
    definition.tm.S0 = 0.9999;
    EXPECT_TRUE(isBound(definition));
    definition = usualDefinition();
    definition.tm.Lam0 = 127.5;
    EXPECT_TRUE(isBound(definition));
    definition = usualDefinition();
    definition.local.user.a += 0.001;
    EXPECT_TRUE(isBound(definition));
    definition = usualDefinition();
    ShiftParameters shift = kRecommendedShift;
    shift.dX += 0.001;
    KelvoSub::SetDatumPara(definition.local.datum, shift, ShiftKind::Molodensky);
    EXPECT_TRUE(isBound(definition));
}

TEST(CoordinateSystem, ACorrectedPointIsSaidToStandBesideItsSystemByItsCorrection) {
    Definition definition = usualDefinition();
    EXPECT_FALSE(differsFromItsSystem(definition, PlaceSystem::Tm));
    definition.local.adjustment = {.dPhi = 1, .dLam = 0, .dH = 0};
    EXPECT_TRUE(differsFromItsSystem(definition, PlaceSystem::Tm));
    EXPECT_FALSE(differsFromItsSystem(definition, PlaceSystem::Wgs));
    // A second of latitude is a 3600th of a 360th of the circumference.
    EXPECT_NEAR(metresBesideSystem(definition, PlaceSystem::Tm, {}), 30.92, 0.01);
    definition.local.adjustment = {.dPhi = 0, .dLam = 1, .dH = 0};
    EXPECT_NEAR(metresBesideSystem(definition, PlaceSystem::Tm, {.UserPhi = 60}), 15.46, 0.01);
    EXPECT_EQ(metresBesideSystem(definition, PlaceSystem::WgsUtm, {.UserPhi = 60}), 0);
}

// Over the country, at the height of the sea: a system of two dimensions knows no other.
std::vector<GivenPoint> places() {
    return {{33.2, 126.3, 0}, {34.8, 126.6, 0},   {35.2, 129.1, 0},
            {36.5, 127.4, 0}, {37.55, 126.99, 0}, {38.5, 128.4, 0}};
}

// Longitude and latitude of the points of a file, as another family of programs finds them.
std::vector<std::array<double, 2>> wgsByProj(const std::string& path) {
    const auto ended =
        runProgram({.arguments = {"/usr/bin/ogr2ogr", "-f", "CSV", "/vsistdout/", path, "-t_srs",
                                  "EPSG:4326", "-lco", "GEOMETRY=AS_XY"},
                    .input = {},
                    .folder = {},
                    .environment = {"PROJ_NETWORK=OFF", "OGR_CT_FORCE_TRADITIONAL_GIS_ORDER=YES"}});
    EXPECT_EQ(ended.exitCode, 0) << ended.err;
    std::vector<std::array<double, 2>> found;
    std::istringstream lines(ended.out);
    std::string line;
    std::getline(lines, line);
    while (std::getline(lines, line)) {
        std::array<double, 2> at{};
        char comma = 0;
        std::istringstream(line) >> at[0] >> comma >> at[1];
        found.push_back(at);
    }
    return found;
}

double metresApart(const std::array<double, 2>& found, const ConvertedPoint& point) {
    const double arc = 111200;
    return std::hypot((found[1] - point.WgsPhi) * arc,
                      (found[0] - point.WgsLam) * arc * std::cos(point.WgsPhi * M_PI / 180));
}

double meridianOf(const ConvertedPoint& point, PlaceSystem system) {
    if (system == PlaceSystem::Tm) return point.Lam0;
    return system == PlaceSystem::WgsUtm ? point.WgsULam0 : point.ULam0;
}

// The greatest distance between where a program that reads the file puts the points, and WGS84. The
// points of each origin are a file.
double metresOff(const Definition& definition, PlaceSystem system, VectorFormat format) {
    std::map<double, std::vector<ConvertedPoint>> byOrigin;
    for (const GivenPoint& given : places()) {
        const ConvertedPoint point = convertedFromWgs(definition, given);
        byOrigin[meridianOf(point, system)].push_back(point);
    }
    double greatest = 0;
    for (const auto& [meridian, points] : byOrigin) {
        const TemporaryFolder folder;
        const std::string path = folder.file("p." + std::string(limitsOf(format).ending));
        const auto writer =
            loadPointFiles()->create({.format = format,
                                      .path = path,
                                      .columns = {{"name"}},
                                      .system = coordinateSystemOf(definition, system, meridian)});
        const std::vector<std::string_view> cells{"p"};
        for (const ConvertedPoint& point : points) writer->write(cells, placeIn(point, system));
        writer->finish();
        const auto found = wgsByProj(path);
        EXPECT_EQ(found.size(), points.size());
        for (std::size_t i = 0; i < found.size(); ++i)
            greatest = std::max(greatest, metresApart(found[i], points.at(i)));
    }
    return greatest;
}

// A grid of one's own on another ellipsoid with another shift.
Definition ownDefinition(ShiftKind kind) {
    Definition definition = usualDefinition(kind);
    definition.local.user = {6378206.4, 294.9786982};
    KelvoSub::SetDatumPara(definition.local.datum, {120.5, -480.25, -650, 0.7, -1.9, -1.1, -3.2},
                           kind);
    definition.Zone = TmZone::User;
    definition.tm = {.X0 = 450000, .Y0 = 250000, .Phi0 = 37, .Lam0 = 127.25, .S0 = 0.9999};
    definition.utm.ellipsoid = definition.local.user;
    return definition;
}

struct ExportCase {
    PlaceSystem system;
    VectorFormat format;
};

class ExportedSystem : public testing::NeedsModule<::testing::TestWithParam<ExportCase>> {};

TEST_P(ExportedSystem, LeadsBackToWgs84WithinThreeCentimetresForTheSecondKindOfShift) {
    const auto [system, format] = GetParam();
    EXPECT_LT(metresOff(usualDefinition(ShiftKind::Bursa), system, format), 0.03);
    EXPECT_LT(metresOff(ownDefinition(ShiftKind::Bursa), system, format), 0.03);
}

TEST_P(ExportedSystem, LeadsBackToWgs84WithinFifteenCentimetresForTheFirstKindOfShift) {
    const auto [system, format] = GetParam();
    EXPECT_LT(metresOff(usualDefinition(), system, format), 0.15);
    Definition plain = usualDefinition();
    plain.shiftsOrigin = false;
    EXPECT_LT(metresOff(plain, system, format), 0.15);
    EXPECT_LT(metresOff(ownDefinition(ShiftKind::Molodensky), system, format), 0.15);
}

std::string nameOfCase(const ::testing::TestParamInfo<ExportCase>& of) {
    const std::array<std::string, 5> names{"Wgs", "User", "Tm", "Utm", "WgsUtm"};
    return names.at(static_cast<std::size_t>(of.param.system)) +
           std::string(limitsOf(of.param.format).name);
}

INSTANTIATE_TEST_SUITE_P(
    , ExportedSystem,
    ::testing::Values(ExportCase{PlaceSystem::Wgs, VectorFormat::GeoPackage},
                      ExportCase{PlaceSystem::User, VectorFormat::GeoPackage},
                      ExportCase{PlaceSystem::Tm, VectorFormat::GeoPackage},
                      ExportCase{PlaceSystem::Utm, VectorFormat::GeoPackage},
                      ExportCase{PlaceSystem::WgsUtm, VectorFormat::GeoPackage},
                      ExportCase{PlaceSystem::Wgs, VectorFormat::Shapefile},
                      ExportCase{PlaceSystem::User, VectorFormat::Shapefile},
                      ExportCase{PlaceSystem::Tm, VectorFormat::Shapefile},
                      ExportCase{PlaceSystem::Utm, VectorFormat::Shapefile},
                      ExportCase{PlaceSystem::WgsUtm, VectorFormat::Shapefile}),
    nameOfCase);

}  // namespace
}  // namespace kelvo
