// The rules on words: which line is which command, against what its writer probably meant.
#pragma once

#include "batch/check_finding.h"
#include "batch/language.h"

namespace kelvo {

// A line that a run passes over. `blockEnd` is the line that ended the block in front of it; 0 if
// there was none.
void checkSkippedLine(const TextLine& line, const LineFields& fields, long blockEnd,
                      Findings& findings);

// The words of a line that is carried out as the command. `corrects` says whether the correction
// is on before it.
void checkCommandWords(const TextLine& line, const LineFields& fields, Command command,
                       bool corrects, Findings& findings);

}  // namespace kelvo
