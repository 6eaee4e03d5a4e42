#include "geodesy/zones.h"

namespace kelvo {

Projection originOf(TmZone zone) {
    Projection origin{.X0 = 500000, .Y0 = 200000, .Phi0 = 38, .Lam0 = 127, .S0 = 1};
    switch (zone) {
        case TmZone::West:
            origin.Lam0 = 125;
            break;
        case TmZone::East:
            origin.Lam0 = 129;
            break;
        case TmZone::EastSea:
            origin.Lam0 = 131;
            break;
        case TmZone::Jeju:
            origin.X0 = 550000;
            break;
        case TmZone::Centre:
        case TmZone::User:
            break;
    }
    return origin;
}

Projection originOf(UtmZone zone) {
    return {.X0 = 0,
            .Y0 = 500000,
            .Phi0 = 0,
            .Lam0 = zone == UtmZone::West ? 123.0 : 129.0,
            .S0 = 0.9996};
}

TmZone tmZoneAt(double lam) {
    if (lam < kWestLimit) return TmZone::West;
    if (lam <= kCentreLimit) return TmZone::Centre;
    if (lam <= kEastLimit) return TmZone::East;
    return TmZone::EastSea;
}

UtmZone utmZoneAt(double lam) {
    return lam < kWestLimit ? UtmZone::West : UtmZone::East;
}

namespace KelvoSub {

void chkZone(double lam, TmZone& Zone, double& Lam0) {
    if (Zone >= TmZone::Jeju) return;
    Zone = tmZoneAt(lam);
    Lam0 = originOf(Zone).Lam0;
}

void chkUZone(double lam, UtmZone& UZone, double& ULam0) {
    constexpr UtmZone kBeyondUser{4};
    if (UZone >= kBeyondUser) return;
    UZone = utmZoneAt(lam);
    ULam0 = originOf(UZone).Lam0;
}

}  // namespace KelvoSub
}  // namespace kelvo
