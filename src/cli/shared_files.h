// What the runs of one command line would do to each other's files.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "common/disk.h"

namespace kelvo {

// Where the detail of a data file stands if it is one of several.
[[nodiscard]] std::string detailBeside(const std::string& dataFile);

// In one sentence, which file one of the runs would write that another one reads or writes, under
// whatever names they go; nothing if there is none, as for a single data file, whose own names the
// run itself compares. To be asked before the first file is opened. `detail` is kelvo.det, which
// takes the detail of the last one, `known` is kelvo.cor.
[[nodiscard]] std::optional<std::string> complaintAboutSharedFiles(
    Disk& disk, const std::vector<std::string>& dataFiles, const std::string& detail,
    const std::string& known);

// The same for the files that the tables of a run are exported to: each stands for itself, apart
// from the other exports and from whatever the run reads and writes.
[[nodiscard]] std::optional<std::string> complaintAboutExports(
    Disk& disk, const std::string& dataFile, const std::vector<std::string>& exports,
    const std::string& detail, const std::string& known);

}  // namespace kelvo
