// The bench on which routine_driver calls the routines: what they work on, and what they report.
#pragma once

#include <map>
#include <string>
#include <string_view>

#include "common/disk.h"
#include "common/fields.h"
#include "common/ports.h"
#include "drivers/plot_calls.h"
#include "drivers/routine_script.h"
#include "geodesy/datum_shift.h"
#include "support/recording_surface.h"

namespace kelvo::testing {

// Writes each box to standard output as message|TITLE|ICON|BUTTONS|TEXT.
class PrintedMessages final : public MessageBoxes {
public:
    Answer show(const Message& message) override;
};

// Writes start|COMMAND to standard output.
class PrintedStarts final : public ProgramStarter {
public:
    void start(const std::string& command) override;
};

// Writes what a surface was given to standard output.
void printSurfaceLine(const std::string& line);

// What lasts from line to line.
struct RoutineBench {
    PrintedMessages messages;
    PrintedStarts programs;
    PlatformDisk disk;
    FieldStore fields;
    DatumState datum;
    RecordingSurface screen{RecordingSurface::Kind::Screen, printSurfaceLine};
    RecordingSurface printer{RecordingSurface::Kind::Printer, printSurfaceLine};
    PlotBench plot{messages, programs, screen, printer};
};

// One routine by its name: takes its arguments and writes its results after the answer's name.
using Routine = void (*)(RoutineBench& bench, Arguments& arguments, AnswerLine& answer);
using Routines = std::map<std::string_view, Routine>;

[[nodiscard]] const Routines& generalRoutines();
[[nodiscard]] const Routines& geodesyRoutines();

}  // namespace kelvo::testing
