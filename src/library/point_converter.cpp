#include "library/point_converter.h"

#include <utility>

#include "batch/wording.h"
#include "common/one_line.h"
#include "library/table_cells.h"

namespace kelvo {

namespace {

void append(std::vector<Remark>& all, const std::vector<Remark>& more) {
    all.insert(all.end(), more.begin(), more.end());
}

// In the order of a run: boxes, row of the detail report, boxes, fault, tables.
PointStatus statusOf(const PointOutcome& outcome, std::optional<RuntimeFault> ofDetailRow) {
    PointStatus status{.remarks = outcome.beforeDetail, .fault = {}, .uncorrected = {}};
    status.uncorrected = outcome.uncorrected;
    if (outcome.uncorrected) return status;
    if (outcome.fault && !outcome.faultAfterDetail) {
        status.fault = outcome.fault;
        return status;
    }
    status.fault = std::move(ofDetailRow);
    if (status.fault) return status;
    append(status.remarks, outcome.afterDetail);
    status.fault = outcome.fault;
    return status;
}

bool ended(const PointStatus& status) {
    return status.fault.has_value() || status.uncorrected.has_value();
}

}  // namespace

PointConverter::PointConverter(Definition definition, std::string knownPointsName)
    : converter_(std::move(definition)), knownPointsName_(std::move(knownPointsName)) {}

void PointConverter::convert(System system, AngleForm angles, std::span<const GivenPoint> given,
                             std::span<ConvertedPoint> points, PointStatuses& statuses) const {
    statuses.clear();
    Outcomes outcomes;
    converter_.convert(system, angles, given, points, outcomes);
    Outcomes ofWgsUtm;
    converter_.addWgsUtm(points, ofWgsUtm);
    for (std::size_t i = 0; i < points.size(); ++i) {
        const auto outcome = outcomes.find(i);
        const auto wgsUtm = ofWgsUtm.find(i);
        if (outcome == outcomes.end() && wgsUtm == ofWgsUtm.end() && isWritable(points[i]))
            continue;
        const bool reachedDetail = outcome == outcomes.end() || !outcome->second.ended() ||
                                   outcome->second.faultAfterDetail;
        PointStatus status =
            statusOf(outcome == outcomes.end() ? PointOutcome{} : outcome->second,
                     converter_.definition().corrects && reachedDetail ? faultOfDetailRow(points[i])
                                                                       : std::nullopt);
        if (!ended(status)) status.fault = faultOfTables(points[i]);
        if (!ended(status)) {
            if (wgsUtm != ofWgsUtm.end()) append(status.remarks, wgsUtm->second.afterDetail);
            status.fault = faultOfLastTable(points[i]);
        }
        if (!status.remarks.empty() || ended(status)) statuses[i] = std::move(status);
    }
}

std::string PointConverter::faultText(const FoundCorrection& uncorrected) const {
    const KnownPoints& known = converter_.definition().known;
    return faultOf(uncorrected,
                   known ? std::span<const CorrPoint>(*known) : std::span<const CorrPoint>(),
                   knownPointsName_)
        .text();
}

std::string PointConverter::text(const PointStatus& status) const {
    std::string joined;
    const auto add = [&joined](const std::string& text) {
        if (!joined.empty()) joined += "; ";
        joined += oneLine(text);
    };
    for (const Remark& remark : status.remarks)
        for (const std::string& text : textsOf(remark)) add(text);
    if (status.uncorrected) add(faultText(*status.uncorrected));
    if (status.fault) add(status.fault->text());
    return joined;
}

}  // namespace kelvo
