// Results of guarded routines that a test expects to be good.
#pragma once

#include <gtest/gtest.h>

#include "common/guarded.h"

namespace kelvo::testing {

template <class T>
const T& good(const Guarded<T>& result) {
    EXPECT_FALSE(result.failed);
    return result.value;
}

}  // namespace kelvo::testing
