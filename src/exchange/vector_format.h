// The files that points are written to and read from, and what each of them holds.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace kelvo {

enum class VectorFormat { GeoPackage, GeoJson, Shapefile, Kml, Gpx, Dxf, Xlsx, Ods };

// What a format says of where its coordinates belong.
enum class StatedSystem {
    Any,    // a coordinate reference system stands in the file
    Wgs84,  // its coordinates are WGS84 latitude and longitude, always
    None,   // nothing
};

struct FormatLimits {
    VectorFormat format;
    std::string_view ending;  // of a file's name, in small letters, without the point
    std::string_view name;    // as people call it
    StatedSystem system;
    std::uint64_t mostPoints;  // 0 for no limit but the disk; of a Shapefile see mostPointsOf
    std::size_t longestText;   // bytes of a cell, 0 for no limit
    bool holdsUnplaced;        // a row without coordinates has a place there
    bool writesInConstantMemory;
    bool hasGeometry;  // false for sheets, whose columns are all there is
};

[[nodiscard]] std::span<const FormatLimits> vectorFormats();
[[nodiscard]] const FormatLimits& limitsOf(VectorFormat format);

// By the ending of the name, whatever its letters' case; none for any other file.
[[nodiscard]] std::optional<VectorFormat> vectorFormatOf(std::string_view path);

// A column of what is written.
struct PointColumn {
    std::string name;
    int decimals = -1;  // of its numbers; below 0 it holds text

    [[nodiscard]] bool holdsText() const { return decimals < 0; }
};

// Letters of a number, and most of a text, in the table of a Shapefile.
inline constexpr int kDbfNumberWidth = 24;
inline constexpr int kDbfTextWidth = 254;

// The most points that a file of the format holds with these columns, 0 for no limit.
[[nodiscard]] std::uint64_t mostPointsOf(VectorFormat format, std::span<const PointColumn> columns);

}  // namespace kelvo
