// KelvoSub: the four ways of writing an angle.
#pragma once

#include <cstdint>
#include <string>

#include "common/ports.h"

namespace kelvo {

// The forms by number: 1 decimal degrees, 2 ddd mm ss.ss, 3 ddd-mm-ss.ss, 4 ddd.mmssss.
inline constexpr int kAngleDegrees = 1;
inline constexpr int kAngleBlanks = 2;
inline constexpr int kAngleHyphens = 3;
inline constexpr int kAngleDms = 4;

struct DegreesMinutesSeconds {
    std::int16_t D = 0;
    std::int16_t M = 0;
    double S = 0;
};

namespace KelvoSub {

// Splits decimal degrees. Degrees beyond 16 bits are fault 6. A split that doesn't rebuild the
// value to 1e-8 degrees is told in a message; the result stays.
[[nodiscard]] DegreesMinutesSeconds SplitDeg(double x, MessageBoxes& messages);

// ddd.mmssss, not negative, to decimal degrees, by the digits of its text: decimals past the
// tenth place are lost. Minutes or seconds of 60 and more count at face value.
[[nodiscard]] double ParseDms(double x, MessageBoxes& messages);

// ddd.mmssss with a sign to decimal degrees, and back.
[[nodiscard]] double DmsToDeg(double x, MessageBoxes& messages);
[[nodiscard]] double DegToDms(double x, MessageBoxes& messages);

// The split with the sign on the degrees. A negative angle comes out as it falls (-37.5 gives
// 38, 30, 0): required; only positive angles of reports come here.
[[nodiscard]] DegreesMinutesSeconds DegToDmsParts(double x, MessageBoxes& messages);

// Decimal degrees as a text of 19 columns in the form; empty for an unknown form. Seconds have
// four decimals in forms 2 and 3. Splits first, so degrees beyond 16 bits fault in every form.
[[nodiscard]] std::string AngleText(double x, int form, MessageBoxes& messages);
void appendAngleText(std::string& line, double x, int form, MessageBoxes& messages);

// Metres of one second of arc of latitude and of longitude at a place, on the fixed Bessel grid
// with the 10.405 seconds. Where the step crosses a zone border the length is the distance
// between the zones (required).
struct ArcSecLengths {
    double MPhi = 0;
    double MLam = 0;
};
[[nodiscard]] ArcSecLengths ArcSecLen(double Phi, double Lam, MessageBoxes& messages);

}  // namespace KelvoSub
}  // namespace kelvo
