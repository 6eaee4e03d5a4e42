#include "geodesy/national_grid.h"

#include <algorithm>
#include <cmath>

#include "common/checked_arithmetic.h"
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

// Each of the places picks its own zone; two of them share a parallel.
ArcSecLengths ArcSecLen(double Phi, double Lam) {
    ArcSecLengths lengths;
    const auto at = [&lengths](const TmParallel& parallel, double lam, int counted) {
        const auto grid =
            parallel.at(lam, nationalMeridian(nationalZone(lam), kOriginShiftSeconds));
        if (grid.failed) lengths.unprojected += counted;
        return grid.value;
    };
    const auto parallelAt = [](double phi) {
        return TmParallel(nationalGrid(), TmLatitude(nationalGrid(), phi));
    };
    const TmParallel parallel = parallelAt(Phi);
    const GridPoint here = at(parallel, Lam, 2);
    lengths.MPhi = distance(here, at(parallelAt(kSecond + Phi), Lam, 1));
    lengths.MLam = distance(here, at(parallel, kSecond + Lam, 1));
    return lengths;
}

}  // namespace KelvoSub
}  // namespace kelvo
