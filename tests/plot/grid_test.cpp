#include <cmath>

#include "plot_fixture.h"

namespace kelvo::testing {
namespace {

// A grid in a window of 100 mm, read back as the user values of its lines.
class PlotGrid : public PlotTest {
protected:
    struct Read {
        double value;
        bool upright;
        bool major;
    };

    // The lines that the surface was given, in order; majors are 2 wide.
    std::vector<Read> readLines() {
        std::vector<Read> result;
        bool major = false;
        for (const auto& line : drawn()) {
            if (line.starts_with("DrawWidth")) major = line == "DrawWidth = 2.0000";
            double v[4];
            if (std::sscanf(line.c_str(), "Line %lf %lf %lf %lf", &v[0], &v[1], &v[2], &v[3]) != 4)
                continue;
            const bool upright = v[0] == v[2];
            result.push_back({upright ? object.cxInv(v[0]) : object.cyInv(v[1]), upright, major});
        }
        return result;
    }

    static std::vector<double> valuesOf(const std::vector<Read>& lines, bool upright, bool major) {
        std::vector<double> values;
        for (const auto& line : lines)
            if (line.upright == upright && line.major == major) values.push_back(line.value);
        return values;
    }

    static void expectNear(const std::vector<double>& values, const std::vector<double>& expected,
                           double share = 1e-4) {
        ASSERT_EQ(values.size(), expected.size());
        for (std::size_t i = 0; i < values.size(); ++i)
            EXPECT_NEAR(values[i], expected[i], share * (1 + std::fabs(expected[i]))) << i;
    }
};

TEST_F(PlotGrid, LinearAxisFromZeroToTenHasMinorsOneToNineThenMajors) {
    useScreen();
    object.pgrid(0, 0, 100, 10, 5, 1, 0, 0, 100, 10, 5, 1, 0, 255, 128);
    const auto lines = readLines();
    ASSERT_EQ(lines.size(), 24U);
    for (std::size_t i = 0; i < 12; ++i) EXPECT_TRUE(lines[i].upright) << i;
    for (std::size_t i = 0; i < 9; ++i) EXPECT_FALSE(lines[i].major) << i;
    expectNear(valuesOf(lines, true, false), {1, 2, 3, 4, 5, 6, 7, 8, 9});
    expectNear(valuesOf(lines, true, true), {0, 5, 10});
    expectNear(valuesOf(lines, false, false), {1, 2, 3, 4, 5, 6, 7, 8, 9});
    expectNear(valuesOf(lines, false, true), {0, 5, 10});
}

TEST_F(PlotGrid, LinearAxisThatBeginsElsewhereHasTheLinesOfItsLength) {
    useScreen();
    object.pgrid(0, 20, 100, 30, 5, 2, 0, -30, 100, -20, 5, 2, 0, 255, 128);
    const auto lines = readLines();
    expectNear(valuesOf(lines, true, false), {22, 24, 26, 28});
    expectNear(valuesOf(lines, true, true), {20, 25, 30});
    expectNear(valuesOf(lines, false, false), {-28, -26, -24, -22});
    expectNear(valuesOf(lines, false, true), {-30, -25, -20});
}

TEST_F(PlotGrid, LinesRunBetweenTheEndsOfTheOtherAxis) {
    useScreen();
    object.pgrid(0, 0, 100, 10, 10, 10, 0, 0, 100, 10, 10, 10, 0, 0, 0);
    const auto lines = drawn();
    EXPECT_EQ(countOf(lines, "Line 0.0000 0.0000 0.0000 5670.0000 0 6"), 1);
    EXPECT_EQ(countOf(lines, "Line 0.0000 5670.0000 5670.0000 5670.0000 0 6"), 1);
}

TEST_F(PlotGrid, BackwardAxisDrawsTheSameLinesFromTheSmallerValue) {
    useScreen();
    object.pgrid(0, 10, 100, 0, 5, 2, 0, 0, 100, 10, 5, 5, 0, 0, 0);
    const auto lines = readLines();
    expectNear(valuesOf(lines, true, false), {2, 4, 6, 8});
    expectNear(valuesOf(lines, true, true), {0, 5, 10});
}

TEST_F(PlotGrid, ColoursShowOnlyWhenTheyAreOn) {
    useScreen();
    object.pgrid(0, 0, 100, 10, 5, 5, 0, 0, 100, 10, 5, 5, 0, 255, 128);
    EXPECT_EQ(countOf(drawn(), "ForeColor = 0"), 4);
    object.setBlackWhite(true);
    object.pgrid(0, 0, 100, 10, 5, 5, 0, 0, 100, 10, 5, 5, 0, 255, 128);
    Lines colours;
    for (const auto& line : drawn())
        if (line.starts_with("ForeColor")) colours.push_back(line);
    EXPECT_EQ(colours,
              (Lines{"ForeColor = 128", "ForeColor = 255", "ForeColor = 128", "ForeColor = 255"}));
}

TEST_F(PlotGrid, LogarithmicAxisToAThousandHasThreeDecadesWithoutTheLastLine) {
    useScreen();
    object.pgrid(0, 1, 100, 1000, 10, 10, 0, 0, 100, 10, 10, 10, 2, 0, 0);
    // m = n = 10: one period a decade, so only the decades' own lines are left.
    expectNear(valuesOf(readLines(), true, true), {1, 10, 100});
}

TEST_F(PlotGrid, LogarithmicDecadeHasItsLinesAtMultiplesAndItsMinorsBehindTheFirst) {
    useScreen();
    object.pgrid(0, 1, 100, 100, 1, 0.5, 0, 0, 100, 10, 10, 10, 2, 0, 0);
    const auto lines = readLines();
    expectNear(valuesOf(lines, true, true),
               {1, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 10, 20, 30, 40, 50, 60, 70, 80, 90});
    std::vector<double> minors;
    for (int i = 3; i <= 20; ++i) minors.push_back(i * 0.5);
    // In the first decade b + s j stays below 10 b up to j = 18; 1.5 to 10.
    auto values = valuesOf(lines, true, false);
    ASSERT_EQ(values.size(), 36U);
    expectNear({values.begin(), values.begin() + 18}, minors);
    for (double& value : minors) value *= 10;
    expectNear({values.begin() + 18, values.end()}, minors);
}

TEST_F(PlotGrid, LogarithmicDecadeHasOneMinorLessThanItsPeriods) {
    useScreen();
    // 2.3 periods a decade: the first is drawn, the second would still lie in the decade.
    object.pgrid(0, 1, 100, 10, 10, 10 / 2.3, 0, 0, 100, 10, 10, 10, 2, 0, 0);
    expectNear(valuesOf(readLines(), true, false), {1 + 10 / 2.3});
}

TEST_F(PlotGrid, LogarithmicYAxisDrawsLevelLines) {
    useScreen();
    object.pgrid(0, 0, 100, 10, 10, 10, 0, 1, 100, 100, 10, 10, 1, 0, 0);
    expectNear(valuesOf(readLines(), false, true), {1, 10});
}

TEST_F(PlotGrid, UnknownKindDrawsNothingAfterTheMessage) {
    useScreen();
    object.pgrid(0, 0, 100, 10, 5, 1, 0, 0, 100, 10, 5, 1, 7, 255, 128);
    EXPECT_EQ(messages.shown.size(), 1U);
    EXPECT_EQ(drawn(), Lines{});
}

TEST_F(PlotGrid, StepOfZeroIsADivisionFault) {
    useScreen();
    EXPECT_EQ(faultOf([&] { object.pgrid(0, 0, 100, 10, 5, 0, 0, 0, 100, 10, 5, 1, 0, 0, 0); }),
              11);
    EXPECT_EQ(faultOf([&] { object.pgrid(0, 1, 100, 10, 0, 1, 0, 0, 100, 10, 5, 1, 2, 0, 0); }),
              11);
}

TEST_F(PlotGrid, LogarithmicAxisFromZeroTellsAndEndsInADivisionFault) {
    useScreen();
    EXPECT_EQ(faultOf([&] { object.pgrid(0, 0, 100, 10, 5, 1, 0, 0, 100, 10, 5, 1, 2, 0, 0); }),
              11);
    EXPECT_EQ(messages.shown.size(), 1U);
}

TEST_F(PlotGrid, StepsThatWouldNeverEndStopAtTheLimit) {
    useScreen();
    object.pgrid(0, 0, 100, 10, 5, 1e-15, 0, 0, 100, 10, 5, 1, 0, 0, 0);
    const Lines minors = drawn();
    EXPECT_EQ(countOf(minors, "Line"), clsplot1::kMostStrokes);
    EXPECT_EQ(countOf(minors, "DrawWidth"), 1) << "all of them thin, the last one too";
    object.pgrid(0, 1, 100, 1e300, 1e-9, 1e-9, 0, 1, 100, 10, 5, 1, 3, 0, 0);
    const Lines calls = drawn();
    EXPECT_EQ(countOf(calls, "Line"), clsplot1::kMostStrokes);
    EXPECT_EQ(countOf(calls, "DrawWidth"), 1) << "all of them thick, the last one too";
}

TEST_F(PlotGrid, TheLastStrokeOfTheLimitMayBeginADecade) {
    useScreen();
    // 1 + 359 majors and 9 minors a decade: 271 decades and one line more are the limit.
    object.pgrid(0, 1e-300, 100, 1e-20, 1e-299 / 360, 1e-300, 0, 0, 100, 10, 5, 1, 2, 0, 0);
    const auto lines = readLines();
    ASSERT_EQ(lines.size(), static_cast<std::size_t>(clsplot1::kMostStrokes));
    EXPECT_TRUE(lines.back().upright);
    EXPECT_TRUE(lines.back().major);
    EXPECT_FALSE(lines[lines.size() - 2].major);
}

TEST_F(PlotGrid, NegativeStepDrawsNoLinesOfItsKind) {
    useScreen();
    object.pgrid(0, 0, 100, 10, 10, -1, 0, 0, 100, 10, 10, -1, 0, 0, 0);
    EXPECT_TRUE(valuesOf(readLines(), true, false).empty());
}

}  // namespace
}  // namespace kelvo::testing
