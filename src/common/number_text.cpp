#include "common/number_text.h"

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <system_error>

#include "common/checked_arithmetic.h"
#include "common/integer_power.h"
#include "common/powers_of_ten.h"

namespace kelvo {

namespace {

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

// The length of a decimal number at the front of the text, and where its exponent letter stands
// (npos without a valid exponent). 0 if there is no digit.
struct DecimalShape {
    std::size_t length = 0;
    std::size_t exponentAt = std::string_view::npos;
};

DecimalShape decimalShape(std::string_view text) {
    std::size_t i = 0;
    if (i < text.size() && (text[i] == '+' || text[i] == '-')) ++i;
    std::size_t digits = 0;
    while (i < text.size() && isDigit(text[i])) ++i, ++digits;
    if (i < text.size() && text[i] == '.') {
        ++i;
        while (i < text.size() && isDigit(text[i])) ++i, ++digits;
    }
    if (digits == 0) return {};
    DecimalShape shape{.length = i};
    if (i < text.size() && (text[i] == 'e' || text[i] == 'E' || text[i] == 'd' || text[i] == 'D')) {
        std::size_t j = i + 1;
        if (j < text.size() && (text[j] == '+' || text[j] == '-')) ++j;
        const std::size_t firstDigit = j;
        while (j < text.size() && isDigit(text[j])) ++j;
        if (j > firstDigit) shape = {.length = j, .exponentAt = i};
    }
    return shape;
}

// Whether a decimal that a double can't hold is too small rather than too large.
bool vanishes(std::string_view mantissa, std::string_view exponent) {
    long place = 0;  // power of ten of the first digit that isn't 0, without the exponent
    bool behindPoint = false;
    bool found = false;
    for (const char c : mantissa) {
        if (c == '.') {
            behindPoint = true;
        } else if (isDigit(c)) {
            found = found || c != '0';
            if (found && !behindPoint) ++place;
            if (!found && behindPoint) --place;
        }
    }
    if (!found) return true;
    long power = 0;
    if (!exponent.empty() && exponent.front() == '+') exponent.remove_prefix(1);
    const auto [end, error] =
        std::from_chars(exponent.data(), exponent.data() + exponent.size(), power);
    if (error != std::errc{} && !exponent.empty()) return exponent.front() == '-';
    return power < -place;  // the sum of the two could leave the range of an integer
}

// The usual number: digits, a point, an exponent introduced by E. Nothing for any other.
std::optional<NumberRead> readPlainDecimal(std::string_view text) {
    const std::size_t first = text.starts_with('-') ? 1 : 0;
    if (first == text.size() || (!isDigit(text[first]) && text[first] != '.')) return std::nullopt;
    double value = 0;
    const char* const last = text.data() + text.size();
    const auto [end, error] = std::from_chars(text.data(), last, value);
    const bool exponentByD = end != last && (*end == 'd' || *end == 'D');
    if (error != std::errc{} || exponentByD) return std::nullopt;
    return NumberRead{.value = value};
}

NumberRead readDecimal(std::string_view text, const DecimalShape& shape) {
    std::string number(text.substr(0, shape.length));
    if (shape.exponentAt != std::string_view::npos) number[shape.exponentAt] = 'e';
    const char* first = number.data();
    const char* last = number.data() + number.size();
    if (*first == '+') ++first;  // from_chars takes a minus only
    double value = 0;
    const auto [end, error] = std::from_chars(first, last, value);
    if (error == std::errc::result_out_of_range) {
        const std::string_view whole = number;
        const bool hasExponent = shape.exponentAt != std::string_view::npos;
        const bool small = vanishes(whole.substr(0, shape.exponentAt),
                                    hasExponent ? whole.substr(shape.exponentAt + 1) : "");
        return {.value = 0, .tooLarge = !small};
    }
    return {.value = value};
}

// The length of "&H..." or "&O..." at the front of the text; 0 if there is none.
std::size_t radixLength(std::string_view text, unsigned& base) {
    if (text.size() < 2 || text[0] != '&') return 0;
    if (text[1] == 'H' || text[1] == 'h')
        base = 16;
    else if (text[1] == 'O' || text[1] == 'o')
        base = 8;
    else
        return 0;
    std::size_t i = 2;
    const auto isDigitOfBase = [base](char c) {
        if (base == 8) return c >= '0' && c <= '7';
        return isDigit(c) || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
    };
    while (i < text.size() && isDigitOfBase(text[i])) ++i;
    return i;
}

NumberRead readRadix(std::string_view digits, unsigned base) {
    double value = 0;
    for (const char c : digits) {
        const int digit = isDigit(c) ? c - '0' : (c | 0x20) - 'a' + 10;
        value = value * base + digit;
    }
    if (!std::isfinite(value)) return {.value = 0, .tooLarge = true};
    return {.value = value};
}

std::string_view withoutBlanksInFront(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    return text;
}

// The 15 digits by exact arithmetic where a double can be scaled by an exact power of ten: the
// product is split into its rounded value and its error, so that nothing is lost.
bool scaledDigits(double magnitude, Decimal15& decimal) {
    const auto bits = std::bit_cast<std::uint64_t>(magnitude);
    const int exponent = static_cast<int>(bits >> 52U) - 1023;
    // log10(2) as 1233/4096; one too high or low is put right below.
    int place = (exponent * 1233) >> 12;
    for (int attempt = 0; attempt < 2; ++attempt) {
        const int scale = 14 - place;
        if (scale < 0 || scale > kExactPowers) return false;
        const double power = kPowerOfTen[static_cast<std::size_t>(scale)];
        const auto [product, error] = exactProduct(magnitude, power);
        if (product >= 1e15) {
            ++place;
            continue;
        }
        if (product < 1e14) {
            --place;
            continue;
        }
        auto digits = static_cast<std::uint64_t>(product);
        const double fraction = (product - static_cast<double>(digits)) - 0.5;
        // fraction + error against 0: a tie goes to the even digit, as exact printing does.
        const double rest = fraction + error;
        if (rest > 0 || (rest == 0 && (digits & 1U) != 0)) ++digits;
        if (digits == 1000000000000000U) {
            digits = 100000000000000U;
            ++place;
        }
        decimal.digits = digits;
        decimal.exponent = place;
        return true;
    }
    return false;
}

void printedDigits(double magnitude, Decimal15& decimal) {
    std::array<char, 32> text{};
    const auto [end, error] = std::to_chars(text.data(), text.data() + text.size(), magnitude,
                                            std::chars_format::scientific, 14);
    const std::string_view all(text.data(), static_cast<std::size_t>(end - text.data()));
    const std::size_t e = all.find('e');
    for (const char c : all.substr(0, e))
        if (isDigit(c)) decimal.digits = decimal.digits * 10 + static_cast<unsigned>(c - '0');
    std::string_view exponent = all.substr(e + 1);
    if (exponent.front() == '+') exponent.remove_prefix(1);
    std::from_chars(exponent.data(), exponent.data() + exponent.size(), decimal.exponent);
}

// "digits" with its trailing zeros gone, written as a plain decimal or with an exponent.
std::string plainText(std::string_view digits, int exponent, bool negative, bool leadingZero) {
    std::string text = negative ? "-" : "";
    if (exponent < 0) {
        text += leadingZero ? "0." : ".";
        text.append(static_cast<std::size_t>(-exponent) - 1, '0');
        return text.append(digits);
    }
    const std::size_t integerDigits = static_cast<std::size_t>(exponent) + 1;
    text += digits.substr(0, integerDigits);
    if (integerDigits >= digits.size()) {
        text.append(integerDigits - digits.size(), '0');
    } else {
        text += '.';
        text += digits.substr(integerDigits);
    }
    return text;
}

std::string generalText(double value, bool leadingZero) {
    const Decimal15 decimal = decimal15(value);
    if (decimal.digits == 0) return "0";
    std::string digits = std::to_string(decimal.digits);
    digits.erase(digits.find_last_not_of('0') + 1);
    const int decimals = static_cast<int>(digits.size()) - 1 - decimal.exponent;
    if (decimal.exponent < 15 && decimals <= 15)
        return plainText(digits, decimal.exponent, decimal.negative, leadingZero);
    std::string text = decimal.negative ? "-" : "";
    text += digits.front();
    if (digits.size() > 1) text += '.' + digits.substr(1);
    text += decimal.exponent < 0 ? "E-" : "E+";
    const std::string power = std::to_string(std::abs(decimal.exponent));
    return text + (power.size() < 2 ? "0" : "") + power;
}

}  // namespace

NumberRead readNumber(std::string_view text) {
    text = withoutBlanksInFront(text);
    if (const auto plain = readPlainDecimal(text)) return *plain;
    unsigned base = 0;
    if (const std::size_t length = radixLength(text, base); length > 0)
        return readRadix(text.substr(2, length - 2), base);
    const DecimalShape shape = decimalShape(text);
    if (shape.length == 0) return {};
    return readDecimal(text, shape);
}

std::size_t numberLength(std::string_view text) {
    const std::string_view number = withoutBlanksInFront(text);
    unsigned base = 0;
    std::size_t length = radixLength(number, base);
    if (length == 0) length = decimalShape(number).length;
    return length == 0 ? 0 : text.size() - number.size() + length;
}

double leadingNumber(std::string_view text) {
    return readNumber(text).value;
}

double strictNumber(std::string_view text) {
    text = withoutBlanksInFront(text);
    while (!text.empty() && text.back() == ' ') text.remove_suffix(1);
    unsigned base = 0;
    const std::size_t length = radixLength(text, base);
    const bool wholeRadix = length > 2 && length == text.size();
    const bool wholeDecimal = !text.empty() && decimalShape(text).length == text.size();
    if (!wholeRadix && !wholeDecimal)
        raise(Fault::TypeMismatch, "숫자가 아닙니다 (" + std::string(text.substr(0, 200)) + ")");
    const NumberRead number = readNumber(text);
    if (number.tooLarge)
        raise(Fault::Overflow, "숫자가 너무 큽니다 (" + std::string(text.substr(0, 200)) + ")");
    return number.value;
}

float strictSingle(std::string_view text) {
    return toSingle(strictNumber(text));
}

std::int16_t strictInteger16(std::string_view text) {
    return roundedInteger16(strictNumber(text));
}

Decimal15 decimal15(double value) {
    Decimal15 decimal;
    if (value == 0 || !std::isfinite(value)) return decimal;
    decimal.negative = value < 0;
    const double magnitude = std::abs(value);
    if (!scaledDigits(magnitude, decimal)) {
        decimal.digits = 0;
        printedDigits(magnitude, decimal);
    }
    return decimal;
}

std::string generalText(double value) {
    return generalText(value, true);
}

std::string generalTextInFile(double value) {
    return generalText(value, false);
}

std::string singleText(float value, bool leadingZero) {
    if (value == 0 || !std::isfinite(value)) return "0";
    std::array<char, 32> text{};
    const auto [end, error] =
        std::to_chars(text.data(), text.data() + text.size(), static_cast<double>(std::abs(value)),
                      std::chars_format::scientific, 6);
    const std::string_view all(text.data(), static_cast<std::size_t>(end - text.data()));
    const std::size_t e = all.find('e');
    std::string digits(all.substr(0, 1));
    digits += all.substr(2, e - 2);
    digits.erase(digits.find_last_not_of('0') + 1);
    std::string_view power = all.substr(e + 1);
    if (power.front() == '+') power.remove_prefix(1);
    int exponent = 0;
    std::from_chars(power.data(), power.data() + power.size(), exponent);
    return plainText(digits, exponent, value < 0, leadingZero);
}

}  // namespace kelvo
