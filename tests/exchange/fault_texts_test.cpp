// Every sentence about a file of points that can't be read or a text that can't be written, whole.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "exchange_samples.h"
#include "support/temporary_folder.h"

namespace kelvo {
namespace {

class FaultTexts : public testing::NeedsModule<::testing::Test> {
protected:
    // What is said of a file with these bytes, with "PATH" for its name.
    [[nodiscard]] std::string saidOf(const std::string& name, const std::string& bytes) const {
        folder.put(name, bytes);
        return saidOfFile(name);
    }
    [[nodiscard]] std::string saidOfFile(const std::string& name) const {
        try {
            const auto reader = loadPointFiles()->open(*vectorFormatOf(name), folder.file(name));
            for (PointOfFile point; reader->read(point);) continue;
        } catch (const ExchangeFault& fault) {
            std::string said = fault.what();
            const std::size_t at = said.find(folder.file(name));
            return at == std::string::npos ? said
                                           : said.replace(at, folder.file(name).size(), "PATH");
        }
        return "";
    }
    // Why a point of this name can't be written, empty if it can.
    [[nodiscard]] std::string whyNot(const std::string& name, VectorFormat format) const {
        auto points = testing::samplePoints();
        points[0].name = name;
        const std::string path = folder.file("a." + std::string(limitsOf(format).ending));
        try {
            testing::writeFile(testing::sampleLayer(format, path), points);
        } catch (const ExchangeFault& fault) {
            return fault.what();
        }
        return "";
    }

    testing::TemporaryFolder folder;
};

TEST_F(FaultTexts, OfReading) {
    const std::string point = "<Point><coordinates>127,37</coordinates></Point>";
    const std::string line = "<LineString><coordinates>1,2 3,4</coordinates></LineString>";
    EXPECT_EQ(saidOf("a.kml", "<html/>"), "읽을 수 있는 KML 파일이 아닙니다 (PATH)");
    EXPECT_EQ(saidOf("a.gpx", "<kml/>"), "읽을 수 있는 GPX 파일이 아닙니다 (PATH)");
    EXPECT_EQ(saidOf("a.kml", "no"),
              "읽을 수 있는 KML 파일이 아닙니다: syntax error at line 1, column 0 (PATH)");
    EXPECT_EQ(saidOf("a.kml", "<kml>\n<x></y></kml>"),
              "파일이 온전하지 않아 끝까지 읽을 수 없습니다: mismatched tag at line 2, column 5 "
              "(PATH)");
    EXPECT_EQ(saidOf("a.kml", "<kml/>"), "파일에 점이 하나도 없습니다 (PATH)");
    EXPECT_EQ(saidOf("a.kml", "<kml><Placemark>" + line + "</Placemark></kml>"),
              "점이 아닌 도형(LINESTRING)이 들어 있습니다 (PATH)");
    EXPECT_EQ(saidOf("a.kml", "<kml><Placemark>" + point + "</Placemark></kml>"), "");
    EXPECT_EQ(saidOfFile("gone.kml"), "파일을 열 수 없습니다: No such file or directory (PATH)");
    EXPECT_EQ(saidOfFile("gone.gpkg"), "파일을 열 수 없습니다: No such file or directory (PATH)");
}

TEST_F(FaultTexts, OfControlLetters) {
    const std::string control = "제어 문자를 담을 수 없습니다";
    for (const std::string letter : {"\x01", "\x1F", "\x7F", "\t", "\n"}) {
        EXPECT_EQ(whyNot("a" + letter, VectorFormat::GeoPackage), "");
        for (const VectorFormat format : {VectorFormat::GeoJson, VectorFormat::Kml,
                                          VectorFormat::Gpx, VectorFormat::Dxf, VectorFormat::Xlsx})
            EXPECT_NE(whyNot("a" + letter, format).find(control), std::string::npos);
    }
    for (const VectorFormat format : {VectorFormat::GeoJson, VectorFormat::Kml, VectorFormat::Dxf})
        EXPECT_EQ(whyNot("a b~!", format), "");
}

TEST_F(FaultTexts, OfLettersThatAFormatCannotHold) {
    const std::string braces = "{, }, %%를 담을 수 없습니다";
    for (const std::string name : {"a{", "}a", "%%", "a%%b"}) {
        EXPECT_NE(whyNot(name, VectorFormat::Dxf).find(braces), std::string::npos) << name;
        EXPECT_EQ(whyNot(name, VectorFormat::Kml), "");
    }
    EXPECT_EQ(whyNot("100%", VectorFormat::Dxf), "");
    const std::string face = "\xF0\x9F\x98\x80";
    EXPECT_NE(whyNot(face, VectorFormat::Dxf).find("U+FFFF를 넘는 글자를 담을 수 없습니다"),
              std::string::npos);
    EXPECT_EQ(whyNot(face, VectorFormat::Kml), "");
    EXPECT_EQ(whyNot("\xEF\xBF\xBD", VectorFormat::Dxf), "");
    const std::string noncharacter = "U+FFFE와 U+FFFF를 담을 수 없습니다";
    for (const std::string name : {"a\xEF\xBF\xBE",
                                   "\xEF\xBF\xBF"
                                   "b"}) {
        for (const VectorFormat format :
             {VectorFormat::Kml, VectorFormat::Gpx, VectorFormat::Xlsx, VectorFormat::Ods})
            EXPECT_NE(whyNot(name, format).find(noncharacter), std::string::npos);
        EXPECT_EQ(whyNot(name, VectorFormat::GeoJson), "");
    }
    for (const VectorFormat format : {VectorFormat::GeoPackage, VectorFormat::Dxf})
        EXPECT_NE(whyNot("\xC1\xA1", format).find("UTF-8이 아닌 글입니다"), std::string::npos);
}

TEST_F(FaultTexts, OfTextsThatAreTooLong) {
    EXPECT_EQ(whyNot(std::string(254, 'x'), VectorFormat::Shapefile), "");
    EXPECT_NE(
        whyNot(std::string(255, 'x'), VectorFormat::Shapefile).find("글이 254바이트보다 깁니다"),
        std::string::npos);
    EXPECT_EQ(whyNot(std::string(32767, 'x'), VectorFormat::Ods), "");
    EXPECT_NE(
        whyNot(std::string(32768, 'x'), VectorFormat::Ods).find("글이 32767바이트보다 깁니다"),
        std::string::npos);
}

}  // namespace
}  // namespace kelvo
