// A control of the form, without a screen: what it shows, and how it reacts.
//
// One plain type serves every kind. A property that a kind doesn't have (the text of a button,
// say) stays at its start. Texts are UTF-8; places and sizes are twips (1/1440 inch).
//
// A handler hangs on a control as a Reaction. A view (a widget, say) hangs on as one watcher,
// hears of each property that changed, and passes on what a person does by typeText, click,
// choose, setChecked and enter. Setting a property to what it already is does nothing at all:
// no reaction, no word to the view.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace kelvo {

enum class ControlKind {
    Window,
    Frame,
    TextBox,
    OptionButton,
    CheckBox,
    ComboBox,
    Button,
    Menu,       // a menu of the menu bar
    MenuItem,   // an entry of a menu; the caption "-" is a separator
    MenuArray,  // entries 0 and up of one menu under one name; they come and go
    Label,
    Picture,
};

// What a view hears of.
enum class Property { Caption, Text, Value, Items, Index, Enabled, Visible, Selection, Place };

struct MenuEntry {
    std::string caption{};  // "&" stands in front of the access key; "-" is a separator
    bool enabled = true;
};

// What a control is from the beginning and for good.
struct ControlDesign {
    ControlKind kind = ControlKind::Label;
    std::string name{};
    std::string parent{};    // name of the frame, menu or window that holds it
    std::string label{};     // the words beside a box, empty if there are none
    std::string unit{};      // the unit that follows a box
    bool multiLine = false;  // a text box of many lines; its line ends are CR LF always
    std::string group{};     // option buttons of one group switch each other off
};

class Control {
public:
    using Reaction = std::function<void()>;

    explicit Control(ControlDesign design) : design_(std::move(design)) {}
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    [[nodiscard]] const ControlDesign& design() const { return design_; }
    [[nodiscard]] ControlKind kind() const { return design_.kind; }
    [[nodiscard]] const std::string& name() const { return design_.name; }
    [[nodiscard]] const std::string& parent() const { return design_.parent; }
    [[nodiscard]] const std::string& label() const { return design_.label; }

    // What a person knows the control by: the captions of the frames around it and its label, or
    // its name where it has none.
    [[nodiscard]] std::string fullLabel() const;

    // The one view of this control; an empty function takes it off.
    void watch(std::function<void(Property)> watcher) { watcher_ = std::move(watcher); }

    // Every kind.
    [[nodiscard]] bool enabled() const { return enabled_; }
    void setEnabled(bool on);
    [[nodiscard]] bool visible() const { return visible_; }  // its own flag, whatever the parent's
    void setVisible(bool on);
    [[nodiscard]] double left() const { return left_; }
    [[nodiscard]] double top() const { return top_; }
    void setPosition(double left, double top);
    [[nodiscard]] double width() const { return width_; }
    [[nodiscard]] double height() const { return height_; }
    void setSize(double width, double height);

    // Button, option, check box, frame, label, menu, menu item, window.
    [[nodiscard]] const std::string& caption() const { return caption_; }
    void setCaption(std::string_view caption);

    // Text box. The change handler runs whoever changes the text. Selection counts characters;
    // a text set by the program puts the caret to the front.
    [[nodiscard]] const std::string& text() const { return text_; }
    void setText(std::string_view text);
    [[nodiscard]] int selStart() const { return selStart_; }
    [[nodiscard]] int selLength() const { return selLength_; }
    // Kept within the text.
    void setSelection(int start, int length);

    // Option button and check box. Switching an option on switches its group's others off and
    // runs its Click handler before it returns; an option is switched off by another one only.
    [[nodiscard]] bool value() const { return value_; }
    void switchOn();
    void setChecked(bool on);

    // Combo box: -1 while nothing is selected. A new selection runs the Click handler; an index
    // outside the entries is fault 5.
    [[nodiscard]] const std::vector<std::string>& items() const { return items_; }
    void setItems(std::vector<std::string> items);
    [[nodiscard]] int index() const { return index_; }
    void choose(int index);
    [[nodiscard]] std::string selectedItem() const;  // empty while nothing is selected

    // Menu array. An index outside the entries is fault 9.
    [[nodiscard]] const std::vector<MenuEntry>& entries() const { return entries_; }
    [[nodiscard]] int highestIndex() const { return static_cast<int>(entries_.size()) - 1; }
    void loadEntry(std::string_view caption);  // adds one at the top
    void unloadEntriesDownTo(int lowest);      // removes the entries from that index on
    void setEntryEnabled(int index, bool on);
    void clickEntry(int index);

    // What a person does. A click works on a disabled or hidden control, too: a view that
    // doesn't offer it is what keeps a person from it.
    void typeText(std::string_view text);  // replaces the text, the caret after it
    void click();                          // button, menu item, picture; an option switches on
    void enter();                          // the control receives the focus

    // What the program does about it. Set by the owner of the handler.
    Reaction onClick;                       // Click; of a combo box: selection changed
    Reaction onChange;                      // the text changed
    Reaction onFocus;                       // the control received the focus
    std::function<void(int)> onEntryClick;  // an entry of the menu array was clicked

private:
    friend class Form;

    void tell(Property property) const;
    void assignText(std::string_view text, bool caretBehind);
    [[nodiscard]] MenuEntry& entry(int index);

    ControlDesign design_;
    const Control* holder_ = nullptr;  // the frame around it
    std::function<void(Property)> watcher_;
    std::vector<Control*> others_;  // the other option buttons of the group

    bool enabled_ = true;
    bool visible_ = true;
    double left_ = 0;
    double top_ = 0;
    double width_ = 0;
    double height_ = 0;
    std::string caption_;
    std::string text_;
    int selStart_ = 0;
    int selLength_ = 0;
    bool value_ = false;
    std::vector<std::string> items_;
    int index_ = -1;
    std::vector<MenuEntry> entries_;
};

}  // namespace kelvo
