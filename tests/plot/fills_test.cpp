#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <vector>

#include "plot_fixture.h"

namespace kelvo::testing {
namespace {

using PlotFills = PlotTest;

constexpr double kPi = 3.14159265358979;

TEST_F(PlotFills, ModeSixChangesNothingAndItsNeighboursSetTheirNumbers) {
    useScreen();
    object.pfillMode(6);
    EXPECT_EQ(drawn(), Lines{});
    object.pfillMode(5);
    object.pfillMode(7);
    EXPECT_EQ(drawn(), (Lines{"DrawMode = 5", "DrawMode = 7"}));
}

TEST_F(PlotFills, ModesOutsideOneToSixteenChangeNothing) {
    useScreen();
    for (const double mode : {0.0, -1.0, 17.0, 2.5}) object.pfillMode(mode);
    EXPECT_EQ(drawn(), Lines{});
    object.pfillMode(16);
    EXPECT_EQ(drawn(), Lines{"DrawMode = 16"});
}

TEST_F(PlotFills, ModeOneCopiesThePenOnAPrinterWithColours) {
    useScreen();
    object.pfillMode(1);
    object.setPrinterType("t");
    object.pfillMode(1);
    EXPECT_EQ(drawn(), (Lines{"DrawMode = 1", "DrawMode = 13"}));
}

TEST_F(PlotFills, BoxIsFilledInItsColourAndTheSurfaceIsPutBack) {
    useScreen();
    screen.setDrawMode(RasterMode::PenXorPaper);
    screen.setForeColor(40000);
    drawn();
    const Lines expected{"FillStyle = 0", "ForeColor = 255",
                         "DrawMode = 13", "Line 56.7000 56.7000 113.4000 170.1000 255 38",
                         "FillStyle = 1", "ForeColor = 40000",
                         "DrawMode = 7"};
    object.pFillBox(1, 1, 2, 3, 255);
    EXPECT_EQ(drawn(), expected);
    object.pfill(1, 1, 2, 3, 255);
    EXPECT_EQ(drawn(), expected);
}

TEST_F(PlotFills, CircleIsFilledInItsColourAndTheSurfaceIsPutBack) {
    useScreen();
    object.pFillCircle(1, 2, 1, 255);
    EXPECT_EQ(drawn(),
              (Lines{"FillStyle = 0", "ForeColor = 255", "FillColor = 255", "DrawMode = 13",
                     "Circle 56.7000 113.4000 56.7000 0 0.0000 0.0000 0.0000 0", "FillStyle = 1",
                     "ForeColor = 0", "FillColor = 0", "DrawMode = 13"}));
}

TEST_F(PlotFills, CircleOverflowsOnAKeptColourAbove32767) {
    useScreen();
    screen.setForeColor(32767);
    drawn();
    EXPECT_EQ(faultOf([&] { object.pFillCircle(1, 2, 1, 255); }), 0);
    screen.setForeColor(32768);
    drawn();
    EXPECT_EQ(faultOf([&] { object.pFillCircle(1, 2, 1, 255); }), 6);
    EXPECT_EQ(drawn(), Lines{});
    screen.setForeColor(0);
    screen.setFillColor(65535);
    drawn();
    EXPECT_EQ(faultOf([&] { object.pFillCircle(1, 2, 1, 255); }), 6);
}

TEST_F(PlotFills, FaultStopsTheCallAndPutsNothingBack) {
    useScreen();
    failAt = "Line";
    EXPECT_EQ(faultOf([&] { object.pFillBox(1, 1, 2, 3, 255); }), 75);
    EXPECT_EQ(drawn(), (Lines{"FillStyle = 0", "ForeColor = 255", "DrawMode = 13"}));
}

TEST_F(PlotFills, BlackPolygonDrawsInModeOneAndAColouredOneCopies) {
    const std::array<double, 3> xs{10, 30, 20};
    const std::array<double, 3> ys{10, 11, 30};
    useScreen();
    object.pFillPoly(xs, ys, 3, 0);
    auto lines = drawn();
    EXPECT_EQ(lines[0], "ForeColor = 0");
    EXPECT_EQ(lines[1], "DrawMode = 1");
    EXPECT_EQ(lines.back(), "DrawMode = 13");
    object.pFillPoly(xs, ys, 3, 255);
    lines = drawn();
    EXPECT_EQ(lines[0], "ForeColor = 255");
    EXPECT_EQ(lines[1], "DrawMode = 13");
    EXPECT_EQ(lines[lines.size() - 2], "ForeColor = 0");
}

TEST_F(PlotFills, SquarePolygonFills) {
    const std::array<double, 4> xs{10, 20, 20, 10};
    const std::array<double, 4> ys{10, 10, 20, 20};
    useScreen();
    EXPECT_EQ(faultOf([&] { object.pFillPoly(xs, ys, 4, 255); }), 0);
    // Four triangles with three outlines each, and strokes over a height of 283.5 twips or more:
    // steps 11, 11, 22, 33, 44, 55, 66 pass it with the eighth (77).
    const auto lines = drawn();
    EXPECT_EQ(countOf(lines, "DrawWidth = 8.0000"), 4);
}

TEST_F(PlotFills, PolygonIsAFanOfTrianglesFromEachSideToTheMiddle) {
    const std::array<double, 4> xs{10, 31, 25, 12};
    const std::array<double, 4> ys{11, 14, 37, 23};
    useScreen();
    object.pFillPoly(xs, ys, 4, 255);
    const auto linesOf = [](const Lines& calls) {
        Lines lines;
        for (const auto& call : calls)
            if (call.starts_with("Line "))
                lines.push_back(call.substr(0, call.rfind(' ', call.size() - 3)));
        return lines;
    };
    const Lines polygon = linesOf(drawn());
    const double mx = (10 + 31 + 25 + 12) / 4.0;
    const double my = (11 + 14 + 37 + 23) / 4.0;
    object.pFillTri(10, 11, 31, 14, mx, my);
    object.pFillTri(31, 14, 25, 37, mx, my);
    object.pFillTri(25, 37, 12, 23, mx, my);
    object.pFillTri(12, 23, 10, 11, mx, my);
    EXPECT_EQ(polygon, linesOf(drawn()));
}

TEST_F(PlotFills, PolygonBeyondItsListsIsASubscriptFault) {
    const std::array<double, 3> three{1, 2, 3};
    useScreen();
    EXPECT_EQ(faultOf([&] { object.pFillPoly(three, three, 4, 255); }), 9);
    EXPECT_EQ(faultOf([&] { object.pFillPoly(three, three, -1, 255); }), 9);
    EXPECT_EQ(faultOf([&] { object.pFillPoly(three, three, 0, 255); }), 6);
}

TEST_F(PlotFills, PolygonOverflowsOnAKeptColourAbove32767) {
    const std::array<double, 3> xs{10, 30, 20};
    useScreen();
    screen.setForeColor(32768);
    drawn();
    EXPECT_EQ(faultOf([&] { object.pFillPoly(xs, xs, 3, 255); }), 6);
    EXPECT_EQ(drawn(), Lines{});
}

TEST_F(PlotFills, StrokesGetWiderTowardTheApex) {
    useScreen();
    object.pFillTri(10, 10, 30, 10.001, 20, 12);  // 113.4 twips high
    const auto lines = drawn();
    Lines widths;
    for (const auto& line : lines)
        if (line.starts_with("DrawWidth")) widths.push_back(line);
    // Steps 11, 11, 22, 33, 44 pass 113.4 with the fifth; the first two pens are 2 wide.
    EXPECT_EQ(widths, (Lines{"DrawWidth = 1.0000", "DrawWidth = 1.0000", "DrawWidth = 2.0000",
                             "DrawWidth = 2.0000", "DrawWidth = 3.0000", "DrawWidth = 4.0000",
                             "DrawWidth = 5.0000", "DrawWidth = 1.0000"}));
    EXPECT_EQ(countOf(lines, "Line"), 3 + 5);
}

TEST_F(PlotFills, EachStrokeLiesBehindTheOneBefore) {
    useScreen();
    object.pFillTri(10, 10, 30, 10.001, 20, 12);
    std::vector<double> heights;
    for (const auto& line : drawn()) {
        double x1 = 0;
        double y1 = 0;
        if (std::sscanf(line.c_str(), "Line %lf %lf", &x1, &y1) == 2) heights.push_back(y1);
    }
    ASSERT_EQ(heights.size(), 3U + 5U);
    // The middles of steps of 11, 11, 22, 33 and 44 twips above the first side.
    const std::array middles{5.5, 16.5, 33.0, 60.5, 99.0};
    for (std::size_t i = 0; i < middles.size(); ++i)
        EXPECT_NEAR(heights[i + 3], 10 * 56.7 + middles[i], 0.1) << i;
}

TEST_F(PlotFills, TheOutlineIsOnePixelWideFromItsFirstSideOn) {
    useScreen();
    object.pline(0, 0, 0, 0, 1);  // so that its width counts as written
    drawn();
    object.pFillTri(10, 10, 30, 10.001, 20, 12);
    const auto calls = drawn();
    ASSERT_GE(calls.size(), 2U);
    EXPECT_EQ(calls[0], "DrawWidth = 1.0000");
    EXPECT_TRUE(calls[1].starts_with("Line ")) << calls[1];
}

TEST_F(PlotFills, StrokesOnPaperStepByThePrintersPixel) {
    usePrinter();
    object.pFillTri(10, 10, 30, 10.001, 20, 12);
    // 113.4 / 2.4 = 47.25 pixels: 1 + 1 + 2 + ... + 9 = 46, so the eleventh stroke passes it.
    EXPECT_EQ(countOf(drawn(), "Line"), 3 + 11);
}

// The strokes of two triangles, line by line: the same within rounding.
void expectNear(const Lines& one, const Lines& other, std::ptrdiff_t strokes) {
    ASSERT_EQ(one.size(), other.size());
    std::ptrdiff_t compared = 0;
    for (std::size_t i = 0; i < one.size(); ++i) {
        double a[4];
        double b[4];
        const auto read = [](const std::string& line, double* v) {
            return std::sscanf(line.c_str(), "Line %lf %lf %lf %lf", &v[0], &v[1], &v[2], &v[3]);
        };
        if (read(one[i], a) != 4) {
            EXPECT_EQ(one[i], other[i]);
            continue;
        }
        ASSERT_EQ(read(other[i], b), 4);
        for (int v = 0; v < 4; ++v) EXPECT_NEAR(a[v], b[v], 0.01) << i << " " << one[i];
        ++compared;
    }
    EXPECT_EQ(compared, strokes);
}

TEST_F(PlotFills, UprightFirstSideTakesTheStrokesOfTheTriangleSlightlyTurned) {
    const auto strokes = [this](double side, double lean, double apex) {
        useScreen();
        object.pline(0, 0, 0, 0, 1);  // the outline's width is written once only
        drawn();
        object.pFillTri(side, 10, side + lean, 30, apex, 20);
        return drawn();
    };
    // On the surface's edge and off it; the apex on either side.
    for (const double side : {0.0, 40.0}) {
        for (const double apex : {side + 8, side - 8}) {
            SCOPED_TRACE(apex);
            const Lines upright = strokes(side, 0, apex);
            expectNear(upright, strokes(side, 1e-5, apex), 3 + 10);
        }
    }
}

TEST_F(PlotFills, UprightMovedSideMeetsTheOthersOnTheirLines) {
    const auto stroke = clsplot1::TriStroke(100, 0, 100, 40, 120, 20, 10, 0);
    EXPECT_NEAR(stroke.ax, 110, 1e-9);
    EXPECT_NEAR(stroke.ay, 10, 1e-9);
    EXPECT_NEAR(stroke.bx, 110, 1e-9);
    EXPECT_NEAR(stroke.by, 30, 1e-9);
}

TEST_F(PlotFills, MovedSideLiesBetweenTheOtherTwo) {
    const auto stroke = clsplot1::TriStroke(0, 0, 10, 0, 5, 10, 5, 90);
    EXPECT_NEAR(stroke.ax, 2.5, 1e-6);
    EXPECT_NEAR(stroke.ay, 5, 1e-6);
    EXPECT_NEAR(stroke.bx, 7.5, 1e-6);
    EXPECT_NEAR(stroke.by, 5, 1e-6);
}

TEST_F(PlotFills, EllipseIsAFanOf24Triangles) {
    useScreen();
    object.pFillEllipse(50, 60, 10, 15, 0.5, 255);
    const auto lines = drawn();
    EXPECT_EQ(lines[0], "ForeColor = 255");
    EXPECT_EQ(lines[1], "DrawMode = 13");
    EXPECT_EQ(lines[lines.size() - 2], "ForeColor = 0");
    EXPECT_EQ(lines.back(), "DrawMode = 13");
    // Each triangle ends with its pen of width 1 back, and begins with it twice in the first.
    long triangles = 0;
    for (std::size_t i = 1; i < lines.size(); ++i)
        triangles += lines[i] == "DrawWidth = 2.0000" && lines[i - 1].starts_with("Line") &&
                             !lines[i - 2].starts_with("DrawWidth")
                         ? 1
                         : 0;
    EXPECT_EQ(triangles, 24);
}

TEST_F(PlotFills, EllipseIsTurnedByItsAngle) {
    useScreen();
    object.pFillEllipse(50, 60, 10, 15, 0.5, 255);
    std::vector<std::array<double, 2>> begins;
    bool outline = false;
    for (const auto& line : drawn()) {
        std::array<double, 2> at{};
        const bool isLine = std::sscanf(line.c_str(), "Line %lf %lf", &at[0], &at[1]) == 2;
        if (isLine && !outline) begins.push_back(at);  // of an outline, or of a stroke
        outline = isLine;
    }
    const double turn = 15 * kPi / 180;
    for (int i = 0; i < 24; ++i) {
        const double along = 10 * std::cos(i * kPi / 12);
        const double across = 5 * std::sin(i * kPi / 12);
        const double x = 50 + along * std::cos(turn) + across * std::sin(turn);
        const double y = 60 + across * std::cos(turn) - along * std::sin(turn);
        const auto isThere = [&](const std::array<double, 2>& at) {
            return std::hypot(at[0] - 56.7 * x, at[1] - 56.7 * y) < 0.1;
        };
        EXPECT_TRUE(std::any_of(begins.begin(), begins.end(), isThere)) << i;
    }
}

TEST_F(PlotFills, EllipseOnAZeroValueBreaksItsFan) {
    useScreen();
    // The first corner stands on x = 10 + (-10) = 0, so the first sector is missing.
    object.pFillEllipse(-10, 60, 10, 0, 0.5, 255);
    const long broken = countOf(drawn(), "DrawWidth = 1.0000");
    object.pFillEllipse(-11, 60, 10, 0, 0.5, 255);
    EXPECT_GT(countOf(drawn(), "DrawWidth = 1.0000"), broken);
}

TEST_F(PlotFills, HugeTriangleEnds) {
    useScreen();
    object.pFillTri(0, 0, 1e9, 1, 5e8, 1e9);
    EXPECT_EQ(countOf(drawn(), "Line"), 3 + clsplot1::kMostTriangleStrokes);
}

TEST_F(PlotFills, FlatTriangleIsAFaultOrEnds) {
    useScreen();
    EXPECT_NE(faultOf([&] { object.pFillTri(1, 1, 1, 1, 1, 1); }), 0);
}

}  // namespace
}  // namespace kelvo::testing
