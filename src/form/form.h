// The controls of one window, by name, in the order in which they were made.
//
// A panel declares its controls as references made here; a view walks over controls() and makes
// one widget for each, inside the widget of its parent.
#pragma once

#include <deque>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "form/control.h"

namespace kelvo {

class Form {
public:
    Form() = default;
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;

    // Each makes a control; its address stays the same as long as the form lives. A name can be
    // given once (fault 5 otherwise).
    Control& window(std::string_view name);
    Control& frame(std::string_view name, std::string_view parent, std::string_view caption);
    Control& textBox(std::string_view name, std::string_view parent, std::string_view label,
                     std::string_view unit = {});
    Control& multiLineBox(std::string_view name, std::string_view parent);
    Control& option(std::string_view name, std::string_view parent, std::string_view group,
                    std::string_view caption);
    Control& check(std::string_view name, std::string_view parent, std::string_view caption);
    Control& combo(std::string_view name, std::string_view parent, std::string_view label,
                   std::vector<std::string> items = {});
    Control& button(std::string_view name, std::string_view parent, std::string_view caption);
    Control& menu(std::string_view name, std::string_view caption);
    Control& menuItem(std::string_view name, std::string_view menu, std::string_view caption);
    Control& menuArray(std::string_view name, std::string_view menu,
                       const std::vector<std::string>& captions);
    Control& label(std::string_view name, std::string_view parent, std::string_view caption);
    Control& picture(std::string_view name, std::string_view parent);

    // Null if there is none of that name.
    [[nodiscard]] Control* find(std::string_view name);
    [[nodiscard]] const Control* find(std::string_view name) const;

    [[nodiscard]] std::deque<Control>& controls() { return controls_; }
    [[nodiscard]] const std::deque<Control>& controls() const { return controls_; }

private:
    Control& add(ControlDesign design);

    std::deque<Control> controls_;
    std::map<std::string, Control*, std::less<>> byName_;
};

}  // namespace kelvo
