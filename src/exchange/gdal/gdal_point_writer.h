// Writing points through GDAL.
#pragma once

#include <memory>

#include "exchange/point_files.h"

namespace kelvo {

// As PointFiles::create.
[[nodiscard]] std::unique_ptr<PointFileWriter> makePointWriter(const PointLayer& layer);

}  // namespace kelvo
