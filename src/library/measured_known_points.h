// Known points by the text of their file, read and measured as a run does it.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "batch/trans_para.h"
#include "conversion/definition.h"

namespace kelvo {

struct MeasuredKnownPoints {
    KnownPoints points;
    std::vector<std::string> remarks;  // what a run would say of them, in its order
};

// `text` is UTF-8, `datum` the shift of `para` as it is loaded. BadDefinition for every fault that
// a run would have with them, and where none has a weight. `name` is what messages call the text.
[[nodiscard]] MeasuredKnownPoints measuredKnownPoints(std::string_view text,
                                                      const std::string& name,
                                                      const TransPara& para,
                                                      const DatumState& datum);

}  // namespace kelvo
