#include "batch/check_run.h"

#include <algorithm>
#include <utility>

#include "batch/check_encoding.h"
#include "batch/check_parameters.h"
#include "batch/check_words.h"
#include "batch/continuation_lines.h"
#include "batch/parameter_commands.h"
#include "batch/run_commands.h"
#include "batch/sample_data.h"
#include "common/letter_case.h"
#include "common/run_time_fault.h"

namespace kelvo {

namespace {

using Kind = FindingKind;

}  // namespace

CheckedRun::CheckedRun(std::string_view text, std::span<const TextLine> lines,
                       const KnownPointsFile& known)
    : text_(text), lines_(lines), knownPoints_(known) {}

void CheckedRun::follow() {
    if (lines_.empty()) {
        data_.add(Kind::NoPoints, {}, "빈 파일이어서 실행이 멈춥니다 (오류 62)");
        return;
    }
    const WrongEncoding wrong = wrongEncoding(text_);
    if (!wrong.text.empty()) data_.add(Kind::WrongEncoding, lines_.front(), wrong.text);
    if (!wrong.hidesCommands) followLines();
}

std::vector<Finding> CheckedRun::takeFindings() {
    std::vector<Finding> all = data_.takeSorted();
    for (Finding& finding : known_.takeSorted()) {
        finding.correctionLine = correction_.number;
        all.push_back(std::move(finding));
    }
    return all;
}

bool CheckedRun::nextLine() {
    if (atEnd()) return false;
    ++read_;
    return true;
}

bool CheckedRun::readContinuation() {
    if (!nextLine()) {
        lastTaken_ = true;
        return false;
    }
    if (isContinuationLine(lineInHand().text)) return true;
    blockEnd_ = lineInHand().number;
    return false;
}

void CheckedRun::followLines() {
    static_cast<void>(nextLine());
    while (!atEnd()) {
        held_ = false;
        if (!carryOut() || stopped_) break;
        // Only a command that reads further lines can have come to the end.
        if (!held_ && !nextLine()) addCutShort();
    }
    names_.checkPairs(data_);
    addInNoTable();
    checkEnd();
}

bool CheckedRun::carryOut() {
    command_ = lineInHand();
    const LineFields fields(command_.text);
    fields_.LineBuf.assign(command_.text);
    const auto command = commandOf(upperCased(genSub::JoinFields(fields_, 1, 2)));
    if (!command) {
        checkSkippedLine(command_, fields, blockEnd_, data_);
        return true;
    }
    checkCommandWords(command_, fields, *command, para_.CorrFlag != Flag::Off, data_);
    switch (*command) {
        case Command::Input:
            AngleIn_ = inputFormOf(fields_);
            idle_.push_back(command_);
            break;
        case Command::Output:
            break;
        case Command::TmPoints:
            points(System::Tm);
            break;
        case Command::UtmPointsOrOrigin:
            utmPointsOrOrigin(fields);
            break;
        case Command::WgsPoints:
            points(System::Wgs);
            break;
        case Command::UserPoints:
            points(System::User);
            break;
        case Command::Distance:
            distances();
            break;
        case Command::End:
            end_ = command_.number;
            return false;
        default:
            changeParametersBy(*command, fields);
            break;
    }
    return true;
}

void CheckedRun::changeParametersBy(Command command, const LineFields& fields) {
    std::vector<TextLine> values;
    ParameterLines lines{.fields = fields_, .readLine = [&] {
                             if (!nextLine()) raise(Fault::InputPastEnd);
                             values.push_back(lineInHand());
                             fields_.LineBuf.assign(lineInHand().text);
                         }};
    try {
        if (changeParameters(para_, command, lines)) ParaDirty_ = true;
    } catch (const RuntimeFault& fault) {
        if (fault.fault() == Fault::InputPastEnd) return addCutShort();
        stopped_ = true;
        return data_.add(Kind::RunStops, command_, fields[2], stopText(fault));
    }
    takeParameters(command, fields, values);
}

void CheckedRun::takeParameters(Command command, const LineFields& fields,
                                std::span<const TextLine> values) {
    checkValueLines(command, values, data_);
    checkParameters(command_, fields, command, para_, data_);
    if (command == Command::Zone) origins_.afterZone(command_, para_);
    if (command == Command::TmParameters) origins_.afterTmParameters(command_);
    if (command == Command::UtmParameters) origins_.afterUtmOrigin(command_, para_);
    if (command == Command::Correction) correction_ = command_;
    idle_.push_back(command_);
}

void CheckedRun::utmPointsOrOrigin(const LineFields& fields) {
    genSub::ParseFields(fields_, 4);
    if (fields_.FieldNum(3) != 0 || fields_.FieldNum(4) != 0) return points(System::Utm);
    if (!selectUtmOrigin(para_, fields_.FieldNum(2)))
        return addNoSuchUtmOrigin(command_, fields, data_);
    origins_.afterUtmOrigin(command_, para_);
    idle_.push_back(command_);
}

void CheckedRun::addCutShort() {
    data_.add(Kind::CutShort, command_,
              "파일이 이 명령의 값들에서 끝나 실행이 멈춥니다 (오류 62). 값들 뒤에 end와 빈 줄을 "
              "두십시오");
    stopped_ = true;
}

void CheckedRun::distances() {
    tablesWritten_ = true;
    int nameField = 2;  // the keyword stands in front on the first line only
    do {
        names_.addPair(lineInHand(), nameField);
        nameField = 1;
    } while (readContinuation());
    held_ = true;
}

void CheckedRun::addInNoTable() {
    if (inNoTable_ == 0) return;
    data_.add(Kind::InNoTable, firstInNoTable_,
              "첫 DIST 뒤에 있는 점 " + std::to_string(inNoTable_) +
                  "개는 어느 표에도 나오지 않습니다. 점들을 모두 DIST 앞에 쓰십시오");
}

void CheckedRun::checkEnd() {
    if (pointCount_ == 0 && !stopped_)
        data_.add(Kind::NoPoints, lines_[end_ > 0 ? static_cast<std::size_t>(end_) - 1 : read_ - 1],
                  "여기까지 변환할 점이 하나도 없습니다");
    if (pointCount_ > 0)
        for (const TextLine& line : idle_)
            data_.add(Kind::NoPointAfter, line, "이 줄 뒤에 점이 없어 아무것도 바뀌지 않습니다");
    if (end_ > 0) return checkAfterEnd();
    if (stopped_ || lastTaken_) return;
    const TextLine& last = lines_.back();
    const LineFields fields(last.text);
    if (isRemark(fields)) return;
    fields_.LineBuf.assign(last.text);
    if (commandOf(upperCased(genSub::JoinFields(fields_, 1, 2))) == Command::End) return;
    data_.add(Kind::LastLineLost, last,
              "파일의 마지막 줄이어서 실행되지 않습니다. 뒤에 end와 빈 줄을 두십시오");
}

void CheckedRun::checkAfterEnd() {
    std::span<const TextLine> rest = lines_.subspan(static_cast<std::size_t>(end_));
    // The manual stands after the points in every file that the program has made.
    const auto manual = sampleManual();
    if (std::equal(manual.begin(), manual.end(), rest.begin(),
                   rest.begin() + static_cast<std::ptrdiff_t>(std::min(rest.size(), manual.size())),
                   [](std::string_view text, const TextLine& line) { return line.text == text; }))
        rest = rest.subspan(manual.size());
    for (const TextLine& line : rest) {
        if (isRemark(LineFields(line.text))) continue;
        data_.add(Kind::AfterEnd, line,
                  std::to_string(end_) + "번째 줄의 end 뒤여서 여기부터는 읽지 않습니다");
        return;
    }
}

}  // namespace kelvo
