// The angle forms step by step. Shares no line with src/.
#pragma once

#include <cmath>
#include <cstdlib>
#include <string>

#include "reference/fixed_width.h"

namespace kelvo::reference {

struct Split {
    double D = 0;
    double M = 0;
    double S = 0;
    bool rebuilds = true;  // false where a message is due
};

inline Split SplitDeg(double x) {
    Split r;
    r.D = std::floor(x);
    r.M = std::floor((x - r.D) * 60);
    r.S = ((x - r.D) - r.M / 60) * 3600;
    if (r.S < 0) {
        r.M = r.M - 1;
        r.S = r.S + 60;
    }
    if (r.M < 0) {
        r.D = r.D - 1;
        r.M = r.M + 60;
    }
    if (r.S > 59.99999) {
        r.S = 0;
        r.M = r.M + 1;
    }
    if (r.M >= 60) {
        r.M = 0;
        r.D = r.D + 1;
    }
    r.rebuilds = !(std::fabs(x - ((r.M / 60 + r.D) + r.S / 3600)) > 1e-08);
    return r;
}

inline double ParseDms(double x) {
    const std::string t = FormatNum(x, 4, 10);
    // With five degrees digits and more the point stands among the minutes: ".5" counts as 0.
    const double D = std::trunc(std::atof(t.substr(0, 4).c_str()));
    const double M = std::trunc(std::atof(t.substr(5, 2).c_str()));
    const double S = std::atof(t.substr(7, 8).c_str()) / 1000000;
    return (M / 60 + D) + S / 3600;
}

inline double signOf(double x) {
    return x > 0 ? 1.0 : x < 0 ? -1.0 : 0.0;
}

inline double DmsToDeg(double x) {
    return ParseDms(std::fabs(x)) * signOf(x);
}

inline double DegToDms(double x) {
    const Split r = SplitDeg(std::fabs(x));
    return (r.M / 100 + r.D + r.S / 10000) * signOf(x);
}

inline std::string AngleText(double x, int form) {
    const Split r = SplitDeg(std::fabs(x));
    std::string dtext = std::to_string(static_cast<long>(r.D));
    if (signOf(x) < 0) dtext = "-" + dtext;
    if (dtext.size() < 8) dtext.insert(0, 8 - dtext.size(), ' ');
    std::string mtext = FormatNum(r.M, 2, 0);
    if (mtext[0] == ' ') mtext[0] = '0';
    std::string stext = FormatNum(r.S, 2, 4);
    if (stext[0] == ' ') stext[0] = '0';
    switch (form) {
        case 1:
            return FormatNum(x, 8, 10);
        case 2:
            return dtext + " " + mtext + " " + stext;
        case 3:
            return dtext + "-" + mtext + "-" + stext;
        case 4:
            return FormatNum(DegToDms(x), 8, 10);
        default:
            return {};
    }
}

}  // namespace kelvo::reference
