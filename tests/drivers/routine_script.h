// The language of routine_driver: one call a line, its arguments, and the line that answers it.
#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace kelvo::testing {

// A line, or an argument of it, that can't be read; the driver answers "error|" and the text.
class ScriptError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

using Argument = std::variant<double, std::string, bool>;

// The arguments of one call, taken one after another in the order of the routine's text. Each
// taker raises ScriptError for a missing argument or one of another kind.
class Arguments {
public:
    Arguments() = default;
    explicit Arguments(std::vector<Argument> values) : values_(std::move(values)) {}

    double number();
    int integer();  // a whole number in the range of int
    std::string text();
    bool boolean();
    Argument numberOrText();  // for a routine that takes either

    [[nodiscard]] bool atEnd() const { return next_ == values_.size(); }
    [[nodiscard]] std::size_t left() const { return values_.size() - next_; }
    // ScriptError if an argument is left.
    void requireEnd() const;

private:
    const Argument& next(const char* wanted);

    std::vector<Argument> values_;
    std::size_t next_ = 0;
};

struct Call {
    std::string name;
    Arguments arguments;
};

// True for a line that asks for nothing: empty, blanks only, or with # in front.
[[nodiscard]] bool asksNothing(std::string_view line);

// Reads NAME ARG ARG ...: plain numbers, texts in double quotes (\" \\ \n \r \t inside), true,
// false. Raises ScriptError for a line that can't be read.
[[nodiscard]] Call readCall(std::string_view line);

// NAME = R1 R2 ..., or NAME alone for a routine without a result.
class AnswerLine {
public:
    explicit AnswerLine(std::string name) : text_(std::move(name)) {}

    AnswerLine& number(double value);  // 17 significant digits
    AnswerLine& integer(long value);
    AnswerLine& text(std::string_view value);  // quoted
    AnswerLine& noValue();                     // "NAME =" for a result that is missing

    [[nodiscard]] const std::string& line() const { return text_; }

private:
    void add(std::string_view result);

    std::string text_;
    bool hasResults_ = false;
};

// fault|NUMBER|TEXT and message|TITLE|ICON|BUTTONS|TEXT are written by callers with escaped().

}  // namespace kelvo::testing
