// The rules on the known points of a run with the correction on.
#pragma once

#include <memory>
#include <string>

#include "batch/check_data_file.h"
#include "batch/check_finding.h"
#include "conversion/definition.h"

namespace kelvo {

// Points farther than this from every known point are corrected by misses that say nothing of
// their place: the misses change by decimetres over such a distance.
inline constexpr double kFarMetres = 50'000;

// In Korea the geoid lies 15 to 34 m above the ellipsoid of WGS84, so that an ellipsoidal height
// is by as much above the height over the sea. Outside of these a figure is wrong.
inline constexpr double kLeastGeoid = 10;
inline constexpr double kMostGeoid = 40;

// Reads kelvo.cor as a run does at a header, and measures the misses.
class CheckedKnownPoints {
public:
    explicit CheckedKnownPoints(const KnownPointsFile& source);
    ~CheckedKnownPoints();
    CheckedKnownPoints(const CheckedKnownPoints&) = delete;
    CheckedKnownPoints& operator=(const CheckedKnownPoints&) = delete;

    // A header is due with the correction on, which that line switched on. What is wrong with the
    // file is said the first time.
    void read(const LocalDatum& local, const TextLine& correction, Findings& data, Findings& known);

    // No header came since the correction was switched on: said once.
    void addNeverRead(const TextLine& correction, Findings& data);

    [[nodiscard]] bool wereRead() const { return read_; }
    // Null where a run would stop at the first point that it corrects by them.
    [[nodiscard]] const KnownPoints& usable() const { return usable_; }

    // Along the chord to the nearest known point that counts, metres; only an upper bound below
    // kFarMetres.
    [[nodiscard]] double distanceFrom(const Position& place) const;

    [[nodiscard]] const std::string& path() const { return source_.path; }

private:
    struct File;

    [[nodiscard]] bool readFile(const TextLine& correction, Findings& data, Findings& known);
    [[nodiscard]] std::string measure(const LocalDatum& local, Findings* known);
    void checkLines(Findings& known) const;
    void addUnreadable(const RuntimeFault& fault, const TextLine& correction, Findings& data,
                       Findings& known);
    void place();

    const KnownPointsFile& source_;
    std::unique_ptr<File> file_;
    KnownPoints usable_;
    bool read_ = false;
    bool said_ = false;
};

}  // namespace kelvo
