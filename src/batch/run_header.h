// The run header: under which parameters the points after it are converted.
#pragma once

#include "batch/conversion_state.h"
#include "batch/run_files.h"
#include "batch/trans_para.h"
#include "common/disk.h"
#include "common/ports.h"
#include "geodesy/angle_forms.h"

namespace kelvo {

// Writes the run header, loads the shift of `para`, and, unless its correction flag is off, reads
// the known points and writes the detail block with their statistics, in the order reached.
// Uses LineBuf. Faults: as ReadCorrFile and CorrStatistics.
void PrintRunHeader(ConversionState& state, const RunFiles& files, AngleForm AngleIn,
                    AngleForm AngleOut, const TransPara& para, Disk& disk, MessageBoxes& messages);

// Measures the misses of the known points and writes their account into the detail file: each
// point, then sums, means, deviations and the warning of outliers. Each line is written as soon as
// it is reached, so that the sums stand before a fault of the means. Fault 6 with no known point,
// with none that has both heights, and where a sum overflows.
void CorrStatistics(ConversionState& state, const RunFiles& files, AngleForm AngleOut,
                    const TransPara& para, MessageBoxes& messages);

}  // namespace kelvo
