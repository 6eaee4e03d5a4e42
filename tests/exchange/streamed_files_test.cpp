// KML and GPX as other programs write them: read from front to end, however long they are.
#include <malloc.h>

#include <filesystem>

#include "common/code_page.h"
#include "exchange_samples.h"
#include "support/temporary_folder.h"

namespace kelvo {
namespace {

using testing::TemporaryFolder;

class StreamedFiles : public testing::NeedsModule<::testing::Test> {
protected:
    struct Found {
        std::vector<PointOfFile> points;
        std::string fault;  // what ended the reading, empty at the end of the file

        [[nodiscard]] std::string names() const {
            std::string all;
            for (const PointOfFile& point : points) all += point.name + "|";
            if (!all.empty()) all.pop_back();
            return all;
        }
        // The fault stands for itself where no point came before it.
        [[nodiscard]] bool refusedFor(std::string_view words) const {
            return points.empty() && fault.find(words) != std::string::npos;
        }
    };

    [[nodiscard]] Found read(const std::string& name, const std::string& bytes) const {
        folder.put(name, bytes);
        Found found;
        try {
            const auto format = *vectorFormatOf(name);
            const auto reader = loadPointFiles()->open(format, folder.file(name));
            EXPECT_TRUE(reader->system().stated && reader->system().geographic);
            EXPECT_EQ(reader->system().semiMajorAxis, 6378137);
            for (PointOfFile point; reader->read(point);) found.points.push_back(point);
        } catch (const ExchangeFault& fault) {
            found.fault = fault.what();
            EXPECT_NE(found.fault.find(folder.file(name)), std::string::npos) << found.fault;
        }
        return found;
    }
    [[nodiscard]] Found kml(const std::string& inDocument) const {
        return read("a.kml", kKmlHead + inDocument + "</Document></kml>");
    }
    [[nodiscard]] Found gpx(const std::string& inside) const {
        return read("a.gpx", kGpxHead + inside + "</gpx>");
    }

    static std::string placemark(const std::string& name, const std::string& shape) {
        return "<Placemark><name>" + name + "</name>" + shape + "</Placemark>";
    }
    static std::string point(const std::string& coordinates = "127.1,37.5,30") {
        return "<Point><coordinates>" + coordinates + "</coordinates></Point>";
    }
    static std::string several(const std::string& shapes) {
        return "<MultiGeometry>" + shapes + "</MultiGeometry>";
    }
    static std::string inFolder(const std::string& placemarks) {
        return "<Folder><name>f</name>" + placemarks + "</Folder>";
    }
    static std::string wayPoint(const std::string& name, const std::string& places,
                                const std::string& tag = "wpt") {
        return "<" + tag + " " + places + "><ele>30.5</ele><name>" + name + "</name></" + tag + ">";
    }

    const std::string kKmlHead =
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
        "<kml xmlns=\"http://www.opengis.net/kml/2.2\"><Document>";
    const std::string kGpxHead =
        "<?xml version=\"1.0\"?>\n<gpx version=\"1.1\" creator=\"t\" "
        "xmlns=\"http://www.topografix.com/GPX/1/1\">";
    const std::string kLine =
        "<LineString><coordinates>127,37,0 127.1,37.1,0</coordinates></LineString>";
    const std::string kArea =
        "<Polygon><outerBoundaryIs><LinearRing><coordinates>127,37 127.1,37 127.1,37.1 127,37"
        "</coordinates></LinearRing></outerBoundaryIs></Polygon>";
    const std::string kAt = "lat=\"37.5\" lon=\"127.1\"";

    TemporaryFolder folder;
};

TEST_F(StreamedFiles, HoldNoMoreInMemoryWhenTheyAreLong) {
    constexpr int kMany = 60000;
    std::string kmlText = kKmlHead;
    std::string gpxText = kGpxHead;
    for (int i = 0; i < kMany; ++i) {
        const std::string name = "a long name of the point " + std::to_string(i);
        kmlText += placemark(name, point());
        gpxText += wayPoint(name, kAt);
    }
    folder.put("a.kml", kmlText + "</Document></kml>");
    folder.put("a.gpx", gpxText + "</gpx>");
    const auto files = loadPointFiles();
    for (const VectorFormat format : {VectorFormat::Kml, VectorFormat::Gpx}) {
        const std::string path = folder.file("a." + std::string(limitsOf(format).ending));
        const std::size_t before = mallinfo2().uordblks;
        const auto reader = files->open(format, path);
        PointOfFile each;
        std::size_t most = 0;
        int count = 0;
        while (reader->read(each)) {
            if (++count % 1000 == 0) most = std::max(most, mallinfo2().uordblks);
        }
        EXPECT_EQ(count, kMany);
        EXPECT_LT(most, before + 2 * 1024 * 1024) << limitsOf(format).name;
    }
}

TEST_F(StreamedFiles, ThatAreCutFailWhereTheyAreCutAndNotBefore) {
    std::string text = kKmlHead;
    while (text.size() < 1000000) text += placemark("점", point());
    const Found found = read("a.kml", text);
    EXPECT_GT(found.points.size(), 5000U);
    EXPECT_NE(found.fault.find("파일이 온전하지 않아 끝까지 읽을 수 없습니다"), std::string::npos)
        << found.fault;
    for (const std::string& cut :
         {kKmlHead, kKmlHead + placemark("a", point()), kKmlHead + "<Placemark><na"})
        EXPECT_TRUE(read("a.kml", cut).refusedFor("온전하지 않아")) << cut;
    EXPECT_TRUE(read("a.gpx", kGpxHead + wayPoint("a", kAt)).refusedFor("온전하지 않아"));
    EXPECT_TRUE(kml(placemark("a & b", point())).refusedFor("온전하지 않아"));
    EXPECT_TRUE(kml(placemark("a", point()) + "<x></y>").refusedFor("온전하지 않아"));
}

TEST_F(StreamedFiles, ThatAreCutAtAnyByteAreNeverTakenForWhole) {
    const auto refusedWhereverCut = [this](const std::string& name, const std::string& whole) {
        EXPECT_EQ(read(name, whole).fault, "");
        for (std::size_t length = 0; length < whole.size(); ++length)
            EXPECT_NE(read(name, whole.substr(0, length)).fault, "") << length;
    };
    refusedWhereverCut("a.kml", kKmlHead + placemark("<![CDATA[점]]>", point()) +
                                    placemark("&#51216;", several(point())) + "</Document></kml>");
    refusedWhereverCut("a.gpx", kGpxHead + wayPoint("점", kAt) + "<wpt " + kAt + "/></gpx>");
}

TEST_F(StreamedFiles, OfAnotherKindAreNoKmlAndNoGpx) {
    for (const std::string bytes :
         {"", "no\n", "<html><body>kml</body></html>", "<a>", "\xC1\xA1"}) {
        EXPECT_TRUE(read("a.kml", bytes).refusedFor("읽을 수 있는 KML 파일이 아닙니다")) << bytes;
        EXPECT_TRUE(read("a.gpx", bytes).refusedFor("읽을 수 있는 GPX 파일이 아닙니다")) << bytes;
    }
    EXPECT_TRUE(read("a.gpx", kKmlHead + "</Document></kml>").refusedFor("읽을 수 있는 GPX"));
    EXPECT_TRUE(read("a.kml", kGpxHead + "</gpx>").refusedFor("읽을 수 있는 KML"));
    std::filesystem::create_directory(folder.file("d.kml"));
    EXPECT_THROW(static_cast<void>(loadPointFiles()->open(VectorFormat::Kml, folder.file("d.kml"))),
                 ExchangeFault);
}

TEST_F(StreamedFiles, WithoutPointsAreRefused) {
    EXPECT_TRUE(kml("").refusedFor("파일에 점이 하나도 없습니다"));
    EXPECT_TRUE(kml("<Placemark><name>a</name></Placemark>").refusedFor("점이 하나도 없습니다"));
    EXPECT_TRUE(gpx("<metadata/>").refusedFor("파일에 점이 하나도 없습니다"));
    EXPECT_TRUE(gpx("<trk><name>t</name></trk>").refusedFor("점이 하나도 없습니다"));
}

TEST_F(StreamedFiles, OfKmlGiveThePointsOfAllFoldersInTheirOrder) {
    const Found found = kml(placemark("a", point()) + inFolder(placemark("b", point("127,37"))) +
                            placemark("c", point()) + inFolder(inFolder(placemark("d", point()))));
    EXPECT_EQ(found.fault, "");
    ASSERT_EQ(found.names(), "a|b|c|d");
    EXPECT_EQ(found.points[0].place->x, 127.1);
    EXPECT_EQ(found.points[0].place->y, 37.5);
    EXPECT_EQ(found.points[0].place->height, 30);
    EXPECT_EQ(found.points[1].place->y, 37);
    EXPECT_EQ(found.points[1].place->height, 0);
    EXPECT_EQ(read("b.kml", "<kml>" + placemark("a", point()) + "</kml>").names(), "a");
}

TEST_F(StreamedFiles, OfKmlAreReadInsideAPrefix) {
    const Found found =
        read("a.kml",
             "<k:kml xmlns:k=\"http://www.opengis.net/kml/2.2\" xmlns:o=\"other\"><k:Placemark>"
             "<k:name>점</k:name><o:name>no</o:name><k:Point><o:coordinates>1,2</o:coordinates>"
             "<k:coordinates>127.1,37.5</k:coordinates></k:Point></k:Placemark></k:kml>");
    ASSERT_EQ(found.names(), "점") << found.fault;
    EXPECT_EQ(found.points[0].place->x, 127.1);
}

TEST_F(StreamedFiles, OfKmlTakeTheNameOfThePlacemarkItself) {
    EXPECT_EQ(kml(placemark("<![CDATA[a<b & 점]]>", point())).names(), "a<b & 점");
    EXPECT_EQ(kml(placemark("a&lt;b &amp; &#51216;<!-- x -->!", point())).names(), "a<b & 점!");
    EXPECT_EQ(kml(placemark("\n   a b\n  ", point())).names(), "a b");
    EXPECT_EQ(kml(placemark("a \nb", point())).names(), "a b");
    EXPECT_EQ(kml(placemark("", point()) + placemark("b", point())).names(), "|b");
    EXPECT_EQ(kml("<Placemark>" + point() + "<name>후</name></Placemark>").names(), "후");
    EXPECT_EQ(kml(placemark("a",
                            "<Style><name>z</name></Style><ExtendedData><Data name=\"name\">"
                            "<value>q</value></Data></ExtendedData>" +
                                point()))
                  .names(),
              "a");
    EXPECT_EQ(read("b.kml", "<!DOCTYPE kml [<!ENTITY e \"zz\">]><kml>" + placemark("&e;", point()) +
                                "</kml>")
                  .names(),
              "zz");
}

TEST_F(StreamedFiles, OfKmlReadTheFirstPlaceWhateverStandsAroundIt) {
    for (const std::string text :
         {" \n 127.1,37.5,30\n", "127.1,37.5,30,5", "127.1,37.5,30 127.2,37.6,31",
          "127.1, 37.5, 30", "127.1<!-- -->,37.5,30", "1.271e2,+37.5,30.0"}) {
        const Found found = kml(placemark("a", point(text)));
        ASSERT_EQ(found.points.size(), 1U) << text << found.fault;
        ASSERT_TRUE(found.points[0].place) << text;
        EXPECT_EQ(found.points[0].place->x, 127.1) << text;
        EXPECT_EQ(found.points[0].place->y, 37.5) << text;
        EXPECT_EQ(found.points[0].place->height, 30) << text;
    }
}

TEST_F(StreamedFiles, GiveAPointWithoutPlaceWhereItsNumbersCannotBeRead) {
    for (const std::string text :
         {"", "127.1", "127.1,", "x,y,z", "127.1x,37.5", "127.1,37.5x", "127.1,37.5,h", "nan,37",
          "127.1;37.5", "127.1,inf", "1e999,37.5"}) {
        const Found found = kml(placemark("a", point(text)) + placemark("b", point()));
        EXPECT_EQ(found.names(), "a|b") << text << found.fault;
        EXPECT_FALSE(found.points.at(0).place) << text;
        EXPECT_TRUE(found.points.at(1).place);
    }
    EXPECT_FALSE(kml(placemark("a", "<Point></Point>")).points.at(0).place);
    EXPECT_FALSE(kml(placemark("a", several(""))).points.at(0).place);
    for (const std::string places :
         {"", "lat=\"37.5\"", "lon=\"127.1\"", "lat=\"x\" lon=\"127.1\"", "lat=\"37.5\" lon=\"\"",
          "lat=\"37.5N\" lon=\"127.1\"", "lat=\"37,5\" lon=\"127,1\""}) {
        const Found found = gpx(wayPoint("a", places) + wayPoint("b", kAt));
        EXPECT_EQ(found.names(), "a|b") << places << found.fault;
        EXPECT_FALSE(found.points.at(0).place) << places;
    }
    const Found found = gpx("<wpt lat=\"37.5\" lon=\"127.1\"><ele>x</ele></wpt>");
    EXPECT_FALSE(found.points.at(0).place);
}

TEST_F(StreamedFiles, OfKmlTakeACollectionOfOnePointAndRefuseOtherShapesByTheirName) {
    EXPECT_EQ(kml(placemark("c", point()) + placemark("a", several(point()))).names(), "c|a");
    const auto refusedShape = [this](const std::string& shape, const std::string& name) {
        const std::string words = "점이 아닌 도형(" + name + ")이 들어 있습니다";
        EXPECT_TRUE(kml(placemark("a", shape)).refusedFor(words)) << shape;
        EXPECT_TRUE(kml(placemark("a", shape) + placemark("b", point())).refusedFor(words))
            << shape;
        const Found after = kml(placemark("b", point()) + placemark("a", shape));
        EXPECT_NE(after.fault.find(words), std::string::npos) << shape << after.fault;
    };
    refusedShape(kLine, "LINESTRING");
    refusedShape(kArea, "POLYGON");
    refusedShape(several(point() + point()), "MULTIPOINT");
    refusedShape(several(kLine + kLine), "MULTILINESTRING");
    refusedShape(several(kArea), "MULTIPOLYGON");
    refusedShape(several(point() + kLine), "GEOMETRYCOLLECTION");
    refusedShape(several(kLine + kArea), "GEOMETRYCOLLECTION");
    refusedShape(several(several(point())), "GEOMETRYCOLLECTION");
    refusedShape(several(kLine + several(kLine)), "GEOMETRYCOLLECTION");
    refusedShape(several(kArea + several(kArea)), "GEOMETRYCOLLECTION");
    refusedShape(kLine + kArea, "GEOMETRYCOLLECTION");
    refusedShape(point() + kLine, "GEOMETRYCOLLECTION");
}

TEST_F(StreamedFiles, OfKmlLeaveOutFoldersThatHoldOtherShapesOnly) {
    const std::string lines = inFolder(placemark("l", kLine));
    const std::string points = inFolder(placemark("p", point()));
    EXPECT_EQ(kml(lines + points).names(), "p");
    EXPECT_EQ(kml(points + lines).names(), "p");
    EXPECT_EQ(kml(points + lines).fault, "");
    EXPECT_TRUE(kml(lines + lines).refusedFor("(LINESTRING)"));
}

TEST_F(StreamedFiles, OfKmlPassOverWhatIsNoPlacemark) {
    EXPECT_EQ(kml("<GroundOverlay><name>g</name></GroundOverlay><PhotoOverlay><name>g</name>" +
                  point() + "</PhotoOverlay><NetworkLink><name>n</name></NetworkLink>" +
                  placemark("n", "") + placemark("a", "<LookAt/>" + point()))
                  .names(),
              "a");
}

TEST_F(StreamedFiles, OfGpxTakeTheTextOfTheElementItself) {
    const Found found = gpx(std::string("<wpt ") + kAt +
                            "><name>a<i>x</i>b</name>no<ele>30<i>9</i>.5</ele>1</wpt>");
    ASSERT_EQ(found.names(), "ab") << found.fault;
    EXPECT_EQ(found.points[0].place->height, 30.5);
}

TEST_F(StreamedFiles, OfGpxGiveWayPointsOrElseARouteOrElseATrack) {
    const std::string way = wayPoint("w", kAt);
    const std::string route = "<rte><name>r</name>" + wayPoint("r1", kAt, "rtept") +
                              wayPoint("r2", kAt, "rtept") + "</rte>";
    const std::string track =
        "<trk><name>t</name><trkseg>" + wayPoint("t1", kAt, "trkpt") + "</trkseg></trk>";
    EXPECT_EQ(gpx(way + route + track).names(), "w");
    EXPECT_EQ(gpx(route + track).names(), "r1|r2");
    EXPECT_EQ(gpx(track).names(), "t1");
    EXPECT_EQ(gpx(track + route + way).names(), "w");
}

TEST_F(StreamedFiles, OfGpxTakeNameAndHeightOfThePointItself) {
    const Found found =
        gpx("<metadata><name>m</name></metadata>"
            "<wpt lat=\" 37.5 \" lon=\"127.1\"><name>점 &amp; 1</name><ele> 30.5 </ele><link "
            "href=\"x\"><text>l</text></link><extensions><name>zz</name><ele>9</ele></extensions>"
            "</wpt><wpt lat=\"-37.5\" lon=\"+127.1\"/>");
    ASSERT_EQ(found.names(), "점 & 1|") << found.fault;
    EXPECT_EQ(found.points[0].place->x, 127.1);
    EXPECT_EQ(found.points[0].place->y, 37.5);
    EXPECT_EQ(found.points[0].place->height, 30.5);
    EXPECT_EQ(found.points[1].place->y, -37.5);
    EXPECT_EQ(found.points[1].place->height, 0);
    EXPECT_EQ(gpx(wayPoint(" a b ", kAt)).names(), " a b ");
}

TEST_F(StreamedFiles, AreReadInTheLettersThatTheyName) {
    const auto named = [this](const std::string& letters, const std::string& name) {
        return read("a.kml", "<?xml version=\"1.0\" encoding=\"" + letters + "\"?><kml>" +
                                 placemark(name, point()) + "</kml>")
            .names();
    };
    for (const char* const letters : {"EUC-KR", "euc-kr", "CP949", "ks_c_5601-1987"})
        EXPECT_EQ(named(letters, encodeCodePage("점 똠뷁")), "점 똠뷁") << letters;
    EXPECT_EQ(named("ISO-8859-1", "\xE9"), "é");
    EXPECT_EQ(named("windows-1252", "\xE9\x80"), "é€");
    EXPECT_EQ(named("UTF-8", "점"), "점");
    EXPECT_TRUE(
        read("a.kml", "<?xml version=\"1.0\" encoding=\"no-such\"?><kml/>").refusedFor("KML"));
    EXPECT_TRUE(kml(placemark("\xC1\xA1", point())).refusedFor("온전하지 않아"));
    EXPECT_EQ(read("b.kml", "\xEF\xBB\xBF<kml>" + placemark("점", point()) + "</kml>").names(),
              "점");
}

TEST_F(StreamedFiles, ThatSwellWithoutEndAreRefused) {
    std::string entities = "<!ENTITY a \"zzzzzzzzzz\">";
    for (char name = 'b'; name < 'k'; ++name) {
        const std::string inner = "&" + std::string(1, static_cast<char>(name - 1)) + ";";
        entities += "<!ENTITY " + std::string(1, name) + " \"";
        for (int i = 0; i < 10; ++i) entities += inner;
        entities += "\">";
    }
    const Found found = read(
        "a.kml", "<!DOCTYPE kml [" + entities + "]><kml>" + placemark("&j;", point()) + "</kml>");
    EXPECT_TRUE(found.refusedFor("온전하지 않아")) << found.fault;
}

}  // namespace
}  // namespace kelvo
