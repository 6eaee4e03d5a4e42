// The arrow from the user ellipsoid back to WGS84: what it takes off, what it writes into the
// detail file, and how it synchronises its frame.
#include "common/fixed_width.h"
#include "common/number_text.h"
#include "geodesy/angle_forms.h"
#include "panels/panel_bench.h"

namespace kelvo {
namespace {

using genSub::FormatNum;
using testing::PanelBench;

class BackToWgs : public PanelBench {
protected:
    BackToWgs() {
        disk.putText("/app/kelvo.cor",
                     "P1   37.3000   127.0000   80   37.29499   127.00085   50.9   1\r\n"
                     "P2   36.1200   128.0600   80   36.11500   128.06087   51.9   2\r\n"
                     "*\r\n*\r\n");
        typeUser("37.5", "127.25", "50");
    }
    [[nodiscard]] double number(const char* box) { return leadingNumber(text(box)); }
};

TEST_F(BackToWgs, TakesTheFirstAdjustmentOfLatitudeOff) {
    click("cmdB2W");
    const double Phi = number("txtWdegPhi");
    const double Lam = number("txtWdegLam");
    type("txtdPhi", "36");
    click("cmdB2W");
    EXPECT_NEAR(number("txtWdegPhi"), Phi - 0.01, 1e-9);
    EXPECT_NEAR(number("txtWdegLam"), Lam, 1e-9);
    EXPECT_NEAR(number("txtWdmsPhi"), KelvoSub::DegToDms(Phi - 0.01), 1e-9);
}

TEST_F(BackToWgs, TakesTheFirstAdjustmentOfLongitudeOff) {
    click("cmdB2W");
    const double Phi = number("txtWdegPhi");
    const double Lam = number("txtWdegLam");
    type("txtdLam", "-72");
    click("cmdB2W");
    EXPECT_NEAR(number("txtWdegLam"), Lam + 0.02, 1e-9);
    EXPECT_NEAR(number("txtWdegPhi"), Phi, 1e-9);
    EXPECT_NEAR(number("txtWdmsLam"), KelvoSub::DegToDms(Lam + 0.02), 1e-9);
}

TEST_F(BackToWgs, WritesOneRowWithTheCorrectionAtThePositionAfterTheAdjustment) {
    click("OptCorr");
    type("txtdPhi", "3600");  // a degree: the correction differs between the two places
    click("cmdB2W");          // the header, the statistics and a row
    state.conversion.points.row(1).name = "표의첫점";
    click("cmdB2W");  // a row alone

    const double E = KelvoSub::GeoidHeightBessel(state.conversion.datum.geoid, 37.5, 127.25) + 50;
    const Geographic wgs = KelvoSub::UserToWgs(state.conversion.datum.shift, 37.5, 127.25, E,
                                               {6377397.155, 1 / 299.1528128})
                               .value;
    const Position at{.Phi = wgs.Phi - 1, .Lam = wgs.Lam};
    const Correction c = findCorr(state.conversion.known.inUse(), at).value;
    ASSERT_NE(c.DPhi, 0);
    const ArcSecLengths second = KelvoSub::ArcSecLen(at.Phi, at.Lam);
    const double L = lengthInMetres(c.DPhi, c.DLam, second);
    EXPECT_EQ(disk.text("/app/kelvo.det"),
              genSub::FormatText("표의첫점", 10, genSub::Align::Left) + std::string(13, ' ') +
                  KelvoSub::AngleText(c.DPhi, AngleForm::Hyphens) +
                  KelvoSub::AngleText(c.DLam, AngleForm::Hyphens) + FormatNum(c.DH, 8, 4) +
                  "    L =" + FormatNum(L, 3, 5) + "\r\n");
    EXPECT_EQ(disk.text("/app/data/a.out"), "");
}

TEST_F(BackToWgs, SynchronisesTheUserFrameFromItsDecimalGroup) {
    type("txtBdmsPhi", "1");
    type("txtBdmsLam", "2");
    type("txtBdmsH", "3");
    type("txtBdegH", " 50.50 ");
    click("cmdB2W");
    EXPECT_EQ(text("txtBdmsPhi"), "37.3");
    EXPECT_EQ(text("txtBdmsLam"), "127.15");
    EXPECT_EQ(text("txtBdmsH"), " 50.50 ");
    EXPECT_EQ(text("txtBdegPhi"), "37.5") << "which stays as it was typed";
    EXPECT_NEAR(number("txtWdegPhi"), 37.5, 0.01);
    EXPECT_NEAR(number("txtWdegLam"), 127.25, 0.01);
}

TEST_F(BackToWgs, SynchronisesTheUserFrameFromItsOtherGroup) {
    click("optBdms");
    type("txtBdmsPhi", "36.3");
    type("txtBdmsLam", "128.45");
    type("txtBdmsH", "12.5");
    click("cmdB2W");
    EXPECT_EQ(text("txtBdegPhi"), "36.5");
    EXPECT_EQ(text("txtBdegLam"), "128.75");
    EXPECT_EQ(text("txtBdegH"), "12.5");
    EXPECT_NEAR(number("txtWdegPhi"), 36.5, 0.01);
    EXPECT_NEAR(number("txtWdegLam"), 128.75, 0.01);
}

TEST_F(BackToWgs, DoesNotTouchTheGroupOfTheOtherFrame) {
    typeWgs("11", "22", "33");
    type("txtWdmsPhi", "44");
    type("txtdPhi", "0.0");
    click("cmdB2W");
    EXPECT_NE(text("txtWdmsPhi"), "44") << "written as a result";
    EXPECT_NEAR(number("txtWdegPhi"), 37.5, 0.01);
}

}  // namespace
}  // namespace kelvo
