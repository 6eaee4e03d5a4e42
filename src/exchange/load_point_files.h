// Finding and loading the module that knows the files of other programs.
#pragma once

#include <memory>

#include "exchange/point_files.h"

namespace kelvo {

// The module stands beside the program, or in the folder of libraries that it was installed with;
// it is loaded by the first call, which costs some 45 ms and 45 MB. ExchangeFault where it is
// missing or belongs to another version.
[[nodiscard]] std::shared_ptr<const PointFiles> loadPointFiles();

}  // namespace kelvo
