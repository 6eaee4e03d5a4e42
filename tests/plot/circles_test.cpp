#include <cmath>
#include <numbers>

#include "plot_fixture.h"

namespace kelvo::testing {
namespace {

using PlotCircles = PlotTest;

constexpr const char* kWhole = "Circle 567.0000 1134.0000 113.4000 0 0.0000 0.0000 0.0000 0";

TEST_F(PlotCircles, AboutAFullTurnIsAWholeCircle) {
    useScreen();
    object.pcircle(10, 20, 2, 0, 360, 1);
    object.pcircle(10, 20, 2, -1, 359, 1);
    object.pcircle(10, 20, 2, 0, 358.5, 1);
    object.pcircle(10, 20, 2, 10, 372.5, 1);
    object.pcircle(10, 20, 2, 0, 0, 1);
    EXPECT_EQ(drawn(), (Lines{"DrawWidth = 1.0000", kWhole, kWhole, kWhole, kWhole, kWhole}));
}

TEST_F(PlotCircles, SpansOf358And363StayArcs) {
    useScreen();
    object.pcircle(10, 20, 2, 0, 358, 0);
    object.pcircle(10, 20, 2, 0, 363, 0);  // 363 - 360 = 3 degrees
    EXPECT_EQ(drawn(), (Lines{"Circle 567.0000 1134.0000 113.4000 0 0.0000 6.2483 0.0000 192",
                              "Circle 567.0000 1134.0000 113.4000 0 0.0000 0.0524 0.0000 192"}));
}

TEST_F(PlotCircles, HalfCircleRunsFromZeroToPi) {
    useScreen();
    object.pcircle(10, 20, 2, 0, 180, 0);
    EXPECT_EQ(drawn(), Lines{"Circle 567.0000 1134.0000 113.4000 0 0.0000 3.1416 0.0000 192"});
}

TEST_F(PlotCircles, AnglesAreBroughtIntoOneTurnOnceOnly) {
    useScreen();
    object.pcircle(10, 20, 2, -90, 450, 0);
    object.pcircle(10, 20, 2, -700, 10, 0);
    EXPECT_EQ(drawn(), (Lines{"Circle 567.0000 1134.0000 113.4000 0 4.7124 1.5708 0.0000 192",
                              "Circle 567.0000 1134.0000 113.4000 0 -5.9341 0.1745 0.0000 192"}));
}

TEST_F(PlotCircles, ArcTakesThePensColour) {
    useScreen();
    object.setBlackWhite(true);
    object.ChangeColor(255, 2);
    drawn();
    object.pcircle(10, 20, 2, 0, 90, 0);
    EXPECT_EQ(drawn(), Lines{"Circle 567.0000 1134.0000 113.4000 255 0.0000 1.5708 0.0000 192"});
}

TEST_F(PlotCircles, RadiusGoesByTheXScaleAndIsNegativeWhereXRunsBackward) {
    useScreen();
    object.pwindow(0, 10, 100, 0, 0, 0, 50, 10, 0);
    object.pcircle(5, 5, 1, 0, 0, 0);
    EXPECT_EQ(drawn(), Lines{"Circle 2835.0000 1417.5000 -567.0000 0 0.0000 0.0000 0.0000 0"});
}

TEST_F(PlotCircles, DashedWholeCircleRunsInArcsAndEndsWithTheSolidRest) {
    useScreen();
    object.pcircledot(50, 50, 10, 0, 0, 1, 2, 1);
    const auto lines = drawn();
    // Way 2 pi 10 = 62.83 mm, period 3 mm: 20 dashes, then the rest.
    ASSERT_EQ(countOf(lines, "Circle"), 21);
    for (int i = 1; i <= 20; ++i) {
        char expected[100];
        std::snprintf(expected, sizeof expected,
                      "Circle 2835.0000 2835.0000 567.0000 0 %.4f %.4f 0.0000 192", (i - 1) * 0.3,
                      (i - 1) * 0.3 + 0.2);
        EXPECT_EQ(lines[static_cast<std::size_t>(i)], expected);
    }
    EXPECT_EQ(lines.back(), "Circle 2835.0000 2835.0000 567.0000 0 5.9000 6.2832 0.0000 192");
}

TEST_F(PlotCircles, DashedArcShorterThanAPeriodIsDrawnFromZero) {
    useScreen();
    object.pcircledot(50, 50, 10, 90, 95, 0, 2, 1);
    EXPECT_EQ(drawn(), Lines{"Circle 2835.0000 2835.0000 567.0000 0 0.0000 1.6581 0.0000 192"});
}

TEST_F(PlotCircles, DashedCircleWithoutPeriodOrRadiusIsADivisionFault) {
    useScreen();
    EXPECT_EQ(faultOf([&] { object.pcircledot(5, 5, 10, 0, 90, 0, 0, 0); }), 11);
    EXPECT_EQ(faultOf([&] { object.pcircledot(5, 5, 0, 0, 90, 0, 2, 1); }), 11);
}

TEST_F(PlotCircles, DashedCircleOfHairDashesEnds) {
    useScreen();
    object.pcircledot(5, 5, 100, 0, 0, 0, 1e-12, 0);
    EXPECT_EQ(countOf(drawn(), "Circle"), clsplot1::kMostStrokes + 1);
}

}  // namespace
}  // namespace kelvo::testing
