// The parameter set of a conversion.
#pragma once

#include <cstdint>
#include <string>

#include "correction/local_datum.h"
#include "geodesy/zones.h"

namespace kelvo {

// A flag as files keep it: any 16-bit number, of which exactly 1 says yes.
enum class Flag : std::int16_t { Off = 0, On = 1 };

// What the panels store for an AddFlag that is off, where data files have 0.
inline constexpr Flag kNotAdded{2};

// In the order in which the configuration file keeps them. Angles are decimal degrees, lengths
// metres, rotations and first adjustments seconds of arc.
struct TransPara {
    std::string Editor;  // path of the external text editor; unused in a run

    double dX = 0;  // shift WGS84 -> user, metres
    double dY = 0;
    double dZ = 0;
    double Omega = 0;  // rotations, seconds of arc
    double Phi = 0;
    double Kappa = 0;
    double dS = 0;  // scale, parts per million
    ShiftKind Kind{};

    double dPhi = 0;  // first adjustment, seconds of arc
    double dLam = 0;
    double dH = 0;  // metres

    double a = 0;  // user ellipsoid: semi-major axis and inverse flattening
    double f = 0;

    TmZone Zone{};
    double Phi0 = 0;
    double Lam0 = 0;
    double X0 = 0;  // false northing
    double Y0 = 0;  // false easting
    double S0 = 0;

    double Ua = 0;  // ellipsoid and origin of the UTM grid
    double Uf = 0;
    UtmZone UZone{};
    double UPhi0 = 0;
    double ULam0 = 0;
    double UX0 = 0;
    double UY0 = 0;
    double US0 = 0;

    Flag AddFlag{};  // On: add 10.405 seconds to the longitude of the TM origin
    // Required: the correction runs unless this is Off, the header says so only for On.
    Flag CorrFlag{};
};

// The fields that belong together, taken out and put in. Origins are without the 10.405 seconds.
[[nodiscard]] ShiftParameters shiftOf(const TransPara& para);
[[nodiscard]] FirstAdjustment firstAdjustmentOf(const TransPara& para);
[[nodiscard]] Ellipsoid userEllipsoidOf(const TransPara& para);
[[nodiscard]] Projection tmOriginOf(const TransPara& para);
[[nodiscard]] Ellipsoid utmEllipsoidOf(const TransPara& para);
[[nodiscard]] Projection utmOriginOf(const TransPara& para);
void setShift(TransPara& para, const ShiftParameters& shift);
void setUserEllipsoid(TransPara& para, const Ellipsoid& ellipsoid);
void setTmOrigin(TransPara& para, const Projection& origin);
void setUtmEllipsoid(TransPara& para, const Ellipsoid& ellipsoid);
void setUtmOrigin(TransPara& para, const Projection& origin);

}  // namespace kelvo
