// The report of a run: under which parameters points were converted, and the full account of
// the known points.
#pragma once

#include <string>

#include "common/fields.h"
#include "common/point_table.h"
#include "common/text_file.h"
#include "common/trans_para.h"
#include "correction/corr_points.h"
#include "geodesy/datum_shift.h"

namespace kelvo {

// What a conversion works on. The application has one, whoever runs it: a batch run or a click.
struct ConversionState {
    PointTable points;
    CorrPointTable known;
    DatumState datum;
    FieldStore fields;
    bool ParaDirty = false;  // a run header is due before the next point
};

// The two files of a run, open while it lasts, and where the known points stand.
struct RunFiles {
    TextWriter& out;  // the result file
    TextWriter& det;  // the correction detail
    std::string CorPath;
};

// Writes the run header, loads the shift of `para`, and, unless its correction flag is 0, reads
// the known points and writes the detail block with their statistics, in the order reached.
// Uses LineBuf. Faults: as ReadCorrFile; 6 with no known point, or none with both heights.
void PrintRunHeader(ConversionState& state, const RunFiles& files, int AngleIn, int AngleOut,
                    const TransPara& para, Disk& disk, MessageBoxes& messages);

// The correction for one point of the run: the mean of the known points' misses, weighted by
// own weight over the fourth power of the distance, latitude stretched. Writes a row into the
// detail file, under the name in table row `Row`. With CorrFlag 0 all is 0 and nothing written.
// Faults: 6 if no weight is usable, or a weight goes beyond a 32-bit float.
struct Correction {
    double DPhi = 0;  // degrees
    double DLam = 0;
    double DH = 0;  // metres
};
[[nodiscard]] Correction findCorr(ConversionState& state, TextWriter& det, double Phi, double Lam,
                                  int AngleOut, int Row, int CorrFlag, MessageBoxes& messages);

}  // namespace kelvo
