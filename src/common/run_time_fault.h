// Run-time faults: the one exception type of the program.
#pragma once

#include <exception>
#include <string>
#include <string_view>

namespace kelvo {

// The numbers by which a fault is known to the user and to the few guards that look at it.
enum class Fault : int {
    InvalidCall = 5,
    Overflow = 6,  // a value beyond its type, an infinity, and 0/0
    Subscript = 9,
    DivisionByZero = 11,
    TypeMismatch = 13,
    FileNotFound = 53,
    FileAlreadyOpen = 55,
    DiskFull = 61,
    InputPastEnd = 62,
    PermissionDenied = 70,
    DiskNotReady = 71,
    PathFileAccess = 75,
    PathNotFound = 76,
    DialogCancelled = 32755,
};

// A failure that ends the operation, and the program where no guard stands in its way.
// The text says in Korean what went wrong; callers that know more of the place (file and line,
// point, routine) add it on the way up.
class RuntimeFault : public std::exception {
public:
    RuntimeFault(Fault fault, std::string text);

    [[nodiscard]] Fault fault() const noexcept { return fault_; }
    [[nodiscard]] int number() const noexcept { return static_cast<int>(fault_); }
    [[nodiscard]] const std::string& text() const noexcept { return text_; }
    [[nodiscard]] const char* what() const noexcept override { return text_.c_str(); }

    // Puts `place` in front of the text, as "place: text".
    void addPlace(std::string_view place);

private:
    Fault fault_;
    std::string text_;
};

// The plain Korean sentence for a fault of which nothing more is known.
[[nodiscard]] std::string_view faultSentence(Fault fault);

// Throws RuntimeFault. An empty text stands for faultSentence(fault).
[[noreturn]] void raise(Fault fault, std::string_view text = {});

}  // namespace kelvo
