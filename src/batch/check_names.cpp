#include "batch/check_names.h"

#include <cmath>

#include "common/fixed_width.h"
#include "common/letter_case.h"
#include "common/number_text.h"

namespace kelvo {

namespace {

using Kind = FindingKind;

constexpr int kShownColumns = 10;

bool isSameOrigin(const Projection& one, const Projection& other) {
    return one.Lam0 == other.Lam0 && one.Phi0 == other.Phi0 && one.X0 == other.X0 &&
           one.Y0 == other.Y0 && one.S0 == other.S0;
}

// To a thousandth of a second.
std::string originText(const Projection& origin) {
    return generalText(std::round(origin.Lam0 * 1e6) / 1e6) + "도";
}

std::string lineText(long line) {
    return std::to_string(line) + "번째 줄";
}

}  // namespace

void CheckedNames::addPoint(const std::string& name, const TextLine& line, const Projection& origin,
                            Findings& findings) {
    const std::size_t row = rows_.size();
    rows_.push_back({.line = line.number, .origin = origin});
    const auto [first, fresh] = firstOfName_.emplace(upperCased(name), row);
    if (!fresh && !name.empty())
        findings.add(Kind::DoubleName, line,
                     "이름 " + quoted(name) + "이(가) " + lineText(rows_[first->second].line) +
                         "에도 있습니다. DIST는 먼저 나온 점을 씁니다");
    if (genSub::DisplayLen(name) < kShownColumns) return;
    const auto [firstCut, freshCut] =
        firstOfCut_.emplace(genSub::FormatText(name, kShownColumns, genSub::Align::Left), row);
    if (fresh && !freshCut)
        findings.add(Kind::DoubleName, line,
                     "표에는 이름이 10칸까지만 나와 " + lineText(rows_[firstCut->second].line) +
                         "의 점과 구별되지 않습니다: " + quoted(firstCut->first));
}

void CheckedNames::addPair(const TextLine& line, int nameField) {
    pairs_.push_back({.line = line, .nameField = nameField, .pointsBefore = rows_.size()});
}

void CheckedNames::checkPairs(Findings& findings) const {
    for (const Pair& pair : pairs_) checkPair(pair, findings);
}

std::optional<std::size_t> CheckedNames::rowOf(std::string_view name) const {
    const auto found = firstOfName_.find(upperCased(name));
    if (found == firstOfName_.end()) return std::nullopt;
    return found->second;
}

std::optional<std::size_t> CheckedNames::checkName(const Pair& pair, const TextField& name,
                                                   Findings& findings) const {
    const auto row = rowOf(name.text);
    if (row && *row < pair.pointsBefore) return row;
    if (name.empty())
        findings.add(Kind::UnknownName, pair.line, "점의 이름이 두 개 있어야 합니다");
    else if (row)
        findings.add(Kind::UnknownName, pair.line, name,
                     "점 " + quoted(name.text) + "은(는) 이 줄보다 뒤인 " +
                         lineText(rows_[*row].line) + "에 나와 거리를 구하지 못합니다");
    else
        findings.add(Kind::UnknownName, pair.line, name,
                     "점 " + quoted(name.text) + "이(가) 없어 거리를 구하지 못합니다");
    return std::nullopt;
}

void CheckedNames::checkPair(const Pair& pair, Findings& findings) const {
    const LineFields fields(pair.line.text);
    const TextField& first = fields[pair.nameField];
    const TextField& second = fields[pair.nameField + 1];
    const auto from = checkName(pair, first, findings);
    if (first.empty()) return;
    const auto to = checkName(pair, second, findings);
    if (const TextField& third = fields[pair.nameField + 2]; !third.empty() && rowOf(third.text))
        findings.add(Kind::UnknownName, pair.line, third,
                     "DIST는 한 줄에서 이름 두 개만 읽습니다. " + quoted(third.text) +
                         "은(는) 읽지 않습니다");
    if (!from || !to) return;
    if (*from == *to) {
        findings.add(Kind::SamePoint, pair.line, second, "두 이름이 같은 점이어서 거리가 0입니다");
        return;
    }
    const Projection& one = rows_[*from].origin;
    const Projection& other = rows_[*to].origin;
    if (isSameOrigin(one, other)) return;
    findings.add(Kind::OtherOrigin, pair.line,
                 "두 점의 TM 원점이 달라 거리와 방향에 뜻이 없습니다: " + quoted(first.text) + " " +
                     originText(one) + ", " + quoted(second.text) + " " + originText(other));
}

}  // namespace kelvo
