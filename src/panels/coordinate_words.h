// The words of a text that may hold coordinates: numbers, angles in three parts, everything else.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kelvo {

struct CoordinateWord {
    enum class Kind { Number, Angle, Other };

    Kind kind = Kind::Other;
    std::string text;          // as spelt; of a number without its unit and hemisphere
    std::string degrees;       // of an angle: digits only, the seconds with decimals or without
    std::string minutes;       //
    std::string seconds;       //
    bool negative = false;     // of an angle
    char hemisphere = 0;       // N, S, E, W
    bool saysDegrees = false;  // a number with the sign of degrees after it

    [[nodiscard]] bool isNumber() const { return kind == Kind::Number; }
    [[nodiscard]] bool isWhole() const;  // digits alone
    [[nodiscard]] bool hasDigits() const;
};

struct CoordinateLine {
    std::vector<CoordinateWord> words;
    bool tightCommas = false;  // a comma stands between two digits
    bool otherGaps = false;    // and something else parts words, too
};

// Splits at blanks, tabs, line ends, semicolons and commas. The signs of degrees, minutes and
// seconds hold the three parts of an angle together.
[[nodiscard]] CoordinateLine coordinateWords(std::string_view text);

}  // namespace kelvo
