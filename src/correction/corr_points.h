// Known points: places with WGS84 and user coordinates, and what was measured at them.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>

namespace kelvo {

// Angles in decimal degrees, heights in metres; a height of exactly 0 is one not known.
struct CorrPoint {
    std::string Name;
    double WgsPhi = 0;
    double WgsLam = 0;
    double WgsH = 0;
    double UserPhi = 0;
    double UserLam = 0;
    double UserH = 0;
    float Weight = 0;
    double DPhi = 0;  // known minus computed
    double DLam = 0;
    double DH = 0;  // required: stays from the run before where a height is not known

    [[nodiscard]] bool hasBothHeights() const { return WgsH != 0 && UserH != 0; }
};

inline constexpr int kMostCorrPoints = 200;

// Slots 1 to 200, slot 0 unused; never cleared between runs.
struct CorrPointTable {
    std::int16_t CorrCount = 0;
    std::array<CorrPoint, kMostCorrPoints + 1> CorrPoints;

    [[nodiscard]] std::span<CorrPoint> inUse() {
        return std::span(CorrPoints).subspan(1, static_cast<std::size_t>(CorrCount));
    }
    [[nodiscard]] std::span<const CorrPoint> inUse() const {
        return std::span(CorrPoints).subspan(1, static_cast<std::size_t>(CorrCount));
    }
};

}  // namespace kelvo
