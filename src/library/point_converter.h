// Points, each as the only one of a fresh run.
#pragma once

#include <map>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "conversion/converter.h"

namespace kelvo {

// What a run says of a point that isn't good: its message boxes, and the fault that ends it.
struct PointStatus {
    std::vector<Remark> remarks;
    std::optional<RuntimeFault> fault;
    std::optional<FoundCorrection> uncorrected;  // a fault, too: there is no correction
};

// By the places of the points in their span; a good point has none.
using PointStatuses = std::map<std::size_t, PointStatus>;

// Immutable, and safe to share between threads.
class PointConverter {
public:
    // `knownPointsName` is what statuses call the text of the known points.
    PointConverter(Definition definition, std::string knownPointsName);

    [[nodiscard]] const Definition& definition() const { return converter_.definition(); }

    // All systems, UTM on WGS84 too. `points` has the length of `given`; the numbers of a point
    // with a status mean nothing. `angles` as for Converter. What a run couldn't write into its
    // tables counts as a fault, whichever of the systems are looked at.
    void convert(System system, AngleForm angles, std::span<const GivenPoint> given,
                 std::span<ConvertedPoint> points, PointStatuses& statuses) const;

    // The texts of a run in their order, joined by "; ".
    [[nodiscard]] std::string text(const PointStatus& status) const;

    // The same as a number above 0, which is that of equal statuses in every process and on every
    // machine, and what it means. Numbers inside a text (the weight that was too large) are left
    // out there. Empty for 0 and for what is no code.
    [[nodiscard]] std::int32_t code(const PointStatus& status) const;
    [[nodiscard]] std::string textOfCode(std::int32_t code) const;

private:
    [[nodiscard]] std::string faultText(const FoundCorrection& uncorrected) const;

    Converter converter_;
    std::string knownPointsName_;
};

}  // namespace kelvo
