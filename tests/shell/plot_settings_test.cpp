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

TEST_F(PlotSettings, ScaleOfAnyKindThatCannotBeShownIsReplaced) {
    const std::string good = " 36  127  1  1 \r\n";
    const std::string bad = " 40000  127  1  1 \r\n";
    for (const std::string& angles : {bad + good, good + bad}) {
        disk.putText(kPlotCfg, " 3 \r\n 0 \r\n 7 \r\n" + angles + " 5  6  7  8 \r\n");
        Program& kelvo = start();
        EXPECT_EQ(kelvo.plotCfg().PlotFontSize, 8.0F);
        EXPECT_EQ(disk.bytes(kPlotCfg), kFirst);
    }
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

// Choosing a kind shows its scale in the boxes; only 적용 makes it the kind that is drawn. Until
// then whatever draws works for the other kind and leaves the panel alone.
class ChosenButNotApplied : public PlotSettings,
                            public ::testing::WithParamInterface<std::pair<int, const char*>> {
protected:
    static std::string fileOf(int kind) {
        return " " + std::to_string(kind) +
               " \r\n 0 \r\n 8 \r\n 37.5  127.25  .5  .125 \r\n 36.5  128  .25  .0625 \r\n"
               " 500000  200000  1000  200 \r\n";
    }
    static bool same(const PlotScale& one, const PlotScale& other) {
        return one.Xb == other.Xb && one.Yb == other.Yb && one.Span == other.Span &&
               one.Inter == other.Inter;
    }
};

TEST_P(ChosenButNotApplied, KindLeavesPanelFileAndTheOtherScalesAlone) {
    const auto [drawn, chosen] = GetParam();
    disk.putText("/app/data/a.dat",
                 "WGS A 37.35332567 126.32293454 30\r\n    B 37.35342567 126.32303454 30\r\n"
                 "end\r\n \r\n");
    Program& kelvo = startWith(fileOf(drawn));
    kelvo.click("mnuBatchGo");
    kelvo.click(chosen);
    const PlotCfg before = kelvo.plotCfg();
    std::vector<std::string> boxes;
    for (const char* name : {"txtXb", "txtYb", "txtSpan", "txtInter"})
        boxes.push_back(kelvo.text(name));
    for (const char* command : {"cmdShow", "cmdPrint"}) {
        SCOPED_TRACE(command);
        kelvo.click(command);
        std::size_t box = 0;
        for (const char* name : {"txtXb", "txtYb", "txtSpan", "txtInter"})
            EXPECT_EQ(kelvo.text(name), boxes[box++]) << name;
        EXPECT_TRUE(kelvo.on(chosen));
        const PlotCfg& now = kelvo.plotCfg();
        EXPECT_EQ(static_cast<int>(now.PlotKind), drawn);
        EXPECT_EQ(same(now.WGS, before.WGS), drawn != 1);
        EXPECT_EQ(same(now.UGS, before.UGS), drawn != 2);
        EXPECT_EQ(same(now.XY, before.XY), drawn != 3);
        EXPECT_EQ(disk.bytes(kPlotCfg), fileOf(drawn));
    }
    // One second of arc, and 20 m for its 31 m, as the boxes of the kind drawn would have shown
    // them.
    const PlotCfg& now = kelvo.plotCfg();
    if (drawn == 1) {
        EXPECT_EQ(now.WGS.Inter, 1.0F / 3600);
        EXPECT_EQ(now.WGS.Xb, static_cast<float>(37 + 35.0 / 60 + 33.0 / 3600));
    }
    EXPECT_EQ(now.UGS.Inter, drawn == 2 ? 1.0F / 3600 : .0625F);
    EXPECT_EQ(now.XY.Inter, drawn == 3 ? 20.0F : 200.0F);
}

INSTANTIATE_TEST_SUITE_P(Kinds, ChosenButNotApplied,
                         ::testing::Values(std::pair{3, "optWGS"}, std::pair{3, "optUGS"},
                                           std::pair{1, "optUGS"}, std::pair{1, "optXY"},
                                           std::pair{2, "optWGS"}, std::pair{2, "optXY"}));

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
