// KelvoSub: the origins of the Korean TM and UTM grids, and which one a longitude belongs to.
#pragma once

#include <cstdint>

#include "geodesy/transverse_mercator.h"

namespace kelvo {

// Files and commands may hold any 16-bit number; one without a name stays as it is.
enum class TmZone : std::int16_t { West = 1, Centre, East, EastSea, Jeju, User };
enum class UtmZone : std::int16_t { West = 1, East, User };  // 123 and 129 degrees

// The longitudes where one zone gives way to the next; the limit itself belongs to the western
// TM zone, and to the eastern UTM zone.
inline constexpr double kWestLimit = 126;
inline constexpr double kCentreLimit = 128;
inline constexpr double kEastLimit = 130;

// The seconds of arc by which the longitude of the Korean TM origins is raised: the difference
// between the longitude of the old origin point and its later determination.
inline constexpr double kOriginShiftSeconds = 10.405;

// Origin of a fixed zone; that of the centre for any other.
[[nodiscard]] Projection originOf(TmZone zone);
[[nodiscard]] Projection originOf(UtmZone zone);

// The zone of a longitude in degrees.
[[nodiscard]] TmZone tmZoneAt(double lam);
[[nodiscard]] UtmZone utmZoneAt(double lam);

namespace KelvoSub {

// Sets the TM origin by the longitude in degrees, unless Zone is 5 or greater: below 126 zone 1
// (125), up to 128 zone 2 (127), up to 130 zone 3 (129), above zone 4 (131).
void chkZone(double lam, TmZone& Zone, double& Lam0);

// Sets the UTM origin by the longitude, unless UZone is 4 or greater, so also over a user origin
// (required): below 126 zone 1 (123), otherwise zone 2 (129).
void chkUZone(double lam, UtmZone& UZone, double& ULam0);

}  // namespace KelvoSub
}  // namespace kelvo
