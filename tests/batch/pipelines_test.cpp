#include <gtest/gtest.h>

#include <cstdio>

#include "geodesy/geoid.h"
#include "geodesy/transverse_mercator.h"
#include "support/batch_bench.h"

namespace kelvo {
namespace {

using testing::BatchBench;

constexpr Ellipsoid kUserBessel{6377397.155, 299.1528128};
constexpr double kAddedSeconds = 10.405 / 3600;

class Pipelines : public ::testing::Test {
protected:
    Position fromTm(const PointRec& row, double Lam0) {
        return KelvoSub::TMToGeo(row.TmX, row.TmY, kUserBessel, {500000, 200000, 38, Lam0, 1})
            .value;
    }
    double geoid(const PointRec& row) {
        return KelvoSub::GeoidHeightBessel(bench.state.datum.geoid, row.UserPhi, row.UserLam);
    }

    BatchBench bench;
};

TEST_F(Pipelines, ABlockCrossing128DegreesPutsEachRowOnItsOwnOrigin) {
    bench.run(
        "INPUT deg\nUGS a 37.5 128.0 5\n    b 37.5 128.0000001 5\n    c 37.5 126 5\n"
        "    d 37.5 125.9999999 5\n    e 37.5 130.5 5\nend\n\n");
    const double origins[] = {127, 129, 127, 125, 131};
    for (int i = 1; i <= 5; ++i) {
        const double origin = origins[i - 1] + kAddedSeconds;
        EXPECT_NEAR(fromTm(bench.row(i), origin).Lam, bench.row(i).UserLam, 1e-9) << i;
    }
}

TEST_F(Pipelines, ZoneFiveStaysForAllPoints) {
    bench.run("INPUT deg\nzone 5\nUGS a 37.5 125 5\n   b 37.5 131 5\nend\n\n");
    EXPECT_LT(bench.row(1).TmY, 50000);
    EXPECT_GT(bench.row(2).TmY, 500000);
}

TEST_F(Pipelines, TmParaStaysForAllPoints) {
    bench.run(
        "INPUT deg\nadd 0\ntm para\n6377397.155 299.1528128\n38 124\n500000 200000\n1\n"
        "UGS a 38 124 5\n   b 38 131 5\nend\n\n");
    EXPECT_NEAR(bench.row(1).TmY, 200000, 1e-6);
    EXPECT_GT(bench.row(2).TmY, 700000);
}

TEST_F(Pipelines, AUserUtmOriginHoldsOnlyUntilTheFirstPointChoosesByLongitude) {
    const std::string head =
        "INPUT deg\nutm para\n6377397.155 299.1528128\n0 117\n0 500000\n0.9996\n";
    bench.run(head + "UTM a 4000000 500000 1\nend\n\n");
    EXPECT_NEAR(bench.row(1).UserLam, 117, 1e-9) << "a UTM block in front reads with it";
    bench.run(head + "WGS w 37.5 127.2 1\n*\nUTM a 4000000 500000 1\nend\n\n");
    EXPECT_NEAR(bench.row(2).UserLam, 129, 1e-9);
    bench.run(head + "WGS w 37.5 125.2 1\n*\nUTM a 4000000 500000 1\nend\n\n");
    EXPECT_NEAR(bench.row(2).UserLam, 123, 1e-9);
}

TEST_F(Pipelines, ATmBlockIsReadWithTheOriginOfThePointBefore) {
    bench.run(
        "INPUT deg\nadd 0\nTM a 400000 200000 1\n*\nUGS b 37.5 129.5 1\n*\n"
        "TM c 400000 200000 1\nend\n\n");
    EXPECT_NEAR(bench.row(1).UserLam, 127, 1e-10);
    EXPECT_NEAR(bench.row(3).UserLam, 129, 1e-10);
}

TEST_F(Pipelines, ACommentInsideABlockEndsIt) {
    bench.run(
        "WGS a 37.3 127 1\n* remark\n   b 37.3 127 1\n   c 37.3 127 1\nWGS d 37 127 1\n"
        "end\n\n");
    EXPECT_EQ(bench.points(), 2);
    EXPECT_EQ(bench.row(2).name, "d");
}

TEST_F(Pipelines, ABlankLineInsideABlockEndsIt) {
    bench.run("WGS a 37.3 127 1\n\n   b 37.3 127 1\nend\n\n");
    EXPECT_EQ(bench.points(), 1);
}

TEST_F(Pipelines, ALineOfBlanksEndsABlock) {
    bench.run("WGS a 37.3 127 1\n     \n   b 37.3 127 1\nend\n\n");
    EXPECT_EQ(bench.points(), 1);
    bench.run("WGS a 37.3 127 1\n   ,,\n   b 37.3 127 1\nend\n\n");
    EXPECT_EQ(bench.points(), 1);
}

TEST_F(Pipelines, FewerThanThreeBlanksOrATabEndABlock) {
    bench.run("WGS a 37.3 127 1\n  b 37.3 127 1\nend\n\n");
    EXPECT_EQ(bench.points(), 1);
    bench.run("WGS a 37.3 127 1\n\tb 37.3 127 1\nend\n\n");
    EXPECT_EQ(bench.points(), 1);
    bench.run("WGS a 37.3 127 1\n   \tb 37.3 127 1\nend\n\n");
    EXPECT_EQ(bench.points(), 2);
}

TEST_F(Pipelines, AContinuationLineMayHoldAKeywordAsItsName) {
    bench.run("WGS a 37.3 127 1\n   end 37.3 127 1\nend\n\n");
    EXPECT_EQ(bench.points(), 2);
    EXPECT_EQ(bench.row(2).name, "end");
}

TEST_F(Pipelines, ABareKeywordMakesARowOfZeros) {
    bench.run("UGS\nend\n\n");
    ASSERT_EQ(bench.points(), 1);
    EXPECT_EQ(bench.row(1).name, "");
    EXPECT_EQ(bench.row(1).UserPhi, 0);
    EXPECT_EQ(bench.row(1).UserH, 0);
}

TEST_F(Pipelines, TextInANumberFieldReadsByTheNumberRule) {
    bench.run("INPUT deg\nWGS a 37.5x 1.2D2 abc\nend\n\n");
    EXPECT_EQ(bench.row(1).WgsPhi, 37.5);
    EXPECT_EQ(bench.row(1).WgsLam, 120);
    EXPECT_EQ(bench.row(1).WgsH, 0);
}

TEST_F(Pipelines, TheAddedSecondsMoveOnlyTheTmGrid) {
    bench.run("INPUT deg\nadd 1\nUGS a 37.5 127.5 5\nend\n\n");
    const PointRec with = bench.row(1);
    bench.run("INPUT deg\nadd 0\nUGS a 37.5 127.5 5\nend\n\n");
    const PointRec& without = bench.row(1);
    // 10.405 seconds of longitude at 37.5 degrees are some 255 m
    EXPECT_NEAR(without.TmY - with.TmY, 255.5, 0.5);
    EXPECT_EQ(with.UtmX, without.UtmX);
    EXPECT_EQ(with.UtmY, without.UtmY);
    EXPECT_EQ(with.WgsUtmY, without.WgsUtmY);
    EXPECT_EQ(with.WgsPhi, without.WgsPhi);
}

TEST_F(Pipelines, HeightsOfAWgsPointGoThroughTheGeoidAtTheUserPosition) {
    bench.run(
        "INPUT deg\n7 para\n0 0 0\n0 0 0\n0\ntm para\n6378137 298.257223563\n38 127\n"
        "500000 200000\n1\n1st 0 0 2.5\nWGS a 35 127.5 80\nend\n\n");
    const PointRec& row = bench.row(1);
    EXPECT_NEAR(row.UserH, 80 - geoid(row) + 2.5, 1e-4);
    EXPECT_EQ(row.TmH, row.UserH);
    EXPECT_EQ(row.UtmH, row.UserH);
    EXPECT_EQ(row.WgsUtmH, row.TmH);
}

TEST_F(Pipelines, BackwardTheAdjustmentIsTakenFromTheWgsCoordinates) {
    bench.run("INPUT deg\nUGS a 37.5 127.5 5\n*\n1st 36 -72 2\nUGS b 37.5 127.5 5\nend\n\n");
    EXPECT_NEAR(bench.row(1).WgsPhi - bench.row(2).WgsPhi, 0.01, 1e-12);
    EXPECT_NEAR(bench.row(1).WgsLam - bench.row(2).WgsLam, -0.02, 1e-12);
    EXPECT_NEAR(bench.row(1).WgsH - bench.row(2).WgsH, 2, 1e-9);
    EXPECT_EQ(bench.row(2).UserPhi, 37.5);
    EXPECT_EQ(bench.row(2).UserLam, 127.5);
    EXPECT_EQ(bench.row(2).UserH, 5);
    EXPECT_EQ(bench.row(2).TmX, bench.row(1).TmX);
}

TEST_F(Pipelines, EachSystemKeepsTheCoordinatesOfItsLine) {
    bench.run(
        "INPUT deg\nTM t 400000.125 210000.25 7.5\n*\nUTM u 4100000.5 450000.75 8.5\n"
        "end\n\n");
    const PointRec& tm = bench.row(1);
    EXPECT_EQ(tm.TmX, 400000.125);
    EXPECT_EQ(tm.TmY, 210000.25);
    EXPECT_EQ(tm.TmH, 7.5);
    EXPECT_EQ(tm.UserH, 7.5);
    EXPECT_EQ(tm.UtmH, 7.5);
    const PointRec& utm = bench.row(2);
    EXPECT_EQ(utm.UtmX, 4100000.5);
    EXPECT_EQ(utm.UtmY, 450000.75);
    EXPECT_EQ(utm.UtmH, 8.5);
    EXPECT_EQ(utm.UserH, 8.5);
    EXPECT_EQ(utm.TmH, 0) << "never written";
}

TEST_F(Pipelines, AllFourSystemsOfAPointAgree) {
    bench.run("INPUT deg\nWGS w 36.4 127.3 100\nend\n\n");
    const PointRec first = bench.row(1);
    char line[256];
    std::snprintf(line, sizeof line,
                  "INPUT deg\nUGS u %.12f %.12f %.6f\n*\nTM t %.6f %.6f %.6f\n*\n"
                  "UTM m %.6f %.6f %.6f\nend\n\n",
                  first.UserPhi, first.UserLam, first.UserH, first.TmX, first.TmY, first.TmH,
                  first.UtmX, first.UtmY, first.UtmH);
    bench.run(line);
    for (int i = 1; i <= 3; ++i) {
        // the shifts there and back are no exact inverses of each other
        EXPECT_NEAR(bench.row(i).WgsPhi, first.WgsPhi, 1e-7) << i;
        EXPECT_NEAR(bench.row(i).WgsLam, first.WgsLam, 1e-7) << i;
        EXPECT_NEAR(bench.row(i).WgsH, first.WgsH, 0.05) << i;
        EXPECT_NEAR(bench.row(i).TmX, first.TmX, 1e-4) << i;
        EXPECT_NEAR(bench.row(i).UtmY, first.UtmY, 1e-4) << i;
    }
}

TEST_F(Pipelines, ARunAlwaysUsesTheMolodenskyShiftOfItsDefaults) {
    bench.run(
        "INPUT deg\n7 para\n0 0 0\n0 0 0\n500000\ntm para\n6378137 298.257223563\n38 127\n"
        "5 2\n1\nWGS a 35 127.5 0\nend\n\n");
    // with the other kind half the earth's radius would be added to the height
    EXPECT_NEAR(bench.row(1).UserH, -geoid(bench.row(1)), 1e-3);
}

TEST_F(Pipelines, AUtmRowShowsTheHeightThatItsRowHeldBefore) {
    bench.run("INPUT deg\nTM a 400000 210000 77.25\n   b 400000 210000 88.5\nend\n\n");
    bench.run("UTM u 4100000 450000 1\n   v 4100000 450000 2\n   w 4100000 450000 3\nend\n\n");
    EXPECT_EQ(bench.row(1).TmH, 77.25);
    EXPECT_EQ(bench.row(2).TmH, 88.5);
    EXPECT_EQ(bench.row(3).TmH, 0);
    ASSERT_EQ(bench.table(3).size(), 3U);
    EXPECT_EQ(bench.table(3)[0].substr(48), "      77.2500");
    EXPECT_EQ(bench.table(4)[0].substr(48), "       1.0000");
    EXPECT_EQ(bench.table(5)[1].substr(48), "      88.5000");
    EXPECT_EQ(bench.table(5)[2].substr(48), "       0.0000");
}

TEST_F(Pipelines, TheCorrectionsOfARunWithoutKnownPointsAreZero) {
    bench.state.points.row(1).CorrPhi = 5;
    bench.state.points.row(1).CorrH = 5;
    bench.run("WGS a 37.3 127 1\nend\n\n");
    EXPECT_EQ(bench.row(1).CorrPhi, 0);
    EXPECT_EQ(bench.row(1).CorrLam, 0);
    EXPECT_EQ(bench.row(1).CorrH, 0);
}

TEST_F(Pipelines, ARowKeepsItsNameWholeAndTheTablesShowTenColumns) {
    bench.run("WGS 가나다라마바사아 37.3 127 1\nend\n\n");
    EXPECT_EQ(bench.row(1).name, "가나다라마바사아");
    EXPECT_EQ(bench.table(1)[0].substr(0, 15), "가나다라마");
}

TEST_F(Pipelines, APointThatCannotBeComputedTellsAndTheRunGoesOn) {
    bench.run("INPUT deg\nWGS a 60 127 10\n   b 37.5 127 10\nend\n\n");
    EXPECT_EQ(bench.fault, 0);
    ASSERT_EQ(bench.messages.shown.size(), 1U);
    EXPECT_EQ(bench.messages.shown[0].text,
              "경위도로 변환 할 수 없는 GPS 좌표 입니다. 확인후 다시 변환 하십시오");
    EXPECT_EQ(bench.row(1).UserPhi, 0);
    EXPECT_NEAR(bench.row(2).UserPhi, 37.5, 0.01);
    EXPECT_EQ(bench.table(1).size(), 2U);
}

TEST_F(Pipelines, TheFirstPointOfARunFillsTheShiftOfTheGeodesy) {
    bench.run("7 para\n1 2 3\n0 0 0\n1000000\n*\n");
    EXPECT_EQ(bench.state.datum.shift.dX, 0) << "parameters alone reach nothing";
    bench.run("7 para\n1 2 3\n0 0 0\n1000000" + std::string("\nWGS a 37.3 127 1\nend\n\n"));
    EXPECT_EQ(bench.state.datum.shift.dX, 1);
    EXPECT_EQ(bench.state.datum.shift.dS, 1);
}

TEST_F(Pipelines, TenThousandPointsFitAndOneMoreIsASubscriptFault) {
    std::string text = "WGS p 37.3 127 1\n";
    for (int i = 2; i <= 10000; ++i) text += "   q 37.3 127 1\n";
    bench.run(text + "end\n\n");
    EXPECT_EQ(bench.fault, 0);
    EXPECT_EQ(bench.points(), 10000);
    EXPECT_EQ(bench.table(5).size(), 10000U);
    bench.run(text + "   r 37.3 127 1\nend\n\n");
    EXPECT_EQ(bench.fault, 9);
    EXPECT_EQ(bench.points(), 10001) << "already raised";
    EXPECT_TRUE(bench.table(1).empty()) << "the tables are never reached";
}

}  // namespace
}  // namespace kelvo
