#include "batch/check_known_points.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>
#include <utility>
#include <vector>

#include "batch/check_points.h"
#include "batch/corr_file.h"
#include "common/code_page.h"
#include "common/number_text.h"
#include "common/run_time_fault.h"
#include "common/text_file.h"
#include "correction/corr_statistics.h"
#include "geodesy/geocentric.h"

namespace kelvo {

namespace {

using Kind = FindingKind;

constexpr double kFarMiss = 1000;  // metres; the parameters in use here differ by far less

// The bytes of a text in the code page, as a run reads them from the file.
class TextBytes final : public ByteReader {
public:
    explicit TextBytes(std::string_view text) : bytes_(encodeCodePage(text)), rest_(bytes_) {}

    std::size_t read(std::span<char> buffer) override {
        const std::size_t count = rest_.copy(buffer.data(), buffer.size());
        rest_.remove_prefix(count);
        return count;
    }

private:
    std::string bytes_;
    std::string_view rest_;
};

class NoMessages final : public MessageBoxes {
public:
    Answer show(const Message&) override { return Answer::Ok; }
};

// A known point on a line: name, WGS84 latitude, longitude, height, user latitude, longitude,
// height, weight.
constexpr int kWgsHeight = 4;
constexpr int kUserHeight = 7;
constexpr int kWeight = 8;
constexpr int kAngles[] = {2, 3, 5, 6};

void checkNumbers(const TextLine& line, const LineFields& fields, Findings& known) {
    for (int n = 2; n <= kWeight; ++n) {
        if (fields[n].empty()) {
            known.add(Kind::ImpossibleKnownPoint, line,
                      n == kWeight ? "가중치가 없어 0으로 읽히고 보정에 쓰이지 않습니다"
                                   : "보정점에는 이름과 수 일곱 개가 있어야 합니다");
            return;
        }
        if (numberOf(fields[n]).reads()) continue;
        known.add(Kind::ImpossibleKnownPoint, line, fields[n],
                  quoted(fields[n].text) + "은(는) 수로 다 읽히지 않습니다");
        return;
    }
}

void checkAngles(const TextLine& line, const LineFields& fields, Findings& known) {
    for (const int n : kAngles) {
        const std::string bad = badAngle(numberOf(fields[n]).value);
        if (!bad.empty())
            known.add(Kind::ImpossibleKnownPoint, line, fields[n],
                      quoted(fields[n].text) + "은(는) ddd.mmssss가 아닙니다: " + bad);
    }
}

void checkHeights(const TextLine& line, const LineFields& fields, Findings& known) {
    const double WgsH = numberOf(fields[kWgsHeight]).value;
    const double UserH = numberOf(fields[kUserHeight]).value;
    if (WgsH == 0 || UserH == 0) return;
    const double geoid = WgsH - UserH;
    if (geoid >= kLeastGeoid && geoid <= kMostGeoid) return;
    known.add(Kind::ImpossibleKnownPoint, line, fields[kUserHeight],
              "WGS 타원체고에서 표고를 뺀 값이 " + generalText(std::round(geoid * 1000) / 1000) +
                  " m입니다. 우리나라에서는 15 m에서 34 m입니다");
}

bool isComment(const LineFields& fields) {
    return fields[1].empty() || fields[1].text.front() == '*';
}

}  // namespace

struct CheckedKnownPoints::File {
    std::vector<TextLine> lines;   // of the file
    std::vector<TextLine> points;  // of those that are read
    CorrPointTable table;
    EllipsoidShape shape{kWgs84};
    std::vector<Geocentric> places;  // of those that count, on the ellipsoid
};

CheckedKnownPoints::CheckedKnownPoints(const KnownPointsFile& source)
    : source_(source), file_(std::make_unique<File>()) {}

CheckedKnownPoints::~CheckedKnownPoints() = default;

void CheckedKnownPoints::read(const LocalDatum& local, const TextLine& correction, Findings& data,
                              Findings& known) {
    const bool first = !std::exchange(read_, true);
    usable_ = nullptr;
    if (first && readFile(correction, data, known)) checkLines(known);
    if (file_->points.empty()) return;
    const std::string unusable = measure(local, first ? &known : nullptr);
    if (!unusable.empty() && !std::exchange(said_, true))
        data.add(Kind::NoKnownPoints, correction,
                 "실행이 멈춥니다 (오류 6): " + source_.path + ": " + unusable);
}

void CheckedKnownPoints::addNeverRead(const TextLine& correction, Findings& data) {
    if (std::exchange(said_, true)) return;
    data.add(Kind::NoKnownPoints, correction,
             "보정점을 읽지 않아 실행이 멈춥니다 (오류 6). CORRECTION을 첫 점 앞에 쓰거나 그 뒤에 "
             "zone이나 add 줄을 두십시오");
}

// The lines stand apart for their numbers; what a run makes of the file its own reader says.
bool CheckedKnownPoints::readFile(const TextLine& correction, Findings& data, Findings& known) {
    if (!source_.text) {
        said_ = true;
        data.add(Kind::NoKnownPoints, correction,
                 "보정점의 파일이 없어 실행이 멈춥니다 (오류 53): " + source_.path);
        return false;
    }
    file_->lines = linesOf(*source_.text);
    const std::size_t count = file_->lines.size();
    for (const TextLine& line : file_->lines)
        if (line.number < static_cast<long>(count) && !isComment(LineFields(line.text)))
            file_->points.push_back(line);
    try {
        NoMessages messages;
        FieldStore fields;
        TextReader bytes(std::make_unique<TextBytes>(*source_.text));
        ReadCorrFile(file_->table, bytes, source_.path, fields, messages);
    } catch (const RuntimeFault& fault) {
        addUnreadable(fault, correction, data, known);
        return false;
    }
    if (!file_->points.empty()) return true;
    said_ = true;
    data.add(Kind::NoKnownPoints, correction,
             "실행이 멈춥니다 (오류 6): " + source_.path + "에 보정점이 하나도 없습니다");
    return false;
}

void CheckedKnownPoints::addUnreadable(const RuntimeFault& fault, const TextLine& correction,
                                       Findings& data, Findings& known) {
    said_ = true;
    file_->points.clear();
    if (file_->lines.empty() || fault.fault() == Fault::Overflow)
        data.add(Kind::NoKnownPoints, correction, stopText(fault));
    else if (fault.fault() == Fault::InputPastEnd)
        known.add(Kind::NoKnownPoints, file_->lines.back(),
                  "실행이 멈춥니다 (오류 62). 마지막 점의 뒤에 빈 줄 둘을 두십시오");
    else
        known.add(Kind::NoKnownPoints, file_->lines.back(), stopText(fault));
}

void CheckedKnownPoints::checkLines(Findings& known) const {
    std::size_t slot = 1;
    for (const TextLine& line : file_->points) {
        const LineFields fields(line.text);
        checkNumbers(line, fields, known);
        checkAngles(line, fields, known);
        checkHeights(line, fields, known);
        const CorrPoint& point = file_->table.CorrPoints[slot++];
        if (!isInCountry({.Phi = point.WgsPhi, .Lam = point.WgsLam}))
            known.add(Kind::ImpossibleKnownPoint, line, fields[2],
                      "보정점이 쓸 수 있는 곳(위도 32~39도, 경도 124~132도) 밖에 있습니다");
    }
    const TextLine& last = file_->lines.back();
    const LineFields fields(last.text);
    if (!isComment(fields) && numberOf(fields[2]).reads() && numberOf(fields[3]).reads())
        known.add(Kind::UnreadKnownPoint, last,
                  "파일의 마지막 줄이어서 읽지 않습니다. 뒤에 빈 줄 둘을 두십시오");
}

// Why a run stops at its header or its first point; empty if it doesn't.
std::string CheckedKnownPoints::measure(const LocalDatum& local, Findings* known) {
    const auto points = file_->table.inUse();
    MissTotals totals;
    try {
        for (std::size_t i = 0; i < points.size(); ++i) {
            const MeasuredMiss miss = measureMiss(points[i], local);
            if (miss.fault) return "보정점 " + points[i].Name + ": " + miss.fault->text();
            totals.add(points[i], miss.L);
            if (known != nullptr && miss.L > kFarMiss)
                known->add(Kind::ImpossibleKnownPoint, file_->points[i],
                           "WGS84 위치와 사용자 위치가 매개변수로 계산한 것과 " +
                               generalText(std::round(miss.L / 100) / 10) + " km 어긋납니다");
        }
        if (totals.NH == 0) return "WGS 타원체고와 사용자 표고를 모두 아는 보정점이 없습니다";
        static_cast<void>(deviationsOf(points, meansOf(totals, points.size()), totals));
    } catch (const RuntimeFault& fault) {
        return fault.text();
    }
    const auto counts = [](const CorrPoint& point) { return point.Weight != 0; };
    if (std::none_of(points.begin(), points.end(), counts)) return "모든 보정점의 가중치가 0입니다";
    if (std::none_of(points.begin(), points.end(),
                     [&](const CorrPoint& point) { return counts(point) && point.DH != 0; }))
        return "가중치가 있고 높이를 아는 보정점이 없습니다";
    usable_ = std::make_shared<const std::vector<CorrPoint>>(points.begin(), points.end());
    place();
    return {};
}

void CheckedKnownPoints::place() {
    file_->places.clear();
    for (const CorrPoint& point : *usable_)
        if (point.Weight != 0 && isInCountry({.Phi = point.WgsPhi, .Lam = point.WgsLam}))
            file_->places.push_back(
                KelvoSub::GeoToXYZ(point.WgsPhi, point.WgsLam, 0, file_->shape));
}

double CheckedKnownPoints::distanceFrom(const Position& place) const {
    if (file_->places.empty()) return 0;
    const Geocentric from = KelvoSub::GeoToXYZ(place.Phi, place.Lam, 0, file_->shape);
    double nearest2 = std::numeric_limits<double>::max();
    for (const Geocentric& to : file_->places) {
        const double dX = to.X - from.X;
        const double dY = to.Y - from.Y;
        const double dZ = to.Z - from.Z;
        nearest2 = std::min(nearest2, dX * dX + dY * dY + dZ * dZ);
        if (nearest2 < kFarMetres * kFarMetres) break;
    }
    return std::sqrt(nearest2);
}

}  // namespace kelvo
