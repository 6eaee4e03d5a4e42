#include "cli/check_files.h"

#include <algorithm>
#include <array>
#include <set>

#include "batch/check_data_file.h"
#include "batch/run_batch.h"
#include "batch/run_files.h"
#include "common/run_time_fault.h"
#include "common/text_file.h"

namespace kelvo {

namespace {

// A run would write over a file that it reads.
void addConflict(Disk& disk, const std::string& data, const std::string& CorPath,
                 std::vector<Finding>& findings) {
    try {
        requireFilesOfTheirOwn(disk, std::array{resultFileOf(data)}, std::array{data, CorPath});
    } catch (const RuntimeFault& fault) {
        findings.insert(findings.begin(),
                        {.kind = FindingKind::FileConflict, .text = stopText(fault)});
    }
}

}  // namespace

CheckResult checkFiles(std::span<const std::string> dataFiles, const std::string& CorPath,
                       Disk& disk, const CheckOutput& output) {
    CheckResult worst = CheckResult::Clean;
    std::set<std::string> saidOfKnownPoints;
    for (const std::string& data : dataFiles) {
        try {
            const std::string text = readWholeText(disk, data);
            std::vector<Finding> findings = checkDataFile(text, readKnownPointsFile(disk, CorPath));
            addConflict(disk, data, CorPath, findings);
            if (!findings.empty()) worst = std::max(worst, CheckResult::Found);
            for (const Finding& finding : findings) {
                const bool known = finding.in == Finding::In::KnownPoints;
                const std::string line = (known ? CorPath : data) + ":" +
                                         std::to_string(finding.line) + ": " + finding.text;
                if (!known || saidOfKnownPoints.insert(line).second) output.finding(line);
            }
        } catch (const RuntimeFault& fault) {
            worst = CheckResult::NotRead;
            output.failure(data + ": " + fault.text());
        }
    }
    return worst;
}

}  // namespace kelvo
