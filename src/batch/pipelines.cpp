#include "batch/pipelines.h"

#include <array>
#include <optional>
#include <span>

#include "common/checked_arithmetic.h"
#include "common/run_time_fault.h"
#include "geodesy/angle_forms.h"
#include "geodesy/datum_shift.h"
#include "geodesy/geoid.h"
#include "geodesy/transverse_mercator.h"

namespace kelvo {

namespace {

constexpr int kKeywordLineFields = 5;
constexpr int kContinuationLineFields = 6;

// A point line as it was read: its name and the three numbers behind it.
struct PointLine {
    std::string name;
    double first = 0;
    double second = 0;
    double third = 0;
    long lineNumber = 0;
};

// What a line's own system gives of a point before any correction: where it lies in the line's
// geographic system (WGS84 for WGS lines, the user ellipsoid for all others), and where the shift
// puts it in the other one.
struct Located {
    Position own;
    Geographic shifted;
};

// Remembers only that there was something to tell.
class UntoldMessages final : public MessageBoxes {
public:
    Answer show(const Message&) override {
        any = true;
        return Answer::Ok;
    }
    bool any = false;
};

// The chain of conversions of a block of lines. The shift of the TM origin's longitude holds for
// the whole block.
class Chain {
public:
    explicit Chain(BatchRun& run)
        : run_(run),
          para_(run.para),
          shift_(run.para.AddFlag == 1 ? kOriginShiftSeconds / 3600 : 0),
          tm_(userEllipsoid(), tmProjection()),
          utm_(utmEllipsoid(), utmProjection()) {}

    [[nodiscard]] Ellipsoid userEllipsoid() const { return {.a = para_.a, .f = para_.f}; }
    [[nodiscard]] Ellipsoid utmEllipsoid() const { return {.a = para_.Ua, .f = para_.Uf}; }

    [[nodiscard]] Position degrees(const PointLine& line, MessageBoxes& messages) const {
        if (run_.AngleIn == kAngleDegrees) return {.Phi = line.first, .Lam = line.second};
        const double Phi = KelvoSub::DmsToDeg(line.first, messages);
        return {.Phi = Phi, .Lam = KelvoSub::DmsToDeg(line.second, messages)};
    }

    [[nodiscard]] Position ofTm(const PointLine& line, MessageBoxes& messages) const {
        return KelvoSub::TMToGeo(line.first, line.second, userEllipsoid(), tmProjection(),
                                 messages);
    }

    [[nodiscard]] Position ofUtm(const PointLine& line, MessageBoxes& messages) const {
        return KelvoSub::TMToGeo(line.first, line.second, {.a = para_.Ua, .f = para_.Uf},
                                 utmProjection(), messages);
    }

    [[nodiscard]] Geocentric fromWgs(const Position& wgs, double h) const {
        return KelvoSub::ShiftForward(run_.state.datum.shift,
                                      KelvoSub::WgsToXYZ(wgs.Phi, wgs.Lam, h));
    }

    [[nodiscard]] Geocentric fromUser(const Position& user, double h) const {
        const double N = KelvoSub::GeoidHeightBessel(run_.state.datum.geoid, user.Phi, user.Lam);
        return KelvoSub::ShiftInverse(
            run_.state.datum.shift, KelvoSub::GeoToXYZ(user.Phi, user.Lam, N + h, userEllipsoid()));
    }

    // Forward: the geoid at the position before any adjustment, then first adjustment and
    // correction added to the user coordinates.
    void fillUser(PointRec& row, const Geographic& user) const {
        const double N = KelvoSub::GeoidHeightBessel(run_.state.datum.geoid, user.Phi, user.Lam);
        const double orthometric = user.h - N;
        row.UserPhi = user.Phi + para_.dPhi / 3600;
        row.UserLam = user.Lam + para_.dLam / 3600;
        row.UserH = orthometric + para_.dH;
        correct(row);
        row.UserPhi = finite(row.UserPhi + row.CorrPhi);
        row.UserLam = finite(row.UserLam + row.CorrLam);
        row.UserH = finite(row.UserH + row.CorrH);
    }

    // Backward: first adjustment and correction taken from the WGS coordinates, so that those of
    // the line stay as given.
    void fillWgs(PointRec& row, const Geographic& wgs) const {
        row.WgsPhi = wgs.Phi - para_.dPhi / 3600;
        row.WgsLam = wgs.Lam - para_.dLam / 3600;
        row.WgsH = wgs.h - para_.dH;
        correct(row);
        row.WgsPhi = finite(row.WgsPhi - row.CorrPhi);
        row.WgsLam = finite(row.WgsLam - row.CorrLam);
        row.WgsH = finite(row.WgsH - row.CorrH);
    }

    void fillTm(PointRec& row) {
        KelvoSub::chkZone(row.UserLam, para_.Zone, para_.Lam0);
        tm_.setCentralMeridian(tmProjection().Lam0);
        const GridPoint grid = KelvoSub::GeoToTM(row.UserPhi, row.UserLam, tm_, run_.messages);
        row.TmX = grid.X;
        row.TmY = grid.Y;
    }

    void fillUtm(PointRec& row) {
        KelvoSub::chkUZone(row.UserLam, para_.UZone, para_.ULam0);
        utm_.setCentralMeridian(para_.ULam0);
        const GridPoint grid = KelvoSub::GeoToTM(row.UserPhi, row.UserLam, utm_, run_.messages);
        row.UtmX = grid.X;
        row.UtmY = grid.Y;
    }

private:
    void correct(PointRec& row) const {
        const Correction correction =
            findCorr(run_.state, run_.files.det, row.WgsPhi, row.WgsLam, run_.AngleOut,
                     run_.state.points.PointCount, para_.CorrFlag, run_.messages);
        row.CorrPhi = correction.DPhi;
        row.CorrLam = correction.DLam;
        row.CorrH = correction.DH;
    }

    // The shift counts for the TM grid only, and is never kept in Lam0.
    [[nodiscard]] Projection tmProjection() const {
        return {.X0 = para_.X0,
                .Y0 = para_.Y0,
                .Phi0 = para_.Phi0,
                .Lam0 = para_.Lam0 + shift_,
                .S0 = para_.S0};
    }

    [[nodiscard]] Projection utmProjection() const {
        return {.X0 = para_.UX0,
                .Y0 = para_.UY0,
                .Phi0 = para_.UPhi0,
                .Lam0 = para_.ULam0,
                .S0 = para_.US0};
    }

    BatchRun& run_;
    TransPara& para_;
    double shift_;
    TmGrid tm_;
    TmGrid utm_;
};

// The four systems of a line. `locate` and `shift` rest on nothing that a point of the same block
// changes; `fill` goes round the chain from there.
struct FromWgs {
    static Position locate(const Chain& chain, const PointLine& line, MessageBoxes& messages) {
        return chain.degrees(line, messages);
    }
    static Geocentric shift(const Chain& chain, const Position& own, double h) {
        return chain.fromWgs(own, h);
    }
    static Ellipsoid target(const Chain& chain) { return chain.userEllipsoid(); }
    static void fill(Chain& chain, PointRec& row, const PointLine& line, const Located& at) {
        row.WgsPhi = at.own.Phi;
        row.WgsLam = at.own.Lam;
        row.WgsH = line.third;
        chain.fillUser(row, at.shifted);
        chain.fillTm(row);
        row.TmH = row.UserH;
        chain.fillUtm(row);
        row.UtmH = row.TmH;
    }
};

struct FromUser {
    static Geocentric shift(const Chain& chain, const Position& own, double h) {
        return chain.fromUser(own, h);
    }
    static Ellipsoid target(const Chain&) { return kWgs84; }
};

struct FromUgs : FromUser {
    static Position locate(const Chain& chain, const PointLine& line, MessageBoxes& messages) {
        return chain.degrees(line, messages);
    }
    static void fill(Chain& chain, PointRec& row, const PointLine& line, const Located& at) {
        row.UserPhi = at.own.Phi;
        row.UserLam = at.own.Lam;
        row.UserH = line.third;
        chain.fillWgs(row, at.shifted);
        chain.fillTm(row);
        row.TmH = row.UserH;
        chain.fillUtm(row);
        row.UtmH = row.TmH;
    }
};

struct FromTm : FromUser {
    static Position locate(const Chain& chain, const PointLine& line, MessageBoxes& messages) {
        return chain.ofTm(line, messages);
    }
    static void fill(Chain& chain, PointRec& row, const PointLine& line, const Located& at) {
        row.TmX = line.first;
        row.TmY = line.second;
        row.TmH = line.third;
        row.UserPhi = at.own.Phi;
        row.UserLam = at.own.Lam;
        row.UserH = line.third;
        row.UtmH = line.third;
        chain.fillWgs(row, at.shifted);
        chain.fillUtm(row);
    }
};

struct FromUtm : FromUser {
    static Position locate(const Chain& chain, const PointLine& line, MessageBoxes& messages) {
        return chain.ofUtm(line, messages);
    }
    static void fill(Chain& chain, PointRec& row, const PointLine& line, const Located& at) {
        row.UtmX = line.first;
        row.UtmY = line.second;
        row.UtmH = line.third;
        row.UserPhi = at.own.Phi;
        row.UserLam = at.own.Lam;
        row.UserH = line.third;
        chain.fillWgs(row, at.shifted);
        chain.fillTm(row);
    }
};

// A block of point lines, a few at a time: their iterations run side by side, everything else
// line by line in its order.
template <typename System>
class Block {
public:
    explicit Block(BatchRun& run) : run_(run), chain_(run) {}

    void convert() {
        begin();
        take(2);  // the keyword stands in front on the first line only
        for (bool goesOn = true; goesOn;) {
            goesOn = gather();
            locateTogether();
            for (std::size_t i = 0; i < count_; ++i) convertOne(lines_[i], located_[i]);
            count_ = 0;
            if (readingFailed_) throw *readingFailed_;
        }
        run_.lineNumber = run_.data.linesRead();
    }

private:
    // A header that is due reads the known points through the same line and field store.
    void begin() {
        std::string line = run_.fields().LineBuf;
        if (run_.state.ParaDirty)
            PrintRunHeader(run_.state, run_.files, run_.AngleIn, run_.AngleOut, run_.para,
                           run_.disk, run_.messages);
        run_.state.ParaDirty = false;
        run_.fields().LineBuf = std::move(line);
        run_.parse(kKeywordLineFields);
    }

    void take(int nameField) {
        const FieldStore& fields = run_.fields();
        lines_[count_++] = {.name = fields.FieldStr(nameField),
                            .first = fields.FieldNum(nameField + 1),
                            .second = fields.FieldNum(nameField + 2),
                            .third = fields.FieldNum(nameField + 3),
                            .lineNumber = run_.lineNumber};
    }

    // Takes lines until there are enough; false at the end of the block. A fault of reading
    // waits for the points in front of it.
    bool gather() {
        try {
            while (count_ < lines_.size()) {
                if (!readContinuationLine(run_)) return false;
                take(1);
            }
        } catch (const RuntimeFault& fault) {
            readingFailed_ = fault;
            return false;
        }
        return true;
    }

    // What can be found out without a message or a fault; the rest waits for its turn.
    void locateTogether() {
        std::array<Geocentric, KelvoSub::kMostTogether> shifted;
        std::array<Geographic, KelvoSub::kMostTogether> results;
        UntoldMessages untold;
        located_.fill(std::nullopt);
        try {
            std::array<Position, KelvoSub::kMostTogether> own;
            for (std::size_t i = 0; i < count_; ++i) {
                own[i] = System::locate(chain_, lines_[i], untold);
                shifted[i] = System::shift(chain_, own[i], lines_[i].third);
            }
            const bool all =
                KelvoSub::XYZToGeoTogether(std::span(shifted).first(count_), System::target(chain_),
                                           std::span(results).first(count_));
            if (!all || untold.any) return;
            for (std::size_t i = 0; i < count_; ++i)
                located_[i] = Located{.own = own[i], .shifted = results[i]};
        } catch (const RuntimeFault&) {
            // Raised again by the point that it belongs to, when its turn comes.
        }
    }

    [[nodiscard]] Located locateAlone(const PointLine& line) const {
        const Position own = System::locate(chain_, line, run_.messages);
        return {.own = own,
                .shifted = KelvoSub::XYZToGeo(System::shift(chain_, own, line.third),
                                              System::target(chain_), run_.messages)};
    }

    void convertOne(const PointLine& line, const std::optional<Located>& located) {
        run_.lineNumber = line.lineNumber;
        PointTable& points = run_.state.points;
        ++points.PointCount;
        PointRec& row = points.row(points.PointCount);
        row.name = line.name;
        try {
            System::fill(chain_, row, line, located ? *located : locateAlone(line));
        } catch (RuntimeFault& fault) {
            fault.addPlace("점 " + line.name);
            throw;
        }
    }

    BatchRun& run_;
    Chain chain_;
    std::array<PointLine, KelvoSub::kMostTogether> lines_;
    std::array<std::optional<Located>, KelvoSub::kMostTogether> located_;
    std::size_t count_ = 0;
    std::optional<RuntimeFault> readingFailed_;
};

}  // namespace

bool readContinuationLine(BatchRun& run) {
    if (run.data.atEnd()) return false;
    run.readLine();
    run.parse(kContinuationLineFields);
    return run.fields().LineBuf.starts_with("   ") && !run.fields().FieldStr(1).empty();
}

void ConvertWgsLines(BatchRun& run) {
    Block<FromWgs>(run).convert();
}

void ConvertUgsLines(BatchRun& run) {
    Block<FromUgs>(run).convert();
}

void ConvertTmLines(BatchRun& run) {
    Block<FromTm>(run).convert();
}

void ConvertUtmLines(BatchRun& run) {
    Block<FromUtm>(run).convert();
}

}  // namespace kelvo
