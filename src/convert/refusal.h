// Why a conversion doesn't take place.
#pragma once

#include <stdexcept>

namespace kelvo {

// One clear sentence. Whatever was to be written stands as it stood before.
class Refusal : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

}  // namespace kelvo
