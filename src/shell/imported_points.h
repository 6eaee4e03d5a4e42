// Lines of a data file made of a list of points: which rows become lines, and where in the text the
// lines go.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "convert/point_list.h"
#include "shell/import_choice.h"

namespace kelvo {

struct ImportedLines {
    std::size_t line = 0;               // they go in front of this line of the text, from 0
    std::string text;                   // UTF-8, each line with LF
    std::size_t points = 0;             // in the lines; with none, `text` is empty
    std::vector<std::string> warnings;  // what the surveyor should see before, a sentence each
};

// The lines for a text with LF line ends whose caret stands in this line and column, from 0. They
// go in front of the caret's line if the caret stands at its start, otherwise after it; never into
// a block of lines that belong together, but after it, nor after `end`, but in front of it. Where
// angles of the text are read in another form than the list's, the form is changed in front of the
// points and back after them. At the end of a text without `end` that line is added. A row
// whose coordinates can't be read, or are both 0, gives no line and is named among the warnings.
// One column for two coordinates gives no line at all.
[[nodiscard]] ImportedLines importedLines(const PointList& list, const ImportChoice& choice,
                                          std::string_view text, std::size_t caretLine,
                                          std::size_t caretColumn);

}  // namespace kelvo
