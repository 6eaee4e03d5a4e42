// Known points: places with WGS84 and user coordinates, and what was measured at them.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "common/disk.h"
#include "common/fields.h"
#include "common/ports.h"

namespace kelvo {

// Angles in decimal degrees, heights in metres; a height of exactly 0 is one not known.
struct CorrPoint {
    std::string Name;
    double WgsPhi = 0;
    double WgsLam = 0;
    double WgsH = 0;
    double UserPhi = 0;
    double UserLam = 0;
    double UserH = 0;
    float Weight = 0;
    double DPhi = 0;  // known minus computed
    double DLam = 0;
    double DH = 0;  // kept from the run before where a height is not known (required)
    float W = 0;    // the last weight that was worked out for a point
};

inline constexpr int kMostCorrPoints = 200;

// Slots 1 to 200, slot 0 unused; never cleared between runs.
struct CorrPointTable {
    std::int16_t CorrCount = 0;
    std::array<CorrPoint, kMostCorrPoints + 1> CorrPoints;
};

// Fills the table from the file of known points. Angles are ddd.mmssss always. Lines whose
// first field is empty or begins with "*" are passed over.
//
// The end of the file is looked at only behind the first line and behind a blank or comment
// line, and the line read last is never taken (required): a file must have a blank or comment
// line as its last line but one. Otherwise fault 62; a 201st point is fault 9; a missing file
// is fault 53.
void ReadCorrFile(CorrPointTable& table, const std::string& path, FieldStore& fields, Disk& disk,
                  MessageBoxes& messages);

}  // namespace kelvo
