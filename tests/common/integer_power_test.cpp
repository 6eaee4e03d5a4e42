#include "common/integer_power.h"

#include <gtest/gtest.h>

#include <random>

namespace kelvo {
namespace {

TEST(Powers, AreThoseOfTheNumberFromTheZerothOn) {
    const Powers<4> of3(3);
    EXPECT_EQ(of3(0), 1);
    EXPECT_EQ(of3(1), 3);
    EXPECT_EQ(of3(2), 9);
    EXPECT_EQ(of3(3), 27);
    EXPECT_EQ(of3(4), 81);
    const Powers<3> ofNothing(0);
    EXPECT_EQ(ofNothing(0), 1);
    EXPECT_EQ(ofNothing(3), 0);
}

// With 64 bits of precision a product loses less than the last place shown here.
TEST(Powers, AreTheDoublesNearestToTheTruePowers) {
    std::mt19937_64 random(11);
    std::uniform_real_distribution<double> number(-2, 2);
    for (int i = 0; i < 10000; ++i) {
        const double x = number(random);
        const Powers<8> p(x);
        long double exact = x;
        for (int k = 2; k <= 8; ++k) {
            exact *= x;
            const double slack = 4.0 * static_cast<double>(k) * 0x1p-64;
            EXPECT_LE(std::abs(static_cast<double>((p(k) - exact) / exact)), 0x1p-53 + slack) << x;
        }
    }
}

TEST(Powers, GoOnToTheLargestDoubleThoughTheSplittingOverflows) {
    const Powers<2> large(1e154);
    EXPECT_DOUBLE_EQ(large(2), 1e308);
    const Powers<1> largest(1e308);
    EXPECT_EQ(largest(1), 1e308);
    EXPECT_TRUE(std::isinf(Powers<2>(1e200)(2)));
}

TEST(ExactProduct, IsTheRoundedProductAndWhatTheRoundingLost) {
    // (2^30 + 1)^2 = 2^60 + 2^31 + 1: the last 1 doesn't fit into 53 bits.
    const DoublePair product = exactProduct(1073741825.0, 1073741825.0);
    EXPECT_EQ(product.high, 0x1p60 + 0x1p31);
    EXPECT_EQ(product.low, 1.0);
}

}  // namespace
}  // namespace kelvo
