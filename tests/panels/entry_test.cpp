#include "panels/entry.h"

#include "panels/panel_bench.h"

namespace kelvo {
namespace {

using testing::faultOf;
using testing::PanelBench;

class Entry : public PanelBench {};

TEST_F(Entry, SelectsTheWholeTextOfABox) {
    type("txtdX", "115.8");
    at("txtdX").enter();
    EXPECT_EQ(at("txtdX").selStart(), 0);
    EXPECT_EQ(at("txtdX").selLength(), 5);
}

TEST_F(Entry, SelectsNothingInAnEmptyBox) {
    type("txtdX", "");
    at("txtdX").enter();
    EXPECT_EQ(at("txtdX").selStart(), 0);
    EXPECT_EQ(at("txtdX").selLength(), 0);
}

TEST_F(Entry, LeavesTheCaretAloneInTheFirstAdjustment) {
    for (const char* name : {"txtdPhi", "txtdLam", "txtdH"}) {
        type(name, "1.25");
        at(name).setSelection(2, 1);
        at(name).enter();
        EXPECT_EQ(at(name).selStart(), 2) << name;
        EXPECT_EQ(at(name).selLength(), 1) << name;
    }
}

TEST_F(Entry, SelectsInEveryOtherBoxOfParametersAndCoordinates) {
    for (const char* name :
         {"txtdX",      "txtdY",      "txtdZ",     "txtOmega",   "txtPhi",     "txtKappa",
          "txtdS",      "txta",       "txtf",      "txtPhi0",    "txtLam0",    "txtX0",
          "txtY0",      "txtS0",      "txtUa",     "txtUf",      "txtUPhi0",   "txtULam0",
          "txtUX0",     "txtUY0",     "txtUS0",    "txtWdegPhi", "txtWdegLam", "txtWdegTH",
          "txtWdmsPhi", "txtWdmsLam", "txtWdmsTH", "txtBdegPhi", "txtBdegLam", "txtBdegH",
          "txtBdmsPhi", "txtBdmsLam", "txtBdmsH",  "txtBTH",     "txtX",       "txtY",
          "txtH",       "txtUX",      "txtUY",     "txtUH"}) {
        type(name, "12.5 ");
        at(name).enter();
        EXPECT_EQ(at(name).selStart(), 0) << name;
        EXPECT_EQ(at(name).selLength(), 5) << name;
    }
}

TEST_F(Entry, ReadsTheNumberInFront) {
    EXPECT_EQ(v("12abc", messages), 12);
    EXPECT_EQ(v("  -7.5 m", messages), -7.5);
    EXPECT_EQ(v("1.5e3", messages), 1500);
    EXPECT_TRUE(messages.shown.empty());
}

TEST_F(Entry, ReadsWordsAndAnEmptyBoxAsZeroSilently) {
    EXPECT_EQ(v("abc", messages), 0);
    EXPECT_EQ(v("", messages), 0);
    EXPECT_TRUE(messages.shown.empty());
}

TEST_F(Entry, TakesACommaForTheEndOfTheNumber) {
    EXPECT_EQ(v("1,5", messages), 1);
}

TEST_F(Entry, TellsOfANumberTooLargeAndGoesOnWithZero) {
    EXPECT_EQ(v(" 1e999 ", messages), 0);
    ASSERT_EQ(messages.shown.size(), 1U);
    // The text stands as typed, blanks and all.
    EXPECT_EQ(messages.shown[0].text, "입력항  1e999  에 오류가 있습니다. 수정후 다시 하십시오");
    EXPECT_EQ(messages.shown[0].buttons, Buttons::Ok);
    EXPECT_EQ(messages.shown[0].icon, Icon::None);
    EXPECT_EQ(messages.shown[0].title, "");
}

TEST_F(Entry, TellsOfABadBoxOnceAClick) {
    typeWgs("1e999", "127", "0");
    click("cmdW2B");  // reads the latitude for the other form, the shift, the geoid, the correction
    EXPECT_EQ(messages.texts(),
              std::vector<std::string>{"입력항 1e999 에 오류가 있습니다. 수정후 다시 하십시오"});
}

TEST_F(Entry, ConvertsStrictlyOnTheWayToTheStoredSet) {
    const auto save = [this](const char* words) {
        type("txtdX", words);
        return faultOf([this] { parameters.SaveCfg(); });
    };
    EXPECT_EQ(save("abc"), 13);
    EXPECT_EQ(save(""), 13);
    EXPECT_EQ(save("12abc"), 13);
    EXPECT_EQ(save("1,5"), 13);
    EXPECT_EQ(save("1e999"), 6);
    EXPECT_EQ(save(" -12.5 "), 0);
    EXPECT_EQ(state.Cfg.dX, -12.5);
    EXPECT_TRUE(messages.shown.empty());
}

TEST_F(Entry, MayForgiveABoxThatEndsTheProgramWhenThePanelCloses) {
    type("txtUa", "");
    EXPECT_EQ(faultOf([this] { click("cmdTM2GP"); }), 0);
    EXPECT_EQ(faultOf([this] { click("cmdOneClose"); }), 13);
}

}  // namespace
}  // namespace kelvo
