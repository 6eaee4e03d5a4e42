// Statuses as numbers: what each means, in both directions.
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "library/point_converter.h"
#include "support/usual_definition.h"

namespace kelvo {
namespace {

using enum Remark::Kind;

const std::string kRange = "각도가 16비트 정수의 범위(-32768~32767)를 벗어났습니다";
const std::string kDoubtful = "도분초로 환산할때 에러가 있는 각도입니다";
const std::string kNoGrid =
    "직교좌표로 변환할 수 없는 데이터 입니다. 타원체 제원과 경위도를 확인후 다시 하십시오";
const std::string kNoPosition =
    "경위도로 변환할 수 없는 직교좌표 입니다. 타원체 제원과 좌표를 확인후 다시 하십시오";
const std::string kNoLatitude =
    "경위도로 변환 할 수 없는 GPS 좌표 입니다. 확인후 다시 변환 하십시오";

PointConverter withKnownPoints(std::vector<std::string> names) {
    Definition definition = testing::usualDefinition();
    std::vector<CorrPoint> known;
    for (std::string& name : names) known.push_back({.Name = std::move(name), .Weight = 1});
    definition.corrects = true;
    definition.known = std::make_shared<const std::vector<CorrPoint>>(std::move(known));
    return {std::move(definition), "k.cor"};
}

PointStatus withRemarks(const std::vector<std::pair<Remark::Kind, int>>& kinds) {
    PointStatus status;
    for (const auto& [kind, times] : kinds)
        for (int i = 0; i < times; ++i) status.remarks.push_back({.kind = kind});
    return status;
}

PointStatus withFault(Fault fault, const std::string& text = {}) {
    PointStatus status;
    status.fault = RuntimeFault(fault, text.empty() ? std::string(faultSentence(fault)) : text);
    return status;
}

PointStatus uncorrectedBy(NoCorrection failure, std::size_t known = 0) {
    PointStatus status;
    status.uncorrected = FoundCorrection{.value = {}, .failure = failure, .known = known};
    return status;
}

// The numbers are those of every release: a file that was written with them is read years later.
TEST(StatusCode, EveryFaultHasItsNumberAndItsText) {
    const PointConverter converter = withKnownPoints({"A", "B"});
    const std::vector<std::tuple<PointStatus, std::int32_t, std::string>> faults{
        {withFault(Fault::InvalidCall), 1, "계산할 수 없는 값입니다"},
        {withFault(Fault::Overflow), 2, "값이 나타낼 수 있는 범위를 넘었습니다"},
        {withFault(Fault::Overflow, "정수"), 3, kRange},
        {withFault(Fault::DivisionByZero), 4, "0으로 나누었습니다"},
        {uncorrectedBy(NoCorrection::WeightTooLarge, 1), 5 + 2048,
         "보정점 B의 가중치를 거리로 나눈 값이 한계를 넘었습니다 (k.cor)"},
        {uncorrectedBy(NoCorrection::WeightTooLarge, 0), 5,
         "보정점 A의 가중치를 거리로 나눈 값이 한계를 넘었습니다 (k.cor)"},
        {uncorrectedBy(NoCorrection::NoWeight), 6, "보정점들의 가중치를 더한 값이 0입니다 (k.cor)"},
        {uncorrectedBy(NoCorrection::NoHeight), 7,
         "표고의 차이를 아는 보정점의 가중치를 더한 값이 0입니다 (k.cor)"},
        {uncorrectedBy(NoCorrection::TooLarge), 8,
         "보정점들에서 구한 보정량이 나타낼 수 있는 범위를 넘었습니다 (k.cor)"},
        {withFault(Fault::DiskFull), 9, "계산할 수 없는 점입니다"},
    };
    for (const auto& [status, code, text] : faults) {
        EXPECT_EQ(converter.code(status), code) << text;
        EXPECT_EQ(converter.textOfCode(code), text);
    }
}

TEST(StatusCode, EveryRemarkHasItsNumberAndItsText) {
    const PointConverter converter = withKnownPoints({});
    const auto isBothWays = [&](const std::vector<std::pair<Remark::Kind, int>>& kinds,
                                std::int32_t code, const std::string& text) {
        EXPECT_EQ(converter.code(withRemarks(kinds)), code) << text;
        EXPECT_EQ(converter.textOfCode(code), text);
    };
    isBothWays({{NotProjected, 1}}, 16, kNoGrid);
    isBothWays({{NotProjected, 3}}, 48, kNoGrid + "; " + kNoGrid + "; " + kNoGrid);
    isBothWays({{NotGeographic, 1}}, 128, kNoLatitude);
    isBothWays({{NotUnprojected, 1}}, 256, kNoPosition);
    isBothWays({{DoubtfulAngle, 1}}, 512, kDoubtful);
    isBothWays({{DoubtfulAngle, 3}}, 1536, kDoubtful + "; " + kDoubtful + "; " + kDoubtful);
    isBothWays({{NotProjected, 1}, {NotGeographic, 1}, {NotUnprojected, 1}, {DoubtfulAngle, 1}},
               16 + 128 + 256 + 512,
               kDoubtful + "; " + kNoPosition + "; " + kNoLatitude + "; " + kNoGrid);
}

TEST(StatusCode, MoreRemarksThanANumberHoldsCountAsTheMost) {
    const PointConverter converter = withKnownPoints({});
    EXPECT_EQ(converter.code(withRemarks({{NotProjected, 7}})), 7 * 16);
    EXPECT_EQ(converter.code(withRemarks({{NotProjected, 8}})), 7 * 16);
    EXPECT_EQ(converter.code(withRemarks({{NotGeographic, 2}})), 128);
    EXPECT_EQ(converter.code(withRemarks({{NotUnprojected, 2}})), 256);
    EXPECT_EQ(converter.code(withRemarks({{DoubtfulAngle, 4}})), 3 * 512);
    EXPECT_EQ(converter.code(uncorrectedBy(NoCorrection::WeightTooLarge, 255)), 5 + 255 * 2048);
    EXPECT_EQ(converter.code(uncorrectedBy(NoCorrection::WeightTooLarge, 256)), 5 + 255 * 2048);
}

TEST(StatusCode, AFaultStandsAfterTheRemarks) {
    const PointConverter converter = withKnownPoints({"A"});
    PointStatus status = withRemarks({{NotProjected, 1}});
    status.fault = RuntimeFault(Fault::DivisionByZero, "x");
    EXPECT_EQ(converter.code(status), 20);
    EXPECT_EQ(converter.textOfCode(20), kNoGrid + "; 0으로 나누었습니다");
    EXPECT_EQ(converter.textOfCode(16 + 6),
              kNoGrid + "; 보정점들의 가중치를 더한 값이 0입니다 (k.cor)");
}

TEST(StatusCode, WhatIsNoCodeHasNoText) {
    const PointConverter converter = withKnownPoints({"A", "B"});
    constexpr std::int32_t kBeyond = 524288;
    for (const std::int32_t code : {0, -1, -15, 10, 15, kBeyond, kBeyond + 1, kBeyond + kBeyond + 1,
                                    5 + 2 * 2048, 16 + 5 + 2 * 2048})
        EXPECT_EQ(converter.textOfCode(code), "") << code;
    // The greatest one, and one of points that aren't known.
    EXPECT_EQ(converter.textOfCode(524287 - 13), [] {
        std::string all = kDoubtful + "; " + kDoubtful + "; " + kDoubtful + "; " + kNoPosition +
                          "; " + kNoLatitude;
        for (int i = 0; i < 7; ++i) all += "; " + kNoGrid;
        return all + "; 값이 나타낼 수 있는 범위를 넘었습니다";
    }());
    EXPECT_EQ(PointConverter(testing::usualDefinition(), "k").textOfCode(5), "");
}

}  // namespace
}  // namespace kelvo
