#include "batch/pipelines.h"

#include "common/run_time_fault.h"
#include "geodesy/angle_forms.h"
#include "geodesy/datum_shift.h"
#include "geodesy/geoid.h"
#include "geodesy/transverse_mercator.h"

namespace kelvo {

namespace {

constexpr int kKeywordLineFields = 5;
constexpr int kContinuationLineFields = 6;

// The numbers of a point line behind the name.
struct LineNumbers {
    double first = 0;
    double second = 0;
    double third = 0;
};

// One block of point lines. The shift of the TM origin's longitude holds for the whole block.
class Block {
public:
    explicit Block(BatchRun& run)
        : run_(run),
          para_(run.para),
          shift_(run.para.AddFlag == 1 ? kOriginShiftSeconds / 3600 : 0) {}

    template <typename Body>
    void convert(Body body) {
        begin();
        int nameField = 2;  // the keyword stands in front on the first line only
        do {
            PointTable& points = run_.state.points;
            ++points.PointCount;
            PointRec& row = points.row(points.PointCount);
            const FieldStore& fields = run_.fields();
            row.name = fields.FieldStr(nameField);
            try {
                body(row, LineNumbers{.first = fields.FieldNum(nameField + 1),
                                      .second = fields.FieldNum(nameField + 2),
                                      .third = fields.FieldNum(nameField + 3)});
            } catch (RuntimeFault& fault) {
                fault.addPlace("점 " + row.name);
                throw;
            }
            nameField = 1;
        } while (readContinuationLine(run_));
    }

    [[nodiscard]] double degrees(double angle) const {
        return run_.AngleIn == kAngleDegrees ? angle : KelvoSub::DmsToDeg(angle, run_.messages);
    }

    void wgsToUser(PointRec& row) const {
        const Geographic user =
            KelvoSub::WgsToUser(run_.state.datum.shift, row.WgsPhi, row.WgsLam, row.WgsH,
                                {.a = para_.a, .f = para_.f}, run_.messages);
        const double N = KelvoSub::GeoidHeightBessel(run_.state.datum.geoid, user.Phi, user.Lam);
        const double orthometric = user.h - N;
        row.UserPhi = user.Phi + para_.dPhi / 3600;
        row.UserLam = user.Lam + para_.dLam / 3600;
        row.UserH = orthometric + para_.dH;
        correct(row);
        row.UserPhi += row.CorrPhi;
        row.UserLam += row.CorrLam;
        row.UserH += row.CorrH;
    }

    void userToWgs(PointRec& row) const {
        const double N =
            KelvoSub::GeoidHeightBessel(run_.state.datum.geoid, row.UserPhi, row.UserLam);
        const double ellipsoidal = N + row.UserH;
        const Geographic wgs =
            KelvoSub::UserToWgs(run_.state.datum.shift, row.UserPhi, row.UserLam, ellipsoidal,
                                {.a = para_.a, .f = para_.f}, run_.messages);
        row.WgsPhi = wgs.Phi - para_.dPhi / 3600;
        row.WgsLam = wgs.Lam - para_.dLam / 3600;
        row.WgsH = wgs.h - para_.dH;
        correct(row);
        row.WgsPhi -= row.CorrPhi;
        row.WgsLam -= row.CorrLam;
        row.WgsH -= row.CorrH;
    }

    void userToTm(PointRec& row) const {
        KelvoSub::chkZone(row.UserLam, para_.Zone, para_.Lam0);
        const GridPoint grid = KelvoSub::GeoToTM(
            row.UserPhi, row.UserLam, {.a = para_.a, .f = para_.f}, tmGrid(), run_.messages);
        row.TmX = grid.X;
        row.TmY = grid.Y;
    }

    void tmToUser(PointRec& row) const {
        const Position user = KelvoSub::TMToGeo(row.TmX, row.TmY, {.a = para_.a, .f = para_.f},
                                                tmGrid(), run_.messages);
        row.UserPhi = user.Phi;
        row.UserLam = user.Lam;
    }

    void userToUtm(PointRec& row) const {
        KelvoSub::chkUZone(row.UserLam, para_.UZone, para_.ULam0);
        const GridPoint grid = KelvoSub::GeoToTM(
            row.UserPhi, row.UserLam, {.a = para_.Ua, .f = para_.Uf}, utmGrid(), run_.messages);
        row.UtmX = grid.X;
        row.UtmY = grid.Y;
    }

    void utmToUser(PointRec& row) const {
        const Position user = KelvoSub::TMToGeo(row.UtmX, row.UtmY, {.a = para_.Ua, .f = para_.Uf},
                                                utmGrid(), run_.messages);
        row.UserPhi = user.Phi;
        row.UserLam = user.Lam;
    }

private:
    // A header that is due reads the known points through the same line and field store.
    void begin() {
        std::string line = run_.fields().LineBuf;
        if (run_.state.ParaDirty)
            PrintRunHeader(run_.state, run_.files, run_.AngleIn, run_.AngleOut, para_, run_.disk,
                           run_.messages);
        run_.state.ParaDirty = false;
        run_.fields().LineBuf = std::move(line);
        run_.parse(kKeywordLineFields);
    }

    void correct(PointRec& row) const {
        const Correction correction =
            findCorr(run_.state, run_.files.det, row.WgsPhi, row.WgsLam, run_.AngleOut,
                     run_.state.points.PointCount, para_.CorrFlag, run_.messages);
        row.CorrPhi = correction.DPhi;
        row.CorrLam = correction.DLam;
        row.CorrH = correction.DH;
    }

    // The shift counts for the TM grid only, and is never kept in Lam0.
    [[nodiscard]] Projection tmGrid() const {
        return {.X0 = para_.X0,
                .Y0 = para_.Y0,
                .Phi0 = para_.Phi0,
                .Lam0 = para_.Lam0 + shift_,
                .S0 = para_.S0};
    }

    [[nodiscard]] Projection utmGrid() const {
        return {.X0 = para_.UX0,
                .Y0 = para_.UY0,
                .Phi0 = para_.UPhi0,
                .Lam0 = para_.ULam0,
                .S0 = para_.US0};
    }

    BatchRun& run_;
    TransPara& para_;
    double shift_;
};

}  // namespace

bool readContinuationLine(BatchRun& run) {
    if (run.data.atEnd()) return false;
    run.readLine();
    run.parse(kContinuationLineFields);
    return run.fields().LineBuf.starts_with("   ") && !run.fields().FieldStr(1).empty();
}

void ConvertWgsLines(BatchRun& run) {
    Block block(run);
    block.convert([&block](PointRec& row, const LineNumbers& line) {
        row.WgsPhi = block.degrees(line.first);
        row.WgsLam = block.degrees(line.second);
        row.WgsH = line.third;
        block.wgsToUser(row);
        block.userToTm(row);
        row.TmH = row.UserH;
        block.userToUtm(row);
        row.UtmH = row.TmH;
    });
}

void ConvertUgsLines(BatchRun& run) {
    Block block(run);
    block.convert([&block](PointRec& row, const LineNumbers& line) {
        row.UserH = line.third;
        row.TmH = line.third;
        row.UserPhi = block.degrees(line.first);
        row.UserLam = block.degrees(line.second);
        block.userToWgs(row);
        block.userToTm(row);
        row.TmH = row.UserH;
        block.userToUtm(row);
        row.UtmH = row.TmH;
    });
}

void ConvertTmLines(BatchRun& run) {
    Block block(run);
    block.convert([&block](PointRec& row, const LineNumbers& line) {
        row.TmX = line.first;
        row.TmY = line.second;
        row.TmH = line.third;
        row.UserH = line.third;
        row.UtmH = line.third;
        block.tmToUser(row);
        block.userToWgs(row);
        block.userToUtm(row);
    });
}

void ConvertUtmLines(BatchRun& run) {
    Block block(run);
    block.convert([&block](PointRec& row, const LineNumbers& line) {
        row.UtmX = line.first;
        row.UtmY = line.second;
        row.UtmH = line.third;
        row.UserH = line.third;
        block.utmToUser(row);
        block.userToWgs(row);
        block.userToTm(row);
    });
}

}  // namespace kelvo
