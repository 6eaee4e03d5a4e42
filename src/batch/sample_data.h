// The sample data file.
#pragma once

#include <string>

#include "common/disk.h"

namespace kelvo {

// Writes the sample data file, which is the manual of the data-file language, replacing any
// file of that name.
void WriteSampleData(Disk& disk, const std::string& path);

}  // namespace kelvo
