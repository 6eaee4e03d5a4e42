// Some points on their way through the steps, side by side.
#pragma once

#include <array>

#include "conversion/converter.h"
#include "geodesy/side_by_side.h"

namespace kelvo {

class Converter::Block {
public:
    static constexpr std::size_t kMost = 64;

    // `first` is the place of the first point in the span that the outcomes belong to.
    Block(const Converter& converter, AngleForm angles, std::span<const GivenPoint> given,
          std::span<ConvertedPoint> points, Outcomes& outcomes, std::size_t first);

    void fromWgs();
    void fromUser();
    void fromTm();
    void fromUtm();

private:
    void wgsToUser();
    void userToWgs();
    void correct();
    // To the grids on the way by the longitude's origins; both share the latitude's terms where
    // they share an ellipsoid.
    void toTm(std::size_t i, ConvertedPoint& p, const TmLatitude& latitude);
    void toUtm(std::size_t i, ConvertedPoint& p, const TmLatitude& latitude);
    void toTm();
    void toUtm();
    void toTmAndUtm();

    // Does a step for every point that hasn't ended; a fault ends the point.
    template <class Step>
    void each(Step step);
    [[nodiscard]] PointOutcome& outcome(std::size_t i) { return outcomes_[first_ + i]; }
    void remark(std::size_t i, const Remark& remark);
    void endsUncorrected(std::size_t i, const FoundCorrection& correction);
    // The coordinate of an angle as it was given, in degrees.
    [[nodiscard]] double degrees(std::size_t i, double given);

    const Converter& converter_;
    const Definition& definition_;
    AngleForm angles_;
    std::span<const GivenPoint> given_;
    std::span<ConvertedPoint> points_;
    Outcomes& outcomes_;
    std::size_t first_;
    bool afterDetail_ = false;
    std::array<bool, kMost> ended_{};
    std::array<Geocentric, kMost> geocentric_;
    std::array<Guarded<Geographic>, kMost> shifted_;
};

}  // namespace kelvo
