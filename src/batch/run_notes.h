// The notes at the head of every result file.
#pragma once

#include "common/text_file.h"

namespace kelvo {

void PrintRunNotes(TextWriter& out);

}  // namespace kelvo
