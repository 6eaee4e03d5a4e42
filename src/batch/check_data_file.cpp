#include "batch/check_data_file.h"

#include "batch/check_run.h"
#include "common/text_file.h"

namespace kelvo {

KnownPointsFile readKnownPointsFile(Disk& disk, const std::string& path) {
    try {
        return {.path = path, .text = readWholeText(disk, path)};
    } catch (const RuntimeFault& fault) {
        if (fault.fault() != Fault::FileNotFound && fault.fault() != Fault::PathNotFound) throw;
        return {.path = path, .text = std::nullopt};
    }
}

std::vector<Finding> checkDataFile(std::string_view text, const KnownPointsFile& known) {
    const std::vector<TextLine> lines = linesOf(text);
    CheckedRun run(text, lines, known);
    run.follow();
    return run.takeFindings();
}

}  // namespace kelvo
