#include "plot/format_picture.h"

#include <algorithm>
#include <cmath>

#include "common/fixed_width.h"
#include "common/number_text.h"

namespace kelvo {
namespace {

bool isPlace(char c) {
    return c == '0' || c == '#';
}

// The digits of a number from 0 up, cut at the point; no zero in front of the first digit.
struct Digits {
    std::string whole;
    std::string decimals;
};

Digits roundedDigits(double magnitude, int decimals) {
    const std::string text = genSub::FormatNum(magnitude, 1, decimals);
    const std::size_t point = std::min(text.find('.'), text.size());
    Digits digits{.whole = text.substr(0, point), .decimals = {}};
    if (decimals > 0) digits.decimals = text.substr(point + 1);
    if (digits.whole == "0") digits.whole.clear();
    return digits;
}

// The integer places, with the digits set in from the right; the first place takes the surplus.
std::string wholePart(std::string_view places, std::string digits) {
    const auto count =
        static_cast<std::size_t>(std::count_if(places.begin(), places.end(), isPlace));
    if (digits.size() < count) digits.insert(0, count - digits.size(), ' ');
    std::size_t next = digits.size() - count;
    std::string text;
    bool shown = next > 0;
    bool first = true;
    for (const char c : places) {
        if (!isPlace(c)) {
            text += c;
            continue;
        }
        if (first) text += digits.substr(0, next);
        first = false;
        shown = shown || c == '0' || digits[next] != ' ';
        if (shown) text += digits[next] == ' ' ? '0' : digits[next];
        ++next;
    }
    return text;
}

// The decimals: after the last "0" trailing zeros go.
std::string decimalPart(std::string_view places, std::string_view digits) {
    std::size_t needed = 0;
    std::size_t count = 0;
    for (const char c : places) {
        if (!isPlace(c)) continue;
        ++count;
        if (c == '0' || digits[count - 1] != '0') needed = count;
    }
    std::string text;
    std::size_t next = 0;
    for (const char c : places) {
        if (!isPlace(c))
            text += c;
        else if (next++ < needed)
            text += digits[next - 1];
    }
    return text;
}

}  // namespace

std::string formatByPicture(double value, std::string_view picture) {
    if (picture.empty()) return generalText(value);
    if (std::none_of(picture.begin(), picture.end(), isPlace)) return std::string(picture);
    const std::size_t point = picture.find('.');
    const std::string_view whole = picture.substr(0, point);
    const std::string_view places =
        point == std::string_view::npos ? std::string_view() : picture.substr(point + 1);
    const auto decimals = std::count_if(places.begin(), places.end(), isPlace);
    const Digits digits = roundedDigits(std::fabs(value), static_cast<int>(decimals));
    std::string text = value < 0 ? "-" : "";
    text += std::any_of(whole.begin(), whole.end(), isPlace) ? wholePart(whole, digits.whole)
                                                             : std::string(whole) + digits.whole;
    if (point != std::string_view::npos) text += '.' + decimalPart(places, digits.decimals);
    return text;
}

}  // namespace kelvo
