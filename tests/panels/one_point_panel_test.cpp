#include "panels/one_point_panel.h"

#include "common/fixed_width.h"
#include "common/number_text.h"
#include "geodesy/angle_forms.h"
#include "panels/panel_bench.h"

namespace kelvo {
namespace {

using genSub::FormatNum;
using testing::faultOf;
using testing::PanelBench;

constexpr const char* kResult = "/app/data/a.out";
constexpr const char* kDetail = "/app/kelvo.det";

class OnePoint : public PanelBench {
protected:
    // No shift at all, from WGS84 to an ellipsoid of the same size.
    void typeNoShift() {
        for (const char* name : {"txtdX", "txtdY", "txtdZ", "txtOmega", "txtPhi", "txtKappa",
                                 "txtdS", "txtdPhi", "txtdLam", "txtdH"})
            type(name, "0");
        click("optUser");
        type("txta", "6378137");
        type("txtf", "298.257223563");
    }
};

TEST_F(OnePoint, BoxesStartWithZero) {
    for (const char* name : {"txtWdegPhi", "txtwGeoid", "txtBTH", "txtX", "txtTH", "txtUH"})
        EXPECT_EQ(text(name), "0") << name;
}

TEST_F(OnePoint, WithoutAShiftThereAndBackGivesThePoint) {
    typeNoShift();
    typeWgs("36.25", "127.5", "85.125");
    click("cmdW2B");
    click("cmdB2W");
    // The iteration of the latitude is good to about 3e-9 degrees here.
    EXPECT_NEAR(leadingNumber(text("txtWdegPhi")), 36.25, 1e-8);
    EXPECT_NEAR(leadingNumber(text("txtWdegLam")), 127.5, 1e-9);
    EXPECT_NEAR(leadingNumber(text("txtWdegTH")), 85.125, 1e-3);
}

TEST_F(OnePoint, DecimalFormFillsTheOtherOneAndTheOtherWayRound) {
    typeWgs("37.5", "127.25", "100.5");
    click("cmdW2B");
    EXPECT_EQ(text("txtWdmsPhi"), "37.3");
    EXPECT_EQ(text("txtWdmsLam"), "127.15");
    EXPECT_EQ(text("txtWdmsTH"), "100.5");

    click("optWdms");
    type("txtWdmsPhi", "36.3");
    type("txtWdmsLam", "128.45");
    type("txtWdmsTH", " 12.50 ");
    click("cmdW2B");
    EXPECT_EQ(text("txtWdegPhi"), "36.5");
    EXPECT_EQ(text("txtWdegLam"), "128.75");
    EXPECT_EQ(text("txtWdegTH"), " 12.50 ");
}

TEST_F(OnePoint, UserFrameSynchronisesOnTheWayToTheGridAndToWgs) {
    typeUser("37.5", "127.25", "50");
    click("cmdGP2TM");
    EXPECT_EQ(text("txtBdmsPhi"), "37.3");
    click("optBdms");
    type("txtBdmsLam", "127.3");
    click("cmdB2W");
    EXPECT_EQ(text("txtBdegLam"), "127.5");
}

TEST_F(OnePoint, UserZoneStaysWhateverTheLongitude) {
    click("optUser");
    typeUser("37", "131.5", "0");
    click("cmdGP2TM");
    EXPECT_TRUE(on("optUser"));
}

TEST_F(OnePoint, JejuStaysWhateverTheLongitude) {
    click("optJeju");
    typeUser("37", "131.5", "0");
    click("cmdGP2TM");
    EXPECT_TRUE(on("optJeju"));
}

TEST_F(OnePoint, CentreSwitchesToEastAndItsOriginComesAlong) {
    typeUser("37", "128.5", "0");
    click("cmdGP2TM");
    EXPECT_TRUE(on("optEast"));
    EXPECT_FALSE(on("optCenter"));
    EXPECT_EQ(text("txtLam0"), "129");
    EXPECT_EQ(text("txtX0"), "500000");
}

TEST_F(OnePoint, ZoneFollowsTheLongitudeAtItsLimits) {
    struct Case {
        const char* longitude;
        const char* option;
    };
    for (const Case& c :
         {Case{"125.99", "optWest"}, Case{"126.0", "optCenter"}, Case{"128.0", "optCenter"},
          Case{"128.01", "optEast"}, Case{"130.0", "optEast"}, Case{"130.1", "optEastSea"}}) {
        typeUser("37", c.longitude, "0");
        click("cmdGP2TM");
        EXPECT_TRUE(on(c.option)) << c.longitude;
    }
}

TEST_F(OnePoint, UtmZoneFollowsTheLongitude) {
    // The easting of the origin 129 with a scale of 0.9996 puts 125 and 127.25 degrees here.
    typeUser("37", "125", "0");
    click("cmdGP2TM");
    click("cmdTM2UTM");
    EXPECT_TRUE(on("optUTM3"));
    EXPECT_EQ(text("txtULam0"), "123");
    typeUser("37", "127.25", "0");
    click("cmdGP2TM");
    click("cmdTM2UTM");
    EXPECT_TRUE(on("optUTM9"));
}

TEST_F(OnePoint, LongitudeOf126SharpLeavesTheUtmZone) {
    // The central meridian of the origin is 126 itself, so the point computed lies on it sharp.
    click("optUser");
    click("optNotAdd");
    type("txtLam0", "126");
    type("txtX", "400000");
    type("txtY", "200000");
    click("optUTM3");
    click("cmdTM2UTM");
    EXPECT_TRUE(on("optUTM3"));
    click("optUTM9");
    click("cmdTM2UTM");
    EXPECT_TRUE(on("optUTM9"));
}

TEST_F(OnePoint, UserUtmOriginStaysWhateverTheLongitude) {
    click("optUUser");
    typeUser("37", "125", "0");
    click("cmdGP2TM");
    click("cmdTM2UTM");
    EXPECT_TRUE(on("optUUser"));
    EXPECT_EQ(text("txtULam0"), "129");
}

TEST_F(OnePoint, FromUtmAnEmptyUserFrameMeansTheWesternZone) {
    type("txtBdegLam", "");
    type("txtUX", "4150000");
    type("txtUY", "345000");
    click("cmdUTM2TM");
    EXPECT_TRUE(on("optWest"));
    EXPECT_EQ(text("txtLam0"), "125");
}

TEST_F(OnePoint, AdditionRaisesTheTmOriginOnly) {
    click("optNotAdd");
    typeUser("37.5", "127.25", "0");
    click("cmdGP2TM");
    click("cmdTM2UTM");
    const std::string withoutY = text("txtY");
    const std::string withoutUY = text("txtUY");
    click("optAdd");
    click("cmdGP2TM");
    click("cmdTM2UTM");
    // 10.405 seconds of longitude at 37.5 degrees are some 255.6 metres.
    EXPECT_NEAR(leadingNumber(withoutY) - leadingNumber(text("txtY")), 255.6, 0.5);
    EXPECT_NEAR(leadingNumber(withoutUY), leadingNumber(text("txtUY")), 0.001);
}

TEST_F(OnePoint, GridArrowsLeaveTheFramesThatTheyDoNotName) {
    typeWgs("37.5", "127.25", "100.5");
    typeUser("37.4", "127.2", "50");
    click("cmdGP2TM");
    type("txtBGeoid", "old");
    type("txtGeoid", "old");
    const std::string latitude = text("txtBdegPhi");
    click("cmdTM2UTM");
    click("cmdUTM2TM");
    EXPECT_EQ(text("txtBdegPhi"), latitude);
    EXPECT_EQ(text("txtBGeoid"), "old");
    EXPECT_EQ(text("txtGeoid"), "old");
    EXPECT_EQ(text("txtWdegPhi"), "37.5");
    click("cmdTM2GP");
    EXPECT_NE(text("txtBGeoid"), "old");
}

TEST_F(OnePoint, HeightsToTheGridHaveSixPlacesAndBackFour) {
    typeWgs("37.5", "127.25", "0");
    click("cmdW2B");
    typeUser("37.5", "127.25", "50");
    click("cmdGP2TM");
    EXPECT_EQ(text("txtH"), "    50.00000");
    EXPECT_EQ(text("txtBGeoid").size(), 12U);
    EXPECT_EQ(text("txtBTH").size(), 12U);
    click("cmdTM2GP");
    EXPECT_EQ(text("txtBdegH"), "  50.00000");
    EXPECT_EQ(text("txtBGeoid").size(), 10U);
    EXPECT_EQ(text("txtGeoid").size(), 10U);
    EXPECT_EQ(text("txtTH").size(), 10U);
}

TEST_F(OnePoint, BeforeTheFirstShiftTheGeoidIsZero) {
    typeUser("37.5", "127.25", "50");
    click("cmdGP2TM");
    EXPECT_EQ(text("txtGeoid"), "     0.00000");
    EXPECT_EQ(text("txtTH"), "    50.00000");
}

TEST_F(OnePoint, BackToWgsLeavesGeoidAndEllipsoidalHeightOfTheUserFrame) {
    type("txtBGeoid", "an older");
    type("txtBTH", "point");
    typeUser("37.5", "127.25", "50");
    click("cmdB2W");
    EXPECT_EQ(text("txtBGeoid"), "an older");
    EXPECT_EQ(text("txtBTH"), "point");
}

TEST_F(OnePoint, FirstClickAfterAChangeStoresTheParametersAndWritesAHeader) {
    typeWgs("37.5", "127.25", "0");
    type("txtdX", "99.5");
    click("cmdW2B");
    EXPECT_EQ(written, 1);
    EXPECT_EQ(state.Cfg.dX, 99.5);
    EXPECT_FALSE(state.conversion.ParaDirty);
    EXPECT_NE(disk.text(kResult).find("     dx  =    99.500"), std::string::npos);
    EXPECT_NE(disk.text(kResult).find("각도입력형태 =  ddd.mmssss 형태"), std::string::npos);
    EXPECT_NE(disk.text(kResult).find("각도출력형태 =  ddd-mm-ss.ss 형태"), std::string::npos);
    EXPECT_EQ(disk.bytes(kDetail), "");
}

TEST_F(OnePoint, SecondClickWithoutAChangeLeavesTheTwoFilesEmpty) {
    disk.putText(kDetail, "older");
    click("cmdW2B");
    click("cmdW2B");
    EXPECT_TRUE(disk.has(kResult));
    EXPECT_EQ(disk.bytes(kResult), "");
    EXPECT_EQ(disk.bytes(kDetail), "");
    EXPECT_EQ(written, 1);
}

TEST_F(OnePoint, GridArrowsTouchNoFile) {
    typeUser("37.5", "127.25", "0");
    for (const char* arrow : {"cmdGP2TM", "cmdTM2GP", "cmdTM2UTM", "cmdUTM2TM"}) click(arrow);
    EXPECT_TRUE(disk.files.empty());
    EXPECT_EQ(written, 0);
}

TEST_F(OnePoint, WithoutADataFileTheResultIsWrittenToTheCurrentFolder) {
    state.RecentFiles[1].clear();
    disk.setCurrentFolder("/app/data");
    click("cmdW2B");
    EXPECT_TRUE(disk.has("/app/data/.out"));
}

TEST_F(OnePoint, FlatteningItselfCountsLikeItsInverse) {
    typeNoShift();
    typeUser("37.5", "127.25", "0");
    click("cmdGP2TM");
    const std::string x = text("txtX");
    type("txtf", generalText(1 / 298.257223563));
    click("cmdGP2TM");
    EXPECT_NEAR(leadingNumber(text("txtX")), leadingNumber(x), 1e-4);
}

// --- What goes wrong ---

TEST_F(OnePoint, InverseFlatteningOfZeroIsADivisionByZero) {
    click("optUser");
    type("txtf", "0");
    for (const char* arrow : {"cmdW2B", "cmdB2W", "cmdGP2TM", "cmdTM2GP", "cmdTM2UTM"})
        EXPECT_EQ(faultOf([&] { click(arrow); }), 11) << arrow;
}

TEST_F(OnePoint, UtmInverseFlatteningOfZeroIsADivisionByZero) {
    type("txtUf", "none");
    EXPECT_EQ(faultOf([&] { click("cmdTM2UTM"); }), 11);
    EXPECT_EQ(faultOf([&] { click("cmdUTM2TM"); }), 11);
}

TEST_F(OnePoint, HeightThatIsNoNumberIsATypeMismatchAtFourArrows) {
    for (const char* bad : {"abc", ""}) {
        typeWgs("37", "127", bad);
        EXPECT_EQ(faultOf([&] { click("cmdW2B"); }), 13) << bad;
        typeUser("37", "127", bad);
        EXPECT_EQ(faultOf([&] { click("cmdB2W"); }), 13) << bad;
        EXPECT_EQ(faultOf([&] { click("cmdGP2TM"); }), 13) << bad;
        type("txtH", bad);
        EXPECT_EQ(faultOf([&] { click("cmdTM2GP"); }), 13) << bad;
    }
}

TEST_F(OnePoint, UtmArrowsSurviveABadHeight) {
    type("txtH", "12abc");
    click("cmdTM2UTM");
    EXPECT_EQ(text("txtUH"), "    12.00000");
    type("txtUH", "");
    click("cmdUTM2TM");
    EXPECT_EQ(text("txtH"), "     0.00000");
}

TEST_F(OnePoint, ResultFileThatCannotBeOpenedIsAFault) {
    state.RecentFiles[1] = "/nowhere/a.dat";
    EXPECT_EQ(faultOf([&] { click("cmdW2B"); }), 76);
    EXPECT_EQ(faultOf([&] { click("cmdB2W"); }), 76);
}

TEST_F(OnePoint, FailedProjectionIsToldAndItsOriginWritten) {
    click("optUser");
    type("txta", "0");
    type("txtX0", "600000");
    type("txtY0", "1000");
    typeUser("37.5", "127.25", "0");
    click("cmdGP2TM");
    EXPECT_EQ(messages.shown.size(), 1U);
    EXPECT_EQ(text("txtX"), FormatNum(600000.0, 10, 5));
    EXPECT_EQ(text("txtY"), FormatNum(1000.0, 10, 5));
}

TEST_F(OnePoint, FailedInverseProjectionIsToldAndItsOriginWritten) {
    click("optUser");
    click("optNotAdd");
    type("txtS0", "0");
    type("txtPhi0", "38.5");
    click("cmdTM2GP");
    EXPECT_EQ(messages.shown.size(), 1U);
    EXPECT_EQ(text("txtBdegPhi"), FormatNum(38.5, 4, 10));
    EXPECT_EQ(text("txtBdegLam"), FormatNum(127.0, 4, 10));
}

TEST_F(OnePoint, FailedIterationGivesZeroPlusTheAdjustment) {
    type("txtdPhi", "3.6");
    type("txtdLam", "7.2");
    typeWgs("60", "127", "0");  // the iteration doesn't converge from 48 degrees on
    click("cmdW2B");
    EXPECT_FALSE(messages.shown.empty());
    EXPECT_EQ(text("txtBdegPhi"), FormatNum(0.001, 4, 10));
    EXPECT_EQ(text("txtBdegLam"), FormatNum(0.002, 4, 10));
}

TEST_F(OnePoint, NumberTooLargeIsToldAndCountsAsZero) {
    type("txtdX", "1e999");
    click("optMolod");
    state.conversion.ParaDirty = false;
    click("cmdW2B");
    EXPECT_EQ(messages.texts(),
              std::vector<std::string>{"입력항 1e999 에 오류가 있습니다. 수정후 다시 하십시오"});
    EXPECT_EQ(state.conversion.datum.shift.dX, 0);
    EXPECT_EQ(state.conversion.datum.shift.Kind, ShiftKind::Molodensky);
}

TEST_F(OnePoint, AngleBeyondItsTypeIsAnOverflow) {
    typeUser("40000", "127", "0");
    EXPECT_EQ(faultOf([&] { click("cmdGP2TM"); }), 6);
    EXPECT_EQ(text("txtX"), "0");
}

}  // namespace
}  // namespace kelvo
