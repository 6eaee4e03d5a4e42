// The coordinate reference system of what is written, for files that carry one.
#pragma once

#include <string>

#include "conversion/converted_point.h"
#include "conversion/definition.h"

namespace kelvo {

// The systems in which the place of a point can be written.
enum class PlaceSystem { Wgs, User, Tm, Utm, WgsUtm };

// By the code of the EPSG register ("EPSG:5174") where one defines the same numbers: WGS84 (4326),
// its UTM zones, the Korean datum of 1985 (4162) and the grids on it with their seconds (5173 to
// 5177) and without (2096 to 2098, 5167, 5168), the grids of Korea 2000 (5179, 5185 to 5188).
// Otherwise as WKT2:2019, bound to WGS84 by the seven parameters (coordinate frame, EPSG method
// 9607, turned to lead to WGS84). Easting or longitude is its first axis.
//
// The Korean datum's codes stand for the recommended shift of the first kind only: they lead back
// to WGS84 by EPSG:5191, within 0.11 m, while the bound system agrees with the second kind to a
// centimetre. With the first kind a bound system is within 0.15 m, since the scale that it states
// hardly acts there.
//
// `Lam0` is the central meridian of the grid without the 10.405 seconds, degrees; geographic
// systems pass over it. Needs a definition whose ellipsoids have an axis and a flattening.
[[nodiscard]] std::string coordinateSystemOf(const Definition& definition, PlaceSystem system,
                                             double Lam0);

// Whether the shift and the grid can't stand for the whole of what is between these coordinates and
// WGS84: a first adjustment, known points, or UTM on an ellipsoid that isn't that of the user.
[[nodiscard]] bool differsFromItsSystem(const Definition& definition, PlaceSystem system);

// Metres by which a converted point stands beside the place that its system gives its WGS84
// coordinates: first adjustment and correction together. 0 for WGS84 and UTM on it.
[[nodiscard]] double metresBesideSystem(const Definition& definition, PlaceSystem system,
                                        const ConvertedPoint& point);

}  // namespace kelvo
