// The check of a data file before it is run: what a run would skip, misread, or convert to
// something that its writer didn't mean.
//
// A run takes every line as it can, so that a slip gives a number and not a message. The check
// follows the same lines with the same parser, commands, engine and known points as a run, but
// writes nothing, shows nothing, and goes on where a run would stop. What it finds is no fault of
// the file by itself: each finding says what a run will make of the line and what to write instead.
// docs/data-file.md has a line on each rule.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "batch/check_finding.h"
#include "common/disk.h"

namespace kelvo {

// The file of known points that a run of the data file would read.
struct KnownPointsFile {
    std::string path;                 // as findings name it; may be a bare name
    std::optional<std::string> text;  // UTF-8, any line ends; none if there is no such file
};

// As it stands on the disk. Faults of reading come out, but for a file that isn't there.
[[nodiscard]] KnownPointsFile readKnownPointsFile(Disk& disk, const std::string& path);

// `text` is the whole data file in UTF-8, as it stands in an editor or was decoded from the code
// page, with any line ends. Findings of the data file come first, by their lines, then those of the
// file of known points, which is looked at only where the run would read it. An empty list means
// that nothing was found. Any text will do; none raises a fault. Takes less time than the run.
[[nodiscard]] std::vector<Finding> checkDataFile(std::string_view text,
                                                 const KnownPointsFile& known);

}  // namespace kelvo
