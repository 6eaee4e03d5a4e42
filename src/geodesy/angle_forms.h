// KelvoSub: the four ways of writing an angle.
#pragma once

#include <cstdint>
#include <string>

namespace kelvo {

// The ways in which an angle is written, by the numbers that data files and callers know them by.
enum class AngleForm : int {
    Degrees = 1,  // decimal degrees
    Blanks = 2,   // ddd mm ss.ss
    Hyphens = 3,  // ddd-mm-ss.ss
    Dms = 4,      // ddd.mmssss
};

struct DegreesMinutesSeconds {
    std::int16_t D = 0;
    std::int16_t M = 0;
    double S = 0;
};

// A split, and whether the parts rebuild the angle to 1e-8 degrees.
struct SplitAngle {
    DegreesMinutesSeconds parts;
    bool rebuilds = true;
};

// An angle read from ddd.mmssss: decimal degrees, their split, and whether that split rebuilds
// them to 1e-9 degrees. It doesn't where the seconds are within 1e-5 below a whole minute.
struct ParsedAngle {
    double degrees = 0;
    SplitAngle split;
    bool rebuilds = true;

    [[nodiscard]] bool doubtful() const { return !split.rebuilds || !rebuilds; }
};

namespace KelvoSub {

// Degrees, minutes and seconds of decimal degrees. Degrees beyond 16 bits are fault 6.
[[nodiscard]] SplitAngle SplitDeg(double x);

// ddd.mmssss, not negative, to decimal degrees, by the digits of its text: decimals past the
// tenth place are lost. Minutes or seconds of 60 and more count at face value.
[[nodiscard]] ParsedAngle ParseDms(double x);

// ddd.mmssss with a sign to decimal degrees, and back. The split inside belongs to the magnitude.
[[nodiscard]] ParsedAngle DmsToDeg(double x);
[[nodiscard]] double DegToDms(double x);

// The split with the sign on the degrees. A negative angle comes out as it falls (-37.5 gives
// 38, 30, 0): required; only positive angles of reports come here.
[[nodiscard]] SplitAngle DegToDmsParts(double x);

// Decimal degrees as a text of 19 columns in the form; empty for a number that is no form. Seconds
// have four decimals in the forms with blanks and hyphens. The angle is split first, so degrees
// beyond 16 bits fault in every form. The split of a magnitude always rebuilds it.
[[nodiscard]] std::string AngleText(double x, AngleForm form);
void appendAngleText(std::string& line, double x, AngleForm form);

}  // namespace KelvoSub
}  // namespace kelvo
