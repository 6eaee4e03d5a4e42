// genSub: text of a fixed width, measured in columns of the code page.
#pragma once

#include <string>
#include <string_view>

namespace kelvo::genSub {

// Length of the text in bytes of CP949: a Hangul letter counts 2.
[[nodiscard]] int DisplayLen(std::string_view text);

// n blanks; empty for n below 1.
[[nodiscard]] std::string Blanks(int n);

// A number with at least `width` integer places and exactly `decimals` decimals, leading zeros
// blanked but the last integer place. width + 1 + decimals columns, or width without decimals;
// a number with more integer digits makes the text wider.
// Rounds the decimal text of the double at 15 significant digits, halves away from zero.
// The sign stands directly in front of the first digit. Required: a negative number with
// `width` or more integer digits loses its sign; one that rounds to zero keeps sign and zeros.
// Fault 6 for an infinity or NaN: none ever stands in a text.
[[nodiscard]] std::string FormatNum(double value, int width, int decimals);

// The same for a text, read by the number rule; a number too large counts as 0.
[[nodiscard]] std::string FormatNum(std::string_view text, int width, int decimals);

// Appends FormatNum to a line; what every table uses.
void appendFormatNum(std::string& line, double value, int width, int decimals);

// The same without its blanks.
void appendBareNum(std::string& line, double value, int width, int decimals);

// Where a text stands in its columns. Any other number: as it is, nothing filled.
enum class Align : int { Left = 0, Right = 1 };

// The text cut to `width` columns (a letter that would cross the limit is dropped), or filled
// with blanks after it (Left) or in front of it (Right).
[[nodiscard]] std::string FormatText(std::string_view text, int width, Align align);
void appendFormatText(std::string& line, std::string_view text, int width, Align align);

}  // namespace kelvo::genSub
