// What the check says of origins, every sentence whole.
#include "batch/check_origins.h"

#include <gtest/gtest.h>

#include "batch/check_bench.h"

namespace kelvo {
namespace {

std::string saidOfOrigins(const std::string& lines) {
    return testing::placed(testing::check(lines + "end\n\n"));
}

const std::string kCentrePoint = "WGS A 37.3533 126.3229 0\n";
const std::string kEastPoint = "WGS B 37.3533 128.3229 0\n";

std::string tmParameters(const std::string& Lam0) {
    return "tm para\n6377397.155 299.1528128\n38 " + Lam0 + "\n500000 200000\n1\n";
}

// 10.405 seconds are 0.00289028 degrees; origins are typed with five decimals or more.
TEST(CheckOrigins, AnOriginThatHoldsTheTenSecondsIsSaidToGetThemTwice) {
    for (const std::string Lam0 : {"127.00289", "127.002886", "127.002895", "125.00289"}) {
        EXPECT_EQ(saidOfOrigins(tmParameters(Lam0) + kCentrePoint + kEastPoint),
                  "1 원점 경도 " + Lam0 +
                      "도에 10.405초가 들어 있는데 다시 더해집니다. add 0을 쓰십시오\n");
        EXPECT_EQ(saidOfOrigins(tmParameters(Lam0) + "add 0\n" + kCentrePoint), "");
        EXPECT_EQ(saidOfOrigins(tmParameters(Lam0) + "zone 2\n" + kCentrePoint), "");
    }
    for (const std::string Lam0 : {"127.002885", "127.0028955", "127", "127.99711", "127.0058"})
        EXPECT_EQ(saidOfOrigins(tmParameters(Lam0) + kCentrePoint), "") << Lam0;
}

std::string overridden(const std::string& place, const std::string& grid, const std::string& Lam0,
                       const std::string& line, const std::string& other) {
    return place + " " + grid + " 원점 " + Lam0 + "도가 " + line + "번째 줄의 점에서 " + other +
           "도로 바뀝니다. 원점은 점마다 경도로 정해집니다\n";
}

TEST(CheckOrigins, AZoneThatAPointDoesntKeepIsSaidOnceWithThePoint) {
    EXPECT_EQ(saidOfOrigins("zone 1\n" + kCentrePoint + kEastPoint),
              overridden("1", "TM", "125", "2", "127"));
    EXPECT_EQ(saidOfOrigins("zone 4\n" + kCentrePoint), overridden("1", "TM", "131", "2", "127"));
    EXPECT_EQ(saidOfOrigins("zone 2\n" + kCentrePoint + kEastPoint),
              overridden("1", "TM", "127", "3", "129"));
    EXPECT_EQ(saidOfOrigins("zone 2\n" + kCentrePoint), "");
    EXPECT_EQ(saidOfOrigins("zone 6\n" + kEastPoint), "");
    // No zone at all is a finding of its own.
    EXPECT_EQ(saidOfOrigins("zone 0\n" + kEastPoint).find("바뀝니다"), std::string::npos);
    // Points of TM keep it, and one in front of the others has used it.
    EXPECT_EQ(saidOfOrigins("zone 3\nTM T 455000 160000 0\n" + kCentrePoint), "");
    EXPECT_EQ(saidOfOrigins("zone 3\n" + tmParameters("127") + kCentrePoint), "");
    EXPECT_EQ(saidOfOrigins("zone 3\nzone 2\n" + kCentrePoint), "");
    EXPECT_EQ(saidOfOrigins("zone 3\nzone 6\n" + kCentrePoint), "");
    EXPECT_EQ(saidOfOrigins("zone 3\nUTM A 4164000 283000 0\n"),
              overridden("1", "TM", "129", "2", "127"));
}

TEST(CheckOrigins, AUtmOriginThatAPointDoesntKeepIsSaidOnceWithThePoint) {
    const std::string utm = "utm para\n6377397.155 299.1528128\n0 117\n0 500000\n0.9996\n";
    EXPECT_EQ(saidOfOrigins("UTM 123\n" + kCentrePoint + kCentrePoint.substr(0, 4) +
                            "C 37.3533 125.3229 0\n"),
              overridden("1", "UTM", "123", "2", "129"));
    EXPECT_EQ(saidOfOrigins(utm + kCentrePoint), overridden("1", "UTM", "117", "6", "129"));
    EXPECT_EQ(saidOfOrigins("UTM 129\n" + kCentrePoint), "");
    EXPECT_EQ(saidOfOrigins("UTM 129\nUTM A 4164000 283000 0\nWGS C 37.3533 125.3229 0\n"), "");
    EXPECT_EQ(saidOfOrigins("UTM 123\nTM A 455000 160000 0\n"),
              overridden("1", "UTM", "123", "2", "129"));
}

TEST(CheckOrigins, JejuAndItsZoneBelongTogetherWhichIsSaidOnce) {
    const std::string jeju = "WGS J 33.2142 126.3145 0\n    K 33.2143 126.3145 0\n";
    const std::string needed =
        " 제주도의 점인데 zone 5가 아니어서 중부 원점으로 계산되어 X가 50000 m 작게 나옵니다\n";
    const std::string elsewhere = " zone 5는 제주도의 원점인데 점이 제주도 밖에 있습니다\n";
    EXPECT_EQ(saidOfOrigins(jeju + "UGS L 33.2144 126.3145 0\n"), "1" + needed);
    EXPECT_EQ(saidOfOrigins("zone 5\n" + jeju), "");
    EXPECT_EQ(saidOfOrigins("zone 6\n" + jeju), "");
    EXPECT_EQ(saidOfOrigins("zone 5\n" + kCentrePoint + kEastPoint), "2" + elsewhere);
    EXPECT_EQ(saidOfOrigins(jeju + "zone 5\n" + kCentrePoint), "1" + needed);
    EXPECT_EQ(saidOfOrigins("zone 5\n" + kCentrePoint + "zone 2\n" + jeju), "2" + elsewhere);
    // Between the island and 34.5 degrees no one knows.
    EXPECT_EQ(saidOfOrigins("INPUT deg\nzone 5\nWGS M 34.5 126.5 0\n"), "");
    EXPECT_EQ(saidOfOrigins("INPUT deg\nzone 5\nWGS M 34.55 126.5 0\n"), "3" + elsewhere);
    EXPECT_EQ(saidOfOrigins("INPUT deg\nWGS M 33.75 126.5 0\n"), "");
    // TM coordinates of the island's own: 33.36 degrees lie 515 km south of 38.
    EXPECT_EQ(saidOfOrigins("TM N -14900 156000 0\n"), "");
}

}  // namespace
}  // namespace kelvo
