// What the check says of parameters: every sentence whole, every limit from both sides.
#include "batch/check_parameters.h"

#include <gtest/gtest.h>

#include "batch/check_bench.h"

namespace kelvo {
namespace {

// What is said of parameter lines in a file without a point, but for that.
std::string saidOf(const std::string& lines) {
    const auto count = std::count(lines.begin(), lines.end(), '\n');
    const std::string noPoint =
        std::to_string(count + 1) + " 여기까지 변환할 점이 하나도 없습니다\n";
    std::string said = testing::placed(testing::check(lines + "end\n\n"));
    EXPECT_TRUE(said.ends_with(noPoint)) << lines << said;
    said.resize(said.size() - std::min(said.size(), noPoint.size()));
    return said;
}

TEST(CheckParameters, AValueThatIsNoNumberIsNamedByItsPlaceInTheLine) {
    const std::string zero = "은(는) 수가 아니어서 0으로 읽힙니다\n";
    EXPECT_EQ(saidOf("7 para\nx y z\n1 u 3\nv\n"),
              "2:1+1 첫째 값 \"x\"" + zero + "2:3+1 둘째 값 \"y\"" + zero + "2:5+1 셋째 값 \"z\"" +
                  zero + "3:3+1 둘째 값 \"u\"" + zero + "4:1+1 첫째 값 \"v\"" + zero);
    EXPECT_EQ(saidOf("7 para\n1 2 1e999 x\n1 2 3 y\n4 z\n"), "2:5+5 셋째 값 \"1e999\"" + zero);
    EXPECT_EQ(saidOf("tm para\n6377397.155 299.1528128\n38 127-30\n500000 200000\n1\n"),
              "3:4+6 둘째 값 \"127-30\"에서 127만 읽힙니다\n");
}

TEST(CheckParameters, ALineWithTooFewValuesIsSaidToBeFilledWithZeros) {
    EXPECT_EQ(saidOf("7 para\n1 2\n1\n\n"),
              "2 수 3개가 있어야 할 줄에 2개뿐입니다. 나머지는 0이 됩니다\n"
              "3 수 3개가 있어야 할 줄에 1개뿐입니다. 나머지는 0이 됩니다\n"
              "4 수 1개가 있어야 할 줄에 0개뿐입니다. 나머지는 0이 됩니다\n");
    EXPECT_EQ(saidOf("tm para\n6377397.155 299.1528128\n38 127\n500000\n1\n"),
              "4 수 2개가 있어야 할 줄에 1개뿐입니다. 나머지는 0이 됩니다\n");
    EXPECT_EQ(saidOf("tm para\n6377397.155 299.1528128\n38 127 x\n500000 200000\n1 x\n"), "");
}

TEST(CheckParameters, AWordAfterFirstAdjustmentIsSaidToMoveTheValues) {
    const std::string end = ". 세 값은 1st 바로 뒤에 쓰십시오\n";
    EXPECT_EQ(saidOf("1st corr 0.12 -0.23 0.76\n"),
              "1:5+4 \"corr\"이(가) 첫째 값 0으로 읽힙니다: 위도 0초, 경도 0.12초, 높이 -0.23 m, "
              "\"0.76\"은(는) 버림" +
                  end);
    for (const std::string rest : {"", " x"})
        EXPECT_EQ(
            saidOf("1st corr 1 2" + rest + "\n"),
            "1:5+4 \"corr\"이(가) 첫째 값 0으로 읽힙니다: 위도 0초, 경도 1초, 높이 2 m" + end);
}

TEST(CheckParameters, TheFirstOfThreeAdjustmentsThatIsNoNumberIsNamed) {
    const std::string three = "1st 뒤의 세 값은 위도, 경도(초)와 높이(m)입니다. ";
    EXPECT_EQ(saidOf("1st\n"), "1:1+3 " + three + "없는 값은 0으로 읽힙니다\n");
    EXPECT_EQ(saidOf("1st 1 x 3\n"), "1:7+1 " + three + "\"x\" 0으로 읽힙니다\n");
    EXPECT_EQ(saidOf("1st 1 x yy\n"), "1:7+1 " + three + "\"x\" 0으로 읽힙니다\n");
    EXPECT_EQ(saidOf("1st 1 2 yy\n"), "1:9+2 " + three + "\"yy\" 0으로 읽힙니다\n");
    EXPECT_EQ(saidOf("1st 1-2 2 3\n"), "1:5+3 " + three + "\"1-2\" 0으로 읽힙니다\n");
    for (const std::string line : {"1st 1 2 3", "1st 1 2", "1st 1", "1st 1 2 3 x"})
        EXPECT_EQ(saidOf(line + "\n"), "") << line;
}

TEST(CheckParameters, AnAdjustmentOfMoreThanAMinuteOrAHundredMetresIsTooLarge) {
    const auto angle = [](const std::string& seconds) {
        return "1:1+3 1차 조정량이 " + seconds +
               "초로 1.5 km를 넘습니다. 점의 줄이면 앞에 WGS, UGS, TM, UTM을 쓰십시오\n";
    };
    EXPECT_EQ(saidOf("1st 60 -60 100\n"), "");
    EXPECT_EQ(saidOf("1st -60 60 -100\n"), "");
    EXPECT_EQ(saidOf("1st 60.5 0 0\n"), angle("60.5"));
    EXPECT_EQ(saidOf("1st -60.5 1 0\n"), angle("60.5"));
    EXPECT_EQ(saidOf("1st 0 60.5 0\n"), angle("60.5"));
    EXPECT_EQ(saidOf("1st 61 -62 101\n"), angle("62"));
    EXPECT_EQ(saidOf("1st 0 0 100.5\n"), "1:9+5 높이의 1차 조정량이 100.5 m입니다\n");
    EXPECT_EQ(saidOf("1st 0 0 -100.5\n"), "1:9+6 높이의 1차 조정량이 -100.5 m입니다\n");
}

TEST(CheckParameters, AZoneIsAWholeNumberFromOneToSix) {
    const std::string said =
        " zone 뒤에는 1 서부, 2 중부, 3 동부, 4 동해, 5 제주도, 6 사용자 가운데 하나를 씁니다\n";
    EXPECT_EQ(saidOf("zone\n"), "1:1+4" + said);
    for (const std::string zone : {"0", "7", "-1", "2.5", "0.9", "6.1", "x", "2-1"})
        EXPECT_EQ(saidOf("zone " + zone + "\n"), "1:6+" + std::to_string(zone.size()) + said);
    for (const std::string zone : {"1", "2", "3", "4", "5", "6", "2.0"})
        EXPECT_EQ(saidOf("zone " + zone + "\n"), "") << zone;
}

TEST(CheckParameters, AfterAddStandsZeroOneOrTheSecondsThemselves) {
    const std::string adds = " add 뒤의 수가 얼마이든 더하는 것은 10.405초입니다\n";
    const std::string addsNone =
        " 10.405초를 더하지 않는 것으로 읽힙니다. 더하려면 add 10.405, 더하지 않으려면 add 0이라고 "
        "쓰십시오\n";
    for (const std::string number : {"0", "1", "10.405", "0.0"})
        EXPECT_EQ(saidOf("add " + number + "\n"), "") << number;
    for (const std::string number : {"2", "0.5", "10.406", "10-405"})
        EXPECT_EQ(saidOf("add " + number + "\n"), "1:5+" + std::to_string(number.size()) + adds);
    for (const std::string number : {"-1", "x", "1e-60", "0-1"})
        EXPECT_EQ(saidOf("add " + number + "\n"),
                  "1:5+" + std::to_string(number.size()) + addsNone);
    EXPECT_EQ(saidOf("add\n"), "1:1+3" + addsNone);
}

std::string seven(const std::string& shift, const std::string& rotation = "0 0 0") {
    return "7 para\n" + shift + "\n" + rotation + "\n0\n";
}

TEST(CheckParameters, AShiftInUseHereWithItsSignsTurnedIsKnownByAllThreeOfItsValues) {
    const std::string said =
        "1 사용자 타원체에서 WGS84로 가는 값입니다. 여기의 방향은 반대이므로 일곱 값의 부호를 모두 "
        "바꾸십시오\n";
    for (const std::string shift :
         {"-115.8 474.99 674.11", "-146.44 507.89 681.46", "-144.778 503.702 684.67"}) {
        EXPECT_EQ(saidOf(seven(shift)), said) << shift;
        EXPECT_EQ(saidOf(seven(shift, "1 2 3")), said) << shift;
        std::string other = shift;
        other.back() = '9';
        EXPECT_EQ(saidOf(seven(other)), "") << other;
        EXPECT_EQ(saidOf(seven(shift.substr(1))), "") << shift;
        other = shift;
        other.insert(other.find(' ') + 1, "-");
        EXPECT_EQ(saidOf(seven(other)), "") << other;
    }
    for (const std::string shift :
         {"115.8 -474.99 -674.11", "146.44 -507.89 -681.46", "144.778 -503.702 -684.67"})
        EXPECT_EQ(saidOf(seven(shift, "1 2 3")), "") << shift;
}

TEST(CheckParameters, TheShiftWithAPivotIsKnownInBothDirectionsWhereItRotates) {
    const std::string said =
        "1 중심점이 있는 Molodensky-Badekas 식의 값이라 16 m 넘게 틀립니다. 중심점 없이 쓸 값은 "
        "numbers.ko.md의 '매개변수를 넣을 때'에 있습니다\n";
    for (const std::string shift : {"145.907 -505.034 -685.756", "-145.907 505.034 685.756"}) {
        for (const std::string rotation : {"1.16 0 0", "0 2.3 0", "0 0 -1.6"})
            EXPECT_EQ(saidOf(seven(shift, rotation)), said) << rotation;
        EXPECT_EQ(saidOf(seven(shift)), "") << shift;
    }
    for (const std::string shift :
         {"145.908 -505.034 -685.756", "145.907 -505.035 -685.756", "145.907 -505.034 -685.757",
          "-145.908 505.034 685.756", "-145.907 505.035 685.756", "-145.907 505.034 685.757"})
        EXPECT_EQ(saidOf(seven(shift, "1 2 3")), "") << shift;
}

struct Grid {
    std::string a = "6377397.155";
    std::string f = "299.1528128";
    std::string Phi0 = "38";
    std::string Lam0 = "127";
    std::string S0 = "1";

    [[nodiscard]] std::string lines() const {
        return " para\n" + a + " " + f + "\n" + Phi0 + " " + Lam0 + "\n500000 200000\n" + S0 + "\n";
    }
};

TEST(CheckParameters, AGridOutsideOfWhatTheEarthAndTheCountryHaveIsRefusedValueByValue) {
    const std::string end = "은(는) 맞지 않습니다\n";
    for (const std::string word : {"tm", "utm"}) {
        const auto said = [&](const Grid& grid) { return saidOf(word + grid.lines()); };
        for (const Grid& grid : std::vector<Grid>{{},
                                                  {.a = "6360000"},
                                                  {.a = "6390000"},
                                                  {.f = "290"},
                                                  {.f = "310"},
                                                  {.f = "0.00335"},
                                                  {.Phi0 = "0"},
                                                  {.Phi0 = "45"},
                                                  {.Lam0 = "100"},
                                                  {.Lam0 = "150"},
                                                  {.S0 = "0.99"},
                                                  {.S0 = "1.01"}})
            EXPECT_EQ(said(grid), "") << grid.lines();
        for (const std::string a : {"6359999.5", "6390000.5"})
            EXPECT_EQ(said({.a = a}), "1 장반경(m) " + a + end);
        for (const std::string f : {"289.5", "310.5", "0.0035", "0.0032", "1", "0", "-0.5"})
            EXPECT_EQ(said({.f = f}), "1 편평도의 역수 " + f + end);
        for (const std::string Phi0 : {"-0.5", "45.5"})
            EXPECT_EQ(said({.Phi0 = Phi0}), "1 원점 위도(도) " + Phi0 + end);
        for (const std::string Lam0 : {"99.5", "150.5"})
            EXPECT_EQ(said({.Lam0 = Lam0}), "1 원점 경도(도) " + Lam0 + end);
        for (const std::string S0 : {"0.985", "1.015"})
            EXPECT_EQ(said({.S0 = S0}), "1 축척계수 " + S0 + end);
        EXPECT_EQ(said({.a = "1", .f = "2", .Phi0 = "50", .Lam0 = "3", .S0 = "4"}),
                  "1 장반경(m) 1" + end + "1 편평도의 역수 2" + end + "1 원점 위도(도) 50" + end +
                      "1 원점 경도(도) 3" + end + "1 축척계수 4" + end);
    }
}

TEST(CheckParameters, AUtmOriginIsOneOfTwo) {
    const std::string said =
        " UTM 원점은 123과 129뿐이며, 점이면 X와 Y가 있어야 합니다. 이 줄은 아무 일도 하지 "
        "않습니다\n";
    EXPECT_EQ(saidOf("UTM\n"), "1:1+3" + said);
    EXPECT_EQ(saidOf("UTM 127\n"), "1:5+3" + said);
    EXPECT_EQ(saidOf("UTM A 0 0\n"), "1:5+1" + said);
    EXPECT_EQ(saidOf("UTM 123\nUTM 129\n"), "");
}

}  // namespace
}  // namespace kelvo
