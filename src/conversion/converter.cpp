#include "conversion/converter.h"

#include <algorithm>
#include <utility>

#include "common/run_time_fault.h"
#include "conversion/block.h"

namespace kelvo {

namespace {

// WGS84 with its flattening written out, not as a quotient: printed digits go by it (required).
constexpr Ellipsoid kWgsOfUtm{.a = 6378137.0, .f = 0.0033528106647474805};

std::optional<EllipsoidShape> shapeOf(const Ellipsoid& ellipsoid) {
    try {
        return EllipsoidShape(ellipsoid);
    } catch (const RuntimeFault&) {
        return std::nullopt;  // each point that needs it faults by itself
    }
}

}  // namespace

WgsUtmGrid::WgsUtmGrid(const Projection& utm) : grid_(kWgsOfUtm, utm) {}

Guarded<GridPoint> WgsUtmGrid::at(const Position& wgs, UtmZone& UZone, double& ULam0) const {
    KelvoSub::chkUZone(wgs.Lam, UZone, ULam0);
    return KelvoSub::GeoToTM(wgs.Phi, wgs.Lam, grid_, ULam0);
}

Converter::Converter(Definition definition)
    : definition_(std::move(definition)),
      tm_(definition_.local.user, definition_.tm),
      utm_(definition_.utm.ellipsoid, definition_.utm.projection),
      wgsUtm_(definition_.utm.projection),
      userShape_(shapeOf(definition_.local.user)) {}

void Converter::convert(System system, AngleForm angles, std::span<const GivenPoint> given,
                        std::span<ConvertedPoint> points, Outcomes& outcomes) const {
    outcomes.clear();
    for (std::size_t first = 0; first < given.size(); first += Block::kMost) {
        const std::size_t count = std::min(Block::kMost, given.size() - first);
        Block block(*this, angles, given.subspan(first, count), points.subspan(first, count),
                    outcomes, first);
        switch (system) {
            case System::Wgs:
                block.fromWgs();
                break;
            case System::User:
                block.fromUser();
                break;
            case System::Tm:
                block.fromTm();
                break;
            case System::Utm:
                block.fromUtm();
                break;
        }
    }
}

void Converter::addWgsUtm(std::span<ConvertedPoint> points, Outcomes& outcomes) const {
    for (std::size_t i = 0; i < points.size(); ++i) {
        ConvertedPoint& p = points[i];
        UtmZone UZone = p.UZone;
        p.WgsULam0 = p.ULam0;
        const auto grid = wgsUtm_.at({.Phi = p.WgsPhi, .Lam = p.WgsLam}, UZone, p.WgsULam0);
        if (grid.failed) outcomes[i].afterDetail.push_back({.kind = Remark::Kind::NotProjected});
        p.WgsUtmX = grid.value.X;
        p.WgsUtmY = grid.value.Y;
        p.WgsUtmH = p.TmH;
    }
}

}  // namespace kelvo
