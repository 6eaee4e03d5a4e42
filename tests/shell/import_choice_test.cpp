// What the columns of a list are taken for, at the edges of each rule.
#include "shell/import_choice.h"

#include <gtest/gtest.h>

namespace kelvo {
namespace {

using Cells = std::vector<std::string>;

PointList listOf(std::vector<Cells> rows, Cells header = {}) {
    PointList list;
    list.header = std::move(header);
    list.rows = std::move(rows);
    return list;
}

ImportChoice guessed(std::vector<Cells> rows, Cells header = {}) {
    return guessedChoice(listOf(std::move(rows), std::move(header)));
}

// System and places of name, north, east and height; "-" for none.
std::string columnsOf(const ImportChoice& choice) {
    const char* systems[] = {"Wgs", "User", "Tm", "Utm"};
    const System kinds[] = {System::Wgs, System::User, System::Tm, System::Utm};
    std::string text;
    for (std::size_t i = 0; i < 4; ++i)
        if (choice.system == kinds[i]) text = systems[i];
    for (const std::size_t place : {choice.name, choice.north, choice.east, choice.height})
        text += place == kNoListColumn ? " -" : " " + std::to_string(place);
    return text;
}

TEST(ImportChoice, TakesAPairForDegreesFromTheEdgesOfTheCountryOn) {
    const struct {
        const char* one;
        const char* other;
        const char* columns;
    } cases[] = {{"30", "120", "Wgs 0 1 2 3"},    {"44.999", "135.999", "Wgs 0 1 2 3"},
                 {"29.999", "127", "Tm 0 1 2 3"}, {"45", "127", "Tm 0 1 2 3"},
                 {"37", "119.999", "Tm 0 1 2 3"}, {"37", "136", "Tm 0 1 2 3"},
                 {"120", "30", "Wgs 0 2 1 3"},    {"135.999", "44.999", "Wgs 0 2 1 3"},
                 {"136", "37", "Tm 0 1 2 3"},     {"119.999", "37", "Tm 0 1 2 3"},
                 {"127", "45", "Tm 0 1 2 3"},     {"127", "29.999", "Tm 0 1 2 3"},
                 {"37", "37", "Tm 0 1 2 3"},      {"127", "127", "Tm 0 1 2 3"},
                 {"37", "x", "Tm 0 1 2 3"},       {"x", "127", "Tm 0 1 2 3"},
                 {"-37", "127", "Tm 0 1 2 3"}};
    for (const auto& c : cases)
        EXPECT_EQ(columnsOf(guessed({{"A", c.one, c.other, "30"}})), c.columns)
            << c.one << ' ' << c.other;
}

TEST(ImportChoice, GoesByTheOrderOfTheCellsWithoutAHeader) {
    EXPECT_EQ(columnsOf(guessed({{"1.5", "377504.2", "125963.9", "7"}})), "Tm 0 1 2 3");
    EXPECT_EQ(columnsOf(guessed({{"A", "377504.2", "125963.9"}})), "Tm 0 1 2 -");
    EXPECT_EQ(columnsOf(guessed({{"A.1", "377504.2", "125963.9"}})), "Tm 0 1 2 -");
    EXPECT_EQ(columnsOf(guessed({{"12", "377504.2", "125963.9"}})), "Tm 0 1 2 -");
    EXPECT_EQ(columnsOf(guessed({{"377504.2", "125963.9", "7"}})), "Tm - 0 1 2");
    EXPECT_EQ(columnsOf(guessed({{"377504.2", "125963.9"}})), "Tm - 0 1 -");
    EXPECT_EQ(columnsOf(guessed({{"377504", "125963"}})), "Tm - 0 1 -");
    EXPECT_EQ(columnsOf(guessed({{"A", "377504.2", "1"}, {"B", "1", "2", "3"}})), "Tm 0 1 2 3");
    EXPECT_EQ(columnsOf(guessed({{"A", "1", "2", "3", "4"}})), "Tm 0 1 2 3");
    EXPECT_EQ(columnsOf(guessed({{"127.5", "37.5"}})), "Wgs - 1 0 -");
}

TEST(ImportChoice, GoesByTheWordsOfTheHeaderWhateverTheirCase) {
    for (const char* name :
         {"name", "이름", "점명", "점이름", "점번호", "번호", "측점", "point", "ID", "No"})
        EXPECT_EQ(columnsOf(guessed({{"5", "5", "A", "5"}}, {"X", "Y", name, "q"})), "Tm 2 0 1 -")
            << name;
    for (const char* height : {"h", "Z", "Height", "elevation", "ele", "높이", "표고", "타원체고",
                               "wgs_h", "tm_h", "utm_h", "level"})
        EXPECT_EQ(columnsOf(guessed({{"5", "5", "A", "5"}}, {"Y", "X", "q", height})), "Tm - 1 0 3")
            << height;
    for (const char* latitude : {"wgs_lat", "lat", "Latitude", "위도"})
        for (const char* longitude : {"wgs_lon", "lon", "LONGITUDE", "lng", "경도"})
            EXPECT_EQ(columnsOf(guessed({{"5", "5", "A"}}, {longitude, latitude, "q"})),
                      "Wgs - 1 0 -");
    for (const char* north : {"x", "tm_x", "UTM_X", "n", "northing", "north", "x좌표", "종선좌표"})
        for (const char* east : {"y", "tm_y", "UTM_Y", "e", "easting", "east", "y좌표", "횡선좌표"})
            EXPECT_EQ(columnsOf(guessed({{"5", "5", "A"}}, {"q", east, north})), "Tm - 2 1 -");
    // Half a pair is none.
    EXPECT_EQ(columnsOf(guessed({{"A", "5", "5"}}, {"q", "lon", "r"})), "Tm 0 1 2 -");
    EXPECT_EQ(columnsOf(guessed({{"A", "5", "5"}}, {"lat", "q", "r"})), "Tm 0 1 2 -");
    EXPECT_EQ(columnsOf(guessed({{"A", "5", "5"}}, {"x", "q", "r"})), "Tm 0 1 2 -");
    EXPECT_EQ(columnsOf(guessed({{"A", "5", "5"}}, {"q", "r", "y"})), "Tm 0 1 2 -");
    EXPECT_EQ(columnsOf(guessed({{"5", "5", "5", "5"}}, {"lat", "y", "q", "x"})), "Tm - 3 1 -");
    EXPECT_EQ(columnsOf(guessed({{"5", "5", "5", "5"}}, {"q", "y", "lon", "x"})), "Tm - 3 1 -");
    EXPECT_EQ(columnsOf(guessed({{"5", "5", "5", "5"}}, {"y", "x", "lon", "lat"})), "Wgs - 3 2 -");
    EXPECT_EQ(columnsOf(guessed({{"127", "37"}}, {"x", "y"})), "Wgs - 1 0 -");
}

TEST(ImportChoice, TakesAColumnWithoutAWordForNothing) {
    EXPECT_EQ(columnsOf(guessed({{"q", "5", "5"}}, {"", "y", "x"})), "Tm - 2 1 -");
    EXPECT_EQ(columnsOf(guessed({{"q", "5", "5"}}, {"", "lon", "lat"})), "Wgs - 2 1 -");
    EXPECT_EQ(columnsOf(guessed({{"A", "5", "5"}}, {"", "lon", "q"})), "Tm 0 1 2 -");
    EXPECT_EQ(columnsOf(guessed({{"A", "5", "5"}}, {"q", "", "lat"})), "Tm 0 1 2 -");
    EXPECT_EQ(columnsOf(guessed({{"A", "5", "5"}}, {"", "y", "q"})), "Tm 0 1 2 -");
    EXPECT_EQ(columnsOf(guessed({{"A", "5", "5"}}, {"q", "", "x"})), "Tm 0 1 2 -");
}

TEST(ImportChoice, NeedsTwoRowsToKnowMinutesAndSeconds) {
    const auto angles = [](std::vector<Cells> rows) { return guessed(std::move(rows)).angles; };
    const Cells packed{"A", "37.3533", "126.3229", "1"};
    EXPECT_EQ(angles({packed}), ListAngles::Degrees);
    EXPECT_EQ(angles({packed, packed}), ListAngles::Dms);
    EXPECT_EQ(angles({packed, {"B", "x", "126.3229", "1"}}), ListAngles::Degrees);
    EXPECT_EQ(angles({packed, {"B", "37.3533", "", "1"}}), ListAngles::Degrees);
    EXPECT_EQ(angles({packed, {"B"}}), ListAngles::Degrees);
    EXPECT_EQ(angles({packed, {"B", "x", "y", "1"}, packed}), ListAngles::Dms);
    EXPECT_EQ(angles({packed, packed, {"B", "37.6", "126.3229", "1"}}), ListAngles::Degrees);
    EXPECT_EQ(angles({packed, packed, {"B", "37.3533", "126.9", "1"}}), ListAngles::Degrees);
    // A grid has none.
    EXPECT_EQ(angles({{"A", "5", "5", "1"}, {"B", "5", "5", "1"}}), ListAngles::Degrees);
}

TEST(ImportChoice, LooksAtAHundredRows) {
    std::vector<Cells> rows(100, Cells{"A", "37.3533", "126.3229", "1"});
    EXPECT_EQ(guessed(rows).angles, ListAngles::Dms);
    rows.push_back({"B", "37.6", "126.3229", "1"});
    EXPECT_EQ(guessed(rows).angles, ListAngles::Dms);
    rows[99] = rows[100];
    EXPECT_EQ(guessed(rows).angles, ListAngles::Degrees);
}

TEST(ImportChoice, GoesByWhatAFileWithGeometrySays) {
    PointList list = listOf({{"A", "37.3533", "126.3229", "1"}, {"B", "37.3533", "126.3229", "1"}},
                            {"h", "x", "y", "name"});
    const auto columns = [&](bool geographic, double axis) {
        list.system = SystemOfFile{
            .stated = true, .geographic = geographic, .semiMajorAxis = axis, .name = {}};
        const ImportChoice choice = guessedChoice(list);
        EXPECT_EQ(choice.angles, ListAngles::Degrees);
        return columnsOf(choice);
    };
    EXPECT_EQ(columns(true, 6378137), "Wgs 0 1 2 3");
    EXPECT_EQ(columns(true, 6377397.155), "User 0 1 2 3");
    EXPECT_EQ(columns(false, 6378137), "Tm 0 1 2 3");
    EXPECT_EQ(columns(false, 6377397.155), "Tm 0 1 2 3");
    EXPECT_EQ(columnsOf(guessed({})), "Wgs 0 1 2 3");
    EXPECT_EQ(columnsOf(guessed({}, {"h", "x", "y", "name"})), "Wgs 0 1 2 3");
}

TEST(ImportChoice, KnowsTheAxisOfWgs84ToAMetre) {
    for (const double axis : {6378137.0, 6378137.99, 6378136.01})
        EXPECT_TRUE(isWgs84Axis(axis)) << axis;
    for (const double axis : {6378138.0, 6378136.0, 6377397.155, 6378388.0, 6378160.0})
        EXPECT_FALSE(isWgs84Axis(axis)) << axis;
}

TEST(ImportChoice, KnowsWhichSystemsHaveAngles) {
    EXPECT_TRUE(hasAngles(System::Wgs));
    EXPECT_TRUE(hasAngles(System::User));
    EXPECT_FALSE(hasAngles(System::Tm));
    EXPECT_FALSE(hasAngles(System::Utm));
}

TEST(PackedAngle, HasMinutesAndSecondsBelowSixty) {
    for (const int degrees : {0, 37, 127, -127}) {
        for (int part = 0; part < 100; ++part) {
            const std::string digits = std::to_string(100 + part).substr(1);
            const std::string whole = std::to_string(degrees);
            EXPECT_EQ(isPackedAngle(std::stod(whole + "." + digits + "59")), part < 60)
                << whole << digits;
            EXPECT_EQ(isPackedAngle(std::stod(whole + ".59" + digits)), part < 60)
                << whole << digits;
            EXPECT_EQ(isPackedAngle(std::stod(whole + "." + digits)), part < 60) << whole << digits;
        }
    }
    EXPECT_TRUE(isPackedAngle(37.595999));
    EXPECT_TRUE(isPackedAngle(37.00599999999985));  // 59.9999999985 seconds
    EXPECT_FALSE(isPackedAngle(37.289999999985));   // 28 minutes and 99.99999985 seconds
}

}  // namespace
}  // namespace kelvo
