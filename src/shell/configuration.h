// kelvo.cfg: the parameters and recent data files, from one start of the program to the next. Its
// form stands in configuration_text.h.
#pragma once

#include "common/disk.h"
#include "common/ports.h"
#include "panels/program_state.h"

namespace kelvo {

// Reads the file into Cfg and the recent files, with what was read before a failure standing. A
// file that can't be read is kept as kelvo.cfg.old and replaced by one with the values of a first
// start, together with the sample data file, and read again; a data/test.dat that isn't the sample
// is kept as test.dat.old before. Returns how many recent entries the file (or files) counted; a
// file that is gone is counted, too, and leaves its place as it was.
//
// Required: a replacement doesn't reset the count. Only the second one in one start does, since
// a list of six would go round for ever otherwise; a third failure comes out as a fault, as does
// a failure to write.
int readConfiguration(ProgramState& state, Disk& disk);

// Rewrites the file, with what another program has saved since (see configuration_merge.h);
// where both changed the same, that is reported and the other's file kept as kelvo.cfg.old. Any
// failure is reported in a message box, and the old file stands.
void WriteCfgFile(ProgramState& state, Disk& disk, MessageBoxes& messages);

// The values of a first start. Required: the TM origin gets the values of the UTM one, whose own
// fields keep what they hold, as do the first adjustments.
void fillFirstStart(TransPara& Cfg);

}  // namespace kelvo
