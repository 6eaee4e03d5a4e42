// A run of a data file as the check follows it: the same lines in the same order and the same
// points, without reports, and without an end at the first fault.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "batch/check_data_file.h"
#include "batch/check_known_points.h"
#include "batch/check_names.h"
#include "batch/check_origins.h"
#include "batch/check_points.h"
#include "batch/language.h"
#include "batch/run_defaults.h"
#include "batch/trans_para.h"
#include "common/fields.h"
#include "conversion/converter.h"

namespace kelvo {

class CheckedRun {
public:
    // `lines` are those of `text`; both, and `known`, outlive the run.
    CheckedRun(std::string_view text, std::span<const TextLine> lines,
               const KnownPointsFile& known);

    // Follows the whole file, once.
    void follow();

    // Those of the data file by their lines, then those of the known points.
    [[nodiscard]] std::vector<Finding> takeFindings();

private:
    // Reading, as a run reads: the end is looked at before a line is carried out.
    [[nodiscard]] bool atEnd() const { return read_ == lines_.size(); }
    [[nodiscard]] const TextLine& lineInHand() const { return lines_[read_ - 1]; }
    [[nodiscard]] bool nextLine();
    [[nodiscard]] bool readContinuation();
    void followLines();

    // False where the run ends.
    [[nodiscard]] bool carryOut();
    void changeParametersBy(Command command, const LineFields& fields);
    void takeParameters(Command command, const LineFields& fields,
                        std::span<const TextLine> values);
    void utmPointsOrOrigin(const LineFields& fields);
    void addCutShort();

    // Blocks, which leave the line after them in hand.
    void distances();
    void points(System system);
    void headerIfDue();
    [[nodiscard]] Definition definition() const;
    void convertBlock(const Converter& converter, std::span<const PointLine> block);
    void takePoint(const PointLine& point, const ReadPoint& read, const ConvertedPoint& converted,
                   const PointOutcome* outcome);
    void checkConverted(const PointLine& point, const ReadPoint& read,
                        const ConvertedPoint& converted);
    void checkHeight(const PointLine& point, const ReadPoint& read);
    void addStop(const PointLine& point, const PointOutcome& outcome);

    void checkEnd();
    void checkAfterEnd();
    void addInNoTable();

    std::string_view text_;
    std::span<const TextLine> lines_;
    std::size_t read_ = 0;    // how many of them
    bool held_ = false;       // the line in hand is still to be carried out
    bool lastTaken_ = false;  // a block took the last line of the file
    bool stopped_ = false;    // by a fault after which nothing is read

    FieldStore fields_;
    TransPara para_ = runDefaults();
    AngleForm AngleIn_ = AngleForm::Dms;
    DatumState datum_;
    bool ParaDirty_ = true;
    bool tablesWritten_ = false;

    Findings data_{Finding::In::DataFile};
    Findings known_{Finding::In::KnownPoints};
    CheckedKnownPoints knownPoints_;
    CheckedNames names_;
    CheckedOrigins origins_;

    TextLine command_;            // the line of the command in hand
    TextLine correction_;         // the line that switched the correction on
    std::vector<TextLine> idle_;  // parameter lines since the last point
    long blockEnd_ = 0;           // the line that ended the last block
    long end_ = 0;                // the line of `end`
    std::size_t pointCount_ = 0;
    TextLine firstInNoTable_;  // the first point after the tables
    std::size_t inNoTable_ = 0;
    bool saidForward_ = false;  // of uncorrected heights
    bool saidBackward_ = false;
};

}  // namespace kelvo
