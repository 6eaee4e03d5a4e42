// Row by row, how a click on the panel differs from the pipelines of a batch run.
#include "batch/run_batch.h"
#include "common/fixed_width.h"
#include "common/number_text.h"
#include "geodesy/angle_forms.h"
#include "panels/one_point_panel.h"
#include "panels/panel_bench.h"

namespace kelvo {
namespace {

using genSub::FormatNum;
using testing::PanelBench;

constexpr double kPhi = 37.5;
constexpr double kLam = 127.25;
constexpr double kHeight = 100.5;
constexpr Ellipsoid kUser{6377397.155, 1 / 299.1528128};

class PanelAgainstBatch : public PanelBench {
protected:
    PanelAgainstBatch() {
        disk.putText("/app/kelvo.cor",
                     "P1   37.3000   127.0000   80   37.29499   127.00085   50.9   1\r\n"
                     "P2   36.1200   128.0600   80   36.11500   128.06087   51.9   2\r\n"
                     "P4   37.1200   126.2400   80   37.11503   126.24083   50.8   1.5\r\n"
                     "*\r\n*\r\n");
        click("optUser");  // keeps the origin of the centre zone
    }

    const PointRec& run(const std::string& lines) {
        disk.putText("/app/data/a.dat", "INPUT deg \r\n" + lines + "\r\nend\r\n*\r\n");
        RunView view;
        RunBatch(state.conversion,
                 {.dataFile = "/app/data/a.dat",
                  .detPath = "/app/kelvo.det",
                  .CorPath = "/app/kelvo.cor"},
                 view, disk, messages);
        return state.conversion.points.row(1);
    }
    const PointRec& runWgs(const std::string& commands = "") {
        return run(commands + "WGS p1 37.5 127.25 100.5");
    }
    void clickWgs() {
        typeWgs("37.5", "127.25", "100.5");
        click("cmdW2B");
    }
    void typeAdjustment() {
        type("txtdPhi", "36");
        type("txtdLam", "72");
        type("txtdH", "2.5");
    }
    [[nodiscard]] const DatumState& datum() const { return state.conversion.datum; }
    [[nodiscard]] Correction correctionAt(double Phi, double Lam) {
        return findCorr(state.conversion.known.inUse(), {.Phi = Phi, .Lam = Lam}).value;
    }
    [[nodiscard]] double number(const char* box) { return leadingNumber(text(box)); }
};

TEST_F(PanelAgainstBatch, RunUsesItsOwnParametersAndThePanelItsBoxes) {
    type("txtdX", "200");  // 84 m more, some 50 m on the ground
    type("txtOmega", "0");
    EXPECT_NEAR(runWgs().UserPhi, 37.49719, 1e-5);
    EXPECT_EQ(datum().shift.dX, 115.8);
    clickWgs();
    EXPECT_EQ(datum().shift.dX, 200);
    EXPECT_EQ(datum().shift.Omega, 0);
}

TEST_F(PanelAgainstBatch, EachDatumArrowLoadsTheShiftAndNoGridArrowDoes) {
    clickWgs();
    type("txtdX", "200");
    state.conversion.ParaDirty = false;  // no run header that would load it
    for (const char* arrow : {"cmdGP2TM", "cmdTM2GP", "cmdTM2UTM", "cmdUTM2TM"}) {
        click(arrow);
        EXPECT_EQ(datum().shift.dX, 115.8) << arrow;
    }
    click("cmdW2B");
    EXPECT_EQ(datum().shift.dX, 200);
    type("txtdX", "300");
    state.conversion.ParaDirty = false;
    click("cmdB2W");
    EXPECT_EQ(datum().shift.dX, 300);
}

TEST_F(PanelAgainstBatch, PanelAdjustsBeforeTheGeoidAndTheRunAfterIt) {
    // 7200 seconds are two degrees: the geoid differs between the two places.
    type("txtdPhi", "-7200");
    type("txtdH", "2.5");
    clickWgs();
    const Geographic shifted = KelvoSub::WgsToUser(datum().shift, kPhi, kLam, kHeight, kUser).value;
    const double adjusted =
        KelvoSub::GeoidHeightBessel(datum().geoid, shifted.Phi - 2, shifted.Lam);
    EXPECT_EQ(text("txtBGeoid"), FormatNum(adjusted, 4, 5));
    EXPECT_EQ(text("txtBTH"), FormatNum(shifted.h + 2.5, 4, 5));
    EXPECT_EQ(text("txtBdegH"), FormatNum(shifted.h + 2.5 - adjusted, 4, 5));

    const PointRec& row = runWgs("1st -7200 0 2.5\r\n");
    const Geographic inRun = KelvoSub::WgsToUser(datum().shift, kPhi, kLam, kHeight, kUser).value;
    const double unadjusted = KelvoSub::GeoidHeightBessel(datum().geoid, inRun.Phi, inRun.Lam);
    EXPECT_NE(adjusted, unadjusted);
    EXPECT_NEAR(row.UserH, inRun.h - unadjusted + 2.5, 1e-9);
}

TEST_F(PanelAgainstBatch, PanelCorrectsTheOrthometricHeightOnly) {
    click("OptCorr");
    clickWgs();
    const Correction c = correctionAt(kPhi, kLam);
    ASSERT_NE(c.DH, 0);
    const Geographic shifted = KelvoSub::WgsToUser(datum().shift, kPhi, kLam, kHeight, kUser).value;
    const double geoid = KelvoSub::GeoidHeightBessel(datum().geoid, shifted.Phi, shifted.Lam);
    EXPECT_EQ(text("txtBTH"), FormatNum(shifted.h, 4, 5));
    EXPECT_EQ(text("txtBdegH"), FormatNum(shifted.h - geoid + c.DH, 4, 5));
    EXPECT_EQ(text("txtBdegPhi"), FormatNum(shifted.Phi + c.DPhi, 4, 10));

    const PointRec& row = runWgs("CORR\r\n");
    EXPECT_NE(row.CorrH, 0);
}

TEST_F(PanelAgainstBatch, GeoidOfTheWgsSideFeedsTheOrthometricHeightThere) {
    clickWgs();
    const double geoid = KelvoSub::GeoidHeight(datum().geoid, kPhi, kLam);
    EXPECT_EQ(text("txtwGeoid"), FormatNum(geoid, 4, 5));
    EXPECT_EQ(text("txtwH"), FormatNum(kHeight - geoid, 4, 5));
}

TEST_F(PanelAgainstBatch, CorrectionCancelsOutOfTheOrthometricHeightOnTheWayBack) {
    click("OptCorr");
    type("txtdH", "2.5");
    typeUser("37.5", "127.25", "50");
    click("cmdB2W");
    const double E = KelvoSub::GeoidHeightBessel(datum().geoid, kPhi, kLam) + 50;
    const Geographic wgs = KelvoSub::UserToWgs(datum().shift, kPhi, kLam, E, kUser).value;
    const Correction c = correctionAt(wgs.Phi, wgs.Lam);
    ASSERT_NE(c.DH, 0);
    const double wp = wgs.Phi - c.DPhi;
    const double wl = wgs.Lam - c.DLam;
    const double geoid = KelvoSub::GeoidHeight(datum().geoid, wp, wl);
    EXPECT_EQ(text("txtWdegTH"), FormatNum(wgs.h - 2.5 - c.DH, 4, 5));
    EXPECT_EQ(text("txtwGeoid"), FormatNum(geoid - c.DH, 4, 5));
    EXPECT_EQ(text("txtwH"), FormatNum(wgs.h - 2.5 - geoid, 4, 5));

    const PointRec& row = run("CORR\r\n1st 0 0 2.5\r\nUGS p1 37.5 127.25 50");
    EXPECT_NEAR(row.WgsH, number("txtWdegTH"), 0.1);
}

TEST_F(PanelAgainstBatch, RunChecksTheTmZoneAtEachPointAndThePanelAtTwoArrowsOnly) {
    click("optCenter");
    typeUser("37", "129.5", "0");
    click("cmdGP2TM");
    EXPECT_TRUE(on("optEast"));
    click("optCenter");
    click("cmdTM2GP");
    click("cmdTM2UTM");
    EXPECT_TRUE(on("optCenter"));
    click("cmdUTM2TM");
    // By the longitude of the user frame, which cmdTM2GP has just written on the origin 127.
    EXPECT_TRUE(on("optCenter"));
    // The run takes a point at 129.5 to the origin 129, which gives the same as `zone 3`.
    const double y = run("zone 2\r\nUGS p1 37 129.5 0").TmY;
    EXPECT_EQ(y, run("zone 3\r\nUGS p1 37 129.5 0").TmY);
}

TEST_F(PanelAgainstBatch, RunOverridesTheUserUtmOriginAndThePanelKeepsIt) {
    click("optUUser");
    type("txtULam0", "127");
    typeUser("37", "125", "0");
    click("cmdGP2TM");
    click("cmdTM2UTM");
    EXPECT_TRUE(on("optUUser"));
    EXPECT_EQ(text("txtULam0"), "127");

    const double y = run("UTM para\r\n6377397.155 299.1528128\r\n0 127\r\n0 500000\r\n0.9996\r\n"
                         "UGS p1 37 125 0")
                         .UtmY;
    EXPECT_EQ(y, run("UTM 123\r\nUGS p1 37 125 0").UtmY);
}

TEST_F(PanelAgainstBatch, LongitudeOf126GoesEastInARun) {
    const double y = run("UTM 123\r\nUGS p1 37 126 0").UtmY;
    EXPECT_EQ(y, run("UTM 129\r\nUGS p1 37 126 0").UtmY);
}

TEST_F(PanelAgainstBatch, ZoneFromUtmGoesByTheBoxInThePanelAndByThePointInARun) {
    click("optCenter");
    // A point at about 129.3 degrees, with an older longitude of 125 in the user frame.
    type("txtBdegLam", "125");
    click("optUTM9");
    type("txtUX", "4100000");
    type("txtUY", "525000");
    click("cmdUTM2TM");
    EXPECT_TRUE(on("optWest"));

    const PointRec row = run("UTM p1 4100000 525000 0");
    EXPECT_GT(row.UserLam, 129);
    // East of 129.28 on the origin 129 the easting is a little above 200 km; on 125 far above.
    EXPECT_LT(row.TmY, 300000);
    EXPECT_GT(number("txtY"), 500000);
}

TEST_F(PanelAgainstBatch, RunGoesThroughAllSystemsAndAnArrowOneStep) {
    const PointRec row = runWgs();
    EXPECT_NE(row.UserPhi, 0);
    EXPECT_NE(row.TmX, 0);
    EXPECT_NE(row.UtmX, 0);
    clickWgs();
    EXPECT_NE(text("txtBdegPhi"), "0");
    EXPECT_EQ(text("txtX"), "0");
    EXPECT_EQ(text("txtUX"), "0");
}

TEST_F(PanelAgainstBatch, PanelEmptiesTheFilesOfTheRunAtEachDatumArrow) {
    runWgs();
    EXPECT_NE(disk.text("/app/data/a.out").find("좌표변환프로그램"), std::string::npos);
    state.conversion.ParaDirty = false;
    clickWgs();
    EXPECT_EQ(disk.bytes("/app/data/a.out"), "");
}

TEST_F(PanelAgainstBatch, PanelWritesNoRowAndCorrectsUnderTheNameInRowOne) {
    runWgs();
    click("OptCorr");
    typeWgs("36.5", "128", "0");
    click("cmdW2B");
    EXPECT_EQ(state.conversion.points.PointCount, 1);
    EXPECT_EQ(state.conversion.points.row(1).WgsPhi, 37.5);
    click("cmdW2B");
    EXPECT_EQ(disk.text("/app/kelvo.det").substr(0, 10), "p1        ");
}

TEST_F(PanelAgainstBatch, PanelReportsAnglesInItsOwnForms) {
    clickWgs();
    const std::string header = disk.text("/app/data/a.out");
    EXPECT_NE(header.find("각도입력형태 =  ddd.mmssss 형태"), std::string::npos);
    EXPECT_NE(header.find("각도출력형태 =  ddd-mm-ss.ss 형태"), std::string::npos);
    runWgs("OUTPUT deg \r\n");
    const std::string run = disk.text("/app/data/a.out");
    EXPECT_NE(run.find("각도입력형태 =  deg 형태"), std::string::npos);
    EXPECT_NE(run.find("각도출력형태 =  deg 형태"), std::string::npos);
}

}  // namespace
}  // namespace kelvo
