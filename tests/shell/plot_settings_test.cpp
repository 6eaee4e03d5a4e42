#include "panels/plot_settings_panel.h"
#include "shell/window_bench.h"

namespace kelvo {
namespace {

using testing::faultOf;
using testing::Program;
using testing::WindowBench;

constexpr const char* kPlotCfg = "/app/plot.cfg";
constexpr const char* kFirst =
    " 3 \r\n 0 \r\n 8 \r\n 0  0  0  0 \r\n 0  0  0  0 \r\n 0  0  0  0 \r\n";

class PlotSettings : public WindowBench {
protected:
    PlotSettings() { putConfiguration({"/app/data/a.dat"}); }
    Program& startWith(const std::string& plotCfg) {
        disk.putText(kPlotCfg, plotCfg);
        return start();
    }
};

TEST_F(PlotSettings, MissingFileStartsWithTheGridPlotAndIsWritten) {
    Program& kelvo = start();
    EXPECT_EQ(disk.bytes(kPlotCfg), kFirst);
    EXPECT_TRUE(kelvo.on("optXY"));
    EXPECT_TRUE(kelvo.on("optAuto"));
    EXPECT_FALSE(kelvo.at("frmeManual").enabled());
    EXPECT_EQ(kelvo.text("txtFontSize"), "8");
    EXPECT_EQ(kelvo.caption("lblX"), "X(m)");
    EXPECT_EQ(kelvo.caption("lblY"), "Y(m)");
}

TEST_F(PlotSettings, ShowTheScaleOfTheStoredKind) {
    Program& kelvo = startWith(
        " 1 \r\n 1 \r\n 7.5 \r\n 37.5  127.25  .5  .125 \r\n 36.5  128  .25  .0625 \r\n"
        " 500000  200000  1000  200 \r\n");
    EXPECT_TRUE(kelvo.on("optWGS"));
    EXPECT_TRUE(kelvo.on("optManual"));
    EXPECT_TRUE(kelvo.at("frmeManual").enabled());
    EXPECT_EQ(kelvo.caption("lblX"), "위도(ddd.mmss)");
    EXPECT_EQ(kelvo.caption("lblY"), "경도(ddd.mmss)");
    EXPECT_EQ(kelvo.text("txtXb"), " 37.3000");
    EXPECT_EQ(kelvo.text("txtYb"), "127.1500");
    EXPECT_EQ(kelvo.text("txtSpan"), "  0.3000");
    EXPECT_EQ(kelvo.text("txtInter"), "  0.0730");
    EXPECT_EQ(kelvo.text("txtFontSize"), "7.5");
}

TEST_F(PlotSettings, EachKindBringsBackItsOwnScale) {
    Program& kelvo = startWith(
        " 1 \r\n 1 \r\n 8 \r\n 37.5  127.25  .5  .125 \r\n 36.5  128  .25  .0625 \r\n"
        " 500000  200000  1000  200 \r\n");
    kelvo.click("optUGS");
    EXPECT_EQ(kelvo.text("txtXb"), " 36.3000");
    EXPECT_EQ(kelvo.text("txtInter"), "  0.0345");
    kelvo.click("optXY");
    EXPECT_EQ(kelvo.text("txtXb"), " 500000");
    EXPECT_EQ(kelvo.text("txtInter"), "    200");
    kelvo.click("optWGS");
    EXPECT_EQ(kelvo.text("txtYb"), "127.1500");
}

TEST_F(PlotSettings, SavingTakesTheBoxesIntoTheKindThatIsOn) {
    Program& kelvo = start();
    kelvo.click("optUGS");
    kelvo.click("optManual");
    kelvo.type("txtXb", "37.3");
    kelvo.type("txtYb", "127.15");
    kelvo.type("txtSpan", "0.01");
    kelvo.type("txtInter", "0.001");
    kelvo.type("txtFontSize", "10");
    kelvo.click("cmdPlot");
    EXPECT_EQ(kelvo.plotCfg().PlotKind, PointPlot::UGS);
    EXPECT_EQ(kelvo.plotCfg().PlotManual, 1);
    EXPECT_EQ(kelvo.plotCfg().UGS.Xb, 37.5F);
    EXPECT_EQ(kelvo.plotCfg().UGS.Yb, 127.25F);
    EXPECT_EQ(kelvo.plotCfg().WGS.Xb, 0.0F);
    EXPECT_EQ(kelvo.plotCfg().XY.Xb, 0.0F);
    EXPECT_EQ(disk.bytes(kPlotCfg),
              " 2 \r\n 1 \r\n 10 \r\n 0  0  0  0 \r\n"
              " 37.5  127.25  .01666667  .002777778 \r\n 0  0  0  0 \r\n");
}

TEST_F(PlotSettings, BoxThatIsNoNumberIsAFaultAndLeavesTheFileAsItWas) {
    Program& kelvo = start();
    for (const char* name : {"txtXb", "txtYb", "txtSpan", "txtInter", "txtFontSize"}) {
        const std::string before = kelvo.text(name);
        kelvo.type(name, "abc");
        EXPECT_EQ(faultOf([&] { kelvo.click("cmdPlot"); }), 13) << name;
        EXPECT_EQ(disk.bytes(kPlotCfg), kFirst) << name;
        kelvo.type(name, before);
    }
}

TEST_F(PlotSettings, BoxBeyondAFloatIsAnOverflow) {
    Program& kelvo = start();
    kelvo.type("txtXb", "1e39");
    EXPECT_EQ(faultOf([&] { kelvo.click("cmdPlot"); }), 6);
}

TEST_F(PlotSettings, LineCutShortIsReplacedAndKeepsTheScalesReadBefore) {
    Program& kelvo = startWith(" 1 \r\n 1 \r\n 7 \r\n 37.5  127.25  .5  .125 \r\n 36.5  128 \r\n");
    EXPECT_EQ(kelvo.plotCfg().WGS.Yb, 127.25F);
    EXPECT_EQ(kelvo.plotCfg().UGS.Xb, 36.5F);
    EXPECT_EQ(kelvo.plotCfg().PlotKind, PointPlot::XY);
    EXPECT_EQ(disk.bytes(kPlotCfg),
              " 3 \r\n 0 \r\n 8 \r\n 37.5  127.25  .5  .125 \r\n 36.5  128  0  0 \r\n"
              " 0  0  0  0 \r\n");
}

TEST_F(PlotSettings, ScaleThatCannotBeShownDoesNotGoRoundForEver) {
    // Degrees beyond their type fail in the boxes, and would come back from each new file.
    Program& kelvo =
        startWith(" 1 \r\n 0 \r\n 7 \r\n 40000  127  1  1 \r\n 36  128  1  1 \r\n 5  6  7  8 \r\n");
    EXPECT_EQ(kelvo.plotCfg().WGS.Xb, 0.0F);
    EXPECT_EQ(kelvo.plotCfg().XY.Inter, 0.0F);
    EXPECT_EQ(disk.bytes(kPlotCfg), kFirst);
}

TEST_F(PlotSettings, FileThatCanNeverBeReadEndsInItsFault) {
    disk.before = [](const std::string& operation, const std::string& path) {
        if (operation == "openForReading" && path == kPlotCfg) raise(Fault::PermissionDenied);
    };
    EXPECT_EQ(faultOf([&] { start(); }), 70);
}

TEST_F(PlotSettings, UnknownKindLeavesTheLastOfTheThree) {
    Program& kelvo =
        startWith(" 7 \r\n 0 \r\n 8 \r\n 1  2  3  4 \r\n 1  2  3  4 \r\n 1  2  3  4 \r\n");
    EXPECT_TRUE(kelvo.on("optXY"));
    EXPECT_EQ(kelvo.plotCfg().PlotKind, PointPlot{7});
}

TEST_F(PlotSettings, BoxesSelectThemselvesOnEntry) {
    Program& kelvo = start();
    for (const char* name : {"txtXb", "txtYb", "txtSpan", "txtInter", "txtFontSize"}) {
        kelvo.at(name).enter();
        EXPECT_EQ(kelvo.at(name).selLength(), static_cast<int>(kelvo.text(name).size())) << name;
    }
}

TEST_F(PlotSettings, SurviveClosingAndStartingAgain) {
    Program& first = start();
    first.click("optWGS");
    first.type("txtXb", "37.3");  // half a degree, exact in a float
    first.type("txtFontSize", "9.5");
    first.click("optManual");
    first.window.Form_Close();
    Program& second = start();
    EXPECT_TRUE(second.on("optWGS"));
    EXPECT_TRUE(second.on("optManual"));
    EXPECT_EQ(second.text("txtXb"), " 37.3000");
    EXPECT_EQ(second.text("txtFontSize"), "9.5");
}

TEST_F(PlotSettings, PictureShownAgainByHandIsTheOneOfTheAutomaticScale) {
    disk.putText("/app/data/a.dat",
                 "TM p1 500000 200000 0\r\n   p2 500040 200012 0\r\nend\r\n*\r\n");
    Program& kelvo = start();
    kelvo.click("mnuBatchGo");
    kelvo.click("cmdPlot");
    const auto automatic = std::exchange(kelvo.services.screenCalls, {});
    kelvo.click("optManual");
    kelvo.click("cmdPlot");
    EXPECT_EQ(kelvo.services.screenCalls, automatic);
    EXPECT_GT(automatic.size(), 20U);
}

}  // namespace
}  // namespace kelvo
