#include "exchange/coordinate_system.h"

#include <array>
#include <cmath>
#include <optional>
#include <string_view>

#include "common/number_text.h"
#include "geodesy/datum_shift.h"

namespace kelvo {

namespace {

constexpr Ellipsoid kGrs80{6378137.0, 298.257222101};

double inverseFlattening(const Ellipsoid& ellipsoid) {
    return ellipsoid.f > 1 ? ellipsoid.f : 1 / ellipsoid.f;
}

bool same(const Ellipsoid& one, const Ellipsoid& other) {
    return one.a == other.a && inverseFlattening(one) == inverseFlattening(other);
}

// All but the central meridian.
bool sameButMeridian(const Projection& one, const Projection& other) {
    return one.X0 == other.X0 && one.Y0 == other.Y0 && one.Phi0 == other.Phi0 && one.S0 == other.S0;
}

bool same(const DatumShift& one, const DatumShift& other) {
    return one.dX == other.dX && one.dY == other.dY && one.dZ == other.dZ &&
           one.Omega == other.Omega && one.Phi == other.Phi && one.Kappa == other.Kappa &&
           one.dS == other.dS;
}

DatumShift loaded(const ShiftParameters& parameters, ShiftKind kind) {
    DatumState state;
    KelvoSub::SetDatumPara(state, parameters, kind);
    return state.shift;
}

bool isOfFirstKind(const DatumShift& shift) {
    return !(shift.Kind > ShiftKind::Molodensky);
}

// The datum of 1985 as EPSG:5191 brings it to WGS84.
bool isKorean1985(const LocalDatum& local) {
    const DatumShift& shift = local.datum.shift;
    return same(local.user, kBesselOfParameters) && isOfFirstKind(shift) &&
           same(shift, loaded(kRecommendedShift, shift.Kind));
}

bool isKorea2000(const LocalDatum& local) {
    return same(local.user, kGrs80) && same(local.datum.shift, DatumShift{});
}

struct GridCode {
    Projection projection;
    bool shifted;  // by the 10.405 seconds
    int code;
};

Projection jeju(double X0) {
    Projection origin = originOf(TmZone::Centre);
    origin.X0 = X0;
    return origin;
}

std::optional<int> korean1985Code(const Projection& grid, bool shifted) {
    const std::array<GridCode, 10> codes{{
        {originOf(TmZone::West), true, 5173},
        {originOf(TmZone::Centre), true, 5174},
        {jeju(550000), true, 5175},
        {originOf(TmZone::East), true, 5176},
        {originOf(TmZone::EastSea), true, 5177},
        {originOf(TmZone::West), false, 2098},
        {originOf(TmZone::Centre), false, 2097},
        {jeju(550000), false, 5168},
        {originOf(TmZone::East), false, 2096},
        {originOf(TmZone::EastSea), false, 5167},
    }};
    for (const GridCode& known : codes) {
        if (known.shifted == shifted && sameButMeridian(known.projection, grid) &&
            known.projection.Lam0 == grid.Lam0)
            return known.code;
    }
    return std::nullopt;
}

std::optional<int> korea2000Code(const Projection& grid) {
    const Projection belt{.X0 = 600000, .Y0 = 200000, .Phi0 = 38, .Lam0 = 0, .S0 = 1};
    const Projection unified{.X0 = 2000000, .Y0 = 1000000, .Phi0 = 38, .Lam0 = 127.5, .S0 = 0.9996};
    if (sameButMeridian(grid, unified) && grid.Lam0 == unified.Lam0) return 5179;
    if (!sameButMeridian(grid, belt)) return std::nullopt;
    for (int i = 0; i < 4; ++i) {
        if (grid.Lam0 == 125 + 2 * i) return 5185 + i;
    }
    return std::nullopt;
}

std::optional<int> wgsUtmCode(const Projection& grid) {
    if (!sameButMeridian(grid, originOf(UtmZone::East))) return std::nullopt;
    constexpr int kZones = 60;
    const double zone = (grid.Lam0 + 183) / 6;
    if (zone != std::floor(zone) || zone < 1 || zone > kZones) return std::nullopt;
    return 32600 + static_cast<int>(zone);
}

std::string quoted(std::string_view text) {
    return '"' + std::string(text) + '"';
}

std::string parameter(std::string_view name, double value, std::string_view unit, int code) {
    return "PARAMETER[" + quoted(name) + ',' + generalText(value) +
           (unit.empty() ? std::string() : ',' + std::string(unit)) + ",ID[\"EPSG\"," +
           std::to_string(code) + "]]";
}

constexpr std::string_view kDegree = R"(ANGLEUNIT["degree",0.0174532925199433])";
constexpr std::string_view kMetre = R"(LENGTHUNIT["metre",1])";
constexpr std::string_view kUnity = R"(SCALEUNIT["unity",1])";

std::string ellipsoidText(const Ellipsoid& ellipsoid) {
    const std::string_view name = same(ellipsoid, kBesselOfParameters) ? "Bessel 1841"
                                  : same(ellipsoid, kGrs80)            ? "GRS 1980"
                                  : same(ellipsoid, kWgs84)            ? "WGS 84"
                                                                       : "User ellipsoid";
    return "ELLIPSOID[" + quoted(name) + ',' + generalText(ellipsoid.a) + ',' +
           generalText(inverseFlattening(ellipsoid)) + ',' + std::string(kMetre) + ']';
}

std::string datumText(std::string_view name, const Ellipsoid& ellipsoid) {
    return "DATUM[" + quoted(name) + ',' + ellipsoidText(ellipsoid) + R"(],PRIMEM["Greenwich",0,)" +
           std::string(kDegree) + ']';
}

std::string geographicText(std::string_view name, std::string_view datum,
                           const Ellipsoid& ellipsoid) {
    return "GEOGCRS[" + quoted(name) + ',' + datumText(datum, ellipsoid) +
           R"(,CS[ellipsoidal,2],AXIS["longitude",east,ORDER[1],)" + std::string(kDegree) +
           R"(],AXIS["latitude",north,ORDER[2],)" + std::string(kDegree) + "]]";
}

std::string projectedText(std::string_view name, std::string_view datum, const Ellipsoid& ellipsoid,
                          const Projection& grid, double meridian) {
    return "PROJCRS[" + quoted(name) + ",BASEGEOGCRS[" + quoted(datum) + ',' +
           datumText(datum, ellipsoid) + "],CONVERSION[" + quoted(name) +
           R"(,METHOD["Transverse Mercator",ID["EPSG",9807]],)" +
           parameter("Latitude of natural origin", grid.Phi0, kDegree, 8801) + ',' +
           parameter("Longitude of natural origin", meridian, kDegree, 8802) + ',' +
           parameter("Scale factor at natural origin", grid.S0, kUnity, 8805) + ',' +
           parameter("False easting", grid.Y0, kMetre, 8806) + ',' +
           parameter("False northing", grid.X0, kMetre, 8807) +
           R"(],CS[Cartesian,2],AXIS["easting",east,ORDER[1],)" + std::string(kMetre) +
           R"(],AXIS["northing",north,ORDER[2],)" + std::string(kMetre) + "]]";
}

double arcSeconds(double radians) {
    return radians / KelvoSub::degreeToRadian() * 3600;
}

// The shift is given from WGS84; this leads to it, so that all seven turn their sign.
std::string boundText(const std::string& source, const DatumShift& shift) {
    return "BOUNDCRS[SOURCECRS[" + source + "],TARGETCRS[" +
           R"(GEOGCRS["WGS 84",DATUM["World Geodetic System 1984",ELLIPSOID["WGS 84",6378137,)" +
           R"(298.257223563,LENGTHUNIT["metre",1]]],PRIMEM["Greenwich",0,)" + std::string(kDegree) +
           R"(],CS[ellipsoidal,2],AXIS["latitude",north,ORDER[1],)" + std::string(kDegree) +
           R"(],AXIS["longitude",east,ORDER[2],)" + std::string(kDegree) +
           R"(],ID["EPSG",4326]]],ABRIDGEDTRANSFORMATION["Kelvo, seven parameters",)" +
           R"x(METHOD["Coordinate Frame rotation (geog2D domain)",ID["EPSG",9607]],)x" +
           parameter("X-axis translation", -shift.dX, {}, 8605) + ',' +
           parameter("Y-axis translation", -shift.dY, {}, 8606) + ',' +
           parameter("Z-axis translation", -shift.dZ, {}, 8607) + ',' +
           parameter("X-axis rotation", -arcSeconds(shift.Omega), {}, 8608) + ',' +
           parameter("Y-axis rotation", -arcSeconds(shift.Phi), {}, 8609) + ',' +
           parameter("Z-axis rotation", -arcSeconds(shift.Kappa), {}, 8610) + ',' +
           parameter("Scale difference", 1 - shift.dS, {}, 8611) + "]]";
}

std::string epsg(int code) {
    return "EPSG:" + std::to_string(code);
}

std::string userText(const LocalDatum& local) {
    if (isKorean1985(local)) return epsg(4162);
    return boundText(geographicText("Kelvo user ellipsoid", "Kelvo user datum", local.user),
                     local.datum.shift);
}

std::string tmText(const Definition& definition, const Projection& grid) {
    const LocalDatum& local = definition.local;
    std::optional<int> code;
    if (isKorean1985(local)) code = korean1985Code(grid, definition.shiftsOrigin);
    if (isKorea2000(local) && !definition.shiftsOrigin) code = korea2000Code(grid);
    if (code) return epsg(*code);
    return boundText(projectedText("Kelvo TM", "Kelvo user datum", local.user, grid,
                                   grid.Lam0 + definition.originShift()),
                     local.datum.shift);
}

}  // namespace

std::string coordinateSystemOf(const Definition& definition, PlaceSystem system, double Lam0) {
    Projection grid = system == PlaceSystem::Tm ? definition.tm : definition.utm.projection;
    grid.Lam0 = Lam0;
    switch (system) {
        case PlaceSystem::Wgs:
            break;
        case PlaceSystem::User:
            return userText(definition.local);
        case PlaceSystem::Tm:
            return tmText(definition, grid);
        case PlaceSystem::Utm:
            return boundText(projectedText("Kelvo UTM", "Kelvo user datum",
                                           definition.utm.ellipsoid, grid, Lam0),
                             definition.local.datum.shift);
        case PlaceSystem::WgsUtm:
            if (const auto code = wgsUtmCode(grid)) return epsg(*code);
            return projectedText("Kelvo WGS84 UTM", "World Geodetic System 1984", kWgs84, grid,
                                 Lam0);
    }
    return epsg(4326);
}

bool differsFromItsSystem(const Definition& definition, PlaceSystem system) {
    if (system == PlaceSystem::Wgs || system == PlaceSystem::WgsUtm) return false;
    const FirstAdjustment& first = definition.local.adjustment;
    return first.dPhi != 0 || first.dLam != 0 || definition.corrects ||
           (system == PlaceSystem::Utm && !same(definition.utm.ellipsoid, definition.local.user));
}

double metresBesideSystem(const Definition& definition, PlaceSystem system,
                          const ConvertedPoint& point) {
    if (system == PlaceSystem::Wgs || system == PlaceSystem::WgsUtm) return 0;
    const FirstAdjustment& first = definition.local.adjustment;
    const double arc = definition.local.user.a * KelvoSub::degreeToRadian();
    const double north = (point.CorrPhi + first.dPhi / 3600) * arc;
    const double east = (point.CorrLam + first.dLam / 3600) * arc *
                        std::cos(point.UserPhi * KelvoSub::degreeToRadian());
    return std::hypot(north, east);
}

}  // namespace kelvo
