#include "common/checked_arithmetic.h"

#include <gtest/gtest.h>

#include <limits>

#include "support/faults.h"

namespace kelvo {
namespace {

using testing::faultOf;

constexpr double kInfinity = std::numeric_limits<double>::infinity();

TEST(CheckedArithmetic, DivisionFaultsByTheOperands) {
    EXPECT_EQ(quotient(1, 4), 0.25);
    EXPECT_EQ(faultOf([] { return quotient(1, 0); }), 11);
    EXPECT_EQ(faultOf([] { return quotient(0, 0); }), 6);
    EXPECT_EQ(faultOf([] { return quotient(1, kInfinity); }), 6);
    EXPECT_EQ(faultOf([] { return quotient(1e300, 1e-300); }), 6);
}

TEST(CheckedArithmetic, ARootOfANegativeNumberIsAnInvalidCall) {
    EXPECT_EQ(squareRoot(2.25), 1.5);
    EXPECT_EQ(faultOf([] { return squareRoot(-1e-300); }), 5);
    EXPECT_EQ(faultOf([] { return squareRoot(kInfinity); }), 6);
}

TEST(CheckedArithmetic, IntegersHaveSixteenBits) {
    EXPECT_EQ(roundedInteger16(2.5), 2);
    EXPECT_EQ(roundedInteger16(-32768.5), -32768);
    EXPECT_EQ(faultOf([] { return roundedInteger16(32767.5); }), 6);
    EXPECT_EQ(faultOf([] { return toInteger16(1e10); }), 6);
    EXPECT_EQ(faultOf([] { return toInteger16(std::numeric_limits<double>::quiet_NaN()); }), 6);
    EXPECT_EQ(roundedInteger32(3.5), 4);
    EXPECT_EQ(faultOf([] { return roundedInteger32(2147483647.5); }), 6);
}

TEST(CheckedArithmetic, ASingleOverflowsAboveItsRange) {
    EXPECT_EQ(toSingle(0.1), 0.1F);
    EXPECT_EQ(toSingle(1e-60), 0.0F);
    EXPECT_EQ(faultOf([] { return toSingle(3.5e38); }), 6);
}

TEST(RuntimeFault, CarriesNumberTextAndPlace) {
    RuntimeFault fault(Fault::InputPastEnd, "끝");
    fault.addPlace("a.dat");
    EXPECT_EQ(fault.number(), 62);
    EXPECT_EQ(fault.text(), "a.dat: 끝");
    EXPECT_STREQ(fault.what(), "a.dat: 끝");
}

TEST(RuntimeFault, WithoutATextSaysThePlainSentence) {
    try {
        raise(Fault::DiskFull);
        FAIL();
    } catch (const RuntimeFault& fault) {
        EXPECT_EQ(fault.number(), 61);
        EXPECT_EQ(fault.text(), faultSentence(Fault::DiskFull));
        EXPECT_FALSE(fault.text().empty());
    }
}

}  // namespace
}  // namespace kelvo
