// The five result tables of a run.
#pragma once

#include "batch/trans_para.h"
#include "common/point_table.h"
#include "common/ports.h"
#include "common/text_file.h"
#include "geodesy/angle_forms.h"

namespace kelvo {

// Writes the tables of rows 1 to PointCount: WGS84, user ellipsoid, TM, UTM, and UTM on WGS84.
// The fifth computes its grid as it goes, on the UTM origin by the WGS longitude, which it leaves
// in `para`; its height column is that of the TM table (required). `rowInHand` is the row that a
// fault belongs to, 0 for none; the fault names its point.
void PrintResultTables(PointTable& points, TextWriter& out, AngleForm AngleOut, TransPara& para,
                       MessageBoxes& messages, int& rowInHand);

}  // namespace kelvo
