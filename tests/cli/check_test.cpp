// kelvo-batch --check as an editor or a script starts it.
#include <gtest/gtest.h>

#include <algorithm>

#include "cli/program_bench.h"
#include "common/code_page.h"

namespace kelvo {
namespace {

using testing::ProgramRun;

class Check : public testing::ProgramBench {
protected:
    ProgramRun check(std::vector<std::string> files) const {
        std::vector<std::string> arguments{kProgram, "--app-folder", folder.path(), "--check"};
        arguments.insert(arguments.end(), files.begin(), files.end());
        return testing::runProgram(
            {.arguments = arguments, .input = {}, .folder = {}, .environment = {}});
    }

    std::string put(const std::string& name, const std::string& text) const {
        folder.put(name, encodeCodePage(text));
        return folder.file(name);
    }

    static constexpr const char* kClean = "INPUT deg\r\nWGS 가 37.3 127 0\r\nend\r\n\r\n";
    static constexpr const char* kSlips =
        "INPUT deg\r\nWGS 가 37.3 127 0\r\n    나 127.1 37.3 0\r\nDIGITS 4\r\nend\r\n\r\n";
};

TEST_F(Check, IsSilentAndEndsWith0WhereNothingIsFound) {
    const ProgramRun ended = check({put("가.dat", kClean)});
    EXPECT_EQ(ended.exitCode, 0);
    EXPECT_EQ(ended.out, "");
    EXPECT_EQ(ended.err, "");
}

TEST_F(Check, PrintsFileLineAndTextByTheirLinesAndEndsWith1) {
    const std::string path = put("점 1.dat", kSlips);
    const ProgramRun ended = check({path});
    EXPECT_EQ(ended.exitCode, 1);
    EXPECT_EQ(ended.err, "");
    std::vector<std::string> heads;
    std::size_t at = 0;
    while (at < ended.out.size()) {
        const std::size_t end = ended.out.find('\n', at);
        ASSERT_NE(end, std::string::npos);
        heads.push_back(ended.out.substr(at, path.size() + 4));
        at = end + 1;
    }
    ASSERT_GE(heads.size(), 3U) << ended.out;
    EXPECT_EQ(heads[0], path + ":3: ");
    EXPECT_EQ(heads[1], path + ":4: ");
    EXPECT_TRUE(std::is_sorted(heads.begin(), heads.end())) << ended.out;
}

TEST_F(Check, WritesNothing) {
    const std::string path = put("가.dat", std::string("CORRECTION\r\n") + kSlips);
    const std::string known = put("kelvo.cor", "* 없음\r\n\r\n");
    const std::string before = namesIn(folder.path());
    EXPECT_EQ(check({path}).exitCode, 1);
    EXPECT_EQ(namesIn(folder.path()), before);
    EXPECT_EQ(folder.bytes("가.dat"), encodeCodePage(std::string("CORRECTION\r\n") + kSlips));
    EXPECT_EQ(folder.bytes("kelvo.cor"), encodeCodePage("* 없음\r\n\r\n"));
}

TEST_F(Check, MakesNoApplicationFolder) {
    const std::string path = put("가.dat", kClean);
    const ProgramRun ended =
        testing::runProgram({.arguments = {kProgram, "--check", path},
                             .input = {},
                             .folder = {},
                             .environment = {"XDG_DATA_HOME=" + folder.file("home")}});
    EXPECT_EQ(ended.exitCode, 0) << ended.err;
    EXPECT_EQ(namesIn(folder.path()), "가.dat ");
}

TEST_F(Check, EndsWith2ForAFileThatCantBeReadAndStillChecksTheOthers) {
    const ProgramRun ended = check({folder.file("없음.dat"), put("나.dat", kSlips)});
    EXPECT_EQ(ended.exitCode, 2);
    EXPECT_NE(ended.err.find("kelvo-batch: " + folder.file("없음.dat") + ": "), std::string::npos)
        << ended.err;
    EXPECT_NE(ended.out.find(folder.file("나.dat") + ":4: "), std::string::npos) << ended.out;
    EXPECT_EQ(check({folder.path()}).exitCode, 2);
}

TEST_F(Check, EndsWith2ForWrongUsage) {
    EXPECT_EQ(check({}).exitCode, 2);
    EXPECT_EQ(check({"--chek"}).exitCode, 2);
}

TEST_F(Check, SaysOnceWhatIsWrongWithTheKnownPoints) {
    const std::string known =
        put("kelvo.cor",
            "K 37.35286118 126.32345468 45.7 37.3518607 126.32419061 67.6 1\r\n"
            "\r\n\r\n");
    const std::string data = std::string("CORRECTION\r\n") + kClean;
    const ProgramRun ended = check({put("가.dat", data), put("나.dat", data)});
    EXPECT_EQ(ended.exitCode, 1);
    const std::size_t first = ended.out.find(known + ":1: ");
    EXPECT_NE(first, std::string::npos) << ended.out;
    EXPECT_EQ(ended.out.find(known + ":1: ", first + 1), std::string::npos) << ended.out;
}

TEST_F(Check, FindsADataFileThatItsRunWouldWriteOver) {
    const ProgramRun ended = check({put("가.out", kClean)});
    EXPECT_EQ(ended.exitCode, 1);
    EXPECT_EQ(ended.out.substr(0, folder.file("가.out").size() + 4),
              folder.file("가.out") + ":1: ");
    EXPECT_NE(ended.out.find("(오류 55)"), std::string::npos) << ended.out;
}

TEST_F(Check, TakesFilesWhoseRunsWouldWriteOneResult) {
    EXPECT_EQ(check({put("가.dat", kClean), put("가.txt", kClean)}).exitCode, 0);
}

}  // namespace
}  // namespace kelvo
