#include "conversion/outcome.h"

#include <cmath>

namespace kelvo {

Remark doubtfulAngle(double given, const ParsedAngle& angle) {
    Remark remark{.kind = Remark::Kind::DoubtfulAngle, .given = std::abs(given), .angle = angle};
    remark.angle.degrees = std::abs(angle.degrees);
    return remark;
}

}  // namespace kelvo
