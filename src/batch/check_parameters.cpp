#include "batch/check_parameters.h"

#include <array>
#include <cmath>
#include <string>

#include "common/letter_case.h"
#include "common/number_text.h"

namespace kelvo {

namespace {

using Kind = FindingKind;
using State = NumberField::State;

// A first adjustment brings a run onto control points of the place. A minute of arc is 1.5 to
// 1.9 km, more than the datums differ by, and no height here needs more than a hundred metres.
constexpr double kMostAdjustmentSeconds = 60;
constexpr double kMostAdjustmentMetres = 100;

// No ellipsoid of the earth lies outside of these, and no grid of the country.
constexpr double kSmallestAxis = 6.36e6;
constexpr double kLargestAxis = 6.39e6;
constexpr double kLowestFlattening = 290;  // inverse
constexpr double kHighestFlattening = 310;
constexpr double kHighestOriginLatitude = 45;
constexpr double kWesternOrigin = 100;
constexpr double kEasternOrigin = 150;
constexpr double kLowestScale = 0.99;
constexpr double kHighestScale = 1.01;

constexpr std::array kOrdinals{"첫째", "둘째", "셋째"};

bool isBetween(double value, double low, double high) {
    return value >= low && value <= high;
}

void checkValue(const TextLine& line, const LineFields& fields, int n, Findings& findings) {
    const NumberField number = numberOf(fields[n]);
    if (number.reads() || number.state == State::Absent) return;
    const std::string place =
        std::string(kOrdinals[static_cast<std::size_t>(n - 1)]) + " 값 " + quoted(fields[n].text);
    findings.add(Kind::BadValue, line, fields[n],
                 number.state == State::Cut
                     ? place + "에서 " + generalText(number.value) + "만 읽힙니다"
                     : place + "은(는) 수가 아니어서 0으로 읽힙니다");
}

void checkFirstAdjustment(const TextLine& line, const LineFields& fields, const TransPara& para,
                          Findings& findings) {
    if (numberOf(fields[2]).state == State::Word) {
        std::string text = quoted(fields[2].text) +
                           "이(가) 첫째 값 0으로 읽힙니다: 위도 0초, 경도 " +
                           generalText(para.dLam) + "초, 높이 " + generalText(para.dH) + " m";
        if (numberOf(fields[5]).reads()) text += ", " + quoted(fields[5].text) + "은(는) 버림";
        return findings.add(Kind::AdjustmentMoved, line, fields[2],
                            text + ". 세 값은 1st 바로 뒤에 쓰십시오");
    }
    if (!fields[4].empty() || fields[2].empty())
        for (int n = 2; n <= 4; ++n) {
            if (numberOf(fields[n]).reads()) continue;
            findings.add(
                Kind::BadValue, line, fields[n].empty() ? fields[1] : fields[n],
                "1st 뒤의 세 값은 위도, 경도(초)와 높이(m)입니다. " +
                    (fields[n].empty() ? std::string("없는 값은") : quoted(fields[n].text)) +
                    " 0으로 읽힙니다");
            break;
        }
    const double seconds = std::max(std::abs(para.dPhi), std::abs(para.dLam));
    if (seconds > kMostAdjustmentSeconds)
        findings.add(Kind::AdjustmentTooLarge, line, fields[1],
                     "1차 조정량이 " + generalText(seconds) +
                         "초로 1.5 km를 넘습니다. 점의 줄이면 앞에 WGS, UGS, TM, UTM을 쓰십시오");
    else if (std::abs(para.dH) > kMostAdjustmentMetres)
        findings.add(Kind::AdjustmentTooLarge, line, fields[4],
                     "높이의 1차 조정량이 " + generalText(para.dH) + " m입니다");
}

void checkZone(const TextLine& line, const LineFields& fields, Findings& findings) {
    const NumberField number = numberOf(fields[2]);
    if (number.reads() && isBetween(number.value, 1, 6) && number.value == std::floor(number.value))
        return;
    findings.add(Kind::BadZone, line, fields[2].empty() ? fields[1] : fields[2],
                 "zone 뒤에는 1 서부, 2 중부, 3 동부, 4 동해, 5 제주도, 6 사용자 가운데 하나를 "
                 "씁니다");
}

void checkAdd(const TextLine& line, const LineFields& fields, Findings& findings) {
    const NumberField number = numberOf(fields[2]);
    if (number.reads() && (number.value == 0 || number.value == 1 || number.value == 10.405))
        return;
    const bool adds = static_cast<float>(number.value) > 0;
    findings.add(Kind::BadAdd, line, fields[2].empty() ? fields[1] : fields[2],
                 adds ? "add 뒤의 수가 얼마이든 더하는 것은 10.405초입니다"
                      : "10.405초를 더하지 않는 것으로 읽힙니다. 더하려면 add 10.405, 더하지 "
                        "않으려면 add 0이라고 쓰십시오");
}

bool isShift(const TransPara& para, double dX, double dY, double dZ) {
    return para.dX == dX && para.dY == dY && para.dZ == dZ;
}

// The sets in use here, from the survey regulations and the literature, and the national one that
// has a pivot point.
void checkShift(const TextLine& line, const TransPara& para, Findings& findings) {
    for (const auto& [dX, dY, dZ] :
         {std::array{115.8, -474.99, -674.11}, std::array{146.44, -507.89, -681.46},
          std::array{144.778, -503.702, -684.67}})
        if (isShift(para, -dX, -dY, -dZ))
            return findings.add(Kind::ShiftFromElsewhere, line,
                                "사용자 타원체에서 WGS84로 가는 값입니다. 여기의 방향은 반대이므로 "
                                "일곱 값의 부호를 모두 바꾸십시오");
    const bool rotates = para.Omega != 0 || para.Phi != 0 || para.Kappa != 0;
    if (rotates &&
        (isShift(para, 145.907, -505.034, -685.756) || isShift(para, -145.907, 505.034, 685.756)))
        findings.add(Kind::ShiftFromElsewhere, line,
                     "중심점이 있는 Molodensky-Badekas 식의 값이라 16 m 넘게 틀립니다. 중심점 없이 "
                     "쓸 값은 numbers.ko.md의 '매개변수를 넣을 때'에 있습니다");
}

void checkGrid(const TextLine& line, const Ellipsoid& ellipsoid, const Projection& origin,
               Findings& findings) {
    const auto refuse = [&](const std::string& what, double value) {
        findings.add(Kind::NoSuchGrid, line,
                     what + " " + generalText(value) + "은(는) 맞지 않습니다");
    };
    const double inverse = ellipsoid.f > 0 && ellipsoid.f < 1 ? 1 / ellipsoid.f : ellipsoid.f;
    if (!isBetween(ellipsoid.a, kSmallestAxis, kLargestAxis)) refuse("장반경(m)", ellipsoid.a);
    if (!isBetween(inverse, kLowestFlattening, kHighestFlattening))
        refuse("편평도의 역수", ellipsoid.f);
    if (!isBetween(origin.Phi0, 0, kHighestOriginLatitude)) refuse("원점 위도(도)", origin.Phi0);
    if (!isBetween(origin.Lam0, kWesternOrigin, kEasternOrigin))
        refuse("원점 경도(도)", origin.Lam0);
    if (!isBetween(origin.S0, kLowestScale, kHighestScale)) refuse("축척계수", origin.S0);
}

}  // namespace

void checkValueLines(Command command, std::span<const TextLine> values, Findings& findings) {
    const std::span<const int> wanted = furtherLines(command);
    for (std::size_t i = 0; i < values.size() && i < wanted.size(); ++i) {
        const LineFields fields(values[i].text);
        for (int n = 1; n <= wanted[i]; ++n) checkValue(values[i], fields, n, findings);
        if (fields.count() < wanted[i])
            findings.add(Kind::BadValue, values[i],
                         "수 " + std::to_string(wanted[i]) + "개가 있어야 할 줄에 " +
                             std::to_string(fields.count()) + "개뿐입니다. 나머지는 0이 됩니다");
    }
}

void checkParameters(const TextLine& line, const LineFields& fields, Command command,
                     const TransPara& para, Findings& findings) {
    switch (command) {
        case Command::SevenParameters:
            return checkShift(line, para, findings);
        case Command::FirstAdjustment:
            return checkFirstAdjustment(line, fields, para, findings);
        case Command::Zone:
            return checkZone(line, fields, findings);
        case Command::Add:
            return checkAdd(line, fields, findings);
        case Command::TmParameters:
            return checkGrid(line, userEllipsoidOf(para), tmOriginOf(para), findings);
        case Command::UtmParameters:
            return checkGrid(line, utmEllipsoidOf(para), utmOriginOf(para), findings);
        default:
            return;
    }
}

void addNoSuchUtmOrigin(const TextLine& line, const LineFields& fields, Findings& findings) {
    findings.add(Kind::NoSuchUtmOrigin, line, fields[2].empty() ? fields[1] : fields[2],
                 "UTM 원점은 123과 129뿐이며, 점이면 X와 Y가 있어야 합니다. 이 줄은 아무 일도 하지 "
                 "않습니다");
}

}  // namespace kelvo
