// The file of known points.
#pragma once

#include <string>

#include "common/disk.h"
#include "common/fields.h"
#include "common/ports.h"
#include "common/text_file.h"
#include "correction/corr_points.h"

namespace kelvo {

// Fills the table from the file of known points. Angles are ddd.mmssss always. Lines whose
// first field is empty or begins with "*" are passed over.
//
// Required: the end of the file is looked at only after the first line and after a blank or comment
// line, and the line read last is never taken. So a file must have a blank or comment line as its
// last line but one. Otherwise fault 62; a 201st point is fault 9; a missing file is fault 53. A
// fault names file and line.
void ReadCorrFile(CorrPointTable& table, const std::string& path, FieldStore& fields, Disk& disk,
                  MessageBoxes& messages);

// The same of a file that is open; `path` is what a fault names.
void ReadCorrFile(CorrPointTable& table, TextReader& file, const std::string& path,
                  FieldStore& fields, MessageBoxes& messages);
// The same, and a fault names no file.
void ReadCorrFile(CorrPointTable& table, TextReader& file, FieldStore& fields,
                  MessageBoxes& messages);

}  // namespace kelvo
