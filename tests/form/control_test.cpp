#include "form/control.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "common/run_time_fault.h"
#include "form/form.h"

namespace kelvo {
namespace {

class Controls : public ::testing::Test {
protected:
    // Notes what a control tells its view.
    void watch(Control& control) {
        control.watch([this](Property property) { told.push_back(property); });
    }

    Form form;
    std::vector<Property> told;
    std::vector<std::string> ran;
};

TEST_F(Controls, AreFoundByName) {
    Control& box = form.textBox("txtdX", "Frame4", "dX", "m");
    EXPECT_EQ(form.find("txtdX"), &box);
    EXPECT_EQ(form.find("txtdx"), nullptr);
    EXPECT_EQ(box.parent(), "Frame4");
    EXPECT_EQ(box.label(), "dX");
    EXPECT_EQ(box.design().unit, "m");
}

TEST_F(Controls, TakeANameOnlyOnce) {
    form.button("cmdSave", "frmeFile", "저장");
    EXPECT_THROW(form.button("cmdSave", "frmeFile", "저장"), RuntimeFault);
}

TEST_F(Controls, KeepTheOrderInWhichTheyWereMade) {
    form.frame("Frame5", "frmeOne", "사용자 타원체");
    form.frame("Frame1", "Frame5", "타원체");
    ASSERT_EQ(form.controls().size(), 2U);
    EXPECT_EQ(form.controls()[1].name(), "Frame1");
}

TEST_F(Controls, TellTheirViewOfEachChangeOnce) {
    Control& button = form.button("cmdShow", "frmeFile", "수치보기");
    watch(button);
    button.setCaption("그림보기");
    button.setEnabled(false);
    button.setVisible(false);
    button.setPosition(300, 400);
    const std::vector<Property> expected{Property::Caption, Property::Enabled, Property::Visible,
                                         Property::Place};
    EXPECT_EQ(told, expected);
}

TEST_F(Controls, SayNothingWhenAValueThatStandsIsSetAgain) {
    Control& button = form.button("cmdShow", "frmeFile", "수치보기");
    watch(button);
    button.setCaption("수치보기");
    button.setEnabled(true);
    button.setVisible(true);
    button.setPosition(0, 0);
    EXPECT_TRUE(told.empty());
}

TEST_F(Controls, RunTheChangeHandlerWhoeverChangesTheText) {
    Control& box = form.textBox("txtdX", "Frame4", "dX");
    box.onChange = [&] { ran.push_back(box.text()); };
    box.setText("1");
    box.typeText("2");
    EXPECT_EQ(ran, (std::vector<std::string>{"1", "2"}));
}

TEST_F(Controls, TakeATextThatStandsAlreadyForNoChange) {
    Control& box = form.textBox("txtdX", "Frame4", "dX");
    box.setText("115.8");
    box.onChange = [&] { ran.emplace_back("change"); };
    watch(box);
    box.setText("115.8");
    box.typeText("115.8");
    EXPECT_TRUE(ran.empty());
    EXPECT_TRUE(told.empty());
}

TEST_F(Controls, KeepTheSelectionWithinTheText) {
    Control& box = form.textBox("txtName", "frmeOne", "");
    box.setText("측량점");
    box.setSelection(1, 99);
    EXPECT_EQ(box.selStart(), 1);
    EXPECT_EQ(box.selLength(), 2);
    box.setSelection(-5, -1);
    EXPECT_EQ(box.selStart(), 0);
    EXPECT_EQ(box.selLength(), 0);
}

TEST_F(Controls, OfManyLinesHoldEveryLineEndAsCrLf) {
    Control& box = form.multiLineBox("Richtxt", "frmeFile");
    box.typeText("a\nb\rc\r\nd");
    EXPECT_EQ(box.text(), "a\r\nb\r\nc\r\nd");
}

TEST_F(Controls, SwitchTheOthersOfTheirGroupOffBeforeTheHandlerRuns) {
    Control& west = form.option("optWest", "Frame6", "zone", "서부");
    Control& center = form.option("optCenter", "Frame6", "zone", "중부");
    Control& add = form.option("optAdd", "Frame7", "add", "가산함");
    west.switchOn();
    add.switchOn();
    bool westWasOff = false;
    center.onClick = [&] { westWasOff = !west.value() && center.value(); };
    center.click();
    EXPECT_TRUE(westWasOff);
    EXPECT_TRUE(center.value());
    EXPECT_TRUE(add.value());
}

TEST_F(Controls, RunNothingForAnOptionThatIsOnAlready) {
    Control& option = form.option("optBursa", "Frame4", "kind", "Bursa");
    option.onClick = [&] { ran.emplace_back("click"); };
    option.click();
    option.click();
    option.switchOn();
    EXPECT_EQ(ran.size(), 1U);
}

TEST_F(Controls, RunNoHandlerOfAnOptionThatIsSwitchedOff) {
    Control& one = form.option("optAuto", "frmePcfg", "scale", "자동축척");
    Control& other = form.option("optManual", "frmePcfg", "scale", "수동축척");
    one.switchOn();
    one.onClick = [&] { ran.emplace_back("click"); };
    other.switchOn();
    EXPECT_FALSE(one.value());
    EXPECT_TRUE(ran.empty());
}

TEST_F(Controls, MayBeClickedWhileDisabledOrHidden) {
    Control& button = form.button("cmdShow", "frmeFile", "수치보기");
    button.onClick = [&] { ran.emplace_back("click"); };
    button.setEnabled(false);
    button.setVisible(false);
    button.click();
    EXPECT_EQ(ran.size(), 1U);
}

TEST_F(Controls, RunTheHandlerOfAListOnANewSelectionOnly) {
    Control& list = form.combo("cmbSize", "frmePrintMode", "", {"7", "8"});
    list.onClick = [&] { ran.push_back(list.selectedItem()); };
    EXPECT_EQ(list.index(), -1);
    EXPECT_EQ(list.selectedItem(), "");
    list.choose(1);
    list.choose(1);
    EXPECT_EQ(ran, std::vector<std::string>{"8"});
}

TEST_F(Controls, RefuseAnEntryThatAListDoesNotHave) {
    Control& list = form.combo("cmbSize", "frmePrintMode", "", {"7", "8"});
    EXPECT_THROW(list.choose(2), RuntimeFault);
    EXPECT_THROW(list.choose(-1), RuntimeFault);
    EXPECT_EQ(list.index(), -1);
}

TEST_F(Controls, ChangeACheckBoxByEachClick) {
    Control& box = form.check("chk1", "frmePrintMode", "취소선");
    box.click();
    EXPECT_TRUE(box.value());
    box.click();
    EXPECT_FALSE(box.value());
}

TEST_F(Controls, LoadAndUnloadTheEntriesOfAMenu) {
    Control& menu = form.menuArray("mnuFileItem", "mnuFile", {"새파일 열기", "-"});
    menu.loadEntry("&1 a.dat");
    EXPECT_EQ(menu.highestIndex(), 2);
    menu.unloadEntriesDownTo(2);
    EXPECT_EQ(menu.highestIndex(), 1);
    menu.unloadEntriesDownTo(7);
    EXPECT_EQ(menu.highestIndex(), 1);
    EXPECT_THROW(menu.setEntryEnabled(2, true), RuntimeFault);
    EXPECT_THROW(menu.clickEntry(-1), RuntimeFault);
}

TEST_F(Controls, HandTheIndexOfAClickedEntryToTheHandler) {
    Control& menu = form.menuArray("mnuFileItem", "mnuFile", {"새파일 열기", "-"});
    int clicked = -1;
    menu.onEntryClick = [&](int index) { clicked = index; };
    menu.clickEntry(1);
    EXPECT_EQ(clicked, 1);
}

TEST_F(Controls, OfTwoFormsDoNotTouchEachOther) {
    Form other;
    Control& one = form.option("optAdd", "Frame7", "add", "가산함");
    Control& two = other.option("optNotAdd", "Frame7", "add", "가산안함");
    one.switchOn();
    two.switchOn();
    EXPECT_TRUE(one.value());
    EXPECT_TRUE(two.value());
}

}  // namespace
}  // namespace kelvo
