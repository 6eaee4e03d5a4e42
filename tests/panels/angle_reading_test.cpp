// What is said beside the box of an angle, and the number that a typed angle becomes.
#include <gtest/gtest.h>

#include "panels/angle_text.h"

namespace kelvo {
namespace {

std::string inDegrees(std::string_view text) {
    return readingOf(text, CoordinateForm::Degrees);
}
std::string inDms(std::string_view text) {
    return readingOf(text, CoordinateForm::Dms);
}

constexpr const char* kEmpty = "빈칸: 0으로 계산합니다";
constexpr const char* kNoNumber = "수가 아닙니다: 0으로 계산합니다";
constexpr const char* kTooLarge = "각도로 보기에 너무 큰 수입니다";
constexpr const char* kSixty = "분이나 초가 60 이상입니다: 그 값 그대로 계산합니다";

TEST(AngleReading, SaysWhatIsWrongWithTheText) {
    for (const char* text : {"", " ", "   "}) EXPECT_EQ(inDms(text), kEmpty) << text;
    for (const char* text : {"abc", "x5", " abc", "°"}) EXPECT_EQ(inDms(text), kNoNumber) << text;
    for (const char* text : {"1e999", "720.001", "-720.001", "721", "100000"})
        EXPECT_EQ(inDegrees(text), kTooLarge) << text;
    for (const char* text : {"37.60", "37.6", "37.0060", "37.99", "-37.60", "0.0099"})
        EXPECT_EQ(inDms(text), kSixty) << text;
    // Ten decimals count: these are 60 seconds.
    EXPECT_EQ(inDms("36.00599999996"), kSixty);
    EXPECT_EQ(inDms("36.0059999999"), "36°1′0″");  // 59.999999 seconds
}

TEST(AngleReading, GoesToSevenHundredAndTwentyDegrees) {
    EXPECT_EQ(inDegrees("720"), "720°0′0″");
    EXPECT_EQ(inDegrees("-720"), "-720°0′0″");
    EXPECT_EQ(inDms("719.5959"), "719°59′59″");
}

TEST(AngleReading, ShowsFiveDecimalsOfASecondWithoutTheZerosAtTheEnd) {
    EXPECT_EQ(inDms("37.0503"), "37°5′3″");
    EXPECT_EQ(inDms("37.05031"), "37°5′3.1″");
    EXPECT_EQ(inDms("37.050300001"), "37°5′3.00001″");
    EXPECT_EQ(inDms("37.050309876"), "37°5′3.09876″");
    EXPECT_EQ(inDms("37.0503098764"), "37°5′3.09876″");
    EXPECT_EQ(inDms("37.0503098766"), "37°5′3.09877″");
    EXPECT_EQ(inDms("0.5959"), "0°59′59″");
    EXPECT_EQ(inDms("-0.0001"), "-0°0′1″");
    EXPECT_EQ(inDms("-37.3"), "-37°30′0″");
    EXPECT_EQ(inDms("0"), "0°0′0″");
    EXPECT_EQ(inDegrees("12.5125"), "12°30′45″");
    EXPECT_EQ(inDegrees("-0.0125"), "-0°0′45″");
    EXPECT_EQ(inDegrees("1e1"), "10°0′0″");
    EXPECT_EQ(inDegrees("37.75"), "37°45′0″");
}

TEST(AngleReading, TakesPlusPointAndBlanksInFrontForPartOfTheNumber) {
    EXPECT_EQ(inDegrees("+12.5"), "12°30′0″");
    EXPECT_EQ(inDegrees(".5"), "0°30′0″");
    EXPECT_EQ(inDegrees("  12.5 "), "12°30′0″");
    EXPECT_EQ(inDegrees("9"), "9°0′0″");
}

TEST(AngleReading, SaysThatTheRestIsNotRead) {
    EXPECT_EQ(inDegrees("12abc"), "12°0′0″ (그 뒤는 읽지 않습니다)");
    EXPECT_EQ(inDegrees("37,5"), "37°0′0″ (그 뒤는 읽지 않습니다)");
    EXPECT_EQ(inDms("37.30 N"), "37°30′0″ (그 뒤는 읽지 않습니다)");
    EXPECT_EQ(inDegrees("-"), "0°0′0″ (그 뒤는 읽지 않습니다)");
}

TEST(AngleReading, ShowsTheNumberThatATypedAngleBecomes) {
    EXPECT_EQ(inDms("37-35-33.2567"), "37°35′33.2567″ → 37.35332567");
    EXPECT_EQ(inDms("-37 5 3"), "-37°5′3″ → -37.0503");
    EXPECT_EQ(inDegrees("37-30-0 S"), "-37°30′0″ → -37.5");
}

TEST(TypedAngle, FillsMinutesAndSecondsToTwoPlaces) {
    const auto dms = [](const char* text) { return angleAsNumber(text, CoordinateForm::Dms); };
    EXPECT_EQ(dms("037-5-3"), "37.0503");
    EXPECT_EQ(dms("000-5-3.25"), "0.050325");
    EXPECT_EQ(dms("0-0-0"), "0.0000");
    EXPECT_EQ(dms("007-59-59.9"), "7.59599");
    EXPECT_EQ(dms("100-10-10"), "100.1010");
    EXPECT_EQ(dms("S37-5-3"), "-37.0503");
    EXPECT_EQ(dms("126-5-3W"), "-126.0503");
    EXPECT_EQ(dms("37-5-3N"), "37.0503");
    EXPECT_EQ(dms("126-5-3 E"), "126.0503");
    EXPECT_EQ(dms("-37 5 3"), "-37.0503");
    EXPECT_EQ(dms("37-59-60"), std::nullopt);
    EXPECT_EQ(dms("37-60-59"), std::nullopt);
}

TEST(TypedAngle, HasFifteenDigitsAsDecimalDegrees) {
    const auto degrees = [](const char* text) {
        return angleAsNumber(text, CoordinateForm::Degrees);
    };
    EXPECT_EQ(degrees("37-20-00"), "37.3333333333333");
    EXPECT_EQ(degrees("0-0-36"), "0.01");
    EXPECT_EQ(degrees("-0-1-30"), "-0.025");
    EXPECT_EQ(degrees("126-45-36.36"), "126.7601");
}

TEST(AngleWord, IsProperWithMinutesAndSecondsBelowSixty) {
    const auto proper = [](const char* minutes, const char* seconds) {
        CoordinateWord word;
        word.kind = CoordinateWord::Kind::Angle;
        word.degrees = "1";
        word.minutes = minutes;
        word.seconds = seconds;
        return isProper(word);
    };
    EXPECT_TRUE(proper("59", "59.99999"));
    EXPECT_TRUE(proper("0", "0"));
    EXPECT_FALSE(proper("60", "0"));
    EXPECT_FALSE(proper("0", "60"));
}

}  // namespace
}  // namespace kelvo
