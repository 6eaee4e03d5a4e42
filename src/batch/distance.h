// The distance command: direction and distance between points of the run, on the TM grid.
#pragma once

#include "batch/current_run.h"

namespace kelvo {

// Takes the line in LineBuf and its continuation lines, each a pair of names, and leaves in
// LineBuf the first line that it doesn't take. Names are looked up whole, in any case; the
// earlier of two rows with one name counts. A missing name is reported in the result file.
void RunDistance(CurrentRun& run);

}  // namespace kelvo
