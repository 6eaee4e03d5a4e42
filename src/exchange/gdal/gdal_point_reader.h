// Reading points through GDAL.
#pragma once

#include <memory>
#include <string>

#include "exchange/point_files.h"

namespace kelvo {

// As PointFiles::open, for all formats but KML and GPX.
[[nodiscard]] std::unique_ptr<PointFileReader> makePointReader(VectorFormat format,
                                                               const std::string& path);

}  // namespace kelvo
