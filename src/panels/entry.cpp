#include "panels/entry.h"

#include <algorithm>

#include "common/number_text.h"
#include "common/run_time_fault.h"
#include "common/utf8.h"

namespace kelvo {

void r(Control& Box) {
    Box.setSelection(0, static_cast<int>(characterCount(Box.text())));
}

double v(const std::string& text, MessageBoxes& messages) {
    const NumberRead number = readNumber(text);
    if (number.tooLarge)
        messages.tell("입력항 " + text + " 에 오류가 있습니다. 수정후 다시 하십시오");
    return number.value;
}

double strictNumberOf(const Control& Box) {
    try {
        return strictNumber(Box.text());
    } catch (RuntimeFault& fault) {
        fault.addPlace(Box.fullLabel());
        throw;
    }
}

double BoxReader::operator()(const Control& Box) {
    const auto found = std::find_if(readings_.begin(), readings_.end(), [&](const Reading& done) {
        return done.box == &Box && done.text == Box.text();
    });
    if (found != readings_.end()) return found->value;
    const double value = v(Box.text(), messages_);
    readings_.push_back({.box = &Box, .text = Box.text(), .value = value});
    return value;
}

}  // namespace kelvo
