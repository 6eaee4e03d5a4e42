// The conversion that a parameter set asks for.
#pragma once

#include "batch/trans_para.h"
#include "conversion/definition.h"

namespace kelvo {

// `datum` is the shift as it was loaded last, which needn't be that of `para`.
[[nodiscard]] Definition definitionOf(const TransPara& para, const DatumState& datum,
                                      KnownPoints known);

}  // namespace kelvo
