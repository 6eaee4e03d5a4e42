#include "geodesy/ellipsoid.h"

#include <cmath>

#include "common/checked_arithmetic.h"
#include "common/integer_power.h"

namespace kelvo {

EllipsoidShape::EllipsoidShape(const Ellipsoid& ellipsoid) : a(ellipsoid.a) {
    double f = ellipsoid.f;
    KelvoSub::NormFlat(f);
    const double invf = quotient(1, f);
    b = quotient((invf - 1) * a, invf);
    const double a2 = a * a;
    const double b2 = b * b;
    e2 = quotient(a2 - b2, a2);
    b2OverA2 = quotient(b2, a2);
}

namespace KelvoSub {

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
    return radiusNOfSine(a, e2, std::sin(phi));
}

double radiusNOfSine(double a, double e2, double sine) {
    return quotient(a, squareRoot(1 - sine * sine * e2));
}

double RadiusM(double a, double e2, double phi) {
    const Powers<3> W(RadiusW(e2, phi));
    return quotient((1 - e2) * a, W(3));
}

}  // namespace KelvoSub
}  // namespace kelvo
