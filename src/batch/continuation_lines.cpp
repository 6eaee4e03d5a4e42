#include "batch/continuation_lines.h"

namespace kelvo {

namespace {

constexpr int kContinuationLineFields = 6;
constexpr std::string_view kIndent = "   ";

}  // namespace

bool isContinuationLine(std::string_view line) {
    if (!line.starts_with(kIndent)) return false;
    return !genSub::takeField(line).empty();
}

bool readContinuationLine(CurrentRun& run) {
    if (run.data.atEnd()) return false;
    run.readLine();
    run.parse(kContinuationLineFields);
    return isContinuationLine(run.fields().LineBuf);
}

}  // namespace kelvo
