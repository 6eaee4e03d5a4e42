// What a call of the conversion is refused with.
#pragma once

#include <string>

#include "convert/refusal.h"

namespace kelvo::testing {

// Empty if the call returns.
template <class Call>
std::string refusalOf(Call&& call) {
    try {
        (void)call();
    } catch (const Refusal& refusal) {
        return refusal.what();
    }
    return "";
}

}  // namespace kelvo::testing
