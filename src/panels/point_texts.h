// The point of the one-point panel in all four systems, as texts for a spreadsheet.
#pragma once

#include <string>

#include "form/form.h"

namespace kelvo {

// The twelve numbers in one row, tabs between them: WGS84, user ellipsoid, TM, UTM. Angles are in
// the form that is chosen on the panel; boxes that are empty leave their cell empty.
[[nodiscard]] std::string pointAsLine(const Form& form);

// A row of headings, and a row a system with its name in front.
[[nodiscard]] std::string pointAsTable(const Form& form);

}  // namespace kelvo
