// Files of points for other programs: what a writer and a reader of them are asked.
//
// The implementation knows GDAL and is loaded when it is wanted (load_point_files.h); this header
// knows nothing of it.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "exchange/vector_format.h"

namespace kelvo {

// What went wrong with a file, in one Korean sentence that names it.
class ExchangeFault : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// x is the easting or longitude, y the northing or latitude; metres or decimal degrees.
struct Place {
    double x = 0;
    double y = 0;
    double height = 0;
};

// The file to write. The first column holds the names of the points.
struct PointLayer {
    VectorFormat format{};
    std::string path;
    std::vector<PointColumn> columns;
    std::string system;  // "EPSG:..." or WKT2; counts where the format states any
    bool placesAreAngles = false;
    std::uint64_t points = 0;  // how many will come; 0 where that isn't known
};

// A writer that goes without finish() leaves nothing, and what stood under the name stays.
class PointFileWriter {
public:
    virtual ~PointFileWriter() = default;

    // One point: a cell for each column, as it is printed; an empty one has no value. A point
    // without place is left out where the format can't hold it (FormatLimits::holdsUnplaced).
    virtual void write(std::span<const std::string_view> cells,
                       const std::optional<Place>& place) = 0;

    // Puts the file in its place, whole. Of a Shapefile's files the .shp comes last.
    virtual void finish() = 0;
};

// What a file says of the system of its coordinates.
struct SystemOfFile {
    bool stated = false;
    bool geographic = false;   // angles; otherwise metres of a grid
    double semiMajorAxis = 0;  // of its ellipsoid, metres
    std::string name;          // of the system, for people
};

struct PointOfFile {
    std::string name;
    std::optional<Place> place;  // none for a row without coordinates
};

// Of files with geometry.
class PointFileReader {
public:
    virtual ~PointFileReader() = default;
    [[nodiscard]] virtual const SystemOfFile& system() const = 0;

    // False at the end. A fault where the file is cut or holds something else than points.
    [[nodiscard]] virtual bool read(PointOfFile& point) = 0;
};

// Of sheets: the rows of the first one that holds any, each cell as it is stored.
class SheetReader {
public:
    virtual ~SheetReader() = default;
    [[nodiscard]] virtual bool read(std::vector<std::string>& cells) = 0;
};

// Every function throws ExchangeFault, and nothing else but std::bad_alloc.
class PointFiles {
public:
    virtual ~PointFiles() = default;

    // Refuses at once what the format can't hold: too many points, a text that is too long.
    [[nodiscard]] virtual std::unique_ptr<PointFileWriter> create(
        const PointLayer& layer) const = 0;

    // Formats with geometry. A file without any point is a fault.
    [[nodiscard]] virtual std::unique_ptr<PointFileReader> open(VectorFormat format,
                                                                const std::string& path) const = 0;
    // Xlsx and Ods.
    [[nodiscard]] virtual std::unique_ptr<SheetReader> openSheet(VectorFormat format,
                                                                 const std::string& path) const = 0;
};

}  // namespace kelvo
