// KelvoSub: the approximate geoid, a weighted mean of a handful of stored heights.
//
// Method: inverse-square-distance weights over 15 stored heights, distances in plain degrees.
// Nothing is known of where the stored heights come from; docs/numbers.md holds both tables against
// EGM96. The heights above Bessel fit a shift that scales heights (kind Bursa), and they serve
// every user ellipsoid.
#pragma once

#include <array>

namespace kelvo {

// One stored table: rows 1 to 25 of room for 30. All zero until it is filled.
struct GeoidTable {
    struct Row {
        double latitude = 0;  // degrees
        double longitude = 0;
        double height = 0;  // metres above the ellipsoid
        double weight = 0;
    };
    std::array<Row, 31> rows{};
};

struct GeoidTables {
    GeoidTable bessel;
    GeoidTable wgs;
};

namespace KelvoSub {

void fillGeoidTables(GeoidTables& tables);

// Height of the geoid above WGS84 or Bessel at a position in decimal degrees, metres. The mean
// runs over rows 1 to 15 only: the meridians 129 and 130 have no influence (required). No range
// is checked; the result stays within the stored heights. Fault 6 where a distance overflows.
// GeoidHeight needs filled tables (fault 6 otherwise); GeoidHeightBessel gives 0 without them.
[[nodiscard]] double GeoidHeight(const GeoidTables& tables, double Phi, double Lam);
[[nodiscard]] double GeoidHeightBessel(const GeoidTables& tables, double Phi, double Lam);

}  // namespace KelvoSub
}  // namespace kelvo
