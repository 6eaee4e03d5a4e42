#include "geodesy/ellipsoid.h"

#include <cmath>

#include "common/checked_arithmetic.h"

namespace kelvo::KelvoSub {

double degreeToRadian() {
    static const double factor = std::atan(1.0) / 45.0;
    return factor;
}

void NormFlat(double& f) {
    if (f > 1.0) f = 1.0 / f;
}

double RadiusW(double e2, double phi) {
    const double s = std::sin(phi);
    return squareRoot(1 - s * s * e2);
}

double RadiusN(double a, double e2, double phi) {
    const double s = std::sin(phi);
    return quotient(a, squareRoot(1 - s * s * e2));
}

double RadiusM(double a, double e2, double phi) {
    return quotient((1 - e2) * a, std::pow(RadiusW(e2, phi), 3));
}

}  // namespace kelvo::KelvoSub
