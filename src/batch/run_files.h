// The files that a run, or a click of the panel, writes its reports into.
#pragma once

#include <span>
#include <string>

#include "common/disk.h"
#include "common/text_file.h"

namespace kelvo {

// Both open while it lasts, and where the known points stand.
struct RunFiles {
    TextWriter& out;  // the result file
    TextWriter& det;  // the correction detail
    std::string CorPath;
};

// Fault 55 if one of the written names leads to a file that is read, or two of them to one file,
// by whatever spelling or link. Before anything is opened: opening empties what is written.
void requireFilesOfTheirOwn(Disk& disk, std::span<const std::string> written,
                            std::span<const std::string> read);

}  // namespace kelvo
