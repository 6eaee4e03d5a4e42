#include "conversion/block.h"

#include "common/checked_arithmetic.h"
#include "geodesy/datum_shift.h"

namespace kelvo {

Converter::Block::Block(const Converter& converter, AngleForm angles,
                        std::span<const GivenPoint> given, std::span<ConvertedPoint> points,
                        Outcomes& outcomes, std::size_t first)
    : converter_(converter),
      definition_(converter.definition_),
      angles_(angles),
      given_(given),
      points_(points),
      outcomes_(outcomes),
      first_(first) {
    for (ConvertedPoint& p : points_) {
        p = {};
        p.Zone = definition_.Zone;
        p.Lam0 = definition_.tm.Lam0;
        p.UZone = definition_.UZone;
        p.ULam0 = definition_.utm.projection.Lam0;
    }
}

template <class Step>
void Converter::Block::each(Step step) {
    for (std::size_t i = 0; i < points_.size(); ++i) {
        if (ended_[i]) continue;
        try {
            step(i, points_[i]);
        } catch (const RuntimeFault& fault) {
            ended_[i] = true;
            outcome(i).fault = fault;
            outcome(i).faultAfterDetail = afterDetail_;
        }
    }
}

void Converter::Block::remark(std::size_t i, const Remark& remark) {
    PointOutcome& of = outcome(i);
    (afterDetail_ ? of.afterDetail : of.beforeDetail).push_back(remark);
}

void Converter::Block::endsUncorrected(std::size_t i, const FoundCorrection& correction) {
    ended_[i] = true;
    outcome(i).uncorrected = correction;
}

double Converter::Block::degrees(std::size_t i, double given) {
    if (angles_ == AngleForm::Degrees) return given;
    const ParsedAngle angle = KelvoSub::DmsToDeg(given);
    if (angle.doubtful()) remark(i, doubtfulAngle(given, angle));
    return angle.degrees;
}

void Converter::Block::fromWgs() {
    each([this](std::size_t i, ConvertedPoint& p) {
        p.WgsPhi = degrees(i, given_[i].first);
        p.WgsLam = degrees(i, given_[i].second);
        p.WgsH = given_[i].height;
    });
    wgsToUser();
    each([this](std::size_t i, ConvertedPoint& p) {
        const Geographic& user = shifted_[i].value;
        const double N =
            KelvoSub::GeoidHeightBessel(definition_.local.datum.geoid, user.Phi, user.Lam);
        const double orthometric = user.h - N;
        const FirstAdjustment& first = definition_.local.adjustment;
        p.UserPhi = user.Phi + first.dPhi / 3600;
        p.UserLam = user.Lam + first.dLam / 3600;
        p.UserH = orthometric + first.dH;
    });
    correct();
    each([](std::size_t, ConvertedPoint& p) {
        p.UserPhi = finite(p.UserPhi + p.CorrPhi);
        p.UserLam = finite(p.UserLam + p.CorrLam);
        p.UserH = finite(p.UserH + p.CorrH);
    });
    each([](std::size_t, ConvertedPoint& p) { p.TmH = p.UtmH = p.UserH; });
    toTmAndUtm();
}

void Converter::Block::fromUser() {
    each([this](std::size_t i, ConvertedPoint& p) {
        p.UserPhi = degrees(i, given_[i].first);
        p.UserLam = degrees(i, given_[i].second);
        p.UserH = given_[i].height;
        p.TmH = p.UtmH = given_[i].height;
    });
    userToWgs();
    toTmAndUtm();
}

void Converter::Block::fromTm() {
    each([this](std::size_t i, ConvertedPoint& p) {
        p.TmX = given_[i].first;
        p.TmY = given_[i].second;
        p.TmH = p.UtmH = p.UserH = given_[i].height;
        // The grid is read with the origin of the definition: the longitude isn't known yet.
        const auto at =
            KelvoSub::TMToGeo(p.TmX, p.TmY, converter_.tm_, p.Lam0 + definition_.originShift());
        if (at.failed) remark(i, {.kind = Remark::Kind::NotUnprojected});
        p.UserPhi = at.value.Phi;
        p.UserLam = at.value.Lam;
    });
    userToWgs();
    toUtm();
}

void Converter::Block::fromUtm() {
    each([this](std::size_t i, ConvertedPoint& p) {
        p.UtmX = given_[i].first;
        p.UtmY = given_[i].second;
        p.UtmH = p.UserH = given_[i].height;
        const auto at = KelvoSub::TMToGeo(p.UtmX, p.UtmY, converter_.utm_, p.ULam0);
        if (at.failed) remark(i, {.kind = Remark::Kind::NotUnprojected});
        p.UserPhi = at.value.Phi;
        p.UserLam = at.value.Lam;
    });
    userToWgs();
    toTm();  // required: TmH isn't written
}

void Converter::Block::wgsToUser() {
    each([this](std::size_t i, const ConvertedPoint& p) {
        geocentric_[i] = KelvoSub::ShiftForward(definition_.local.datum.shift,
                                                KelvoSub::WgsToXYZ(p.WgsPhi, p.WgsLam, p.WgsH));
    });
    const std::size_t count = points_.size();
    KelvoSub::XYZToGeo(std::span(geocentric_).first(count), definition_.local.user,
                       std::span(shifted_).first(count));
    each([this](std::size_t i, const ConvertedPoint&) {
        if (shifted_[i].failed) remark(i, {.kind = Remark::Kind::NotGeographic});
    });
}

void Converter::Block::userToWgs() {
    each([this](std::size_t i, const ConvertedPoint& p) {
        const LocalDatum& local = definition_.local;
        const double h =
            KelvoSub::GeoidHeightBessel(local.datum.geoid, p.UserPhi, p.UserLam) + p.UserH;
        geocentric_[i] = KelvoSub::ShiftInverse(
            local.datum.shift,
            converter_.userShape_
                ? KelvoSub::GeoToXYZ(p.UserPhi, p.UserLam, h, *converter_.userShape_)
                : KelvoSub::GeoToXYZ(p.UserPhi, p.UserLam, h, local.user));
    });
    const std::size_t count = points_.size();
    KelvoSub::XYZToGeo(std::span(geocentric_).first(count), kWgs84,
                       std::span(shifted_).first(count));
    each([this](std::size_t i, ConvertedPoint& p) {
        if (shifted_[i].failed) remark(i, {.kind = Remark::Kind::NotGeographic});
        const Geographic& wgs = shifted_[i].value;
        const FirstAdjustment& first = definition_.local.adjustment;
        p.WgsPhi = wgs.Phi - first.dPhi / 3600;
        p.WgsLam = wgs.Lam - first.dLam / 3600;
        p.WgsH = wgs.h - first.dH;
    });
    correct();
    each([](std::size_t, ConvertedPoint& p) {
        p.WgsPhi = finite(p.WgsPhi - p.CorrPhi);
        p.WgsLam = finite(p.WgsLam - p.CorrLam);
        p.WgsH = finite(p.WgsH - p.CorrH);
    });
}

// By the WGS84 position as it stands, which on the way backward holds the first adjustment.
void Converter::Block::correct() {
    if (definition_.corrects) {
        std::array<Position, kMost> wgs;
        std::array<FoundCorrection, kMost> found;
        const std::size_t count = points_.size();
        for (std::size_t i = 0; i < count; ++i)
            wgs[i] = {.Phi = points_[i].WgsPhi, .Lam = points_[i].WgsLam};
        const std::span<const CorrPoint> known =
            definition_.known ? std::span<const CorrPoint>(*definition_.known)
                              : std::span<const CorrPoint>();
        findCorr(known, std::span(wgs).first(count), std::span(found).first(count));
        each([&](std::size_t i, ConvertedPoint& p) {
            if (found[i].failure != NoCorrection::None) return endsUncorrected(i, found[i]);
            p.CorrPhi = found[i].value.DPhi;
            p.CorrLam = found[i].value.DLam;
            p.CorrH = found[i].value.DH;
            const ArcSecLengths second = KelvoSub::ArcSecLen(wgs[i].Phi, wgs[i].Lam);
            for (int k = 0; k < second.unprojected; ++k)
                remark(i, {.kind = Remark::Kind::NotProjected});
            p.CorrL = lengthInMetres(p.CorrPhi, p.CorrLam, second);
        });
    }
    afterDetail_ = true;
}

void Converter::Block::toTm(std::size_t i, ConvertedPoint& p, const TmLatitude& latitude) {
    KelvoSub::chkZone(p.UserLam, p.Zone, p.Lam0);
    const auto grid =
        TmParallel(converter_.tm_, latitude).at(p.UserLam, p.Lam0 + definition_.originShift());
    if (grid.failed) remark(i, {.kind = Remark::Kind::NotProjected});
    p.TmX = grid.value.X;
    p.TmY = grid.value.Y;
}

void Converter::Block::toUtm(std::size_t i, ConvertedPoint& p, const TmLatitude& latitude) {
    KelvoSub::chkUZone(p.UserLam, p.UZone, p.ULam0);
    const auto grid = TmParallel(converter_.utm_, latitude).at(p.UserLam, p.ULam0);
    if (grid.failed) remark(i, {.kind = Remark::Kind::NotProjected});
    p.UtmX = grid.value.X;
    p.UtmY = grid.value.Y;
}

void Converter::Block::toTm() {
    each([this](std::size_t i, ConvertedPoint& p) {
        toTm(i, p, TmLatitude(converter_.tm_, p.UserPhi));
    });
}

void Converter::Block::toUtm() {
    each([this](std::size_t i, ConvertedPoint& p) {
        toUtm(i, p, TmLatitude(converter_.utm_, p.UserPhi));
    });
}

void Converter::Block::toTmAndUtm() {
    const bool shared = converter_.tm_.sharesEllipsoid(converter_.utm_);
    each([this, shared](std::size_t i, ConvertedPoint& p) {
        const TmLatitude latitude(converter_.tm_, p.UserPhi);
        toTm(i, p, latitude);
        toUtm(i, p, shared ? latitude : TmLatitude(converter_.utm_, p.UserPhi));
    });
}

}  // namespace kelvo
