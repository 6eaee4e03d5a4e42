#include "batch/distance.h"

#include "batch/continuation_lines.h"
#include "common/fixed_width.h"
#include "common/plane_geometry.h"
#include "common/run_time_fault.h"

namespace kelvo {

namespace {

void writePair(CurrentRun& run, const std::string& first, const std::string& second) {
    const int firstRow = run.rowsByName.rowOf(first);
    const int secondRow = run.rowsByName.rowOf(second);
    const auto reportMissing = [&run](const std::string& name) {
        run.files.out.line("거리계산을 위한 점 " + name + "이 없습니다.");
    };
    if (firstRow == 0) reportMissing(first);
    if (secondRow == 0) reportMissing(second);
    if (firstRow == 0 || secondRow == 0) return;

    const PointTable& points = run.state.points;
    const PointRec& from = points.row(firstRow);
    const PointRec& to = points.row(secondRow);
    const genSub::DirectionDistance result =
        genSub::DistanceAndDirection(from.TmX, from.TmY, to.TmX, to.TmY);
    std::string line = "From   " + genSub::FormatText(first, 10, genSub::Align::Left) +
                       "    To   " + genSub::FormatText(second, 10, genSub::Align::Left) +
                       "    Direction =";
    KelvoSub::appendAngleText(line, result.direction, run.AngleOut);
    line += "     Distance =";
    genSub::appendFormatNum(line, result.distance, 7, 4);
    run.files.out.line(line);
}

}  // namespace

void RunDistance(CurrentRun& run) {
    run.files.out.line("");
    run.files.out.line("Distance Calculation");
    run.files.out.line("");
    run.parse(kKeywordLineFields);
    run.rowsByName.update(run.state.points);
    int nameField = 2;  // the keyword stands in front on the first line only
    do {
        const std::string first = run.fields().FieldStr(nameField);
        const std::string second = run.fields().FieldStr(nameField + 1);
        try {
            writePair(run, first, second);
        } catch (RuntimeFault& fault) {
            fault.addPlace("거리 " + first + " - " + second);
            throw;
        }
        nameField = 1;
    } while (readContinuationLine(run));
}

}  // namespace kelvo
