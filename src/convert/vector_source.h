// Points out of the files of other programs.
#pragma once

#include <memory>
#include <string>

#include "common/disk.h"
#include "convert/rows.h"
#include "exchange/point_files.h"
#include "library/point_converter.h"

namespace kelvo {

// Points with geometry: x is the easting or longitude, y the northing or latitude. A row without
// coordinates is a bad point; the number of the point stands for its line. Refusal for a file that
// can't be read or holds no points, and where the system that it states can't be `system`: angles
// in place of metres or the other way round, an ellipsoid whose axis is another than the
// definition's, or none at all although the format states one.
[[nodiscard]] std::unique_ptr<RowSource> openVectorSource(VectorFormat format,
                                                          const std::string& path, System system,
                                                          const Definition& definition);

// The rows of a sheet as delimited text, with commas.
[[nodiscard]] std::unique_ptr<ByteReader> openSheetAsText(VectorFormat format,
                                                          const std::string& path);

}  // namespace kelvo
