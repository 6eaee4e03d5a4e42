// What a run can write of a point, and the first thing that it can't.
#include "library/table_cells.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

namespace kelvo {
namespace {

using P = ConvertedPoint;
using Fields = std::vector<double P::*>;
using FaultOf = std::optional<RuntimeFault> (*)(const ConvertedPoint&);

constexpr double kInfinity = std::numeric_limits<double>::infinity();
const Fields kAngles{&P::WgsPhi, &P::WgsLam, &P::UserPhi, &P::UserLam, &P::CorrPhi, &P::CorrLam};
const Fields kLengths{&P::WgsH,    &P::UserH,   &P::TmX,  &P::TmY,   &P::TmH,
                      &P::UtmX,    &P::UtmY,    &P::UtmH, &P::CorrH, &P::WgsUtmX,
                      &P::WgsUtmY, &P::WgsUtmH, &P::CorrL};

P with(double P::*field, double value) {
    P point;
    point.*field = value;
    return point;
}

// The text of the fault, empty for none.
std::string textOf(FaultOf faultOf, const P& point) {
    const auto fault = faultOf(point);
    return fault ? fault->text() : "";
}

const std::string kBeyond = "값이 나타낼 수 있는 범위를 넘었습니다";

TEST(TableCells, APointOfOrdinaryNumbersIsWritable) {
    EXPECT_TRUE(isWritable({}));
    for (double P::*field : kAngles) {
        EXPECT_TRUE(isWritable(with(field, 31999.9)));
        EXPECT_TRUE(isWritable(with(field, -31999.9)));
        EXPECT_FALSE(isWritable(with(field, 32000)));
        EXPECT_FALSE(isWritable(with(field, -32000)));
        EXPECT_FALSE(isWritable(with(field, std::numeric_limits<double>::quiet_NaN())));
    }
    for (double P::*field : kLengths) {
        EXPECT_TRUE(isWritable(with(field, -1e300)));
        EXPECT_FALSE(isWritable(with(field, kInfinity)));
        EXPECT_FALSE(isWritable(with(field, std::numeric_limits<double>::quiet_NaN())));
    }
}

TEST(TableCells, EveryNumberOfATableCanBeItsFault) {
    const Fields detail{&P::CorrPhi, &P::CorrLam, &P::CorrH, &P::CorrL};
    const Fields tables{&P::WgsPhi, &P::WgsLam, &P::WgsH, &P::UserPhi, &P::UserLam, &P::UserH,
                        &P::TmX,    &P::TmY,    &P::TmH,  &P::UtmX,    &P::UtmY,    &P::UtmH};
    const Fields last{&P::WgsUtmX, &P::WgsUtmY, &P::WgsUtmH};
    const auto isFaultOf = [](const Fields& fields, FaultOf faultOf, FaultOf second,
                              FaultOf third) {
        for (double P::*field : fields) {
            const P point = with(field, kInfinity);
            EXPECT_NE(textOf(faultOf, point), "");
            EXPECT_EQ(textOf(second, point), "");
            EXPECT_EQ(textOf(third, point), "");
            EXPECT_EQ(textOf(faultOf, with(field, 32000.5)), "");
        }
    };
    isFaultOf(detail, faultOfDetailRow, faultOfTables, faultOfLastTable);
    isFaultOf(tables, faultOfTables, faultOfDetailRow, faultOfLastTable);
    isFaultOf(last, faultOfLastTable, faultOfDetailRow, faultOfTables);
}

// An angle beyond 16 bits has a text of its own.
TEST(TableCells, TheFaultIsTheFirstThatARunMeets) {
    const auto first = [](FaultOf faultOf, double P::*angle, double P::*other) {
        P point = with(angle, 40000);
        EXPECT_NE(textOf(faultOf, point), kBeyond);
        point.*other = kInfinity;
        return textOf(faultOf, point) == kBeyond ? other : angle;
    };
    EXPECT_EQ(first(faultOfDetailRow, &P::CorrPhi, &P::CorrH), &P::CorrPhi);
    EXPECT_EQ(first(faultOfDetailRow, &P::CorrLam, &P::CorrL), &P::CorrLam);
    EXPECT_EQ(first(faultOfTables, &P::WgsLam, &P::WgsH), &P::WgsLam);
    EXPECT_EQ(first(faultOfTables, &P::UserPhi, &P::WgsH), &P::WgsH);
    EXPECT_EQ(first(faultOfTables, &P::UserLam, &P::UserH), &P::UserLam);
    EXPECT_EQ(first(faultOfTables, &P::UserLam, &P::TmX), &P::UserLam);
    EXPECT_EQ(first(faultOfTables, &P::UserLam, &P::UtmX), &P::UserLam);
}

// The text of such a fault names the angle.
TEST(TableCells, OfTwoAnglesTheLatitudeIsLookedAtFirst) {
    P point = with(&P::WgsPhi, 40000);
    point.WgsLam = 50000;
    point.UserPhi = 60000;
    EXPECT_NE(textOf(faultOfTables, point).find("40000"), std::string::npos);
    point.WgsPhi = 0;
    EXPECT_NE(textOf(faultOfTables, point).find("50000"), std::string::npos);
    P corrected = with(&P::CorrPhi, 40000);
    corrected.CorrLam = 50000;
    EXPECT_NE(textOf(faultOfDetailRow, corrected).find("40000"), std::string::npos);
}

TEST(TableCells, ACellHasTheDecimalsOfItsTableAndNoBlanks) {
    std::string text = "|";
    appendAngleCell(text, -7.5, AngleForm::Degrees);
    text += '|';
    appendGridCell(text, 1234.5);
    text += '|';
    appendHeightCell(text, -0.25);
    EXPECT_EQ(text, "|-7.5000000000|1234.500000|-0.2500");
    text = "| ";
    appendAngleCell(text, 37.5, AngleForm::Dms);
    text += '|';
    appendAngleCell(text, 127.25, AngleForm::Blanks);
    text += '|';
    appendAngleCell(text, 37.5, AngleForm::Hyphens);
    EXPECT_EQ(text, "| 37.3000000000|127 15 00.0000|37-30-00.0000");
}

// As in the tables: what rounds to zero keeps the zeros of its column, and a number that fills its
// column has no room for its sign.
TEST(TableCells, ACellShowsHowWideItsColumnIs) {
    std::string text;
    appendAngleCell(text, -1e-12, AngleForm::Degrees);
    text += '|';
    appendGridCell(text, -1e-8);
    text += '|';
    appendHeightCell(text, -0.00001);
    EXPECT_EQ(text, "-00000000.0000000000|-000000000000.000000|-00000000.0000");
    text.clear();
    appendGridCell(text, -123456789012.0);
    text += '|';
    appendHeightCell(text, -12345678.0);
    text += '|';
    appendHeightCell(text, -1234567.0);
    EXPECT_EQ(text, "123456789012.000000|12345678.0000|-1234567.0000");
}

}  // namespace
}  // namespace kelvo
