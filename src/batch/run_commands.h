// The commands of the data-file language.
#pragma once

#include "batch/batch_run.h"

namespace kelvo {

// Carries out the command in LineBuf, recognised by the first two letters of its first two
// upper-cased words; a line of no command is passed over. A pipeline that has read on leaves
// run.lineHeld set. False for the end command.
[[nodiscard]] bool carryOutCommand(BatchRun& run);

// The tables of the run, once.
void writeTablesOnce(BatchRun& run);

}  // namespace kelvo
