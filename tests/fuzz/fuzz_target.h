// What every fuzzer is: one function that takes any bytes and must come back. It ends the process
// where a promise is broken; the sanitizers do so for undefined behaviour.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <span>
#include <string>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace kelvo::fuzz {

// Lines that a target knows a meaning for: the mutator puts them into its inputs. A target whose
// input isn't made of lines gives none.
[[nodiscard]] std::span<const std::string_view> knownLines();

// Whether stored inputs are replayed, as a test, and speed doesn't matter.
#ifdef KELVO_FUZZ
inline constexpr bool kReplaysStoredInputs = false;
#else
inline constexpr bool kReplaysStoredInputs = true;
#endif

inline std::string_view textOf(const std::uint8_t* data, std::size_t size) {
    return {reinterpret_cast<const char*>(data), size};
}

// Ends the process, which the fuzzer reports with the input that led here. The promise comes in
// pieces, which are put together only if it is broken.
template <class... Pieces>
void require(bool holds, const Pieces&... promise) {
    if (holds) return;
    std::string text;
    ((text += std::string(promise)), ...);
    std::fprintf(stderr, "broken promise: %s\n", text.c_str());
    std::abort();
}

}  // namespace kelvo::fuzz
