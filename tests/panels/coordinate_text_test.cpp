#include "panels/coordinate_text.h"

#include <gtest/gtest.h>

#include "common/number_text.h"

namespace kelvo {

namespace {

using Texts = std::vector<std::string>;

Texts pasted(std::string_view text, CoordinateForm form) {
    const CoordinateTexts read = readCoordinates(text, form);
    EXPECT_EQ(read.texts.empty(), !read.refusal.empty()) << text;
    return read.texts;
}

Texts dms(std::string_view text) {
    return pasted(text, CoordinateForm::Dms);
}
Texts degrees(std::string_view text) {
    return pasted(text, CoordinateForm::Degrees);
}
Texts grid(std::string_view text) {
    return pasted(text, CoordinateForm::Grid);
}

const Texts kPoint{"37.35332567", "126.32293454", "30.1756"};

TEST(PastedAngles, ReportRowIsReadWithItsHyphens) {
    EXPECT_EQ(dms("37-35-33.2567 126-32-29.3454 30.1756"), kPoint);
    EXPECT_EQ(dms("  인천No-3      37-35-33.2567   126-32-29.3454      30.1756\r\n"), kPoint);
}

// Reports and saved results fill minutes and seconds with blanks.
TEST(PastedAngles, BlanksWithinTheHyphensOfAReportBelongToTheAngle) {
    EXPECT_EQ(dms("A1    37- 5- 1.0000   126- 2-29.3454      30.1756"),
              (Texts{"37.05010000", "126.02293454", "30.1756"}));
    EXPECT_EQ(dms("  37-35- 3.2567  -126- 2- 9.3454"), (Texts{"37.35032567", "-126.02093454"}));
}

TEST(PastedAngles, NumericNameInFrontIsNoCoordinate) {
    EXPECT_EQ(dms("101 37-35-33.2567 126-32-29.3454 30.1756"), kPoint);
    EXPECT_EQ(dms("101 37.35332567 126.32293454 30.1756"), kPoint);
    EXPECT_EQ(dms("101 37.35332567 126.32293454"), (Texts{"37.35332567", "126.32293454"}));
    EXPECT_EQ(dms("101 37 35 33.2567 126 32 29.3454 30.1756"), kPoint);
    EXPECT_EQ(dms("3-1 37-35-33.2567 126-32-29.3454 30.1756"), kPoint);
    EXPECT_EQ(dms("1-2-3 37-35-33.2567 126-32-29.3454"), (Texts{"37.35332567", "126.32293454"}));
}

TEST(PastedAngles, LineOfADataFileIsRead) {
    EXPECT_EQ(dms("WGS    인천No-3     37.35332567   126.32293454   30.1756"), kPoint);
    EXPECT_EQ(dms("WGS    101     37.35332567   126.32293454   30.1756"), kPoint);
}

TEST(PastedAngles, DegreesMinutesSecondsMayStandBetweenBlanks) {
    EXPECT_EQ(dms("37 35 33.2567 126 32 29.3454 30.1756"), kPoint);
    EXPECT_EQ(dms("37\t35\t33.2567\t126\t32\t29.3454"), (Texts{"37.35332567", "126.32293454"}));
    EXPECT_EQ(dms("37 5 3 126 2 9 30"), (Texts{"37.0503", "126.0209", "30"}));
}

TEST(PastedAngles, SignsAndWordsOfTheUnitsAreRead) {
    EXPECT_EQ(dms("37°35'33.2567\"N 126°32'29.3454\"E 30.1756"), kPoint);
    EXPECT_EQ(dms("N37° 35′ 33.2567″, E126° 32′ 29.3454″, 30.1756m"), kPoint);
    EXPECT_EQ(dms("37도 35분 33.2567초 126도 32분 29.3454초"),
              (Texts{"37.35332567", "126.32293454"}));
    EXPECT_EQ(dms("37:35:33.2567 126:32:29.3454"), (Texts{"37.35332567", "126.32293454"}));
    EXPECT_EQ(dms("37-35-33.2567S 126-32-29.3454W"), (Texts{"-37.35332567", "-126.32293454"}));
    EXPECT_EQ(dms("37-35-33.2567 S 126-32-29.3454 W 30.1756"),
              (Texts{"-37.35332567", "-126.32293454", "30.1756"}));
    EXPECT_EQ(dms("S 37-35-33.2567 W 126-32-29.3454"), (Texts{"-37.35332567", "-126.32293454"}));
}

TEST(PastedAngles, RowOrColumnOfASpreadsheetIsRead) {
    EXPECT_EQ(dms("37.35332567\t126.32293454\t30.1756"), kPoint);
    EXPECT_EQ(dms("37.35332567\r\n126.32293454\r\n30.1756\r\n"), kPoint);
    EXPECT_EQ(dms("101\t37.35332567\t126.32293454\t30.1756\t도근점"), kPoint);
    EXPECT_EQ(dms("37.35332567, 126.32293454, 30.1756"), kPoint);
    EXPECT_EQ(dms("37.35332567,126.32293454,30.1756"), kPoint);
    EXPECT_EQ(dms("37.35332567;126.32293454;30.1756"), kPoint);
}

TEST(PastedAngles, DegreesBoxesTakeDegreesAndTurnMinutesAndSecondsIntoThem) {
    EXPECT_EQ(degrees("37.5925713056 126.5414848333 30.1756"),
              (Texts{"37.5925713056", "126.5414848333", "30.1756"}));
    const Texts read = degrees("37-30-00 126-45-36 30");
    EXPECT_EQ(read, (Texts{"37.5", "126.76", "30"}));
    EXPECT_NEAR(leadingNumber(degrees("37-35-33.2567 126-32-29.3454").at(0)),
                37 + 35 / 60.0 + 33.2567 / 3600, 1e-13);
}

TEST(PastedAngles, WhatCannotBeMinutesOrSecondsIsRefused) {
    EXPECT_EQ(dms("37.5925713056 126.7814848333 30"), Texts{});  // 78 minutes
    EXPECT_EQ(dms("37.3560 126.32"), Texts{});                   // 60 seconds
    EXPECT_EQ(dms("37-75-33.2567 126-32-29.3454"), Texts{});
    EXPECT_EQ(dms("37-35-63.2567 126-32-29.3454"), Texts{});
    EXPECT_EQ(dms("37.5926° 126.5415°"), Texts{});  // said to be degrees
    EXPECT_EQ(degrees("37.5926° 126.5415°"), (Texts{"37.5926", "126.5415"}));
}

TEST(PastedAngles, WhatCanBeReadInTwoWaysIsRefused) {
    // A name and two coordinates, or two coordinates and a height.
    EXPECT_EQ(degrees("38 37.5 126.5"), Texts{});
    EXPECT_EQ(dms("1-2-3 4-5-6 7-8-9 10"), (Texts{"4.0506", "7.0809", "10"}));
}

TEST(PastedAngles, CommaThatMayBeADecimalOneIsRefused) {
    EXPECT_EQ(dms("37,35332567 126,32293454 30,1756"), Texts{});
    EXPECT_EQ(dms("37,35332567;126,32293454;30,1756"), Texts{});
    EXPECT_EQ(degrees("37,5\t126,5\t30"), Texts{});
    EXPECT_EQ(degrees("37,5,126,5"), Texts{});
}

TEST(PastedAngles, MoreOrLessThanOnePointIsRefused) {
    EXPECT_EQ(dms(""), Texts{});
    EXPECT_EQ(dms("인천No-3"), Texts{});
    EXPECT_EQ(dms("37.35332567"), Texts{});
    EXPECT_EQ(dms("37.35332567 126.32293454 30.1756 99"), Texts{});
    EXPECT_EQ(dms("A 37.3533 126.3229 30\nB 37.3533 126.3229 31"), Texts{});
    EXPECT_EQ(dms("37.3533 126.3229\n37.3633 126.3329"), Texts{});
    EXPECT_EQ(dms("인천No-3  37.35332667 126.32293448 30.1756 37.35230997 126.32365917 40.3717 1"),
              Texts{});
}

TEST(PastedAngles, WrongOrderAndWrongKindAreRefused) {
    EXPECT_EQ(dms("126.32293454 37.35332567 30.1756"), Texts{});
    EXPECT_EQ(dms("126-32-29.3454E 37-35-33.2567N"), Texts{});
    EXPECT_EQ(degrees("454572.77052 159435.67323 30"), Texts{});
    EXPECT_EQ(dms("37.3533 126.3229 159435.67"), Texts{});  // no height
    EXPECT_EQ(dms("경도 126-32-29 위도 37-35-33"), Texts{});
    EXPECT_EQ(dms("37-35.55 126-32.49"), Texts{});  // minutes with decimals
}

TEST(PastedGrid, CoordinatesWithAndWithoutNameAndHeight) {
    const Texts point{"454572.77052", "159435.67323", "-0.72419"};
    EXPECT_EQ(grid("454572.77052 159435.67323 -0.72419"), point);
    EXPECT_EQ(grid("TM  계양산  454572.77052  159435.67323  -0.72419"), point);
    EXPECT_EQ(grid("101\t454572.77052\t159435.67323\t-0.72419"), point);
    EXPECT_EQ(grid("101 454572.77052 159435.67323"), (Texts{"454572.77052", "159435.67323"}));
    EXPECT_EQ(grid("454572 159435 30"), (Texts{"454572", "159435", "30"}));
    EXPECT_EQ(grid("454572.77052,159435.67323"), (Texts{"454572.77052", "159435.67323"}));
    EXPECT_EQ(grid("12.5 -20.25 3"), (Texts{"12.5", "-20.25", "3"}));
}

TEST(PastedGrid, DoubtfulOnesAreRefused) {
    EXPECT_EQ(grid("37-35-33.2567 126-32-29.3454 30.1756"), Texts{});
    EXPECT_EQ(grid("454,572.77 159,435.67"), Texts{});       // thousands
    EXPECT_EQ(grid("454,572.77,159,435.67"), Texts{});       // thousands and list
    EXPECT_EQ(grid("1 500.25 800.75"), Texts{});             // a name, or a point near the origin
    EXPECT_EQ(grid("Y 159435.67 X 454572.77"), Texts{});     // words in between
    EXPECT_EQ(grid("454572.77 159435.67 400000"), Texts{});  // no height
    EXPECT_EQ(grid("1e999 159435.67 4"), Texts{});
}

TEST(PastedText, RefusalSaysWhy) {
    EXPECT_NE(readCoordinates("37,5 126,5", CoordinateForm::Degrees).refusal.find("쉼표"),
              std::string::npos);
    EXPECT_NE(readCoordinates("A 37 126 1\nB 37 126 1", CoordinateForm::Degrees).refusal.find("점"),
              std::string::npos);
    EXPECT_NE(readCoordinates("38 37.5 126.5", CoordinateForm::Degrees).refusal.find("이름"),
              std::string::npos);
}

TEST(TypedAngle, ThreePartsBecomeTheNumberOfTheBox) {
    EXPECT_EQ(angleAsNumber("37-35-33.2567", CoordinateForm::Dms), "37.35332567");
    EXPECT_EQ(angleAsNumber(" 37 35 33.2567 ", CoordinateForm::Dms), "37.35332567");
    EXPECT_EQ(angleAsNumber("126 5 3", CoordinateForm::Dms), "126.0503");
    EXPECT_EQ(angleAsNumber("37-30-00", CoordinateForm::Degrees), "37.5");
    EXPECT_EQ(angleAsNumber("-37°30'0\"", CoordinateForm::Degrees), "-37.5");
}

TEST(TypedAngle, EverythingElseStays) {
    for (const char* text : {"", "37.35332567", "37", "37-35", "12abc", "37 35", "37,5", "1.5e1",
                             "37-75-00", "37-35-60", "37.5-35-33", "1-2-3-4", "37--35-33"}) {
        EXPECT_EQ(angleAsNumber(text, CoordinateForm::Dms), std::nullopt) << text;
        EXPECT_EQ(angleAsNumber(text, CoordinateForm::Degrees), std::nullopt) << text;
    }
}

TEST(Reading, ShowsDegreesMinutesAndSeconds) {
    EXPECT_EQ(readingOf("37.35332567", CoordinateForm::Dms), "37°35′33.2567″");
    EXPECT_EQ(readingOf("37.5", CoordinateForm::Degrees), "37°30′0″");
    EXPECT_EQ(readingOf("-0.5", CoordinateForm::Degrees), "-0°30′0″");
    EXPECT_EQ(readingOf("37.3", CoordinateForm::Dms), "37°30′0″");
    EXPECT_EQ(readingOf("126.9999999999999", CoordinateForm::Degrees), "127°0′0″");
}

TEST(Reading, SaysWhatTheRestOfTheTextDoes) {
    EXPECT_NE(readingOf("12abc", CoordinateForm::Degrees).find("12°0′0″"), std::string::npos);
    EXPECT_NE(readingOf("12abc", CoordinateForm::Degrees).find("뒤는"), std::string::npos);
    EXPECT_NE(readingOf("37,5", CoordinateForm::Degrees).find("37°0′0″"), std::string::npos);
    EXPECT_NE(readingOf("", CoordinateForm::Degrees).find("0"), std::string::npos);
    EXPECT_NE(readingOf("abc", CoordinateForm::Degrees).find("수가 아"), std::string::npos);
    EXPECT_NE(readingOf("37.75", CoordinateForm::Dms).find("60"), std::string::npos);
    EXPECT_NE(readingOf("1e999", CoordinateForm::Degrees).find("큰"), std::string::npos);
}

TEST(Reading, SaysWhatATypedAngleBecomes) {
    EXPECT_NE(readingOf("37-35-33.2567", CoordinateForm::Dms).find("37.35332567"),
              std::string::npos);
}

}  // namespace
}  // namespace kelvo
