#include "batch/detail_report.h"

#include "common/fixed_width.h"

namespace kelvo {

namespace {

using genSub::appendFormatNum;
using genSub::FormatNum;

constexpr int kNameColumns = 10;
constexpr std::string_view kLength = "    L =";

}  // namespace

void DetailReport::startRow(std::string_view label, double Phi, double Lam, double h) {
    line_ += label;
    KelvoSub::appendAngleText(line_, Phi, form_);
    KelvoSub::appendAngleText(line_, Lam, form_);
    appendFormatNum(line_, h, 8, 4);
}

void DetailReport::endRow() {
    det_.line(line_);
}

void DetailReport::row(std::string_view label, double Phi, double Lam, double h) {
    line_.assign(kNameColumns, ' ');
    startRow(label, Phi, Lam, h);
    endRow();
}

void DetailReport::row(std::string_view label, double Phi, double Lam, double h, double L) {
    line_.assign(kNameColumns, ' ');
    startRow(label, Phi, Lam, h);
    line_ += kLength;
    appendFormatNum(line_, L, 3, 5);
    endRow();
}

void DetailReport::title() {
    blank();
    det_.line(" 상세한 보정치 자료 ");
    blank();
    blank();
    det_.line("위치명     좌표계                위도               경도            표고   ");
}

void DetailReport::knownPoint(const CorrPoint& point, const MeasuredMiss& miss) {
    line_.clear();
    genSub::appendFormatText(line_, point.Name, kNameColumns, genSub::Align::Left);
    startRow(" WGS         ", point.WgsPhi, point.WgsLam, point.WgsH);
    line_ += " 가중치 =";
    appendFormatNum(line_, double{point.Weight}, 4, 2);
    endRow();
    row(" 사용자타원체", point.UserPhi, point.UserLam, point.UserH);
    row(" 계산치      ", miss.CPhi, miss.CLam, miss.CH);
    row(" 차이        ", point.DPhi, point.DLam, point.DH, miss.L);
    blank();
}

void DetailReport::sums(const MissTotals& totals) {
    blank();
    row(" 합계        ", totals.SumPhi, totals.SumLam, totals.SumH, totals.SumL);
}

void DetailReport::means(const MissMeans& means) {
    row(" 평균        ", means.MeanPhi, means.MeanLam, means.MeanH, means.MeanL);
    blank();
    blank();
}

void DetailReport::deviations(const MissDeviations& deviations, double L) {
    row("평균편차     ", deviations.SdPhi, deviations.SdLam, deviations.SdH, L);
    blank();
}

void DetailReport::outliers(std::string_view names) {
    det_.line(" 다음 보정점들에서 " + FormatNum(kOutlierMultiple, 2, 1) +
              " 배의 표준편차보다 큰 차이가 발견되었습니다. 체크후 다시 실행하십시오");
    det_.line(" " + std::string(names));
    empty();
}

void DetailReport::headOfCorrections() {
    empty();
    det_.line(" 각 좌표점 별 보정량");
    empty();
    det_.line(
        "명칭                           위도보정량         경도보정량      표고보정      보정거리");
    empty();
}

void DetailReport::correction(std::string_view name, const Correction& correction, double L) {
    line_.clear();
    genSub::appendFormatText(line_, name, kNameColumns, genSub::Align::Left);
    startRow("             ", correction.DPhi, correction.DLam, correction.DH);
    line_ += kLength;
    appendFormatNum(line_, L, 3, 5);
    endRow();
}

}  // namespace kelvo
