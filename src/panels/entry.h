// Between the text of a box and the arithmetic. There is no check beyond this (required): no
// range, no form of an angle; a box counts as far as it can be read.
#pragma once

#include <string>
#include <vector>

#include "common/ports.h"
#include "form/control.h"

namespace kelvo {

// Selects the whole text of a box, so that typing replaces it. For receiving the focus.
void r(Control& Box);

// The number at the front of a text, 0 if there is none. A number that a double can't hold is
// shown in a message box and counts as 0.
[[nodiscard]] double v(const std::string& text, MessageBoxes& messages);

// The strict way from a box to a number, which doesn't forgive: the whole text, blanks at its
// ends allowed. Fault 13 for a text that is no number, 6 for one out of range; the fault names
// the box by its label.
[[nodiscard]] double strictNumberOf(const Control& Box);

// v for the boxes of one click: a box that is read twice is reported once, as long as its text
// stays the same.
class BoxReader {
public:
    explicit BoxReader(MessageBoxes& messages) : messages_(messages) {}

    [[nodiscard]] double operator()(const Control& Box);

private:
    struct Reading {
        const Control* box = nullptr;
        std::string text;
        double value = 0;
    };

    MessageBoxes& messages_;
    std::vector<Reading> readings_;
};

}  // namespace kelvo
