// Parameters by lines of the data-file language.
#pragma once

#include <string>
#include <string_view>

#include "batch/trans_para.h"

namespace kelvo {

struct ParametersOfText {
    TransPara para;
    long correctionLine = 0;  // the line that last switched the correction on; 0 for none
};

// The parameters of a run as it begins, changed by the lines of `text`, UTF-8. Lines that a run
// obeys mean what they mean there, with three differences: each value must be there and be a
// number as a whole, the last line counts like any other, and nothing is passed over but comments
// ("*") and empty lines. BadDefinition, with the line, for all else: what a run would skip, points,
// IN, OUT, DIST and end, a block that is cut short, an origin that a run would ignore, an ellipsoid
// or a scale not above 0, a zone beyond 16 bits. `name` is what messages call the text.
[[nodiscard]] ParametersOfText parametersOf(std::string_view text, const std::string& name);

}  // namespace kelvo
