#include "batch/point_lines.h"

#include <array>
#include <optional>
#include <span>

#include "batch/continuation_lines.h"
#include "batch/definition_of_para.h"
#include "batch/detail_report.h"
#include "batch/run_header.h"
#include "batch/wording.h"
#include "common/run_time_fault.h"
#include "conversion/converter.h"

namespace kelvo {

namespace {

// The lines of a block that are converted together.
class GatheredLines {
public:
    static constexpr std::size_t kMost = 64;

    explicit GatheredLines(CurrentRun& run) : run_(run) {}

    // The line in hand, its name in that field and the numbers after it.
    void take(int nameField) {
        const FieldStore& fields = run_.fields();
        names_[count_].assign(fields.FieldStr(nameField));
        lines_[count_] = run_.lineNumber;
        given_[count_] = {.first = fields.FieldNum(nameField + 1),
                          .second = fields.FieldNum(nameField + 2),
                          .height = fields.FieldNum(nameField + 3)};
        ++count_;
    }

    // Takes lines until there are enough; false at the end of the block. A fault of reading
    // waits for the points in front of it.
    [[nodiscard]] bool gather() {
        try {
            while (count_ < kMost) {
                if (!readContinuationLine(run_)) return false;
                take(1);
            }
        } catch (const RuntimeFault& fault) {
            readingFailed_ = fault;
            return false;
        }
        return true;
    }

    void clear() { count_ = 0; }
    void raiseReadingFault() const {
        if (readingFailed_) throw RuntimeFault(*readingFailed_);
    }

    [[nodiscard]] std::span<const GivenPoint> given() const {
        return std::span(given_).first(count_);
    }
    [[nodiscard]] const std::string& name(std::size_t i) const { return names_[i]; }
    [[nodiscard]] long line(std::size_t i) const { return lines_[i]; }

private:
    CurrentRun& run_;
    std::size_t count_ = 0;
    std::array<std::string, kMost> names_;
    std::array<long, kMost> lines_{};
    std::array<GivenPoint, kMost> given_{};
    std::optional<RuntimeFault> readingFailed_;
};

void fillRow(PointRec& row, const ConvertedPoint& p, System system) {
    row.WgsPhi = p.WgsPhi;
    row.WgsLam = p.WgsLam;
    row.WgsH = p.WgsH;
    row.UserPhi = p.UserPhi;
    row.UserLam = p.UserLam;
    row.UserH = p.UserH;
    row.TmX = p.TmX;
    row.TmY = p.TmY;
    if (system != System::Utm) row.TmH = p.TmH;
    row.UtmX = p.UtmX;
    row.UtmY = p.UtmY;
    row.UtmH = p.UtmH;
    row.CorrPhi = p.CorrPhi;
    row.CorrLam = p.CorrLam;
    row.CorrH = p.CorrH;
}

// One point in its order: boxes, detail row, boxes, fault.
void report(CurrentRun& run, const std::string& name, const ConvertedPoint& p,
            const PointOutcome* outcome) {
    if (outcome != nullptr) {
        tell(run.messages, outcome->beforeDetail);
        if (outcome->uncorrected)
            throw faultOf(*outcome->uncorrected, run.state.known.inUse(), run.files.CorPath);
        if (outcome->fault && !outcome->faultAfterDetail) throw RuntimeFault(*outcome->fault);
    }
    if (run.para.CorrFlag != Flag::Off)
        DetailReport(run.files.det, run.AngleOut)
            .correction(name, {.DPhi = p.CorrPhi, .DLam = p.CorrLam, .DH = p.CorrH}, p.CorrL);
    if (outcome != nullptr) {
        tell(run.messages, outcome->afterDetail);
        if (outcome->fault) throw RuntimeFault(*outcome->fault);
    }
}

void takePoint(CurrentRun& run, System system, const GatheredLines& lines, std::size_t i,
               const ConvertedPoint& p, const PointOutcome* outcome) {
    run.lineNumber = lines.line(i);
    PointTable& points = run.state.points;
    ++points.PointCount;
    PointRec& row = points.row(points.PointCount);
    run.lineOfRow.push_back(run.lineNumber);
    row.name = lines.name(i);
    fillRow(row, p, system);
    run.para.Zone = p.Zone;
    run.para.Lam0 = p.Lam0;
    run.para.UZone = p.UZone;
    run.para.ULam0 = p.ULam0;
    try {
        report(run, row.name, p, outcome);
    } catch (RuntimeFault& fault) {
        fault.addPlace("점 " + row.name);
        throw;
    }
}

// A header that is due reads the known points through the same line and field store.
void writeHeaderThatIsDue(CurrentRun& run) {
    std::string line = run.fields().LineBuf;
    if (run.state.ParaDirty) {
        PrintRunHeader(run.state, run.files, run.AngleIn, run.AngleOut, run.para, run.disk,
                       run.messages);
        if (run.para.CorrFlag != Flag::Off) {
            const auto known = run.state.known.inUse();
            run.known = std::make_shared<const std::vector<CorrPoint>>(known.begin(), known.end());
        }
    }
    run.state.ParaDirty = false;
    run.fields().LineBuf = std::move(line);
}

void convertLines(CurrentRun& run, System system) {
    writeHeaderThatIsDue(run);
    const Converter converter(definitionOf(run.para, run.state.datum, run.known));
    run.parse(kKeywordLineFields);
    GatheredLines lines(run);
    lines.take(2);  // the keyword stands in front on the first line only
    std::array<ConvertedPoint, GatheredLines::kMost> converted;
    Outcomes outcomes;
    for (bool goesOn = true; goesOn;) {
        goesOn = lines.gather();
        const long lastLine = run.lineNumber;
        const auto given = lines.given();
        const auto points = std::span(converted).first(given.size());
        converter.convert(system, run.AngleIn, given, points, outcomes);
        for (std::size_t i = 0; i < points.size(); ++i) {
            const auto found = outcomes.find(i);
            takePoint(run, system, lines, i, points[i],
                      found == outcomes.end() ? nullptr : &found->second);
        }
        lines.clear();
        run.lineNumber = lastLine;
        lines.raiseReadingFault();
    }
}

}  // namespace

void ConvertWgsLines(CurrentRun& run) {
    convertLines(run, System::Wgs);
}

void ConvertUgsLines(CurrentRun& run) {
    convertLines(run, System::User);
}

void ConvertTmLines(CurrentRun& run) {
    convertLines(run, System::Tm);
}

void ConvertUtmLines(CurrentRun& run) {
    convertLines(run, System::Utm);
}

}  // namespace kelvo
