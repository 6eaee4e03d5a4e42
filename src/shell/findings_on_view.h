// What the check finds in the text on view, for an editor that marks it.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "common/disk.h"

namespace kelvo {

struct FindingOnView {
    long line = 1;   // from 1
    int column = 0;  // in characters, from 1; 0 for the whole line
    int length = 0;  // characters
    std::string text;
};

// Of the text as it stands in the editor, against the known points as they stand on the disk. None
// for a file that is no data file by its name. What is wrong with the known points stands at the
// line that switches the correction on; known points that can't be read count as missing.
[[nodiscard]] std::vector<FindingOnView> findingsOnView(const std::string& path,
                                                        std::string_view text,
                                                        const std::string& CorPath, Disk& disk);

}  // namespace kelvo
