// CorrStatistics: the statistics of the known points, written as they are computed.
#include "batch/detail_report.h"
#include "batch/run_header.h"
#include "batch/wording.h"

namespace kelvo {

namespace {

void reportPoint(CorrPoint& point, const LocalDatum& local, MissTotals& totals,
                 DetailReport& report, const std::string& CorPath, MessageBoxes& messages) {
    try {
        const MeasuredMiss miss = measureMiss(point, local);
        tell(messages, Remark::Kind::NotGeographic, miss.notGeographic ? 1 : 0);
        tell(messages, Remark::Kind::NotProjected, miss.unprojected);
        if (miss.fault) throw RuntimeFault(*miss.fault);
        totals.add(point, miss.L);
        report.knownPoint(point, miss);
    } catch (RuntimeFault& fault) {
        fault.addPlace(CorPath + " 보정점 " + point.Name);
        throw;
    }
}

std::string outlierNames(std::span<const CorrPoint> points, const MissMeans& means,
                         const MissDeviations& deviations) {
    std::string names;
    for (const CorrPoint& point : points) {
        const Outlier outlier = outlierOf(point, means, deviations);
        if (outlier.latitude) names += point.Name + " 위도,  ";
        if (outlier.longitude) names += point.Name + " 경도,  ";
    }
    return names;
}

// Fault 6 where there is nothing to take a mean of.
void requirePoints(std::size_t count, const MissTotals& totals, const std::string& CorPath) {
    if (count == 0) raise(Fault::Overflow, CorPath + ": 보정점이 하나도 없습니다");
    if (totals.NH == 0)
        raise(Fault::Overflow,
              CorPath + ": WGS 타원체고와 사용자 표고를 모두 아는 보정점이 없습니다");
}

}  // namespace

void CorrStatistics(ConversionState& state, const RunFiles& files, AngleForm AngleOut,
                    const TransPara& para, MessageBoxes& messages) {
    const LocalDatum local{
        .user = userEllipsoidOf(para), .datum = state.datum, .adjustment = firstAdjustmentOf(para)};
    const std::span<CorrPoint> points = state.known.inUse();
    DetailReport report(files.det, AngleOut);
    report.title();
    MissTotals totals;
    for (CorrPoint& point : points)
        reportPoint(point, local, totals, report, files.CorPath, messages);
    report.sums(totals);
    requirePoints(points.size(), totals, files.CorPath);
    const MissMeans means = meansOf(totals, points.size());
    report.means(means);

    const MissDeviations deviations = deviationsOf(points, means, totals);
    const DeviationLength length = lengthOf(deviations);
    tell(messages, Remark::Kind::NotProjected, length.unprojected);
    report.deviations(deviations, length.L);
    if (const std::string names = outlierNames(points, means, deviations); !names.empty())
        report.outliers(names);
    report.headOfCorrections();
}

}  // namespace kelvo
