#include "panels/angle_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <vector>

#include "common/number_text.h"
#include "common/run_time_fault.h"

namespace kelvo {

namespace {

constexpr double kMinutesOfDegree = 60;
constexpr double kSecondsOfDegree = 3600;
constexpr double kLargestAngle = 720;

std::string twoPlaces(const std::string& digits) {
    return digits.size() < 2 ? "0" + digits : digits;
}

std::string dmsText(const CoordinateWord& angle) {
    const std::size_t point = std::min(angle.seconds.find('.'), angle.seconds.size());
    const std::size_t first =
        std::min(angle.degrees.find_first_not_of('0'), angle.degrees.size() - 1);
    const std::string decimals = angle.seconds.substr(std::min(point + 1, angle.seconds.size()));
    return angle.degrees.substr(first) + "." + twoPlaces(angle.minutes) +
           twoPlaces(angle.seconds.substr(0, point)) + decimals;
}

// Degrees, minutes, seconds with five decimals, the zeros at the end left out.
std::string shownAngle(double degrees) {
    constexpr long long kUnits = 100'000;  // of a second
    const auto units = std::llround(std::abs(degrees) * kSecondsOfDegree * kUnits);
    const long long seconds = units / kUnits;
    std::string shown = degrees < 0 ? "-" : "";
    shown += std::to_string(seconds / 3600) + "°" + std::to_string(seconds / 60 % 60) + "′" +
             std::to_string(seconds % 60);
    if (units % kUnits != 0) {
        std::string decimals = std::to_string(kUnits + units % kUnits);  // keeps the zeros in front
        decimals.front() = '.';
        decimals.erase(decimals.find_last_not_of('0') + 1);
        shown += decimals;
    }
    return shown + "″";
}

// ddd.mmssss as degrees, minutes and seconds, by ten decimals.
CoordinateWord partsOf(double dms) {
    std::array<char, 400> text{};
    const auto [end, error] = std::to_chars(text.data(), text.data() + text.size(), std::abs(dms),
                                            std::chars_format::fixed, 10);
    const std::string digits(text.data(), end);
    const std::size_t point = digits.find('.');
    CoordinateWord angle;
    angle.degrees = digits.substr(0, point);
    angle.minutes = digits.substr(point + 1, 2);
    angle.seconds = digits.substr(point + 3, 2) + "." + digits.substr(point + 5);
    return angle;
}

bool startsLikeNumber(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    return first != std::string_view::npos &&
           std::string_view("+-.0123456789&").find(text[first]) != std::string_view::npos;
}

bool isNumberAsWhole(std::string_view text) {
    try {
        static_cast<void>(strictNumber(text));
        return true;
    } catch (const RuntimeFault&) {
        return false;
    }
}

}  // namespace

std::string numberOf(const CoordinateWord& angle, CoordinateForm form) {
    return form == CoordinateForm::Dms ? dmsText(angle) : generalText(degreesOf(angle));
}

double degreesOf(const CoordinateWord& angle) {
    return leadingNumber(angle.degrees) + leadingNumber(angle.minutes) / kMinutesOfDegree +
           leadingNumber(angle.seconds) / kSecondsOfDegree;
}

bool isProper(const CoordinateWord& angle) {
    return leadingNumber(angle.minutes) < 60 && leadingNumber(angle.seconds) < 60;
}

std::string withSign(const std::string& text, const CoordinateWord& word) {
    const bool negative = word.negative || word.hemisphere == 'S' || word.hemisphere == 'W';
    return negative ? "-" + text : text;
}

std::optional<std::string> angleAsNumber(std::string_view typed, CoordinateForm form) {
    std::vector<CoordinateWord> words = coordinateWords(typed).words;
    if (words.size() == 3) {
        // Three words are an angle as well: the same text with hyphens.
        const std::string joined = words[0].text + "-" + words[1].text + "-" + words[2].text;
        words = coordinateWords(joined).words;
    }
    if (words.size() != 1 || words[0].kind != CoordinateWord::Kind::Angle || !isProper(words[0]))
        return std::nullopt;
    return withSign(numberOf(words[0], form), words[0]);
}

std::string readingOf(std::string_view text, CoordinateForm form) {
    if (const auto number = angleAsNumber(text, form))
        return readingOf(*number, form) + " → " + *number;
    if (text.find_first_not_of(' ') == std::string_view::npos) return "빈칸: 0으로 계산합니다";
    if (!startsLikeNumber(text)) return "수가 아닙니다: 0으로 계산합니다";
    const NumberRead number = readNumber(text);
    if (number.tooLarge || std::abs(number.value) > kLargestAngle)
        return "각도로 보기에 너무 큰 수입니다";
    double degrees = number.value;
    if (form == CoordinateForm::Dms) {
        const CoordinateWord parts = partsOf(number.value);
        if (!isProper(parts)) return "분이나 초가 60 이상입니다: 그 값 그대로 계산합니다";
        degrees = number.value < 0 ? -degreesOf(parts) : degreesOf(parts);
    }
    const std::string shown = shownAngle(degrees);
    return isNumberAsWhole(text) ? shown : shown + " (그 뒤는 읽지 않습니다)";
}

}  // namespace kelvo
