#include "batch/wording.h"

#include <cmath>
#include <limits>

#include "common/fixed_width.h"
#include "common/number_text.h"
#include "common/text_constants.h"

namespace kelvo {

namespace {

constexpr std::string_view kDeveloperLine = "Program 개발자에게 알려 주시기 바랍니다.";

// A number as it is joined into a sentence: a positive one has a blank in its sign place.
std::string joinedNumber(double value) {
    std::string text(value < 0 ? "" : " ");
    return text += generalText(value);
}

std::string badSplit(double x, const DegreesMinutesSeconds& parts) {
    return "각도 " + genSub::FormatNum(x, 4, 10) + "을 도분초" + joinedNumber(parts.D) + "-" +
           joinedNumber(parts.M) + "-" + joinedNumber(parts.S) + " 로 환산할때 에러가 있습니다." +
           std::string(kLineEnd) + std::string(kDeveloperLine);
}

std::string badParse(double given, double magnitude) {
    return genSub::FormatNum(given, 4, 10) + "도분초" + "를  각도 " +
           genSub::FormatNum(magnitude, 4, 10) + " 로 환산할때 에러가 있습니다." +
           std::string(kLineEnd) + std::string(kDeveloperLine);
}

std::vector<std::string> textsOfAngle(const Remark& remark) {
    const double magnitude = remark.angle.degrees;
    std::vector<std::string> texts;
    if (!remark.angle.split.rebuilds)
        texts.push_back(badSplit(magnitude, remark.angle.split.parts));
    if (!remark.angle.rebuilds) texts.push_back(badParse(remark.given, magnitude));
    return texts;
}

}  // namespace

std::vector<std::string> textsOf(const Remark& remark) {
    switch (remark.kind) {
        case Remark::Kind::NotGeographic:
            return {"경위도로 변환 할 수 없는 GPS 좌표 입니다. 확인후 다시 변환 하십시오"};
        case Remark::Kind::NotProjected:
            return {
                "직교좌표로 변환할 수 없는 데이터 입니다. 타원체 제원과 경위도를 확인후 다시 "
                "하십시오"};
        case Remark::Kind::NotUnprojected:
            return {
                "경위도로 변환할 수 없는 직교좌표 입니다. 타원체 제원과 좌표를 확인후 다시 "
                "하십시오"};
        case Remark::Kind::DoubtfulAngle:
            return textsOfAngle(remark);
    }
    return {};
}

RuntimeFault faultOf(const FoundCorrection& uncorrected, std::span<const CorrPoint> known,
                     const std::string& CorPath) {
    const auto fault = [&](const std::string& text) {
        return RuntimeFault(uncorrected.fault, text + " (" + CorPath + ")");
    };
    switch (uncorrected.failure) {
        case NoCorrection::WeightTooLarge:
            return fault(
                "보정점 " + known[uncorrected.known].Name + "의 가중치를 거리로 나눈 값 " +
                (std::isfinite(uncorrected.weight) ? generalText(uncorrected.weight) : "무한대") +
                "이(가) 한계 " + generalText(double{std::numeric_limits<float>::max()}) +
                "을 넘었습니다");
        case NoCorrection::NoWeight:
            return known.empty() ? fault("보정점이 하나도 없습니다")
                                 : fault("보정점들의 가중치를 더한 값이 0입니다");
        case NoCorrection::NoHeight:
            return fault("표고의 차이를 아는 보정점의 가중치를 더한 값이 0입니다");
        case NoCorrection::TooLarge:
        case NoCorrection::None:
            break;
    }
    return fault("보정점들에서 구한 보정량이 나타낼 수 있는 범위를 넘었습니다");
}

void tell(MessageBoxes& messages, std::span<const Remark> remarks) {
    for (const Remark& remark : remarks)
        for (const std::string& text : textsOf(remark)) messages.tell(text);
}

void tell(MessageBoxes& messages, Remark::Kind kind, int times) {
    const Remark remark{.kind = kind};
    for (; times > 0; --times) tell(messages, {&remark, 1});
}

double reportedDegrees(MessageBoxes& messages, double given, const ParsedAngle& angle) {
    const Remark remark = doubtfulAngle(given, angle);
    tell(messages, {&remark, 1});
    return angle.degrees;
}

const DegreesMinutesSeconds& reportedParts(MessageBoxes& messages, double x,
                                           const SplitAngle& split) {
    if (!split.rebuilds) messages.tell(badSplit(x, split.parts));
    return split.parts;
}

}  // namespace kelvo
