#include "plot_fixture.h"

namespace kelvo::testing {
namespace {

using PlotText = PlotTest;

TEST_F(PlotText, SizeZeroOnANewObjectIsThreePointsOnTheScreenAndOneOnPaper) {
    useScreen();
    object.ptext("A", 1, 1, 0);
    EXPECT_EQ(drawn()[0], "fontsize = 3.0000");
    usePrinter();
    object.ptext("A", 1, 1, 0);
    EXPECT_EQ(drawn()[0], "fontsize = 1.0000");
}

TEST_F(PlotText, SizeTwoIsRaisedToThreeOnTheScreenOnly) {
    useScreen();
    object.ptext("A", 1, 1, 2);
    EXPECT_EQ(drawn()[0], "fontsize = 3.0000");
    usePrinter();
    object.ptext("A", 1, 1, 2);
    EXPECT_EQ(drawn()[0], "fontsize = 2.0000");
}

TEST_F(PlotText, SizeZeroRepeatsTheSizeGivenLast) {
    useScreen();
    object.ptext("A", 1, 1, 9);
    drawn();
    object.ptext("B", 1, 1, 0);
    EXPECT_EQ(drawn()[0], "fontsize = 9.0000");
}

TEST_F(PlotText, EmptyTextIsToldAsAnEmptyPrintAfterTheSizeStep) {
    useScreen();
    object.ptext("", 10, 20, 8);
    EXPECT_EQ(drawn(), (Lines{"fontsize = 8.0000", "CurrentX = 567.0000", "CurrentY = 1006.0000",
                              "print "}));
}

TEST_F(PlotText, CentredTextStandsHalfItsWidthBeforeTheMiddle) {
    useScreen();
    object.ptextC("ABCD", 10, 30, 20, 8);
    // Middle 20 mm = 1134 twips, width 4 x 80 = 320.
    EXPECT_EQ(drawn(), (Lines{"fontsize = 8.0000", "CurrentX = 974.0000", "CurrentY = 1006.0000",
                              "print ABCD"}));
}

TEST_F(PlotText, CentredTextOfSizeZeroSetsTheSizeTwice) {
    useScreen();
    object.ptext("A", 1, 1, 8);
    drawn();
    object.ptextC("A", 10, 30, 20, 0);
    EXPECT_EQ(countOf(drawn(), "fontsize = 8.0000"), 2);
}

TEST_F(PlotText, ErasedTextsWipeAndPrintInTurnWithModeOneBetweenThem) {
    useScreen();
    object.pclear(1);
    object.ptext("AB", 10, 20, 8);
    const Lines first = drawn();
    // Height 160, width 160: from (567, 1134 - 112) to (727, 1134 + 16).
    EXPECT_EQ(first,
              (Lines{"fontsize = 8.0000", "DrawMode = 13", "FillStyle = 0", "ForeColor = 16777215",
                     "DrawMode = 13", "Line 567.0000 1022.0000 727.0000 1150.0000 16777215 38",
                     "FillStyle = 1", "ForeColor = 0", "DrawMode = 13", "CurrentX = 567.0000",
                     "CurrentY = 1006.0000", "print AB", "DrawMode = 1"}));
    EXPECT_EQ(screen.DrawMode(), RasterMode::Black);
    object.ptext("AB", 10, 20, 8);
    EXPECT_EQ(drawn(), first);
}

TEST_F(PlotText, ErasedTextWipesInTheScreensColourAndInWhiteOnPaper) {
    useScreen();
    screen.setBackColor(12345);
    object.pclear(1);
    drawn();
    object.ptext("A", 10, 20, 8);
    EXPECT_EQ(countOf(drawn(), "ForeColor = 12345"), 1);
    usePrinter();
    printer.setBackColor(12345);
    drawn();
    object.ptext("A", 10, 20, 8);
    EXPECT_EQ(countOf(drawn(), "ForeColor = 16777215"), 1);
}

TEST_F(PlotText, ErasedBoxOfCentredTextLandsByHalfTheWidthAlone) {
    useScreen();
    object.pclear(1);
    object.ptextC("AB", 10, 30, 20, 8);
    const auto lines = drawn();
    // Half is 10 mm = 567 twips, width 160; the text's own middle is at 1134.
    EXPECT_EQ(countOf(lines, "Line 487.0000 1022.0000 647.0000 1150.0000"), 1);
    EXPECT_EQ(countOf(lines, "CurrentX = 1054.0000"), 1);
    EXPECT_EQ(lines.back(), "DrawMode = 1");
}

TEST_F(PlotText, ErasingIsSwitchedByOneAndZeroOnly) {
    useScreen();
    object.pclear(1);
    object.pclear(7);
    object.ptext("A", 1, 1, 8);
    EXPECT_EQ(countOf(drawn(), "FillStyle"), 2);
    object.pclear(0);
    object.ptext("A", 1, 1, 8);
    EXPECT_EQ(countOf(drawn(), "FillStyle"), 0);
}

TEST_F(PlotText, StackedCharactersStandUprightInTheSizeBelowTheLastArgument) {
    useScreen();
    useUpwardWindow();
    object.pvtext("가B", 1, 5, 5, 99, 9);
    EXPECT_EQ(drawn(), (Lines{"fontsize = 8.0000", "CurrentX = 567.0000", "CurrentY = 2707.0000",
                              "print 가", "fontsize = 8.0000", "CurrentX = 567.0000",
                              "CurrentY = 2423.5000", "print B"}));
}

TEST_F(PlotText, StackedSizeRoundsHalvesToEvenAndOverflowsAt16Bits) {
    useScreen();
    object.pvtext("A", 1, 1, 5, 0, 9.5);   // 8.5 is 8
    object.pvtext("A", 1, 1, 5, 0, 10.5);  // 9.5 is 10
    const auto lines = drawn();
    EXPECT_EQ(lines[0], "fontsize = 8.0000");
    EXPECT_EQ(lines[4], "fontsize = 10.0000");
    EXPECT_EQ(faultOf([&] { object.pvtext("A", 1, 1, 5, 0, 40000); }), 6);
}

TEST_F(PlotText, NumberIsWrittenInItsFixedWidth) {
    useScreen();
    object.pvalue(-7.2, 1, 1, 4, 2, 8);
    EXPECT_EQ(drawn().back(), "print   -7.20");
}

TEST_F(PlotText, FormattedNumberKeepsTheFontWithSizeZero) {
    useScreen();
    object.pformvalue(3.14159, 10, 20, "0.00", 0);
    // The surface's own 9 points: height 180.
    EXPECT_EQ(drawn(), (Lines{"CurrentX = 567.0000", "CurrentY = 990.0000", "print 3.14"}));
}

TEST_F(PlotText, FormattedNumberSetsASizeThatIsNewOnly) {
    useScreen();
    object.pformvalue(1, 10, 20, "0", 8);
    object.pformvalue(2, 10, 20, "0", 8);
    EXPECT_EQ(countOf(drawn(), "fontsize = 8.0000"), 1);
}

TEST_F(PlotText, ErasedFormattedNumberIsWipedInWhiteWithoutTouchingTheMode) {
    useScreen();
    screen.setBackColor(12345);
    object.pclear(1);
    drawn();
    object.pformvalue(5, 10, 20, "0", 8);
    EXPECT_EQ(drawn(),
              (Lines{"fontsize = 8.0000", "FillStyle = 0", "ForeColor = 16777215", "DrawMode = 13",
                     "Line 567.0000 1022.0000 647.0000 1150.0000 16777215 38", "FillStyle = 1",
                     "ForeColor = 0", "DrawMode = 13", "CurrentX = 567.0000",
                     "CurrentY = 1006.0000", "print 5"}));
}

TEST_F(PlotText, FontIsSetOnChangeOnly) {
    useScreen();
    object.ChangeFont("굴림체");  // the one from binding
    object.ChangeFont("돋움");
    object.ChangeFont("돋움");
    EXPECT_EQ(drawn(), Lines{"Font = 돋움"});
}

TEST_F(PlotText, StyleIsOnForAFlagThatBeginsWithT) {
    useScreen();
    for (const char* flag : {"true", "t", "F", ""}) object.ChangeFontStyle(1, flag);
    EXPECT_EQ(drawn(), (Lines{"FontBold = 1", "FontBold = 1", "FontBold = 0", "FontBold = 0"}));
}

TEST_F(PlotText, StylesGoByNumberAndZeroSwitchesAllOff) {
    useScreen();
    int number = 2;
    for (const char* style : {"FontItalic = 1", "FontStrikethru = 1", "FontUnderline = 1"}) {
        object.ChangeFontStyle(number++, "T");
        EXPECT_EQ(drawn(), Lines{style});
    }
    object.ChangeFontStyle(5, "T");
    EXPECT_EQ(drawn(), Lines{});
    object.ChangeFontStyle(0, "T");
    EXPECT_EQ(drawn(),
              (Lines{"FontBold = 0", "FontItalic = 0", "FontStrikethru = 0", "FontUnderline = 0"}));
}

TEST_F(PlotText, FontNameOf40BytesIsAFaultAndSelectsNoFont) {
    useScreen();
    EXPECT_NE(faultOf([&] { object.ptextR("x", 1, 1, 90, 8, std::string(40, 'a')); }), 0);
    EXPECT_EQ(drawn(), Lines{"fontsize = 8.0000"});
}

TEST_F(PlotText, FontNameIsMeasuredInBytesOfTheCodePage) {
    useScreen();
    std::string name;
    for (int i = 0; i < 15; ++i) name += "가";  // 45 bytes here, 30 there
    EXPECT_EQ(faultOf([&] { object.ptextR("x", 1, 1, 90, 8, name); }), 0);
    EXPECT_EQ(faultOf([&] { object.ptextR("x", 1, 1, 90, 8, name + "가"); }), 9);
}

TEST_F(PlotText, TurnedTextOnPaperOpensThePageWithAnEmptyLine) {
    usePrinter();
    object.ptextR("x", 1, 1, 90, 8);
    const auto lines = drawn();
    EXPECT_EQ(lines[1], "print ");
    EXPECT_EQ(lines[2], "CreateFontIndirectA 66 900 400 1 굴림체");  // 8 x 600 / 72, cut
}

TEST_F(PlotText, ErasedTurnedTextWipesTheBoxOfTheUnturnedText) {
    useScreen();
    object.pclear(1);
    object.ptextR("AB", 10, 20, 90, 8);
    const auto lines = drawn();
    EXPECT_EQ(countOf(lines, "Line 567.0000 1022.0000 727.0000 1150.0000 16777215 38"), 1);
    EXPECT_EQ(lines.back(), "DrawMode = 1");
}

TEST_F(PlotText, AngleBeyond32BitsIsAnOverflow) {
    useScreen();
    EXPECT_EQ(faultOf([&] { object.ptextR("x", 1, 1, 1e10, 8); }), 6);
}

TEST_F(PlotText, PlaceBeyond32BitsOfPixelsIsAnOverflowWithTheFontSelected) {
    useScreen();
    EXPECT_EQ(faultOf([&] { object.ptextR("x", 1e10, 1, 90, 8); }), 6);
    EXPECT_EQ(drawn().back(), "SelectObject");
}

}  // namespace
}  // namespace kelvo::testing
