// What a conversion will take an angle for, said while it is typed.
#pragma once

#include "desktop/widget_book.h"

namespace kelvo::desktop {

// Says the reading of each box for an angle while a person types into it.
void sayReadingsOfAngles(WidgetBook& book);

// Puts the number that the box takes in the place of degrees, minutes and seconds. Nothing for a
// widget that is no box for an angle, or holds a text of another kind.
void takeAngleAsNumber(const WidgetBook& book, const QWidget* box);

}  // namespace kelvo::desktop
