// From any of the four systems into all of them: the one place that knows the chain of steps.
//
// Forward, from WGS84: shift, geoid (at the position before any adjustment), first adjustment and
// correction added to the user coordinates, TM, UTM. Backward, from the other three: to the user
// ellipsoid, geoid, shift, first adjustment and correction taken from the WGS84 coordinates, so
// that the given ones stay as they are; then the grids that weren't given.
#pragma once

#include <optional>
#include <span>

#include "conversion/converted_point.h"
#include "conversion/definition.h"
#include "conversion/outcome.h"
#include "geodesy/angle_forms.h"

namespace kelvo {

// UTM on WGS84, on the origins of a UTM grid.
class WgsUtmGrid {
public:
    explicit WgsUtmGrid(const Projection& utm);

    // The grid point on the origin that the WGS84 longitude selects, which is left in UZone and
    // ULam0. Data that can't be computed fails and gives the false origin.
    [[nodiscard]] Guarded<GridPoint> at(const Position& wgs, UtmZone& UZone, double& ULam0) const;

private:
    TmGrid grid_;
};

// Immutable, and safe to share between threads. No point throws: what is wrong with one stands in
// its outcome, and the numbers reached before that in its place.
class Converter {
public:
    explicit Converter(Definition definition);

    [[nodiscard]] const Definition& definition() const { return definition_; }

    // Each point as if it were the only one. `angles` is the form of given angles: Degrees, any
    // other counts as ddd.mmssss. `points` has the length of `given`; `outcomes` is cleared. UTM on
    // WGS84 is left out.
    void convert(System system, AngleForm angles, std::span<const GivenPoint> given,
                 std::span<ConvertedPoint> points, Outcomes& outcomes) const;

    // UTM on WGS84 of points that have been converted; a remark for a point that can't be
    // projected.
    void addWgsUtm(std::span<ConvertedPoint> points, Outcomes& outcomes) const;

private:
    class Block;

    Definition definition_;
    TmGrid tm_;
    TmGrid utm_;
    WgsUtmGrid wgsUtm_;
    std::optional<EllipsoidShape> userShape_;  // none for an ellipsoid that can't be computed
};

}  // namespace kelvo
