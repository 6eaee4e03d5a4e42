// Reading KML and GPX without holding more of the file than a piece.
#pragma once

#include <memory>
#include <string>

#include "exchange/point_files.h"

namespace kelvo {

// As PointFiles::open.
[[nodiscard]] std::unique_ptr<PointFileReader> makeKmlReader(const std::string& path);
[[nodiscard]] std::unique_ptr<PointFileReader> makeGpxReader(const std::string& path);

}  // namespace kelvo
