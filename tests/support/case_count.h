// How many random cases a test tries.
#pragma once

namespace kelvo::testing {

#if defined(__SANITIZE_ADDRESS__)
inline constexpr bool kSanitized = true;
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
inline constexpr bool kSanitized = true;
#else
inline constexpr bool kSanitized = false;
#endif
#else
inline constexpr bool kSanitized = false;
#endif

// All of them in an optimised build, where each digit is compared. Under sanitizers, which ask what
// the code does with its memory and take ten times as long, a tenth.
[[nodiscard]] constexpr int caseCount(int all) {
    return kSanitized ? all / 10 : all;
}

}  // namespace kelvo::testing
