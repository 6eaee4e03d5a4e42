// What the check of a data file found: places in a file, each with a sentence.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "batch/check_text.h"
#include "common/run_time_fault.h"

namespace kelvo {

// The rules of the check, in the order of docs/data-file.md, which has a line on each.
enum class FindingKind {
    // lines and words
    WrongEncoding,
    NoCommand,
    OutsideBlock,
    OnlyResembles,
    LastLineLost,
    AfterEnd,
    CutShort,
    NoPoints,
    NoPointAfter,
    FileConflict,
    // parameters
    AdjustmentMoved,
    AdjustmentTooLarge,
    BadValue,
    ShiftFromElsewhere,
    NoSuchGrid,
    ShiftedTwice,
    BadZone,
    BadAdd,
    BadAngleForm,
    NoSuchUtmOrigin,
    PointTakenForParameters,
    OriginOverridden,
    // points
    BadPoint,
    BadAngle,
    OutsideCountry,
    ImpossibleHeight,
    RunStops,
    TooManyPoints,
    WrongJeju,
    UncorrectedHeight,
    // names
    DoubleName,
    UnknownName,
    OtherOrigin,
    SamePoint,
    InNoTable,
    // known points
    NoKnownPoints,
    UnreadKnownPoint,
    ImpossibleKnownPoint,
    FarFromKnownPoints,
};

struct Finding {
    enum class In { DataFile, KnownPoints };  // kelvo.cor

    In in = In::DataFile;
    long line = 1;   // of that file, from 1
    int column = 0;  // in characters, from 1; 0 for the whole line
    int length = 0;  // characters
    FindingKind kind{};
    std::string text;  // a Korean sentence without its place
    // In the known points: the line of the data file that switched the correction on.
    long correctionLine = 0;
};

// The findings of one file as they come.
class Findings {
public:
    explicit Findings(Finding::In in) : in_(in) {}

    void add(FindingKind kind, const TextLine& line, std::string text);
    // On one field of the line.
    void add(FindingKind kind, const TextLine& line, const TextField& field, std::string text);

    [[nodiscard]] const std::vector<Finding>& list() const { return list_; }
    // By their lines; those of one line as they came.
    [[nodiscard]] std::vector<Finding> takeSorted();

private:
    Finding::In in_;
    std::vector<Finding> list_;
};

// That a run ends here, with the number and the text of its fault.
[[nodiscard]] std::string stopText(const RuntimeFault& fault);

// A word of the file as a sentence quotes it: in quotation marks, a long one cut and control
// characters replaced.
[[nodiscard]] std::string quoted(std::string_view word);

}  // namespace kelvo
