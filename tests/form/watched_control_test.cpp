// What a view finds when it hears of a change, and what a handler finds when it runs.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "form/form.h"
#include "support/faults.h"

namespace kelvo {
namespace {

std::string nameOf(Property property) {
    switch (property) {
        case Property::Caption:
            return "caption";
        case Property::Text:
            return "text";
        case Property::Value:
            return "value";
        case Property::Items:
            return "items";
        case Property::Index:
            return "index";
        case Property::Enabled:
            return "enabled";
        case Property::Visible:
            return "visible";
        case Property::Selection:
            return "selection";
        case Property::Place:
            return "place";
    }
    return "?";
}

class WatchedControl : public ::testing::Test {
protected:
    // Notes what a view hears of the control, with what it then reads there.
    void watch(const Control& watched) {
        Control& control = *form.find(watched.name());
        control.watch([this, &control](Property property) {
            heard.push_back(control.name() + ' ' + nameOf(property) + ' ' +
                            read(control, property));
        });
    }
    static std::string read(const Control& control, Property property) {
        switch (property) {
            case Property::Caption:
                return control.caption();
            case Property::Text:
                return control.text() + ' ' + std::to_string(control.selStart()) + '+' +
                       std::to_string(control.selLength());
            case Property::Value:
                return control.value() ? "on" : "off";
            case Property::Items: {
                std::string text = std::to_string(control.items().size());
                if (control.kind() == ControlKind::MenuArray) text.clear();
                for (const MenuEntry& entry : control.entries()) text += entry.enabled ? "+" : "-";
                return text + (control.index() < 0 ? "" : " chosen");
            }
            case Property::Index:
                return std::to_string(control.index());
            case Property::Enabled:
                return control.enabled() ? "yes" : "no";
            case Property::Visible:
                return control.visible() ? "yes" : "no";
            case Property::Selection:
                return std::to_string(control.selStart()) + '+' +
                       std::to_string(control.selLength());
            case Property::Place: {
                const double numbers[] = {control.left(), control.top(), control.width(),
                                          control.height()};
                std::string text;
                for (const double number : numbers)
                    text += (text.empty() ? "" : ",") + std::to_string(static_cast<int>(number));
                return text;
            }
        }
        return {};
    }

    using Heard = std::vector<std::string>;
    Form form;
    Heard heard;
};

TEST_F(WatchedControl, HoldsTheNewValueWhenItsViewHears) {
    Control& box = form.textBox("box", "", "");
    watch(box);
    box.setCaption("새");
    box.setEnabled(false);
    box.setVisible(false);
    box.setPosition(1, 2);
    box.setSize(3, 4);
    box.setText("측량");
    box.setSelection(1, 1);
    EXPECT_EQ(heard,
              (Heard{"box caption 새", "box enabled no", "box visible no", "box place 1,2,0,0",
                     "box place 1,2,3,4", "box text 측량 0+0", "box selection 1+1"}));
    heard.clear();
    box.setEnabled(true);
    box.setVisible(true);
    EXPECT_EQ(heard, (Heard{"box enabled yes", "box visible yes"}));
}

TEST_F(WatchedControl, SaysWhenOneOfTwoNumbersChangesAndNothingOtherwise) {
    Control& box = form.textBox("box", "", "");
    box.setPosition(1, 2);
    box.setSize(3, 4);
    box.setText("12345");
    box.setSelection(1, 2);
    watch(box);
    box.setPosition(1, 2);
    box.setSize(3, 4);
    box.setSelection(1, 2);
    EXPECT_EQ(heard, Heard{});
    box.setPosition(5, 2);
    box.setPosition(5, 6);
    box.setSize(7, 4);
    box.setSize(7, 8);
    box.setSelection(2, 2);
    box.setSelection(2, 3);
    EXPECT_EQ(heard, (Heard{"box place 5,2,3,4", "box place 5,6,3,4", "box place 5,6,7,4",
                            "box place 5,6,7,8", "box selection 2+2", "box selection 2+3"}));
}

TEST_F(WatchedControl, PutsTheCaretInFrontOfATextThatIsSetAndAfterOneThatIsTyped) {
    Control& box = form.textBox("box", "", "");
    box.typeText("측량점");
    EXPECT_EQ(box.selStart(), 3);
    EXPECT_EQ(box.selLength(), 0);
    box.setSelection(0, 2);
    box.typeText("12");
    EXPECT_EQ(box.selStart(), 2);
    EXPECT_EQ(box.selLength(), 0);
    box.setSelection(1, 1);
    box.setText("123");
    EXPECT_EQ(box.selStart(), 0);
    EXPECT_EQ(box.selLength(), 0);
}

TEST_F(WatchedControl, TellsItsViewOfATextBeforeTheChangeHandlerRuns) {
    Control& box = form.textBox("box", "", "");
    watch(box);
    box.onChange = [&] { heard.push_back("change " + box.text()); };
    box.typeText("5");
    EXPECT_EQ(heard, (Heard{"box text 5 1+0", "change 5"}));
    box.setSelection(0, 1);
    heard.clear();
    box.setText("678");
    EXPECT_EQ(heard, (Heard{"box text 678 0+0", "change 678"}));
}

TEST_F(WatchedControl, KeepsTheSelectionAtTheEndOfTheText) {
    Control& box = form.textBox("box", "", "");
    box.setText("123");
    box.setSelection(9, 9);
    EXPECT_EQ(box.selStart(), 3);
    EXPECT_EQ(box.selLength(), 0);
    box.setSelection(3, 0);
    EXPECT_EQ(box.selStart(), 3);
    box.setSelection(0, 3);
    EXPECT_EQ(box.selStart(), 0);
    EXPECT_EQ(box.selLength(), 3);
    box.setSelection(2, -1);
    EXPECT_EQ(box.selStart(), 2);
    EXPECT_EQ(box.selLength(), 0);
}

TEST_F(WatchedControl, OfManyLinesTurnsEachLineEndIntoOne) {
    Control& box = form.multiLineBox("Richtxt", "");
    const std::pair<const char*, const char*> texts[] = {
        {"\n", "\r\n"},       {"\r", "\r\n"},       {"\r\n", "\r\n"},
        {"\n\r", "\r\n\r\n"}, {"a\r", "a\r\n"},     {"a\r\r\n", "a\r\n\r\n"},
        {"\n\n", "\r\n\r\n"}, {"a\r\nb", "a\r\nb"}, {"", ""}};
    for (const auto& [given, kept] : texts) {
        box.setText(given);
        EXPECT_EQ(box.text(), kept);
    }
    Control& line = form.textBox("line", "", "");
    line.setText("a\nb");
    EXPECT_EQ(line.text(), "a\nb");
}

TEST_F(WatchedControl, OfAGroupIsOnAloneAndEachViewHears) {
    Control& one = form.option("one", "", "group", "1");
    Control& two = form.option("two", "", "group", "2");
    Control& three = form.option("three", "", "group", "3");
    Control& apart = form.option("apart", "", "other", "4");
    // A check box has no group, and isn't switched off.
    Control& check = form.check("check", "", "5");
    check.setChecked(true);
    apart.switchOn();
    one.switchOn();
    for (const Control* each : {&one, &two, &three, &apart, &check}) watch(*each);
    two.onClick = [&] { heard.emplace_back("click two"); };
    one.onClick = [&] { heard.emplace_back("click one"); };
    two.switchOn();
    EXPECT_EQ(heard, (Heard{"one value off", "two value on", "click two"}));
    heard.clear();
    three.click();
    EXPECT_EQ(heard, (Heard{"two value off", "three value on"}));
    heard.clear();
    one.click();
    EXPECT_EQ(heard, (Heard{"three value off", "one value on", "click one"}));
    EXPECT_TRUE(apart.value());
    EXPECT_TRUE(check.value());
}

TEST_F(WatchedControl, TellsOfACheckBeforeItsHandlerRuns) {
    Control& check = form.check("check", "", "취소선");
    watch(check);
    check.onClick = [&] { heard.emplace_back("click"); };
    check.setChecked(true);
    check.setChecked(true);
    check.click();
    EXPECT_EQ(heard, (Heard{"check value on", "click", "check value off", "click"}));
}

TEST_F(WatchedControl, OfAListForgetsItsChoiceWithNewItems) {
    Control& list = form.combo("list", "", "", {"7", "8"});
    list.choose(0);
    EXPECT_EQ(list.selectedItem(), "7");
    watch(list);
    list.onClick = [&] { heard.emplace_back("click"); };
    list.choose(1);
    list.choose(1);
    list.setItems({"9", "10", "11"});
    EXPECT_EQ(list.index(), -1);
    EXPECT_EQ(list.selectedItem(), "");
    EXPECT_EQ(heard, (Heard{"list index 1", "click", "list items 3"}));
    EXPECT_EQ(testing::faultOf([&] { list.choose(3); }), 5);
    EXPECT_EQ(testing::faultOf([&] { list.choose(-1); }), 5);
    EXPECT_EQ(testing::faultOf([&] { list.choose(2); }), 0);
    EXPECT_EQ(list.selectedItem(), "11");
}

TEST_F(WatchedControl, OfAMenuTellsOfItsEntries) {
    Control& menu = form.menuArray("menu", "file", {"열기", "-"});
    EXPECT_EQ(menu.highestIndex(), 1);
    EXPECT_EQ(menu.entries()[0].caption, "열기");
    EXPECT_TRUE(menu.entries()[0].enabled);
    watch(menu);
    menu.loadEntry("&1 a.dat");
    menu.setEntryEnabled(2, false);
    menu.setEntryEnabled(2, false);
    menu.setEntryEnabled(1, true);
    EXPECT_EQ(heard, (Heard{"menu items +++", "menu items ++-"}));
    EXPECT_FALSE(menu.entries()[2].enabled);
    EXPECT_TRUE(menu.entries()[1].enabled);
    heard.clear();
    menu.unloadEntriesDownTo(3);
    EXPECT_EQ(heard, Heard{});
    menu.unloadEntriesDownTo(1);
    EXPECT_EQ(heard, (Heard{"menu items +"}));
    menu.unloadEntriesDownTo(0);
    EXPECT_EQ(menu.highestIndex(), -1);
    EXPECT_EQ(testing::faultOf([&] { menu.unloadEntriesDownTo(-1); }), 9);
}

TEST_F(WatchedControl, OfAMenuRefusesEntriesThatItLacks) {
    Control& menu = form.menuArray("menu", "file", {"열기", "-"});
    std::vector<int> clicked;
    menu.clickEntry(0);  // without a handler nothing runs
    menu.onEntryClick = [&](int index) { clicked.push_back(index); };
    for (const int index : {-1, 2}) {
        EXPECT_EQ(testing::faultOf([&] { menu.clickEntry(index); }), 9);
        EXPECT_EQ(testing::faultOf([&] { menu.setEntryEnabled(index, false); }), 9);
    }
    menu.clickEntry(0);
    menu.clickEntry(1);
    EXPECT_EQ(clicked, (std::vector<int>{0, 1}));
}

TEST_F(WatchedControl, IsKnownByTheFramesAroundIt) {
    form.window("frmKelvo");
    form.frame("outer", "frmKelvo", "사용자 타원체");
    form.frame("inner", "outer", "투영원점");
    form.frame("plain", "inner", "");
    Control& box = form.textBox("txtX0", "plain", "Xo", "m");
    EXPECT_EQ(box.fullLabel(), "사용자 타원체 > 투영원점 > Xo");
    EXPECT_EQ(form.button("cmdOne", "inner", "변환").fullLabel(),
              "사용자 타원체 > 투영원점 > cmdOne");
    EXPECT_EQ(form.textBox("alone", "", "높이").fullLabel(), "높이");
    EXPECT_EQ(form.find("frmKelvo")->fullLabel(), "frmKelvo");
}

TEST_F(WatchedControl, RunsWhatBelongsToItsKind) {
    Control& button = form.button("button", "", "변환");
    Control& option = form.option("option", "", "group", "");
    Control& picture = form.picture("picture", "");
    for (Control* each : {&button, &option, &picture}) {
        each->click();  // without a handler nothing runs
        each->enter();
        each->onClick = [this, each] { heard.push_back("click " + each->name()); };
        each->onFocus = [this, each] { heard.push_back("focus " + each->name()); };
    }
    button.click();
    option.click();  // is on already
    picture.click();
    button.enter();
    EXPECT_EQ(heard, (Heard{"click button", "click picture", "focus button"}));
    EXPECT_FALSE(button.value());
    EXPECT_TRUE(option.value());
}

TEST_F(WatchedControl, IsMadeWithTheKindParentAndWordsThatItsMakerGives) {
    const struct {
        const Control& made;
        ControlKind kind;
        const char* parent;
        const char* caption;
        const char* label;
    } all[] = {
        {form.window("w"), ControlKind::Window, "", "", ""},
        {form.frame("f", "w", "틀"), ControlKind::Frame, "w", "틀", ""},
        {form.textBox("t", "f", "상자", "m"), ControlKind::TextBox, "f", "", "상자"},
        {form.multiLineBox("m", "f"), ControlKind::TextBox, "f", "", ""},
        {form.option("o", "f", "g", "단추"), ControlKind::OptionButton, "f", "단추", ""},
        {form.check("c", "f", "표"), ControlKind::CheckBox, "f", "표", ""},
        {form.combo("l", "f", "목록", {}), ControlKind::ComboBox, "f", "", "목록"},
        {form.button("b", "f", "누름"), ControlKind::Button, "f", "누름", ""},
        {form.menu("mf", "파일"), ControlKind::Menu, "", "파일", ""},
        {form.menuItem("mi", "mf", "열기"), ControlKind::MenuItem, "mf", "열기", ""},
        {form.menuArray("ma", "mf", {}), ControlKind::MenuArray, "mf", "", ""},
        {form.label("lb", "f", "글"), ControlKind::Label, "f", "글", ""},
        {form.picture("p", "f"), ControlKind::Picture, "f", "", ""},
    };
    for (const auto& each : all) {
        EXPECT_EQ(each.made.kind(), each.kind) << each.made.name();
        EXPECT_EQ(each.made.parent(), each.parent) << each.made.name();
        EXPECT_EQ(each.made.caption(), each.caption) << each.made.name();
        EXPECT_EQ(each.made.label(), each.label) << each.made.name();
        EXPECT_EQ(each.made.design().multiLine, each.made.name() == "m");
        EXPECT_EQ(each.made.design().unit, each.made.name() == "t" ? "m" : "");
        EXPECT_EQ(each.made.design().group, each.made.name() == "o" ? "g" : "");
        // From the start a control is there, free, empty and off.
        EXPECT_TRUE(each.made.enabled() && each.made.visible()) << each.made.name();
        EXPECT_FALSE(each.made.value()) << each.made.name();
        EXPECT_EQ(each.made.text(), "") << each.made.name();
        EXPECT_EQ(each.made.index(), -1) << each.made.name();
        for (const double number :
             {each.made.left(), each.made.top(), each.made.width(), each.made.height()})
            EXPECT_EQ(number, 0) << each.made.name();
        EXPECT_EQ(each.made.selStart() + each.made.selLength(), 0) << each.made.name();
    }
    const Form& read = form;
    EXPECT_EQ(read.find("t"), form.find("t"));
    EXPECT_EQ(read.find("nobody"), nullptr);
    EXPECT_EQ(testing::faultOf([&] { form.menu("t", ""); }), 5);
}

}  // namespace
}  // namespace kelvo
