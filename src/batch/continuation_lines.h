// Lines that go on where the keyword's line began.
#pragma once

#include "batch/current_run.h"

namespace kelvo {

// Reads the next line and tells whether it continues a block of lines: it begins with three
// blanks and holds a field. Otherwise, and at the end of the file, the block is over; a line
// that was read stays in LineBuf for the main loop.
[[nodiscard]] bool readContinuationLine(CurrentRun& run);

}  // namespace kelvo
