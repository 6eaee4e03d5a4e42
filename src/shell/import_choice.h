// What the columns of a list of points hold.
#pragma once

#include <cstddef>

#include "conversion/converted_point.h"
#include "convert/point_list.h"

namespace kelvo {

inline constexpr std::size_t kNoListColumn = static_cast<std::size_t>(-1);

// How the angles of a list are written.
enum class ListAngles {
    Degrees,  // decimal degrees
    Dms,      // ddd.mmssss
};

// What the columns of a list are; places from 0.
struct ImportChoice {
    System system = System::Wgs;
    ListAngles angles = ListAngles::Degrees;  // counts for latitudes and longitudes only
    std::size_t name = 0;                     // kNoListColumn: points are numbered from 1
    std::size_t north = 1;                    // X or latitude
    std::size_t east = 2;                     // Y or longitude
    std::size_t height = 3;                   // kNoListColumn: 0
};

// By what the file says, by the header, and by the numbers of the first row. A list with columns
// x and y has its northings in x, as in a data file.
[[nodiscard]] ImportChoice guessedChoice(const PointList& list);

[[nodiscard]] bool hasAngles(System system);

// Whether an angle can be ddd.mmssss: its minutes and seconds are below 60.
[[nodiscard]] bool isPackedAngle(double angle);

// Whether an ellipsoid with this semi-major axis in metres is that of WGS84 or GRS80.
[[nodiscard]] bool isWgs84Axis(double semiMajorAxis);

}  // namespace kelvo
