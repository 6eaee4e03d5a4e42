// Copying and pasting the coordinates of one group of boxes.
#pragma once

#include <QString>
#include <QWidget>
#include <string>
#include <vector>

#include "desktop/widget_book.h"

namespace kelvo::desktop {

// The boxes' texts without their blanks, parted by tabs: a row for a spreadsheet.
[[nodiscard]] QString coordinatesOf(const std::vector<std::string>& texts);

// The first numbers of a text, as they are spelt there: parted by tabs, commas, semicolons,
// blanks or line ends. At most `most` of them.
[[nodiscard]] std::vector<std::string> coordinatesIn(const QString& text, std::size_t most);

// Two small buttons that copy the group and paste into it. Pasting types into the boxes that are
// open to typing, and into none if one of them is closed.
[[nodiscard]] QWidget* clipboardButtons(WidgetBook& book, const std::vector<std::string>& boxes);

}  // namespace kelvo::desktop
