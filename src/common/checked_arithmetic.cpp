#include "common/checked_arithmetic.h"

#include <string>

#include "common/number_text.h"

namespace kelvo {

void raiseBeyondInteger16(double value) {
    if (!std::isfinite(value)) raise(Fault::Overflow);
    raise(Fault::Overflow, generalText(value) + "은(는) 16비트 정수의 범위(" +
                               generalText(kLowestInteger16) + "~" +
                               generalText(kHighestInteger16) + ")를 벗어났습니다");
}

}  // namespace kelvo
