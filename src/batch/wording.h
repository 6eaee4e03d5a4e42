// What is said of a conversion in words. The engine computes; here its remarks and faults become
// the texts that the user reads.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "common/guarded.h"
#include "common/ports.h"
#include "conversion/outcome.h"

namespace kelvo {

// The texts of the message boxes for a remark, in their order: one, but for a doubtful angle up to
// two.
[[nodiscard]] std::vector<std::string> textsOf(const Remark& remark);

// The fault of a point that can't be corrected by these known points, which stand in that file.
[[nodiscard]] RuntimeFault faultOf(const FoundCorrection& uncorrected,
                                   std::span<const CorrPoint> known, const std::string& CorPath);

// Shows remarks in their order, each in a box of its own.
void tell(MessageBoxes& messages, std::span<const Remark> remarks);
void tell(MessageBoxes& messages, Remark::Kind kind, int times = 1);

// The result, after the box for one that failed.
template <class T>
const T& reported(MessageBoxes& messages, const Guarded<T>& result, Remark::Kind kind) {
    if (result.failed) tell(messages, kind);
    return result.value;
}

// The degrees of an angle read from ddd.mmssss, after the boxes for a doubtful one.
double reportedDegrees(MessageBoxes& messages, double given, const ParsedAngle& angle);

// The parts of an angle, after the box for a split that doesn't rebuild it.
const DegreesMinutesSeconds& reportedParts(MessageBoxes& messages, double x,
                                           const SplitAngle& split);

}  // namespace kelvo
