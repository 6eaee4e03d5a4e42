// What one run of a data file holds while it lasts.
#pragma once

#include <vector>

#include "batch/conversion_state.h"
#include "batch/rows_by_name.h"
#include "batch/run_defaults.h"
#include "batch/run_files.h"
#include "common/disk.h"
#include "common/ports.h"
#include "common/run_time_fault.h"
#include "common/text_file.h"
#include "conversion/definition.h"
#include "geodesy/angle_forms.h"

namespace kelvo {

struct CurrentRun {
    ConversionState& state;
    Disk& disk;
    MessageBoxes& messages;
    TextReader& data;
    RunFiles files;

    TransPara para = runDefaults();
    AngleForm AngleIn = AngleForm::Dms;
    AngleForm AngleOut = AngleForm::Hyphens;
    KnownPoints known{};    // as the last run header measured them; none before
    bool lineHeld = false;  // LineBuf already holds the next line to dispatch
    bool tablesWritten = false;

    RowsByName rowsByName{};

    // The line that a fault names: the one read last or that can't be read, or that of the point
    // in hand.
    long lineNumber = 1;
    std::vector<long> lineOfRow{0};  // the lines that the rows of the point table came from

    [[nodiscard]] FieldStore& fields() const { return state.fields; }
    void readLine() {
        try {
            data.readLine(state.fields.LineBuf);
        } catch (const RuntimeFault&) {
            lineNumber = data.lineInHand();
            throw;
        }
        lineNumber = data.lineInHand();
    }
    void parse(int maxFields) const { genSub::ParseFields(state.fields, maxFields); }
};

}  // namespace kelvo
