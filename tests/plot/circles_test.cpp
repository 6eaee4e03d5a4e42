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

// Each end by itself, and 0 and 360 stay what they are.
TEST_F(PlotCircles, EachEndOfAnArcIsBroughtIntoItsTurn) {
    useScreen();
    const struct {
        double start;
        double end;
        const char* radians;
    } arcs[] = {
        {0, 90, "0.0000 1.5708"},    {90, 0, "1.5708 0.0000"},    {360, 90, "6.2832 1.5708"},
        {90, 360, "1.5708 6.2832"},  {361, 91, "0.0175 1.5882"},  {91, 361, "1.5882 0.0175"},
        {370, 400, "0.1745 0.6981"}, {-90, -45, "4.7124 5.4978"}, {-1, 90, "6.2657 1.5708"},
        {90, -1, "1.5708 6.2657"},   {10, -300, "0.1745 1.0472"}, {0, 357, "0.0000 6.2308"},
        {357, 0, "6.2308 0.0000"},   {0, 364, "0.0000 0.0698"}};
    for (const auto& arc : arcs) {
        object.pcircle(10, 20, 2, arc.start, arc.end, 0);
        EXPECT_EQ(drawn(), Lines{"Circle 567.0000 1134.0000 113.4000 0 " +
                                 std::string(arc.radians) + " 0.0000 192"})
            << arc.start << ' ' << arc.end;
    }
    for (const auto& [start, end] :
         {std::pair{0.0, 358.01}, {358.01, 0.0}, {0.0, 362.99}, {5.0, -355.0}}) {
        object.pcircle(10, 20, 2, start, end, 0);
        EXPECT_EQ(drawn(), Lines{kWhole}) << start << ' ' << end;
    }
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
