#include "batch/check_words.h"

#include <algorithm>
#include <string>

#include "common/letter_case.h"
#include "common/number_text.h"
#include "common/utf8.h"

namespace kelvo {

namespace {

using Kind = FindingKind;

// The entry of a command; for a block of parameters that of the points it is made of.
const CommandWord& entryOf(Command command) {
    const auto words = commandWords();
    return *std::find_if(words.begin(), words.end(), [command](const CommandWord& word) {
        return word.command == command || (word.paraAt > 0 && word.withPara == command);
    });
}

// The command as data files write it.
std::string wordOf(Command command) {
    const CommandWord& entry = entryOf(command);
    return std::string(entry.word) + (entry.command == command ? "" : " para");
}

// The first character of a word, which may be a digit, and the letters after it.
std::string_view lettersOf(std::string_view word) {
    const auto isCapital = [](char c) { return c >= 'A' && c <= 'Z'; };
    return {word.begin(), std::find_if_not(word.begin() + 1, word.end(), isCapital)};
}

bool isWordOf(Command command, const std::string& upper) {
    const CommandWord& entry = entryOf(command);
    std::string longest(entry.longest);
    if (entry.command != command) longest += kParaWord;
    return longest.starts_with(lettersOf(upper));
}

bool looksLikeNumber(const TextField& field) {
    return numberOf(field).reads();
}

// A name, then coordinates.
bool looksLikePoint(const LineFields& fields) {
    return looksLikeNumber(fields[2]) && looksLikeNumber(fields[3]) &&
           (numberOf(fields[2]).value != 0 || numberOf(fields[3]).value != 0);
}

std::string upperWord(const LineFields& fields, int n) {
    return upperCased(fields[n].text);
}

bool isOneOf(const std::string& word, std::initializer_list<std::string_view> words) {
    return std::find(words.begin(), words.end(), word) != words.end();
}

bool areNumbers(const LineFields& fields, int first, int last) {
    for (int n = first; n <= last; ++n)
        if (!looksLikeNumber(fields[n])) return false;
    return true;
}

void checkSeven(const TextLine& line, const LineFields& fields, Findings& findings) {
    if (fields[1].text == "7" && looksLikeNumber(fields[2]))
        return findings.add(
            Kind::OnlyResembles, line, fields[1],
            "\"7\" 다음에 빈칸이 있어 7 para 명령으로 읽히고, 다음 세 줄이 그 값이 됩니다");
    const int remark = fields[1].text == "7" ? 3 : 2;
    if (areNumbers(fields, remark, remark + 2))
        findings.add(Kind::BadValue, line, fields[remark],
                     "7 para 줄의 수는 읽지 않습니다. 다음 세 줄이 그 값이 됩니다");
}

void checkInputForm(const TextLine& line, const LineFields& fields, Findings& findings) {
    const std::string word = upperWord(fields, 2);
    if (word == "DEG" || word.starts_with("DDD.M")) return;
    findings.add(Kind::BadAngleForm, line, fields[2].empty() ? fields[1] : fields[2],
                 fields[2].empty() ? "INPUT 뒤에 각도의 형태가 없어 ddd.mmssss로 읽습니다"
                                   : "INPUT의 형태는 deg와 ddd.mmssss뿐입니다. " +
                                         quoted(fields[2].text) + "이면 ddd.mmssss로 읽습니다");
}

void checkOutputForm(const TextLine& line, const LineFields& fields, Findings& findings) {
    const std::string word = upperWord(fields, 2);
    if (isOneOf(word, {"DEG", "DDD"}) || word.starts_with("DDD-") || word.starts_with("DDD.M"))
        return;
    findings.add(Kind::BadAngleForm, line, fields[2].empty() ? fields[1] : fields[2],
                 fields[2].empty()
                     ? "OUTPUT 뒤에 각도의 형태가 없어 ddd.mmssss로 나옵니다"
                     : "OUTPUT의 형태는 deg, ddd mm ss.ss, ddd-mm-ss.ss, ddd.mmssss입니다. " +
                           quoted(fields[2].text) + "이면 ddd.mmssss로 나옵니다");
}

void checkSwitchOn(const TextLine& line, const LineFields& fields, Findings& findings) {
    if (!isOneOf(upperWord(fields, 2), {"OFF", "NO", "0", "안함"})) return;
    findings.add(Kind::OnlyResembles, line, fields[2],
                 "CORRECTION은 뒤의 말과 관계없이 보정을 켭니다. 끄려면 NO CORR라고 쓰십시오");
}

// "No" also heads the column of a list.
void checkSwitchOff(const TextLine& line, const LineFields& fields, bool corrects,
                    Findings& findings) {
    const std::string word = upperWord(fields, 2);
    if (!corrects || word.empty() || word.starts_with("보정") ||
        isWordOf(Command::Correction, word))
        return;
    findings.add(Kind::OnlyResembles, line, fields[1],
                 quoted(fields[1].text) + "은(는) NO CORR 명령으로 읽혀 보정이 꺼집니다");
}

// A point whose name begins with PARA, or values that stand too early.
void checkForPoint(const TextLine& line, const LineFields& fields, Command command,
                   Findings& findings) {
    const int name = upperWord(fields, 2).starts_with(kParaWord) ? 2 : 1;
    if (!areNumbers(fields, name + 1, name + 2)) return;
    findings.add(Kind::PointTakenForParameters, line, fields[name],
                 wordOf(command) +
                     " 줄의 수는 읽지 않습니다. 다음 네 줄이 그 값이 됩니다. 점의 줄이면 이름이 "
                     "PARA로 시작하지 않아야 합니다");
}

}  // namespace

void checkSkippedLine(const TextLine& line, const LineFields& fields, long blockEnd,
                      Findings& findings) {
    if (isRemark(fields)) return;
    if (line.text.starts_with("   "))
        return findings.add(
            Kind::OutsideBlock, line,
            blockEnd > 0
                ? "앞의 블록이 " + std::to_string(blockEnd) + "번째 줄에서 끝나 이 줄은 건너뜁니다"
                : "이어지는 줄이지만 앞에 점이나 DIST의 줄이 없어 건너뜁니다");
    const char first = line.text.front();
    const bool indented = first == ' ' || first == '\t' || firstCharacter(line.text).code == 0x3000;
    if (indented && looksLikePoint(fields))
        return findings.add(
            Kind::OutsideBlock, line,
            "이어지는 줄은 빈칸 세 개 이상으로 시작해야 합니다. 이 줄은 건너뜁니다");
    findings.add(Kind::NoCommand, line, fields[1],
                 "어느 명령도 아니어서 건너뜁니다: " + quoted(fields[1].text) +
                     (looksLikePoint(fields) ? " (점이면 앞에 WGS, UGS, TM, UTM을 쓰십시오)" : ""));
}

void checkCommandWords(const TextLine& line, const LineFields& fields, Command command,
                       bool corrects, Findings& findings) {
    if (!isWordOf(command, upperWord(fields, 1)))
        findings.add(Kind::OnlyResembles, line, fields[1],
                     quoted(fields[1].text) + "은(는) " + wordOf(command) +
                         " 명령으로 읽힙니다. 명령은 첫 두 글자로만 가립니다");
    switch (command) {
        case Command::SevenParameters:
            return checkSeven(line, fields, findings);
        case Command::Input:
            return checkInputForm(line, fields, findings);
        case Command::Output:
            return checkOutputForm(line, fields, findings);
        case Command::Correction:
            return checkSwitchOn(line, fields, findings);
        case Command::NoCorrection:
            return checkSwitchOff(line, fields, corrects, findings);
        case Command::TmParameters:
        case Command::UtmParameters:
            return checkForPoint(line, fields, command, findings);
        default:
            return;
    }
}

}  // namespace kelvo
