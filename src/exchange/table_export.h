// The tables of a run as a file for other programs.
#pragma once

#include <string>

#include "common/point_table.h"

namespace kelvo {

// The points of rows 1 to PointCount with the columns of all five tables, as they are printed in
// decimal degrees; places in WGS84, in a drawing on the TM grid. What a run keeps of its origins
// changes from point to point, so the tables' grids have no coordinate reference system here.
// `path` ends in that of a vector format. ExchangeFault where it can't be written.
void exportTables(const PointTable& points, const std::string& path);

}  // namespace kelvo
