// The misses of the known points and what they add up to.
#pragma once

#include "common/text_file.h"
#include "common/trans_para.h"
#include "correction/corr_points.h"
#include "geodesy/datum_shift.h"

namespace kelvo {

// Computes the miss of every known point (known minus computed), their sums, means and standard
// deviations, and writes the detail block as it goes: each point, then sums, means, deviations
// and the warning of outliers beyond 3 deviations. With the same exact test everywhere, a height
// of 0 counts as not known. Fault 6 with no point, or with none that has both heights.
void CorrStatistics(CorrPointTable& table, TextWriter& det, int AngleOut, const TransPara& para,
                    const DatumState& datum, MessageBoxes& messages);

}  // namespace kelvo
