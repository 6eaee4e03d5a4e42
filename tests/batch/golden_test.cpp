// Whole runs against stored files, byte for byte: NAME.dat (with NAME.cor as the known points)
// gives NAME.out and NAME.det; NAME.err holds the messages, the fault and the exit code.
// The stored files come from an independent calculation: renew one by hand only, after the
// difference has been understood.
#include <gtest/gtest.h>

#include "support/batch_bench.h"
#include "support/golden_files.h"
#include "support/temporary_folder.h"

namespace kelvo {
namespace {

namespace fs = std::filesystem;
using testing::BatchBench;
using testing::firstDifference;
using testing::TemporaryFolder;

class GoldenRun : public ::testing::TestWithParam<std::string> {};

std::string stored(const std::string& name, const std::string& ending) {
    const fs::path path = testing::goldenFolder() / "batch" / (name + ending);
    return fs::exists(path) ? TemporaryFolder::readBytes(path.string()) : std::string();
}

// What standard error would show; the wording of a fault is free.
std::string errorOf(const BatchBench& bench) {
    std::string text;
    for (std::string message : bench.messages.texts()) {
        if (const auto at = message.find("\r\n"); at != std::string::npos) {
            message.replace(at, 2, " ");
        }
        text += "message: " + message + "\n";
    }
    if (bench.fault != 0) text += "run-time error " + std::to_string(bench.fault) + ":\n";
    return text + "exit code " + (bench.fault != 0 ? "1" : "0") + "\n";
}

std::string withoutWording(std::string text) {
    const auto fault = text.find("run-time error ");
    if (fault == std::string::npos) return text;
    const auto colon = text.find(':', fault);
    const auto end = text.find('\n', colon);
    return text.erase(colon + 1, end - colon - 1);
}

TEST_P(GoldenRun, WritesEveryByteOfItsReports) {
    const std::string& name = GetParam();
    BatchBench bench;
    bench.disk.putBytes("/job/a.dat", stored(name, ".dat"));
    if (const std::string known = stored(name, ".cor"); !known.empty()) {
        bench.disk.putBytes("/app/kelvo.cor", known);
    }
    bench.runFile();
    EXPECT_EQ(firstDifference(stored(name, ".out"), bench.disk.bytes("/job/a.out"), true), "");
    EXPECT_EQ(firstDifference(stored(name, ".det"), bench.disk.bytes("/app/kelvo.det"), true), "");
    EXPECT_EQ(firstDifference(withoutWording(stored(name, ".err")), errorOf(bench), false), "");
}

std::string nameOf(const ::testing::TestParamInfo<std::string>& info) {
    return info.param;
}

INSTANTIATE_TEST_SUITE_P(Stored, GoldenRun,
                         ::testing::ValuesIn(testing::goldenCases(testing::goldenFolder() / "batch",
                                                                  ".dat")),
                         nameOf);

TEST(GoldenFiles, AreThere) {
    EXPECT_GE(testing::goldenCases(testing::goldenFolder() / "batch", ".dat").size(), 13U);
}

TEST(GoldenFiles, ADifferenceIsShownByItsLine) {
    EXPECT_EQ(firstDifference("a\r\nb\r\n", "a\r\nb\r\n", true), "");
    EXPECT_EQ(firstDifference("a\r\nb\r\n", "a\r\nc\r\n", true),
              "line 2\n  expected |b\\r\\n|\n  found    |c\\r\\n|");
    EXPECT_EQ(firstDifference("a\n", "", true),
              "line 1\n  expected |a\\n|\n  found    (end of file)");
}

}  // namespace
}  // namespace kelvo
