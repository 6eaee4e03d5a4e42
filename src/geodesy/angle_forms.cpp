#include "geodesy/angle_forms.h"

#include <array>
#include <cmath>
#include <string_view>

#include "common/checked_arithmetic.h"
#include "common/fixed_width.h"
#include "common/number_text.h"

namespace kelvo::KelvoSub {

namespace {

// Seconds above this are taken for a whole minute.
constexpr double kWholeMinute = 59.99999;
// How far a split may be off the angle, and how far one that came out of ddd.mmssss, degrees.
constexpr double kSplitSlack = 1e-08;
constexpr double kParsedSlack = 1e-09;

constexpr std::size_t kDegreeColumns = 8;

int signOf(double x) {
    return x > 0 ? 1 : x < 0 ? -1 : 0;
}

double rebuilt(const DegreesMinutesSeconds& parts) {
    return (parts.M / 60.0 + parts.D) + parts.S / 3600;
}

// The characters [from, from + count) of a text as a number.
double digitsAt(const std::string& text, std::size_t from, std::size_t count) {
    return leadingNumber(std::string_view(text).substr(from, count));
}

DegreesMinutesSeconds split(double x) {
    DegreesMinutesSeconds r;
    r.D = floorInteger16(x);
    r.M = floorInteger16((x - r.D) * 60);
    r.S = ((x - r.D) - r.M / 60.0) * 3600;
    if (r.S < 0) {
        r.M = toInteger16(r.M - 1);
        r.S = r.S + 60;
    }
    if (r.M < 0) {
        r.D = toInteger16(r.D - 1);
        r.M = toInteger16(r.M + 60);
    }
    if (r.S > kWholeMinute) {
        r.S = 0;
        r.M = toInteger16(r.M + 1);
    }
    if (r.M >= 60) {
        r.M = 0;
        r.D = toInteger16(r.D + 1);
    }
    return r;
}

}  // namespace

SplitAngle SplitDeg(double x) {
    const DegreesMinutesSeconds parts = split(x);
    return {.parts = parts, .rebuilds = std::abs(x - rebuilt(parts)) <= kSplitSlack};
}

ParsedAngle ParseDms(double x) {
    const std::string t = genSub::FormatNum(x, 4, 10);
    const double D = toInteger16(digitsAt(t, 0, 4));
    const double M = toInteger16(digitsAt(t, 5, 2));
    const double S = digitsAt(t, 7, 8) / 1000000;
    ParsedAngle angle;
    angle.degrees = (M / 60 + D) + S / 3600;
    angle.split = SplitDeg(angle.degrees);
    angle.rebuilds = std::abs(angle.degrees - rebuilt(angle.split.parts)) <= kParsedSlack;
    return angle;
}

ParsedAngle DmsToDeg(double x) {
    ParsedAngle angle = ParseDms(std::abs(x));
    angle.degrees *= signOf(x);
    return angle;
}

double DegToDms(double x) {
    const DegreesMinutesSeconds parts = split(std::abs(x));
    return (parts.M / 100.0 + parts.D + parts.S / 10000) * signOf(x);
}

SplitAngle DegToDmsParts(double x) {
    SplitAngle split = SplitDeg(x);
    split.parts.D = toInteger16(split.parts.D * signOf(x));
    return split;
}

void appendAngleText(std::string& line, double x, AngleForm form) {
    const DegreesMinutesSeconds parts = split(std::abs(x));
    if (form == AngleForm::Degrees) {
        genSub::appendFormatNum(line, x, 8, 10);
        return;
    }
    if (form == AngleForm::Dms) {
        genSub::appendFormatNum(line, DegToDms(x), 8, 10);
        return;
    }
    if (form != AngleForm::Blanks && form != AngleForm::Hyphens) return;

    const char between = form == AngleForm::Blanks ? ' ' : '-';
    // Degrees in eight columns, minutes and seconds in two places with a digit in the first. The
    // sign is that of the angle, also in front of 0 degrees.
    std::array<char, 12> front;
    front.fill(' ');
    std::size_t at = kDegreeColumns;
    int degrees = parts.D;
    do {
        front[--at] = static_cast<char>('0' + degrees % 10);
        degrees /= 10;
    } while (degrees > 0);
    if (x < 0) front[--at] = '-';
    front[kDegreeColumns] = between;
    front[kDegreeColumns + 1] = static_cast<char>('0' + parts.M / 10);
    front[kDegreeColumns + 2] = static_cast<char>('0' + parts.M % 10);
    front[kDegreeColumns + 3] = between;
    line.append(front.data(), front.size());
    const std::size_t seconds = line.size();
    genSub::appendFormatNum(line, parts.S, 2, 4);
    if (line[seconds] == ' ') line[seconds] = '0';
}

std::string AngleText(double x, AngleForm form) {
    std::string text;
    appendAngleText(text, x, form);
    return text;
}

}  // namespace kelvo::KelvoSub
