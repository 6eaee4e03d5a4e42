// The rules on a point: its line, and the place that it turns out to be.
#pragma once

#include <string>

#include "batch/check_finding.h"
#include "conversion/converted_point.h"
#include "geodesy/angle_forms.h"

namespace kelvo {

// Where points of this system are. South of it lies no point of the country; beyond 39 degrees the
// way back from earth-centred coordinates gets worse fast.
inline constexpr double kSouthernLimit = 32;
inline constexpr double kNorthernLimit = 39;
inline constexpr double kWesternLimit = 124;
inline constexpr double kEasternLimit = 132;
[[nodiscard]] bool isInCountry(const Position& place);

// The island of Jeju, which has a TM origin of its own.
[[nodiscard]] bool isOnJeju(const Position& place);

// A point line with the field that its name stands in; the numbers come after it.
struct PointLine {
    TextLine line;
    int nameField = 1;
    System system{};
    AngleForm angles{};
};

struct ReadPoint {
    std::string name;
    GivenPoint given;
    bool hasHeight = false;  // other than 0
    bool sound = true;       // its coordinates are what stands in the line
};

// Reads the point as a run does, and says what of its line a run doesn't take as it stands there.
[[nodiscard]] ReadPoint readPoint(const PointLine& point, Findings& findings);

// Whether a grid point has X and Y below a kilometre, which on the grids of the country lies far
// out at sea: it was written as latitude and longitude, or with commas for thousands. Says so.
[[nodiscard]] bool isSmallGridPoint(const PointLine& point, const GivenPoint& given,
                                    Findings& findings);

// A point that was read soundly turned out to be outside the country.
void addOutsideCountry(const PointLine& point, const GivenPoint& given, const Position& wgs,
                       Findings& findings);

// An angle in ddd.mmssss whose minutes or seconds are above 59; empty for a good one.
[[nodiscard]] std::string badAngle(double dms);

}  // namespace kelvo
