#include "plot/point_plots.h"

#include <filesystem>
#include <fstream>
#include <sstream>

#include "common/number_text.h"
#include "geodesy/angle_forms.h"
#include "plot/automatic_scale.h"
#include "plot_fixture.h"

namespace kelvo::testing {
namespace {

// The scale panel without its form: the texts are read back into the group of the kind drawn.
class PanelDouble final : public ScalePanel {
public:
    PanelDouble(PlotCfg& cfg, Lines& record) : cfg_(cfg), lines_(record) {}

    void takeScale(PointPlot drawn, const std::array<std::string, 4>& texts) override {
        lines_.emplace_back("takeScale");
        boxes = texts;
        const auto read = [drawn](const std::string& box) {
            if (drawn == PointPlot::XY) return strictSingle(box);
            return static_cast<float>(KelvoSub::DmsToDeg(strictNumber(box)).degrees);
        };
        *cfg_.scaleOf(drawn) = {read(boxes[0]), read(boxes[1]), read(boxes[2]), read(boxes[3])};
    }

    std::array<std::string, 4> boxes;

private:
    PlotCfg& cfg_;
    Lines& lines_;
};

class PointPlots : public PlotTest {
protected:
    void addPoint(const std::string& name, double N, double E) {
        PointRec& row = points.row(++points.PointCount);
        row.name = name;
        // Each kind of plot has fields of its own; the others hold what would show at once.
        const bool wgs = cfg.PlotKind == PointPlot::WGS;
        const bool user = cfg.PlotKind == PointPlot::UGS;
        row.WgsPhi = wgs ? N : 1;
        row.WgsLam = wgs ? E : 2;
        row.UserPhi = user ? N : 3;
        row.UserLam = user ? E : 4;
        row.TmX = cfg.PlotKind == PointPlot::XY ? N : 5;
        row.TmY = cfg.PlotKind == PointPlot::XY ? E : 6;
    }

    PlotScale& group() { return *cfg.scaleOf(cfg.PlotKind); }

    // Draws and gives the calls, those of the panel taken out of them.
    Lines draw(SurfaceKind kind = SurfaceKind::Screen) {
        PanelDouble panel(cfg, recorded);
        PlotSource source{points, cfg, panel, texts};
        kelvo::plot(object, kind, kind == SurfaceKind::Screen ? screen : printer, source);
        boxes = panel.boxes;
        Lines calls = drawn();
        saves = std::erase(calls, "takeScale");
        return calls;
    }

    PlotCfg cfg{.PlotKind = PointPlot::XY,
                .PlotManual = 0,
                .PlotFontSize = 8,
                .WGS = {},
                .UGS = {},
                .XY = {}};
    PointTable points;
    PlotTexts texts{"/home/user/data/test.dat", "2004-06-07", "09:30:00"};
    std::array<std::string, 4> boxes;
    std::size_t saves = 0;
};

std::vector<std::filesystem::path> goldenFiles(const std::string& start) {
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::directory_iterator(
             std::filesystem::path(KELVO_SOURCE_DIR) / "tests/golden/plots"))
        if (entry.path().extension() == ".plot" &&
            entry.path().filename().string().starts_with(start))
            files.push_back(entry.path());
    std::sort(files.begin(), files.end());
    return files;
}

// Renewed by tests/golden/plots/make_plots.py, which calculates them on its own.
class GoldenPlots : public PointPlots,
                    public ::testing::WithParamInterface<std::filesystem::path> {};

TEST_P(GoldenPlots, IsToldToTheSurfaceCallByCall) {
    std::ifstream file(GetParam());
    SurfaceKind surfaceKind = SurfaceKind::Screen;
    Lines expectedBoxes;
    for (std::string line; std::getline(file, line) && line != ".";) {
        std::istringstream words(line);
        std::string word;
        words >> word;
        if (word == "kind") {
            words >> word;
            cfg.PlotKind = word == "WGS"   ? PointPlot::WGS
                           : word == "UGS" ? PointPlot::UGS
                                           : PointPlot::XY;
        } else if (word == "surface") {
            words >> word;
            surfaceKind = word == "printer" ? SurfaceKind::Printer : SurfaceKind::Screen;
        } else if (word == "size") {
            words >> cfg.PlotFontSize;
        } else if (word == "manual") {
            double v[4];
            words >> v[0] >> v[1] >> v[2] >> v[3];
            cfg.PlotManual = 1;
            group() = {static_cast<float>(v[0]), static_cast<float>(v[1]), static_cast<float>(v[2]),
                       static_cast<float>(v[3])};
        } else if (word == "box") {
            expectedBoxes.push_back(line.substr(4));
        } else if (word == "point") {
            double N = 0;
            double E = 0;
            std::string name;
            words >> N >> E >> name;
            addPoint(name, N, E);
        } else {
            FAIL() << line;
        }
    }
    Lines expected;
    for (std::string line; std::getline(file, line);) expected.push_back(line);
    ASSERT_GT(expected.size(), 10U);
    EXPECT_EQ(draw(surfaceKind), expected);
    if (!expectedBoxes.empty()) {
        EXPECT_EQ(Lines(boxes.begin(), boxes.end()), expectedBoxes);
    }
    EXPECT_EQ(saves, expectedBoxes.empty() ? 0U : 1U);
    EXPECT_TRUE(messages.shown.empty());
}

std::string plainName(const ::testing::TestParamInfo<std::filesystem::path>& info) {
    std::string name = info.param.stem().string();
    for (char& c : name)
        if (c == '-' || c == '.') c = '_';
    return name;
}

INSTANTIATE_TEST_SUITE_P(Wgs, GoldenPlots, ::testing::ValuesIn(goldenFiles("wgs")), plainName);
INSTANTIATE_TEST_SUITE_P(Ugs, GoldenPlots, ::testing::ValuesIn(goldenFiles("ugs")), plainName);
INSTANTIATE_TEST_SUITE_P(Xy, GoldenPlots, ::testing::ValuesIn(goldenFiles("xy")), plainName);

TEST_F(PointPlots, PlotOfThreePointsIsTheOneOfTheSessionExample) {
    addPoint("가", 500011.186, 200000.000);
    addPoint("나-2", 500003.729, 200011.960);
    addPoint("C3", 500000.000, 200029.900);
    const auto lines = draw();
    EXPECT_EQ(boxes, (std::array<std::string, 4>{" 499990", " 200000", "     30", "      5"}));
    EXPECT_EQ(countOf(lines, "Line 141.2345 353.0864 7626.6656 353.0864 0 6"), 1);  // the last one
    EXPECT_EQ(countOf(lines, "Circle 3168.3617 4183.1318 37.8000"), 1);
    EXPECT_EQ(countOf(lines, "Line 232.1263 2427.8218 474.4598 2427.4688 0 6"), 1);
}

TEST_F(PointPlots, SpanOfExactlyTenSecondsTakesTwo) {
    EXPECT_EQ(angleInterval(10), 2);
    EXPECT_EQ(angleInterval(10.5), 5);
    EXPECT_EQ(angleInterval(1800), 300);
    EXPECT_EQ(angleInterval(1800.0001), 3600);
    EXPECT_EQ(angleInterval(4.999), 1);
    EXPECT_EQ(angleInterval(5), 2);
}

TEST_F(PointPlots, MetreIntervalsChangeBelow30AndAboveTheOtherBounds) {
    EXPECT_EQ(gridInterval(0), 5);
    EXPECT_EQ(gridInterval(29.999), 5);
    EXPECT_EQ(gridInterval(30), 20);
    EXPECT_EQ(gridInterval(60), 20);
    EXPECT_EQ(gridInterval(60.001), 50);
    EXPECT_EQ(gridInterval(60000), 20000);
    EXPECT_EQ(gridInterval(60001), 50000);
}

TEST_F(PointPlots, OnePointStandsInASquareOfOneInterval) {
    addPoint("하나", 453211.376, 198765.432);
    draw();
    EXPECT_EQ(cfg.XY.Inter, 5);
    EXPECT_EQ(cfg.XY.Span, 5);
    EXPECT_EQ(cfg.XY.Xb, 453210);
    EXPECT_EQ(cfg.XY.Yb, 198760);  // rounded down from 198762.9
}

TEST_F(PointPlots, EqualRangesCountTheNorthAsTheWider) {
    Extents square;
    square.add(100.5, 200.5);
    square.add(110.5, 210.5);
    // The north is snapped: 100 to 115; the east is centred: 205.5 - 7.5 = 198 down to 195.
    const PlotScale scale = gridScale(square);
    EXPECT_EQ(scale.Xb, 100);
    EXPECT_EQ(scale.Span, 15);
    EXPECT_EQ(scale.Yb, 195);
}

TEST_F(PointPlots, NarrowAxisOfAnAnglePlotIsCentredToTheNearestInterval) {
    Extents square;
    square.add(100.5 / 3600, 200.5 / 3600);
    square.add(108.5 / 3600, 209.5 / 3600);
    // The east is wider, 9 s: interval 2, 200 to 210. North 104.5 - 5 = 99.5, nearest 100.
    const PlotScale scale = angleScale(square);
    EXPECT_EQ(scale.Yb, 200);
    EXPECT_EQ(scale.Span, 10);
    EXPECT_EQ(scale.Xb, 100);
}

TEST_F(PointPlots, ThousandSecondsAreDrawnToTheLastGridLine) {
    cfg.PlotKind = PointPlot::WGS;
    addPoint("A", 37.25, 127.0);
    addPoint("B", 37.25 + 1000.0 / 3600, 127.0);
    const auto lines = draw();
    // Whole multiples of 300 s from 134100 to 135300: five lines of equal north.
    EXPECT_NEAR(static_cast<double>(cfg.WGS.Span), 1200.0 / 3600, 1e-6);
    EXPECT_EQ(countOf(lines, "print   37-"), 5);
}

TEST_F(PointPlots, SevenDigitNorthIsShownWhole) {
    addPoint("A", 4150010.0, 322000.0);
    addPoint("B", 4154010.0, 322500.0);
    draw();
    EXPECT_EQ(boxes[0], "4150000");
}

TEST_F(PointPlots, ManualScaleAfterAnAutomaticPlotDrawsTheSamePicture) {
    for (const PointPlot kind : {PointPlot::WGS, PointPlot::UGS, PointPlot::XY}) {
        points.PointCount = 0;
        cfg.PlotKind = kind;
        cfg.PlotManual = 0;
        addPoint("A", kind == PointPlot::XY ? 453211.376 : 37.12345,
                 kind == PointPlot::XY ? 198765.432 : 127.12345);
        addPoint("B", kind == PointPlot::XY ? 453311.376 : 37.12545,
                 kind == PointPlot::XY ? 198785.432 : 127.12445);
        draw();  // the first plot sets the pen that the others find
        const auto automatic = draw();
        cfg.PlotManual = 1;
        EXPECT_EQ(draw(), automatic) << static_cast<int>(kind);
        EXPECT_EQ(saves, 0U);
    }
}

TEST_F(PointPlots, BindingComesFirstThenTheScaleThenTheDrawing) {
    addPoint("A", 453211.376, 198765.432);
    PanelDouble panel(cfg, recorded);
    PlotSource source{points, cfg, panel, texts};
    kelvo::plot(object, SurfaceKind::Screen, screen, source);
    const auto lines = drawn();
    ASSERT_GT(lines.size(), 5U);
    EXPECT_EQ(Lines(lines.begin(), lines.begin() + 4),
              (Lines{"ForeColor = 0", "Font = 굴림체", "takeScale", "Cls"}));
}

TEST_F(PointPlots, UnknownKindDrawsNothing) {
    cfg.PlotKind = PointPlot{4};
    EXPECT_EQ(draw(), (Lines{"ForeColor = 0", "Font = 굴림체"}));
}

TEST_F(PointPlots, PaperPlotEndsTheJobBeforeAndAfter) {
    cfg.PlotManual = 1;
    cfg.XY = {500000, 200000, 1000, 200};
    addPoint("A", 500100, 200100);
    const auto lines = draw(SurfaceKind::Printer);
    EXPECT_EQ(countOf(lines, "EndDoc"), 2);
    EXPECT_EQ(lines[2], "EndDoc");
    EXPECT_EQ(lines.back(), "EndDoc");
    EXPECT_EQ(countOf(lines, "fontsize = 10.4000"), 13);  // 8 x 1.3: 12 labels and a name
}

TEST_F(PointPlots, PointsBeyondTheSquareAreDrawnToo) {
    cfg.PlotManual = 1;
    cfg.XY = {500000, 200000, 1000, 200};
    addPoint("밖", 700000, 100);
    EXPECT_EQ(countOf(draw(), "Circle"), 1);
}

constexpr const char* kTitle = "print Kelvo Ver 3.5 Beta(2004.6.7)";
constexpr const char* kFooter = "print Data File = /home/user/data/test.dat  2004-06-07  09:30:00";

void expectTitleAndFooter(const Lines& lines) {
    EXPECT_EQ(countOf(lines, kTitle), 1);
    EXPECT_EQ(countOf(lines, kFooter), 1);
}

TEST_F(PointPlots, WithoutPointsTitleAndFooterStandAloneAndTheScaleIsLeft) {
    cfg.XY = {500000, 200000, 1000, 200};
    const auto lines = draw();
    EXPECT_EQ(countOf(lines, "Line"), 0);
    expectTitleAndFooter(lines);
    EXPECT_EQ(saves, 0U);
    EXPECT_EQ(boxes[0], "");
    EXPECT_EQ(cfg.XY.Span, 1000);
}

TEST_F(PointPlots, WithoutPointsAndScaleTheWindowIsRefusedAndTitleAndFooterStand) {
    const auto lines = draw();
    EXPECT_EQ(messages.shown.size(), 1U);
    expectTitleAndFooter(lines);
}

TEST_F(PointPlots, SpanOfZeroShowsTheWindowsMessageAndDrawsNoPoint) {
    cfg.PlotManual = 1;
    cfg.XY = {500000, 200000, 0, 200};
    addPoint("A", 500100, 200100);
    const auto lines = draw();
    ASSERT_EQ(messages.shown.size(), 1U);
    EXPECT_TRUE(messages.shown[0].text.starts_with("Error in sub PWINDOW"));
    EXPECT_EQ(countOf(lines, "Line"), 0);
    EXPECT_EQ(countOf(lines, "Circle"), 0);
    expectTitleAndFooter(lines);
}

TEST_F(PointPlots, IntervalNotAboveZeroLeavesTheGridOutAndDrawsThePoints) {
    addPoint("A", 500100, 200100);
    cfg.PlotManual = 1;
    for (const float inter : {0.0F, -5.0F}) {
        cfg.XY = {500000, 200000, 1000, inter};
        const auto lines = draw();
        EXPECT_EQ(countOf(lines, "TextOutA"), 0);
        EXPECT_EQ(countOf(lines, "Circle"), 1);
        expectTitleAndFooter(lines);
    }
}

TEST_F(PointPlots, GridOfMoreThanTwoThousandLinesIsLeftOut) {
    addPoint("A", 500, 500);
    cfg.PlotManual = 1;
    cfg.XY = {0, 0, 1999, 1};
    EXPECT_EQ(countOf(draw(), "TextOutA"), 2000);
    cfg.XY = {0, 0, 2000, 1};
    EXPECT_EQ(countOf(draw(), "TextOutA"), 0);
    cfg.XY = {0, 0, 1000, 1e-30F};
    EXPECT_EQ(countOf(draw(), "TextOutA"), 0);
}

TEST_F(PointPlots, IntervalTooSmallToMoveA32BitValueOnLeavesTheGridOut) {
    addPoint("A", 4150010, 322000);
    cfg.PlotManual = 1;
    cfg.XY = {4150000, 322000, 100, 0.1F};
    const auto lines = draw();
    EXPECT_EQ(countOf(lines, "TextOutA"), 0);
    EXPECT_EQ(countOf(lines, "Circle"), 1);
    expectTitleAndFooter(lines);
}

TEST_F(PointPlots, PointThatHasNoPlaceIsLeftOut) {
    cfg.PlotManual = 1;
    cfg.XY = {500000, 200000, 1000, 200};
    addPoint("멀리", 1e300, 200100);
    addPoint("A", 500100, 200100);
    const auto lines = draw();
    EXPECT_EQ(countOf(lines, "Circle"), 1);
    EXPECT_EQ(countOf(lines, "print 멀리"), 0);
    expectTitleAndFooter(lines);
}

TEST_F(PointPlots, ExtentsBeyondA32BitScaleAreAnOverflow) {
    addPoint("A", 1e300, 200100);
    addPoint("B", 0, 200100);
    EXPECT_EQ(faultOf([&] { draw(); }), 6);
}

}  // namespace
}  // namespace kelvo::testing
