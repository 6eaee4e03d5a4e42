// A point that is given in one system, and the same in all of them.
#pragma once

#include "geodesy/zones.h"

namespace kelvo {

// The system in which a point is given.
enum class System {
    Wgs,   // WGS84 latitude, longitude, ellipsoidal height
    User,  // latitude, longitude on the user ellipsoid, orthometric height
    Tm,    // X north, Y east, orthometric height
    Utm,   // the same on the UTM grid
};

// Angles in the form that is named with them (decimal degrees or ddd.mmssss), lengths in metres.
struct GivenPoint {
    double first = 0;
    double second = 0;
    double height = 0;
};

// Angles in decimal degrees, lengths in metres, grid X north and Y east.
struct ConvertedPoint {
    double WgsPhi = 0;
    double WgsLam = 0;
    double WgsH = 0;  // ellipsoidal height on WGS84
    double UserPhi = 0;
    double UserLam = 0;
    double UserH = 0;  // orthometric height
    double TmX = 0;
    double TmY = 0;
    double TmH = 0;  // required: not written for a point that is given as UTM
    double UtmX = 0;
    double UtmY = 0;
    double UtmH = 0;
    double WgsUtmX = 0;  // UTM on WGS84
    double WgsUtmY = 0;
    double WgsUtmH = 0;  // the height of the TM table (required)

    double CorrPhi = 0;  // by known points: degrees and metres
    double CorrLam = 0;
    double CorrH = 0;
    double CorrL = 0;  // length of the correction, metres

    // The origins that the point was brought to, longitudes without the 10.405 seconds.
    TmZone Zone{};
    double Lam0 = 0;
    UtmZone UZone{};
    double ULam0 = 0;
    double WgsULam0 = 0;
};

}  // namespace kelvo
