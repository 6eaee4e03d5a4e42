#include "form/control.h"

#include <algorithm>

#include "common/run_time_fault.h"
#include "common/utf8.h"

namespace kelvo {

namespace {

// Every line end made CR LF.
std::string withLineEnds(std::string_view text) {
    std::string result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool carriageReturn = text[i] == '\r';
        if (!carriageReturn && text[i] != '\n') {
            result += text[i];
            continue;
        }
        if (carriageReturn && text.substr(i + 1).starts_with('\n')) ++i;
        result += "\r\n";
    }
    return result;
}

}  // namespace

void Control::tell(Property property) const {
    if (watcher_) watcher_(property);
}

std::string Control::fullLabel() const {
    std::string text = label().empty() ? name() : label();
    for (const Control* frame = holder_; frame != nullptr; frame = frame->holder_)
        if (frame->kind() == ControlKind::Frame && !frame->caption().empty())
            text.insert(0, frame->caption() + " > ");
    return text;
}

void Control::setEnabled(bool on) {
    if (enabled_ == on) return;
    enabled_ = on;
    tell(Property::Enabled);
}

void Control::setVisible(bool on) {
    if (visible_ == on) return;
    visible_ = on;
    tell(Property::Visible);
}

void Control::setPosition(double left, double top) {
    if (left_ == left && top_ == top) return;
    left_ = left;
    top_ = top;
    tell(Property::Place);
}

void Control::setSize(double width, double height) {
    if (width_ == width && height_ == height) return;
    width_ = width;
    height_ = height;
    tell(Property::Place);
}

void Control::setCaption(std::string_view caption) {
    if (caption_ == caption) return;
    caption_ = caption;
    tell(Property::Caption);
}

void Control::assignText(std::string_view text, bool caretBehind) {
    std::string next = design_.multiLine ? withLineEnds(text) : std::string(text);
    if (next == text_) return;
    text_ = std::move(next);
    selStart_ = caretBehind ? static_cast<int>(characterCount(text_)) : 0;
    selLength_ = 0;
    tell(Property::Text);
    if (onChange) onChange();
}

void Control::setText(std::string_view text) {
    assignText(text, false);
}

void Control::typeText(std::string_view text) {
    assignText(text, true);
}

void Control::setSelection(int start, int length) {
    const int characters = static_cast<int>(characterCount(text_));
    const int first = std::clamp(start, 0, characters);
    const int count = std::clamp(length, 0, characters - first);
    if (selStart_ == first && selLength_ == count) return;
    selStart_ = first;
    selLength_ = count;
    tell(Property::Selection);
}

void Control::switchOn() {
    if (value_) return;
    value_ = true;
    for (Control* other : others_) {
        if (!other->value_) continue;
        other->value_ = false;
        other->tell(Property::Value);
    }
    tell(Property::Value);
    if (onClick) onClick();
}

void Control::setChecked(bool on) {
    if (value_ == on) return;
    value_ = on;
    tell(Property::Value);
    if (onClick) onClick();
}

void Control::setItems(std::vector<std::string> items) {
    items_ = std::move(items);
    index_ = -1;
    tell(Property::Items);
}

void Control::choose(int index) {
    if (index < 0 || static_cast<std::size_t>(index) >= items_.size()) raise(Fault::InvalidCall);
    if (index_ == index) return;
    index_ = index;
    tell(Property::Index);
    if (onClick) onClick();
}

std::string Control::selectedItem() const {
    return index_ < 0 ? std::string() : items_[static_cast<std::size_t>(index_)];
}

MenuEntry& Control::entry(int index) {
    if (index < 0 || index > highestIndex()) raise(Fault::Subscript);
    return entries_[static_cast<std::size_t>(index)];
}

void Control::loadEntry(std::string_view caption) {
    entries_.push_back({.caption = std::string(caption)});
    tell(Property::Items);
}

void Control::unloadEntriesDownTo(int lowest) {
    if (lowest < 0) raise(Fault::Subscript);
    if (static_cast<std::size_t>(lowest) >= entries_.size()) return;
    entries_.resize(static_cast<std::size_t>(lowest));
    tell(Property::Items);
}

void Control::setEntryEnabled(int index, bool on) {
    MenuEntry& changed = entry(index);
    if (changed.enabled == on) return;
    changed.enabled = on;
    tell(Property::Items);
}

void Control::clickEntry(int index) {
    (void)entry(index);
    if (onEntryClick) onEntryClick(index);
}

void Control::click() {
    switch (kind()) {
        case ControlKind::OptionButton:
            switchOn();
            break;
        case ControlKind::CheckBox:
            setChecked(!value_);
            break;
        default:
            if (onClick) onClick();
    }
}

void Control::enter() {
    if (onFocus) onFocus();
}

}  // namespace kelvo
