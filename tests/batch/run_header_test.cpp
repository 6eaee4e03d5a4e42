#include "batch/run_header.h"

#include <gtest/gtest.h>

#include "batch/report_bench.h"
#include "common/fixed_width.h"

namespace kelvo {
namespace {

using testing::ReportBench;
using Lines = std::vector<std::string>;

const std::string kOne = ReportBench::known("기지점", 10, 1.5, -0.25, "10", "60", "12.5");
const std::string kEndOfRun = "*\n*\n";

TEST(RunHeader, WithTheCorrectionOffThereAreTwentyThreeLinesAndNoDetail) {
    ReportBench bench;
    bench.para.CorrFlag = Flag::Off;
    EXPECT_EQ(bench.print(""), 0) << "the file of known points isn't opened";
    const Lines out = bench.lines("/out");
    ASSERT_EQ(out.size(), 23U);
    EXPECT_EQ(out[7], "    ");
    EXPECT_EQ(out[8], "기존점에 의한 2차 보정 - 보정 안함");
    EXPECT_EQ(bench.disk.bytes("/det"), "");
}

TEST(RunHeader, AFlagOtherThanZeroAndOneSaysNoAndCorrectsAllTheSame) {
    for (const int flag : {2, -1}) {
        ReportBench bench;
        bench.para.CorrFlag = Flag{static_cast<std::int16_t>(flag)};
        EXPECT_EQ(bench.print(kOne + kEndOfRun), 0);
        EXPECT_EQ(bench.lines("/out")[8], "기존점에 의한 2차 보정 - 보정 안함");
        EXPECT_EQ(bench.state.known.CorrCount, 1);
        EXPECT_NE(bench.disk.bytes("/det"), "");
    }
}

TEST(RunHeader, TheAddedSecondsStandOnlyForAFlagOfExactlyOne) {
    ReportBench bench;
    bench.para.CorrFlag = Flag::Off;
    EXPECT_EQ(bench.print(""), 0);
    EXPECT_EQ(bench.lines("/out")[15], " 경도에가산 =  10.405초");
    bench.para.AddFlag = kNotAdded;
    EXPECT_EQ(bench.print(""), 0);
    EXPECT_EQ(bench.lines("/out")[15], " 경도에가산 =   0.000초");
}

TEST(RunHeader, AnUnknownOutputFormLeavesItsLabelAlone) {
    ReportBench bench;
    bench.para.CorrFlag = Flag::Off;
    EXPECT_EQ(bench.print("", 7), 0);
    EXPECT_EQ(bench.lines("/out")[20], "각도출력형태 = ");
}

TEST(RunHeader, TheShiftIsLoadedWhetherOrNotTheCorrectionIsOn) {
    ReportBench bench;
    bench.para.CorrFlag = Flag::Off;
    bench.para.dX = 12.5;
    bench.para.Kind = ShiftKind::Bursa;
    EXPECT_EQ(bench.print(""), 0);
    EXPECT_EQ(bench.state.datum.shift.dX, 12.5);
    EXPECT_EQ(bench.state.datum.shift.Kind, ShiftKind::Bursa);
    EXPECT_EQ(bench.state.datum.geoid.bessel.rows[1].latitude, 34);
}

TEST(RunHeader, TheDetailBlockOfOnePointComesOutLineByLine) {
    ReportBench bench;
    ASSERT_EQ(bench.print(kOne + kEndOfRun, 3), 0);
    const Lines det = bench.lines("/det");
    ASSERT_EQ(det.size(), 22U);
    EXPECT_EQ(det[0], " ");
    EXPECT_EQ(det[1], " 상세한 보정치 자료 ");
    EXPECT_EQ(det[2], " ");
    EXPECT_EQ(det[3], " ");
    EXPECT_EQ(det[4],
              "위치명     좌표계                위도               경도            표고   ");
    EXPECT_EQ(det[5],
              "기지점     WGS               35-10-30.0000     127-10-30.0000      10.0000"
              " 가중치 =  12.50");
    EXPECT_EQ(det[6], "           사용자타원체      35-10-31.5000     127-10-29.7500      60.0000");
    EXPECT_EQ(det[7].substr(0, std::string("           계산치            35-10-30.0000").size()),
              "           계산치            35-10-30.0000");
    EXPECT_EQ(det[8].substr(0, std::string("           차이               0-00-01.5000"
                                           "      -0-00-00.2500")
                                   .size()),
              "           차이               0-00-01.5000      -0-00-00.2500");
    EXPECT_NE(det[8].find("    L ="), std::string::npos);
    EXPECT_EQ(det[9], " ");
    EXPECT_EQ(det[10], " ");
    EXPECT_EQ(det[11].substr(0, std::string("           합계        ").size()),
              "           합계        ");
    EXPECT_EQ(det[12].substr(0, std::string("           평균        ").size()),
              "           평균        ");
    EXPECT_EQ(det[13], " ");
    EXPECT_EQ(det[14], " ");
    EXPECT_EQ(det[15],
              "          평균편차            0-00-00.0000       0-00-00.0000       0.0000    L =  "
              "0.00000");
    EXPECT_EQ(det[16], " ");
    EXPECT_EQ(det[17], "");
    EXPECT_EQ(det[18], " 각 좌표점 별 보정량");
    EXPECT_EQ(det[19], "");
    EXPECT_EQ(
        det[20],
        "명칭                           위도보정량         경도보정량      표고보정      보정거리");
    EXPECT_EQ(det[21], "");
}

TEST(RunHeader, ANameOfFiveSyllablesFillsItsFieldAndASixthIsCut) {
    ReportBench bench;
    ASSERT_EQ(bench.print(ReportBench::known("가나다라마", 10, 1, 1, "1", "1", "1") +
                          ReportBench::known("가나다라마바", 20, 1, 1, "1", "1", "1") + kEndOfRun),
              0);
    const Lines det = bench.lines("/det");
    EXPECT_EQ(det[5].substr(0, std::string("가나다라마 WGS ").size()), "가나다라마 WGS ");
    EXPECT_EQ(det[10].substr(0, std::string("가나다라마 WGS ").size()), "가나다라마 WGS ");
}

TEST(RunHeader, TheLinesOfAllFormsAreOfOneWidth) {
    for (const int form : {1, 2, 3, 4}) {
        ReportBench bench;
        ASSERT_EQ(bench.print(kOne + kEndOfRun, form), 0);
        const Lines det = bench.lines("/det");
        // 10 for the name, 13 for the label, 19 + 19 + 13, and the length after them
        EXPECT_EQ(genSub::DisplayLen(det[6]), 74) << form;
        EXPECT_EQ(genSub::DisplayLen(det[8]), 74 + 7 + 9) << form;
        EXPECT_EQ(genSub::DisplayLen(det[11]), 74 + 7 + 9) << form;
    }
}

}  // namespace
}  // namespace kelvo
