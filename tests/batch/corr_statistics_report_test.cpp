#include "correction/corr_statistics.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "batch/report_bench.h"
#include "common/number_text.h"
#include "geodesy/angle_forms.h"

namespace kelvo {
namespace {

using testing::ReportBench;
using Lines = std::vector<std::string>;

const std::string kEndLine = "*\n*\n";
constexpr double kSecond = 1.0 / 3600;

class Statistics : public ::testing::Test {
protected:
    static std::string known(const std::string& name, int minute, double missPhi, double missLam,
                             const std::string& WgsH = "10", const std::string& UserH = "60",
                             const std::string& weight = "1") {
        return ReportBench::known(name, minute, missPhi, missLam, WgsH, UserH, weight);
    }
    // The two angles (form 1), the height and the length of a line of the block.
    struct Row {
        double Phi, Lam, h, L;
    };
    static Row rowOf(const std::string& line) {
        const std::size_t end = line.find("    L =");
        const std::string cells = line.substr(0, end);
        const std::size_t n = cells.size();
        return {leadingNumber(cells.substr(n - 51, 19)), leadingNumber(cells.substr(n - 32, 19)),
                leadingNumber(cells.substr(n - 13)),
                end == std::string::npos ? 0 : leadingNumber(line.substr(end + 7))};
    }
    Row row(const std::string& label) const { return rowOf(bench.detLine(label)); }
    double geoid(const CorrPoint& point) const {
        return KelvoSub::GeoidHeightBessel(bench.state.datum.geoid, point.WgsPhi, point.WgsLam);
    }
    const CorrPoint& point(std::size_t slot) const { return bench.state.known.CorrPoints[slot]; }

    ReportBench bench;
};

TEST_F(Statistics, AMissIsTheKnownPositionMinusTheComputedOne) {
    ASSERT_EQ(bench.print(known("a", 10, 2, -3) + kEndLine), 0);
    EXPECT_NEAR(point(1).DPhi, 2 * kSecond, 2e-10);
    EXPECT_NEAR(point(1).DLam, -3 * kSecond, 2e-10);
    // the orthometric height is the ellipsoidal one less the geoid
    EXPECT_NEAR(point(1).DH, 60 - (10 - geoid(point(1))), 1e-4);
}

TEST_F(Statistics, TheFirstAdjustmentCountsAsComputed) {
    bench.para.dPhi = 0.5;
    bench.para.dLam = -0.25;
    bench.para.dH = 1.5;
    ASSERT_EQ(bench.print(known("a", 10, 2, -3) + kEndLine), 0);
    EXPECT_NEAR(point(1).DPhi, 1.5 * kSecond, 2e-10);
    EXPECT_NEAR(point(1).DLam, -2.75 * kSecond, 2e-10);
    EXPECT_NEAR(point(1).DH, 60 - (10 - geoid(point(1)) + 1.5), 1e-3);
}

TEST_F(Statistics, SumsMeansAndDeviationsTakeEveryPoint) {
    ASSERT_EQ(
        bench.print(known("a", 10, 1, 4) + known("b", 20, 3, 4) + known("c", 30, 5, 10) + kEndLine),
        0);
    EXPECT_NEAR(row("합계").Phi, 9 * kSecond, 5e-10);
    EXPECT_NEAR(row("합계").Lam, 18 * kSecond, 5e-10);
    EXPECT_NEAR(row("평균 ").Phi, 3 * kSecond, 5e-10);
    EXPECT_NEAR(row("평균 ").Lam, 6 * kSecond, 5e-10);
    // population deviations of 1, 3, 5 and of 4, 4, 10
    EXPECT_NEAR(row("평균편차").Phi, std::sqrt(8.0 / 3) * kSecond, 5e-10);
    EXPECT_NEAR(row("평균편차").Lam, std::sqrt(8.0) * kSecond, 5e-10);
}

TEST_F(Statistics, LengthsAreMetresAtThePointAndTheirMean) {
    ASSERT_EQ(bench.print(known("a", 10, 3, 0) + known("b", 20, 0, 4) + kEndLine), 0);
    const auto atA = KelvoSub::ArcSecLen(point(1).WgsPhi, point(1).WgsLam);
    const auto atB = KelvoSub::ArcSecLen(point(2).WgsPhi, point(2).WgsLam);
    const double La = 3 * atA.MPhi;
    const double Lb = 4 * atB.MLam;
    EXPECT_NEAR(row("차이").L, La, 1e-4);
    EXPECT_NEAR(row("합계").L, La + Lb, 1e-4);
    EXPECT_NEAR(row("평균 ").L, (La + Lb) / 2, 1e-4);
}

TEST_F(Statistics, TheLengthOfTheDeviationIsTakenAtAFixedPlace) {
    ASSERT_EQ(bench.print(known("a", 10, 3, 0) + known("b", 20, -3, 8) + kEndLine), 0);
    // deviations of 3 and 4 seconds, at latitude 35 and longitude 127: 30.8136 and 25.3548 m
    const double L = std::sqrt(std::pow(3 * 30.8136, 2) + std::pow(4 * 25.3548, 2));
    EXPECT_NEAR(row("평균편차").L, L, 5e-4);
}

TEST_F(Statistics, TheDeviationOfHeightsIsSmallerByTheRootOfTwo) {
    ASSERT_EQ(bench.print(known("a", 10, 0, 0) + known("b", 20, 0, 0, "10", "64") + kEndLine), 0);
    const double plain = std::fabs(point(2).DH - point(1).DH) / 2;
    EXPECT_NEAR(plain, 2, 0.3);
    EXPECT_NEAR(row("평균편차").h, plain / std::sqrt(2.0), 1e-4);
    EXPECT_NEAR(row("평균 ").h, (point(1).DH + point(2).DH) / 2, 1e-4) << "by the first count";
}

TEST_F(Statistics, OnePointHasNoDeviationsAndIsNotFlagged) {
    ASSERT_EQ(bench.print(known("a", 10, 50, -50) + kEndLine), 0);
    EXPECT_EQ(row("평균편차").Phi, 0);
    EXPECT_EQ(row("평균편차").h, 0);
    EXPECT_EQ(bench.detLine("다음 보정점들에서"), "");
}

TEST_F(Statistics, TwoPointsAreNeverFlagged) {
    ASSERT_EQ(bench.print(known("a", 10, 29, -29) + known("b", 20, -29, 29) + kEndLine), 0);
    EXPECT_EQ(bench.detLine("다음 보정점들에서"), "");
}

TEST_F(Statistics, ElevenPointsAreTheFewestThatFlagOne) {
    // one of n apart is sqrt(n - 1) deviations from the mean
    std::string nine;
    for (int i = 0; i < 8; ++i) nine += known("p", 10 + i, 0, 0);
    ASSERT_EQ(bench.print(nine + known("far", 40, 20, 20) + kEndLine), 0);
    EXPECT_EQ(bench.detLine("다음 보정점들에서"), "");
    std::string eleven = nine + known("p", 50, 0, 0) + known("p", 51, 0, 0);
    ASSERT_EQ(bench.print(eleven + known("far", 40, 20, 0.5) + kEndLine), 0);
    EXPECT_EQ(bench.detLine("다음 보정점들에서"),
              " 다음 보정점들에서  3.0 배의 표준편차보다 큰 차이가 발견되었습니다. 체크후 다시 "
              "실행하십시오");
}

TEST_F(Statistics, TheWarningNamesLatitudeAndLongitudeSeparately) {
    std::string text;
    for (int i = 0; i < 14; ++i) text += known("p", 10 + i, 0, 0);
    ASSERT_EQ(bench.print(text + known("북", 40, 20, 0) + known("동", 41, 0, 20) + kEndLine), 0);
    const Lines det = bench.lines("/det");
    const auto at = std::find(det.begin(), det.end(), " 북 위도,  동 경도,  ");
    ASSERT_NE(at, det.end());
    EXPECT_EQ((at - 1)->substr(0, std::string(" 다음").size()), " 다음");
    EXPECT_EQ(*(at + 1), "");
    EXPECT_EQ(*(at + 2), "");
    EXPECT_EQ(*(at + 3), " 각 좌표점 별 보정량");
    EXPECT_TRUE(bench.messages.shown.empty());

    ASSERT_EQ(bench.print(text + known("둘", 40, 20, -20) + kEndLine), 0);
    EXPECT_NE(bench.detLine(" 둘 위도,  둘 경도,  "), "") << "one point may stand in it twice";
}

TEST_F(Statistics, HeightsAreNotTestedForOutliers) {
    std::string text;
    for (int i = 0; i < 14; ++i) text += known("p", 10 + i, i % 2, i % 2);
    ASSERT_EQ(bench.print(text + known("h", 40, 0, 0, "10", "9000") + kEndLine), 0);
    EXPECT_EQ(bench.detLine("다음 보정점들에서"), "");
}

TEST_F(Statistics, APointWithoutOneHeightCountsOnlyInLatitudeAndLongitude) {
    ASSERT_EQ(bench.print(known("a", 10, 1, 1) + known("b", 20, 3, 3, "0", "120") + kEndLine), 0);
    EXPECT_NEAR(row("합계").Phi, 4 * kSecond, 5e-10);
    EXPECT_NEAR(row("합계").h, point(1).DH, 1e-4);
    EXPECT_NEAR(row("평균 ").h, point(1).DH, 1e-4);
    EXPECT_EQ(point(2).DH, 0) << "as in the first run after the start";
    // the computed height stays the bare ellipsoidal one
    const Lines det = bench.lines("/det");
    EXPECT_NEAR(rowOf(det[12]).h, 0, 1e-4);
    EXPECT_LT(std::fabs(rowOf(det[7]).h - (10 - geoid(point(1)))), 1e-3);
}

TEST_F(Statistics, APointWithoutAHeightKeepsTheMissThatItsSlotHeld) {
    ASSERT_EQ(bench.print(known("a", 10, 1, 1) + known("b", 20, 3, 3, "10", "63") + kEndLine), 0);
    const double before = point(2).DH;
    EXPECT_NE(before, 0);
    ASSERT_EQ(bench.print(known("a", 10, 1, 1) + known("c", 20, 3, 3, "10", "0") + kEndLine), 0);
    EXPECT_EQ(point(2).DH, before);
}

TEST_F(Statistics, AnyOtherHeightHoweverSmallIsKnown) {
    ASSERT_EQ(bench.print(known("a", 10, 1, 1, "1e-300", "1e-300") + kEndLine), 0);
    EXPECT_NEAR(point(1).DH, geoid(point(1)), 1e-3);
}

TEST_F(Statistics, AWeightOfZeroStillEntersEveryStatistic) {
    ASSERT_EQ(bench.print(known("a", 10, 1, 1) + known("b", 20, 3, 3, "10", "60", "0") +
                          known("c", 30, 5, 5, "10", "60", "") + kEndLine),
              0);
    EXPECT_NEAR(row("평균 ").Phi, 3 * kSecond, 5e-10);
}

TEST_F(Statistics, WithoutAnyPointTheSumStandsBeforeTheFault) {
    EXPECT_EQ(bench.print("* only\n* comments\n"), 6);
    const Lines det = bench.lines("/det");
    ASSERT_EQ(det.size(), 7U);
    EXPECT_EQ(det[5], " ");
    EXPECT_NE(det[6].find(" 합계        "), std::string::npos);
}

TEST_F(Statistics, WithoutAnyHeightTheSumStandsBeforeTheFault) {
    EXPECT_EQ(bench.print(known("a", 10, 1, 1, "0", "0") + kEndLine), 6);
    const Lines det = bench.lines("/det");
    ASSERT_EQ(det.size(), 12U);
    EXPECT_NE(det.back().find(" 합계        "), std::string::npos);
}

}  // namespace
}  // namespace kelvo
