// An angle as people type it, and what a conversion will take it for.
//
// This stands in front of the boxes: it makes texts that a box then holds. What a box's text
// counts as is another matter (entry.h) and doesn't change.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "panels/coordinate_words.h"

namespace kelvo {

// What a group of boxes holds.
enum class CoordinateForm {
    Degrees,  // latitude and longitude in decimal degrees, a height in metres
    Dms,      // latitude and longitude as ddd.mmssss, a height in metres
    Grid,     // X (north), Y (east) and a height in metres
};

// The number that a box of the form takes for degrees, minutes and seconds: 15 digits of decimal
// degrees, or ddd.mmssss digit by digit. Minutes and seconds are below 60.
[[nodiscard]] std::string numberOf(const CoordinateWord& angle, CoordinateForm form);

// Decimal degrees, without the sign.
[[nodiscard]] double degreesOf(const CoordinateWord& angle);

// Minutes and seconds are below 60.
[[nodiscard]] bool isProper(const CoordinateWord& angle);

// With a minus in front where the word has one, or a hemisphere that means one.
[[nodiscard]] std::string withSign(const std::string& text, const CoordinateWord& word);

// Degrees, minutes and seconds typed into a box for an angle ("37-35-33.2567", "37 35 33.2567")
// as the number that the box takes. Nothing for a text of another kind, which stays as it is.
[[nodiscard]] std::optional<std::string> angleAsNumber(std::string_view typed, CoordinateForm form);

// What a conversion will take the text of an angle box for, in words: "37°35′33.2567″", or what
// is wrong with it. `form` is Degrees or Dms.
[[nodiscard]] std::string readingOf(std::string_view text, CoordinateForm form);

}  // namespace kelvo
