#include "correction/corr_statistics.h"

#include <cmath>
#include <span>

#include "common/checked_arithmetic.h"
#include "common/fixed_width.h"
#include "common/run_time_fault.h"
#include "geodesy/angle_forms.h"

namespace kelvo {

namespace {

using genSub::Blanks;
using genSub::FormatNum;
using genSub::FormatText;

constexpr int kOutlierMultiple = 3;
// Where the deviation's length in metres is taken: one fixed place, whatever the points.
constexpr double kDeviationPhi = 35;
constexpr double kDeviationLam = 127;

struct Totals {
    double SumPhi = 0;
    double SumLam = 0;
    double SumH = 0;
    double SumL = 0;
    int NH = 0;  // not reset between the two passes: it ends at twice the number (required)
};

struct Means {
    double MeanPhi = 0;
    double MeanLam = 0;
    double MeanH = 0;
};

struct Deviations {
    double SdPhi = 0;
    double SdLam = 0;
    double SdH = 0;
};

bool hasBothHeights(const CorrPoint& point) {
    return point.WgsH != 0 && point.UserH != 0;
}

// Length in metres of a difference in degrees, at a place.
double lengthOf(double DPhi, double DLam, const KelvoSub::ArcSecLengths& second) {
    const double east = second.MLam * DLam * 3600;
    const double north = second.MPhi * DPhi * 3600;
    return squareRoot(east * east + north * north);
}

// One file of the block and the form in which its angles stand.
class DetailBlock {
public:
    DetailBlock(TextWriter& det, int AngleOut, MessageBoxes& messages)
        : det_(det), form_(AngleOut), messages_(messages) {}

    void blank() { det_.line(" "); }
    void empty() { det_.line(""); }
    void text(std::string_view line) { det_.line(line); }

    // A label, two angles and a height, with a length behind them.
    void row(std::string label, double Phi, double Lam, double h) {
        append(label, Phi, Lam, h);
        det_.line(label);
    }
    void row(std::string label, double Phi, double Lam, double h, double L) {
        append(label, Phi, Lam, h);
        label += "    L =";
        label += FormatNum(L, 3, 5);
        det_.line(label);
    }

private:
    void append(std::string& line, double Phi, double Lam, double h) {
        KelvoSub::appendAngleText(line, Phi, form_, messages_);
        KelvoSub::appendAngleText(line, Lam, form_, messages_);
        genSub::appendFormatNum(line, h, 8, 4);
    }

    TextWriter& det_;
    int form_;
    MessageBoxes& messages_;
};

void writeTitle(DetailBlock& block) {
    block.blank();
    block.text(" 상세한 보정치 자료 ");
    block.blank();
    block.blank();
    block.text("위치명     좌표계                위도               경도            표고   ");
}

void measurePoint(CorrPoint& point, Totals& totals, DetailBlock& block, const TransPara& para,
                  const DatumState& datum, int AngleOut, MessageBoxes& messages) {
    const Geographic computed = KelvoSub::WgsToUser(
        datum.shift, point.WgsPhi, point.WgsLam, point.WgsH, {.a = para.a, .f = para.f}, messages);
    const double CPhi = computed.Phi + para.dPhi / 3600;
    const double CLam = computed.Lam + para.dLam / 3600;
    double CH = computed.h;
    point.DPhi = finite(point.UserPhi - CPhi);
    point.DLam = finite(point.UserLam - CLam);
    totals.SumPhi += point.DPhi;
    totals.SumLam += point.DLam;
    const double L = lengthOf(point.DPhi, point.DLam, KelvoSub::ArcSecLen(CPhi, CLam, messages));
    totals.SumL += L;
    if (hasBothHeights(point)) {
        ++totals.NH;
        CH -= KelvoSub::GeoidHeightBessel(datum.geoid, CPhi, CLam);
        CH += para.dH;
        point.DH = finite(point.UserH - CH);
        totals.SumH += point.DH;
    }

    std::string wgs = FormatText(point.Name, 10, 0) + " WGS         ";
    KelvoSub::appendAngleText(wgs, point.WgsPhi, AngleOut, messages);
    KelvoSub::appendAngleText(wgs, point.WgsLam, AngleOut, messages);
    block.text(wgs + FormatNum(point.WgsH, 8, 4) +
               " 가중치 =" + FormatNum(static_cast<double>(point.Weight), 4, 2));
    block.row(Blanks(10) + " 사용자타원체", point.UserPhi, point.UserLam, point.UserH);
    block.row(Blanks(10) + " 계산치      ", CPhi, CLam, CH);
    block.row(Blanks(10) + " 차이        ", point.DPhi, point.DLam, point.DH, L);
    block.blank();
}

Deviations deviationsOf(std::span<const CorrPoint> points, const Means& means, Totals& totals) {
    double SqPhi = 0;
    double SqLam = 0;
    double SqH = 0;
    for (const CorrPoint& point : points) {
        const double offPhi = point.DPhi - means.MeanPhi;
        const double offLam = point.DLam - means.MeanLam;
        SqPhi += offPhi * offPhi;
        SqLam += offLam * offLam;
        if (hasBothHeights(point)) {
            ++totals.NH;
            const double offH = point.DH - means.MeanH;
            SqH += offH * offH;
        }
    }
    const auto count = static_cast<double>(points.size());
    return {.SdPhi = squareRoot(quotient(SqPhi, count)),
            .SdLam = squareRoot(quotient(SqLam, count)),
            .SdH = squareRoot(quotient(SqH, totals.NH))};
}

std::string outliersOf(std::span<const CorrPoint> points, const Means& means,
                       const Deviations& deviations) {
    std::string T;
    for (const CorrPoint& point : points) {
        if (std::abs(point.DPhi - means.MeanPhi) > kOutlierMultiple * deviations.SdPhi)
            T += point.Name + " 위도,  ";
        if (std::abs(point.DLam - means.MeanLam) > kOutlierMultiple * deviations.SdLam)
            T += point.Name + " 경도,  ";
    }
    return T;
}

}  // namespace

void CorrStatistics(CorrPointTable& table, TextWriter& det, int AngleOut, const TransPara& para,
                    const DatumState& datum, MessageBoxes& messages) {
    const std::span<CorrPoint> points =
        std::span(table.CorrPoints).subspan(1, static_cast<std::size_t>(table.CorrCount));
    const auto count = static_cast<double>(points.size());
    DetailBlock block(det, AngleOut, messages);
    writeTitle(block);

    Totals totals;
    for (CorrPoint& point : points) {
        try {
            measurePoint(point, totals, block, para, datum, AngleOut, messages);
        } catch (RuntimeFault& fault) {
            fault.addPlace("보정점 " + point.Name);
            throw;
        }
    }

    // Each line is written as soon as it is reached: the sums stand before a fault of the means.
    const auto totalRow = [&block](std::string_view label, double Phi, double Lam, double h,
                                   double L) {
        block.row(Blanks(10) + std::string(label), Phi, Lam, h, L);
    };
    block.blank();
    totalRow(" 합계        ", totals.SumPhi, totals.SumLam, finite(totals.SumH),
             finite(totals.SumL));
    const Means means{.MeanPhi = quotient(totals.SumPhi, count),
                      .MeanLam = quotient(totals.SumLam, count),
                      .MeanH = quotient(totals.SumH, totals.NH)};
    totalRow(" 평균        ", means.MeanPhi, means.MeanLam, means.MeanH,
             quotient(totals.SumL, count));
    block.blank();
    block.blank();

    const Deviations deviations = deviationsOf(points, means, totals);
    const double L = lengthOf(deviations.SdPhi, deviations.SdLam,
                              KelvoSub::ArcSecLen(kDeviationPhi, kDeviationLam, messages));
    totalRow("평균편차     ", deviations.SdPhi, deviations.SdLam, deviations.SdH, L);
    block.blank();

    if (const std::string T = outliersOf(points, means, deviations); !T.empty()) {
        block.text(" 다음 보정점들에서 " + FormatNum(kOutlierMultiple, 2, 1) +
                   " 배의 표준편차보다 큰 차이가 발견되었습니다. 체크후 다시 실행하십시오");
        block.text(" " + T);
        block.empty();
    }
}

}  // namespace kelvo
