// Runs with the correction by known points: where it acts, and what a second header does.
#include <gtest/gtest.h>

#include <algorithm>

#include "support/batch_bench.h"

namespace kelvo {
namespace {

using testing::BatchBench;

const std::string kKnown =
    "k1 37.30 127.00 10 37.2950 127.0007 20 1\nk2 37.40 127.10 12 37.3950 127.1007 23 1\n"
    "k3 37.20 127.20 0 37.1950 127.2007 23 2\n*\n*\n";

class CorrectedRun : public ::testing::Test {
protected:
    CorrectedRun() { bench.known(kKnown); }
    int countDet(const std::string& text) const {
        const auto det = bench.det();
        return static_cast<int>(std::count_if(det.begin(), det.end(), [&](const auto& line) {
            return line.find(text) != std::string::npos;
        }));
    }

    BatchBench bench;
};

TEST_F(CorrectedRun, APointOnAKnownOneReproducesItsUserCoordinates) {
    bench.run("CORR\nWGS p 37.30 127.00 10\nend\n\n");
    ASSERT_EQ(bench.fault, 0) << bench.faultText;
    EXPECT_NEAR(bench.row(1).UserPhi, 37 + 29.0 / 60 + 50.0 / 3600, 1e-9);
    EXPECT_NEAR(bench.row(1).UserLam, 127 + 7.0 / 3600, 1e-9);
    EXPECT_NEAR(bench.row(1).UserH, 20, 1e-6);
}

TEST_F(CorrectedRun, ForwardItIsAddedToTheUserCoordinatesBackwardTakenFromTheWgsOnes) {
    const std::string points =
        "WGS w 37.32 127.02 10\n*\nUGS u 37.32 127.02 10\n*\nTM t 450000 210000 10\n*\n"
        "UTM m 4150000 330000 10\nend\n\n";
    bench.run(points);
    PointRec plain[5];
    for (int i = 1; i <= 4; ++i) plain[i] = bench.row(i);
    bench.run("CORR\n" + points);
    ASSERT_EQ(bench.fault, 0) << bench.faultText;
    const PointRec& forward = bench.row(1);
    EXPECT_NE(forward.CorrPhi, 0);
    EXPECT_NEAR(forward.UserPhi - plain[1].UserPhi, forward.CorrPhi, 1e-12);
    EXPECT_NEAR(forward.UserLam - plain[1].UserLam, forward.CorrLam, 1e-12);
    EXPECT_NEAR(forward.UserH - plain[1].UserH, forward.CorrH, 1e-9);
    EXPECT_EQ(forward.WgsPhi, plain[1].WgsPhi);
    for (int i = 2; i <= 4; ++i) {
        const PointRec& back = bench.row(i);
        EXPECT_NE(back.CorrPhi, 0) << i;
        EXPECT_NEAR(plain[i].WgsPhi - back.WgsPhi, back.CorrPhi, 1e-12) << i;
        EXPECT_NEAR(plain[i].WgsLam - back.WgsLam, back.CorrLam, 1e-12) << i;
        EXPECT_NEAR(plain[i].WgsH - back.WgsH, back.CorrH, 1e-9) << i;
        EXPECT_EQ(back.UserPhi, plain[i].UserPhi) << i;
        EXPECT_EQ(back.TmX, plain[i].TmX) << i;
    }
}

TEST_F(CorrectedRun, EachPointAddsARowBehindTheDetailBlock) {
    bench.run("CORR\nWGS 점1 37.30 127.00 10\n   점2 37.31 127.01 10\nend\n\n");
    const auto det = bench.det();
    ASSERT_GE(det.size(), 3U);
    EXPECT_EQ(det[det.size() - 3], "") << "the head of the rows ends with an empty line";
    EXPECT_EQ(det[det.size() - 2].rfind("점1                    ", 0), 0U);
    EXPECT_EQ(det[det.size() - 1].rfind("점2                    ", 0), 0U);
}

TEST_F(CorrectedRun, AParameterChangeGivesASecondHeaderAndASecondDetailBlock) {
    bench.run(
        "CORR\nWGS a 37.30 127.00 10\n*\n7 para\n100 -400 -600\n0 0 0\n0\n"
        "WGS b 37.30 127.00 10\nend\n\n");
    ASSERT_EQ(bench.fault, 0) << bench.faultText;
    EXPECT_EQ(bench.countOut("WGS -> GP 변환하는 파라미터"), 2);
    EXPECT_EQ(bench.countOut("     dx  =   100.000     dy  =  -400.000       dz  =  -600.000"), 1);
    EXPECT_EQ(countDet(" 상세한 보정치 자료 "), 2);
    const auto det = bench.det();
    const auto first = std::find_if(det.begin(), det.end(), [](const auto& line) {
        return line.substr(0, 11) == "a          ";
    });
    const auto second = std::find(first, det.end(), " 상세한 보정치 자료 ");
    EXPECT_NE(second, det.end()) << "behind the rows of the first block";
    // on the known point both parameter sets end at its user coordinates
    EXPECT_NEAR(bench.row(1).UserPhi, bench.row(2).UserPhi, 1e-9);
}

TEST_F(CorrectedRun, SwitchedOnBetweenBlocksItWorksOnWhatWasReadLast) {
    bench.run("WGS a 37.30 127.00 10\n*\nCORR\nWGS b 37.30 127.00 10\nend\n\n");
    EXPECT_EQ(bench.fault, 6) << "no new header, so no known point was ever read";
    EXPECT_EQ(bench.countOut("WGS -> GP 변환하는 파라미터"), 1);
}

TEST_F(CorrectedRun, SwitchedOffBetweenBlocksTheFollowingPointsAreNotCorrected) {
    bench.run("CORR\nWGS a 37.30 127.00 10\n*\nNO\nWGS b 37.30 127.00 10\nend\n\n");
    EXPECT_EQ(bench.fault, 0);
    EXPECT_NE(bench.row(1).CorrPhi, 0);
    EXPECT_EQ(bench.row(2).CorrPhi, 0);
    EXPECT_EQ(countDet("    L ="), 3 + 3 + 1);
}

TEST_F(CorrectedRun, TheLineOfThePointOutlivesTheReadingOfTheKnownPoints) {
    bench.run("CORR\nWGS 이름 37.32 127.02 10\nend\n\n");
    EXPECT_EQ(bench.row(1).name, "이름");
    EXPECT_EQ(bench.row(1).WgsH, 10);
}

TEST_F(CorrectedRun, ASecondRunOfOneProcessKeepsTheHeightMissOfASlot) {
    bench.known(
        "a 37.30 127.00 10 37.2950 127.0007 20 1\nb 37.40 127.10 0 37.3950 127.1007 23 1\n"
        "*\n*\n");
    bench.run("CORR\nWGS p 37.35 127.05 10\nend\n\n");
    const double alone = bench.row(1).CorrH;
    bench.known(kKnown);
    bench.run("CORR\nWGS p 37.35 127.05 10\nend\n\n");
    const double both = bench.row(1).CorrH;
    EXPECT_NE(alone, both);
    bench.known(
        "a 37.30 127.00 10 37.2950 127.0007 20 1\nb 37.40 127.10 0 37.3950 127.1007 23 1\n"
        "*\n*\n");
    bench.run("CORR\nWGS p 37.35 127.05 10\nend\n\n");
    EXPECT_NE(bench.row(1).CorrH, alone) << "slot 2 keeps what the run before measured";
    EXPECT_NEAR(bench.row(1).CorrH, both, 0.5);
}

TEST_F(CorrectedRun, ARunWithoutTheCorrectionEmptiesTheDetail) {
    bench.run("CORR\nWGS p 37.35 127.05 10\nend\n\n");
    EXPECT_FALSE(bench.det().empty());
    bench.run("WGS p 37.35 127.05 10\nend\n\n");
    EXPECT_TRUE(bench.det().empty());
    EXPECT_TRUE(bench.disk.has("/app/kelvo.det"));
    EXPECT_EQ(bench.state.known.CorrCount, 0);
}

TEST_F(CorrectedRun, TheWarningOfOutliersStopsNothing) {
    std::string known;
    for (int i = 10; i < 24; ++i) {
        known += "p" + std::to_string(i) + " 37.30 127." + std::to_string(i) + " 10 37.2950 127." +
                 std::to_string(i) + "07 20 1\n";
    }
    bench.known(known + "far 37.30 127.40 10 37.2900 127.4107 20 1\n*\n*\n");
    bench.run("CORR\nWGS p 37.35 127.05 10\nend\n\n");
    EXPECT_EQ(bench.fault, 0);
    EXPECT_EQ(countDet(" far 위도,  far 경도,  "), 1);
    EXPECT_TRUE(bench.messages.shown.empty());
    EXPECT_EQ(bench.table(1).size(), 1U);
}

}  // namespace
}  // namespace kelvo
