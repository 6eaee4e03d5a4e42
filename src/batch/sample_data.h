// The sample data file.
#pragma once

#include <string>

#include "common/disk.h"

namespace kelvo {

// The sample data file, which is the manual of the data-file language.
[[nodiscard]] std::string sampleDataText();

// Writes it, replacing any file of that name as a whole.
void WriteSampleData(Disk& disk, const std::string& path);

}  // namespace kelvo
