#include "form/form.h"

#include "common/run_time_fault.h"

namespace kelvo {

Control& Form::add(ControlDesign design) {
    if (find(design.name) != nullptr) raise(Fault::InvalidCall, design.name);
    Control& made = controls_.emplace_back(std::move(design));
    byName_.emplace(made.name(), &made);
    made.holder_ = find(made.parent());
    if (made.kind() == ControlKind::OptionButton) {
        for (Control& other : controls_) {
            if (&other == &made || other.kind() != ControlKind::OptionButton) continue;
            if (other.design_.group != made.design_.group) continue;
            other.others_.push_back(&made);
            made.others_.push_back(&other);
        }
    }
    return made;
}

Control& Form::window(std::string_view name) {
    return add({.kind = ControlKind::Window, .name = std::string(name)});
}

Control& Form::frame(std::string_view name, std::string_view parent, std::string_view caption) {
    Control& made =
        add({.kind = ControlKind::Frame, .name = std::string(name), .parent = std::string(parent)});
    made.setCaption(caption);
    return made;
}

Control& Form::textBox(std::string_view name, std::string_view parent, std::string_view label,
                       std::string_view unit) {
    return add({.kind = ControlKind::TextBox,
                .name = std::string(name),
                .parent = std::string(parent),
                .label = std::string(label),
                .unit = std::string(unit)});
}

Control& Form::multiLineBox(std::string_view name, std::string_view parent) {
    return add({.kind = ControlKind::TextBox,
                .name = std::string(name),
                .parent = std::string(parent),
                .multiLine = true});
}

Control& Form::option(std::string_view name, std::string_view parent, std::string_view group,
                      std::string_view caption) {
    Control& made = add({.kind = ControlKind::OptionButton,
                         .name = std::string(name),
                         .parent = std::string(parent),
                         .group = std::string(group)});
    made.setCaption(caption);
    return made;
}

Control& Form::check(std::string_view name, std::string_view parent, std::string_view caption) {
    Control& made = add(
        {.kind = ControlKind::CheckBox, .name = std::string(name), .parent = std::string(parent)});
    made.setCaption(caption);
    return made;
}

Control& Form::combo(std::string_view name, std::string_view parent, std::string_view label,
                     std::vector<std::string> items) {
    Control& made = add({.kind = ControlKind::ComboBox,
                         .name = std::string(name),
                         .parent = std::string(parent),
                         .label = std::string(label)});
    made.setItems(std::move(items));
    return made;
}

Control& Form::button(std::string_view name, std::string_view parent, std::string_view caption) {
    Control& made = add(
        {.kind = ControlKind::Button, .name = std::string(name), .parent = std::string(parent)});
    made.setCaption(caption);
    return made;
}

Control& Form::menu(std::string_view name, std::string_view caption) {
    Control& made = add({.kind = ControlKind::Menu, .name = std::string(name)});
    made.setCaption(caption);
    return made;
}

Control& Form::menuItem(std::string_view name, std::string_view menu, std::string_view caption) {
    Control& made = add(
        {.kind = ControlKind::MenuItem, .name = std::string(name), .parent = std::string(menu)});
    made.setCaption(caption);
    return made;
}

Control& Form::menuArray(std::string_view name, std::string_view menu,
                         const std::vector<std::string>& captions) {
    Control& made = add(
        {.kind = ControlKind::MenuArray, .name = std::string(name), .parent = std::string(menu)});
    for (const std::string& caption : captions) made.loadEntry(caption);
    return made;
}

Control& Form::label(std::string_view name, std::string_view parent, std::string_view caption) {
    Control& made =
        add({.kind = ControlKind::Label, .name = std::string(name), .parent = std::string(parent)});
    made.setCaption(caption);
    return made;
}

Control& Form::picture(std::string_view name, std::string_view parent) {
    return add(
        {.kind = ControlKind::Picture, .name = std::string(name), .parent = std::string(parent)});
}

Control* Form::find(std::string_view name) {
    const auto found = byName_.find(name);
    return found == byName_.end() ? nullptr : found->second;
}

const Control* Form::find(std::string_view name) const {
    const auto found = byName_.find(name);
    return found == byName_.end() ? nullptr : found->second;
}

}  // namespace kelvo
