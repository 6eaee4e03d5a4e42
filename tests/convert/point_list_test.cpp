// Lists of points that other programs made.
#include "convert/point_list.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "common/code_page.h"
#include "convert/refusal.h"
#include "exchange/load_point_files.h"
#include "support/refusals.h"
#include "support/temporary_folder.h"

namespace kelvo {
namespace {

using Cells = std::vector<std::string>;
using List = std::vector<Cells>;

std::string refusalOf(const std::string& bytes) {
    return testing::refusalOf([&] { return pointListOfText(bytes); });
}

TEST(PointList, IsSplitAtTheDelimiterOfItsFirstRow) {
    EXPECT_EQ(pointListOfText("a, 1 ,2\nb;c,3\n").rows, (List{{"a", "1", "2"}, {"b;c", "3"}}));
    EXPECT_EQ(pointListOfText("a;1;2\n\"b;c\";3").rows, (List{{"a", "1", "2"}, {"b;c", "3"}}));
    EXPECT_EQ(pointListOfText("a\t1\t2\r\n").rows, (List{{"a", "1", "2"}}));
    EXPECT_EQ(pointListOfText("\"a\nb\",1\nc,2").rows, (List{{"a\nb", "1"}, {"c", "2"}}));
}

TEST(PointList, IsSplitAtBlanksWhereItsFirstRowHasNoDelimiter) {
    EXPECT_EQ(pointListOfText("\n  a  1 2\r\nb,c 3\n").rows, (List{{"a", "1", "2"}, {"b,c", "3"}}));
    EXPECT_EQ(pointListOfText("1").rows, (List{{"1"}}));
}

TEST(PointList, AFirstRowWithoutNumbersIsItsHeader) {
    const PointList named = pointListOfText("name,x\n\n,\nA,1\nB,none\n");
    EXPECT_EQ(named.header, (Cells{"name", "x"}));
    EXPECT_EQ(named.rows, (List{{"A", "1"}, {"B", "none"}}));
    EXPECT_EQ(named.columns(), 2U);
    EXPECT_FALSE(named.system);
    EXPECT_FALSE(named.goesOn);
    const PointList twoRows = pointListOfText("name,x\nhead,again\nA,1");
    EXPECT_EQ(twoRows.rows, (List{{"head", "again"}, {"A", "1"}}));
    EXPECT_TRUE(pointListOfText("A,1e999\nname,x").header.empty());
}

TEST(PointList, HasTheColumnsOfItsWidestRow) {
    EXPECT_EQ(pointListOfText("a,b,c\n1,2\n").columns(), 3U);
    EXPECT_EQ(pointListOfText("a,b\n1,2\n1,2,3,4\n1\n").columns(), 4U);
}

TEST(PointList, IsInUtf8OrInTheCodePage) {
    EXPECT_EQ(pointListOfText("\xEF\xBB\xBF점,1").rows, (List{{"점", "1"}}));
    EXPECT_EQ(pointListOfText(encodeCodePage("점,1")).rows, (List{{"점", "1"}}));
}

TEST(PointList, WithoutRowsOrWithoutTextIsRefused) {
    for (const std::string bytes : {"", "\n \n", "name,x\n", "name x"})
        EXPECT_EQ(refusalOf(bytes), "점이 하나도 없습니다") << bytes;
    EXPECT_EQ(refusalOf(std::string("a,1\n\0", 5)), "글로 된 점 목록이 아닙니다");
}

TEST(PointList, OfMoreThanTenThousandRowsGoesOn) {
    std::string text = "name,x\n";
    for (int i = 0; i < 10000; ++i) text += "P,1\n";
    const PointList whole = pointListOfText(text);
    EXPECT_EQ(whole.rows.size(), 10000U);
    EXPECT_FALSE(whole.goesOn);
    const PointList cut = pointListOfText(text + "P,1\nP,1\n");
    EXPECT_EQ(cut.rows.size(), 10000U);
    EXPECT_TRUE(cut.goesOn);
}

class PointListOfFile : public ::testing::Test {
protected:
    void SetUp() override {
        if (!std::filesystem::exists(KELVO_BINARY_DIR "/kelvo-exchange.so"))
            GTEST_SKIP() << "built without GDAL (KELVO_EXCHANGE=OFF)";
    }
    [[nodiscard]] std::string pathOf(VectorFormat format) const {
        return folder.file("a." + std::string(limitsOf(format).ending));
    }
    void writeNames(VectorFormat format, const Cells& names) const {
        const auto writer = loadPointFiles()->create({.format = format,
                                                      .path = pathOf(format),
                                                      .columns = {{"name"}, {"x"}},
                                                      .system = "EPSG:4326",
                                                      .placesAreAngles = true,
                                                      .points = 0});
        for (const std::string& name : names) {
            std::optional<Place> place = Place{.x = 127.25, .y = 37.5, .height = -0.5};
            if (name == "none") place.reset();
            writer->write(std::vector<std::string_view>{name, "7"}, place);
        }
        writer->finish();
    }
    [[nodiscard]] std::string refusal(const std::string& path) {
        return testing::refusalOf([&] { return pointListOfFile(disk, path); });
    }

    testing::TemporaryFolder folder;
    PlatformDisk disk;
};

TEST_F(PointListOfFile, WithGeometryHasNameNorthEastAndHeight) {
    writeNames(VectorFormat::GeoPackage, {" 점 ", "none"});
    const PointList list = pointListOfFile(disk, pathOf(VectorFormat::GeoPackage));
    EXPECT_EQ(list.header, (Cells{"이름", "북쪽(위도)", "동쪽(경도)", "높이"}));
    EXPECT_EQ(list.rows, (List{{"점", "37.5", "127.25", "-0.5"}, {"none", "", "", ""}}));
    ASSERT_TRUE(list.system);
    EXPECT_TRUE(list.system->geographic);
    EXPECT_FALSE(list.goesOn);
}

TEST_F(PointListOfFile, OfASheetHasItsCells) {
    writeNames(VectorFormat::Xlsx, {" 점 ", "none"});
    const PointList list = pointListOfFile(disk, pathOf(VectorFormat::Xlsx));
    EXPECT_EQ(list.header, (Cells{"name", "x"}));
    EXPECT_EQ(list.rows, (List{{"점", "7"}, {"none", "7"}}));
    EXPECT_FALSE(list.system);
}

TEST_F(PointListOfFile, OfMoreThanTenThousandPointsGoesOn) {
    for (const VectorFormat format : {VectorFormat::GeoJson, VectorFormat::Xlsx}) {
        writeNames(format, Cells(10000, "P"));
        const PointList whole = pointListOfFile(disk, pathOf(format));
        EXPECT_EQ(whole.rows.size(), 10000U);
        EXPECT_FALSE(whole.goesOn);
        writeNames(format, Cells(10002, "P"));
        const PointList cut = pointListOfFile(disk, pathOf(format));
        EXPECT_EQ(cut.rows.size(), 10000U);
        EXPECT_TRUE(cut.goesOn);
    }
}

TEST_F(PointListOfFile, ThatCannotBeReadIsNamed) {
    folder.put("a.csv", "name,x\n");
    EXPECT_EQ(refusal(folder.file("a.csv")), "점이 하나도 없습니다 (" + folder.file("a.csv") + ")");
    EXPECT_NE(refusal(folder.file("gone.csv")).find("gone.csv"), std::string::npos);
    EXPECT_NE(refusal(folder.file("gone.gpkg")).find("gone.gpkg"), std::string::npos);
    folder.put("b.csv", "A,1\n");
    EXPECT_EQ(pointListOfFile(disk, folder.file("b.csv")).rows, (List{{"A", "1"}}));
}

}  // namespace
}  // namespace kelvo
