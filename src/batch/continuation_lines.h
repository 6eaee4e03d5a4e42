// Lines that go on where the keyword's line began.
#pragma once

#include <string_view>

#include "batch/current_run.h"

namespace kelvo {

// The fields of the line that a block begins with; the keyword is the first.
constexpr int kKeywordLineFields = 5;

// Whether a line continues a block of lines: it begins with three blanks and holds a field.
[[nodiscard]] bool isContinuationLine(std::string_view line);

// Reads the next line and returns whether it continues a block of lines. Otherwise, and at the end
// of the file, the block is over; a line that was read stays in LineBuf for the main loop.
[[nodiscard]] bool readContinuationLine(CurrentRun& run);

}  // namespace kelvo
