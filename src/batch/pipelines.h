// The four pipelines: from a point line in any system to a complete row of the point table.
//
// Each takes the line in LineBuf and its continuation lines, and leaves in LineBuf the first
// line that it doesn't take. A run header that is due comes first. A point line is never
// rejected: missing numbers are 0. The origins that the longitude selects stay in `para` for
// later points. Fault 9 for the 10,001st point.
#pragma once

#include "batch/batch_run.h"

namespace kelvo {

// WGS84 latitude, longitude, ellipsoidal height. First adjustment and correction are added to
// the user coordinates.
void ConvertWgsLines(BatchRun& run);

// User latitude, longitude, orthometric height. In this and the next two, adjustment and
// correction are taken from the WGS coordinates, so that the line's own stay as given.
void ConvertUgsLines(BatchRun& run);

// TM X, Y, height, read with the origin that `para` holds.
void ConvertTmLines(BatchRun& run);

// UTM X, Y, height, read with the origin that `para` holds. TmH is not written (required).
void ConvertUtmLines(BatchRun& run);

}  // namespace kelvo
