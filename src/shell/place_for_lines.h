// Where in the text of a data file further lines of points can stand.
#pragma once

#include <cstddef>
#include <string_view>

namespace kelvo {

struct PlaceForLines {
    std::size_t line = 0;       // in front of this one, from 0; the number of lines for the end
    bool readsDegrees = false;  // angles are decimal degrees there, otherwise ddd.mmssss
    bool needsEnd = false;      // only empty lines follow, and there is no `end`
};

// For a text with LF line ends whose caret stands in this line and column, from 0: in front of the
// caret's line if the caret stands at its start, otherwise after it; after a block of lines
// that belong together, and in front of `end`.
[[nodiscard]] PlaceForLines placeForLines(std::string_view text, std::size_t caretLine,
                                          std::size_t caretColumn);

}  // namespace kelvo
