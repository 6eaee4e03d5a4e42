#include "batch/check_finding.h"

#include <algorithm>
#include <utility>

#include "common/utf8.h"

namespace kelvo {

namespace {

constexpr std::size_t kLongestQuote = 24;  // characters
constexpr std::size_t kLongestStop = 300;

// The beginning of a text on one line, its control characters each as a point.
std::string shown(std::string_view text, std::size_t characters) {
    const std::string_view cut = middleOf(text, 1, characters);
    std::string line;
    for (std::string_view rest = cut; !rest.empty();) {
        const Utf8Character next = firstCharacter(rest);
        const bool control = next.code < 0x20 || (next.code >= 0x7F && next.code < 0xA0);
        line += control ? std::string_view("·") : rest.substr(0, next.length);
        rest.remove_prefix(next.length);
    }
    if (cut.size() < text.size()) line += "…";
    return line;
}

}  // namespace

void Findings::add(FindingKind kind, const TextLine& line, std::string text) {
    list_.push_back({.in = in_, .line = line.number, .kind = kind, .text = std::move(text)});
}

void Findings::add(FindingKind kind, const TextLine& line, const TextField& field,
                   std::string text) {
    add(kind, line, std::move(text));
    if (field.empty()) return;
    list_.back().column = static_cast<int>(characterCount(line.text.substr(0, field.at))) + 1;
    list_.back().length = static_cast<int>(characterCount(field.text));
}

std::vector<Finding> Findings::takeSorted() {
    std::stable_sort(list_.begin(), list_.end(), [](const Finding& one, const Finding& other) {
        return one.line < other.line;
    });
    return std::exchange(list_, {});
}

std::string stopText(const RuntimeFault& fault) {
    return "실행이 멈춥니다 (오류 " + std::to_string(fault.number()) +
           "): " + shown(fault.text(), kLongestStop);
}

std::string quoted(std::string_view word) {
    return "\"" + shown(word, kLongestQuote) + "\"";
}

}  // namespace kelvo
