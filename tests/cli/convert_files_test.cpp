// The files of kelvo-convert: which are opened how, and every sentence about what they can't be.
#include "cli/convert_files.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "convert/conversion_of_rows.h"
#include "convert/refusal.h"
#include "library/bad_definition.h"
#include "library/definition_text.h"
#include "support/temporary_folder.h"

namespace kelvo {
namespace {

using testing::TemporaryFolder;

class ConvertFiles : public ::testing::Test {
protected:
    // What opening says; empty if it says nothing.
    template <class Work>
    static std::string refusal(const Work& work) {
        try {
            static_cast<void>(work());
        } catch (const Refusal& refused) {
            return refused.what();
        } catch (const BadDefinition& bad) {
            return bad.what();
        }
        return "";
    }
    [[nodiscard]] ConvertCommandLine lineOfNames(const std::string& input,
                                                 const std::string& output) const {
        ConvertCommandLine line;
        line.to = {OutputSystem::Tm};
        line.input = input == "-" ? input : folder.file(input);
        line.output = output == "-" ? output : folder.file(output);
        return line;
    }
    [[nodiscard]] std::string ofSource(const ConvertCommandLine& line) const {
        return refusal([&] { return openSource(line, usual.definition()); });
    }
    [[nodiscard]] std::string ofSink(const ConvertCommandLine& line) const {
        return refusal([&] { return openSink(line, usual.definition()); });
    }
    static std::string ofOwnFiles(const ConvertCommandLine& line) {
        return refusal([&] {
            requireFilesOfTheirOwn(line);
            return 0;
        });
    }
    static bool hasModule() {
        return std::filesystem::exists(KELVO_BINARY_DIR "/kelvo-exchange.so");
    }

    TemporaryFolder folder;
    const PointConverter usual = converterOf(DefinitionText{});
};

TEST_F(ConvertFiles, ADefinitionIsMadeOfTheTextsOfItsFiles) {
    folder.put("p.txt", "add 0\nCORRECTION\n");
    folder.put("k.cor", "A 37.30 127.00 100 37.2950 127.0008 80 1\n*\n\n");
    ConvertCommandLine line;
    line.parameters = folder.file("p.txt");
    EXPECT_EQ(refusal([&] { return converterOf(line); }),
              line.parameters.value() + " line 2: 보정을 하려면 보정점이 있어야 합니다");
    line.knownPoints = folder.file("k.cor");
    const PointConverter converter = converterOf(line);
    EXPECT_FALSE(converter.definition().shiftsOrigin);
    ASSERT_TRUE(converter.definition().known);
    EXPECT_EQ(converter.definition().known->front().Name, "A");
    folder.put("k.cor", "*\n\n");
    EXPECT_TRUE(refusal([&] { return converterOf(line); }).starts_with(*line.knownPoints));
}

TEST_F(ConvertFiles, ATextOfADefinitionHasNoMoreThan64MebibytesAndIsReadToItsEnd) {
    ConvertCommandLine line;
    line.knownPoints = folder.file("k.cor");
    folder.put("k.cor", "");
    std::filesystem::resize_file(*line.knownPoints, 67108864);
    EXPECT_EQ(refusal([&] { return converterOf(line); }), "");
    std::filesystem::resize_file(*line.knownPoints, 67108865);
    EXPECT_EQ(refusal([&] { return converterOf(line); }),
              "파일이 너무 큽니다 (" + *line.knownPoints + ")");
    line.knownPoints.reset();
    line.parameters = folder.file("p.txt");
    folder.put("p.txt", std::string(40000, '\n') + "XYZ");
    EXPECT_TRUE(
        refusal([&] { return converterOf(line); }).starts_with(*line.parameters + " line 40001: "));
}

TEST_F(ConvertFiles, WhatIsReadIsNeverWritten) {
    folder.put("a.csv", "A,37,127\n");
    folder.put("b.csv", "A,37,127\n");
    ConvertCommandLine line = lineOfNames("a.csv", "a.csv");
    const std::string output = " (" + line.output + ")";
    EXPECT_EQ(ofOwnFiles(line), "OUTPUT and INPUT are the same file" + output);
    line.input = folder.file("b.csv");
    EXPECT_EQ(ofOwnFiles(line), "");
    line.parameters = line.output;
    EXPECT_EQ(ofOwnFiles(line), "OUTPUT and the file of --parameters are the same file" + output);
    line.parameters = line.input;
    line.knownPoints = line.output;
    EXPECT_EQ(ofOwnFiles(line), "OUTPUT and the file of --known-points are the same file" + output);
    line.knownPoints = line.input;
    EXPECT_EQ(ofOwnFiles(line), "");
    line.output = folder.file("new.csv");
    line.knownPoints = line.output;
    EXPECT_EQ(ofOwnFiles(line), "");
}

TEST_F(ConvertFiles, AFileOfTextShowsHowFarItWasRead) {
    folder.put("a.csv", "A,37,127\nB,38,128\n");
    const auto source = openSource(lineOfNames("a.csv", "-"), usual.definition());
    EXPECT_EQ(source->progress(), 0);
    RowBlock block;
    ASSERT_TRUE(source->gather(block));
    EXPECT_EQ(block.lines.size(), 2U);
    EXPECT_EQ(source->progress(), 1);
}

TEST_F(ConvertFiles, AFileThatCannotBeOpenedIsNamed) {
    const ConvertCommandLine line = lineOfNames("nowhere.csv", "gone/out.csv");
    EXPECT_NE(ofSource(line).find(line.input), std::string::npos);
    EXPECT_NE(ofSink(line).find(line.output), std::string::npos);
}

TEST_F(ConvertFiles, OptionsForTextAreRefusedForAFileWithGeometry) {
    ConvertCommandLine line = lineOfNames("a.geojson", "-");
    line.columns.chosen = true;
    EXPECT_EQ(ofSource(line),
              "--columns is for text and sheets: a GeoJSON has its points by themselves");
    line.columns.chosen = false;
    line.anglesIn = AngleForm::Dms;
    EXPECT_EQ(ofSource(line), "--angles-in: a GeoJSON has its angles in decimal degrees");
}

TEST_F(ConvertFiles, AGeometryIsRefusedForText) {
    ConvertCommandLine line = lineOfNames("a.csv", "out.csv");
    line.geometry = OutputSystem::Tm;
    EXPECT_EQ(ofSink(line),
              "--geometry is for vector formats; OUTPUT is text (" + line.output + ")");
    EXPECT_FALSE(std::filesystem::exists(line.output));
}

// Each row has five bytes, the least that a point takes.
TEST_F(ConvertFiles, MorePointsThanASheetHoldsAreRefusedBeforeTheFirst) {
    if (!hasModule()) GTEST_SKIP() << "built without GDAL (KELVO_EXCHANGE=OFF)";
    constexpr int kMost = 1048575;
    std::string text;
    for (int i = 0; i < kMost; ++i) text += ",1,1\n";
    const ConvertCommandLine line = lineOfNames("a.csv", "out.xlsx");
    folder.put("a.csv", text + "\n\n\n\n\n");
    EXPECT_EQ(ofSink(line), "");
    folder.put("a.csv", text + ",1,1\n");
    EXPECT_NE(ofSink(line), "");
    EXPECT_FALSE(std::filesystem::exists(line.output));
}

TEST_F(ConvertFiles, ASheetTakesColumnsAndIsReadAsText) {
    if (!hasModule()) GTEST_SKIP() << "built without GDAL (KELVO_EXCHANGE=OFF)";
    ConvertCommandLine line = lineOfNames("-", "a.xlsx");
    const auto sink = openSink(line, usual.definition());
    RowBlock block;
    block.add("점 \"1\", A", {.first = 37, .second = 127, .height = 0}, 1);
    convertBlock(block, {.converter = usual, .system = System::Wgs, .angles = AngleForm::Degrees});
    sink->take(block);
    sink->finish();
    line = lineOfNames("a.xlsx", "-");
    line.columns = columnWishesOf("name,tm_x,tm_y");
    const auto source = openSource(line, usual.definition());
    RowBlock found;
    ASSERT_TRUE(source->gather(found));
    source->read(found);
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found.names[0], "점 \"1\", A");
    EXPECT_EQ(found.lines[0], 2);
    EXPECT_NEAR(found.given[0].first, block.points[0].TmX, 1e-6);
    EXPECT_NEAR(found.given[0].second, block.points[0].TmY, 1e-6);
    EXPECT_LT(source->progress(), 0);
}

}  // namespace
}  // namespace kelvo
