#include "batch/check_data_file.h"

#include "batch/check_run.h"

namespace kelvo {

std::vector<Finding> checkDataFile(std::string_view text, const KnownPointsFile& known) {
    const std::vector<TextLine> lines = linesOf(text);
    CheckedRun run(text, lines, known);
    run.follow();
    return run.takeFindings();
}

}  // namespace kelvo
