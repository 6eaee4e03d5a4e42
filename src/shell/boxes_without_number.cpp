#include "shell/boxes_without_number.h"

#include <algorithm>

#include "common/run_time_fault.h"
#include "panels/entry.h"

namespace kelvo {

namespace {

bool liesIn(const Form& form, const Control& control,
            std::initializer_list<std::string_view> frames) {
    for (const Control* at = &control; at != nullptr; at = form.find(at->parent())) {
        if (std::find(frames.begin(), frames.end(), at->parent()) != frames.end()) return true;
    }
    return false;
}

bool holdsNumber(const Control& box) {
    try {
        static_cast<void>(strictNumberOf(box));
        return true;
    } catch (const RuntimeFault&) {
        return false;
    }
}

}  // namespace

Control* firstBoxWithoutNumber(Form& form, std::initializer_list<std::string_view> frames) {
    for (Control& control : form.controls()) {
        const bool read =
            control.kind() == ControlKind::TextBox && control.name().starts_with("txt");
        if (read && liesIn(form, control, frames) && !holdsNumber(control)) return &control;
    }
    return nullptr;
}

}  // namespace kelvo
