// The point of the panel as it is copied.
#include "panels/point_texts.h"

#include "panels/panel_bench.h"

namespace kelvo::testing {
namespace {

class PointTexts : public PanelBench {
protected:
    // Every box holds a text of its own; blanks around it aren't copied.
    void fillAll() {
        int number = 0;
        for (const char* box :
             {"txtWdegPhi", "txtWdegLam", "txtWdegTH", "txtWdmsPhi", "txtWdmsLam", "txtWdmsTH",
              "txtBdegPhi", "txtBdegLam", "txtBdegH", "txtBdmsPhi", "txtBdmsLam", "txtBdmsH",
              "txtX", "txtY", "txtH", "txtUX", "txtUY", "txtUH"})
            at(box).setText("  " + std::to_string(++number) + ".5 ");
    }
};

TEST_F(PointTexts, ALineHasTheTwelveNumbersOfTheChosenFormsWithTabsBetween) {
    fillAll();
    at("optWdeg").switchOn();
    at("optBdeg").switchOn();
    fillAll();
    EXPECT_EQ(pointAsLine(form),
              "1.5\t2.5\t3.5\t7.5\t8.5\t9.5\t13.5\t14.5\t15.5\t16.5\t17.5\t18.5");
    at("optWdms").switchOn();
    fillAll();
    EXPECT_EQ(pointAsLine(form),
              "4.5\t5.5\t6.5\t7.5\t8.5\t9.5\t13.5\t14.5\t15.5\t16.5\t17.5\t18.5");
    at("optBdms").switchOn();
    at("optWdeg").switchOn();
    fillAll();
    at("txtY").setText("");
    EXPECT_EQ(pointAsLine(form), "1.5\t2.5\t3.5\t10.5\t11.5\t12.5\t13.5\t\t15.5\t16.5\t17.5\t18.5");
}

TEST_F(PointTexts, ATableHasARowASystem) {
    at("optWdms").switchOn();
    at("optBdms").switchOn();
    fillAll();
    EXPECT_EQ(pointAsTable(form),
              "좌표계\t위도, X\t경도, Y\t높이(m)\n"
              "WGS84\t4.5\t5.5\t6.5\n"
              "사용자 타원체\t10.5\t11.5\t12.5\n"
              "TM\t13.5\t14.5\t15.5\n"
              "UTM\t16.5\t17.5\t18.5\n");
}

}  // namespace
}  // namespace kelvo::testing
