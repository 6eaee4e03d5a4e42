// kelvo-batch --check: the findings of data files as lines that editors jump to.
#pragma once

#include <functional>
#include <span>
#include <string>

#include "common/disk.h"

namespace kelvo {

// Where lines go, without their line ends.
struct CheckOutput {
    std::function<void(const std::string&)> finding;  // FILE:LINE: text
    std::function<void(const std::string&)> failure;  // a file that can't be read
};

enum class CheckResult { Clean, Found, NotRead };  // the worst of all files

// Checks file after file against the known points in `CorPath`, which needs to be there only for a
// data file that has the correction on. Writes no file. What is found in the file of known points
// is given once, after the data file that it was found with first.
CheckResult checkFiles(std::span<const std::string> dataFiles, const std::string& CorPath,
                       Disk& disk, const CheckOutput& output);

}  // namespace kelvo
