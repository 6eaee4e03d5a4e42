// With what parameters a run begins.
#include "batch/run_defaults.h"

#include <gtest/gtest.h>

namespace kelvo {
namespace {

TEST(RunDefaults, AreBesselTheCentralOriginAndTheRecommendedShift) {
    const TransPara para = runDefaults();
    EXPECT_EQ(para.dX, 115.8);
    EXPECT_EQ(para.dY, -474.99);
    EXPECT_EQ(para.dZ, -674.11);
    EXPECT_EQ(para.Omega, 1.16);
    EXPECT_EQ(para.Phi, -2.31);
    EXPECT_EQ(para.Kappa, -1.63);
    EXPECT_EQ(para.dS, -6.43);
    EXPECT_EQ(para.Kind, ShiftKind::Molodensky);
    for (const double none : {para.dPhi, para.dLam, para.dH}) EXPECT_EQ(none, 0);
    EXPECT_EQ(para.a, 6377397.155);
    EXPECT_EQ(para.f, 299.1528128);
    EXPECT_EQ(para.AddFlag, Flag::On);
    EXPECT_EQ(para.CorrFlag, Flag::Off);
}

TEST(RunDefaults, HaveTheOriginsInTheMiddleOfTheCountry) {
    const TransPara para = runDefaults();
    EXPECT_EQ(para.Zone, TmZone::Centre);
    EXPECT_EQ(para.Phi0, 38);
    EXPECT_EQ(para.Lam0, 127);
    EXPECT_EQ(para.X0, 500000);
    EXPECT_EQ(para.Y0, 200000);
    EXPECT_EQ(para.S0, 1);
    EXPECT_EQ(para.Ua, 6377397.155);
    EXPECT_EQ(para.Uf, 299.1528128);
    EXPECT_EQ(para.UZone, UtmZone::East);
    EXPECT_EQ(para.UPhi0, 0);
    EXPECT_EQ(para.ULam0, 129);
    EXPECT_EQ(para.UX0, 0);
    EXPECT_EQ(para.UY0, 500000);
    EXPECT_EQ(para.US0, 0.9996);
}

}  // namespace
}  // namespace kelvo
