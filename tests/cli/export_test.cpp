// kelvo-batch --export, and what several files of one call may not share, as a shell sees them.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "exchange/load_point_files.h"
#include "support/program.h"
#include "support/temporary_folder.h"

namespace kelvo {
namespace {

class Export : public ::testing::Test {
protected:
    testing::ProgramRun batch(std::vector<std::string> arguments) {
        arguments.insert(arguments.begin(),
                         {KELVO_BINARY_DIR "/kelvo-batch", "--app-folder", folder.path()});
        return testing::runProgram(
            {.arguments = arguments, .input = {}, .folder = folder.path(), .environment = {}});
    }
    void needModule() {
        if (!std::filesystem::exists(KELVO_BINARY_DIR "/kelvo-exchange.so"))
            GTEST_SKIP() << "built without GDAL (KELVO_EXCHANGE=OFF)";
    }
    [[nodiscard]] std::string namesOf(const std::string& name) const {
        const auto reader = loadPointFiles()->open(*vectorFormatOf(name), folder.file(name));
        std::string names;
        for (PointOfFile point; reader->read(point);) names += point.name + " ";
        return names;
    }

    testing::TemporaryFolder folder;
    const std::string kPoints =
        "INPUT deg\r\nWGS a 37.3 127 1\r\n    b 37.4 127.1 2\r\nend\r\n\r\n";
};

TEST_F(Export, WritesThePointsToEveryFileThatIsAskedFor) {
    needModule();
    if (IsSkipped()) return;
    folder.put("a.dat", kPoints);
    const auto ended = batch({"--export", "a.gpkg", "--export", "a.kml", "a.dat"});
    EXPECT_EQ(ended.exitCode, 0) << ended.err;
    EXPECT_EQ(ended.err, "");
    EXPECT_EQ(namesOf("a.gpkg"), "a b ");
    EXPECT_EQ(namesOf("a.kml"), "a b ");
    EXPECT_TRUE(std::filesystem::exists(folder.file("a.out")));
}

TEST_F(Export, ThatCannotBeWrittenIsSaidAndTheOthersAreWritten) {
    needModule();
    if (IsSkipped()) return;
    folder.put("a.dat", kPoints);
    const auto ended = batch({"--export", "gone/a.gpkg", "--export", "a.kml", "a.dat"});
    EXPECT_EQ(ended.exitCode, 1);
    EXPECT_EQ(ended.err, "export: 폴더를 찾을 수 없습니다 (gone/a.gpkg)\n");
    EXPECT_EQ(namesOf("a.kml"), "a b ");
}

TEST_F(Export, OfARunThatFailsIsNotWritten) {
    needModule();
    if (IsSkipped()) return;
    folder.put("a.dat", "");
    EXPECT_EQ(batch({"--export", "a.kml", "a.dat"}).exitCode, 1);
    EXPECT_FALSE(std::filesystem::exists(folder.file("a.kml")));
}

TEST_F(Export, ThatWouldTakeAFileOfTheRunIsRefused) {
    needModule();
    if (IsSkipped()) return;
    folder.put("a.kml", kPoints);
    for (const auto& [name, other] : std::vector<std::pair<std::string, std::string>>{
             {"a.kml", "a.kml"}, {"out.kml", "a.out"}, {"det.kml", ""}, {"cor.kml", ""}}) {
        std::string target = other;
        if (name == "out.kml") std::filesystem::create_symlink("a.out", folder.file(name));
        if (name == "det.kml") {
            target = folder.file("kelvo.det");
            std::filesystem::create_symlink("kelvo.det", folder.file(name));
        }
        if (name == "cor.kml") {
            target = folder.file("kelvo.cor");
            std::filesystem::create_symlink("kelvo.cor", folder.file(name));
        }
        const auto ended = batch({"--export", name, "a.kml"});
        EXPECT_EQ(ended.exitCode, 2);
        EXPECT_EQ(ended.err,
                  "kelvo-batch: --export " + name + " would write over " + target + "\n");
        EXPECT_FALSE(std::filesystem::exists(folder.file("a.out")));
    }
    const auto twice = batch({"--export", "b.kml", "--export", "./b.kml", "a.kml"});
    EXPECT_EQ(twice.err, "kelvo-batch: --export ./b.kml would write over b.kml\n");
}

TEST_F(Export, WhatSeveralRunsWouldShareIsNamed) {
    for (const char* name : {"x.dat", "x.txt", "x.det", "y.dat", "kelvo.dat"})
        folder.put(name, kPoints);
    folder.put("kelvo.cor", "known\r\n");
    const std::string det = folder.file("kelvo.det");
    const auto complaint = [this](const std::vector<std::string>& names) {
        const auto ended = batch(names);
        EXPECT_EQ(ended.exitCode, 2);
        EXPECT_NE(ended.err.find("\nusage: kelvo-batch"), std::string::npos);
        return ended.err.substr(0, ended.err.find('\n'));
    };
    EXPECT_EQ(complaint({"x.dat", "x.txt"}), "kelvo-batch: x.dat and x.txt would both write x.out");
    EXPECT_EQ(complaint({"y.dat", "x.dat", "x.det"}),
              "kelvo-batch: the run of x.dat would write over x.det");
    EXPECT_EQ(complaint({"kelvo.dat", "y.dat"}),
              "kelvo-batch: kelvo.dat and y.dat would both write " + det);
    std::filesystem::create_symlink("x.dat", det);
    EXPECT_EQ(complaint({"x.dat", "y.dat"}),
              "kelvo-batch: the run of y.dat would write over x.dat");
    std::filesystem::remove(det);
    std::filesystem::create_symlink("kelvo.cor", det);
    EXPECT_EQ(complaint({"x.dat", "y.dat"}),
              "kelvo-batch: the run of y.dat would write over " + folder.file("kelvo.cor"));
}

TEST_F(Export, EveryLineOfSeveralFilesBeginsWithItsFile) {
    folder.put("n.dat", "INPUT deg\r\nWGS n 80 127 0\r\nend\r\n\r\n");
    folder.put("w.dat", kPoints);
    const auto ended = batch({"n.dat", "gone.dat", "w.dat"});
    EXPECT_EQ(ended.exitCode, 1);
    EXPECT_TRUE(ended.err.starts_with("n.dat: message: ")) << ended.err;
    EXPECT_NE(ended.err.find("\ngone.dat: run-time error 53: "), std::string::npos) << ended.err;
    EXPECT_EQ(ended.err.find("w.dat"), std::string::npos);
    const auto alone = batch({"n.dat"});
    EXPECT_TRUE(alone.err.starts_with("message: ")) << alone.err;
    EXPECT_EQ(batch({"--version"}).out.substr(0, 12), "kelvo-batch ");
    EXPECT_TRUE(batch({"--help"}).out.starts_with("usage: kelvo-batch "));
}

}  // namespace
}  // namespace kelvo
