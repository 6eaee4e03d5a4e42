// What a format can't hold of a text.
#pragma once

#include <string>
#include <string_view>

#include "exchange/vector_format.h"

namespace kelvo {

// In Korean words; empty where the format holds it.
[[nodiscard]] std::string whyNotHeld(std::string_view text, VectorFormat format);

}  // namespace kelvo
