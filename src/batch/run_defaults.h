// The parameters that hold at the start of each run.
#pragma once

#include "batch/trans_para.h"

namespace kelvo {

// Bessel, central TM origin, UTM origin 129, the recommended shift as Molodensky, 10.405 seconds
// on, no correction by known points.
[[nodiscard]] TransPara runDefaults();

}  // namespace kelvo
