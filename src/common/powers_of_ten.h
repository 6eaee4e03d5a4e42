// Powers of ten that a double holds exactly, and as integers.
#pragma once

#include <array>
#include <cstdint>

namespace kelvo {

inline constexpr int kExactPowers = 22;

inline constexpr std::array<double, kExactPowers + 1> kPowerOfTen{
    1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,  1e10, 1e11,
    1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};

inline constexpr auto kIntegerPowerOfTen = [] {
    std::array<std::uint64_t, 20> powers{};
    std::uint64_t power = 1;
    for (auto& entry : powers) {
        entry = power;
        power *= 10;
    }
    return powers;
}();

}  // namespace kelvo
