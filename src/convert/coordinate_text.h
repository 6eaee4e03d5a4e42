// A coordinate in delimited text.
#pragma once

#include <string>
#include <string_view>

namespace kelvo {

struct CoordinateRead {
    enum class Outcome { Number, Empty, NoNumber, OutOfRange };
    Outcome outcome = Outcome::Empty;
    double value = 0;

    // Spelled as a number, whether or not a double can hold it.
    [[nodiscard]] bool isSpelled() const {
        return outcome == Outcome::Number || outcome == Outcome::OutOfRange;
    }
};

// An optional sign, digits with at most one point, an optional exponent with e or E, blanks around;
// nothing else. One that is too small for a double is 0.
[[nodiscard]] CoordinateRead readCoordinate(std::string_view text);

// A piece of a file as part of a sentence: at most some 40 bytes, on one line, well-formed.
[[nodiscard]] std::string quotedPiece(std::string_view bytes);

}  // namespace kelvo
