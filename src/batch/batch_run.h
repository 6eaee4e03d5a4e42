// What one run of a data file holds while it lasts.
#pragma once

#include "common/disk.h"
#include "common/ports.h"
#include "common/text_file.h"
#include "common/trans_para.h"
#include "correction/run_report.h"
#include "geodesy/angle_forms.h"

namespace kelvo {

// The parameters that hold anew at the start of each run: Bessel, central TM origin, UTM origin
// 129, the recommended shift, 10.405 seconds on, no correction by known points.
[[nodiscard]] TransPara runDefaults();

struct BatchRun {
    ConversionState& state;
    Disk& disk;
    MessageBoxes& messages;
    TextReader& data;
    RunFiles files;

    TransPara para = runDefaults();
    int AngleIn = kAngleDms;
    int AngleOut = kAngleHyphens;
    long lineNumber = 0;    // of the line in hand, as a fault names it
    bool lineHeld = false;  // LineBuf already holds the next line to dispatch
    bool tablesWritten = false;

    // Shorthands for the line and its fields.
    [[nodiscard]] FieldStore& fields() const { return state.fields; }
    void readLine() {
        data.readLine(state.fields.LineBuf);
        lineNumber = data.linesRead();
    }
    void parse(int maxFields) const { genSub::ParseFields(state.fields, maxFields); }
};

// Reads the next line and tells whether it continues a block of lines: it begins with three
// blanks and holds a field. Otherwise, and at the end of the file, the block is over; a line
// that was read stays in LineBuf for the main loop.
[[nodiscard]] bool readContinuationLine(BatchRun& run);

}  // namespace kelvo
