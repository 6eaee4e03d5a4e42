#include "exchange/point_files.h"

#include <sys/resource.h>

#include <algorithm>
#include <csignal>
#include <filesystem>
#include <random>

#include "exchange_samples.h"
#include "support/temporary_folder.h"

namespace kelvo {
namespace {

namespace fs = std::filesystem;
using testing::sampleColumns;
using testing::sampleLayer;
using testing::SamplePoint;
using testing::samplePoints;
using testing::TemporaryFolder;
using testing::writeFile;
using testing::writePoints;

std::string nameOfFormat(const ::testing::TestParamInfo<VectorFormat>& format) {
    return std::string(limitsOf(format.param).name);
}

// What the fault says, empty if there was none.
template <typename Work>
std::string faultOf(const Work& work) {
    try {
        work();
    } catch (const ExchangeFault& fault) {
        return fault.what();
    }
    return {};
}

class PointFile : public testing::NeedsModule<::testing::TestWithParam<VectorFormat>> {
protected:
    [[nodiscard]] VectorFormat format() const { return GetParam(); }
    [[nodiscard]] std::string path() const {
        return folder.file("점." + std::string(limitsOf(format()).ending));
    }
    [[nodiscard]] std::size_t filesThere() const {
        return static_cast<std::size_t>(
            std::distance(fs::directory_iterator(folder.path()), fs::directory_iterator()));
    }
    [[nodiscard]] std::vector<PointOfFile> readPoints() const {
        const auto reader = loadPointFiles()->open(format(), path());
        std::vector<PointOfFile> points;
        for (PointOfFile point; reader->read(point);) points.push_back(point);
        return points;
    }
    [[nodiscard]] std::vector<std::vector<std::string>> readRows() const {
        const auto reader = loadPointFiles()->openSheet(format(), path());
        std::vector<std::vector<std::string>> rows;
        for (std::vector<std::string> cells; reader->read(cells);) rows.push_back(cells);
        return rows;
    }
    void readAll() const {
        if (limitsOf(format()).hasGeometry) {
            static_cast<void>(readPoints());
        } else {
            static_cast<void>(readRows());
        }
    }

    TemporaryFolder folder;
};

class GeometryFile : public PointFile {};
class SheetFile : public PointFile {};

TEST_P(GeometryFile, GivesBackEveryNameAndCoordinateToThePrintedDigit) {
    writeFile(sampleLayer(format(), path()), samplePoints());
    const auto found = readPoints();
    const auto given = samplePoints();
    ASSERT_EQ(found.size(), given.size());
    for (std::size_t i = 0; i < given.size(); ++i) {
        EXPECT_EQ(found[i].name, given[i].name);
        ASSERT_TRUE(found[i].place);
        EXPECT_NEAR(found[i].place->x, given[i].place->x, 5e-11);
        EXPECT_NEAR(found[i].place->y, given[i].place->y, 5e-11);
        EXPECT_NEAR(found[i].place->height, given[i].place->height, 5e-5);
    }
}

TEST_P(GeometryFile, KeepsARowWithoutPlaceOrLeavesItOutAsItsLimitsSay) {
    auto points = samplePoints();
    points[1].place.reset();
    points[1].lat.clear();
    points[1].status = "계산할 수 없습니다";
    writeFile(sampleLayer(format(), path()), points);
    const auto found = readPoints();
    if (limitsOf(format()).holdsUnplaced) {
        ASSERT_EQ(found.size(), 3U);
        EXPECT_EQ(found[1].name, "똠뷁");
        EXPECT_FALSE(found[1].place);
    } else {
        ASSERT_EQ(found.size(), 2U);
        EXPECT_EQ(found[1].name, "007");
    }
}

TEST_P(GeometryFile, SaysWhatSystemItsCoordinatesAreIn) {
    writeFile(sampleLayer(format(), path()), samplePoints());
    const SystemOfFile system = loadPointFiles()->open(format(), path())->system();
    EXPECT_EQ(system.stated, limitsOf(format()).system != StatedSystem::None);
    if (!system.stated) return;
    EXPECT_TRUE(system.geographic);
    EXPECT_EQ(system.semiMajorAxis, 6378137);
}

TEST_P(SheetFile, GivesBackEveryCellAsItWasPrinted) {
    writeFile(sampleLayer(format(), path()), samplePoints());
    const auto rows = readRows();
    ASSERT_EQ(rows.size(), 4U);
    EXPECT_EQ(rows[0], (std::vector<std::string>{"name", "wgs_lat", "wgs_lon", "wgs_h", "status"}));
    const auto given = samplePoints();
    for (std::size_t i = 0; i < given.size(); ++i) {
        EXPECT_EQ(rows[i + 1][0], given[i].name);
        EXPECT_NEAR(std::stod(rows[i + 1][1]), std::stod(given[i].lat), 5e-12);
        EXPECT_NEAR(std::stod(rows[i + 1][2]), std::stod(given[i].lon), 5e-12);
        EXPECT_NEAR(std::stod(rows[i + 1][3]), std::stod(given[i].height), 5e-12);
    }
}

TEST_P(PointFile, OnADiskThatIsFullFailsWithASentenceAndLeavesTheOldFile) {
    folder.put("점." + std::string(limitsOf(format()).ending), "old");
    std::mt19937_64 random(7);
    std::vector<SamplePoint> many;
    for (int i = 0; i < 20000; ++i) {
        many.push_back(samplePoints()[0]);
        // Text that no packing makes small.
        many.back().name += std::to_string(random()) + std::to_string(random());
    }
    const auto files = loadPointFiles();
    struct rlimit before {};
    getrlimit(RLIMIT_FSIZE, &before);
    struct rlimit small = before;
    small.rlim_cur = 200000;
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    setrlimit(RLIMIT_FSIZE, &small);
    const std::string fault = faultOf([&] {
        const auto writer = files->create(sampleLayer(format(), path()));
        writePoints(*writer, many);
        writer->finish();
    });
    setrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, handler);
    EXPECT_NE(fault, "");
    EXPECT_TRUE(TemporaryFolder::readBytes(path()) == "old");
    EXPECT_EQ(filesThere(), 1U);
}

TEST_P(PointFile, GivenUpInTheMiddleLeavesTheOldFileAndNothingElse) {
    folder.put("점." + std::string(limitsOf(format()).ending), "old");
    {
        const auto writer = loadPointFiles()->create(sampleLayer(format(), path()));
        writePoints(*writer, samplePoints());
    }
    EXPECT_EQ(TemporaryFolder::readBytes(path()), "old");
    EXPECT_EQ(filesThere(), 1U);
}

TEST_P(PointFile, WrittenTwiceReplacesTheFirstWhole) {
    auto points = samplePoints();
    writeFile(sampleLayer(format(), path()), points);
    points.pop_back();
    writeFile(sampleLayer(format(), path()), points);
    if (limitsOf(format()).hasGeometry) {
        EXPECT_EQ(readPoints().size(), 2U);
    } else {
        EXPECT_EQ(readRows().size(), 3U);
    }
    EXPECT_EQ(filesThere(), format() == VectorFormat::Shapefile ? 5U : 1U);
}

TEST_P(PointFile, ThatIsCutIsRefusedWithItsName) {
    std::vector<SamplePoint> many;
    many.reserve(3000);
    for (int i = 0; i < 3000; ++i) many.push_back(samplePoints()[static_cast<std::size_t>(i % 3)]);
    writeFile(sampleLayer(format(), path()), many);
    fs::resize_file(path(), fs::file_size(path()) / 2);
    const std::string fault = faultOf([&] { readAll(); });
    EXPECT_NE(fault.find(path()), std::string::npos) << fault;
}

// Letters beyond the first 65,536, letters that XML forbids, what looks like a code of a drawing.
TEST_P(PointFile, KeepsAnUnusualLetterOfANameOrRefusesIt) {
    for (const std::string name : {"\U0001F600", "a\xEF\xBF\xBF", "a\xEF\xBF\xBE", "\\U+AC00",
                                   "\\~", "a\xC2\x85", "\xEF\xBB\xBF점", "&#1;", "]]>"}) {
        auto points = samplePoints();
        points[0].name = name;
        const std::string fault =
            faultOf([&] { writeFile(sampleLayer(format(), path()), points); });
        EXPECT_TRUE(fault.empty() || fault.find("담을 수 없습니다") != std::string::npos) << fault;
        if (!fault.empty()) {
            EXPECT_EQ(filesThere(), 0U) << name;
            continue;
        }
        std::string found;
        EXPECT_EQ(faultOf([&] {
                      found = limitsOf(format()).hasGeometry ? readPoints().at(0).name
                                                             : readRows().at(1).at(0);
                  }),
                  "")
            << name;
        EXPECT_EQ(found, name);
        for (const auto& each : std::filesystem::directory_iterator(folder.path()))
            std::filesystem::remove(each);
    }
}

TEST_P(PointFile, WithoutAnyPointIsRefused) {
    writeFile(sampleLayer(format(), path()), {});
    const std::string fault = faultOf([&] { readAll(); });
    EXPECT_NE(fault.find(path()), std::string::npos) << fault;
}

TEST_P(PointFile, OfAnotherKindThanItsNameIsRefused) {
    folder.put("점." + std::string(limitsOf(format()).ending), "no file of points\n");
    EXPECT_NE(faultOf([&] { readAll(); }).find(path()), std::string::npos);
}

TEST_P(PointFile, ThatIsMissingIsRefused) {
    EXPECT_NE(faultOf([&] { readAll(); }).find(path()), std::string::npos);
}

TEST_P(PointFile, InAFolderThatIsMissingIsRefusedBeforeTheFirstPoint) {
    const std::string nowhere = folder.file("none/점." + std::string(limitsOf(format()).ending));
    const std::string fault = faultOf(
        [&] { static_cast<void>(loadPointFiles()->create(sampleLayer(format(), nowhere))); });
    EXPECT_NE(fault.find(nowhere), std::string::npos) << fault;
}

constexpr auto kWithGeometry = {VectorFormat::GeoPackage, VectorFormat::GeoJson,
                                VectorFormat::Shapefile,  VectorFormat::Kml,
                                VectorFormat::Gpx,        VectorFormat::Dxf};
constexpr auto kSheets = {VectorFormat::Xlsx, VectorFormat::Ods};
constexpr auto kAll = {VectorFormat::GeoPackage, VectorFormat::GeoJson, VectorFormat::Shapefile,
                       VectorFormat::Kml,        VectorFormat::Gpx,     VectorFormat::Dxf,
                       VectorFormat::Xlsx,       VectorFormat::Ods};
INSTANTIATE_TEST_SUITE_P(, GeometryFile, ::testing::ValuesIn(kWithGeometry), nameOfFormat);
INSTANTIATE_TEST_SUITE_P(, SheetFile, ::testing::ValuesIn(kSheets), nameOfFormat);
INSTANTIATE_TEST_SUITE_P(, PointFile, ::testing::ValuesIn(kAll), nameOfFormat);

class PointFiles : public testing::NeedsModule<::testing::Test> {};

TEST(FormatLimits, AreKnownByTheEndingOfANameWhateverItsCase) {
    EXPECT_EQ(vectorFormatOf("a/b.gpkg"), VectorFormat::GeoPackage);
    EXPECT_EQ(vectorFormatOf("점.KML"), VectorFormat::Kml);
    EXPECT_EQ(vectorFormatOf("a.csv"), std::nullopt);
    EXPECT_EQ(vectorFormatOf("gpkg"), std::nullopt);
    EXPECT_EQ(vectorFormatOf(".shp"), std::nullopt);
}

TEST(FormatLimits, ASheetHoldsNoMoreRowsThanASpreadsheetShows) {
    EXPECT_EQ(mostPointsOf(VectorFormat::Xlsx, sampleColumns()), 1048575U);
    EXPECT_EQ(mostPointsOf(VectorFormat::Ods, sampleColumns()), 1048575U);
    EXPECT_EQ(mostPointsOf(VectorFormat::GeoPackage, sampleColumns()), 0U);
}

TEST(FormatLimits, ATableOfAShapefileStaysBelowTwoGibibytes) {
    const std::uint64_t most = mostPointsOf(VectorFormat::Shapefile, sampleColumns());
    const std::uint64_t row = 1 + 2 * 254 + 3 * 24;
    EXPECT_LT(most * row, 2147483648U);
    EXPECT_GT((most + 1) * row + 512, 2147483648U);
}

TEST_F(PointFiles, MoreRowsThanASheetHoldsAreRefusedBeforeTheFirst) {
    const TemporaryFolder folder;
    PointLayer layer = sampleLayer(VectorFormat::Xlsx, folder.file("a.xlsx"));
    layer.points = 1048576;
    const std::string fault = faultOf([&] { static_cast<void>(loadPointFiles()->create(layer)); });
    EXPECT_NE(fault.find("1048575"), std::string::npos) << fault;
    EXPECT_TRUE(fs::is_empty(folder.path()));
}

TEST_F(PointFiles, ANameThatAShapefileWouldCutIsRefused) {
    const TemporaryFolder folder;
    auto points = samplePoints();
    points[2].name.assign(255, 'x');
    const std::string fault = faultOf(
        [&] { writeFile(sampleLayer(VectorFormat::Shapefile, folder.file("a.shp")), points); });
    EXPECT_NE(fault.find("254"), std::string::npos) << fault;
    EXPECT_TRUE(fs::is_empty(folder.path()));
    points[2].name.assign(254, 'x');
    writeFile(sampleLayer(VectorFormat::Shapefile, folder.file("a.shp")), points);
}

TEST_F(PointFiles, ANameThatMeansSomethingToADrawingIsRefused) {
    const TemporaryFolder folder;
    for (const std::string name : {"50%%d", "{a}", "a\tb"}) {
        auto points = samplePoints();
        points[0].name = name;
        EXPECT_NE(faultOf([&] {
                      writeFile(sampleLayer(VectorFormat::Dxf, folder.file("a.dxf")), points);
                  }),
                  "")
            << name;
    }
    auto points = samplePoints();
    points[0].name = R"(a\P"b" 점)";
    writeFile(sampleLayer(VectorFormat::Dxf, folder.file("a.dxf")), points);
    PointOfFile first;
    ASSERT_TRUE(loadPointFiles()->open(VectorFormat::Dxf, folder.file("a.dxf"))->read(first));
    EXPECT_EQ(first.name, points[0].name);
}

TEST_F(PointFiles, PointsOfADrawingAtOnePlaceKeepTheirOwnNames) {
    const TemporaryFolder folder;
    auto points = samplePoints();
    points[1].place = points[0].place;
    points[2].place = points[0].place;
    writeFile(sampleLayer(VectorFormat::Dxf, folder.file("a.dxf")), points);
    const auto reader = loadPointFiles()->open(VectorFormat::Dxf, folder.file("a.dxf"));
    for (const SamplePoint& given : points) {
        PointOfFile point;
        ASSERT_TRUE(reader->read(point));
        EXPECT_EQ(point.name, given.name);
    }
}

TEST_F(PointFiles, ATableWithoutAWordOnItsLettersIsReadInTheKoreanCodePage) {
    const TemporaryFolder folder;
    const std::string path = folder.file("a.shp");
    writeFile(sampleLayer(VectorFormat::Shapefile, path), samplePoints());
    fs::remove(folder.file("a.cpg"));
    std::string table = folder.bytes("a.dbf");
    const std::string utf8 = "점 1";
    const std::string korean = "\xC1\xA1 1 ";
    const std::size_t at = table.find(utf8);
    ASSERT_NE(at, std::string::npos);
    // Of the three names this one is in the code page, the others are left in UTF-8.
    table.replace(at, korean.size(), korean);
    folder.put("a.dbf", table);
    const auto reader = loadPointFiles()->open(VectorFormat::Shapefile, path);
    PointOfFile point;
    ASSERT_TRUE(reader->read(point));
    EXPECT_EQ(point.name, "점 1");
    ASSERT_TRUE(reader->read(point));
    EXPECT_EQ(point.name, "똠뷁");
}

TEST_F(PointFiles, ADrawingInUtf8IsReadAsSuchWhateverItsCodePageSays) {
    const TemporaryFolder folder;
    folder.put("a.dxf",
               "0\nSECTION\n2\nHEADER\n9\n$ACADVER\n1\nAC1021\n9\n$DWGCODEPAGE\n3\nANSI_949\n0\n"
               "ENDSEC\n0\nSECTION\n2\nENTITIES\n0\nTEXT\n8\n0\n10\n200000.5\n20\n500000.25\n30\n"
               "12.5\n40\n2\n1\n점 1\n0\nENDSEC\n0\nEOF\n");
    PointOfFile point;
    ASSERT_TRUE(loadPointFiles()->open(VectorFormat::Dxf, folder.file("a.dxf"))->read(point));
    EXPECT_EQ(point.name, "점 1");
    ASSERT_TRUE(point.place);
    EXPECT_EQ(point.place->x, 200000.5);
    EXPECT_EQ(point.place->y, 500000.25);
    EXPECT_EQ(point.place->height, 12.5);
}

TEST_F(PointFiles, LinesAreRefusedByTheirName) {
    const TemporaryFolder folder;
    folder.put("a.geojson",
               R"({"type":"FeatureCollection","features":[{"type":"Feature","properties":{},)"
               R"("geometry":{"type":"LineString","coordinates":[[127,37],[128,38]]}}]})");
    const std::string fault = faultOf([&] {
        static_cast<void>(loadPointFiles()->open(VectorFormat::GeoJson, folder.file("a.geojson")));
    });
    EXPECT_NE(fault.find("Line String"), std::string::npos) << fault;
}

TEST_F(PointFiles, ACollectionOfOnePointIsAPointAndOneOfTwoIsRefused) {
    const TemporaryFolder folder;
    const auto put = [&](const std::string& coordinates) {
        folder.put("a.geojson",
                   R"({"type":"FeatureCollection","features":[{"type":"Feature","properties":{},)"
                   R"("geometry":{"type":"MultiPoint","coordinates":)" +
                       coordinates + "}}]}");
    };
    const auto read = [&] {
        PointOfFile point;
        static_cast<void>(
            loadPointFiles()->open(VectorFormat::GeoJson, folder.file("a.geojson"))->read(point));
        return point;
    };
    put("[[127.5,37.25]]");
    const PointOfFile point = read();
    ASSERT_TRUE(point.place);
    EXPECT_EQ(point.place->x, 127.5);
    EXPECT_EQ(point.place->y, 37.25);
    put("[[127.5,37.25],[128,38]]");
    EXPECT_NE(faultOf([&] { static_cast<void>(read()); }), "");
}

TEST_F(PointFiles, ASheetOfWhichGdalReadsAPartOnlyIsRefused) {
    const TemporaryFolder folder;
    const std::string path = folder.file("a.ods");
    {
        PointLayer layer = sampleLayer(VectorFormat::Ods, path);
        layer.columns.assign(20, {"", 0});
        for (std::size_t i = 0; i < layer.columns.size(); ++i)
            layer.columns[i].name = "c" + std::to_string(i);
        const auto writer = loadPointFiles()->create(layer);
        for (int i = 0; i < 30000; ++i) {
            const std::string number = std::to_string(i);
            writer->write(std::vector<std::string_view>(20, number), std::nullopt);
        }
        writer->finish();
    }
    const std::string fault = faultOf([&] {
        const auto reader = loadPointFiles()->openSheet(VectorFormat::Ods, path);
        std::vector<std::string> cells;
        while (reader->read(cells)) continue;
    });
    EXPECT_NE(fault.find(path), std::string::npos) << fault;
}

TEST_F(PointFiles, ALinkIsFollowedAndTheRightsOfTheOldFileStay) {
    const TemporaryFolder folder;
    folder.put("real.gpkg", "old");
    fs::permissions(folder.file("real.gpkg"), fs::perms::owner_read | fs::perms::owner_write);
    fs::create_symlink("real.gpkg", folder.file("link.gpkg"));
    writeFile(sampleLayer(VectorFormat::GeoPackage, folder.file("link.gpkg")), samplePoints());
    EXPECT_TRUE(fs::is_symlink(folder.file("link.gpkg")));
    EXPECT_GT(fs::file_size(folder.file("real.gpkg")), 1000U);
    EXPECT_EQ(fs::status(folder.file("real.gpkg")).permissions(),
              fs::perms::owner_read | fs::perms::owner_write);
}

}  // namespace
}  // namespace kelvo
