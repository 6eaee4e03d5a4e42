// Constants of the plot object, in the limited precision that its drawings rest on (required).
#pragma once

#include <cstdint>

namespace kelvo {

inline constexpr double kTwipsPerMillimetre = 56.7;  // not 1440 / 25.4
inline constexpr double kPlotPi = 3.141592654;
inline constexpr double kLn10 = 2.302585093;

inline constexpr std::int32_t kBlack = 0;
inline constexpr std::int32_t kGreen = 0x008000;  // number 2 of the sixteen-colour table
inline constexpr std::int32_t kWhite = 0xFFFFFF;

// Modes of pfillMode.
inline constexpr int kFillCopying = 13;
inline constexpr int kFillBlack = 1;

}  // namespace kelvo
