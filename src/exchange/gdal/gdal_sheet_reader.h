// Reading the rows of a sheet through GDAL.
#pragma once

#include <memory>
#include <string>

#include "exchange/point_files.h"

namespace kelvo {

// As PointFiles::openSheet.
[[nodiscard]] std::unique_ptr<SheetReader> makeSheetReader(VectorFormat format,
                                                           const std::string& path);

}  // namespace kelvo
