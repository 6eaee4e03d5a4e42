// What the origins of a run rest on, and who changes them when.
#include <gtest/gtest.h>

#include "batch/parameter_commands.h"
#include "support/batch_bench.h"

namespace kelvo {
namespace {

using testing::BatchBench;

const std::string kBessel = "6377397.155 299.1528128\n";

TEST(UtmParameters, TheOriginLatitudeIsWhereTheFalseNorthingCounts) {
    BatchBench bench;
    bench.run("utm para\n" + kBessel + "30 117\n1000 500000\n0.9996\nUTM u 1000 500000 1\nend\n\n");
    ASSERT_EQ(bench.points(), 1);
    EXPECT_NEAR(bench.row(1).UserPhi, 30, 1e-9);
    EXPECT_NEAR(bench.row(1).UserLam, 117, 1e-9);
}

// On the same origin, half the scale brings half the way from the false origin to the same place.
TEST(UtmParameters, TheScaleCountsFromTheFalseOrigin) {
    const auto place = [](const std::string& scale, const std::string& coordinates) {
        BatchBench bench;
        bench.run("utm para\n" + kBessel + "30 127\n1000 500000\n" + scale + "\nUTM u " +
                  coordinates + " 1\nend\n\n");
        return Position{.Phi = bench.row(1).UserPhi, .Lam = bench.row(1).UserLam};
    };
    const Position whole = place("1", "801000 600000");
    const Position half = place("0.5", "401000 550000");
    EXPECT_NEAR(half.Phi, whole.Phi, 1e-9);
    EXPECT_NEAR(half.Lam, whole.Lam, 1e-9);
    EXPECT_GT(whole.Phi, 37);
    EXPECT_GT(whole.Lam, 128);
}

TEST(UtmParameters, LatitudeScaleAndFalseOriginCountOnTheWayToTheGridToo) {
    BatchBench bench;
    bench.run("INPUT deg\nutm para\n" + kBessel +
              "30 129\n1000 20000\n0.5\nUGS u 30 129 1\n   v 37.5 127.5 1\nend\n\n");
    EXPECT_NEAR(bench.row(1).UtmX, 1000, 1e-6);
    EXPECT_NEAR(bench.row(1).UtmY, 20000, 1e-6);
    const double X = bench.row(2).UtmX;
    const double Y = bench.row(2).UtmY;
    bench.run("INPUT deg\nutm para\n" + kBessel +
              "30 129\n1000 20000\n1\nUGS v 37.5 127.5 1\nend\n\n");
    EXPECT_NEAR(X - 1000, (bench.row(1).UtmX - 1000) / 2, 1e-6);
    EXPECT_NEAR(Y - 20000, (bench.row(1).UtmY - 20000) / 2, 1e-6);
}

TEST(ZoneLine, SetsBothFalseCoordinatesBack) {
    const std::string moved = "add 0\ntm para\n" + kBessel + "30 120\n1 2\n0.5\n";
    const struct {
        const char* zone;
        const char* line;
        double X;
        double Lam;
    } cases[] = {
        {"1", "   원점 X   =  500000.0      원점 Y   =  200000.0", 500000, 125},
        {"3", "   원점 X   =  500000.0      원점 Y   =  200000.0", 500000, 129},
        {"5", "   원점 X   =  550000.0      원점 Y   =  200000.0", 550000, 127},
        {"9", "   원점 X   =  500000.0      원점 Y   =  200000.0", 500000, 127},
    };
    for (const auto& c : cases) {
        BatchBench bench;
        bench.run(moved + "zone " + c.zone + "\nTM a " + std::to_string(c.X) +
                  " 200000 1\nend\n\n");
        EXPECT_EQ(bench.countOut(c.line), 1) << c.zone;
        EXPECT_NEAR(bench.row(1).UserPhi, 38, 1e-9) << c.zone;
        EXPECT_NEAR(bench.row(1).UserLam, c.Lam, 1e-9) << c.zone;
    }
}

TEST(ZoneLine, OfACommonZoneTakesTheFalseNorthingOfJejuBack) {
    BatchBench bench;
    bench.run("zone 5\nzone 2\nWGS a 37.3 127 1\nend\n\n");
    EXPECT_EQ(bench.countOut("   원점 X   =  500000.0      원점 Y   =  200000.0"), 1);
}

double originAfter(const std::string& lines) {
    BatchBench bench;
    bench.run(lines + "\nUTM u 4000000 500000 1\nend\n\n");
    return bench.row(bench.points()).UserLam;  // on the meridian of the origin
}

TEST(UtmOrigin, IsSelectedByExactlyTheTwoNumbers) {
    for (const char* other : {"129.000001", "128.999999", "128.6", "129.4", "-129", "12.9", "1290"})
        EXPECT_NEAR(originAfter(std::string("UTM 123\nUTM ") + other), 123, 1e-9) << other;
    // closer to them than a single field could tell
    EXPECT_NEAR(originAfter("UTM 123.000001"), 129, 1e-9);
    EXPECT_NEAR(originAfter("UTM 122.999999"), 129, 1e-9);
    for (const char* same : {"123", "123.0", "1.23E2", "+123", "123도", "&H7B"})
        EXPECT_NEAR(originAfter(std::string("UTM ") + same), 123, 1e-9) << same;
    EXPECT_NEAR(originAfter("UTM 123\nUTM 129 <- 동경 129도"), 129, 1e-9);
}

TEST(UtmOrigin, TakesTheZoneOfItsNumberAfterOneOfTheUsersOwn) {
    TransPara para;
    para.UZone = UtmZone::User;
    para.ULam0 = 125;
    EXPECT_FALSE(selectUtmOrigin(para, 126));
    EXPECT_EQ(para.UZone, UtmZone::User);
    EXPECT_EQ(para.ULam0, 125);
    EXPECT_TRUE(selectUtmOrigin(para, 123));
    EXPECT_EQ(para.UZone, UtmZone::West);
    EXPECT_EQ(para.ULam0, 123);
    EXPECT_TRUE(selectUtmOrigin(para, 129));
    EXPECT_EQ(para.UZone, UtmZone::East);
    EXPECT_EQ(para.ULam0, 129);
}

// The last table chooses the UTM origin by the WGS longitude, and lines after DIST find it so.
TEST(UtmOrigin, IsLeftByTheLastTableToTheLinesAfterTheDistances) {
    // east of 126 degrees on the user ellipsoid, west of it on WGS84
    const std::string nearBorder = "INPUT deg\nWGS a 37.5 125.999 0\n*\n";
    EXPECT_NEAR(originAfter(nearBorder), 129, 1e-9) << "as the points leave it";
    EXPECT_NEAR(originAfter(nearBorder + "DIST a a\n"), 123, 1e-9) << "as the table leaves it";
    EXPECT_NEAR(originAfter(nearBorder + "DIST a a\nDIST a a\nWGS b 37.5 125.999 0\n*\nDIST a a\n"),
                129, 1e-9)
        << "which is written once";
}

TEST(UtmOrigin, OfALastTableWithoutPointsStaysAsItWas) {
    EXPECT_NEAR(originAfter("UTM 123\nDIST a a"), 123, 1e-9);
}

}  // namespace
}  // namespace kelvo
