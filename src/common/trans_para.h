// The parameter set of a conversion.
#pragma once

#include <cstdint>
#include <string>

namespace kelvo {

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
    double dS = 0;          // scale, parts per million
    std::int16_t Kind = 0;  // method of the shift: above 1 Bursa, otherwise Molodensky

    double dPhi = 0;  // first adjustment, seconds of arc
    double dLam = 0;
    double dH = 0;  // metres

    double a = 0;  // user ellipsoid: semi-major axis and inverse flattening
    double f = 0;

    std::int16_t Zone = 0;  // TM origin: 1 west, 2 centre, 3 east, 4 east sea, 5 Jeju, 6 user
    double Phi0 = 0;
    double Lam0 = 0;
    double X0 = 0;  // false northing
    double Y0 = 0;  // false easting
    double S0 = 0;

    double Ua = 0;  // ellipsoid and origin of the UTM grid
    double Uf = 0;
    std::int16_t UZone = 0;  // 1 = 123 degrees, 2 = 129 degrees, 3 user
    double UPhi0 = 0;
    double ULam0 = 0;
    double UX0 = 0;
    double UY0 = 0;
    double US0 = 0;

    std::int16_t AddFlag = 0;   // 1 = add 10.405 seconds to the TM origin longitude
    std::int16_t CorrFlag = 0;  // 0 = no correction by known points; 1 = correct
};

}  // namespace kelvo
