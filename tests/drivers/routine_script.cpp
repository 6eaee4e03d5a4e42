#include "drivers/routine_script.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

#include "common/number_text.h"
#include "support/escape.h"

namespace kelvo::testing {
namespace {

constexpr std::string_view kBlanks = " \t\r";

void skipBlanks(std::string_view& rest) {
    rest.remove_prefix(std::min(rest.find_first_not_of(kBlanks), rest.size()));
}

// Takes a quoted text off the front, the opening quote included.
std::string takeQuoted(std::string_view& rest) {
    std::size_t end = 1;
    while (end < rest.size() && rest[end] != '"') end += rest[end] == '\\' ? 2U : 1U;
    if (end >= rest.size()) throw ScriptError("a text without its closing quote");
    std::string text = unescaped(rest.substr(1, end - 1));
    rest.remove_prefix(end + 1);
    if (!rest.empty() && kBlanks.find(rest.front()) == std::string_view::npos)
        throw ScriptError("no blank behind a text");
    return text;
}

std::string_view takeWord(std::string_view& rest) {
    const std::string_view word = rest.substr(0, rest.find_first_of(kBlanks));
    rest.remove_prefix(word.size());
    return word;
}

double readPlainNumber(std::string_view word) {
    std::string_view digits = word;
    if (digits.starts_with('+')) digits.remove_prefix(1);
    double value = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    // A number too small for a double is still a number, and is 0.
    const bool tooSmall = error == std::errc::result_out_of_range && !readNumber(digits).tooLarge;
    if (error != std::errc() && !tooSmall) throw ScriptError("no number: " + std::string(word));
    if (end != digits.data() + digits.size() || !std::isfinite(value))
        throw ScriptError("no number: " + std::string(word));
    return value;
}

}  // namespace

const Argument& Arguments::next(const char* wanted) {
    if (atEnd()) throw ScriptError(std::string("an argument is missing: ") + wanted);
    return values_[next_++];
}

double Arguments::number() {
    if (const auto* value = std::get_if<double>(&next("a number"))) return *value;
    throw ScriptError("not a number");
}

int Arguments::integer() {
    const double value = number();
    if (value != std::trunc(value) || value < std::numeric_limits<int>::min() ||
        value > std::numeric_limits<int>::max())
        throw ScriptError("not an integer");
    return static_cast<int>(value);
}

std::string Arguments::text() {
    if (const auto* value = std::get_if<std::string>(&next("a text"))) return *value;
    throw ScriptError("not a text");
}

bool Arguments::boolean() {
    if (const auto* value = std::get_if<bool>(&next("true or false"))) return *value;
    throw ScriptError("neither true nor false");
}

Argument Arguments::numberOrText() {
    const Argument& value = next("a number or a text");
    if (std::holds_alternative<bool>(value)) throw ScriptError("neither a number nor a text");
    return value;
}

void Arguments::requireEnd() const {
    if (!atEnd()) throw ScriptError("too many arguments");
}

bool asksNothing(std::string_view line) {
    skipBlanks(line);
    return line.empty() || line.front() == '#';
}

Call readCall(std::string_view line) {
    skipBlanks(line);
    Call call;
    call.name = takeWord(line);
    if (call.name.empty() || call.name.find('"') != std::string::npos)
        throw ScriptError("no name in front");
    std::vector<Argument> values;
    for (skipBlanks(line); !line.empty(); skipBlanks(line)) {
        if (line.front() == '"') {
            values.emplace_back(takeQuoted(line));
            continue;
        }
        const std::string_view word = takeWord(line);
        if (word == "true" || word == "false")
            values.emplace_back(word == "true");
        else
            values.emplace_back(readPlainNumber(word));
    }
    call.arguments = Arguments(std::move(values));
    return call;
}

void AnswerLine::add(std::string_view result) {
    if (!hasResults_) text_ += " =";
    hasResults_ = true;
    text_ += ' ';
    text_ += result;
}

AnswerLine& AnswerLine::number(double value) {
    std::array<char, 40> digits{};
    const auto [end, error] = std::to_chars(digits.data(), digits.data() + digits.size(), value,
                                            std::chars_format::general, 17);
    add({digits.data(), end});
    return *this;
}

AnswerLine& AnswerLine::integer(long value) {
    add(std::to_string(value));
    return *this;
}

AnswerLine& AnswerLine::text(std::string_view value) {
    add(quoted(value));
    return *this;
}

AnswerLine& AnswerLine::noValue() {
    if (!hasResults_) text_ += " =";
    hasResults_ = true;
    return *this;
}

}  // namespace kelvo::testing
