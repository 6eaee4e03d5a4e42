// The tables of a run as a file for other programs: each number in its own column.
#include "exchange/table_export.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "exchange_samples.h"
#include "support/temporary_folder.h"

namespace kelvo {
namespace {

// Every field is a number of its own; `more` is added to each.
PointRec recOf(const std::string& name, double more) {
    PointRec rec;
    rec.name = name;
    double next = more;
    for (double PointRec::*field :
         {&PointRec::WgsPhi, &PointRec::WgsLam, &PointRec::WgsH, &PointRec::UserPhi,
          &PointRec::UserLam, &PointRec::UserH, &PointRec::TmX, &PointRec::TmY, &PointRec::TmH,
          &PointRec::UtmX, &PointRec::UtmY, &PointRec::UtmH, &PointRec::WgsUtmX, &PointRec::WgsUtmY,
          &PointRec::WgsUtmH})
        rec.*field = ++next;
    return rec;
}

class TableExport : public testing::NeedsModule<::testing::Test> {
protected:
    TableExport() {
        points.PointCount = 2;
        points.row(1) = recOf("점", 0.25);
        points.row(2) = recOf("B", -20.5);
        points.row(3) = recOf("left from an earlier run", 0);
    }
    [[nodiscard]] std::vector<PointOfFile> read(const std::string& name) const {
        exportTables(points, folder.file(name));
        const auto reader = loadPointFiles()->open(*vectorFormatOf(name), folder.file(name));
        std::vector<PointOfFile> all;
        for (PointOfFile point; reader->read(point);) all.push_back(point);
        return all;
    }

    PointTable points;
    testing::TemporaryFolder folder;
};

TEST_F(TableExport, AnglesHaveTenDecimalsCoordinatesSixAndHeightsFour) {
    points.PointCount = 1;
    points.row(1) = recOf("A", 0.123456789876);
    exportTables(points, folder.file("a.xlsx"));
    const auto sheet = loadPointFiles()->openSheet(VectorFormat::Xlsx, folder.file("a.xlsx"));
    std::vector<std::string> cells;
    ASSERT_TRUE(sheet->read(cells));
    ASSERT_TRUE(sheet->read(cells));
    const std::string angle = ".1234567899";
    const std::string coordinate = ".123457";
    const std::string height = ".1235";
    EXPECT_EQ(cells, (std::vector<std::string>{
                         "A", "1" + angle, "2" + angle, "3" + height, "4" + angle, "5" + angle,
                         "6" + height, "7" + coordinate, "8" + coordinate, "9" + height,
                         "10" + coordinate, "11" + coordinate, "12" + height, "13" + coordinate,
                         "14" + coordinate, "15" + height}));
}

TEST_F(TableExport, ASheetHasTheColumnsOfAllFiveTables) {
    exportTables(points, folder.file("a.xlsx"));
    const auto sheet = loadPointFiles()->openSheet(VectorFormat::Xlsx, folder.file("a.xlsx"));
    std::vector<std::vector<std::string>> rows;
    for (std::vector<std::string> cells; sheet->read(cells);) rows.push_back(cells);
    ASSERT_EQ(rows.size(), 3U);
    EXPECT_EQ(rows[0],
              (std::vector<std::string>{"name", "wgs_lat", "wgs_lon", "wgs_h", "user_lat",
                                        "user_lon", "user_h", "tm_x", "tm_y", "tm_h", "utm_x",
                                        "utm_y", "utm_h", "wgsutm_x", "wgsutm_y", "wgsutm_h"}));
    EXPECT_EQ(rows[1][0], "점");
    EXPECT_EQ(rows[2][0], "B");
    for (std::size_t i = 1; i < rows[0].size(); ++i) {
        EXPECT_EQ(std::stod(rows[1].at(i)), 0.25 + static_cast<double>(i));
        EXPECT_EQ(std::stod(rows[2].at(i)), -20.5 + static_cast<double>(i));
    }
}

// GeoJSON is text, where the digits can be seen.
TEST_F(TableExport, ANumberHasTheDecimalsOfItsTable) {
    points.PointCount = 1;
    points.row(1).WgsLam = 127.12345678912;
    points.row(1).TmX = 5.1234567;
    points.row(1).UtmH = 1.23456;
    exportTables(points, folder.file("a.geojson"));
    const std::string text = folder.bytes("a.geojson");
    EXPECT_NE(text.find("\"wgs_lon\": 127.1234567891,"), std::string::npos) << text;
    EXPECT_NE(text.find("\"tm_x\": 5.123457,"), std::string::npos) << text;
    EXPECT_NE(text.find("\"utm_h\": 1.2346,"), std::string::npos) << text;
}

TEST_F(TableExport, PlacesAreInWgs84ButInADrawingOnTheTmGrid) {
    const auto map = read("a.gpkg");
    ASSERT_EQ(map.size(), 2U);
    EXPECT_EQ(map[0].name, "점");
    EXPECT_NEAR(map[0].place->x, 2.25, 1e-9);
    EXPECT_NEAR(map[0].place->y, 1.25, 1e-9);
    EXPECT_NEAR(map[0].place->height, 3.25, 1e-9);
    EXPECT_TRUE(loadPointFiles()
                    ->open(VectorFormat::GeoPackage, folder.file("a.gpkg"))
                    ->system()
                    .geographic);
    const auto drawing = read("a.dxf");
    ASSERT_EQ(drawing.size(), 2U);
    EXPECT_NEAR(drawing[0].place->x, 8.25, 1e-9);
    EXPECT_NEAR(drawing[0].place->y, 7.25, 1e-9);
    EXPECT_NEAR(drawing[0].place->height, 9.25, 1e-9);
}

}  // namespace
}  // namespace kelvo
