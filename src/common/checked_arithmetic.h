// Arithmetic that raises a fault where a plain operation would give an infinity or a NaN.
//
// From finite numbers, sums and products can only overflow, and an infinity then stays one (or
// becomes a NaN) through every further sum and product. Only a division, an arctangent and a
// comparison could hide it. So it is enough to check what goes into those, and the results.
#pragma once

#include <cmath>
#include <cstdint>

#include "common/run_time_fault.h"

namespace kelvo {

// The value itself; fault 6 for an infinity or NaN.
[[nodiscard]] inline double finite(double value) {
    if (!std::isfinite(value)) raise(Fault::Overflow);
    return value;
}

// a / b. Fault 11 for b = 0 (6 for 0/0), fault 6 if an operand or the quotient isn't finite.
[[nodiscard]] inline double quotient(double a, double b) {
    if (b == 0) raise(a == 0 ? Fault::Overflow : Fault::DivisionByZero);
    const double result = a / finite(b);
    return finite(result);
}

// Square root. Fault 5 below zero, fault 6 if the operand isn't finite.
[[nodiscard]] inline double squareRoot(double x) {
    if (finite(x) < 0) raise(Fault::InvalidCall);
    return std::sqrt(x);
}

inline constexpr double kLowestInteger16 = -32768;
inline constexpr double kHighestInteger16 = 32767;

// Fault 6 with the value and the limits.
[[noreturn]] void raiseBeyondInteger16(double value);

// A value with no fraction as a 16-bit integer; fault 6 beyond its range.
[[nodiscard]] inline std::int16_t toInteger16(double whole) {
    if (!(whole >= kLowestInteger16 && whole <= kHighestInteger16)) raiseBeyondInteger16(whole);
    return static_cast<std::int16_t>(whole);
}

// The largest integer not above the value, as a 16-bit integer; fault 6 beyond its range.
[[nodiscard]] inline std::int16_t floorInteger16(double value) {
    if (!(value >= kLowestInteger16 && value < kHighestInteger16 + 1)) raiseBeyondInteger16(value);
    const int towardsZero = static_cast<int>(value);
    return static_cast<std::int16_t>(towardsZero > value ? towardsZero - 1 : towardsZero);
}

// Rounded to the nearest integer, halves to the even neighbour, as a 16-bit or 32-bit integer;
// fault 6 beyond its range.
[[nodiscard]] inline std::int16_t roundedInteger16(double value) {
    return toInteger16(std::nearbyint(value));
}
[[nodiscard]] inline std::int32_t roundedInteger32(double value) {
    const double whole = std::nearbyint(value);
    if (!(whole >= -2147483648.0 && whole <= 2147483647.0)) raise(Fault::Overflow);
    return static_cast<std::int32_t>(whole);
}

// Rounded to a 32-bit float; fault 6 beyond its range.
[[nodiscard]] inline float toSingle(double value) {
    const auto single = static_cast<float>(value);
    if (!std::isfinite(single)) raise(Fault::Overflow);
    return single;
}

}  // namespace kelvo
