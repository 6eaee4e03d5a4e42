#include "shell/checked_text.h"

#include <algorithm>

#include "batch/check_data_file.h"
#include "common/run_time_fault.h"
#include "common/text_file.h"

namespace kelvo {

namespace {

KnownPointsFile readKnownPoints(const std::string& CorPath, Disk& disk) {
    try {
        return {.path = CorPath, .text = readWholeText(disk, CorPath)};
    } catch (const RuntimeFault&) {
        return {.path = CorPath, .text = {}};
    }
}

}  // namespace

std::vector<RunMessage> findingsIn(std::string_view dataFile, const std::string& CorPath,
                                   Disk& disk) {
    std::vector<RunMessage> found;
    for (const Finding& finding : checkDataFile(dataFile, readKnownPoints(CorPath, disk))) {
        if (finding.in == Finding::In::DataFile)
            found.push_back({finding.line, finding.text});
        else
            found.push_back({finding.correctionLine,
                             "kelvo.cor " + std::to_string(finding.line) + "행: " + finding.text});
    }
    std::stable_sort(
        found.begin(), found.end(),
        [](const RunMessage& one, const RunMessage& other) { return one.line < other.line; });
    return found;
}

}  // namespace kelvo
