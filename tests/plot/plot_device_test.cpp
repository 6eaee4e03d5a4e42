#include <cmath>
#include <limits>
#include <random>

#include "plot_fixture.h"

namespace kelvo::testing {
namespace {

using PlotDevice = PlotTest;

constexpr const char* kWindowMessage =
    "Error in sub PWINDOW\r\n top or bottom maybe the same check and try again";

TEST_F(PlotDevice, NewObjectHasScaleOneAndPenAtZero) {
    EXPECT_EQ(object.Curxs(), 1);
    EXPECT_EQ(object.Curys(), 1);
    EXPECT_EQ(object.LastX(), 0);
    EXPECT_EQ(object.LastY(), 0);
    EXPECT_EQ(object.pKind(), 0);
}

TEST_F(PlotDevice, WindowWithoutWidthTellsOnceAndKeepsTheScaleButNotTheOrigin) {
    useScreen();
    object.pwindow(0, 5, 100, 5, 0, 0, 100, 10, 0);
    ASSERT_EQ(messages.shown.size(), 1U);
    EXPECT_EQ(messages.shown[0].text, kWindowMessage);
    EXPECT_EQ(messages.shown[0].icon, Icon::Warning);
    EXPECT_EQ(messages.shown[0].buttons, Buttons::Ok);
    EXPECT_EQ(messages.shown[0].title, "");
    EXPECT_EQ(object.Curxs(), 1);
    EXPECT_EQ(object.Curys(), 10);
    EXPECT_EQ(object.cxInv(0), 5);  // UserLeft, page millimetre 0
}

TEST_F(PlotDevice, WindowBadInBothAxesTellsOnce) {
    object.pwindow(0, 5, 100, 5, 0, 7, 100, 7, 0);
    EXPECT_EQ(messages.shown.size(), 1U);
}

TEST_F(PlotDevice, LogarithmicAxisFromZeroIsRefused) {
    object.pwindow(0, 0, 100, 10, 0, 0, 100, 10, 1);
    EXPECT_EQ(messages.texts(), Lines{kWindowMessage});
    EXPECT_EQ(object.Curxs(), 10);
    EXPECT_EQ(object.Curys(), 1);
}

TEST_F(PlotDevice, LogarithmicAxisToANegativeValueIsRefused) {
    object.pwindow(0, 0, 100, 10, 0, 1, 100, -10, 1);
    EXPECT_EQ(messages.texts(), Lines{kWindowMessage});
}

TEST_F(PlotDevice, ScaleIsMillimetresOfTheFrameAUserUnit) {
    object.pwindow(20, 1, 120, 3, 30, 5, 130, 10, 0);
    EXPECT_EQ(object.Curxs(), 50);
    EXPECT_EQ(object.Curys(), 20);
}

TEST_F(PlotDevice, LogarithmicAxisCountsMillimetresPerPowerOfTen) {
    object.pwindow(10, 1, 100, 1000, 20, 10, 80, 1000, 3);
    EXPECT_TRUE(messages.shown.empty());
    EXPECT_NEAR(object.Curxs(), 30, 1e-7);
    EXPECT_NEAR(object.Curys(), 30, 1e-7);
}

TEST_F(PlotDevice, UnknownKindIsRefusedAndGivesThePagesOrigin) {
    object.pinitialize(15, 40, 1.3, 1.3, 1, printer);
    object.pwindow(0, 0, 100, 10, 0, 0, 100, 10, 4);
    EXPECT_EQ(messages.texts(), Lines{kWindowMessage});
    EXPECT_EQ(object.Curxs(), 1);
    EXPECT_DOUBLE_EQ(object.cx(77), 56.7 * 15);
    EXPECT_DOUBLE_EQ(object.cy(77), 56.7 * 40);
    EXPECT_EQ(object.cxInv(1234), 0);
    EXPECT_EQ(object.cyInv(1234), 0);
}

TEST_F(PlotDevice, PaperPlotStandsFifteenFromTheLeftAndFortyFromTheTop) {
    object.pinitialize(15, 40, 1.3, 1.3, 1, printer);
    EXPECT_NEAR(object.cx(0), 850.5, 1e-9);
    EXPECT_NEAR(object.cy(10), 3005.1, 1e-9);
}

TEST_F(PlotDevice, BindingTheScreenBlackensThePenAndNamesTheFont) {
    object.pinitialize(0, 0, 1, 1, 2, screen);
    EXPECT_EQ(drawn(), (Lines{"ForeColor = 0", "Font = 굴림체"}));
}

TEST_F(PlotDevice, BindingThePrinterSetsTwipsAndLeavesThePen) {
    object.pinitialize(0, 0, 1, 1, 1, printer);
    EXPECT_EQ(drawn(), (Lines{"ScaleMode = 1", "Font = 굴림체"}));
}

TEST_F(PlotDevice, MagnificationOfZeroCountsAsOne) {
    object.pinitialize(0, 0, 0, 3, 2, screen);
    drawn();
    EXPECT_DOUBLE_EQ(object.cx(1), 56.7);
    object.plwidth(1);  // the mean of 1 and 3
    EXPECT_EQ(drawn(), Lines{"DrawWidth = 2.0000"});
}

TEST_F(PlotDevice, MagnificationsOfZeroDrawAsOneDoes) {
    const auto lineAt = [this](double sx, double sy) {
        object.pinitialize(0, 0, sx, sy, 2, screen);
        object.pwindow(0, 0, 100, 100, 0, 0, 100, 100, 0);
        drawn();
        object.pline(0, 0, 10, 20, 1, false);
        object.pcircle(10, 20, 2, 0, 360, 1);
        return drawn();
    };
    lineAt(1, 1);  // sets the width of the pen
    const Lines plain = lineAt(1, 1);
    EXPECT_EQ(lineAt(0, 1), plain);
    EXPECT_EQ(lineAt(1, 0), plain);
    EXPECT_EQ(lineAt(0, 0), plain);
    EXPECT_NE(lineAt(2, 1), plain);
    EXPECT_NE(lineAt(1, 2), plain);
}

TEST_F(PlotDevice, PenWidthIsAtLeastOnePixel) {
    useScreen();
    object.plwidth(0);
    object.plwidth(-4);
    EXPECT_EQ(drawn(), (Lines{"DrawWidth = 1.0000", "DrawWidth = 1.0000"}));
}

TEST_F(PlotDevice, RelativeMoveTakesTheNewYFromTheNewX) {
    object.pmoveto(10, 20);
    object.pmoverelto(1, 1);
    EXPECT_EQ(object.LastX(), 11);
    EXPECT_EQ(object.LastY(), 12);
}

TEST_F(PlotDevice, MillimetreMoveGoesTowardGrowingYAndUpOnTheSheet) {
    useScreen();
    useUpwardWindow();
    ASSERT_LT(object.Curys(), 0);
    object.pmovemmto(3, 0, 4, 5);
    EXPECT_NEAR(object.LastY(), 4.5, 1e-9);  // 5 mm at 10 mm a unit
    EXPECT_LT(object.cy(object.LastY()), object.cy(4));
}

TEST_F(PlotDevice, MillimetreMoveInAWindowThatRunsLeftGoesTowardGrowingX) {
    useScreen();
    object.pwindow(0, 10, 100, 0, 0, 0, 100, 10, 0);
    object.pmovemmto(3, 5, 4, 0);
    EXPECT_NEAR(object.LastX(), 3.5, 1e-6);
}

TEST_F(PlotDevice, MillimetreMoveInAWindowOfLessThanAMillimetreAUnitGoesTowardGrowingValues) {
    useScreen();
    object.pwindow(0, 0, 100, 200, 0, 0, 100, 200, 0);
    object.pmovemmto(3, 5, 4, 5);
    EXPECT_NEAR(object.LastX(), 13, 1e-6);
    EXPECT_NEAR(object.LastY(), 14, 1e-6);
}

TEST_F(PlotDevice, ColourOnANewObjectIsBlackWhateverWasAsked) {
    useScreen();
    object.ChangeColor(255, 2);
    object.ChangeColor(255, 1);
    EXPECT_EQ(drawn(), (Lines{"ForeColor = 0", "ForeColor = 0"}));
}

TEST_F(PlotDevice, ColoursAreToldOnChangeOnly) {
    useScreen();
    object.setBlackWhite(true);
    object.ChangeColor(255, 2);
    object.ChangeColor(255, 2);
    object.ChangeColor(65280, 1);
    object.ChangeColor(65280, 1);
    object.ChangeColor(77, 3);
    object.ChangeColor(0, 2);
    EXPECT_EQ(drawn(), (Lines{"ForeColor = 255", "BackColor = 65280", "ForeColor = 0"}));
}

TEST_F(PlotDevice, AColourThatTheSurfaceRefusedIsAskedForAgain) {
    useScreen();
    object.setBlackWhite(true);
    for (const double which : {1.0, 2.0}) {
        const std::string property = which == 1 ? "BackColor" : "ForeColor";
        failAt = property;
        EXPECT_NE(faultOf([&] { object.ChangeColor(255, which); }), 0);
        failAt.clear();
        drawn();
        object.ChangeColor(255, which);
        EXPECT_EQ(drawn(), (Lines{property + " = 255"}));
    }
}

TEST_F(PlotDevice, BlackingThePenIsRememberedAsBlack) {
    useScreen();
    object.setBlackWhite(true);
    object.ChangeColor(255, 2);
    object.setBlackWhite(false);
    object.ChangeColor(255, 2);
    object.setBlackWhite(true);
    drawn();
    object.ChangeColor(255, 2);
    EXPECT_EQ(drawn(), Lines{"ForeColor = 255"});
}

TEST_F(PlotDevice, ClearErasesTheScreenAndEndsThePrintersJob) {
    useScreen();
    object.Clear();
    EXPECT_EQ(drawn(), Lines{"Cls"});
    usePrinter();
    object.Clear();
    EXPECT_EQ(drawn(), Lines{"EndDoc"});
    bind(3, printer);
    object.Clear();
    object.EndPlot();
    EXPECT_EQ(drawn(), Lines{});
}

TEST_F(PlotDevice, ClearBeforeBindingDoesNothing) {
    EXPECT_EQ(faultOf([&] { object.Clear(); }), 0);
    EXPECT_EQ(drawn(), Lines{});
}

TEST_F(PlotDevice, NextSheetAsksOnTheScreenAndLeavesThePicture) {
    useScreen();
    object.SkipPage();
    object.SkipPage1();
    EXPECT_EQ(messages.texts(), (Lines{"Preceed to Next Page ? ", "Preceed to Next Page ? "}));
    EXPECT_EQ(messages.shown[0].icon, Icon::None);
    EXPECT_EQ(drawn(), Lines{});
}

TEST_F(PlotDevice, NextSheetOnPaperEndsTheJobOrTheSheet) {
    usePrinter();
    object.SkipPage();
    object.SkipPage1();
    object.EndPlot();
    EXPECT_EQ(drawn(), (Lines{"EndDoc", "NewPage", "EndDoc"}));
    EXPECT_TRUE(messages.shown.empty());
}

TEST_F(PlotDevice, EndPlotLeavesTheScreenAlone) {
    useScreen();
    object.EndPlot();
    EXPECT_EQ(drawn(), Lines{});
}

TEST_F(PlotDevice, OrientationIsAskedForOnceAndNotOnTheScreen) {
    useScreen();
    object.ChangeOrint(2);
    EXPECT_TRUE(messages.shown.empty());
    usePrinter();
    object.ChangeOrint(2);
    object.ChangeOrint(2);
    EXPECT_EQ(messages.texts(), Lines{"change printer orientation at control pannel"});
    EXPECT_EQ(messages.shown[0].icon, Icon::Warning);
    EXPECT_EQ(starts.commands, Lines{"control.exe"});
    EXPECT_EQ(drawn(), Lines{});
}

TEST_F(PlotDevice, SetOrintIsPortraitUpToOne) {
    usePrinter();
    object.SetOrint(0);
    object.SetOrint(1);
    object.SetOrint(2);
    EXPECT_EQ(drawn(), (Lines{"Orientation = 1", "Orientation = 1", "Orientation = 2"}));
}

TEST_F(PlotDevice, PrinterModeComesFromThePrintersPlanes) {
    useScreen();
    printer.colourPlanes = 1;
    object.GetPrinterMode(true);
    object.pfillMode(1);
    object.ChangeColor(255, 2);
    printer.colourPlanes = 2;
    object.GetPrinterMode(false);
    object.pfillMode(1);
    object.ChangeColor(255, 2);
    EXPECT_EQ(drawn(),
              (Lines{"DrawMode = 1", "ForeColor = 255", "DrawMode = 13", "ForeColor = 0"}));
}

TEST_F(PlotDevice, PrinterTypeIsExactlyTheLetterT) {
    useScreen();
    for (const char* text : {"t", "T", "true", "", " T"}) {
        object.setPrinterType(text);
        object.pfillMode(1);
    }
    EXPECT_EQ(drawn(), (Lines{"DrawMode = 13", "DrawMode = 13", "DrawMode = 1", "DrawMode = 1",
                              "DrawMode = 1"}));
}

TEST_F(PlotDevice, BindingAgainKeepsPenAndWidth) {
    useScreen();
    object.plineto(7, 8, 3);
    usePrinter();
    EXPECT_EQ(object.LastX(), 7);
    EXPECT_EQ(object.LastY(), 8);
    object.plineto(9, 9, 3);
    EXPECT_EQ(countOf(drawn(), "DrawWidth"), 0);
}

TEST_F(PlotDevice, DrawingWithoutASurfaceIsAFault) {
    EXPECT_NE(faultOf([&] { object.plineto(1, 1, 1); }), 0);
    EXPECT_NE(faultOf([&] { object.ptext("A", 1, 1, 8); }), 0);
    EXPECT_NE(faultOf([&] { object.pFillBox(0, 0, 1, 1, 0); }), 0);
}

TEST_F(PlotDevice, ZeroScaleIsADivisionFault) {
    useScreen();
    object.pwindow(5, 1, 5, 9, 0, 0, 100, 10, 0);
    EXPECT_EQ(faultOf([&] { object.pmovemmto(5, 1, 5, 0); }), 11);
    EXPECT_EQ(faultOf([&] { static_cast<void>(object.cxInv(5 * 56.7)); }), 6);  // 0/0
}

TEST_F(PlotDevice, LogarithmOfAPointWithoutOriginIsAFault) {
    useScreen();
    object.pwindow(0, 0, 100, 10, 0, 1, 100, 10, 2);  // refused, but kind and origin stand
    EXPECT_EQ(faultOf([&] { static_cast<void>(object.cx(5)); }), 11);
    EXPECT_EQ(faultOf([&] { static_cast<void>(object.cx(0)); }), 6);
}

TEST_F(PlotDevice, NothingInfiniteReachesTheSurface) {
    useScreen();
    const double infinity = std::numeric_limits<double>::infinity();
    const double nan = std::numeric_limits<double>::quiet_NaN();
    for (const double bad : {infinity, -infinity, nan, 1e300}) {
        EXPECT_EQ(faultOf([&] { object.plineto(bad, 1, 1); }), 6);
        EXPECT_EQ(faultOf([&] { object.pline(1, 1, bad, 1, 0); }), 6);
        EXPECT_EQ(faultOf([&] { object.pcircle(bad, 1, 1, 0, 0, 0); }), 6);
        EXPECT_EQ(faultOf([&] { object.ptext("A", bad, 1, 8); }), 6);
    }
    EXPECT_EQ(faultOf([&] { object.plwidth(nan); }), 6);
    EXPECT_EQ(faultOf([&] { object.ptheight(infinity); }), 6);
    EXPECT_EQ(faultOf([&] { object.pcircle(1, 1, nan, 0, 0, 0); }), 6);
    EXPECT_EQ(faultOf([&] { object.pcircle(1, 1, 1, nan, 0, 0); }), 6);
    EXPECT_EQ(faultOf([&] { object.pline(1, 1, 2, 2, nan); }), 6);
    for (const auto& line : drawn()) {
        EXPECT_EQ(line.find("inf"), std::string::npos) << line;
        EXPECT_EQ(line.find("nan"), std::string::npos) << line;
    }
}

TEST_F(PlotDevice, InverseGivesTheUserValueBackInEveryKindOfWindow) {
    std::mt19937 random(20040607);
    std::uniform_real_distribution<double> page(-50, 200);
    std::uniform_real_distribution<double> user(0.5, 5000);
    for (int round = 0; round < 2000; ++round) {
        const int kind = round % 4;
        object.pinitialize(page(random), page(random), 0.2 + std::fabs(page(random)) / 40, 1.3, 2,
                           screen);
        object.pwindow(0, user(random), 137, user(random), 137, user(random), 0, user(random),
                       kind);
        const double x = user(random);
        const double y = user(random);
        // x passes through a page millimetre of 32 bits: 24 bits of its size, in user units.
        const double xs = (object.cx(x) / 56.7);
        const double step = std::fabs(xs) * std::ldexp(1.0, -23) + 1e-3;
        const double allowed = kind < 2 ? step / std::fabs(object.Curxs())
                                        : x * std::expm1(2.4 * step / std::fabs(object.Curxs()));
        EXPECT_NEAR(object.cxInv(object.cx(x)), x, allowed + 1e-9) << kind;
        EXPECT_NEAR(object.cyInv(object.cy(y)), y, 1e-6 * y) << kind;
    }
    EXPECT_TRUE(messages.shown.empty());
}

TEST_F(PlotDevice, OnlyXIsRoundedToThirtyTwoBits) {
    useScreen();
    const double fine = 1.0 + std::ldexp(1.0, -40);
    EXPECT_EQ(object.cx(fine), object.cx(1.0));
    EXPECT_NE(object.cy(fine), object.cy(1.0));
}

TEST_F(PlotDevice, TwoObjectsDoNotTouchEachOther) {
    clsplot1 other(messages, starts, printer);
    useScreen();
    object.pwindow(0, 0, 100, 1, 0, 0, 100, 1, 0);
    object.pmoveto(3, 4);
    EXPECT_EQ(other.Curxs(), 1);
    EXPECT_EQ(other.LastX(), 0);
}

}  // namespace
}  // namespace kelvo::testing
