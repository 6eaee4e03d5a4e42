#include "batch/continuation_lines.h"

namespace kelvo {

namespace {

constexpr int kContinuationLineFields = 6;
constexpr std::string_view kIndent = "   ";

}  // namespace

bool readContinuationLine(CurrentRun& run) {
    if (run.data.atEnd()) return false;
    run.readLine();
    run.parse(kContinuationLineFields);
    return run.fields().LineBuf.starts_with(kIndent) && !run.fields().FieldStr(1).empty();
}

}  // namespace kelvo
