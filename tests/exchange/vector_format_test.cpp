// What each format holds, and what its files are called.
#include "exchange/vector_format.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace kelvo {
namespace {

using enum VectorFormat;

std::string limitsText(const FormatLimits& limits) {
    const std::string system = limits.system == StatedSystem::Any     ? "any"
                               : limits.system == StatedSystem::Wgs84 ? "wgs84"
                                                                      : "none";
    return std::string(limits.ending) + " " + std::string(limits.name) + " " + system + " " +
           std::to_string(limits.mostPoints) + " " + std::to_string(limits.longestText) +
           (limits.holdsUnplaced ? " unplaced" : "") +
           (limits.writesInConstantMemory ? " streamed" : "") +
           (limits.hasGeometry ? " geometry" : "");
}

TEST(VectorFormats, HaveTheseLimits) {
    const std::vector<std::pair<VectorFormat, std::string>> wanted{
        {GeoPackage, "gpkg GeoPackage any 0 0 unplaced streamed geometry"},
        {GeoJson, "geojson GeoJSON wgs84 0 0 unplaced streamed geometry"},
        {Shapefile, "shp Shapefile any 0 254 unplaced streamed geometry"},
        {Kml, "kml KML wgs84 0 0 streamed geometry"},
        {Gpx, "gpx GPX wgs84 0 0 streamed geometry"},
        {Dxf, "dxf DXF none 0 0 geometry"},
        {Xlsx, "xlsx XLSX none 1048575 32767 unplaced"},
        {Ods, "ods ODS none 1048575 32767 unplaced"}};
    ASSERT_EQ(vectorFormats().size(), wanted.size());
    for (std::size_t i = 0; i < wanted.size(); ++i) {
        EXPECT_EQ(vectorFormats()[i].format, wanted[i].first);
        EXPECT_EQ(limitsText(limitsOf(wanted[i].first)), wanted[i].second);
    }
}

TEST(VectorFormats, AreKnownByTheLettersAfterThePoint) {
    const std::vector<std::pair<std::string, VectorFormat>> names{
        {"a.gpkg", GeoPackage}, {"a.GeoJSON", GeoJson}, {"A.SHP", Shapefile}, {"a.b.Kml", Kml},
        {"/x/y.GPX", Gpx},      {"a.DXF", Dxf},         {"a.xlsx", Xlsx},     {"a.ODS", Ods}};
    for (const auto& [name, format] : names) EXPECT_EQ(vectorFormatOf(name), format) << name;
    for (const std::string name :
         {"", "shp", ".shp", "ashp", "a_shp", "a.shpx", "a.shp.zip", "a.json", "a.xls", "a.sh"})
        EXPECT_EQ(vectorFormatOf(name), std::nullopt) << name;
}

// 33 bytes of a head, 32 for each column, one byte in front of each row.
TEST(VectorFormats, AShapefileHoldsAsManyRowsAsGoIntoTwoGibibytes) {
    EXPECT_EQ(mostPointsOf(Shapefile, std::vector<PointColumn>{{"name"}}),
              (2147483647U - 33 - 32) / 255);
    EXPECT_EQ(mostPointsOf(Shapefile, std::vector<PointColumn>{{"name"}, {"x", 0}, {"y", 6}}),
              (2147483647U - 33 - 96) / 303);
    // Five texts and fifty numbers fill the file to its last byte.
    std::vector<PointColumn> columns(50, {"x", 0});
    columns.insert(columns.end(), 5, {"name"});
    EXPECT_EQ(33 + 32 * 55 + 2471 * mostPointsOf(Shapefile, columns), 2147483647U);
    EXPECT_TRUE((PointColumn{"a", -1}.holdsText()));
    EXPECT_FALSE((PointColumn{"a", 0}.holdsText()));
    EXPECT_EQ(mostPointsOf(Dxf, std::vector<PointColumn>{{"name"}}), 0U);
}

}  // namespace
}  // namespace kelvo
