#include "plot_fixture.h"

namespace kelvo::testing {
namespace {

using PlotSymbols = PlotTest;

TEST_F(PlotSymbols, CircleOfFourMillimetresHasARadiusOfTwoTimesTheMagnification) {
    double lw = 1;
    object.pinitialize(15, 40, 1.3, 1.3, 1, printer);
    object.pwindow(0, 0, 137, 1.1, 0, 1.1, 137, 0, 0);
    drawn();
    object.ticmark(0.5, 0.5, 4, 0, lw);
    const auto lines = drawn();
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_NE(lines[1].find(" 147.4200 0 0.0000"), std::string::npos)
        << lines[1];  // 2 x 1.3 x 56.7
    EXPECT_EQ(lw, 1);
}

TEST_F(PlotSymbols, UnknownKindOnlySetsThePen) {
    useScreen();
    double lw = 3;
    object.ticmark(5, 5, 4, 6, lw);
    EXPECT_EQ(drawn(), Lines{"DrawWidth = 3.0000"});
    EXPECT_EQ(lw, 3);
}

TEST_F(PlotSymbols, PlusAndCrossWidenTheCallersWidthEachTime) {
    useScreen();
    double lw = 1;
    object.ticmark(5, 5, 4, 3, lw);
    EXPECT_EQ(lw, 1.4);
    EXPECT_EQ(countOf(drawn(), "DrawWidth = 1.4000"), 1);
    object.ticmark(5, 5, 4, 4, lw);
    EXPECT_EQ(lw, 1.4 * 1.4);
    EXPECT_EQ(countOf(drawn(), "DrawWidth = 1.9600"), 1);
}

TEST_F(PlotSymbols, TrianglesPointTowardAndAwayFromGrowingY) {
    useScreen();
    useUpwardWindow();
    double lw = 0;
    object.ticmark(5, 5, 2, 1, lw);
    EXPECT_NEAR(object.LastY(), 5.14, 1e-6);  // 0.7 of 2 mm, 10 mm a unit
    object.ticmark(5, 5, 2, 5, lw);
    EXPECT_NEAR(object.LastY(), 4.86, 1e-6);
}

TEST_F(PlotSymbols, BoxIsThreeQuartersAsWideAsHigh) {
    useScreen();
    double lw = 0;
    object.ticmark(50, 50, 4, 2, lw);
    EXPECT_EQ(drawn()[0], "Line 2920.0500 2948.4000 2920.0500 2721.6000 0 6");
}

TEST_F(PlotSymbols, SymbolHasTheSameSizeInEveryWindow) {
    double lw = 0;
    const auto heights = [&] {
        std::vector<double> result;
        for (const auto& line : drawn()) {
            double v[4];
            if (std::sscanf(line.c_str(), "Line %lf %lf %lf %lf", &v[0], &v[1], &v[2], &v[3]) == 4)
                result.push_back(v[3] - v[1]);
        }
        return result;
    };
    useScreen();
    object.pwindow(0, 0, 100, 10, 0, 10, 100, 0, 0);
    object.ticmark(5, 5, 4, 4, lw);
    const auto linear = heights();
    object.pwindow(0, 1, 100, 1000, 0, 1000, 100, 1, 3);
    object.ticmark(50, 20, 4, 4, lw);
    const auto logarithmic = heights();
    ASSERT_EQ(linear.size(), 2U);
    ASSERT_EQ(logarithmic.size(), 2U);
    EXPECT_NEAR(linear[0], 4 * 56.7, 0.01);
    EXPECT_NEAR(logarithmic[0], linear[0], 0.01);
}

}  // namespace
}  // namespace kelvo::testing
