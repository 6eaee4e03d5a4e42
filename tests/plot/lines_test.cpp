#include "plot_fixture.h"

namespace kelvo::testing {
namespace {

using PlotLines = PlotTest;

TEST_F(PlotLines, WidthZeroKeepsThePenAndIsNotRemembered) {
    useScreen();
    object.pline(0, 0, 1, 1, 2);
    object.pline(0, 0, 1, 1, 0);
    object.pline(0, 0, 1, 1, 2);
    EXPECT_EQ(countOf(drawn(), "DrawWidth"), 1);
}

TEST_F(PlotLines, BoxOfWidthZeroSetsTheThinnestPenWithoutRememberingIt) {
    useScreen();
    object.pline(0, 0, 1, 1, 2);
    drawn();
    object.pbox(1, 1, 2, 2, 0);
    EXPECT_EQ(drawn(),
              (Lines{"DrawWidth = 1.0000", "Line 56.7000 56.7000 113.4000 113.4000 0 22"}));
    object.pline(0, 0, 1, 1, 2);  // still believed to be the pen
    EXPECT_EQ(countOf(drawn(), "DrawWidth"), 0);
}

TEST_F(PlotLines, BoxOfANewWidthSetsThePenTwice) {
    useScreen();
    object.pbox(1, 1, 2, 2, 3);
    EXPECT_EQ(countOf(drawn(), "DrawWidth = 3.0000"), 2);
}

TEST_F(PlotLines, AlternativeLineIsGreenWhateverThePenAndTheNextOneIsNot) {
    useScreen();
    object.setBlackWhite(true);
    object.ChangeColor(255, 2);
    drawn();
    object.pline(0, 0, 1, 0, 0, true);
    object.pline(0, 0, 1, 0, 0);
    EXPECT_EQ(drawn(), (Lines{"Line 0.0000 0.0000 56.7000 0.0000 32768 6",
                              "Line 0.0000 0.0000 56.7000 0.0000 255 6"}));
}

TEST_F(PlotLines, FailureOfTheSurfaceInALineIsSwallowedAndThePenStays) {
    useScreen();
    object.pmoveto(5, 5);
    failAt = "Line";
    EXPECT_EQ(faultOf([&] { object.pline(0, 0, 1, 1, 2); }), 0);
    EXPECT_EQ(object.LastX(), 5);
    failAt = "DrawWidth";
    EXPECT_EQ(faultOf([&] { object.pline(0, 0, 1, 1, 3); }), 0);
    EXPECT_EQ(drawn(), Lines{"DrawWidth = 2.0000"});
    failAt.clear();
    object.pline(0, 0, 1, 1, 3);  // 3 was never set, so it isn't remembered
    EXPECT_EQ(countOf(drawn(), "DrawWidth = 3.0000"), 1);
}

TEST_F(PlotLines, FailureOfTheSurfaceInOtherLinesIsAFault) {
    useScreen();
    failAt = "Line";
    EXPECT_EQ(faultOf([&] { object.plineto(1, 1, 0); }), 75);
    EXPECT_EQ(faultOf([&] { object.plinerelto(1, 1, 0); }), 75);
    EXPECT_EQ(faultOf([&] { object.plinemmto(1, 1, 1, 1, 0); }), 75);
    EXPECT_EQ(faultOf([&] { object.pbox(1, 1, 2, 2, 0); }), 75);
    EXPECT_EQ(object.LastX(), 0);
}

TEST_F(PlotLines, ArithmeticFaultInALineIsNotSwallowed) {
    useScreen();
    EXPECT_EQ(faultOf([&] { object.pline(0, 0, 1e300, 1, 1); }), 6);
}

TEST_F(PlotLines, LineWithoutASurfaceEndsQuietly) {
    EXPECT_EQ(faultOf([&] { object.pline(0, 0, 1, 1, 1); }), 0);
    EXPECT_EQ(object.LastX(), 0);
}

TEST_F(PlotLines, RelativeLineMovesBothAxesFromTheirOwnValues) {
    useScreen();
    object.pmoveto(10, 20);
    object.plinerelto(1, 2, 0);
    EXPECT_EQ(object.LastX(), 11);
    EXPECT_EQ(object.LastY(), 22);
    EXPECT_EQ(drawn(), Lines{"Line 567.0000 1134.0000 623.7000 1247.4000 0 6"});
}

TEST_F(PlotLines, MillimetreLineLeavesThePenIn32BitsAndTheMoveDoesNot) {
    useScreen();
    object.pmovemmto(0.1, 0, 0.3, 0);
    EXPECT_NEAR(object.LastY(), 0.3, 1e-15);
    EXPECT_NE(object.LastY(), static_cast<double>(0.3F));
    object.plinemmto(0.1, 0, 0.3, 0, 0);
    EXPECT_EQ(object.LastX(), static_cast<double>(0.1F));
    EXPECT_EQ(object.LastY(), static_cast<double>(0.3F));
}

TEST_F(PlotLines, DashedLineOfTenMillimetresHasTwoDashesAndAnEmptyRest) {
    useScreen();
    useUpwardWindow();  // 10 mm a unit
    object.plinedot(1, 5, 2, 5, 1, 3, 1);
    // The pen on the start, then a dash from 0 to 3 mm and one from 4 to 7 mm.
    EXPECT_EQ(drawn(),
              (Lines{"DrawWidth = 1.0000", "Line 567.0000 2835.0000 567.0000 2835.0000 0 6",
                     "Line 567.0000 2835.0000 737.1000 2835.0000 0 6",
                     "Line 793.8000 2835.0000 963.9000 2835.0000 0 6"}));
    EXPECT_NEAR(object.LastX(), 1.8, 1e-6);  // the start of the period that isn't drawn
}

TEST_F(PlotLines, DashedLineOfWholePeriodsHasADashForEach) {
    useScreen();
    useUpwardWindow();  // 10 mm a unit
    object.plinedot(1, 5, 2, 5, 1, 4, 1);
    EXPECT_EQ(drawn(),
              (Lines{"DrawWidth = 1.0000", "Line 567.0000 2835.0000 567.0000 2835.0000 0 6",
                     "Line 567.0000 2835.0000 793.8000 2835.0000 0 6",
                     "Line 850.5000 2835.0000 1077.3000 2835.0000 0 6"}));
}

TEST_F(PlotLines, DashesHeadForTheEndOnlyWhereYGrowsUpward) {
    useScreen();
    useUpwardWindow();
    object.plinedot(5, 5, 5, 6, 1, 3, 1);
    EXPECT_GT(object.LastY(), 5);
    object.pwindow(0, 0, 100, 10, 0, 0, 100, 10, 0);
    object.plinedot(5, 5, 5, 6, 1, 3, 1);
    EXPECT_LT(object.LastY(), 5);
}

TEST_F(PlotLines, DashAndGapOfZeroAreADivisionFault) {
    useScreen();
    EXPECT_EQ(faultOf([&] { object.plinedot(1, 1, 9, 9, 1, 0, 0); }), 11);
    EXPECT_EQ(faultOf([&] { object.plinedot(1, 1, 9, 9, 1, 2, -2); }), 11);
}

TEST_F(PlotLines, DashedLineWithoutLengthIsADivisionFault) {
    useScreen();
    EXPECT_EQ(faultOf([&] { object.plinedot(1, 1, 1, 1, 1, 3, 1); }), 6);
}

TEST_F(PlotLines, DashedLineOfHairDashesEnds) {
    useScreen();
    object.plinedot(1, 1, 100, 1, 1, 1e-12, 0);
    EXPECT_EQ(countOf(drawn(), "Line"), clsplot1::kMostStrokes + 1);
}

TEST_F(PlotLines, ArrowIsSixLinesWithItsBarATenthOfARadianOffTheSquare) {
    useScreen();
    object.parrow(10, 20, 6, 2, 0, 1);
    // h = 1, u = 0.1: A = (10 - sin 0.1, 20 + cos 0.1), C opposite; T = (16, 20).
    const double s = 0.09983341664682815;
    const double c = 0.9950041652780258;
    const auto line = [](double x1, double y1, double x2, double y2) {
        char text[120];
        std::snprintf(text, sizeof text, "Line %.2f %.2f %.2f %.2f", x1 * 56.7, y1 * 56.7,
                      x2 * 56.7, y2 * 56.7);
        return std::string(text);
    };
    const Lines expected{line(16, 20, 10, 20),
                         line(10 - s, 20 + c, 10 + s, 20 - c),
                         line(16, 20, 10 - s * 2 / 3, 20 + c * 2 / 3),
                         line(16, 20, 10 - s / 3, 20 + c / 3),
                         line(16, 20, 10 + s / 3, 20 - c / 3),
                         line(16, 20, 10 + s * 2 / 3, 20 - c * 2 / 3)};
    Lines lines = drawn();
    ASSERT_EQ(lines.size(), 7U);
    EXPECT_EQ(lines[0], "DrawWidth = 1.0000");
    for (std::size_t i = 0; i < expected.size(); ++i) {
        double a[4];
        double b[4];
        ASSERT_EQ(
            std::sscanf(lines[i + 1].c_str(), "Line %lf %lf %lf %lf", &a[0], &a[1], &a[2], &a[3]),
            4);
        ASSERT_EQ(
            std::sscanf(expected[i].c_str(), "Line %lf %lf %lf %lf", &b[0], &b[1], &b[2], &b[3]),
            4);
        for (int k = 0; k < 4; ++k) EXPECT_NEAR(a[k], b[k], 0.01) << i;
    }
}

}  // namespace
}  // namespace kelvo::testing
