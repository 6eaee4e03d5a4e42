// A message box as one line of a transcript: message|TITLE|ICON|BUTTONS|TEXT.
#pragma once

#include <string>

#include "common/ports.h"

namespace kelvo::testing {

[[nodiscard]] std::string messageLine(const Message& message);

}  // namespace kelvo::testing
