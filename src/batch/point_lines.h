// The point lines of a data file: from a line in any system to a complete row of the point table.
//
// Each takes the line in LineBuf and its continuation lines, and leaves in LineBuf the first
// line that it doesn't take. A run header that is due comes first. A point line is never
// rejected: missing numbers are 0. The origins that the longitude selects stay in `para` for
// later points. Fault 9 for the 10,001st point; those of the conversion and of the files, each
// naming the point and its line.
#pragma once

#include "batch/current_run.h"

namespace kelvo {

// WGS84 latitude, longitude, ellipsoidal height.
void ConvertWgsLines(CurrentRun& run);

// User latitude, longitude, orthometric height.
void ConvertUgsLines(CurrentRun& run);

// TM X, Y, height, read with the origin that `para` holds.
void ConvertTmLines(CurrentRun& run);

// UTM X, Y, height, read with the origin that `para` holds. Required: TmH isn't written.
void ConvertUtmLines(CurrentRun& run);

}  // namespace kelvo
