// Why a text isn't taken for one point, and how far each rule reaches.
#include <gtest/gtest.h>

#include "panels/coordinate_text.h"

namespace kelvo {
namespace {

using Read = std::vector<std::string>;

constexpr const char* kNoPointText =
    "한 점의 좌표로 읽을 수 없습니다. 위도 경도 높이 (또는 X Y 높이) 차례로 복사하십시오";
constexpr const char* kTwoWaysText =
    "점 이름인지 좌표인지 알 수 없어 붙여 넣지 않았습니다. 이름을 빼고 복사하십시오";
constexpr const char* kCommaText =
    "쉼표가 소수점인지 나눔표인지 알 수 없어 붙여 넣지 않았습니다. 소수점은 점(.)으로 쓰십시오";
constexpr const char* kManyPointsText =
    "여러 점이 들어 있어 붙여 넣지 않았습니다. 한 점만 복사하십시오";
constexpr const char* kWholeDegreesText =
    "도, 분, 초인지 도인지 알 수 없어 붙여 넣지 않았습니다. 도는 소수점까지 쓰십시오";

std::string refusalOf(std::string_view text, CoordinateForm form) {
    const CoordinateTexts read = readCoordinates(text, form);
    EXPECT_TRUE(read.texts.empty()) << text;
    return read.refusal;
}

Read taken(std::string_view text, CoordinateForm form) {
    const CoordinateTexts read = readCoordinates(text, form);
    EXPECT_EQ(read.refusal, "") << text;
    return read.texts;
}

constexpr auto kDms = CoordinateForm::Dms;
constexpr auto kDegrees = CoordinateForm::Degrees;
constexpr auto kGrid = CoordinateForm::Grid;

TEST(RefusedPoint, IsNoPointWhereTheWordsDoNotFit) {
    for (const char* text :
         {"", "계양산", "37.35", "37.35 126.32 30 4", "37.35 A5 126.32 30", "37.35 계양산 126.32",
          "37.35 126.32 30 A5", "3.5 37.35 126.32 30", "계양산 101 37.35 126.32 30",
          "-101 37.35 126.32 30", "101N 37.35 126.32 30", "101 102 37.35 126.32 30"})
        EXPECT_EQ(refusalOf(text, kDms), kNoPointText) << text;
    for (const char* text : {"454572.77", "454572.77N 159435.67E", "37-35-33 126-32-29",
                             "1e999 5.5", "5.5 1e999", "999 2000", "2000 999", "a 999.5"})
        EXPECT_EQ(refusalOf(text, kGrid), kNoPointText) << text;
}

TEST(RefusedPoint, MayBeANameOrACoordinate) {
    EXPECT_EQ(refusalOf("38 37.5 126.5", kDegrees), kTwoWaysText);
    EXPECT_EQ(refusalOf("1 500.25 800.75", kGrid), kTwoWaysText);
    EXPECT_EQ(refusalOf("999 2000 30", kGrid), kTwoWaysText);
    EXPECT_EQ(refusalOf("2000 999 30", kGrid), kTwoWaysText);
    EXPECT_EQ(refusalOf("1001 1002 1003", kGrid), kTwoWaysText);
    EXPECT_EQ(refusalOf("WGS 38 37.5 126.5", kDegrees), kTwoWaysText);
}

TEST(RefusedPoint, HasACommaThatMayBeADecimalOne) {
    EXPECT_EQ(refusalOf("37,5 126,5", kDegrees), kCommaText);
    EXPECT_EQ(refusalOf("37.5,126.5 30", kDegrees), kCommaText);
    EXPECT_EQ(refusalOf("454572.5,159435,30", kGrid), kCommaText);
    EXPECT_EQ(refusalOf("454572,159435.5,30", kGrid), kCommaText);
    EXPECT_EQ(taken("454572.5,159435.5,30", kGrid), (Read{"454572.5", "159435.5", "30"}));
    EXPECT_EQ(taken("454572, 159435, 30", kGrid), (Read{"454572", "159435", "30"}));
}

TEST(RefusedPoint, IsMoreThanOne) {
    EXPECT_EQ(refusalOf("A 37.35 126.32 30\nB 37.35 126.32 31", kDms), kManyPointsText);
    EXPECT_EQ(refusalOf("37.35 126.32 30\r\n\r\n37.35 126.32 31\r\n", kDms), kManyPointsText);
    EXPECT_EQ(refusalOf("454572.5 159435.5\n454573.5 159436.5\n1.5 2.5", kGrid), kManyPointsText);
    EXPECT_EQ(taken("\n37.35 126.32 30\n\n", kDms), (Read{"37.35", "126.32", "30"}));
    EXPECT_EQ(taken("도근점\n37.35 126.32 30\n확인", kDms), (Read{"37.35", "126.32", "30"}));
    EXPECT_EQ(taken("37.35\n126.32\n30", kDms), (Read{"37.35", "126.32", "30"}));
}

TEST(RefusedPoint, HasWholeDegreesThatMayLackTheirMinutes) {
    EXPECT_EQ(refusalOf("37 126.5 30", kDegrees), kWholeDegreesText);
    EXPECT_EQ(refusalOf("37.5 126 30", kDegrees), kWholeDegreesText);
    EXPECT_EQ(refusalOf("37 126", kDms), kWholeDegreesText);
    EXPECT_EQ(refusalOf("37,126,30", kDegrees), kWholeDegreesText);
    EXPECT_EQ(taken("37° 126° 30", kDegrees), (Read{"37", "126", "30"}));
    EXPECT_EQ(taken("37.0 126.0 30", kDegrees), (Read{"37.0", "126.0", "30"}));
}

TEST(PastedWords, InFrontAreANameOrACommandAndAtTheEndARemark) {
    const Read point{"37.35", "126.32", "30"};
    for (const char* text :
         {"계양산 37.35 126.32 30", "계양산 1등 37.35 126.32 30", "37.35 126.32 30 삼각점 확인",
          "WGS 101 37.35 126.32 30", "ugs 101 37.35 126.32 30", "Tm 101 37.35 126.32 30",
          "utm 101 37.35 126.32 30", "wgs 계양산 37.35 126.32 30 확인", "1-2-3 37.35 126.32 30"})
        EXPECT_EQ(taken(text, kDms), point) << text;
    // Behind a name, digits are no second name.
    EXPECT_EQ(refusalOf("A 101 37.35 126.32", kDms), kNoPointText);
    EXPECT_EQ(refusalOf("WGS84 101 37.35 126.32 30", kDms), kNoPointText);
}

TEST(PastedHeight, IsBelowTenThousandMetres) {
    EXPECT_EQ(taken("37.35 126.32 9999.9", kDms).size(), 3U);
    EXPECT_EQ(taken("37.35 126.32 -9999.9", kDms).size(), 3U);
    EXPECT_EQ(refusalOf("37.35 126.32 10000", kDms), kNoPointText);
    EXPECT_EQ(refusalOf("37.35 126.32 -10000", kDms), kNoPointText);
    EXPECT_EQ(refusalOf("37.35 126.32 1-2-3", kDms), kNoPointText);
    EXPECT_EQ(refusalOf("37.35 126.32 30N", kDms), kNoPointText);
}

TEST(PastedLatitude, GoesToNinetyDegreesAndTheLongitudeToAHundredAndEighty) {
    EXPECT_EQ(taken("90.0 180.0", kDegrees), (Read{"90.0", "180.0"}));
    EXPECT_EQ(taken("-90.0 -180.0", kDegrees), (Read{"-90.0", "-180.0"}));
    EXPECT_EQ(taken("90-00-00 180-00-00", kDms), (Read{"90.0000", "180.0000"}));
    for (const char* text : {"90.0001 180.0", "-90.0001 180.0", "90.0 180.0001", "90.0 -180.0001"})
        EXPECT_EQ(refusalOf(text, kDegrees), kNoPointText) << text;
    for (const char* text :
         {"90-00-00.1 180-00-00", "90-00-00 180-00-00.1", "90 00 00.1 180 00 00"})
        EXPECT_EQ(refusalOf(text, kDms), kNoPointText) << text;
}

TEST(PastedHemisphere, FitsItsCoordinateAndExcludesAMinus) {
    EXPECT_EQ(taken("37.5N 126.5E", kDegrees), (Read{"37.5", "126.5"}));
    EXPECT_EQ(taken("37.5S 126.5W", kDegrees), (Read{"-37.5", "-126.5"}));
    EXPECT_EQ(taken("0.0N 0.0E", kDegrees), (Read{"0.0", "0.0"}));
    EXPECT_EQ(taken("37-30-00S 126-30-00W", kDms), (Read{"-37.3000", "-126.3000"}));
    for (const char* text :
         {"37.5E 126.5E", "37.5W 126.5E", "37.5N 126.5N", "37.5N 126.5S", "-37.5S 126.5E",
          "37.5N -126.5W", "-37-30-00N 126-30-00E", "37-30-00N -126-30-00W"})
        EXPECT_EQ(refusalOf(text, kDegrees), kNoPointText) << text;
}

TEST(PastedNumber, OfAnAngleIsSpeltWithoutAnExponentAndInTheFormOfItsBox) {
    EXPECT_EQ(refusalOf("3.75e1 126.5", kDegrees), kNoPointText);
    EXPECT_EQ(refusalOf("37.5 1.265e2", kDegrees), kNoPointText);
    EXPECT_EQ(taken("+37.5 -126.5 3e1", kDegrees), (Read{"37.5", "-126.5", "3e1"}));
    EXPECT_EQ(taken("37.5959 126.0000", kDms), (Read{"37.5959", "126.0000"}));
    EXPECT_EQ(taken("37.5 126.", kDms), (Read{"37.5", "126."}));
    EXPECT_EQ(taken("37.59595 126.005999", kDms), (Read{"37.59595", "126.005999"}));
    for (const char* text : {"37.6 126.5", "37.60 126.5", "37.006 126.5", "37.0060 126.5",
                             "37.5 126.9", "37.5° 126.5", "37.5 126.5°"})
        EXPECT_EQ(refusalOf(text, kDms), kNoPointText) << text;
    EXPECT_EQ(taken("37.6 126.0060", kDegrees), (Read{"37.6", "126.0060"}));
}

TEST(PastedThreeWords, AreAnAngleWithItsSignAndHemisphere) {
    EXPECT_EQ(taken("-37 5 3.5 -126 32 29", kDms), (Read{"-37.05035", "-126.3229"}));
    EXPECT_EQ(taken("37 5 3.5S 126 32 29W 30", kDms), (Read{"-37.05035", "-126.3229", "30"}));
    EXPECT_EQ(taken("S37 5 3.5 W126 32 29", kDms), (Read{"-37.05035", "-126.3229"}));
    EXPECT_EQ(taken("037 05 03 126 32 29", kDms), (Read{"37.0503", "126.3229"}));
    EXPECT_EQ(taken("37 59 59.5 126 59 59", kDms), (Read{"37.59595", "126.5959"}));
    EXPECT_EQ(taken("-37 30 0 126 45 36", kDegrees), (Read{"-37.5", "126.76"}));
    for (const char* text :
         {"37.0 5 3 126 32 29", "0037 5 3 126 32 29", "37 005 3 126 32 29", "37 5.0 3 126 32 29",
          "37 5 003 126 32 29", "37 5 003.5 126 32 29", "37 5 -3 126 32 29", "37 -5 3 126 32 29",
          "37 5 3e0 126 32 29", "37 5 3° 126 32 29", "37° 5 3 126 32 29", "37 60 3 126 32 29",
          "37 5 60 126 32 29", "-37 5 3S 126 32 29", "37 5 3E 126 32 29", "37 5 3 126 32 29N",
          "37 5 3 126 32", "37 5 1-2-3 126 32 29"})
        EXPECT_EQ(refusalOf(text, kDms), kNoPointText) << text;
}

TEST(PastedGridPoint, HasCoordinatesOfAThousandMetresAndMoreIfItMayHaveANameOfDigits) {
    EXPECT_EQ(taken("1000 2000 30", kGrid), (Read{"1000", "2000", "30"}));
    EXPECT_EQ(taken("2000 1000 30", kGrid), (Read{"2000", "1000", "30"}));
    EXPECT_EQ(taken("101 1000 1000", kGrid), (Read{"1000", "1000"}));
    EXPECT_EQ(taken("1500 -2000.5 30", kGrid), (Read{"1500", "-2000.5", "30"}));
    EXPECT_EQ(taken("101 -1500.5 2000.5", kGrid), (Read{"-1500.5", "2000.5"}));
    EXPECT_EQ(refusalOf("101 999.9 1000", kGrid), kTwoWaysText);
    EXPECT_EQ(refusalOf("101 1000 999.9", kGrid), kTwoWaysText);
    // With a name in front, or decimals in the first number, there is no doubt.
    EXPECT_EQ(taken("A 12 20 3", kGrid), (Read{"12", "20", "3"}));
    EXPECT_EQ(taken("12.5 20 3", kGrid), (Read{"12.5", "20", "3"}));
}

}  // namespace
}  // namespace kelvo
