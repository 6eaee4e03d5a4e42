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

// What is said of the text, without its name.
std::string whyRefused(const std::string& text) {
    try {
        std::ignore = parametersOf(text, "p");
    } catch (const BadDefinition& bad) {
        return std::string(bad.what()).substr(2);
    }
    return "";
}

TEST(ParameterText, AMessageSaysWhatIsMissing) {
    EXPECT_EQ(whyRefused("1st 1 2"), "line 1: 값이 모자랍니다. 3개 있어야 합니다");
    EXPECT_EQ(whyRefused("1st"), "line 1: 값이 모자랍니다. 3개 있어야 합니다");
    EXPECT_EQ(whyRefused("zone"), "line 1: 값이 모자랍니다. 1개 있어야 합니다");
    EXPECT_EQ(whyRefused("add"), "line 1: 값이 모자랍니다. 1개 있어야 합니다");
    EXPECT_EQ(whyRefused("utm"), "line 1: 값이 모자랍니다. 1개 있어야 합니다");
    EXPECT_EQ(whyRefused("7 para\n1 2"), "line 2: 값이 모자랍니다. 3개 있어야 합니다");
    EXPECT_EQ(whyRefused("7 para\n1 2 3\n4 5"), "line 3: 값이 모자랍니다. 3개 있어야 합니다");
    EXPECT_EQ(whyRefused("tm para\n6378137"), "line 2: 값이 모자랍니다. 2개 있어야 합니다");
    EXPECT_EQ(whyRefused("\n7 para\n1 2 3\n4 5 6"),
              "line 2: 파라미터가 끝까지 있지 않습니다. 이 줄 다음에 3줄이 있어야 합니다");
    EXPECT_EQ(whyRefused("utm para"),
              "line 1: 파라미터가 끝까지 있지 않습니다. 이 줄 다음에 4줄이 있어야 합니다");
}

TEST(ParameterText, AMessageHoldsNoMoreThanFortyBytesOfALine) {
    const std::string forty(40, 'x');
    EXPECT_EQ(whyRefused(forty), "line 1: 알 수 없는 줄입니다 (" + forty + ")");
    EXPECT_EQ(whyRefused(forty + "y"), "line 1: 알 수 없는 줄입니다 (" + forty + ")");
    const std::string point = "TM" + std::string(38, 'x');
    const std::string only = "line 1: 여기에는 파라미터를 바꾸는 줄만 쓸 수 있습니다 (";
    EXPECT_EQ(whyRefused(point + " 1 2 3"), only + point + ")");
    EXPECT_EQ(whyRefused(point + "y 1 2 3"), only + point + ")");
    for (const std::string word : {"IN", "OUT", "TM", "WGS", "UGS", "DIST", "end"})
        EXPECT_EQ(whyRefused(word + " 1 2 3"), only + word + ")");
}

TEST(ParameterText, ALineOfUtmWithACoordinateIsAPoint) {
    const std::string point = "line 1: 여기에는 파라미터를 바꾸는 줄만 쓸 수 있습니다 (utm)";
    EXPECT_EQ(whyRefused("utm 123 5"), point);
    EXPECT_EQ(whyRefused("utm 123 0 5"), point);
    EXPECT_EQ(whyRefused("utm 123 5 0"), point);
    EXPECT_EQ(para("utm 123 0 0").ULam0, 123);
    EXPECT_EQ(para("utm 129").ULam0, 129);
    EXPECT_EQ(whyRefused("utm 117"), "line 1: UTM 원점은 123 또는 129입니다 (117)");
}

TEST(ParameterText, AnEllipsoidAndAScaleAreAboveZero) {
    const std::string ellipsoid = "타원체의 장반경과 편평도는 0보다 커야 합니다";
    const std::string scale = "축척계수는 0보다 커야 합니다";
    for (const std::string grid : {"tm", "utm"}) {
        EXPECT_EQ(whyRefused(grid + " para\n0 298\n38 127\n0 0\n1"), "line 2: " + ellipsoid);
        EXPECT_EQ(whyRefused(grid + " para\n6378137 0\n38 127\n0 0\n1"), "line 2: " + ellipsoid);
        EXPECT_EQ(whyRefused("\n" + grid + " para\n6378137 298\n38 127\n0 0\n0"),
                  "line 6: " + scale);
        EXPECT_EQ(whyRefused(grid + " para\n0.5 0.5\n38 127\n0 0\n0.5"), "");
    }
    // A scale that was set before the block doesn't excuse the ellipsoid, nor the other way.
    EXPECT_EQ(whyRefused("tm para\n0 0\n38 127\n0 0\n0"), "line 2: " + ellipsoid);
}

TEST(ParameterText, LinesEndWithCrLfWithLfOrWithCr) {
    EXPECT_EQ(badLine("add 1\r\nXYZ"), 2);
    EXPECT_EQ(badLine("add 1\nXYZ"), 2);
    EXPECT_EQ(badLine("add 1\rXYZ"), 2);
    EXPECT_EQ(badLine("add 1\n\rXYZ"), 3);
    EXPECT_EQ(badLine("add 1\n\nXYZ"), 3);
    EXPECT_EQ(para("add 0\rutm 123\n").ULam0, 123);
}

TEST(ParameterText, WhatFollowsTheKeyOfABlockDoesNotMatter) {
    EXPECT_EQ(para("7 para of 1985\n1 2 3\n4 5 6\n7").dX, 1);
}

TEST(ParameterText, TheLineThatSwitchedTheCorrectionOnIsKnown) {
    EXPECT_EQ(parametersOf("add 1", "p").correctionLine, 0);
    EXPECT_EQ(parametersOf("\nCORRECTION\nadd 0\n", "p").correctionLine, 2);
    EXPECT_EQ(parametersOf("CORRECTION\n\nCORRECTION", "p").correctionLine, 3);
}

TEST(ParameterText, AZoneBeyondSixteenBitsIsRefused) {
    EXPECT_EQ(badLine("zone 32767"), -1);
    EXPECT_EQ(badLine("zone 32768"), 1);
}

}  // namespace
}  // namespace kelvo
