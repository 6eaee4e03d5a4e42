// What the check says of a file as a whole: where it ends, what takes no effect, what stops a run.
#include <gtest/gtest.h>

#include "batch/check_bench.h"

namespace kelvo {
namespace {

std::string saidOfFile(const std::string& text) {
    return testing::placed(testing::check(text));
}

const std::string kOnePoint = "WGS A 37.3533 126.3229 0\n";

TEST(CheckRun, AFileWithoutPointsIsSaidToHaveNoneWhereItIsRead) {
    EXPECT_EQ(saidOfFile(""), "1 빈 파일이어서 실행이 멈춥니다 (오류 62)\n");
    const std::string none = " 여기까지 변환할 점이 하나도 없습니다\n";
    EXPECT_EQ(saidOfFile("zone 2\n"), "1" + none +
                                          "1 파일의 마지막 줄이어서 실행되지 않습니다. "
                                          "뒤에 end와 빈 줄을 두십시오\n");
    EXPECT_EQ(saidOfFile("zone 2\n* a\n\n"), "3" + none);
    EXPECT_EQ(saidOfFile("zone 2\nend\n* a\n\n"), "2" + none);
    EXPECT_EQ(saidOfFile("end\n\n"), "1" + none);
}

TEST(CheckRun, TheLastLineIsLostUnlessItIsARemarkOrTheEnd) {
    const std::string lost =
        " 파일의 마지막 줄이어서 실행되지 않습니다. 뒤에 end와 빈 줄을 두십시오\n";
    EXPECT_EQ(saidOfFile(kOnePoint + "WGS B 37.3534 126.3229 0"), "2" + lost);
    EXPECT_EQ(saidOfFile(kOnePoint + "\nword"), "3" + lost);
    for (const std::string last : {"* remark", "", "end", "END"})
        EXPECT_EQ(saidOfFile(kOnePoint + "* a\n" + last), "") << last;
    EXPECT_EQ(saidOfFile(kOnePoint + "    B 37.3534 126.3229 0"), "");
}

TEST(CheckRun, TheFirstLineThatMeansAnythingAfterTheEndIsSaidNotToBeRead) {
    const std::string unread = "번째 줄의 end 뒤여서 여기부터는 읽지 않습니다\n";
    EXPECT_EQ(saidOfFile(kOnePoint + "end\n* a\n\nword\nword\n"), "5 2" + unread);
    EXPECT_EQ(saidOfFile(kOnePoint + "end\nzone 2\n"), "3 2" + unread);
    EXPECT_EQ(saidOfFile(kOnePoint + "end\n* a\n"), "");
}

TEST(CheckRun, ParameterLinesAfterTheLastPointAreSaidToChangeNothing) {
    const std::string nothing = " 이 줄 뒤에 점이 없어 아무것도 바뀌지 않습니다\n";
    EXPECT_EQ(saidOfFile("zone 2\n" + kOnePoint +
                         "INPUT deg\nOUTPUT deg\nzone 2\nUTM 123\nadd 0\nDIST A A\nend\n\n"),
              "3" + nothing + "5" + nothing + "6" + nothing + "7" + nothing +
                  "8:8+1 두 이름이 같은 점이어서 거리가 0입니다\n");
    EXPECT_EQ(saidOfFile(kOnePoint + "add 1\nWGS B 37.3534 126.3229 0\nend\n\n"), "");
    EXPECT_EQ(saidOfFile("add 1\nend\n\n"), "2 여기까지 변환할 점이 하나도 없습니다\n");
}

TEST(CheckRun, AFileThatEndsInsideTheValuesOfACommandIsCutShort) {
    const std::string cut =
        " 파일이 이 명령의 값들에서 끝나 실행이 멈춥니다 (오류 62). 값들 뒤에 end와 빈 줄을 "
        "두십시오\n";
    for (const std::string values : {"115.8 -474.99 -674.11\n", "1 2 3\n1 2 3\n"})
        EXPECT_EQ(saidOfFile(kOnePoint + "7 para\n" + values), "2" + cut) << values;
    EXPECT_EQ(saidOfFile(kOnePoint + "7 para\n1 2 3\n1 2 3\n1\n"),
              "2" + cut + "2 이 줄 뒤에 점이 없어 아무것도 바뀌지 않습니다\n");
    EXPECT_EQ(saidOfFile(kOnePoint + "7 para\n1 2 3\n1 2 3\n1\n\n"),
              "2 이 줄 뒤에 점이 없어 아무것도 바뀌지 않습니다\n");
    EXPECT_EQ(saidOfFile("7 para\n1 2 3\n"), "1" + cut);
}

TEST(CheckRun, AParameterThatStopsARunIsTheLastThingSaid) {
    EXPECT_EQ(saidOfFile("zone 99999\n" + kOnePoint + "word\nend\n\n"),
              "1:6+5 실행이 멈춥니다 (오류 6): 99999은(는) 16비트 정수의 범위(-32768~32767)를 "
              "벗어났습니다\n");
    EXPECT_EQ(saidOfFile(kOnePoint + "zone 99999\nword\n"),
              "2:6+5 실행이 멈춥니다 (오류 6): 99999은(는) 16비트 정수의 범위(-32768~32767)를 "
              "벗어났습니다\n");
}

TEST(CheckRun, PointsInNoTableAreCountedAtTheFirst) {
    const std::string begin = " 첫 DIST 뒤에 있는 점 ";
    const std::string end = "개는 어느 표에도 나오지 않습니다. 점들을 모두 DIST 앞에 쓰십시오\n";
    const std::string two = kOnePoint + "    B 37.3534 126.3229 0\nDIST A B\n";
    EXPECT_EQ(saidOfFile(two + "WGS C 37.3535 126.3229 0\nend\n\n"), "4" + begin + "1" + end);
    EXPECT_EQ(saidOfFile(two + "* a\nWGS C 37.3535 126.3229 0\n    D 37.3536 126.3229 0\n"
                               "DIST A C\nUGS E 37.3537 126.3229 0\nend\n\n"),
              "5" + begin + "3" + end);
}

TEST(CheckRun, HeightsWithoutCorrectionAreSaidOnceForEachDirection) {
    const auto said = [](const std::string& line, const std::string& what) {
        return line + " 보정하지 않으므로 " + what +
               " 나옵니다. 높이를 쓰려면 앞에 CORRECTION이나 1st의 높이 조정량을 두십시오\n";
    };
    const std::string high = "표고가 수십 m 높게";
    const std::string low = "WGS 타원체고가 수십 m 낮게";
    EXPECT_EQ(saidOfFile("WGS A 37.3533 126.3229 0\n    B 37.3534 126.3229 5\n"
                         "    C 37.3535 126.3229 5\nUGS D 37.3536 126.3229 5\n"
                         "TM E 455000 160000 5\nend\n\n"),
              said("2", high) + said("4", low));
    EXPECT_EQ(saidOfFile("UTM A 4164000 283000 5\nend\n\n"), said("1", low));
    EXPECT_EQ(saidOfFile("1st 0 0 5\nWGS A 37.3533 126.3229 5\nend\n\n"), "");
    EXPECT_EQ(saidOfFile("1st 5 5 0\nWGS A 37.3533 126.3229 5\nend\n\n"), said("2", high));
}

TEST(CheckRun, APointNextToAKnownPointStopsTheRunAndIsSaidWithTheCure) {
    const std::string said = saidOfFile(
        "CORRECTION\nINPUT deg\nWGS A 37.5912810556 126.5429296667 67\nWGS B 37.5 126.5 60\n"
        "end\n\n");
    EXPECT_TRUE(said.starts_with("3 실행이 멈춥니다 (오류 6): ")) << said;
    EXPECT_TRUE(said.ends_with(". 보정점 바로 옆의 점이므로 좌표를 kelvo.cor와 똑같이 쓰십시오\n"))
        << said;
    EXPECT_EQ(std::count(said.begin(), said.end(), '\n'), 1) << said;
}

TEST(CheckRun, ABlockKeepsItsFormOfAnglesAndItsNamesBeyondSixtyFourPoints) {
    std::string lines = "INPUT deg\nWGS P0 37.6 126.6 0\n";
    for (int i = 1; i < 130; ++i) lines += "    P" + std::to_string(i) + " 37.6 126.6 0\n";
    EXPECT_EQ(saidOfFile(lines + "DIST P0 P64\n   P63 P128\n   P129 P1\nend\n\n"), "");
    EXPECT_EQ(saidOfFile(lines + "    P64 37.6 126.6 0\n    Q x 126.6 0\nend\n\n"),
              "132 이름 \"P64\"이(가) 66번째 줄에도 있습니다. DIST는 먼저 나온 점을 씁니다\n"
              "133:7+1 위도 \"x\"은(는) 수가 아니어서 0으로 읽힙니다. 이름에는 빈칸을 쓸 수 "
              "없습니다\n");
}

TEST(CheckRun, TheTenThousandthPointIsTheLast) {
    std::string lines = "WGS P0 37.3533 126.3229 0\n";
    for (int i = 1; i < 10002; ++i) lines += "    P" + std::to_string(i) + " 37.3533 126.3229 0\n";
    EXPECT_EQ(saidOfFile(lines + "word\nend\n\n"),
              "10001 10000개가 넘는 점이어서 실행이 여기서 멈춥니다 (오류 9). 파일을 나누십시오\n");
}

// From 129 degrees on, the grid point would be in the country; 320 km west of 123 it isn't.
TEST(CheckRun, AGridPointHasTheOriginOfThePointInFrontOfIt) {
    const std::string utm = "UTM B 4164000 180000 0\nend\n\n";
    EXPECT_EQ(saidOfFile(kOnePoint + utm), "");
    EXPECT_NE(saidOfFile("WGS A 37.3533 125.3229 0\n" + utm).find("밖에 있습니다"),
              std::string::npos);
    // From 131 degrees on, 250 km to the east of it.
    const std::string tm = "TM B 455000 450000 0\nend\n\n";
    EXPECT_EQ(saidOfFile(kOnePoint + tm), "");
    EXPECT_NE(saidOfFile("WGS A 37.3533 130.3229 0\n" + tm).find("밖에 있습니다"),
              std::string::npos);
}

TEST(CheckRun, OnAUtmOriginOfOnesOwnCoordinatesMayBeSmall) {
    EXPECT_EQ(saidOfFile("utm para\n6377397.155 299.1528128\n37.5 127\n0 0\n1\n"
                         "UTM A 377.3 126.3 0\nend\n\n"),
              "");
}

TEST(CheckRun, AStopThatNoKnownPointCausesIsSaidWithoutACure) {
    EXPECT_EQ(saidOfFile("7 para\n1e308 1e308 1e308\n1e308 1 1\n1e308\n" + kOnePoint + "end\n\n"),
              "5 실행이 멈춥니다 (오류 6): 값이 나타낼 수 있는 범위를 넘었습니다\n");
}

}  // namespace
}  // namespace kelvo
