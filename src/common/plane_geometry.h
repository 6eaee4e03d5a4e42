// genSub: guards of two functions and a little plane geometry.
//
// X is the north and Y the east value of a grid, metres; directions are degrees, clockwise from
// the x axis. The conversion factors have the limited precision that is printed with: required.
#pragma once

#include "common/ports.h"

namespace kelvo::genSub {

// Base-10 logarithm by the constant 2.302585093; 0 for x at or below 0.
[[nodiscard]] double Log10Guard(double x);

// Square root; 0 for x at or below 0.
[[nodiscard]] double SqrGuard(double x, MessageBoxes& messages);

// The smaller one; a when they are equal.
[[nodiscard]] double MinOf(double a, double b);

struct DirectionDistance {
    double direction = 0;  // degrees, -90 up to 270
    double distance = 0;
};

// From point 1 to point 2. Direction = atan(dY/dX) x 57.29578, plus 180 if dX is below 0: not
// brought into 0..360. Identical points give 0 and 0. Fault 6 if a difference or its square
// goes beyond a double.
[[nodiscard]] DirectionDistance DistanceAndDirection(double X1, double Y1, double X2, double Y2);

struct PlanePoint {
    double x = 0;
    double y = 0;
};

// Distance and direction from the foot of the perpendicular to the point (x, y). An upright
// line counts with slope 1E15 and offset 0 as its formulas stand (required).
[[nodiscard]] DirectionDistance DistanceToLine(double x1, double y1, double x2, double y2, double x,
                                               double y);

[[nodiscard]] PlanePoint PolarPoint(double x, double y, double direction, double distance);

// Where the line through points 1 and 2 meets the line through points 3 and 4; an upright line
// gets the slope 1E25. Fault 11 (6 for 0/0) for parallel lines.
[[nodiscard]] PlanePoint LineIntersection(double x1, double y1, double x2, double y2, double x3,
                                          double y3, double x4, double y4);

}  // namespace kelvo::genSub
