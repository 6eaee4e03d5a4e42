// Whether this build computes as the formulas are written. Each last digit, and every test for an
// infinity, rests on it; flags such as -ffast-math or -funsafe-math-optimizations take it away.
//
// Where the compiler says that such a flag is on, exact_arithmetic.cpp doesn't compile. clang keeps
// silent on some of them; those show in what is computed.
#pragma once

namespace kelvo {

// Sums are taken in the order written, products aren't fused with sums, and infinities and
// not-a-numbers are known. `big` is 1e16 and `one` is 1; given from outside, so that no compiler
// computes the answer beforehand.
[[nodiscard]] bool computesAsWritten(double big, double one);

}  // namespace kelvo
