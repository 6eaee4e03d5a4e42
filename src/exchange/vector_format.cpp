#include "exchange/vector_format.h"

#include <algorithm>
#include <array>

#include "common/letter_case.h"

namespace kelvo {

namespace {

constexpr std::uint64_t kRowsOfSheet = 1048576;  // the first of them holds the names of the columns
constexpr std::size_t kLongestSheetText = 32767;

constexpr std::array<FormatLimits, 8> kFormats{{
    {VectorFormat::GeoPackage, "gpkg", "GeoPackage", StatedSystem::Any, 0, 0, true, true, true},
    {VectorFormat::GeoJson, "geojson", "GeoJSON", StatedSystem::Wgs84, 0, 0, true, true, true},
    {VectorFormat::Shapefile, "shp", "Shapefile", StatedSystem::Any, 0, kDbfTextWidth, true, true,
     true},
    {VectorFormat::Kml, "kml", "KML", StatedSystem::Wgs84, 0, 0, false, true, true},
    {VectorFormat::Gpx, "gpx", "GPX", StatedSystem::Wgs84, 0, 0, false, true, true},
    {VectorFormat::Dxf, "dxf", "DXF", StatedSystem::None, 0, 0, false, false, true},
    {VectorFormat::Xlsx, "xlsx", "XLSX", StatedSystem::None, kRowsOfSheet - 1, kLongestSheetText,
     true, false, false},
    {VectorFormat::Ods, "ods", "ODS", StatedSystem::None, kRowsOfSheet - 1, kLongestSheetText, true,
     false, false},
}};

bool endsIn(std::string_view path, std::string_view ending) {
    if (path.size() <= ending.size() + 1) return false;
    const std::string_view tail = path.substr(path.size() - ending.size());
    return path[path.size() - ending.size() - 1] == '.' && lowerCased(tail) == ending;
}

}  // namespace

std::span<const FormatLimits> vectorFormats() {
    return kFormats;
}

const FormatLimits& limitsOf(VectorFormat format) {
    return *std::ranges::find(kFormats, format, &FormatLimits::format);
}

std::optional<VectorFormat> vectorFormatOf(std::string_view path) {
    for (const FormatLimits& known : kFormats) {
        if (endsIn(path, known.ending)) return known.format;
    }
    return std::nullopt;
}

// Other programs read no more than 2 GiB of a table of a Shapefile.
std::uint64_t mostPointsOf(VectorFormat format, std::span<const PointColumn> columns) {
    if (format != VectorFormat::Shapefile) return limitsOf(format).mostPoints;
    constexpr std::uint64_t kMostBytes = 2147483647;
    std::uint64_t row = 1;
    for (const PointColumn& column : columns)
        row += column.holdsText() ? kDbfTextWidth : kDbfNumberWidth;
    const std::uint64_t header = 33 + 32 * columns.size();
    return (kMostBytes - header) / row;
}

}  // namespace kelvo
