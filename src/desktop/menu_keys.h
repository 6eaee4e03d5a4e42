// F10 leads into the menu bar, as Alt does.
#pragma once

#include <QMenuBar>

namespace kelvo::desktop {

// The first menu is highlighted, not opened: the arrow keys walk from there. F10 once more, or
// Esc, gives the keyboard back.
void leadIntoMenus(QMenuBar& bar);

}  // namespace kelvo::desktop
