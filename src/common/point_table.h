// The table of points: one row holds a point in all four systems.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace kelvo {

// Angles in decimal degrees, lengths in metres, grid X north and Y east.
struct PointRec {
    std::string name;
    double WgsPhi = 0;
    double WgsLam = 0;
    double WgsH = 0;  // ellipsoidal height on WGS84
    double UserPhi = 0;
    double UserLam = 0;
    double UserH = 0;  // orthometric height
    double TmX = 0;
    double TmY = 0;
    double TmH = 0;  // not written for a point that came in as UTM (required)
    double UtmX = 0;
    double UtmY = 0;
    double UtmH = 0;
    double WgsUtmX = 0;  // written by the result tables only
    double WgsUtmY = 0;
    double WgsUtmH = 0;
    double CorrPhi = 0;  // second correction: degrees and metres
    double CorrLam = 0;
    double CorrH = 0;
};

inline constexpr int kMostPoints = 10000;

// Rows 0 to 10000, row 0 unused, and the number of the last row in use. Rows are never cleared:
// a field that a run doesn't write keeps what an earlier run left in its row (required).
struct PointTable {
    std::int16_t PointCount = 0;

    // Fault 9 outside 0..10000.
    [[nodiscard]] PointRec& row(int index);
    [[nodiscard]] const PointRec& row(int index) const;

private:
    // Grows to the highest row touched; a row that was never written reads as empty and 0.
    std::vector<PointRec> rows_;
};

}  // namespace kelvo
