#include "common/plane_geometry.h"

#include <cmath>

#include "common/checked_arithmetic.h"
#include "common/run_time_fault.h"

namespace kelvo::genSub {

namespace {

// Printed directions and the plot's logarithms go by these short constants: required.
constexpr double kDegreesPerRadian = 57.29578;
constexpr double kRadiansPerDegree = 0.01745329;
constexpr double kNaturalLogOfTen = 2.302585093;

// A line y = m x + b.
struct SlopeOffset {
    double m = 0;
    double b = 0;
};

}  // namespace

double Log10Guard(double x) {
    if (!(x > 0)) return 0;
    return finite(std::log(x)) / kNaturalLogOfTen;
}

double SqrGuard(double x, MessageBoxes& messages) {
    if (x <= 0) return 0;
    try {
        return squareRoot(x);
    } catch (const RuntimeFault&) {
        messages.tell("Error in calculation of Square Root");
        return 0;
    }
}

double MinOf(double a, double b) {
    return b < a ? b : a;
}

DirectionDistance DistanceAndDirection(double X1, double Y1, double X2, double Y2) {
    double dX = finite(X2 - X1);
    const double dY = finite(Y2 - Y1);
    const double distance = squareRoot(dX * dX + dY * dY);
    if (dX == 0) dX = 1e-15;
    double direction = std::atan(quotient(dY, dX)) * kDegreesPerRadian;
    if (dX < 0) direction += 180;
    return {.direction = direction, .distance = distance};
}

DirectionDistance DistanceToLine(double x1, double y1, double x2, double y2, double x, double y) {
    const bool upright = x2 == x1;
    const double m = upright ? 1e15 : quotient(y2 - y1, x2 - x1);
    const double b = upright ? 0 : y1 - x1 * m;
    // A level line has an upright perpendicular, whose slope is undefined.
    const bool level = m == 0;
    const double perpendicular = level ? 1e15 : quotient(-1, m);
    const double offset = y - x * perpendicular;
    const double footX = quotient(offset - b, m - perpendicular);
    const double footY = level ? m * footX + b : perpendicular * footX + offset;
    return DistanceAndDirection(footX, footY, x, y);
}

PlanePoint PolarPoint(double x, double y, double direction, double distance) {
    const double angle = finite(kRadiansPerDegree * direction);
    return {.x = finite(x + distance * std::cos(angle)),
            .y = finite(y + distance * std::sin(angle))};
}

PlanePoint LineIntersection(double x1, double y1, double x2, double y2, double x3, double y3,
                            double x4, double y4) {
    const auto through = [](double ax, double ay, double bx, double by) {
        const double m = bx == ax ? 1e25 : quotient(by - ay, bx - ax);
        return SlopeOffset{.m = m, .b = ay - ax * m};
    };
    const SlopeOffset one = through(x1, y1, x2, y2);
    const SlopeOffset two = through(x3, y3, x4, y4);
    const double x = quotient(two.b - one.b, one.m - two.m);
    return {.x = x, .y = finite(two.m * x + two.b)};
}

}  // namespace kelvo::genSub
