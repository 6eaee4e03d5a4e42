#include "shell/import_choice.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "common/letter_case.h"
#include "convert/coordinate_text.h"

namespace kelvo {

namespace {

using Row = std::vector<std::string>;
using Words = std::span<const std::string_view>;

constexpr double kWgs84Axis = 6378137;
constexpr double kSameAxis = 1;         // metres; the axes of ellipsoids in use differ by more
constexpr std::size_t kLooksAt = 100;   // rows
constexpr std::size_t kRowsForDms = 2;  // one row of decimal degrees may look like ddd.mmssss

constexpr auto kNames = std::to_array<std::string_view>(
    {"name", "이름", "점명", "점이름", "점번호", "번호", "측점", "point", "id", "no"});
constexpr auto kLatitudes = std::to_array<std::string_view>({"wgs_lat", "lat", "latitude", "위도"});
constexpr auto kLongitudes =
    std::to_array<std::string_view>({"wgs_lon", "lon", "longitude", "lng", "경도"});
constexpr auto kNorthings = std::to_array<std::string_view>(
    {"x", "tm_x", "utm_x", "n", "northing", "north", "x좌표", "종선좌표"});
constexpr auto kEastings = std::to_array<std::string_view>(
    {"y", "tm_y", "utm_y", "e", "easting", "east", "y좌표", "횡선좌표"});
constexpr auto kHeights =
    std::to_array<std::string_view>({"h", "z", "height", "elevation", "ele", "높이", "표고",
                                     "타원체고", "wgs_h", "tm_h", "utm_h", "level"});

std::size_t columnNamed(const PointList& list, Words words) {
    for (const std::string_view word : words) {
        const auto found = std::ranges::find_if(
            list.header, [&](const std::string& cell) { return sameIgnoringCase(cell, word); });
        if (found != list.header.end())
            return static_cast<std::size_t>(found - list.header.begin());
    }
    return kNoListColumn;
}

std::optional<double> numberAt(const Row& row, std::size_t column) {
    if (column >= row.size()) return std::nullopt;
    const CoordinateRead read = readCoordinate(row[column]);
    if (read.outcome != CoordinateRead::Outcome::Number) return std::nullopt;
    return read.value;
}

// Latitudes and longitudes of Korea and around it.
bool isLatitude(double value) {
    return value >= 30 && value < 45;
}
bool isLongitude(double value) {
    return value >= 120 && value < 136;
}

// Decimal degrees where any row can be nothing else, and where there are too few rows to know.
ListAngles anglesOf(const PointList& list, const ImportChoice& choice) {
    std::size_t packed = 0;
    for (const Row& row : std::span(list.rows).first(std::min(list.rows.size(), kLooksAt))) {
        const auto north = numberAt(row, choice.north);
        const auto east = numberAt(row, choice.east);
        if (!north || !east) continue;
        if (!isPackedAngle(*north) || !isPackedAngle(*east)) return ListAngles::Degrees;
        ++packed;
    }
    return packed < kRowsForDms ? ListAngles::Degrees : ListAngles::Dms;
}

// For a choice that is still that of WGS84.
bool takeFromHeader(const PointList& list, ImportChoice& choice) {
    choice.name = columnNamed(list, kNames);
    choice.height = columnNamed(list, kHeights);
    choice.north = columnNamed(list, kLatitudes);
    choice.east = columnNamed(list, kLongitudes);
    if (choice.north != kNoListColumn && choice.east != kNoListColumn) return true;
    choice.north = columnNamed(list, kNorthings);
    choice.east = columnNamed(list, kEastings);
    choice.system = System::Tm;
    return choice.north != kNoListColumn && choice.east != kNoListColumn;
}

// Name, two values, height, as many as there are; a first column of whole numbers is a name.
void takeFromOrder(const PointList& list, ImportChoice& choice) {
    const Row& row = list.rows.front();
    const bool named = row.size() > 3 || !numberAt(row, 0) ||
                       (row.size() == 3 && row.front().find('.') == std::string::npos);
    const std::size_t first = named ? 1 : 0;
    choice.name = named ? 0 : kNoListColumn;
    choice.north = first;
    choice.east = first + 1;
    choice.height = first + 2 < list.columns() ? first + 2 : kNoListColumn;
    choice.system = System::Tm;
}

void lookAtNumbers(const PointList& list, ImportChoice& choice) {
    const auto north = numberAt(list.rows.front(), choice.north);
    const auto east = numberAt(list.rows.front(), choice.east);
    if (!north || !east) return;
    if (isLongitude(*north) && isLatitude(*east))
        std::swap(choice.north, choice.east);
    else if (!isLatitude(*north) || !isLongitude(*east))
        return;
    choice.system = System::Wgs;
}

}  // namespace

ImportChoice guessedChoice(const PointList& list) {
    ImportChoice choice;
    if (list.system) {
        const bool onWgs84 = isWgs84Axis(list.system->semiMajorAxis);
        choice.system = System::Tm;
        if (list.system->geographic) choice.system = onWgs84 ? System::Wgs : System::User;
        return choice;
    }
    if (list.rows.empty()) return choice;
    if (!takeFromHeader(list, choice)) takeFromOrder(list, choice);
    if (choice.system == System::Tm) lookAtNumbers(list, choice);
    if (hasAngles(choice.system)) choice.angles = anglesOf(list, choice);
    return choice;
}

bool hasAngles(System system) {
    return system == System::Wgs || system == System::User;
}

bool isPackedAngle(double angle) {
    constexpr double kCloseBelow = 1e-9;
    const double size = std::abs(angle);
    const double minutes = (size - std::floor(size)) * 100;
    const double whole = std::floor(minutes + kCloseBelow);
    return whole < 60 && (minutes - whole) * 100 < 60 - kCloseBelow;
}

bool isWgs84Axis(double semiMajorAxis) {
    return std::abs(semiMajorAxis - kWgs84Axis) < kSameAxis;
}

}  // namespace kelvo
