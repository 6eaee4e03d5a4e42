// Copying and pasting the coordinates of one group of boxes.
#pragma once

#include <QString>
#include <QWidget>
#include <string>
#include <vector>

#include "desktop/widget_book.h"
#include "panels/coordinate_text.h"

namespace kelvo::desktop {

struct CoordinateGroup {
    CoordinateForm form;
    std::vector<std::string> boxes;  // latitude, longitude, height; or X, Y, height
};

// Two small buttons that copy the group as a row for a spreadsheet, and paste into it. Pasting
// types into the boxes, or into none and says why: the group is closed to typing, or the text on
// the clipboard isn't one point without doubt.
[[nodiscard]] QWidget* clipboardButtons(WidgetBook& book, const CoordinateGroup& group);

}  // namespace kelvo::desktop
