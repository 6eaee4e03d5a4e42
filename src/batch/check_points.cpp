#include "batch/check_points.h"

#include <array>
#include <cmath>

#include "common/number_text.h"

namespace kelvo {

namespace {

using Kind = FindingKind;
using State = NumberField::State;

constexpr double kMostHeight = 9000;  // metres; no mountain is higher, no aerial photograph here
constexpr double kLeastHeight = -1000;
constexpr double kSmallGrid = 1000;  // metres

bool isBetween(double value, double low, double high) {
    return value >= low && value <= high;
}

bool isGeographic(System system) {
    return system == System::Wgs || system == System::User;
}

std::string coordinateName(System system, int n) {
    if (n == 3) return "높이";
    if (isGeographic(system)) return n == 1 ? "위도" : "경도";
    return n == 1 ? "X" : "Y";
}

// How many fields from that one on are numbers.
int numbersFrom(const LineFields& fields, int first) {
    int n = first;
    while (n <= fields.count() && numberOf(fields[n]).reads()) ++n;
    return n - first;
}

bool hasCommaInNumber(std::string_view text) {
    const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
    for (std::size_t i = 1; i + 1 < text.size(); ++i)
        if (text[i] == ',' && isDigit(text[i - 1]) && isDigit(text[i + 1])) return true;
    return false;
}

bool isPlace(double Phi, double Lam) {
    return isInCountry({.Phi = Phi, .Lam = Lam});
}

constexpr const char* kCommaSeparates = ". 쉼표는 빈칸과 같아서 수를 나눕니다";

// What the writer of a line may have meant whose point isn't in the country.
std::string guess(const PointLine& point, const LineFields& fields, const GivenPoint& given) {
    const NumberField name = numberOf(fields[point.nameField]);
    if (isGeographic(point.system)) {
        if (isPlace(given.second, given.first)) return ". 위도와 경도가 바뀐 것 같습니다";
        if (isPlace(name.value, given.first)) return ". 점의 이름이 빠져 한 칸씩 밀린 것 같습니다";
        if (numbersFrom(fields, point.nameField + 1) >= 6)
            return ". 도, 분, 초를 띄어 쓸 수 없습니다";
        if (std::abs(given.first) > 1000) return ". 직교좌표이면 TM이나 UTM을 쓰십시오";
    }
    if (hasCommaInNumber(point.line.text)) return kCommaSeparates;
    return {};
}

// Fields that a run reads as another number than stands there. False where a coordinate suffers.
bool checkNumbers(const PointLine& point, const LineFields& fields, Findings& findings) {
    bool sound = true;
    for (int n = 1; n <= 3; ++n) {
        const TextField& field = fields[point.nameField + n];
        const NumberField number = numberOf(field);
        if (number.reads() || (n == 3 && number.state == State::Absent)) continue;
        if (n < 3) sound = false;
        const std::string what = coordinateName(point.system, n);
        if (number.state == State::Absent) {
            findings.add(Kind::BadPoint, point.line,
                         "이름 다음에 좌표 두 개가 있어야 합니다. 없는 것은 0으로 읽힙니다");
            break;
        }
        findings.add(
            Kind::BadPoint, point.line, field,
            number.state == State::Cut
                ? what + " " + quoted(field.text) + "에서 " + generalText(number.value) +
                      "만 읽힙니다"
                : what + " " + quoted(field.text) +
                      "은(는) 수가 아니어서 0으로 읽힙니다. 이름에는 빈칸을 쓸 수 없습니다");
    }
    return sound;
}

bool checkAngles(const PointLine& point, const LineFields& fields, const GivenPoint& given,
                 Findings& findings) {
    if (!isGeographic(point.system) || point.angles == AngleForm::Degrees) return true;
    bool sound = true;
    int n = 0;
    for (const double angle : {given.first, given.second}) {
        ++n;
        const std::string bad = badAngle(angle);
        if (bad.empty()) continue;
        sound = false;
        const TextField& field = fields[point.nameField + n];
        findings.add(Kind::BadAngle, point.line, field,
                     coordinateName(point.system, n) + " " + quoted(field.text) +
                         "은(는) ddd.mmssss가 아닙니다: " + bad +
                         ". 십진 도이면 앞에 INPUT deg를 쓰십시오");
    }
    return sound;
}

}  // namespace

bool isInCountry(const Position& place) {
    return isBetween(place.Phi, kSouthernLimit, kNorthernLimit) &&
           isBetween(place.Lam, kWesternLimit, kEasternLimit);
}

bool isOnJeju(const Position& place) {
    return isBetween(place.Phi, 33.0, 33.7) && isBetween(place.Lam, 126.0, 127.1);
}

std::string badAngle(double dms) {
    constexpr double kPlaces = 1e10;  // as many decimals as are read
    const double magnitude = std::abs(dms);
    if (!(magnitude < 10000)) return {};
    const double fraction = magnitude - std::floor(magnitude);
    // A little more, since a double of the text 37.6 may lie below it.
    const auto digits = static_cast<long long>(fraction * kPlaces + 1e-2);
    const long long minutes = digits / 100000000;
    const long long seconds = digits / 1000000 % 100;
    if (minutes > 59) return "분이 " + std::to_string(minutes) + "입니다";
    if (seconds > 59) return "초가 " + std::to_string(seconds) + "입니다";
    return {};
}

ReadPoint readPoint(const PointLine& point, Findings& findings) {
    const LineFields fields(point.line.text);
    ReadPoint read;
    read.name = fields[point.nameField].text;
    std::array<double, 3> values{};
    bool plain = true;
    int field = point.nameField;
    for (double& value : values) {
        const NumberField number = numberOf(fields[++field]);
        value = number.value;
        plain = plain && number.reads();
    }
    read.given = {.first = values[0], .second = values[1], .height = values[2]};
    read.hasHeight = read.given.height != 0;
    if (!plain) read.sound = checkNumbers(point, fields, findings);
    if (read.sound) read.sound = checkAngles(point, fields, read.given, findings);
    if (!isBetween(read.given.height, kLeastHeight, kMostHeight))
        findings.add(Kind::ImpossibleHeight, point.line, fields[point.nameField + 3],
                     "높이가 " + generalText(read.given.height) + " m입니다");
    return read;
}

bool isSmallGridPoint(const PointLine& point, const GivenPoint& given, Findings& findings) {
    if (std::abs(given.first) >= kSmallGrid || std::abs(given.second) >= kSmallGrid) return false;
    const LineFields fields(point.line.text);
    findings.add(Kind::BadPoint, point.line, fields[point.nameField + 1],
                 std::string("X와 Y가 1 km보다 작습니다") +
                     (isPlace(given.first, given.second) ? ". 경위도이면 WGS나 UGS를 쓰십시오"
                      : hasCommaInNumber(point.line.text) ? kCommaSeparates
                                                          : ""));
    return true;
}

void addOutsideCountry(const PointLine& point, const GivenPoint& given, const Position& wgs,
                       Findings& findings) {
    const LineFields fields(point.line.text);
    const auto degrees = [](double value) { return generalText(std::round(value * 1e4) / 1e4); };
    findings.add(Kind::OutsideCountry, point.line, fields[point.nameField + 1],
                 "점이 쓸 수 있는 곳(위도 32~39도, 경도 124~132도) 밖에 있습니다: 위도 " +
                     degrees(wgs.Phi) + "도, 경도 " + degrees(wgs.Lam) + "도" +
                     guess(point, fields, given));
}

}  // namespace kelvo
