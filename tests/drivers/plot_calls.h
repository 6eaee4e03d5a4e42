// The plot object as routine_driver calls it: every operation of clsplot1 by its name.
#pragma once

#include <optional>

#include "common/ports.h"
#include "drivers/routine_script.h"
#include "plot/clsplot1.h"
#include "plot/surface.h"

namespace kelvo::testing {

// One plot object, without a surface until `pinitialize`, and the two surfaces it may get, which
// outlive it.
struct PlotBench {
    PlotBench(MessageBoxes& messages, ProgramStarter& programs, Surface& screenToUse,
              Surface& printerToUse)
        : screen(screenToUse), printer(printerToUse), object(messages, programs, printer) {}

    Surface& screen;
    Surface& printer;
    clsplot1 object;
};

// Carries out a call and answers it; nothing for a name that is no operation of the plot object.
// Raises ScriptError for arguments that can't be read, and whatever fault the operation raises.
[[nodiscard]] std::optional<AnswerLine> callPlot(PlotBench& bench, Call& call);

}  // namespace kelvo::testing
