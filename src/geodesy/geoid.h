// KelvoSub: the approximate geoid, a weighted mean of a handful of stored heights.
#pragma once

#include <array>

namespace kelvo {

// One stored table: rows 1 to 25 of room for 30. All zero until SetDatumPara fills it.
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
// is checked; the result stays within the stored heights.
// GeoidHeight needs filled tables (fault 6 otherwise); GeoidHeightBessel gives 0 without them.
[[nodiscard]] double GeoidHeight(const GeoidTables& tables, double Phi, double Lam);
[[nodiscard]] double GeoidHeightBessel(const GeoidTables& tables, double Phi, double Lam);

}  // namespace KelvoSub
}  // namespace kelvo
