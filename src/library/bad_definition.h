// What is wrong with the texts of a definition.
#pragma once

#include <exception>
#include <string>
#include <utility>

namespace kelvo {

// One fault of a definition, the first that was found. What it says is complete: which text, the
// line where it is one of a line, and why.
class BadDefinition : public std::exception {
public:
    // Line 0 for none.
    BadDefinition(const std::string& text, long line, const std::string& reason)
        : line_(line),
          what_(text + (line > 0 ? " line " + std::to_string(line) : std::string()) + ": " +
                reason) {}
    explicit BadDefinition(std::string what) : what_(std::move(what)) {}

    [[nodiscard]] long line() const noexcept { return line_; }
    [[nodiscard]] const char* what() const noexcept override { return what_.c_str(); }

private:
    long line_ = 0;
    std::string what_;
};

}  // namespace kelvo
