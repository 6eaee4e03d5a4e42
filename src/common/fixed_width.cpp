#include "common/fixed_width.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>

#include "common/checked_arithmetic.h"
#include "common/code_page.h"
#include "common/number_text.h"
#include "common/powers_of_ten.h"
#include "common/utf8.h"

namespace kelvo::genSub {

namespace {

// A mask longer than any text that a report could hold gives no text at all.
constexpr int kLongestMask = 1 << 16;

// The decimal digits of a value rounded at a place behind the point, halves away from zero.
struct RoundedDigits {
    std::uint64_t digits = 0;
    int zeros = 0;  // zeros that belong behind `digits`
};

RoundedDigits roundAt(const Decimal15& decimal, int decimals) {
    const int place = decimal.exponent - 14;  // power of ten of the last digit
    const int dropped = -decimals - place;
    if (decimal.digits == 0 || dropped > 15) return {};
    if (dropped <= 0) return {.digits = decimal.digits, .zeros = -dropped};
    const std::uint64_t unit = kIntegerPowerOfTen[static_cast<std::size_t>(dropped)];
    return {.digits = (decimal.digits + unit / 2) / unit};
}

// The same without the way through the 15 digits, where both must agree: nothing is left to
// fill up, and the value is farther from a tie than those digits could move it.
RoundedDigits roundedDigits(double value, int decimals) {
    constexpr double kMostDigits = 1e15;
    constexpr double kMoved = 1e-14;
    if (decimals <= kExactPowers) {
        const double scaled = std::abs(value) * kPowerOfTen[static_cast<std::size_t>(decimals)];
        if (scaled < kMostDigits) {
            const auto whole = static_cast<std::int64_t>(scaled);
            const double fromTie = (scaled - static_cast<double>(whole)) - 0.5;
            if (std::abs(fromTie) > scaled * kMoved)
                return {.digits = static_cast<std::uint64_t>(fromTie > 0 ? whole + 1 : whole)};
        }
    }
    return roundAt(decimal15(value), decimals);
}

void appendFill(std::string& line, long count, char fill) {
    if (count > 0) line.append(static_cast<std::size_t>(count), fill);
}

// The digits of a rounded value with `decimals` of them behind the point and at least `width`
// integer places, filled up with zeros; the number of integer places written.
long appendMasked(std::string& line, const RoundedDigits& rounded, int width, int decimals) {
    std::array<char, 24> buffer{};
    std::size_t length = 0;
    if (rounded.digits != 0) {
        const auto [end, error] =
            std::to_chars(buffer.data(), buffer.data() + buffer.size(), rounded.digits);
        length = static_cast<std::size_t>(end - buffer.data());
    }
    const std::string_view digits(buffer.data(), length);
    const long all = static_cast<long>(length) + rounded.zeros;
    const long integerDigits = std::max(all - decimals, 0L);
    const long integerPlaces = std::max<long>(integerDigits, width);
    appendFill(line, integerPlaces - integerDigits, '0');
    const long fromDigits = std::min<long>(integerDigits, static_cast<long>(length));
    line += digits.substr(0, static_cast<std::size_t>(fromDigits));
    appendFill(line, integerDigits - fromDigits, '0');
    if (decimals > 0) {
        line += '.';
        appendFill(line, decimals - all, '0');
        line += digits.substr(static_cast<std::size_t>(fromDigits));
        appendFill(line, std::min<long>(rounded.zeros - (integerDigits - fromDigits), decimals),
                   '0');
    }
    return integerPlaces;
}

// The same text for the masks that reports use, made from its end in one small buffer.
constexpr int kUsualWidth = 20;

constexpr std::array<char, 200> kTwoDigits = [] {
    std::array<char, 200> pairs{};
    for (std::size_t i = 0; i < 100; ++i) {
        pairs[2 * i] = static_cast<char>('0' + i / 10);
        pairs[2 * i + 1] = static_cast<char>('0' + i % 10);
    }
    return pairs;
}();

void appendUsual(std::string& line, std::uint64_t digits, bool minus, int width, int decimals) {
    std::array<char, 2 * kUsualWidth + 24> buffer;
    char* const end = buffer.data() + buffer.size();
    char* first = end;
    const auto putDigits = [&first](std::uint64_t& value, int count) {
        for (; count >= 2; count -= 2) {
            const auto pair = static_cast<std::size_t>(value % 100);
            value /= 100;
            *--first = kTwoDigits[2 * pair + 1];
            *--first = kTwoDigits[2 * pair];
        }
        if (count == 1) {
            *--first = static_cast<char>('0' + value % 10);
            value /= 10;
        }
    };
    putDigits(digits, decimals);
    if (decimals > 0) *--first = '.';
    const char* const columns = first - width;
    if (width > 0) putDigits(digits, 1);
    while (digits != 0) putDigits(digits, 1);
    if (minus && first > columns) *--first = '-';
    while (first > columns) *--first = ' ';
    line.append(first, end);
}

}  // namespace

int DisplayLen(std::string_view text) {
    int length = 0;
    while (!text.empty()) {
        const Utf8Character character = firstCharacter(text);
        length += codePageWidth(character.code);
        text.remove_prefix(character.length);
    }
    return length;
}

std::string Blanks(int n) {
    return n < 1 ? std::string() : std::string(static_cast<std::size_t>(n), ' ');
}

void appendFormatNum(std::string& line, double value, int width, int decimals) {
    width = std::max(width, 0);
    decimals = std::max(decimals, 0);
    if (width > kLongestMask || decimals > kLongestMask) return;

    const bool minus = finite(value) < 0;
    const RoundedDigits rounded = roundedDigits(value, decimals);
    if (minus && rounded.digits == 0) {
        // The sign of a number that rounds to zero stops the blanking: sign and zeros stay.
        line += '-';
        appendMasked(line, rounded, width, decimals);
        return;
    }
    if (rounded.zeros == 0 && width <= kUsualWidth && decimals <= kUsualWidth) {
        appendUsual(line, rounded.digits, minus, width, decimals);
        return;
    }
    const std::size_t start = line.size();
    const long integerPlaces = appendMasked(line, rounded, width, decimals);
    // Leading zeros become blanks, but for the last integer place of the mask.
    const std::size_t last = start + static_cast<std::size_t>(std::min<long>(integerPlaces, width));
    std::size_t scan = start;
    for (; scan + 1 < last && line[scan] == '0'; ++scan) line[scan] = ' ';
    // The sign goes in front of the first digit, if a blank stands there to take it.
    if (minus && scan > start) line[scan - 1] = '-';
}

std::string FormatNum(double value, int width, int decimals) {
    std::string text;
    appendFormatNum(text, value, width, decimals);
    return text;
}

std::string FormatNum(std::string_view text, int width, int decimals) {
    return FormatNum(leadingNumber(text), width, decimals);
}

void appendFormatText(std::string& line, std::string_view text, int width, int align) {
    std::size_t taken = 0;
    int columns = 0;
    while (columns < width && taken < text.size()) {
        const Utf8Character character = firstCharacter(text.substr(taken));
        const int more = codePageWidth(character.code);
        if (columns + more > width) break;
        columns += more;
        taken += character.length;
    }
    if (align == 1) appendFill(line, width - columns, ' ');
    line += text.substr(0, taken);
    if (align == 0) appendFill(line, width - columns, ' ');
}

std::string FormatText(std::string_view text, int width, int align) {
    std::string result;
    appendFormatText(result, text, width, align);
    return result;
}

}  // namespace kelvo::genSub
