// A batch run: a data file in, its result file and the correction detail out.
#pragma once

#include <string>

#include "batch/conversion_state.h"
#include "common/disk.h"
#include "common/ports.h"

namespace kelvo {

// Where a run finds and leaves its files.
struct RunPlaces {
    std::string dataFile;  // the result file stands beside it, with the ending .out
    std::string detPath;   // kelvo.det
    std::string CorPath;   // kelvo.cor
};

// What a run asks of the screen; a shell has none.
class RunView {
public:
    virtual ~RunView() = default;
    virtual void runBegins() {}     // the one-point panel goes out of the way
    virtual void detailIsOpen() {}  // from here on a fault, too, leaves a detail file of this run
    // A box is about to be shown; the line of the data file that it is about counts from 1.
    virtual void messageComes(long /*line*/, const std::string& /*text*/) {}
    virtual void showResult() {}  // the result file comes into the viewer
};

// The name of the result file of a data file.
[[nodiscard]] std::string resultFileOf(const std::string& dataFile);

// Runs the data file. Every fault of files and arithmetic ends it, reports standing as far as
// they were written, except a failure to show the result, which is shown in a message.
void RunBatch(ConversionState& state, const RunPlaces& places, RunView& view, Disk& disk,
              MessageBoxes& messages);

}  // namespace kelvo
