// What the check says of known points: every sentence whole, every limit from both sides.
#include "batch/check_known_points.h"

#include <gtest/gtest.h>

#include "batch/check_bench.h"

namespace kelvo {
namespace {

const std::string kCorrectedPoint = "CORRECTION\nWGS A 37.3533 126.3229 0\nend\n\n";

// What is said of a file of known points whose first lines are these; three good ones follow.
std::string saidOfKnown(const std::string& lines) {
    return testing::placed(testing::check(kCorrectedPoint, lines + testing::kKnownPoints));
}

std::string saidOfKnownAlone(const std::string& text) {
    return testing::placed(testing::check(kCorrectedPoint, text));
}

// The fields of a good known point: name, WGS84 latitude, longitude, height, user latitude,
// longitude, height, weight.
std::vector<std::string> goodPoint() {
    return {"K",           "37.34043494",  "126.58173549", "95.064",
            "37.33542837", "126.58248480", "72.089",       "2"};
}

std::string lineOf(const std::vector<std::string>& fields) {
    std::string line;
    for (const std::string& field : fields) line += (line.empty() ? "" : " ") + field;
    return line + "\n";
}

std::string lineWith(std::size_t field, const std::string& text) {
    std::vector<std::string> fields = goodPoint();
    fields[field - 1] = text;
    return lineOf(fields);
}

std::string columnOf(std::size_t field) {
    std::size_t column = 1;
    for (std::size_t n = 1; n < field; ++n) column += goodPoint()[n - 1].size() + 1;
    return std::to_string(column);
}

TEST(CheckKnownPoints, ALineHasANameAndSevenNumbers) {
    EXPECT_EQ(saidOfKnown(lineOf(goodPoint())), "");
    std::vector<std::string> fields = goodPoint();
    fields.pop_back();
    EXPECT_EQ(saidOfKnown(lineOf(fields)),
              "kelvo.cor 1 가중치가 없어 0으로 읽히고 보정에 쓰이지 않습니다\n");
    fields.pop_back();
    EXPECT_EQ(saidOfKnown(lineOf(fields)),
              "kelvo.cor 1 보정점에는 이름과 수 일곱 개가 있어야 합니다\n");
    for (std::size_t n = 2; n <= 8; ++n) {
        const std::string cut = goodPoint()[n - 1] + "-1";
        EXPECT_EQ(saidOfKnown(lineWith(n, cut)), "kelvo.cor 1:" + columnOf(n) + "+" +
                                                     std::to_string(cut.size()) + " \"" + cut +
                                                     "\"은(는) 수로 다 읽히지 않습니다\n");
    }
}

// The same places with sixty seconds or minutes too many at one figure.
TEST(CheckKnownPoints, EachOfTheFourAnglesIsLookedAt) {
    const auto said = [](std::size_t field, const std::string& angle, const std::string& what) {
        EXPECT_EQ(saidOfKnown(lineWith(field, angle)),
                  "kelvo.cor 1:" + columnOf(field) + "+" + std::to_string(angle.size()) + " \"" +
                      angle + "\"은(는) ddd.mmssss가 아닙니다: " + what + "\n");
    };
    said(2, "37.33643494", "초가 64입니다");
    said(3, "126.57773549", "초가 77입니다");
    said(5, "36.93542837", "분이 93입니다");
    said(6, "126.57848480", "초가 84입니다");
}

TEST(CheckKnownPoints, KnownHeightsDifferByTenToFortyMetres) {
    const auto said = [](const std::string& WgsH, const std::string& UserH) {
        std::vector<std::string> fields = goodPoint();
        fields[3] = WgsH;
        fields[6] = UserH;
        return saidOfKnown(lineOf(fields));
    };
    const auto geoid = [](const std::string& metres, const std::string& at) {
        return "kelvo.cor 1:" + at + "+2 WGS 타원체고에서 표고를 뺀 값이 " + metres +
               " m입니다. 우리나라에서는 15 m에서 34 m입니다\n";
    };
    EXPECT_EQ(said("70", "60"), "");
    EXPECT_EQ(said("99", "59"), "");
    EXPECT_EQ(said("69.5", "60"), geoid("9.5", "58"));
    EXPECT_EQ(said("99.5", "59"), geoid("40.5", "58"));
    EXPECT_EQ(said("60.0004", "59"), geoid("1", "61"));
    EXPECT_EQ(said("0", "60"), "");
    EXPECT_EQ(said("60", "0"), "");
}

TEST(CheckKnownPoints, APointOutsideTheCountryIsNamedAtItsLatitude) {
    const std::string outside =
        " 보정점이 쓸 수 있는 곳(위도 32~39도, 경도 124~132도) 밖에 있습니다\n";
    EXPECT_EQ(saidOfKnown("K 31.5 126.58 0 31.5 126.58 0 1\n"), "kelvo.cor 1:3+4" + outside);
    EXPECT_EQ(saidOfKnown("* a\n\nK 37.5 133.5 0 37.5 133.5 0 1\n"), "kelvo.cor 3:3+4" + outside);
    EXPECT_EQ(saidOfKnown("K 32.5 126.58 0 32.5 126.58 0 1\n"), "");
}

TEST(CheckKnownPoints, OfOneLineComesTheNumberThenTheAngleThenTheHeightsThenThePlace) {
    EXPECT_EQ(
        saidOfKnown("K 30.7-1 126.58 9 31.1 126.58 5 1\n"),
        "kelvo.cor 1:3+6 \"30.7-1\"은(는) 수로 다 읽히지 않습니다\n"
        "kelvo.cor 1:3+6 \"30.7-1\"은(는) ddd.mmssss가 아닙니다: 분이 70입니다\n"
        "kelvo.cor 1:31+1 WGS 타원체고에서 표고를 뺀 값이 4 m입니다. 우리나라에서는 15 m에서 34 "
        "m입니다\n"
        "kelvo.cor 1:3+6 보정점이 쓸 수 있는 곳(위도 32~39도, 경도 124~132도) 밖에 있습니다\n");
}

// A second of latitude is 30.827 m on Bessel's ellipsoid here; the point's own miss is 1.3 m.
TEST(CheckKnownPoints, AMissOfMoreThanAKilometreIsSaidInKilometres) {
    const auto said = [](const std::string& UserPhi) {
        return saidOfKnown("K 37.35286118 126.32345468 67.644 " + UserPhi +
                           " 126.32419061 45.732 1\n");
    };
    const auto far = [](const std::string& kilometres) {
        return "kelvo.cor 1 WGS84 위치와 사용자 위치가 매개변수로 계산한 것과 " + kilometres +
               " km 어긋납니다\n";
    };
    EXPECT_EQ(said("37.35186070"), "");
    EXPECT_EQ(said("37.35509930"), "");           // 32.386 seconds, 998.4 m and the miss
    EXPECT_EQ(said("37.35510170"), far("1"));     // 32.41 seconds, 999.1 m and the miss
    EXPECT_EQ(said("37.41186070"), far("11.1"));  // 6 minutes, 11,098 m
}

TEST(CheckKnownPoints, AFileThatGivesNoCorrectionIsSaidToStopTheRunOnce) {
    const std::string stops = "1 실행이 멈춥니다 (오류 6): kelvo.cor";
    const std::string none = stops + "에 보정점이 하나도 없습니다\n";
    EXPECT_EQ(saidOfKnownAlone("* a\n\n"), none);
    EXPECT_EQ(saidOfKnownAlone(lineWith(7, "0") + "\n\n"),
              stops + ": WGS 타원체고와 사용자 표고를 모두 아는 보정점이 없습니다\n");
    EXPECT_EQ(saidOfKnownAlone(lineWith(8, "0") + lineWith(8, "0") + "\n\n"),
              stops + ": 모든 보정점의 가중치가 0입니다\n");
    EXPECT_EQ(saidOfKnownAlone(lineWith(8, "0") + lineWith(4, "0") + "\n\n"),
              stops + ": 가중치가 있고 높이를 아는 보정점이 없습니다\n");
    EXPECT_EQ(saidOfKnownAlone(lineWith(8, "0") + lineOf(goodPoint()) + "\n\n"), "");
    const std::string twice =
        "CORRECTION\nWGS A 37.3533 126.3229 0\nadd 1\nWGS B 37.3534 126.3229 0\nend\n\n";
    EXPECT_EQ(testing::placed(testing::check(twice, lineWith(8, "0") + "\n\n")),
              stops + ": 모든 보정점의 가중치가 0입니다\n");
    EXPECT_EQ(testing::placed(testing::check(twice, "* a\n\n")), none);
    EXPECT_EQ(
        testing::placed(testing::check(twice, lineWith(2, "x") + testing::kKnownPoints)),
        testing::placed(testing::check(kCorrectedPoint, lineWith(2, "x") + testing::kKnownPoints)));
    EXPECT_EQ(testing::placed(testing::checkWithoutKnownPoints(twice)),
              "1 보정점의 파일이 없어 실행이 멈춥니다 (오류 53): kelvo.cor\n");
}

TEST(CheckKnownPoints, AFileThatARunCantReadIsSaidToStopIt) {
    EXPECT_EQ(saidOfKnownAlone(""),
              "1 실행이 멈춥니다 (오류 62): kelvo.cor 1번째 줄: 파일의 끝을 지나 읽으려 "
              "하였습니다\n");
    const std::string twoLines =
        " 실행이 멈춥니다 (오류 62). 마지막 점의 뒤에 빈 줄 둘을 두십시오\n";
    EXPECT_EQ(saidOfKnownAlone(lineOf(goodPoint()) + lineOf(goodPoint())),
              "kelvo.cor 2" + twoLines);
    EXPECT_EQ(saidOfKnownAlone(lineOf(goodPoint()) + "\n"), "kelvo.cor 2" + twoLines);
    EXPECT_EQ(saidOfKnownAlone(lineOf(goodPoint()) + "\n\n"), "");
    // Nothing more is said of points that no run gets to, not that they lie far apart.
    const std::string apart = lineWith(5, "36.33542837");
    EXPECT_EQ(saidOfKnownAlone(apart + lineOf(goodPoint())), "kelvo.cor 2" + twoLines);
    EXPECT_TRUE(saidOfKnownAlone(apart + "\n\n").starts_with("kelvo.cor 1 "));
    std::string many;
    for (int i = 0; i < 201; ++i) many += lineOf(goodPoint());
    EXPECT_EQ(saidOfKnownAlone(many + "\n\n"),
              "kelvo.cor 203 실행이 멈춥니다 (오류 9): kelvo.cor 201번째 줄: 201번째 보정점입니다. "
              "보정점은 200개까지 다룰 수 있습니다\n");
}

TEST(CheckKnownPoints, APointOnTheLastLineIsSaidNotToBeRead) {
    const std::string good = lineOf(goodPoint());
    const std::string unread = " 파일의 마지막 줄이어서 읽지 않습니다. 뒤에 빈 줄 둘을 두십시오\n";
    EXPECT_EQ(saidOfKnownAlone(good + "\n" + good), "kelvo.cor 3" + unread);
    for (const std::string last : {"* 1 2", "K x 126", "K 37 x", "K 37", "K"})
        EXPECT_EQ(saidOfKnownAlone(good + "\n" + last), "") << last;
}

TEST(CheckKnownPoints, CorrectionAfterTheHeaderIsSaidNeverToReadThemOnce) {
    EXPECT_EQ(testing::placed(testing::check("WGS A 37.3533 126.3229 0\nCORRECTION\n"
                                             "WGS B 37.3534 126.3229 0\nWGS C 37.3535 126.3229 "
                                             "0\nend\n\n")),
              "2 보정점을 읽지 않아 실행이 멈춥니다 (오류 6). CORRECTION을 첫 점 앞에 쓰거나 그 "
              "뒤에 zone이나 add 줄을 두십시오\n");
}

// A degree of latitude is 110.99 km here.
TEST(CheckKnownPoints, APointFartherThanFiftyKilometresFromEachThatCountsIsSaidToBeFar) {
    const auto said = [](const std::string& Phi, const std::string& known) {
        return testing::placed(testing::check(
            "CORRECTION\nINPUT deg\nWGS A " + Phi + " 127 0\nend\n\n", known + "\n\n"));
    };
    const auto far = [](const std::string& kilometres) {
        return "3 가장 가까운 보정점이 " + kilometres +
               " km 떨어져 있어 보정이 맞지 않을 수 있습니다\n";
    };
    const std::string south = "K 37.3 127 50 37.3 127 30 ";      // 37.5 degrees
    const std::string north = "L 38.3 127 50 38.3 127 30 ";      // 38.5 degrees
    EXPECT_EQ(said("37.9496", south + "1\n"), "");               // 49.90 km
    EXPECT_EQ(said("37.9509", south + "1\n"), far("50"));        // 50.05 km
    EXPECT_EQ(said("37.0441", south + "1\n"), far("51"));        // 50.59 km
    EXPECT_EQ(said("38.1", south + "1\n" + north + "1\n"), "");  // 44.4 and 66.6 km
    EXPECT_EQ(said("38.1", south + "1\n" + north + "0\n"), far("67"));
    EXPECT_EQ(said("38.1", north + "1\n" + south + "1\n"), "");
    // One outside of the country doesn't count, wherever the point is.
    EXPECT_EQ(said("38.99", south + "1\nM 39.1 127 50 39.1 127 30 1\n"),
              far("165") +
                  "kelvo.cor 2:3+4 보정점이 쓸 수 있는 곳(위도 32~39도, 경도 124~132도) 밖에 "
                  "있습니다\n");
}

}  // namespace
}  // namespace kelvo
