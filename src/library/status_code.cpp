// Statuses as numbers. From the lowest bit: four for the fault, three for the number of positions
// without grid coordinates, one each for the three other remarks, eight for the known point.
#include <algorithm>
#include <array>
#include <string_view>

#include "batch/wording.h"
#include "common/one_line.h"
#include "library/point_converter.h"

namespace kelvo {

namespace {

enum class EndedBy : unsigned {
    Nothing,
    InvalidCall,
    Overflow,
    BeyondInteger16,
    DivisionByZero,
    WeightTooLarge,
    NoWeight,
    NoHeight,
    CorrectionTooLarge,
    Unknown,
};

constexpr unsigned kFaultBits = 4;
constexpr unsigned kMostNotProjected = 7;

struct Field {
    unsigned shift;
    unsigned mask;
};
constexpr Field kEndedBy{0, 15};
constexpr Field kNotProjected{kFaultBits, kMostNotProjected};
constexpr Field kNotGeographic{7, 1};
constexpr Field kNotUnprojected{8, 1};
constexpr Field kDoubtfulAngle{9, 3};
constexpr Field kKnownPoint{11, 255};
constexpr std::int32_t kCodes = std::int32_t{1} << 19;

unsigned valueOf(std::int32_t code, Field field) {
    return (static_cast<unsigned>(code) >> field.shift) & field.mask;
}

std::int32_t placed(std::size_t value, Field field) {
    return static_cast<std::int32_t>(static_cast<unsigned>(value) << field.shift);
}

std::size_t count(const PointStatus& status, Remark::Kind kind, Field field) {
    const auto found = std::count_if(status.remarks.begin(), status.remarks.end(),
                                     [kind](const Remark& remark) { return remark.kind == kind; });
    return std::min<std::size_t>(static_cast<std::size_t>(found), field.mask);
}

EndedBy endedBy(const FoundCorrection& uncorrected) {
    switch (uncorrected.failure) {
        case NoCorrection::WeightTooLarge:
            return EndedBy::WeightTooLarge;
        case NoCorrection::NoWeight:
            return EndedBy::NoWeight;
        case NoCorrection::NoHeight:
            return EndedBy::NoHeight;
        case NoCorrection::TooLarge:
        case NoCorrection::None:
            break;
    }
    return EndedBy::CorrectionTooLarge;
}

// A fault says nothing but its sentence, save the one that names a value beyond 16 bits.
EndedBy endedBy(const RuntimeFault& fault) {
    switch (fault.fault()) {
        case Fault::InvalidCall:
            return EndedBy::InvalidCall;
        case Fault::Overflow:
            return fault.text() == faultSentence(Fault::Overflow) ? EndedBy::Overflow
                                                                  : EndedBy::BeyondInteger16;
        case Fault::DivisionByZero:
            return EndedBy::DivisionByZero;
        default:
            return EndedBy::Unknown;
    }
}

std::string textOf(Remark::Kind kind) {
    return oneLine(textsOf({.kind = kind}).front());
}

}  // namespace

std::int32_t PointConverter::code(const PointStatus& status) const {
    std::int32_t code = 0;
    if (status.uncorrected) {
        code |= placed(static_cast<std::size_t>(endedBy(*status.uncorrected)), kEndedBy);
        code |=
            placed(std::min<std::size_t>(status.uncorrected->known, kKnownPoint.mask), kKnownPoint);
    } else if (status.fault) {
        code |= placed(static_cast<std::size_t>(endedBy(*status.fault)), kEndedBy);
    }
    using enum Remark::Kind;
    code |= placed(count(status, NotProjected, kNotProjected), kNotProjected);
    code |= placed(count(status, NotGeographic, kNotGeographic), kNotGeographic);
    code |= placed(count(status, NotUnprojected, kNotUnprojected), kNotUnprojected);
    code |= placed(count(status, DoubtfulAngle, kDoubtfulAngle), kDoubtfulAngle);
    return code;
}

std::string PointConverter::textOfCode(std::int32_t code) const {
    if (code <= 0 || code >= kCodes) return {};
    std::string joined;
    const auto add = [&joined](std::string_view text, unsigned times = 1) {
        for (; times > 0; --times) {
            if (!joined.empty()) joined += "; ";
            joined += text;
        }
    };
    add("도분초로 환산할때 에러가 있는 각도입니다", valueOf(code, kDoubtfulAngle));
    add(textOf(Remark::Kind::NotUnprojected), valueOf(code, kNotUnprojected));
    add(textOf(Remark::Kind::NotGeographic), valueOf(code, kNotGeographic));
    add(textOf(Remark::Kind::NotProjected), valueOf(code, kNotProjected));

    const KnownPoints& known = definition().known;
    const std::size_t knownPoint = valueOf(code, kKnownPoint);
    FoundCorrection uncorrected{.value = {}, .known = knownPoint};
    switch (static_cast<EndedBy>(valueOf(code, kEndedBy))) {
        case EndedBy::Nothing:
            return joined;
        case EndedBy::InvalidCall:
            add(faultSentence(Fault::InvalidCall));
            return joined;
        case EndedBy::Overflow:
            add(faultSentence(Fault::Overflow));
            return joined;
        case EndedBy::BeyondInteger16:
            add("각도가 16비트 정수의 범위(-32768~32767)를 벗어났습니다");
            return joined;
        case EndedBy::DivisionByZero:
            add(faultSentence(Fault::DivisionByZero));
            return joined;
        case EndedBy::WeightTooLarge:
            if (!known || knownPoint >= known->size()) return {};
            add("보정점 " + (*known)[knownPoint].Name +
                "의 가중치를 거리로 나눈 값이 한계를 넘었습니다 (" + knownPointsName_ + ")");
            return joined;
        case EndedBy::NoWeight:
            uncorrected.failure = NoCorrection::NoWeight;
            break;
        case EndedBy::NoHeight:
            uncorrected.failure = NoCorrection::NoHeight;
            break;
        case EndedBy::CorrectionTooLarge:
            uncorrected.failure = NoCorrection::TooLarge;
            break;
        case EndedBy::Unknown:
            add("계산할 수 없는 점입니다");
            return joined;
        default:
            return {};
    }
    add(faultText(uncorrected));
    return joined;
}

}  // namespace kelvo
