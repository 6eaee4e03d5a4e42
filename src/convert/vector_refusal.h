// A fault of the module for vector formats as a refusal of the conversion.
#pragma once

#include "convert/refusal.h"
#include "exchange/point_files.h"

namespace kelvo {

// What the work gives. Throws Refusal with the sentence of an ExchangeFault.
template <class Work>
auto orRefusal(const Work& work) {
    try {
        return work();
    } catch (const ExchangeFault& fault) {
        throw Refusal(fault.what());
    }
}

}  // namespace kelvo
