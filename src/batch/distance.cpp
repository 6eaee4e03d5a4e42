#include "batch/distance.h"

#include "common/fixed_width.h"
#include "common/letter_case.h"
#include "common/plane_geometry.h"
#include "common/run_time_fault.h"
#include "geodesy/angle_forms.h"

namespace kelvo {

namespace {

constexpr int kKeywordLineFields = 5;

// The first row of that name; 0 if there is none.
int rowOf(const PointTable& points, const std::string& name) {
    for (int i = 1; i <= points.PointCount; ++i)
        if (sameIgnoringCase(points.row(i).name, name)) return i;
    return 0;
}

void writePair(BatchRun& run, const std::string& first, const std::string& second) {
    const PointTable& points = run.state.points;
    const int firstRow = rowOf(points, first);
    const int secondRow = rowOf(points, second);
    const auto reportMissing = [&run](const std::string& name) {
        run.files.out.line("거리계산을 위한 점 " + name + "이 없습니다.");
    };
    if (firstRow == 0) reportMissing(first);
    if (secondRow == 0) reportMissing(second);
    if (firstRow == 0 || secondRow == 0) return;

    const PointRec& from = points.row(firstRow);
    const PointRec& to = points.row(secondRow);
    const genSub::DirectionDistance result =
        genSub::DistanceAndDirection(from.TmX, from.TmY, to.TmX, to.TmY);
    std::string line = "From   " + genSub::FormatText(first, 10, 0) + "    To   " +
                       genSub::FormatText(second, 10, 0) + "    Direction =";
    KelvoSub::appendAngleText(line, result.direction, run.AngleOut, run.messages);
    line += "     Distance =";
    genSub::appendFormatNum(line, result.distance, 7, 4);
    run.files.out.line(line);
}

}  // namespace

void RunDistance(BatchRun& run) {
    run.files.out.line("");
    run.files.out.line("Distance Calculation");
    run.files.out.line("");
    run.parse(kKeywordLineFields);
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
