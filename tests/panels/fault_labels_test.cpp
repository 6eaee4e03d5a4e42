// A fault that comes from what a box holds names the box by its frames and its label, as it stands
// on the screen.
#include "panels/panel_bench.h"

namespace kelvo {
namespace {

using testing::PanelBench;

class FaultLabels : public PanelBench {
protected:
    std::string faultText(const char* arrow) {
        try {
            click(arrow);
        } catch (const RuntimeFault& fault) {
            return std::to_string(fault.number()) + " " + fault.text();
        }
        return "none";
    }
    void expectAt(const char* arrow, const std::string& number, const std::string& label) {
        const std::string text = faultText(arrow);
        EXPECT_EQ(text.substr(0, text.find(':')), number + " " + label) << arrow << ": " << text;
    }
};

TEST_F(FaultLabels, AZeroFlatteningNamesItsOwnOfTheTwoBoxes) {
    click("optUser");
    const std::string user = "사용자 타원체 > 타원체 > 편평도(1/.....)";
    const std::string utm = "UTM 타원체 > 타원체 > 편평도(1/....)";
    type("txtf", "0");
    for (const char* arrow : {"cmdW2B", "cmdB2W", "cmdGP2TM", "cmdTM2GP", "cmdTM2UTM", "cmdUTM2TM"})
        expectAt(arrow, "11", user);
    type("txtf", "299.1528128");
    type("txtUf", "0");
    for (const char* arrow : {"cmdTM2UTM", "cmdUTM2TM"}) expectAt(arrow, "11", utm);
}

TEST_F(FaultLabels, AHeightThatIsNoNumberNamesItsBox) {
    typeWgs("37", "127", "x");
    expectAt("cmdW2B", "13", "WGS > 타원체고");
    typeUser("37", "127", "x");
    expectAt("cmdB2W", "13", "경위도 (사용자 타원체) > 표고");
    type("txtH", "x");
    expectAt("cmdTM2GP", "13", "직교좌표 (사용자 타원체) > 표고");
}

TEST_F(FaultLabels, AParameterThatIsNoNumberNamesItsBoxWhereTheSetIsStored) {
    type("txtUS0", "x");
    expectAt("cmdOneClose", "13", "UTM 타원체 > 투영원점 > 투영축척계수");
}

TEST_F(FaultLabels, AnAngleBeyondItsTypeNamesItsBoxTheValueAndTheLimit) {
    typeUser("40000", "127", "0");
    const std::string text = faultText("cmdGP2TM");
    EXPECT_EQ(text.substr(0, text.find(" >")), "6 경위도 (사용자 타원체)") << text;
    for (const char* part : {"40000", "-32768", "32767"})
        EXPECT_NE(text.find(part), std::string::npos) << text;
}

}  // namespace
}  // namespace kelvo
