// Points into the files of other programs and out of them.
#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <string>
#include <vector>

#include "convert/conversion_of_rows.h"
#include "convert/delimited_source.h"
#include "convert/refusal.h"
#include "convert/vector_sink.h"
#include "convert/vector_source.h"
#include "exchange/load_point_files.h"
#include "library/definition_text.h"
#include "support/refusals.h"
#include "support/temporary_folder.h"
#include "support/usual_definition.h"

namespace kelvo {
namespace {

using Texts = std::vector<std::string>;

class VectorFiles : public ::testing::Test {
protected:
    void SetUp() override {
        if (!std::filesystem::exists(KELVO_BINARY_DIR "/kelvo-exchange.so"))
            GTEST_SKIP() << "built without GDAL (KELVO_EXCHANGE=OFF)";
    }
    // Points in WGS84 with the names P1, P2 and so on; those without a longitude can't be read.
    static RowBlock converted(const PointConverter& converter,
                              const std::vector<GivenPoint>& given) {
        static const std::vector<std::string> names{"P1", "P2", "P3", "P4"};
        RowBlock block;
        for (std::size_t i = 0; i < given.size(); ++i) {
            if (given[i].second == 0)
                block.addUnread(names.at(i), 1, "no number");
            else
                block.add(names.at(i), given[i], 1);
        }
        convertBlock(block,
                     {.converter = converter, .system = System::Wgs, .angles = AngleForm::Degrees});
        return block;
    }
    static PointConverter plain() { return converterOf(DefinitionText{}); }
    static PointConverter adjusted() {
        return converterOf({.parameters = "1st 1 0 0\n", .knownPoints = std::nullopt});
    }
    [[nodiscard]] VectorOutput output(VectorFormat format,
                                      std::vector<OutputSystem> systems) const {
        return {.format = format,
                .path = path(format),
                .systems = std::move(systems),
                .geometry = std::nullopt,
                .angles = AngleForm::Degrees,
                .points = 0};
    }
    [[nodiscard]] std::string path(VectorFormat format) const {
        return folder.file("a." + std::string(limitsOf(format).ending));
    }
    static Texts written(const VectorOutput& output, const PointConverter& converter,
                         const std::vector<GivenPoint>& given) {
        VectorSink sink(output, converter.definition());
        sink.take(converted(converter, given));
        sink.finish();
        return sink.notes();
    }
    static std::string refusal(const VectorOutput& output, const PointConverter& converter,
                               const std::vector<GivenPoint>& given = {}) {
        return testing::refusalOf([&] { return written(output, converter, given); });
    }
    [[nodiscard]] std::vector<PointOfFile> points(VectorFormat format) const {
        const auto reader = loadPointFiles()->open(format, path(format));
        std::vector<PointOfFile> all;
        for (PointOfFile point; reader->read(point);) all.push_back(point);
        return all;
    }
    [[nodiscard]] std::vector<Texts> rows() const {
        const auto reader =
            loadPointFiles()->openSheet(VectorFormat::Xlsx, path(VectorFormat::Xlsx));
        std::vector<Texts> all;
        for (Texts cells; reader->read(cells);) all.push_back(cells);
        return all;
    }
    // What opening the file as this system says.
    [[nodiscard]] std::string complaint(VectorFormat format, System system,
                                        const Definition& definition) const {
        return testing::refusalOf(
            [&] { return openVectorSource(format, path(format), system, definition); });
    }

    testing::TemporaryFolder folder;
    const std::vector<GivenPoint> seoul{{37.5, 127, 50}};
};

TEST_F(VectorFiles, APlaceIsThatOfTheFirstSystemOrOfTheOneAskedFor) {
    const PointConverter converter = plain();
    const RowBlock block = converted(converter, seoul);
    const ConvertedPoint& p = block.points[0];
    const std::vector<std::pair<OutputSystem, Place>> systems{
        {OutputSystem::Wgs, {p.WgsLam, p.WgsPhi, p.WgsH}},
        {OutputSystem::User, {p.UserLam, p.UserPhi, p.UserH}},
        {OutputSystem::Tm, {p.TmY, p.TmX, p.TmH}},
        {OutputSystem::Utm, {p.UtmY, p.UtmX, p.UtmH}},
        {OutputSystem::WgsUtm, {p.WgsUtmY, p.WgsUtmX, p.WgsUtmH}}};
    for (const auto& [system, place] : systems) {
        const OutputSystem another =
            system == OutputSystem::Wgs ? OutputSystem::Tm : OutputSystem::Wgs;
        VectorOutput first = output(VectorFormat::GeoPackage, {system, another});
        VectorOutput asked = output(VectorFormat::GeoPackage, {another, system});
        asked.geometry = system;
        for (const VectorOutput& one : {first, asked}) {
            std::ignore = written(one, converter, seoul);
            const auto found = points(VectorFormat::GeoPackage);
            ASSERT_EQ(found.size(), 1U);
            EXPECT_EQ(found[0].name, "P1");
            ASSERT_TRUE(found[0].place);
            EXPECT_NEAR(found[0].place->x, place.x, 1e-6);
            EXPECT_NEAR(found[0].place->y, place.y, 1e-6);
            EXPECT_NEAR(found[0].place->height, place.height, 1e-4);
            const SystemOfFile of =
                loadPointFiles()->open(VectorFormat::GeoPackage, one.path)->system();
            EXPECT_EQ(of.geographic, system == OutputSystem::Wgs || system == OutputSystem::User);
        }
    }
}

TEST_F(VectorFiles, TheCellsAreThoseOfTheColumnsBetweenNameAndStatus) {
    VectorOutput sheet = output(VectorFormat::Xlsx, {OutputSystem::Tm, OutputSystem::Wgs});
    sheet.angles = AngleForm::Hyphens;
    std::ignore = written(sheet, plain(), {{37.5, 127, 50}, {37.5, 0, 0}});
    const auto found = rows();
    ASSERT_EQ(found.size(), 3U);
    EXPECT_EQ(found[0], (Texts{"name", "tm_x", "tm_y", "tm_h", "tm_lon0", "wgs_lat", "wgs_lon",
                               "wgs_h", "status"}));
    EXPECT_EQ(found[1][0], "P1");
    EXPECT_EQ(found[1][4], "127");
    EXPECT_EQ(found[1][5], "37-30-00.0000");
    EXPECT_EQ(found[1][6], "127-00-00.0000");
    EXPECT_EQ(std::stod(found[1][7]), 50);
    EXPECT_EQ(found[2].front(), "P2");
    EXPECT_EQ(found[2].back(), "no number");
    EXPECT_EQ(found[2][1], "");
}

TEST_F(VectorFiles, BadPointsKeepTheirPlaceInTheOrder) {
    const std::vector<GivenPoint> given{{37, 0, 0}, {37.5, 127, 0}, {37, 0, 0}, {37.6, 127, 0}};
    for (const OutputSystem system : {OutputSystem::Wgs, OutputSystem::Tm}) {
        std::ignore = written(output(VectorFormat::GeoPackage, {system}), plain(), given);
        const auto found = points(VectorFormat::GeoPackage);
        ASSERT_EQ(found.size(), 4U);
        for (std::size_t i = 0; i < 4; ++i) {
            EXPECT_EQ(found[i].name, "P" + std::to_string(i + 1));
            EXPECT_EQ(found[i].place.has_value(), i == 1 || i == 3);
        }
    }
}

TEST_F(VectorFiles, OnlyBadPointsAreAFileOfTheUsualOrigin) {
    for (const OutputSystem system : {OutputSystem::Tm, OutputSystem::Utm, OutputSystem::WgsUtm}) {
        EXPECT_EQ(refusal(output(VectorFormat::GeoPackage, {system}), plain(), {{37, 0, 0}}), "");
        const auto found = points(VectorFormat::GeoPackage);
        ASSERT_EQ(found.size(), 1U);
        EXPECT_FALSE(found[0].place);
    }
    Definition definition = testing::usualDefinition();
    definition.tm = {.X0 = 600000, .Y0 = 200000, .Phi0 = 38, .Lam0 = 125, .S0 = 1};
    definition.utm.projection.Lam0 = 129;
    const auto nameOfSystem = [&](OutputSystem system) {
        VectorSink sink(output(VectorFormat::GeoPackage, {system}), definition);
        RowBlock bad;
        bad.addUnread("a", 1, "no number");
        sink.take(bad);
        sink.finish();
        return loadPointFiles()
            ->open(VectorFormat::GeoPackage, path(VectorFormat::GeoPackage))
            ->system()
            .name;
    };
    EXPECT_EQ(nameOfSystem(OutputSystem::WgsUtm), "WGS 84 / UTM zone 52N");
    definition.utm.projection.Lam0 = 123;
    EXPECT_EQ(nameOfSystem(OutputSystem::WgsUtm), "WGS 84 / UTM zone 51N");
}

TEST_F(VectorFiles, PointsOfTwoOriginsAreRefusedInAGridAndNotInAngles) {
    const std::vector<GivenPoint> far{{37.5, 127, 0}, {37.5, 129, 0}};
    const std::vector<GivenPoint> near{{37.5, 127, 0}, {37.5, 127.1, 0}};
    for (const VectorFormat format : {VectorFormat::GeoPackage, VectorFormat::Dxf}) {
        EXPECT_EQ(refusal(output(format, {OutputSystem::Tm}), plain(), far),
                  "점들의 원점이 하나가 아닙니다 (127, 129). 파일 하나에는 좌표계가 하나이므로 "
                  "--geometry wgs로 쓰거나 원점별로 나누십시오");
        EXPECT_EQ(refusal(output(format, {OutputSystem::Tm}), plain(), near), "");
        EXPECT_EQ(refusal(output(format, {OutputSystem::User}), plain(), far), "");
        EXPECT_EQ(refusal(output(format, {OutputSystem::Wgs}), plain(), far), "");
    }
    const std::vector<GivenPoint> zones{{37.5, 125, 0}, {37.5, 127, 0}};
    const std::string says =
        "점들의 원점이 하나가 아닙니다 (123, 129). 파일 하나에는 좌표계가 하나이므로 "
        "--geometry wgs로 쓰거나 원점별로 나누십시오";
    for (const OutputSystem system : {OutputSystem::Utm, OutputSystem::WgsUtm})
        EXPECT_EQ(refusal(output(VectorFormat::GeoPackage, {system}), plain(), zones), says);
    EXPECT_EQ(refusal(output(VectorFormat::Xlsx, {OutputSystem::Tm}), plain(), far), "");
    EXPECT_EQ(refusal(output(VectorFormat::Kml, {OutputSystem::Tm}), plain(), far), "");
}

TEST_F(VectorFiles, AGeometryThatTheFormatDoesNotHaveIsRefused) {
    VectorOutput sheet = output(VectorFormat::Xlsx, {OutputSystem::Wgs});
    sheet.geometry = OutputSystem::Wgs;
    EXPECT_EQ(refusal(sheet, plain()), "--geometry: XLSX has no geometry, only columns");
    VectorOutput kml = output(VectorFormat::Kml, {OutputSystem::Wgs});
    kml.geometry = OutputSystem::Tm;
    EXPECT_EQ(refusal(kml, plain()), "--geometry: KML is in WGS84 latitude and longitude only");
    kml.geometry = OutputSystem::Wgs;
    EXPECT_EQ(refusal(kml, plain(), seoul), "");
    VectorOutput drawing = output(VectorFormat::Dxf, {OutputSystem::Wgs});
    drawing.geometry = OutputSystem::Tm;
    EXPECT_EQ(refusal(drawing, plain(), seoul), "");
}

TEST_F(VectorFiles, TheNotesSayWhatTheFileIsNot) {
    EXPECT_EQ(written(output(VectorFormat::GeoPackage, {OutputSystem::Tm}), plain(), seoul),
              Texts{});
    EXPECT_EQ(written(output(VectorFormat::GeoJson, {OutputSystem::Wgs, OutputSystem::Tm}), plain(),
                      seoul),
              Texts{});
    EXPECT_EQ(written(output(VectorFormat::GeoJson, {OutputSystem::Tm, OutputSystem::Wgs}), plain(),
                      seoul),
              Texts{"GeoJSON is in WGS84 latitude and longitude, and so are the points"});
    EXPECT_EQ(written(output(VectorFormat::Xlsx, {OutputSystem::Tm}), adjusted(), seoul),
              Texts{"XLSX carries no coordinate reference system"});
    const std::vector<GivenPoint> bad{{37, 0, 0}, {37.5, 127, 0}, {37, 0, 0}};
    EXPECT_EQ(written(output(VectorFormat::Kml, {OutputSystem::Wgs}), plain(), bad),
              Texts{"KML holds no point without coordinates: 2 left out"});
    EXPECT_EQ(written(output(VectorFormat::Dxf, {OutputSystem::Tm}), plain(), bad),
              (Texts{"DXF carries no coordinate reference system",
                     "DXF holds no point without coordinates: 2 left out"}));
    EXPECT_EQ(written(output(VectorFormat::GeoPackage, {OutputSystem::Wgs}), adjusted(), seoul),
              Texts{});
}

// A second of latitude is a 3600th of a degree of the circle around Bessel's ellipsoid.
TEST_F(VectorFiles, ANoteSaysHowFarThePointsStandBesideTheirSystem) {
    EXPECT_EQ(
        written(output(VectorFormat::GeoPackage, {OutputSystem::Tm}), adjusted(), seoul),
        Texts{"first adjustment and known points have no place in a coordinate reference system: "
              "the points stand up to 30.918 m beside the place that it gives their WGS84 "
              "coordinates"});
}

TEST_F(VectorFiles, AFileIsReadInTheSystemThatItStates) {
    const PointConverter converter = plain();
    std::ignore = written(output(VectorFormat::GeoPackage, {OutputSystem::Tm}), converter,
                          {{37.5, 127, 50}, {37, 0, 0}});
    const RowBlock wanted = converted(converter, seoul);
    const auto source = openVectorSource(VectorFormat::GeoPackage, path(VectorFormat::GeoPackage),
                                         System::Tm, converter.definition());
    RowBlock block;
    ASSERT_TRUE(source->gather(block));
    ASSERT_EQ(block.size(), 2U);
    EXPECT_EQ(block.names, (std::vector<std::string_view>{"P1", "P2"}));
    EXPECT_EQ(block.lines, (std::vector<long>{1, 2}));
    EXPECT_NEAR(block.given[0].first, wanted.points[0].TmX, 1e-6);
    EXPECT_NEAR(block.given[0].second, wanted.points[0].TmY, 1e-6);
    EXPECT_NEAR(block.given[0].height, wanted.points[0].TmH, 1e-4);
    EXPECT_EQ(block.statuses,
              (std::map<std::size_t, std::string>{{1, "좌표가 비어 있습니다 (line 2)"}}));
    block.clear();
    EXPECT_FALSE(source->gather(block));
}

TEST_F(VectorFiles, MoreRowsThanABlockHoldsComeInSeveral) {
    const PointConverter converter = plain();
    {
        VectorSink sink(output(VectorFormat::GeoPackage, {OutputSystem::Wgs}),
                        converter.definition());
        const RowBlock one = converted(converter, seoul);
        for (std::size_t i = 0; i < kRowsOfBlock + 1; ++i) sink.take(one);
        sink.finish();
    }
    const auto source = openVectorSource(VectorFormat::GeoPackage, path(VectorFormat::GeoPackage),
                                         System::Wgs, converter.definition());
    RowBlock block;
    ASSERT_TRUE(source->gather(block));
    EXPECT_EQ(block.size(), kRowsOfBlock);
    EXPECT_EQ(block.lines.back(), 1024);
    block.clear();
    ASSERT_TRUE(source->gather(block));
    EXPECT_EQ(block.size(), 1U);
    EXPECT_EQ(block.lines.back(), 1025);
}

TEST_F(VectorFiles, AFileOfAnotherSystemIsRefused) {
    constexpr VectorFormat kFormat = VectorFormat::GeoPackage;
    const std::string end = " (" + path(kFormat) + ")";
    Definition bessel = testing::usualDefinition();
    Definition grs = bessel;
    grs.local.user = {6378137, 298.257222101};
    grs.utm.ellipsoid = grs.local.user;

    std::ignore = written(output(kFormat, {OutputSystem::Wgs}), plain(), seoul);
    EXPECT_EQ(complaint(kFormat, System::Wgs, bessel), "");
    EXPECT_EQ(complaint(kFormat, System::User, grs), "");
    EXPECT_EQ(complaint(kFormat, System::User, bessel),
              "파일의 좌표계(WGS 84)는 --from과 타원체가 다릅니다" + end);
    for (const System grid : {System::Tm, System::Utm})
        EXPECT_EQ(complaint(kFormat, grid, bessel),
                  "파일의 좌표계(WGS 84)는 경위도인데 --from은 직교좌표입니다" + end);

    std::ignore = written(output(kFormat, {OutputSystem::WgsUtm}), plain(), seoul);
    EXPECT_EQ(complaint(kFormat, System::Utm, grs), "");
    EXPECT_EQ(complaint(kFormat, System::Tm, grs), "");
    Definition mixed = grs;
    mixed.utm.ellipsoid = bessel.utm.ellipsoid;
    EXPECT_EQ(complaint(kFormat, System::Tm, mixed), "");
    const std::string other =
        "파일의 좌표계(WGS 84 / UTM zone 52N)는 --from과 타원체가 다릅니다" + end;
    EXPECT_EQ(complaint(kFormat, System::Utm, mixed), other);
    EXPECT_EQ(complaint(kFormat, System::Tm, bessel), other);
    for (const System angles : {System::Wgs, System::User})
        EXPECT_EQ(
            complaint(kFormat, angles, grs),
            "파일의 좌표계(WGS 84 / UTM zone 52N)는 직교좌표인데 --from은 경위도입니다" + end);
}

TEST_F(VectorFiles, AnAxisMayDifferByAMetre) {
    std::ignore = written(output(VectorFormat::GeoPackage, {OutputSystem::Wgs}), plain(), seoul);
    Definition definition = testing::usualDefinition();
    for (const double axis : {6378136.0, 6378138.0}) {
        definition.local.user.a = axis;
        EXPECT_EQ(complaint(VectorFormat::GeoPackage, System::User, definition), "");
    }
    for (const double axis : {6378135.9, 6378138.1}) {
        definition.local.user.a = axis;
        EXPECT_NE(complaint(VectorFormat::GeoPackage, System::User, definition), "");
    }
}

TEST_F(VectorFiles, ADrawingIsReadAsWhateverItIsSaidToBe) {
    std::ignore = written(output(VectorFormat::Dxf, {OutputSystem::Tm}), plain(), seoul);
    for (const System system : {System::Wgs, System::User, System::Tm, System::Utm})
        EXPECT_EQ(complaint(VectorFormat::Dxf, system, testing::usualDefinition()), "");
    EXPECT_EQ(complaint(VectorFormat::GeoPackage, System::Tm, testing::usualDefinition()).empty(),
              false);
}

TEST_F(VectorFiles, ASheetIsReadAsTextWithQuotesAndEmptyLines) {
    constexpr VectorFormat kFormat = VectorFormat::Ods;
    const auto writer = loadPointFiles()->create({.format = kFormat,
                                                  .path = path(kFormat),
                                                  .columns = {{"na\"me"}, {"x"}},
                                                  .system = {},
                                                  .placesAreAngles = false,
                                                  .points = 0});
    writer->write(std::vector<std::string_view>{"a,b", "1"}, std::nullopt);
    writer->write(std::vector<std::string_view>{"", ""}, std::nullopt);
    writer->write(std::vector<std::string_view>{"c\"\"d", ""}, std::nullopt);
    writer->write(std::vector<std::string_view>{"e", "2"}, std::nullopt);
    writer->finish();
    for (const std::size_t atOnce : {1U, 5U, 4096U}) {
        const auto text = openSheetAsText(kFormat, path(kFormat));
        std::string all;
        std::string piece(atOnce, '\0');
        while (const std::size_t count = text->read(piece)) all += piece.substr(0, count);
        EXPECT_EQ(all, "\"na\"\"me\",\"x\"\n\"a,b\",\"1\"\n\n\"c\"\"\"\"d\",\"\"\n\"e\",\"2\"\n");
        EXPECT_EQ(text->read(piece), 0U);
    }
}

// The table of a Shapefile shows the decimals of its columns.
TEST_F(VectorFiles, AColumnHasTheDecimalsThatItsCellsHave) {
    const std::vector<OutputSystem> systems{OutputSystem::Wgs, OutputSystem::Tm};
    VectorOutput file = output(VectorFormat::Shapefile, systems);
    const std::vector<GivenPoint> given{{37.5, 127.25, 50}};
    const ConvertedPoint point = converted(plain(), given).points[0];
    const auto has = [&](const std::string& cell) {
        return folder.bytes("a.dbf").find(" " + cell + " ") != std::string::npos;
    };
    std::ignore = written(file, plain(), given);
    EXPECT_TRUE(has("37.5000000000"));
    EXPECT_TRUE(has("127.2500000000"));
    EXPECT_TRUE(has("50.0000"));
    EXPECT_TRUE(has("127.000000000000"));
    std::string north;
    appendCell(north, columnsOf(OutputSystem::Tm)[0], point, AngleForm::Degrees);
    EXPECT_TRUE(has(north));
    file.angles = AngleForm::Dms;
    std::ignore = written(file, plain(), given);
    EXPECT_TRUE(has("37.3000000000"));
    // Text stands at the left of its column.
    for (const auto& [form, cell] : {std::pair(AngleForm::Blanks, "37 30 00.0000"),
                                     std::pair(AngleForm::Hyphens, "37-30-00.0000")}) {
        file.angles = form;
        std::ignore = written(file, plain(), given);
        EXPECT_TRUE(has(cell + std::string(100, ' '))) << cell;
    }
}

TEST_F(VectorFiles, NumbersAreNumbersAndOnlyAnglesInPartsAreText) {
    VectorOutput file = output(VectorFormat::GeoJson, {OutputSystem::Wgs});
    const auto latitude = [&](AngleForm form) {
        file.angles = form;
        std::ignore = written(file, plain(), seoul);
        const std::string text = folder.bytes("a.geojson");
        const std::size_t at = text.find("\"wgs_lat\": ") + 11;
        return text.substr(at, 3);
    };
    EXPECT_EQ(latitude(AngleForm::Degrees), "37.");
    EXPECT_EQ(latitude(AngleForm::Dms), "37.");
    EXPECT_EQ(latitude(AngleForm::Blanks), "\"37");
    EXPECT_EQ(latitude(AngleForm::Hyphens), "\"37");
}

TEST_F(VectorFiles, EveryPointHasItsOwnCells) {
    const std::vector<GivenPoint> given{{37.5, 127, 50}, {36.5, 127.25, 1600}, {38, 126.75, 7}};
    std::ignore =
        written(output(VectorFormat::Xlsx, {OutputSystem::Wgs, OutputSystem::Tm}), plain(), given);
    const RowBlock block = converted(plain(), given);
    const auto found = rows();
    ASSERT_EQ(found.size(), 4U);
    for (std::size_t i = 0; i < given.size(); ++i) {
        const Texts& row = found[i + 1];
        const ConvertedPoint& p = block.points[i];
        const std::vector<double> wanted{p.WgsPhi, p.WgsLam, p.WgsH, p.TmX, p.TmY, p.TmH, p.Lam0};
        ASSERT_GE(row.size(), 8U);
        EXPECT_EQ(row[0], "P" + std::to_string(i + 1));
        for (std::size_t k = 0; k < wanted.size(); ++k)
            EXPECT_NEAR(std::stod(row[k + 1]), wanted[k], 5e-5) << i << ' ' << k;
        for (std::size_t k = 8; k < row.size(); ++k) EXPECT_EQ(row[k], "");
    }
}

}  // namespace
}  // namespace kelvo
