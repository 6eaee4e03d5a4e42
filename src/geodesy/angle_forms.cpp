#include "geodesy/angle_forms.h"

#include <array>
#include <charconv>
#include <cmath>

#include "common/checked_arithmetic.h"
#include "common/fixed_width.h"
#include "common/number_text.h"
#include "common/run_time_fault.h"
#include "common/text_constants.h"
#include "geodesy/transverse_mercator.h"

namespace kelvo::KelvoSub {

namespace {

constexpr std::string_view kDeveloperLine = "Program 개발자에게 알려 주시기 바랍니다.";

// The largest integer not above x, as a 16-bit integer.
std::int16_t floor16(double x) {
    if (!(x > -32769.0 && x < 32768.0)) raise(Fault::Overflow);
    const int towardsZero = static_cast<int>(x);
    return toInteger16(towardsZero > x ? towardsZero - 1 : towardsZero);
}

int signOf(double x) {
    return x > 0 ? 1 : x < 0 ? -1 : 0;
}

double rebuilt(const DegreesMinutesSeconds& parts) {
    return (parts.M / 60.0 + parts.D) + parts.S / 3600;
}

// A number as it is joined into a sentence: a positive one has a blank in its sign place.
std::string joinedNumber(double value) {
    std::string text(value < 0 ? "" : " ");
    return text += generalText(value);
}

// Splits at the point of a positional text: [from, from + count) as a number.
double digitsAt(const std::string& text, std::size_t from, std::size_t count) {
    return leadingNumber(std::string_view(text).substr(from, count));
}

double distance(double X1, double Y1, double X2, double Y2) {
    const double dX = X2 - X1;
    const double dY = Y2 - Y1;
    return squareRoot(dY * dY + dX * dX);
}

}  // namespace

DegreesMinutesSeconds SplitDeg(double x, MessageBoxes& messages) {
    DegreesMinutesSeconds r;
    r.D = floor16(x);
    r.M = floor16((x - r.D) * 60);
    r.S = ((x - r.D) - r.M / 60.0) * 3600;
    if (r.S < 0) {
        r.M = toInteger16(r.M - 1);
        r.S = r.S + 60;
    }
    if (r.M < 0) {
        r.D = toInteger16(r.D - 1);
        r.M = toInteger16(r.M + 60);
    }
    if (r.S > 59.99999) {
        r.S = 0;
        r.M = toInteger16(r.M + 1);
    }
    if (r.M >= 60) {
        r.M = 0;
        r.D = toInteger16(r.D + 1);
    }
    if (std::abs(x - rebuilt(r)) > 1e-08)
        messages.tell("각도 " + genSub::FormatNum(x, 4, 10) + "을 도분초" + joinedNumber(r.D) +
                      "-" + joinedNumber(r.M) + "-" + joinedNumber(r.S) +
                      " 로 환산할때 에러가 있습니다." + std::string(kLineEnd) +
                      std::string(kDeveloperLine));
    return r;
}

double ParseDms(double x, MessageBoxes& messages) {
    const std::string t = genSub::FormatNum(x, 4, 10);
    const double D = toInteger16(digitsAt(t, 0, 4));
    const double M = toInteger16(digitsAt(t, 5, 2));
    const double S = digitsAt(t, 7, 8) / 1000000;
    const double result = (M / 60 + D) + S / 3600;
    if (std::abs(result - rebuilt(SplitDeg(result, messages))) > 1e-09)
        messages.tell(t + "도분초" + "를  각도 " + genSub::FormatNum(result, 4, 10) +
                      " 로 환산할때 에러가 있습니다." + std::string(kLineEnd) +
                      std::string(kDeveloperLine));
    return result;
}

double DmsToDeg(double x, MessageBoxes& messages) {
    return ParseDms(std::abs(x), messages) * signOf(x);
}

double DegToDms(double x, MessageBoxes& messages) {
    const DegreesMinutesSeconds parts = SplitDeg(std::abs(x), messages);
    return (parts.M / 100.0 + parts.D + parts.S / 10000) * signOf(x);
}

DegreesMinutesSeconds DegToDmsParts(double x, MessageBoxes& messages) {
    DegreesMinutesSeconds parts = SplitDeg(x, messages);
    parts.D = toInteger16(parts.D * signOf(x));
    return parts;
}

void appendAngleText(std::string& line, double x, int form, MessageBoxes& messages) {
    const DegreesMinutesSeconds parts = SplitDeg(std::abs(x), messages);
    if (form == kAngleDegrees) {
        genSub::appendFormatNum(line, x, 8, 10);
        return;
    }
    if (form == kAngleDms) {
        genSub::appendFormatNum(line, DegToDms(x, messages), 8, 10);
        return;
    }
    if (form != kAngleBlanks && form != kAngleHyphens) return;

    const char between = form == kAngleBlanks ? ' ' : '-';
    // The sign is that of the angle, also in front of 0 degrees.
    std::array<char, 8> degrees;
    const bool minus = x < 0;
    if (minus) degrees.front() = '-';
    const auto [end, error] =
        std::to_chars(degrees.data() + (minus ? 1 : 0), degrees.data() + degrees.size(), parts.D);
    line.append(static_cast<std::size_t>(degrees.data() + degrees.size() - end), ' ');
    line.append(degrees.data(), end);
    // Minutes and seconds have two places, the first one a digit and never a blank.
    line += between;
    line += static_cast<char>('0' + parts.M / 10);
    line += static_cast<char>('0' + parts.M % 10);
    line += between;
    const std::size_t seconds = line.size();
    genSub::appendFormatNum(line, parts.S, 2, 4);
    if (line[seconds] == ' ') line[seconds] = '0';
}

std::string AngleText(double x, int form, MessageBoxes& messages) {
    std::string text;
    appendAngleText(text, x, form, messages);
    return text;
}

namespace {

constexpr double kSecond = 1.0 / 3600;

// Two points share a parallel. Each picks its own zone.
ArcSecLengths arcSecLengths(double Phi, double Lam) {
    const auto at = [](const TmParallel& parallel, double lam) {
        return parallel.at(lam, nationalMeridian(nationalZone(lam), kOriginShiftSeconds));
    };
    const TmParallel parallel(nationalGrid(), Phi);
    const GridPoint here = at(parallel, Lam);
    const GridPoint north = at(TmParallel(nationalGrid(), kSecond + Phi), Lam);
    const GridPoint east = at(parallel, kSecond + Lam);
    return {.MPhi = distance(here.X, here.Y, north.X, north.Y),
            .MLam = distance(here.X, here.Y, east.X, east.Y)};
}

// The same point by point, each that can't be computed told by itself.
ArcSecLengths arcSecLengthsTold(double Phi, double Lam, MessageBoxes& messages) {
    const auto gridAt = [&messages](double phi, double lam) {
        int zone = 0;
        return BesselToTM(phi, lam, zone, kOriginShiftSeconds, messages);
    };
    const GridPoint here = gridAt(Phi, Lam);
    const GridPoint north = gridAt(kSecond + Phi, Lam);
    const GridPoint hereAgain = gridAt(Phi, Lam);
    const GridPoint east = gridAt(Phi, kSecond + Lam);
    return {.MPhi = distance(here.X, here.Y, north.X, north.Y),
            .MLam = distance(hereAgain.X, hereAgain.Y, east.X, east.Y)};
}

}  // namespace

ArcSecLengths ArcSecLen(double Phi, double Lam, MessageBoxes& messages) {
    try {
        return arcSecLengths(Phi, Lam);
    } catch (const RuntimeFault&) {
        return arcSecLengthsTold(Phi, Lam, messages);
    }
}

}  // namespace kelvo::KelvoSub
