// A conversion by the texts that people write: parameter lines, and the file of known points.
#pragma once

#include <optional>
#include <string>

#include "library/point_converter.h"

namespace kelvo {

// UTF-8. The names are what messages call the texts.
struct DefinitionText {
    std::string parameters;
    std::optional<std::string> knownPoints;
    std::string parametersName = "parameters";
    std::string knownPointsName = "known_points";
};

// The parameters of a run as it begins, changed by the lines, and the known points where the
// correction is on; where it is off they aren't looked at. BadDefinition for the first thing wrong.
[[nodiscard]] PointConverter converterOf(const DefinitionText& text);

}  // namespace kelvo
