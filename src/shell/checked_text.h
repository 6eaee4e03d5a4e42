// What the check finds in the text of a data file, for an editor.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "common/disk.h"
#include "shell/status_line.h"

namespace kelvo {

// By their lines; what is found in the known points stands at the line that switches the correction
// on. The known points are read from CorPath; a file that can't be read is as good as none.
[[nodiscard]] std::vector<RunMessage> findingsIn(std::string_view dataFile,
                                                 const std::string& CorPath, Disk& disk);

}  // namespace kelvo
