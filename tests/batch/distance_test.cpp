#include <gtest/gtest.h>

#include "support/batch_bench.h"

namespace kelvo {
namespace {

using testing::BatchBench;
using Lines = std::vector<std::string>;

const std::string kFourPoints =
    "TM A-1 400000 200000 0\n   인천부두끝 400100 200000 0\n   U2 400100 200100 0\n"
    "   East 400000 200300 0\n*\n";

class Distances : public ::testing::Test {
protected:
    // The lines after the tables of a run with the four points and these lines.
    Lines distances(const std::string& lines) {
        bench.run(kFourPoints + lines + "end\n\n");
        EXPECT_EQ(bench.fault, 0) << bench.faultText;
        const Lines out = bench.out();
        for (std::size_t i = 0; i < out.size(); ++i) {
            if (out[i] == "Distance Calculation") {
                return {out.begin() + static_cast<std::ptrdiff_t>(i) - 1, out.end()};
            }
        }
        return {};
    }

    BatchBench bench;
};

TEST_F(Distances, EachPairGetsALineBehindTheHeading) {
    EXPECT_EQ(distances("DIST  A-1  인천부두끝\n      A-1 U2\n"),
              (Lines{"", "Distance Calculation", "",
                     "From   A-1           To   인천부두끝    Direction ="
                     "       0-00-00.0000     Distance =    100.0000",
                     "From   A-1           To   U2            Direction ="
                     "      45-00-00.0014     Distance =    141.4214"}));
}

TEST_F(Distances, NamesMatchInAnyCase) {
    const Lines lines = distances("DIST a-1 u2\n");
    ASSERT_EQ(lines.size(), 4U);
    EXPECT_EQ(lines[3].substr(0, 45), "From   a-1           To   u2            Direc");
}

TEST_F(Distances, NamesInOtherAlphabetsMatchInAnyCaseToo) {
    bench.run("TM ａя 400000 200000 0\n   ωø 400100 200000 0\nDIST ＡЯ ΩØ\nend\n\n");
    EXPECT_FALSE(bench.outHolds("이 없습니다."));
    EXPECT_TRUE(bench.outHolds("Distance =    100.0000"));
}

TEST_F(Distances, TheHeadingIsWrittenAnewForEachBlock) {
    EXPECT_EQ(distances("DIST A-1 U2\nDIST A-1 U2\n").size(), 8U);
    EXPECT_EQ(bench.countOut("Distance Calculation"), 2);
    EXPECT_EQ(bench.countOut("WGS 타윈체 경위도 및 타원체고"), 1) << "the tables once";
}

TEST_F(Distances, TheDirectionIsNotBroughtIntoACircle) {
    const Lines lines = distances(
        "DIST A-1 East\n   East A-1\n   U2 인천부두끝\n   U2 A-1\n"
        "   인천부두끝 East\n   East U2\n");
    EXPECT_NE(lines[3].find("=      90-00-00.0028 "), std::string::npos) << lines[3];
    EXPECT_NE(lines[4].find("=     -90-00-00.0028 "), std::string::npos) << lines[4];
    EXPECT_NE(lines[5].find("=     -90-00-00.0028 "), std::string::npos) << lines[5];
    EXPECT_NE(lines[6].find("=     225-00-00.0014 "), std::string::npos) << lines[6];
    EXPECT_NE(lines[8].find("=     -63-26-"), std::string::npos) << lines[8];
}

TEST_F(Distances, TheSamePointTwiceIsZeroAndZero) {
    const Lines lines = distances("DIST A-1 a-1\n");
    EXPECT_EQ(lines[3],
              "From   A-1           To   a-1           Direction ="
              "       0-00-00.0000     Distance =      0.0000");
}

TEST_F(Distances, TheDirectionTakesTheFormOfTheOutput) {
    EXPECT_NE(distances("OUTPUT deg\nDIST A-1 U2\n")[3].find("=      45.0000003824     Dist"),
              std::string::npos);
}

TEST_F(Distances, EachMissingNameIsReportedFirstNameFirst) {
    EXPECT_EQ(distances("DIST x y\n   A-1 y\n   x A-1\n   U2 A-1\n"),
              (Lines{"", "Distance Calculation", "", "거리계산을 위한 점 x이 없습니다.",
                     "거리계산을 위한 점 y이 없습니다.", "거리계산을 위한 점 y이 없습니다.",
                     "거리계산을 위한 점 x이 없습니다.",
                     "From   U2            To   A-1           Direction ="
                     "     225-00-00.0014     Distance =    141.4214"}));
    EXPECT_TRUE(bench.messages.shown.empty());
}

TEST_F(Distances, AMissingSecondNameIsTheEmptyName) {
    EXPECT_EQ(distances("DIST A-1\n")[3], "거리계산을 위한 점 이 없습니다.");
    EXPECT_EQ(distances("DIST\n").size(), 5U) << "both are missing";
    bench.run("TM\n*\nTM a 3 4 5\n*\nDIST a\nend\n\n");
    EXPECT_TRUE(bench.outHolds("From   a             To                 Direction ="))
        << "a row with an empty name matches";
    EXPECT_TRUE(bench.outHolds("Distance =      5.0000"));
}

TEST_F(Distances, AFirstDistWithoutPointsWritesFiveEmptyTables) {
    bench.run("DIST a b\nend\n\n");
    for (int number = 1; number <= 5; ++number) EXPECT_TRUE(bench.table(number).empty());
    EXPECT_EQ(bench.countOut("WGS 타윈체 직교좌표 및 표고 (WGS 경위도 -> WGS 타원체 UTM)"), 1);
    EXPECT_EQ(bench.countOut("거리계산을 위한 점 a이 없습니다."), 1);
    EXPECT_EQ(bench.countOut("거리계산을 위한 점 b이 없습니다."), 1);
}

TEST_F(Distances, PointsBehindTheFirstDistAreFoundThoughNoTableShowsThem) {
    distances("DIST A-1 late\nTM late 400000 200500 0\n*\nDIST A-1 late\n");
    EXPECT_EQ(bench.countOut("거리계산을 위한 점 late이 없습니다."), 1);
    EXPECT_TRUE(bench.outHolds("Distance =    500.0000"));
    EXPECT_EQ(bench.table(1).size(), 4U);
    EXPECT_EQ(bench.countOut("WGS 타윈체 경위도 및 타원체고"), 1);
}

TEST_F(Distances, OfTwoRowsWithOneNameTheEarlierCounts) {
    bench.run("TM a 0 0 0\n   b 0 10 0\n   B 0 99 0\nDIST a B\nend\n\n");
    EXPECT_TRUE(bench.outHolds("Distance =     10.0000"));
}

TEST_F(Distances, PointsOfDifferentZonesAreSubtractedWithoutRegardToTheirOrigins) {
    bench.run("INPUT deg\nadd 0\nUGS a 38 127 0\n   b 38 129 0\nDIST a b\nend\n\n");
    EXPECT_TRUE(bench.outHolds("Distance =      0.0000"));
}

TEST_F(Distances, LongNamesAreCutInTheLineAndLookedUpWhole) {
    bench.run(
        "TM abcdefghijk 0 0 0\n   가나다라마바 3 4 0\n   abcdefghijX 9 9 0\n"
        "DIST abcdefghijk 가나다라마바\nend\n\n");
    EXPECT_TRUE(bench.outHolds("From   abcdefghij    To   가나다라마    Direction ="));
    EXPECT_TRUE(bench.outHolds("Distance =      5.0000"));
}

TEST_F(Distances, TheBlockEndsAsAPointBlockDoes) {
    EXPECT_EQ(distances("DIST A-1 U2\n     \n   A-1 U2\n").size(), 4U);
    EXPECT_EQ(distances("DIST A-1 U2\n  A-1 U2\n").size(), 4U);
    EXPECT_EQ(distances("DIST A-1 U2\n* x\n   A-1 U2\n").size(), 4U);
}

TEST_F(Distances, APairThatEndsTheFileIsStillTaken) {
    bench.run(kFourPoints + "DIST A-1 U2\n   U2 A-1");
    EXPECT_EQ(bench.fault, 0);
    EXPECT_TRUE(bench.outHolds("From   U2            To   A-1 "));
}

TEST_F(Distances, ALineBehindTheBlockIsDispatched) {
    bench.run(kFourPoints + "DIST A-1 U2\nTM z 1 2 3\nend\n\n");
    EXPECT_EQ(bench.points(), 5);
}

}  // namespace
}  // namespace kelvo
