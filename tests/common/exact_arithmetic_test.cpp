#include "common/exact_arithmetic.h"

#include <gtest/gtest.h>

namespace kelvo {
namespace {

TEST(ExactArithmetic, ThisBuildComputesAsWritten) {
    volatile double big = 1e16;
    volatile double one = 1;
    EXPECT_TRUE(computesAsWritten(big, one));
}

}  // namespace
}  // namespace kelvo
