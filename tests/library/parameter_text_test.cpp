#include "library/parameter_text.h"

#include <gtest/gtest.h>

#include <tuple>

#include "batch/run_defaults.h"
#include "library/bad_definition.h"

namespace kelvo {
namespace {

TransPara para(const std::string& text) {
    return parametersOf(text, "p").para;
}

// The line of the first thing wrong; -1 if nothing is.
long badLine(const std::string& text) {
    try {
        std::ignore = parametersOf(text, "p");
    } catch (const BadDefinition& bad) {
        return bad.line();
    }
    return -1;
}

TEST(ParameterText, WithoutLinesTheParametersAreThoseOfARunAsItBegins) {
    const TransPara usual = runDefaults();
    const TransPara read = para("");
    EXPECT_EQ(read.dX, usual.dX);
    EXPECT_EQ(read.Zone, usual.Zone);
    EXPECT_EQ(read.AddFlag, Flag::On);
    EXPECT_EQ(read.CorrFlag, Flag::Off);
}

TEST(ParameterText, LinesChangeParametersAsInARun) {
    const TransPara p = para(
        "* 설명\r\n\r\n7 para\n1 2 3\n4 5 6\n7\n1st 0.1,0.2,0.3\nzone 4\nadd 0\nutm "
        "123\nCORRECTION");
    EXPECT_EQ(p.dX, 1);
    EXPECT_EQ(p.Kappa, 6);
    EXPECT_EQ(p.dS, 7);
    EXPECT_EQ(p.dLam, 0.2);
    EXPECT_EQ(p.Lam0, 131);
    EXPECT_EQ(p.AddFlag, Flag::Off);
    EXPECT_EQ(p.ULam0, 123);
    EXPECT_EQ(p.CorrFlag, Flag::On);
}

TEST(ParameterText, BlocksOfAGridAreRead) {
    const TransPara p = para(
        "tm para\n6378137 298.257222101\n38 127.5\n600000 200000\n1\n"
        "UTM PARA\n6378137 298.257222101\n0 129\n0 500000\n0.9996\n");
    EXPECT_EQ(p.a, 6378137);
    EXPECT_EQ(p.X0, 600000);
    EXPECT_EQ(p.Zone, TmZone::User);
    EXPECT_EQ(p.US0, 0.9996);
    EXPECT_EQ(p.UZone, UtmZone::User);
}

class Refused : public testing::TestWithParam<std::pair<std::string, long>> {};

TEST_P(Refused, WithItsLine) {
    EXPECT_EQ(badLine(GetParam().first), GetParam().second) << GetParam().first;
}

INSTANTIATE_TEST_SUITE_P(
    ParameterText, Refused,
    testing::Values(std::pair("IN deg", 1), std::pair("add 1\nOUTPUT deg", 2),
                    std::pair("WGS a 37 127 0", 1), std::pair("UGS a 37 127 0", 1),
                    std::pair("TM a 1 2 3", 1), std::pair("UTM a 1 2 3", 1),
                    std::pair("*\n\nDIST a b", 3), std::pair("end", 1), std::pair("XYZ 1 2 3", 1),
                    std::pair("7 para\n1 2 3\n4 5 6", 1), std::pair("tm para\n6378137 298", 1),
                    std::pair("7 para\n1 2 3\n4 5x 6\n7", 3), std::pair("1st 1 zwei 3", 1),
                    std::pair("add an", 1), std::pair("zone 99999", 1), std::pair("zone x", 1),
                    std::pair("utm 117", 1), std::pair("tm para\n0 298\n38 127\n0 0\n1", 2),
                    std::pair("tm para\n6378137 -1\n38 127\n0 0\n1", 2),
                    std::pair("add 1\nutm para\n6378137 298\n38 127\n0 0\n0", 6),
                    std::pair("1st 1e999 0 0", 1)));

TEST(ParameterText, AMessageNamesTextLineAndReason) {
    try {
        std::ignore = parametersOf("add 1\nutm 117\n", "grid.txt");
        FAIL();
    } catch (const BadDefinition& bad) {
        EXPECT_TRUE(std::string(bad.what()).starts_with("grid.txt line 2: ")) << bad.what();
    }
}

}  // namespace
}  // namespace kelvo
