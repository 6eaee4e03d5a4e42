#include <cmath>
#include <span>
#include <string>
#include <string_view>

#include "common/checked_arithmetic.h"
#include "common/fixed_width.h"
#include "common/run_time_fault.h"
#include "correction/run_report.h"
#include "geodesy/angle_forms.h"

namespace kelvo {

namespace {

// Latitude counts more than longitude in the distance; not derived from the place.
constexpr double kLatitudeStretch = 1.2;
// The squared distance of a run point that lies on a known point, square degrees.
constexpr double kSmallestDistance2 = 1e-8;

// The weight of every known point for a place, kept with the point. All of them first, in a loop
// of nothing else, since the divisions then run one behind the other.
void weigh(std::span<CorrPoint> points, double Phi, double Lam, std::string_view pointName) {
    const CorrPoint* unweighable = nullptr;
    for (CorrPoint& known : points) {
        const double d1 = known.WgsPhi - Phi;
        const double d2 = known.WgsLam - Lam;
        double Q = d1 * d1 * kLatitudeStretch + d2 * d2;
        if (Q == 0) Q = kSmallestDistance2;
        const double Q2 = Q * Q;
        known.W = static_cast<float>(static_cast<double>(known.Weight) / Q2);
        const bool good = std::isfinite(known.W) && std::isfinite(Q2);
        if (!good && unweighable == nullptr) unweighable = &known;
    }
    if (unweighable != nullptr)
        raise(Fault::Overflow, "점 " + std::string(pointName) + "과(와) 보정점 " +
                                   unweighable->Name + "의 거리에서는 가중치를 계산할 수 없습니다");
}

Correction weightedMean(CorrPointTable& table, double Phi, double Lam, std::string_view pointName) {
    const std::span<CorrPoint> points =
        std::span(table.CorrPoints).subspan(1, static_cast<std::size_t>(table.CorrCount));
    weigh(points, Phi, Lam, pointName);
    double SumPhi = 0;
    double SumLam = 0;
    double SumH = 0;
    double SumW = 0;
    double SumWH = 0;
    for (const CorrPoint& known : points) {
        const auto w = static_cast<double>(known.W);
        SumPhi += w * known.DPhi;
        SumLam += w * known.DLam;
        SumW += w;
        if (known.DH != 0) {
            SumH += w * known.DH;
            SumWH += w;
        }
    }
    return {.DPhi = quotient(SumPhi, SumW),
            .DLam = quotient(SumLam, SumW),
            .DH = quotient(SumH, SumWH)};
}

}  // namespace

Correction findCorr(ConversionState& state, TextWriter& det, double Phi, double Lam, int AngleOut,
                    int Row, int CorrFlag, MessageBoxes& messages) {
    if (CorrFlag == 0) return {};
    const std::string& name = state.points.row(Row).name;
    const Correction mean = weightedMean(state.known, Phi, Lam, name);

    const KelvoSub::ArcSecLengths second = KelvoSub::ArcSecLen(Phi, Lam, messages);
    const double east = second.MLam * mean.DLam * 3600;
    const double north = second.MPhi * mean.DPhi * 3600;
    const double L = squareRoot(east * east + north * north);

    std::string line;
    line.reserve(128);
    genSub::appendFormatText(line, name, 10, 0);
    line += "             ";
    KelvoSub::appendAngleText(line, mean.DPhi, AngleOut, messages);
    KelvoSub::appendAngleText(line, mean.DLam, AngleOut, messages);
    genSub::appendFormatNum(line, mean.DH, 8, 4);
    line += "    L =";
    genSub::appendFormatNum(line, L, 3, 5);
    det.line(line);
    return mean;
}

}  // namespace kelvo
