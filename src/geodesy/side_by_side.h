// The latitude iteration for many points at once.
//
// What it gains: one pass is a chain of roots, quotients and angles that wait for each other, so
// a point by itself takes 1.9 microseconds; side by side, with the first 18 passes without sine,
// cosine and arctangent, a point takes 0.5. The tangent is at hand in every pass, and sine and
// cosine are quotients of the triangle's sides: sin = Z / r, cos = sqrt(r^2 - Z^2) / r. What these
// passes round otherwise the last 13 wear off, a pass by the square of the latitude's tangent: up
// to 38 degrees one latitude in a thousand differs in its last bit, and of 2,000,000 grid
// coordinates none in its sixth decimal; from 38 to 39 one in 400,000. North of 39 degrees, where
// it would be more, a point goes by itself (tests/geodesy/side_by_side_test.cpp).
#pragma once

#include <span>

#include "geodesy/geocentric.h"

namespace kelvo::KelvoSub {

// The passes without angles.
inline constexpr int kAlgebraicPasses = 18;

// XYZToGeo for each point. Latitudes may differ from its own by some units in the last place of a
// double. Points that it fails for, that lie north of 39 degrees, within half a degree of the
// equator or farther than 10,000 km out are given to it. `results` has the length of `points`.
void XYZToGeo(std::span<const Geocentric> points, const Ellipsoid& ellipsoid,
              std::span<Guarded<Geographic>> results);

}  // namespace kelvo::KelvoSub
