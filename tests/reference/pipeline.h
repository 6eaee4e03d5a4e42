// The four pipelines with the parameters of a run's start, step by step, on the other
// references. Shares no line with src/.
#pragma once

#include <string>

#include "reference/angle_forms.h"
#include "reference/datum_shift.h"
#include "reference/fixed_width.h"
#include "reference/geoid.h"
#include "reference/transverse_mercator.h"

namespace kelvo::reference {

struct Row {
    std::string name;
    double WgsPhi = 0, WgsLam = 0, WgsH = 0;
    double UserPhi = 0, UserLam = 0, UserH = 0;
    double TmX = 0, TmY = 0, TmH = 0;
    double UtmX = 0, UtmY = 0, UtmH = 0;
};

class Pipeline {
public:
    int failures = 0;  // points that could not be brought to geographic coordinates

    Row fromWgs(const std::string& name, double p, double l, double h) {
        Row r{.name = name, .WgsPhi = p, .WgsLam = l, .WgsH = h};
        const Triple wgs = GeoToXYZ(p, l, h, 6378137.0, 1 / 298.257223563);
        const Triple moved = MolodForward(shift_, wgs.x, wgs.y, wgs.z);
        const Triple user = XYZToGeo(moved.x, moved.y, moved.z, kA, kF);
        if (user.failed) ++failures;
        r.UserPhi = user.x;
        r.UserLam = user.y;
        r.UserH = user.z - GeoidHeightBessel(user.x, user.y);
        tmOf(r);
        r.TmH = r.UserH;
        utmOf(r);
        r.UtmH = r.TmH;
        return r;
    }

    Row fromUser(const std::string& name, double p, double l, double h) {
        Row r{.name = name, .UserPhi = p, .UserLam = l, .UserH = h};
        wgsOf(r);
        tmOf(r);
        r.TmH = h;
        utmOf(r);
        r.UtmH = h;
        return r;
    }

    Row fromTm(const std::string& name, double X, double Y, double h) {
        Row r{.name = name, .UserH = h, .TmX = X, .TmY = Y, .TmH = h, .UtmH = h};
        const Pair geo = TMToGeo(X, Y, kA, kF, 500000, 200000, 38, Lam0_ + 10.405 / 3600, 1);
        r.UserPhi = geo.first;
        r.UserLam = geo.second;
        wgsOf(r);
        utmOf(r);
        return r;
    }

    // The row's TmH is what a new table holds.
    Row fromUtm(const std::string& name, double X, double Y, double h) {
        Row r{.name = name, .UserH = h, .UtmX = X, .UtmY = Y, .UtmH = h};
        const Pair geo = TMToGeo(X, Y, kA, kF, 0, 500000, 0, ULam0_, 0.9996);
        r.UserPhi = geo.first;
        r.UserLam = geo.second;
        wgsOf(r);
        tmOf(r);
        return r;
    }

    // The lines of the five tables for a row, in their order.
    static std::string tableLine(const Row& r, int table) {
        std::string line = r.name + std::string(10 - r.name.size(), ' ');
        const auto angles = [&](double Phi, double Lam, double h) {
            return line + AngleText(Phi, 3) + AngleText(Lam, 3) + FormatNum(h, 8, 4);
        };
        const auto grid = [&](double X, double Y, double h) {
            return line + FormatNum(X, 12, 6) + FormatNum(Y, 12, 6) + FormatNum(h, 8, 4);
        };
        switch (table) {
            case 1:
                return angles(r.WgsPhi, r.WgsLam, r.WgsH);
            case 2:
                return angles(r.UserPhi, r.UserLam, r.UserH);
            case 3:
                return grid(r.TmX, r.TmY, r.TmH);
            case 4:
                return grid(r.UtmX, r.UtmY, r.UtmH);
            default: {
                const Pair utm = GeoToTM(r.WgsPhi, r.WgsLam, 6378137.0, 0.0033528106647474805, 0,
                                         500000, 0, r.WgsLam < 126 ? 123 : 129, 0.9996);
                return grid(utm.first, utm.second, r.TmH);
            }
        }
    }

private:
    static constexpr double kA = 6377397.155;
    static constexpr double kF = 299.1528128;

    void wgsOf(Row& r) {
        const double N = GeoidHeightBessel(r.UserPhi, r.UserLam);
        const Triple user = GeoToXYZ(r.UserPhi, r.UserLam, N + r.UserH, kA, kF);
        const Triple moved = MolodInverse(shift_, user.x, user.y, user.z);
        const Triple wgs = XYZToGeo(moved.x, moved.y, moved.z, 6378137.0, 1 / 298.257223563);
        if (wgs.failed) ++failures;
        r.WgsPhi = wgs.x;
        r.WgsLam = wgs.y;
        r.WgsH = wgs.z;
    }

    void tmOf(Row& r) {
        Lam0_ = r.UserLam < 126 ? 125 : r.UserLam <= 128 ? 127 : r.UserLam <= 130 ? 129 : 131;
        const Pair tm =
            GeoToTM(r.UserPhi, r.UserLam, kA, kF, 500000, 200000, 38, Lam0_ + 10.405 / 3600, 1);
        r.TmX = tm.first;
        r.TmY = tm.second;
    }

    void utmOf(Row& r) {
        ULam0_ = r.UserLam < 126 ? 123 : 129;
        const Pair utm = GeoToTM(r.UserPhi, r.UserLam, kA, kF, 0, 500000, 0, ULam0_, 0.9996);
        r.UtmX = utm.first;
        r.UtmY = utm.second;
    }

    Shift shift_ = shiftOf(115.8, -474.99, -674.11, 1.16, -2.31, -1.63, -6.43);
    double Lam0_ = 127;
    double ULam0_ = 129;
};

}  // namespace kelvo::reference
