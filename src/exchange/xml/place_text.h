// Coordinates as KML and GPX spell them.
#pragma once

#include <optional>
#include <string_view>

#include "exchange/point_files.h"

namespace kelvo {

// A number with blanks around it; nothing for any other text, or one that a double can't hold.
[[nodiscard]] std::optional<double> numberIn(std::string_view text);

// The first place of a list: east, north and perhaps a height, with commas between. Nothing where
// one of them is no number.
[[nodiscard]] std::optional<Place> firstPlaceIn(std::string_view list);

}  // namespace kelvo
