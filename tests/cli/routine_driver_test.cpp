// Stored scripts of routine_driver and their transcripts. The wording of a fault is free: only
// `fault|NUMBER` is compared, and a `*` in place of the number matches any.
#include <gtest/gtest.h>

#include <sstream>

#include "support/golden_files.h"
#include "support/program.h"
#include "support/temporary_folder.h"

namespace kelvo {
namespace {

using testing::ProgramRun;
using testing::runProgram;
using testing::TemporaryFolder;

std::vector<std::string> linesOf(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);) lines.push_back(line);
    return lines;
}

// "fault|6|overflow" as "fault|6".
std::string withoutWording(const std::string& line) {
    if (line.rfind("fault|", 0) != 0) return line;
    return line.substr(0, line.find('|', 6));
}

bool matches(const std::string& expected, const std::string& found) {
    if (expected == "fault|*") return found.rfind("fault|", 0) == 0;
    return expected == found;
}

class RoutineScript : public ::testing::TestWithParam<std::string> {};

TEST_P(RoutineScript, AnswersAsStored) {
    const auto stored = testing::goldenFolder() / "routines" / GetParam();
    const ProgramRun ended =
        runProgram({.arguments = {KELVO_BINARY_DIR "/routine_driver"},
                    .input = TemporaryFolder::readBytes(stored.string() + ".txt"),
                    .folder = {},
                    .environment = {}});
    EXPECT_EQ(ended.exitCode, 0);
    EXPECT_EQ(ended.err, "");
    const auto expected = linesOf(TemporaryFolder::readBytes(stored.string() + ".transcript"));
    const auto found = linesOf(ended.out);
    EXPECT_EQ(expected.size(), found.size());
    for (std::size_t i = 0; i < expected.size() && i < found.size(); ++i) {
        EXPECT_TRUE(matches(withoutWording(expected[i]), withoutWording(found[i])))
            << "line " << i + 1 << "\n  expected " << expected[i] << "\n  found    " << found[i];
    }
}

std::string scriptName(const ::testing::TestParamInfo<std::string>& info) {
    return info.param;
}

INSTANTIATE_TEST_SUITE_P(
    Stored, RoutineScript,
    ::testing::ValuesIn(testing::goldenCases(testing::goldenFolder() / "routines", ".txt")),
    scriptName);

}  // namespace
}  // namespace kelvo
