// kelvo.cfg where two programs save it: what this one changed, and for all else what the other one
// saved. Values that belong together are taken together, since a mixture of two sets would convert
// to places that nobody meant.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "batch/trans_para.h"

namespace kelvo {

struct Configuration {
    TransPara Cfg;
    std::array<std::string, 6> RecentFiles;  // 1 to 5
};

struct MergedConfiguration {
    Configuration configuration;
    // What both changed, in words for people: there this program's values stand.
    std::vector<std::string> conflicts;
};

// `untouched` is what this program gives back if nobody touches its panels, `before` what the file
// held when it last read or wrote it. The current file of this program comes first in the list,
// then what the other one has added, then the rest.
[[nodiscard]] MergedConfiguration mergedConfiguration(const Configuration& mine,
                                                      const TransPara& untouched,
                                                      const Configuration& theirs,
                                                      const Configuration& before);

}  // namespace kelvo
