// The blocks of points of a run that is checked.
#include <array>
#include <cmath>

#include "batch/check_run.h"
#include "batch/definition_of_para.h"
#include "batch/wording.h"
#include "common/number_text.h"
#include "common/point_table.h"

namespace kelvo {

namespace {

using Kind = FindingKind;

constexpr std::size_t kTogether = 64;  // as a run converts them

}  // namespace

void CheckedRun::points(System system) {
    idle_.clear();
    headerIfDue();
    origins_.beforeBlock(system, para_, data_);
    const Converter converter(definition());
    std::vector<PointLine> block;
    block.reserve(kTogether);
    int nameField = 2;  // the keyword stands in front on the first line only
    bool goesOn = true;
    while (goesOn && !stopped_) {
        block.push_back(
            {.line = lineInHand(), .nameField = nameField, .system = system, .angles = AngleIn_});
        nameField = 1;
        goesOn = readContinuation();
        if (goesOn && block.size() < kTogether) continue;
        convertBlock(converter, block);
        block.clear();
    }
    held_ = true;
}

// A header that is due loads the shift and reads the known points.
void CheckedRun::headerIfDue() {
    const bool corrects = para_.CorrFlag != Flag::Off;
    if (ParaDirty_) {
        KelvoSub::SetDatumPara(datum_, shiftOf(para_), para_.Kind);
        if (corrects)
            knownPoints_.read(definitionOf(para_, datum_, nullptr).local, correction_, data_,
                              known_);
    }
    ParaDirty_ = false;
    if (corrects && !knownPoints_.wereRead()) knownPoints_.addNeverRead(correction_, data_);
}

// Without known points that a run could use the points are looked at uncorrected.
Definition CheckedRun::definition() const {
    Definition definition = definitionOf(para_, datum_, knownPoints_.usable());
    definition.corrects = definition.corrects && definition.known != nullptr;
    return definition;
}

void CheckedRun::convertBlock(const Converter& converter, std::span<const PointLine> block) {
    std::vector<ReadPoint> read;
    std::array<GivenPoint, kTogether> given{};
    std::array<ConvertedPoint, kTogether> converted{};
    read.reserve(block.size());
    for (const PointLine& point : block) {
        read.push_back(readPoint(point, data_));
        given[read.size() - 1] = read.back().given;
    }
    Outcomes outcomes;
    converter.convert(block.front().system, AngleIn_, std::span(given).first(block.size()),
                      std::span(converted).first(block.size()), outcomes);
    for (std::size_t i = 0; i < block.size() && !stopped_; ++i) {
        const auto found = outcomes.find(i);
        takePoint(block[i], read[i], converted[i],
                  found == outcomes.end() ? nullptr : &found->second);
    }
}

void CheckedRun::takePoint(const PointLine& point, const ReadPoint& read,
                           const ConvertedPoint& converted, const PointOutcome* outcome) {
    if (pointCount_ == kMostPoints) {
        data_.add(Kind::TooManyPoints, point.line,
                  std::to_string(kMostPoints) +
                      "개가 넘는 점이어서 실행이 여기서 멈춥니다 (오류 9). 파일을 나누십시오");
        stopped_ = true;
        return;
    }
    ++pointCount_;
    if (tablesWritten_ && inNoTable_++ == 0) firstInNoTable_ = point.line;
    para_.Zone = converted.Zone;
    para_.Lam0 = converted.Lam0;
    para_.UZone = converted.UZone;
    para_.ULam0 = converted.ULam0;
    Projection origin = tmOriginOf(para_);
    if (para_.AddFlag == Flag::On) origin.Lam0 += kOriginShiftSeconds / 3600;
    names_.addPoint(read.name, point.line, origin, data_);
    if (outcome != nullptr && outcome->ended())
        addStop(point, *outcome);
    else if (read.sound)
        checkConverted(point, read, converted);
}

void CheckedRun::checkConverted(const PointLine& point, const ReadPoint& read,
                                const ConvertedPoint& converted) {
    const Position wgs{.Phi = converted.WgsPhi, .Lam = converted.WgsLam};
    const bool onCountryGrid = (point.system == System::Tm && converted.Zone < TmZone::User) ||
                               (point.system == System::Utm && converted.UZone < UtmZone::User);
    if (onCountryGrid && isSmallGridPoint(point, read.given, data_)) return;
    if (!isInCountry(wgs)) return addOutsideCountry(point, read.given, wgs, data_);
    origins_.afterPoint(point.system, point.line, converted, data_);
    checkHeight(point, read);
    if (para_.CorrFlag == Flag::Off || knownPoints_.usable() == nullptr) return;
    const double metres = knownPoints_.distanceFrom(wgs);
    if (metres <= kFarMetres) return;
    data_.add(Kind::FarFromKnownPoints, point.line,
              "가장 가까운 보정점이 " + generalText(std::round(metres / 1000)) +
                  " km 떨어져 있어 보정이 맞지 않을 수 있습니다");
}

// A first adjustment of the height takes the place of the correction.
void CheckedRun::checkHeight(const PointLine& point, const ReadPoint& read) {
    if (para_.CorrFlag != Flag::Off || para_.dH != 0 || !read.hasHeight) return;
    const bool forward = point.system == System::Wgs;
    bool& said = forward ? saidForward_ : saidBackward_;
    if (said) return;
    said = true;
    data_.add(Kind::UncorrectedHeight, point.line,
              std::string("보정하지 않으므로 ") +
                  (forward ? "표고가 수십 m 높게" : "WGS 타원체고가 수십 m 낮게") +
                  " 나옵니다. 높이를 쓰려면 앞에 CORRECTION이나 1st의 높이 조정량을 두십시오");
}

void CheckedRun::addStop(const PointLine& point, const PointOutcome& outcome) {
    const RuntimeFault fault =
        outcome.uncorrected
            ? faultOf(*outcome.uncorrected, *knownPoints_.usable(), knownPoints_.path())
            : *outcome.fault;
    const bool atKnownPoint =
        outcome.uncorrected && outcome.uncorrected->failure == NoCorrection::WeightTooLarge;
    data_.add(
        Kind::RunStops, point.line,
        stopText(fault) +
            (atKnownPoint ? ". 보정점 바로 옆의 점이므로 좌표를 kelvo.cor와 똑같이 쓰십시오" : ""));
}

}  // namespace kelvo
