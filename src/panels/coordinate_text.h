// Coordinates as people write them, for pasting a point into a group of boxes.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "panels/angle_text.h"

namespace kelvo {

// The texts for the boxes of a group: three, or two where the text has no height. None and a
// Korean sentence that says why where the text isn't one point without doubt.
struct CoordinateTexts {
    std::vector<std::string> texts;
    std::string refusal;
};

// Reads one point: a name in front or none (also one of digits alone), then the coordinates,
// separated by blanks, tabs, line ends, semicolons or commas. Angles are plain numbers of the form
// asked for, or degrees, minutes and seconds separated by hyphens, blanks, colons or their signs.
// Text that could be read in two ways is refused; so is a comma that might be a decimal one.
[[nodiscard]] CoordinateTexts readCoordinates(std::string_view text, CoordinateForm form);

}  // namespace kelvo
