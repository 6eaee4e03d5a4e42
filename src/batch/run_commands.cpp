#include "batch/run_commands.h"

#include <array>
#include <string_view>

#include "batch/distance.h"
#include "batch/pipelines.h"
#include "batch/result_tables.h"
#include "common/checked_arithmetic.h"
#include "common/letter_case.h"
#include "common/utf8.h"

namespace kelvo {

namespace {

constexpr double kBesselA = 6377397.155;
constexpr double kBesselInverseFlattening = 299.1528128;
constexpr std::int16_t kUserZone = 6;
constexpr std::int16_t kUserUZone = 3;

double number(const BatchRun& run, int field) {
    return run.fields().FieldNum(field);
}

// Reads one more line of a parameter block; the end of the file in between is a fault.
void nextLine(BatchRun& run, int maxFields) {
    run.readLine();
    run.parse(maxFields);
}

void sevenParameters(BatchRun& run) {
    nextLine(run, 3);
    run.para.dX = number(run, 1);
    run.para.dY = number(run, 2);
    run.para.dZ = number(run, 3);
    nextLine(run, 3);
    run.para.Omega = number(run, 1);
    run.para.Phi = number(run, 2);
    run.para.Kappa = number(run, 3);
    nextLine(run, 1);
    run.para.dS = number(run, 1);
    run.state.ParaDirty = true;
}

// The values are fields 2 to 4, whichever way the line is written: with the word "corr" behind
// "1st" everything moves by one place (required).
void firstAdjustment(BatchRun& run) {
    run.parse(4);
    run.para.dPhi = number(run, 2);
    run.para.dLam = number(run, 3);
    run.para.dH = number(run, 4);
}

void zone(BatchRun& run) {
    TransPara& para = run.para;
    para.Zone = roundedInteger16(static_cast<double>(run.fields().FieldSng(2)));
    para.a = kBesselA;
    para.f = kBesselInverseFlattening;
    para.Phi0 = 38;
    para.X0 = 500000;
    para.Y0 = 200000;
    para.S0 = 1;
    switch (para.Zone) {
        case 1:
            para.Lam0 = 125;
            break;
        case 3:
            para.Lam0 = 129;
            break;
        case 4:
            para.Lam0 = 131;
            break;
        case 5:
            para.Lam0 = 127;
            para.X0 = 550000;
            break;
        default:
            para.Lam0 = 127;
            break;
    }
    run.state.ParaDirty = true;
}

// The first four characters behind the keyword, upper-cased.
std::string formWord(BatchRun& run) {
    const std::string words = upperCased(genSub::JoinFields(run.fields(), 2, 4));
    return std::string(middleOf(words, 1, 4));
}

int outputForm(const std::string& word) {
    if (word == "DEG ") return kAngleDegrees;
    if (word == "DDD ") return kAngleBlanks;
    if (word == "DDD-") return kAngleHyphens;
    return kAngleDms;
}

void tmParameters(BatchRun& run) {
    TransPara& para = run.para;
    nextLine(run, 2);
    para.a = number(run, 1);
    para.f = number(run, 2);
    nextLine(run, 2);
    para.Phi0 = number(run, 1);
    para.Lam0 = number(run, 2);
    nextLine(run, 2);
    para.X0 = number(run, 1);
    para.Y0 = number(run, 2);
    nextLine(run, 1);
    para.S0 = number(run, 1);
    para.Zone = kUserZone;
    run.state.ParaDirty = true;
}

void utmParameters(BatchRun& run) {
    TransPara& para = run.para;
    nextLine(run, 2);
    para.Ua = number(run, 1);
    para.Uf = number(run, 2);
    nextLine(run, 2);
    para.UPhi0 = number(run, 1);
    para.ULam0 = number(run, 2);
    nextLine(run, 2);
    para.UX0 = number(run, 1);
    para.UY0 = number(run, 2);
    nextLine(run, 1);
    para.US0 = number(run, 1);
    para.UZone = kUserUZone;
    run.state.ParaDirty = true;
}

// A line without coordinates selects an origin, and no header is due for it (required).
void utmPointsOrOrigin(BatchRun& run) {
    run.parse(4);
    if (number(run, 3) != 0 || number(run, 4) != 0) {
        ConvertUtmLines(run);
        run.lineHeld = true;
    } else if (number(run, 2) == 123) {
        run.para.UZone = 1;
        run.para.ULam0 = 123;
    } else if (number(run, 2) == 129) {
        run.para.UZone = 2;
        run.para.ULam0 = 129;
    }
}

bool hasParaAt(std::string_view keyLine, std::size_t character) {
    return middleOf(keyLine, character, 4) == "PARA";
}

void points(BatchRun& run, void (*pipeline)(BatchRun&)) {
    pipeline(run);
    run.lineHeld = true;
}

using Action = void (*)(BatchRun& run, std::string_view keyLine);

struct Command {
    std::string_view key;
    Action carryOut;
};

constexpr std::string_view kEndKey = "EN";

constexpr std::array kCommands = {
    Command{"7 ", [](BatchRun& run, std::string_view) { sevenParameters(run); }},
    Command{"7P", [](BatchRun& run, std::string_view) { sevenParameters(run); }},
    Command{"1S", [](BatchRun& run, std::string_view) { firstAdjustment(run); }},
    Command{"1 ", [](BatchRun& run, std::string_view) { firstAdjustment(run); }},
    Command{"CO", [](BatchRun& run, std::string_view) { run.para.CorrFlag = 1; }},
    Command{"NO", [](BatchRun& run, std::string_view) { run.para.CorrFlag = 0; }},
    Command{"ZO", [](BatchRun& run, std::string_view) { zone(run); }},
    Command{"AD",
            [](BatchRun& run, std::string_view) {
                run.para.AddFlag = run.fields().FieldSng(2) > 0 ? 1 : 0;
                run.state.ParaDirty = true;
            }},
    Command{"IN",
            [](BatchRun& run, std::string_view) {
                run.AngleIn = formWord(run) == "DEG " ? kAngleDegrees : kAngleDms;
            }},
    Command{"OU",
            [](BatchRun& run, std::string_view) { run.AngleOut = outputForm(formWord(run)); }},
    Command{"TM",
            [](BatchRun& run, std::string_view keyLine) {
                if (hasParaAt(keyLine, 3) || hasParaAt(keyLine, 4))
                    tmParameters(run);
                else
                    points(run, &ConvertTmLines);
            }},
    Command{"UT",
            [](BatchRun& run, std::string_view keyLine) {
                if (hasParaAt(keyLine, 4) || hasParaAt(keyLine, 5))
                    utmParameters(run);
                else
                    utmPointsOrOrigin(run);
            }},
    Command{"WG", [](BatchRun& run, std::string_view) { points(run, &ConvertWgsLines); }},
    Command{"UG", [](BatchRun& run, std::string_view) { points(run, &ConvertUgsLines); }},
    Command{"DI",
            [](BatchRun& run, std::string_view) {
                writeTablesOnce(run);
                points(run, &RunDistance);
            }},
};

}  // namespace

TransPara runDefaults() {
    return {.Editor = {},
            .dX = 115.8,
            .dY = -474.99,
            .dZ = -674.11,
            .Omega = 1.16,
            .Phi = -2.31,
            .Kappa = -1.63,
            .dS = -6.43,
            .Kind = 1,
            .dPhi = 0,
            .dLam = 0,
            .dH = 0,
            .a = kBesselA,
            .f = kBesselInverseFlattening,
            .Zone = 2,
            .Phi0 = 38,
            .Lam0 = 127,
            .X0 = 500000,
            .Y0 = 200000,
            .S0 = 1,
            .Ua = kBesselA,
            .Uf = kBesselInverseFlattening,
            .UZone = 2,
            .UPhi0 = 0,
            .ULam0 = 129,
            .UX0 = 0,
            .UY0 = 500000,
            .US0 = 0.9996,
            .AddFlag = 1,
            .CorrFlag = 0};
}

void writeTablesOnce(BatchRun& run) {
    if (run.tablesWritten) return;
    PrintResultTables(run.state.points, run.files.out, run.AngleOut, run.para, run.messages);
    run.tablesWritten = true;
}

bool carryOutCommand(BatchRun& run) {
    run.parse(10);
    const std::string keyLine = upperCased(genSub::JoinFields(run.fields(), 1, 2));
    if (keyLine.starts_with(kEndKey)) return false;
    for (const Command& command : kCommands)
        if (keyLine.starts_with(command.key)) {
            command.carryOut(run, keyLine);
            break;
        }
    return true;
}

}  // namespace kelvo
