#include "common/exact_arithmetic.h"

#include <cmath>

#if defined(__FAST_MATH__) || defined(__ASSOCIATIVE_MATH__) || defined(__RECIPROCAL_MATH__) || \
    (defined(__FINITE_MATH_ONLY__) && __FINITE_MATH_ONLY__)
#error "Kelvo's digits can't be trusted under -ffast-math or its relatives: take the flag away."
#endif

namespace kelvo {

bool computesAsWritten(double big, double one) {
    const double sum = big + one;  // 1e16 again: its neighbours are 2 apart
    const bool inOrder = sum - big == 0;

    // The square of 1 + 2^-30 needs 61 bits. A fused product and sum would keep the last of them.
    const double a = one + 0x1p-30;
    const double rounded = a * a - (one + 0x1p-29);
    const bool notFused = rounded == 0;

    const double infinite = big * 1e300;
    const bool knowsInfinity = !std::isfinite(infinite) && std::isnan(infinite - infinite);
    return inOrder && notFused && knowsInfinity;
}

}  // namespace kelvo
