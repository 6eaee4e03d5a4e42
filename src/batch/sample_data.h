// The sample data file.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "common/disk.h"

namespace kelvo {

// The part of the sample after its first `end`: the manual, which its users leave there.
[[nodiscard]] std::span<const std::string_view> sampleManual();

// Writes the sample data file, which is the manual of the data-file language, replacing any
// file of that name.
void WriteSampleData(Disk& disk, const std::string& path);

}  // namespace kelvo
