#include "common/fixed_width.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstdint>
#include <cstring>

#include "common/checked_arithmetic.h"
#include "common/code_page.h"
#include "common/number_text.h"
#include "common/powers_of_ten.h"
#include "common/utf8.h"

namespace kelvo::genSub {

namespace {

// A mask longer than any text that a report could hold gives no text at all.
constexpr int kLongestMask = 1 << 16;

// The decimal digits of a value rounded at a place after the point, halves away from zero.
struct RoundedDigits {
    std::uint64_t digits = 0;
    int zeros = 0;  // zeros that belong after `digits`
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
// fill up, and the value is farther from a tie than those digits could move it. It saves a third
// of the time of a number.
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

// 0 for 0.
int digitCount(std::uint64_t digits) {
    // log10(2) as 1233/4096
    const auto count = static_cast<std::size_t>((std::bit_width(digits) * 1233) >> 12);
    return static_cast<int>(count) + (digits >= kIntegerPowerOfTen[count] ? 1 : 0);
}

constexpr std::array<char, 200> kTwoDigits = [] {
    std::array<char, 200> pairs{};
    for (std::size_t i = 0; i < 100; ++i) {
        pairs[2 * i] = static_cast<char>('0' + i / 10);
        pairs[2 * i + 1] = static_cast<char>('0' + i % 10);
    }
    return pairs;
}();

// The last 16 digits of a number, zeros in front. By halves, so that the divisions don't wait for
// each other.
class SixteenDigits {
public:
    static constexpr int kCount = 16;

    explicit SixteenDigits(std::uint64_t digits) {
        putEight(static_cast<std::uint32_t>(digits / 100000000), 0);
        putEight(static_cast<std::uint32_t>(digits % 100000000), 8);
    }
    [[nodiscard]] const char* last(int count) const { return text_.data() + kCount - count; }

private:
    void putEight(std::uint32_t eight, std::size_t at) {
        const std::uint32_t high = eight / 10000;
        const std::uint32_t low = eight % 10000;
        putTwo(high / 100, at);
        putTwo(high % 100, at + 2);
        putTwo(low / 100, at + 4);
        putTwo(low % 100, at + 6);
    }
    void putTwo(std::uint32_t two, std::size_t at) {
        std::memcpy(text_.data() + at, kTwoDigits.data() + std::size_t{2} * two, 2);
    }

    std::array<char, kCount> text_;
};

enum class Blanked : bool { No, Yes };

template <Blanked blanked>
void appendNumber(std::string& line, double value, int width, int decimals) {
    width = std::max(width, 0);
    decimals = std::max(decimals, 0);
    if (width > kLongestMask || decimals > kLongestMask) return;

    const bool minus = finite(value) < 0;
    const RoundedDigits rounded = roundedDigits(value, decimals);
    // The sign of a number that rounds to zero stops the blanking: sign and zeros stay.
    const bool minusZero = minus && rounded.digits == 0;
    const int count = digitCount(rounded.digits);
    const long integerDigits = std::max(long{count} + rounded.zeros - decimals, 0L);
    const long places = std::max<long>(integerDigits, width);
    const long shown = minusZero ? places : std::max<long>(integerDigits, std::min<long>(width, 1));
    // The sign goes in front of the first digit, if a blank stands there to take it.
    const bool sign = minus && (minusZero || places > shown);

    const long blanks = blanked == Blanked::Yes ? places - shown - (sign && !minusZero ? 1 : 0) : 0;
    const long length = blanks + (sign ? 1 : 0) + shown + (decimals > 0 ? 1 + decimals : 0);
    line.resize(line.size() + static_cast<std::size_t>(length), ' ');
    char* const end = line.data() + line.size();
    // The digits without their point first; what is in front of it then moves up by one.
    char* first = end - (shown + decimals);
    std::fill(first, end, '0');
    std::memcpy(end - rounded.zeros - count, SixteenDigits(rounded.digits).last(count),
                static_cast<std::size_t>(count));
    if (decimals > 0) {
        std::memmove(first - 1, first, static_cast<std::size_t>(shown));
        --first;
        end[-decimals - 1] = '.';
    }
    if (sign) first[-1] = '-';
}

void appendFill(std::string& line, long count, char fill) {
    if (count > 0) line.append(static_cast<std::size_t>(count), fill);
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
    appendNumber<Blanked::Yes>(line, value, width, decimals);
}

void appendBareNum(std::string& line, double value, int width, int decimals) {
    appendNumber<Blanked::No>(line, value, width, decimals);
}

std::string FormatNum(double value, int width, int decimals) {
    std::string text;
    appendFormatNum(text, value, width, decimals);
    return text;
}

std::string FormatNum(std::string_view text, int width, int decimals) {
    return FormatNum(leadingNumber(text), width, decimals);
}

void appendFormatText(std::string& line, std::string_view text, int width, Align align) {
    // A letter of ASCII is one byte and one column.
    std::size_t taken = asciiLength(text.substr(0, static_cast<std::size_t>(std::max(width, 0))));
    int columns = static_cast<int>(taken);
    while (columns < width && taken < text.size()) {
        const Utf8Character character = firstCharacter(text.substr(taken));
        const int more = codePageWidth(character.code);
        if (columns + more > width) break;
        columns += more;
        taken += character.length;
    }
    if (align == Align::Right) appendFill(line, width - columns, ' ');
    line += text.substr(0, taken);
    if (align == Align::Left) appendFill(line, width - columns, ' ');
}

std::string FormatText(std::string_view text, int width, Align align) {
    std::string result;
    appendFormatText(result, text, width, align);
    return result;
}

}  // namespace kelvo::genSub
