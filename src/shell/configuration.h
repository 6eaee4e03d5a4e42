// kelvo.cfg: the parameters and recent data files, from one start of the program to the next.
//
// Lines: the editor; 27 numbers in the order of TransPara, read as a stream separated by blanks,
// commas or line ends; AddFlag and CorrFlag; then at most five paths.
#pragma once

#include "common/disk.h"
#include "common/ports.h"
#include "panels/program_state.h"

namespace kelvo {

// Reads the file into Cfg and the recent files, with what was read before a failure standing. A
// file that can't be read is replaced by one with the values of a first start, together with a
// new sample data file, and read again. Returns how many recent entries the file (or files)
// counted; a file that is gone is counted, too, and leaves its place as it was.
//
// Required: a replacement doesn't reset the count. Only the second one in one start does, since
// a list of six would go round for ever otherwise; a third failure comes out as a fault, as does
// a failure to write.
int readConfiguration(ProgramState& state, Disk& disk);

// Rewrites the file. Any failure is reported in a message box, and the old file stands.
void WriteCfgFile(const ProgramState& state, Disk& disk, MessageBoxes& messages);

// The values of a first start. Required: the TM origin gets the values of the UTM one, whose own
// fields keep what they hold, as do the first adjustments.
void fillFirstStart(TransPara& Cfg);

}  // namespace kelvo
