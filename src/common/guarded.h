// What a routine under a guard gives.
#pragma once

namespace kelvo {

// A result; or, for data that can't be computed, the stand-in that the routine states, and that
// it failed; the caller reports that.
template <class T>
struct Guarded {
    T value{};
    bool failed = false;
};

}  // namespace kelvo
