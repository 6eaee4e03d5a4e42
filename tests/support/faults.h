// The number of the fault that a call ends with.
#pragma once

#include "common/run_time_fault.h"

namespace kelvo::testing {

// 0 if the call returns.
template <class Call>
int faultOf(Call&& call) {
    try {
        (void)call();
    } catch (const RuntimeFault& fault) {
        return fault.number();
    }
    return 0;
}

}  // namespace kelvo::testing
