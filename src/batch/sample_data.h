// The sample data file.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "common/disk.h"

namespace kelvo {

// The part of the sample after its first `end`: the manual, which its users leave there.
[[nodiscard]] std::span<const std::string_view> sampleManual();

// The sample data file, which is the manual of the data-file language.
[[nodiscard]] std::string sampleDataText();

// Writes it, replacing any file of that name as a whole.
void WriteSampleData(Disk& disk, const std::string& path);

}  // namespace kelvo
