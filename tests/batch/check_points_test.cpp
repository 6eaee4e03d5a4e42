// What the check says of points: every sentence whole, every limit from both sides.
#include "batch/check_points.h"

#include <gtest/gtest.h>

#include <cmath>

#include "batch/check_bench.h"

namespace kelvo {
namespace {

std::string saidOfPoints(const std::string& points) {
    return testing::placed(testing::check(points + "\nend\n\n"));
}

TEST(CheckPoints, MinutesAndSecondsEndBeforeSixty) {
    for (const double good : {0.0, 37.0, 37.5959, -37.5959, 37.595999, 37.0059, 126.32345678,
                              37.5959999999985, 10000.61, -10000.9999, std::nan("")})
        EXPECT_EQ(badAngle(good), "") << good;
    for (const double minutes : {37.6, 37.60, -37.6, 9999.6, 0.6})
        EXPECT_EQ(badAngle(minutes), "분이 60입니다") << minutes;
    EXPECT_EQ(badAngle(37.9999), "분이 99입니다");
    for (const double seconds : {37.006, 37.596, -37.006, 37.0060001})
        EXPECT_EQ(badAngle(seconds), "초가 60입니다") << seconds;
    EXPECT_EQ(badAngle(37.1277), "초가 77입니다");
    EXPECT_EQ(badAngle(37.6177), "분이 61입니다");
}

TEST(CheckPoints, TheCountryReachesFrom32To39DegreesAndFrom124To132) {
    for (const Position in : {Position{.Phi = 32, .Lam = 124}, Position{.Phi = 39, .Lam = 132}})
        EXPECT_TRUE(isInCountry(in));
    for (const Position out :
         {Position{.Phi = 31.999, .Lam = 127}, Position{.Phi = 39.001, .Lam = 127},
          Position{.Phi = 37, .Lam = 123.999}, Position{.Phi = 37, .Lam = 132.001}})
        EXPECT_FALSE(isInCountry(out)) << out.Phi << " " << out.Lam;
    for (const Position in :
         {Position{.Phi = 33.0, .Lam = 126.0}, Position{.Phi = 33.7, .Lam = 127.1}})
        EXPECT_TRUE(isOnJeju(in));
    for (const Position out :
         {Position{.Phi = 32.99, .Lam = 126.5}, Position{.Phi = 33.71, .Lam = 126.5},
          Position{.Phi = 33.4, .Lam = 125.99}, Position{.Phi = 33.4, .Lam = 127.11}})
        EXPECT_FALSE(isOnJeju(out)) << out.Phi << " " << out.Lam;
}

TEST(CheckPoints, ANumberThatIsntReadAsItStandsIsNamedByItsCoordinate) {
    const std::string zero =
        "은(는) 수가 아니어서 0으로 읽힙니다. 이름에는 빈칸을 쓸 수 없습니다\n";
    for (const std::string word : {"WGS", "UGS"})
        EXPECT_EQ(saidOfPoints(word + " A x y z"), "1:7+1 위도 \"x\"" + zero + "1:9+1 경도 \"y\"" +
                                                       zero + "1:11+1 높이 \"z\"" + zero);
    EXPECT_EQ(saidOfPoints("TM A x y z"),
              "1:6+1 X \"x\"" + zero + "1:8+1 Y \"y\"" + zero + "1:10+1 높이 \"z\"" + zero);
    EXPECT_EQ(saidOfPoints("UTM A 1x1 4000000"), "1:7+3 X \"1x1\"에서 1만 읽힙니다\n");
    EXPECT_EQ(saidOfPoints("WGS A 37-35-33 126.3229"),
              "1:7+8 위도 \"37-35-33\"에서 37만 읽힙니다\n");
    EXPECT_EQ(saidOfPoints("WGS A 37.3533 126.3229 0\n      B 37.3533 126-32 0"),
              "2:17+6 경도 \"126-32\"에서 126만 읽힙니다\n");
    const std::string two = "1 이름 다음에 좌표 두 개가 있어야 합니다. 없는 것은 0으로 읽힙니다\n";
    EXPECT_EQ(saidOfPoints("WGS"), two);
    EXPECT_EQ(saidOfPoints("WGS A"), two);
    EXPECT_EQ(saidOfPoints("WGS A 37.3533"), two);
    EXPECT_EQ(saidOfPoints("WGS A x"), "1:7+1 위도 \"x\"" + zero + two);
    EXPECT_EQ(saidOfPoints("WGS A 37.3533 126.3229"), "");
}

TEST(CheckPoints, OnlyAHeightThatIsntReadLeavesThePointItsPlace) {
    const std::string zero =
        "은(는) 수가 아니어서 0으로 읽힙니다. 이름에는 빈칸을 쓸 수 없습니다\n";
    const std::string outside =
        "1:7+2 점이 쓸 수 있는 곳(위도 32~39도, 경도 124~132도) 밖에 있습니다: 위도 20도, 경도 "
        "126도\n";
    EXPECT_EQ(saidOfPoints("WGS A 20 126 x"), "1:14+1 높이 \"x\"" + zero + outside);
    EXPECT_EQ(saidOfPoints("WGS A 20 x 0"), "1:10+1 경도 \"x\"" + zero);
}

TEST(CheckPoints, EachAngleThatIsNoneIsNamedUnlessDegreesAreRead) {
    const auto said = [](const std::string& column, const std::string& coordinate,
                         const std::string& what) {
        return "1:" + column + " " + coordinate + "은(는) ddd.mmssss가 아닙니다: " + what +
               ". 십진 도이면 앞에 INPUT deg를 쓰십시오\n";
    };
    EXPECT_EQ(saidOfPoints("WGS A 37.7733 126.3288 0"),
              said("7+7", "위도 \"37.7733\"", "분이 77입니다") +
                  said("15+8", "경도 \"126.3288\"", "초가 88입니다"));
    EXPECT_EQ(saidOfPoints("UGS A 37.3533 126.3288 0"),
              said("15+8", "경도 \"126.3288\"", "초가 88입니다"));
    EXPECT_EQ(saidOfPoints("INPUT deg\nWGS A 37.7733 126.7788 0"), "");
    EXPECT_EQ(saidOfPoints("TM A 455000.7733 160000.7788 0"), "");
}

TEST(CheckPoints, AHeightIsNoHigherThanAnyMountainAndNoDeeperThanAThousandMetres) {
    const std::string point = "1st 0 0 1\nWGS A 37.3533 126.3229 ";
    EXPECT_EQ(saidOfPoints(point + "9000"), "");
    EXPECT_EQ(saidOfPoints(point + "-1000"), "");
    EXPECT_EQ(saidOfPoints(point + "9000.5"), "2:24+6 높이가 9000.5 m입니다\n");
    EXPECT_EQ(saidOfPoints(point + "-1000.5"), "2:24+7 높이가 -1000.5 m입니다\n");
}

TEST(CheckPoints, AGridPointWithinAKilometreOfZeroIsTakenForSomethingElse) {
    const std::string small = "X와 Y가 1 km보다 작습니다";
    EXPECT_EQ(saidOfPoints("TM A 999.5 -999.5 0"), "1:6+5 " + small + "\n");
    EXPECT_EQ(saidOfPoints("UTM A 1 2 0"), "1:7+1 " + small + "\n");
    EXPECT_EQ(saidOfPoints("TM A 37.3533 126.3229 0"),
              "1:6+7 " + small + ". 경위도이면 WGS나 UGS를 쓰십시오\n");
    EXPECT_EQ(saidOfPoints("TM A 377,504.2 125,963.9 0"),
              "1:6+3 " + small + ". 쉼표는 빈칸과 같아서 수를 나눕니다\n");
    for (const std::string line : {"TM A 5 6,7", "TM A 5 0,9", "TM A 5 9,0"})
        EXPECT_EQ(saidOfPoints(line), "1:6+1 " + small + ". 쉼표는 빈칸과 같아서 수를 나눕니다\n");
    for (const std::string line : {"TM A 5, 6", "TM A 5 ,6", "TM A 5 6,", "TM A,5 6"})
        EXPECT_EQ(saidOfPoints(line), "1:6+1 " + small + "\n") << line;
    EXPECT_EQ(saidOfPoints("zone 6\nTM A 5 6 0").find(small), std::string::npos);
    for (const std::string line : {"TM A 1000 0 0", "TM A 0 1000 0", "TM A -1000 0 0"})
        EXPECT_EQ(saidOfPoints(line), "") << line;
    for (const std::string line : {"UTM A 0 2000 0", "UTM A 2000 0 0"})
        EXPECT_NE(saidOfPoints(line).find("밖에 있습니다"), std::string::npos) << line;
    // 1,000 km south of 38 degrees.
    EXPECT_NE(saidOfPoints("TM A -500000 200000 0").find("밖에 있습니다"), std::string::npos);
}

// In front of a guess: where the point has turned out to be.
std::string outsideAt(const std::string& place, const std::string& Phi, const std::string& Lam) {
    return place + " 점이 쓸 수 있는 곳(위도 32~39도, 경도 124~132도) 밖에 있습니다: 위도 " + Phi +
           "도, 경도 " + Lam + "도";
}

TEST(CheckPoints, APointOutsideTheCountryIsSaidWithItsPlaceAndAGuess) {
    // 126 32 29 is 126.5414 degrees, 37 35 33 is 37.5925.
    EXPECT_EQ(saidOfPoints("WGS A 126.3229 37.3533 0"),
              outsideAt("1:7+8", "126.5414", "37.5925") + ". 위도와 경도가 바뀐 것 같습니다\n");
    EXPECT_EQ(
        saidOfPoints("WGS 37.3533 126.3229 10 0"),
        outsideAt("1:13+8", "126.5414", "10") + ". 점의 이름이 빠져 한 칸씩 밀린 것 같습니다\n");
    EXPECT_EQ(saidOfPoints("WGS A 37 35 33 126 32 29"),
              outsideAt("1:7+2", "37", "35") + ". 도, 분, 초를 띄어 쓸 수 없습니다\n");
    EXPECT_EQ(saidOfPoints("WGS A 37 35 33 126 32"), outsideAt("1:7+2", "37", "35") + "\n");
    EXPECT_EQ(saidOfPoints("WGS A 37 35 33 126 32 x"), outsideAt("1:7+2", "37", "35") + "\n");
    EXPECT_EQ(saidOfPoints("WGS A 37,3533 126,3229 0"),
              outsideAt("1:7+2", "37", "3533") + ". 쉼표는 빈칸과 같아서 수를 나눕니다\n");
    const std::string grid = ". 직교좌표이면 TM이나 UTM을 쓰십시오\n";
    EXPECT_EQ(saidOfPoints("WGS A 1000.3 30 0"), outsideAt("1:7+6", "1000.5", "30") + grid);
    EXPECT_EQ(saidOfPoints("WGS A -1000.3 30 0"), outsideAt("1:7+7", "-1000.5", "30") + grid);
    EXPECT_EQ(saidOfPoints("WGS A 1000 30 0"), outsideAt("1:7+4", "1000", "30") + "\n");
    EXPECT_TRUE(saidOfPoints("UGS A 1000.3 30 0").ends_with(grid));
    EXPECT_EQ(saidOfPoints("WGS A 20.00006 126.00004 0\n      B 20 126.00002 0"),
              outsideAt("1:7+8", "20.0002", "126.0001") + "\n" +
                  outsideAt("2:9+2", "20", "126.0001") + "\n");
}

}  // namespace
}  // namespace kelvo
