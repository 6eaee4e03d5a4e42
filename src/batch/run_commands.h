// The commands of a data file, carried out.
#pragma once

#include "batch/current_run.h"

namespace kelvo {

// Carries out the command in LineBuf; a line of no command is passed over. Whoever has read on
// leaves run.lineHeld set. False for the end command.
[[nodiscard]] bool carryOutCommand(CurrentRun& run);

// The form of angles read that a line INPUT chooses, which stands in LineBuf.
[[nodiscard]] AngleForm inputFormOf(FieldStore& fields);

// The tables of the run, once.
void writeTablesOnce(CurrentRun& run);

}  // namespace kelvo
