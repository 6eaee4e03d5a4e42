#include "geodesy/national_grid.h"

#include <algorithm>
#include <cmath>

#include "common/checked_arithmetic.h"
#include "common/run_time_fault.h"
#include "geodesy/zones.h"

namespace kelvo {

namespace {

constexpr double kSecond = 1.0 / 3600;
constexpr int kHighestZone = 3;

const TmGrid& nationalGrid() {
    static const TmGrid grid(kBessel, originOf(TmZone::Centre));
    return grid;
}

// The national grid ends in the east with zone 3.
int nationalZone(double Lam) {
    return std::min(static_cast<int>(tmZoneAt(Lam)), kHighestZone);
}

double nationalMeridian(int zone, double shiftSeconds) {
    return (2.0 * zone + 123) + shiftSeconds / 3600;
}

double distance(const GridPoint& from, const GridPoint& to) {
    const double dX = to.X - from.X;
    const double dY = to.Y - from.Y;
    return std::sqrt(dY * dY + dX * dX);
}

// Each place picks its own zone; two of them share a parallel.
ArcSecLengths lengthsAt(double Phi, double Lam) {
    const auto at = [](const TmParallel& parallel, double lam) {
        return parallel.at(lam, nationalMeridian(nationalZone(lam), kOriginShiftSeconds));
    };
    const TmParallel parallel(nationalGrid(), Phi);
    const GridPoint here = at(parallel, Lam);
    const GridPoint north = at(TmParallel(nationalGrid(), kSecond + Phi), Lam);
    const GridPoint east = at(parallel, kSecond + Lam);
    return {.MPhi = distance(here, north), .MLam = distance(here, east)};
}

// The same place by place, with what stands in for a place that can't be computed.
ArcSecLengths lengthsOneByOne(double Phi, double Lam) {
    ArcSecLengths lengths;
    const auto gridAt = [&lengths](double phi, double lam) {
        int zone = 0;
        const auto grid = KelvoSub::BesselToTM(phi, lam, zone, kOriginShiftSeconds);
        if (grid.failed) ++lengths.unprojected;
        return grid.value;
    };
    const GridPoint here = gridAt(Phi, Lam);
    lengths.MPhi = distance(here, gridAt(kSecond + Phi, Lam));
    lengths.MLam = distance(gridAt(Phi, Lam), gridAt(Phi, kSecond + Lam));
    return lengths;
}

}  // namespace

double lengthInMetres(double DPhi, double DLam, const ArcSecLengths& second) {
    const double east = second.MLam * DLam * 3600;
    const double north = second.MPhi * DPhi * 3600;
    return squareRoot(east * east + north * north);
}

namespace KelvoSub {

Guarded<GridPoint> BesselToTM(double Phi, double Lam, int& zone, double shiftSeconds) {
    if (zone < 1) zone = nationalZone(Lam);
    return GeoToTM(Phi, Lam, nationalGrid(), nationalMeridian(zone, shiftSeconds));
}

Guarded<Position> TMToBessel(double X, double Y, int& zone, double shiftSeconds) {
    zone = std::clamp(zone, 1, kHighestZone);
    return TMToGeo(X, Y, nationalGrid(), nationalMeridian(zone, shiftSeconds));
}

ArcSecLengths ArcSecLen(double Phi, double Lam) {
    try {
        return lengthsAt(Phi, Lam);
    } catch (const RuntimeFault&) {
        return lengthsOneByOne(Phi, Lam);
    }
}

}  // namespace KelvoSub
}  // namespace kelvo
