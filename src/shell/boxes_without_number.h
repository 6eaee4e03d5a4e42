// Boxes whose text the program would refuse. What reads them strictly ends the program on such a
// text (required), so help that isn't asked for, a key say, looks here first.
#pragma once

#include <initializer_list>
#include <string_view>

#include "form/form.h"

namespace kelvo {

// The first box in one of the frames, or in a frame inside it, that holds no number or one out of
// range; null if there is none. The two boxes that nothing reads don't count.
[[nodiscard]] Control* firstBoxWithoutNumber(Form& form,
                                             std::initializer_list<std::string_view> frames);

}  // namespace kelvo
