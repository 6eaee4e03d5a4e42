#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <random>

#include "common/fixed_width.h"
#include "common/number_text.h"
#include "reference/fixed_width.h"
#include "support/case_count.h"

namespace kelvo {
namespace {

struct Mask {
    int width;
    int decimals;
};
constexpr Mask kMasks[] = {{8, 4}, {12, 6}, {8, 10}, {4, 10}, {2, 0}, {2, 4}, {3, 5}, {5, 3},
                           {7, 1}, {7, 4},  {3, 8},  {4, 2},  {2, 1}, {2, 6}, {3, 3}};

void expectSameText(double value, Mask mask) {
    ASSERT_EQ(genSub::FormatNum(value, mask.width, mask.decimals),
              reference::FormatNum(value, mask.width, mask.decimals))
        << std::hexfloat << value << " in " << mask.width << "." << mask.decimals;
    std::string bare = "x";
    genSub::appendBareNum(bare, value, mask.width, mask.decimals);
    std::string expected = reference::FormatNum(value, mask.width, mask.decimals);
    expected.erase(0, expected.find_first_not_of(' '));
    ASSERT_EQ(bare, "x" + expected)
        << std::hexfloat << value << " bare in " << mask.width << "." << mask.decimals;
}

TEST(FormatNumReference, NumbersOfEveryMagnitudeGiveTheSameText) {
    std::mt19937_64 random(20040607);
    std::uniform_real_distribution<double> magnitude(-14, 17);
    std::uniform_real_distribution<double> mantissa(-10, 10);
    for (int i = 0; i < testing::caseCount(60000); ++i) {
        const double value = mantissa(random) * std::pow(10.0, std::floor(magnitude(random)));
        for (const Mask mask : kMasks) expectSameText(value, mask);
    }
}

TEST(FormatNumReference, TiesOfTheDecimalTextGiveTheSameText) {
    std::mt19937_64 random(7);
    std::uniform_int_distribution<long long> digits(-999999999, 999999999);
    for (int i = 0; i < testing::caseCount(60000); ++i) {
        const auto odd = static_cast<double>(digits(random) * 10 + 5);
        for (const Mask mask : kMasks) {
            // five after the last place shown
            expectSameText(odd / std::pow(10.0, mask.decimals + 1), mask);
        }
    }
}

TEST(FormatNumReference, EveryBitPatternOfAFiniteNumberGivesTheSameText) {
    std::mt19937_64 random(1);
    int tried = 0;
    while (tried < testing::caseCount(20000)) {
        const std::uint64_t bits = random();
        double value = 0;
        static_assert(sizeof bits == sizeof value);
        std::memcpy(&value, &bits, sizeof value);
        if (!std::isfinite(value)) continue;
        ++tried;
        expectSameText(value, {8, 4});
        expectSameText(value, {3, 0});
    }
}

TEST(Decimal15, OfZeroAndOfWhatIsNoNumberHasNoDigits) {
    for (const double value :
         {0.0, -0.0, std::numeric_limits<double>::infinity(),
          -std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN()}) {
        const Decimal15 read = decimal15(value);
        EXPECT_EQ(read.digits, 0U) << value;
        EXPECT_EQ(read.exponent, 0) << value;
        EXPECT_FALSE(read.negative) << value;
    }
}

TEST(Decimal15, HasTheDigitsOfTheExactBinaryValue) {
    std::mt19937_64 random(15);
    std::uniform_real_distribution<double> magnitude(-300, 300);
    std::uniform_real_distribution<double> mantissa(-10, 10);
    for (int i = 0; i < testing::caseCount(100000); ++i) {
        const double value = i % 2 == 0 ? mantissa(random) * std::pow(10.0, i % 17)
                                        : mantissa(random) * std::pow(10.0, magnitude(random));
        if (value == 0) continue;
        char text[64];
        std::snprintf(text, sizeof text, "%.14e", std::fabs(value));
        const Decimal15 read = decimal15(value);
        char again[64];
        const auto digits = static_cast<unsigned long long>(read.digits);
        std::snprintf(again, sizeof again, "%llu.%014llue%c%02d", digits / 100000000000000ULL,
                      digits % 100000000000000ULL, read.exponent < 0 ? '-' : '+',
                      std::abs(read.exponent));
        ASSERT_STREQ(again, text);
        ASSERT_EQ(read.negative, value < 0);
    }
}

}  // namespace
}  // namespace kelvo
