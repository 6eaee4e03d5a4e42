// The words, columns and cells of the systems of a result.
#include "convert/output_systems.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace kelvo {
namespace {

// Every field holds a number of its own.
ConvertedPoint pointOfNumbers() {
    ConvertedPoint p;
    p.WgsPhi = 1.5;
    p.WgsLam = 2.5;
    p.WgsH = 3.5;
    p.UserPhi = 4.5;
    p.UserLam = 5.5;
    p.UserH = 6.5;
    p.TmX = 7.5;
    p.TmY = 8.5;
    p.TmH = 9.5;
    p.Lam0 = 127;
    p.UtmX = 10.5;
    p.UtmY = 11.5;
    p.UtmH = 12.5;
    p.ULam0 = 129;
    p.WgsUtmX = 13.5;
    p.WgsUtmY = 14.5;
    p.WgsUtmH = 15.5;
    p.WgsULam0 = 123;
    return p;
}

std::string namesAndCells(std::span<const OutputColumn> columns) {
    std::string text;
    for (const OutputColumn& column : columns) {
        text += std::string(column.name) + "=";
        appendCell(text, column, pointOfNumbers(), AngleForm::Degrees);
        text += ' ';
    }
    return text;
}

TEST(OutputSystems, EachHasItsColumnsWithTheirNumbersAndDecimals) {
    EXPECT_EQ(namesAndCells(columnsOf(OutputSystem::Wgs)),
              "wgs_lat=1.5000000000 wgs_lon=2.5000000000 wgs_h=3.5000 ");
    EXPECT_EQ(namesAndCells(columnsOf(OutputSystem::User)),
              "user_lat=4.5000000000 user_lon=5.5000000000 user_h=6.5000 ");
    EXPECT_EQ(namesAndCells(columnsOf(OutputSystem::Tm)),
              "tm_x=7.500000 tm_y=8.500000 tm_h=9.5000 tm_lon0=127 ");
    EXPECT_EQ(namesAndCells(columnsOf(OutputSystem::Utm)),
              "utm_x=10.500000 utm_y=11.500000 utm_h=12.5000 utm_lon0=129 ");
    EXPECT_EQ(namesAndCells(columnsOf(OutputSystem::WgsUtm)),
              "wgsutm_x=13.500000 wgsutm_y=14.500000 wgsutm_h=15.5000 wgsutm_lon0=123 ");
}

TEST(OutputSystems, SeveralHaveTheirColumnsInTheOrderAskedFor) {
    const std::vector<OutputSystem> systems{OutputSystem::Tm, OutputSystem::Wgs};
    const std::string both =
        namesAndCells(columnsOf(OutputSystem::Tm)) + namesAndCells(columnsOf(OutputSystem::Wgs));
    EXPECT_EQ(namesAndCells(columnsOf(systems)), both);
}

TEST(OutputSystems, AnglesAreWrittenInTheFormAskedFor) {
    std::string text;
    for (const AngleForm form : {AngleForm::Dms, AngleForm::Blanks, AngleForm::Hyphens}) {
        appendCell(text, columnsOf(OutputSystem::Wgs)[1], pointOfNumbers(), form);
        text += '|';
    }
    EXPECT_EQ(text, "2.3000000000|2 30 00.0000|2-30-00.0000|");
}

TEST(OutputSystems, AnOriginIsWrittenWithAsManyDigitsAsItHas) {
    const OutputColumn& origin = columnsOf(OutputSystem::Tm)[3];
    const std::vector<std::pair<double, std::string>> origins{
        {127, "127"},   {127.5, "127.5"},
        {1, "1"},       {0, "0"},
        {0.5, "0.5"},   {-3, "-3"},
        {999, "999"},   {1000, "1000"},
        {1001, "1001"}, {127.0028902777778, "127.002890277778"}};
    for (const auto& [longitude, wanted] : origins) {
        std::string text;
        ConvertedPoint point;
        point.Lam0 = longitude;
        appendCell(text, origin, point, AngleForm::Degrees);
        EXPECT_EQ(text, wanted);
    }
}

TEST(OutputSystems, AnUnknownWordIsNoSystem) {
    EXPECT_FALSE(systemOf("wgsutm"));
    EXPECT_FALSE(systemOf("WGS"));
    EXPECT_FALSE(outputSystemOf("all"));
    for (const OutputSystem system : kAllOutputSystems)
        EXPECT_EQ(outputSystemOf(wordOf(system)), system);
}

}  // namespace
}  // namespace kelvo
