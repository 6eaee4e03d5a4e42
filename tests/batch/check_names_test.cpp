// What the check says of names and pairs, every sentence whole.
#include "batch/check_names.h"

#include <gtest/gtest.h>

#include "batch/check_bench.h"

namespace kelvo {
namespace {

std::string saidOfNames(const std::string& lines) {
    return testing::placed(testing::check(lines + "end\n\n"));
}

// A point a line, on places that differ by a hundredth of a second.
std::string pointsNamed(const std::vector<std::string>& names) {
    std::string lines;
    int n = 10;
    for (const std::string& name : names)
        lines += (lines.empty() ? "WGS " : "    ") + name + " 37.3533" + std::to_string(n++) +
                 " 126.3229 0\n";
    return lines;
}

TEST(CheckNames, ANameThatCameBeforeIsSaidWithItsLine) {
    const std::string end = "에도 있습니다. DIST는 먼저 나온 점을 씁니다\n";
    EXPECT_EQ(saidOfNames(pointsNamed({"A", "b", "B", "a", "b"})),
              "3 이름 \"B\"이(가) 2번째 줄" + end + "4 이름 \"a\"이(가) 1번째 줄" + end +
                  "5 이름 \"b\"이(가) 2번째 줄" + end);
    // Said once, as the same name, though its ten columns are alike as well.
    EXPECT_EQ(saidOfNames(pointsNamed({"ABCDEFGHIJK", "ABCDEFGHIJK"})),
              "2 이름 \"ABCDEFGHIJK\"이(가) 1번째 줄" + end);
}

TEST(CheckNames, NamesThatAreAlikeInTenColumnsAreSaidToLookAlike) {
    const auto alike = [](const std::string& line, const std::string& name) {
        return line + "번째 줄의 점과 구별되지 않습니다: \"" + name + "\"\n";
    };
    const std::string begin = " 표에는 이름이 10칸까지만 나와 ";
    EXPECT_EQ(saidOfNames(pointsNamed({"X", "ABCDEFGHIJ", "ABCDEFGHIJK", "ABCDEFGHIJL"})),
              "3" + begin + alike("2", "ABCDEFGHIJ") + "4" + begin + alike("2", "ABCDEFGHIJ"));
    EXPECT_EQ(saidOfNames(pointsNamed({"인천부두끝1", "인천부두끝"})),
              "2" + begin + alike("1", "인천부두끝"));
    EXPECT_EQ(saidOfNames(pointsNamed({"ABCDEFGHI", "ABCDEFGHIJ", "ABCDEFGHI1"})), "");
}

TEST(CheckNames, APointWithoutANameIsNoDouble) {
    Findings findings(Finding::In::DataFile);
    CheckedNames names;
    names.addPoint("", {.number = 1, .text = ""}, {}, findings);
    names.addPoint("", {.number = 2, .text = ""}, {}, findings);
    EXPECT_TRUE(findings.list().empty());
}

TEST(CheckNames, APairNeedsTwoPointsThatCameBefore) {
    const std::string points = pointsNamed({"A", "B"});
    const std::string missing = "이(가) 없어 거리를 구하지 못합니다\n";
    EXPECT_EQ(saidOfNames(points + "DIST A X\n"), "3:8+1 점 \"X\"" + missing);
    EXPECT_EQ(saidOfNames(points + "DIST X B\n"), "3:6+1 점 \"X\"" + missing);
    EXPECT_EQ(saidOfNames(points + "DIST X Y\n"),
              "3:6+1 점 \"X\"" + missing + "3:8+1 점 \"Y\"" + missing);
    EXPECT_EQ(saidOfNames(points + "DIST A B\n     X A\n     b X\n"),
              "4:6+1 점 \"X\"" + missing + "5:8+1 점 \"X\"" + missing);
    const std::string two = "3 점의 이름이 두 개 있어야 합니다\n";
    EXPECT_EQ(saidOfNames(points + "DIST\n"), two);
    EXPECT_EQ(saidOfNames(points + "DIST A\n"), two);
    EXPECT_EQ(saidOfNames(points + "DIST A B\n     a b\n     B A\n"), "");
}

TEST(CheckNames, APointAfterThePairIsSaidToComeTooLate) {
    const std::string late =
        "4 첫 DIST 뒤에 있는 점 2개는 어느 표에도 나오지 않습니다. 점들을 모두 DIST 앞에 "
        "쓰십시오\n";
    EXPECT_EQ(
        saidOfNames(pointsNamed({"A", "B"}) +
                    "DIST A C\nWGS C 37.3533 126.3229 0\n    D 37.3534 126.3229 0\n"
                    "DIST A C\n"),
        "3:8+1 점 \"C\"은(는) 이 줄보다 뒤인 4번째 줄에 나와 거리를 구하지 못합니다\n" + late);
}

TEST(CheckNames, AThirdNameOfALineIsSaidNotToBeRead) {
    const std::string points = pointsNamed({"A", "B"});
    const std::string end = "은(는) 읽지 않습니다\n";
    const std::string begin = " DIST는 한 줄에서 이름 두 개만 읽습니다. ";
    EXPECT_EQ(saidOfNames(points + "DIST A B a\n     B A B\n"),
              "3:10+1" + begin + "\"a\"" + end + "4:10+1" + begin + "\"B\"" + end);
    EXPECT_EQ(saidOfNames(points + "DIST A B remark A\n"), "");
}

TEST(CheckNames, APairOfOnePointHasNoDistance) {
    EXPECT_EQ(saidOfNames(pointsNamed({"A", "B"}) + "DIST A a\n     B B\n"),
              "3:8+1 두 이름이 같은 점이어서 거리가 0입니다\n"
              "4:8+1 두 이름이 같은 점이어서 거리가 0입니다\n");
}

// The origins hold 10.405 seconds, which are 0.002890 degrees.
TEST(CheckNames, APairOnTwoOriginsIsSaidWithBoth) {
    EXPECT_EQ(saidOfNames("WGS A 37.3533 126.3229 0\n    B 37.3533 128.3229 0\nDIST A B\n"),
              "3 두 점의 TM 원점이 달라 거리와 방향에 뜻이 없습니다: \"A\" 127.00289도, \"B\" "
              "129.00289도\n");
    EXPECT_EQ(saidOfNames("add 0\nWGS A 37.3533 126.3229 0\n    B 37.3533 128.3229 0\nDIST A B\n"),
              "4 두 점의 TM 원점이 달라 거리와 방향에 뜻이 없습니다: \"A\" 127도, \"B\" 129도\n");
}

TEST(CheckNames, OriginsDifferByEachOfTheirFiveValues) {
    const Projection origin{.X0 = 500000, .Y0 = 200000, .Phi0 = 38, .Lam0 = 127, .S0 = 1};
    std::vector<Projection> others(6, origin);
    others[0].X0 += 1;
    others[1].Y0 += 1;
    others[2].Phi0 += 1;
    others[3].Lam0 += 0.0000006;
    others[4].S0 += 0.0001;
    const TextLine pair{.number = 3, .text = "DIST A B"};
    for (std::size_t n = 0; n < others.size(); ++n) {
        Findings findings(Finding::In::DataFile);
        CheckedNames names;
        names.addPoint("A", {.number = 1, .text = ""}, origin, findings);
        names.addPoint("B", {.number = 2, .text = ""}, others[n], findings);
        names.addPair(pair, 2);
        names.checkPairs(findings);
        EXPECT_EQ(findings.list().size(), n < 5 ? 1U : 0U) << n;
        if (n != 3) continue;
        EXPECT_EQ(findings.list()[0].text,
                  "두 점의 TM 원점이 달라 거리와 방향에 뜻이 없습니다: \"A\" 127도, \"B\" "
                  "127.000001도");
    }
}

}  // namespace
}  // namespace kelvo
