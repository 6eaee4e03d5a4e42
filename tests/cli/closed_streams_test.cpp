// A program whose standard streams are closed, end early or may not grow.
#include <gtest/gtest.h>

#include "cli/program_bench.h"

namespace kelvo {
namespace {

using testing::ProgramRun;

// High latitudes are told of in a message, once a point.
std::string dataWithMessages(int points) {
    std::string data = "INPUT deg\r\nWGS first 37.5 127.25 10\r\n";
    for (int i = 0; i < points; ++i) data += "    p" + std::to_string(i) + " 60 127.25 10\r\n";
    return data + "end\r\n\r\n";
}

class ClosedStreams : public testing::ProgramBench {
protected:
    // The program's command line is $1 and what follows.
    ProgramRun shell(const std::string& command, const std::string& data) const {
        return testing::runProgram({.arguments = {"/bin/sh", "-c", command, "sh", kProgram,
                                                  "--app-folder", folder.path(), data},
                                    .input = {},
                                    .folder = folder.path(),
                                    .environment = {}});
    }
    // What an undisturbed run gives.
    std::string usualReport(int points) {
        folder.put("usual.dat", dataWithMessages(points));
        const ProgramRun ended = run(folder.file("usual.dat"));
        EXPECT_EQ(ended.exitCode, 0);
        EXPECT_NE(ended.err.find("message: "), std::string::npos) << "no messages to go astray";
        folder.put("a.dat", dataWithMessages(points));
        return folder.bytes("usual.out");
    }
};

TEST_F(ClosedStreams, MessagesOfAProgramWithoutStandardErrorGoNowhere) {
    const std::string usual = usualReport(20);
    for (const char* closed : {"<&- 2>&-", "<&- >&- 2>&-", "2>&-", ">&- 2>&-"}) {
        EXPECT_EQ(shell("exec \"$@\" " + std::string(closed), folder.file("a.dat")).exitCode, 0);
        EXPECT_TRUE(folder.bytes("a.out") == usual) << closed;
        EXPECT_TRUE(folder.bytes("kelvo.det").empty()) << closed;
    }
}

TEST_F(ClosedStreams, AReaderOfMessagesThatGoesAwayDoesNotEndTheRun) {
    constexpr int kMoreThanAPipeHolds = 3000;
    const std::string usual = usualReport(kMoreThanAPipeHolds);
    shell("(\"$@\" 2>&1; echo $? > code) | true", folder.file("a.dat"));
    EXPECT_EQ(folder.bytes("code"), "0\n");
    EXPECT_TRUE(folder.bytes("a.out") == usual);
}

TEST_F(ClosedStreams, ASizeThatMayNotBeExceededIsAFullDisk) {
    constexpr int kMoreThanTheLimit = 3000;
    const std::string usual = usualReport(kMoreThanTheLimit);
    // Beyond the pipe there is no limit for the messages.
    const ProgramRun ended = shell(
        "{ (ulimit -f 100; exec \"$@\"); echo $? > code; } 2>&1 | cat >&2", folder.file("a.dat"));
    EXPECT_EQ(folder.bytes("code"), "1\n");
    EXPECT_EQ(lastLine(ended.err).substr(0, 19), "run-time error 61: ");
    const std::string written = folder.bytes("a.out");
    EXPECT_LT(written.size(), usual.size());
    EXPECT_GT(written.size(), 30'000U) << "what was written stands";
    EXPECT_TRUE(usual.starts_with(written));
}

}  // namespace
}  // namespace kelvo
