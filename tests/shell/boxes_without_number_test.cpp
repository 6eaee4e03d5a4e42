#include "shell/boxes_without_number.h"

#include <gtest/gtest.h>

namespace kelvo::testing {
namespace {

struct TwoFrames {
    Form form;
    Control& outer = form.frame("Outer", "frmeOne", "");
    Control& inner = form.frame("Inner", "Outer", "");
    Control& other = form.frame("Other", "frmeOne", "");
    Control& first = form.textBox("txtFirst", "Outer", "");
    Control& second = form.textBox("txtSecond", "Inner", "");
    Control& third = form.textBox("txtThird", "Other", "");
    Control& shown = form.textBox("Text1", "Outer", "");

    TwoFrames() {
        for (Control* box : {&first, &second, &third}) box->setText("1.5");
    }
};

TEST(BoxesWithoutNumber, NumbersAreFine) {
    TwoFrames on;
    EXPECT_EQ(firstBoxWithoutNumber(on.form, {"Outer", "Other"}), nullptr);
}

TEST(BoxesWithoutNumber, EmptyTextIsFoundInAFrameWithinTheFrame) {
    TwoFrames on;
    on.second.setText("");
    EXPECT_EQ(firstBoxWithoutNumber(on.form, {"Outer"}), &on.second);
}

TEST(BoxesWithoutNumber, NumberBeyondADoubleIsFound) {
    TwoFrames on;
    on.first.setText("1e999");
    EXPECT_EQ(firstBoxWithoutNumber(on.form, {"Outer"}), &on.first);
}

TEST(BoxesWithoutNumber, OtherFramesDoNotCount) {
    TwoFrames on;
    on.third.setText("12abc");
    EXPECT_EQ(firstBoxWithoutNumber(on.form, {"Outer"}), nullptr);
}

}  // namespace
}  // namespace kelvo::testing
