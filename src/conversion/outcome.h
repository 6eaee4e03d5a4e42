// What there is to say of a converted point beside its numbers.
#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <vector>

#include "common/run_time_fault.h"
#include "correction/find_corr.h"
#include "geodesy/angle_forms.h"

namespace kelvo {

// A step that gave a number and yet calls for a word to the user.
struct Remark {
    enum class Kind {
        DoubtfulAngle,   // an angle in ddd.mmssss whose split doesn't rebuild it
        NotGeographic,   // earth-centred coordinates without latitude and longitude
        NotProjected,    // a position without grid coordinates
        NotUnprojected,  // grid coordinates without a position
    };
    Kind kind;
    double given = 0;     // of a doubtful angle: as it was given, without its sign
    ParsedAngle angle{};  // and as it was read, without its sign
};

[[nodiscard]] Remark doubtfulAngle(double given, const ParsedAngle& angle);

// The remarks of a point in their order, and the fault that ended it, if one did. A run writes the
// row of its detail report between the two lists.
struct PointOutcome {
    std::vector<Remark> beforeDetail;
    std::vector<Remark> afterDetail;
    std::optional<RuntimeFault> fault;
    std::optional<FoundCorrection> uncorrected;  // a fault, too: there is no correction
    bool faultAfterDetail = false;

    [[nodiscard]] bool ended() const { return fault.has_value() || uncorrected.has_value(); }
};

// The outcomes of a span of points, by their places in it; most points have none.
using Outcomes = std::map<std::size_t, PointOutcome>;

}  // namespace kelvo
