#include "batch/run_commands.h"

#include "batch/distance.h"
#include "batch/language.h"
#include "batch/parameter_commands.h"
#include "batch/point_lines.h"
#include "batch/result_tables.h"
#include "common/letter_case.h"
#include "common/run_time_fault.h"
#include "common/utf8.h"

namespace kelvo {

namespace {

// The first four characters after the keyword, in capitals.
std::string formWord(FieldStore& fields) {
    const std::string words = upperCased(genSub::JoinFields(fields, 2, 4));
    return std::string(middleOf(words, 1, 4));
}

AngleForm outputForm(const std::string& word) {
    if (word == "DEG ") return AngleForm::Degrees;
    if (word == "DDD ") return AngleForm::Blanks;
    if (word == "DDD-") return AngleForm::Hyphens;
    return AngleForm::Dms;
}

void changeRunParameters(CurrentRun& run, Command command) {
    ParameterLines lines{.fields = run.fields(), .readLine = [&run] { run.readLine(); }};
    if (changeParameters(run.para, command, lines)) run.state.ParaDirty = true;
}

// They read on to the first line that isn't theirs.
void readOn(CurrentRun& run, void (*lines)(CurrentRun&)) {
    lines(run);
    run.lineHeld = true;
}

void utmPointsOrOrigin(CurrentRun& run) {
    run.parse(4);
    const FieldStore& fields = run.fields();
    if (fields.FieldNum(3) != 0 || fields.FieldNum(4) != 0)
        readOn(run, &ConvertUtmLines);
    else
        static_cast<void>(selectUtmOrigin(run.para, fields.FieldNum(2)));
}

}  // namespace

AngleForm inputFormOf(FieldStore& fields) {
    return formWord(fields) == "DEG " ? AngleForm::Degrees : AngleForm::Dms;
}

void writeTablesOnce(CurrentRun& run) {
    if (run.tablesWritten) return;
    int row = 0;
    try {
        PrintResultTables(run.state.points, run.files.out, run.AngleOut, run.para, run.messages,
                          row);
    } catch (const RuntimeFault&) {
        if (row > 0) run.lineNumber = run.lineOfRow[static_cast<std::size_t>(row)];
        throw;
    }
    run.tablesWritten = true;
}

bool carryOutCommand(CurrentRun& run) {
    run.parse(10);
    const auto command = commandOf(upperCased(genSub::JoinFields(run.fields(), 1, 2)));
    if (!command) return true;
    switch (*command) {
        case Command::Input:
            run.AngleIn = inputFormOf(run.fields());
            break;
        case Command::Output:
            run.AngleOut = outputForm(formWord(run.fields()));
            break;
        case Command::TmPoints:
            readOn(run, &ConvertTmLines);
            break;
        case Command::UtmPointsOrOrigin:
            utmPointsOrOrigin(run);
            break;
        case Command::WgsPoints:
            readOn(run, &ConvertWgsLines);
            break;
        case Command::UserPoints:
            readOn(run, &ConvertUgsLines);
            break;
        case Command::Distance:
            writeTablesOnce(run);
            readOn(run, &RunDistance);
            break;
        case Command::End:
            return false;
        default:
            changeRunParameters(run, *command);
            break;
    }
    return true;
}

}  // namespace kelvo
