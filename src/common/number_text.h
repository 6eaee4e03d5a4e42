// Numbers read from text and written as text, independent of any locale.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace kelvo {

// The outcome of the number rule.
struct NumberRead {
    double value = 0;       // 0 if there is no number, or one that a double can't hold
    bool tooLarge = false;  // the text spells a number beyond the range of a double
};

// The number rule: leading blanks are skipped and the longest prefix that forms a number is
// read. Sign, digits, one decimal point, an exponent introduced by E or D; "&H" and "&O" (no
// sign in front) read a hexadecimal or octal integer. What follows the number doesn't matter.
[[nodiscard]] NumberRead readNumber(std::string_view text);

// How many bytes at the front of a text the number rule reads, leading blanks included; 0 if there
// is no number.
[[nodiscard]] std::size_t numberLength(std::string_view text);

// The number of a text by the number rule, 0 if there is none or it is too large.
[[nodiscard]] double leadingNumber(std::string_view text);

// The whole text as a number, blanks at its ends allowed: fault 13 for anything else, fault 6
// for a number out of range.
[[nodiscard]] double strictNumber(std::string_view text);
[[nodiscard]] float strictSingle(std::string_view text);
// Rounded halves to even; fault 6 beyond 16 bits.
[[nodiscard]] std::int16_t strictInteger16(std::string_view text);

// The decimal text of a double at 15 significant digits: value = digits x 10^(exponent - 14),
// digits having exactly 15 places, or 0 for zero. The rounding is that of the exact binary value.
struct Decimal15 {
    std::uint64_t digits = 0;
    int exponent = 0;  // the power of ten of the first digit
    bool negative = false;
};
[[nodiscard]] Decimal15 decimal15(double value);

// The general text of a number: at most 15 significant digits, no trailing zeros; without an
// exponent while it fits into 15 digits, zeros after the point counted, otherwise as 1.5E-20.
[[nodiscard]] std::string generalText(double value);

// The same as it stands in a file: no zero in front of the point (".5").
[[nodiscard]] std::string generalTextInFile(double value);

// Plain decimal text of a 32-bit float: at most 7 significant digits, never an exponent, no
// trailing zeros. With leadingZero "0.02", without ".02".
[[nodiscard]] std::string singleText(float value, bool leadingZero);

}  // namespace kelvo
