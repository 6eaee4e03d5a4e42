#include "shell/findings_on_view.h"

#include "batch/check_data_file.h"
#include "common/letter_case.h"
#include "common/paths.h"
#include "common/run_time_fault.h"

namespace kelvo {

namespace {

KnownPointsFile knownPointsAtHand(Disk& disk, const std::string& CorPath) {
    try {
        return readKnownPointsFile(disk, CorPath);
    } catch (const RuntimeFault&) {
        return {.path = CorPath, .text = std::nullopt};
    }
}

FindingOnView onView(const Finding& finding) {
    if (finding.in == Finding::In::DataFile)
        return {.line = finding.line,
                .column = finding.column,
                .length = finding.length,
                .text = finding.text};
    return {.line = finding.correctionLine,
            .text = "kelvo.cor " + std::to_string(finding.line) + "번째 줄: " + finding.text};
}

}  // namespace

std::vector<FindingOnView> findingsOnView(const std::string& path, std::string_view text,
                                          const std::string& CorPath, Disk& disk) {
    if (upperCased(genSub::FileExtensionOf(path)) != "DAT") return {};
    std::vector<FindingOnView> all;
    for (const Finding& finding : checkDataFile(text, knownPointsAtHand(disk, CorPath)))
        all.push_back(onView(finding));
    return all;
}

}  // namespace kelvo
