// The built kelvo-batch, run as a user runs it.
#include <gtest/gtest.h>

#include "common/code_page.h"
#include "support/golden_files.h"
#include "support/program.h"
#include "support/temporary_folder.h"
#include "support/unprivileged.h"

namespace kelvo {
namespace {

namespace fs = std::filesystem;
using testing::firstDifference;
using testing::ProgramRun;
using testing::runProgram;
using testing::TemporaryFolder;

const std::string kProgram = KELVO_BINARY_DIR "/kelvo-batch";

std::string sixPoints() {
    return encodeCodePage(
        "INPUT deg\r\nWGS 가 37.3 127 1\r\n    나 37.4 127.1 2\r\nDIST 가 나\r\nend\r\n\r\n");
}

class KelvoBatch : public ::testing::Test {
protected:
    ProgramRun run(const std::string& data) {
        return runProgram({.arguments = {kProgram, "--app-folder", folder.path(), data},
                           .input = {},
                           .folder = {},
                           .environment = {}});
    }
    static std::string lastLine(const std::string& text) {
        if (text.empty()) return {};
        const auto at = text.rfind('\n', text.size() - 2);
        return text.substr(at == std::string::npos ? 0 : at + 1);
    }
    void expectFault(const ProgramRun& ended, int number) {
        EXPECT_EQ(ended.exitCode, 1);
        const std::string head = "run-time error " + std::to_string(number) + ": ";
        EXPECT_EQ(lastLine(ended.err).substr(0, head.size()), head) << ended.err;
        EXPECT_GT(lastLine(ended.err).size(), head.size() + 1);
        EXPECT_EQ(ended.out, "");
    }

    TemporaryFolder folder;
};

class StoredRun : public KelvoBatch, public ::testing::WithParamInterface<std::string> {};

TEST_P(StoredRun, WritesEveryByteOfItsReportsAndEndsWithItsExitCode) {
    const fs::path stored = testing::goldenFolder() / "batch" / GetParam();
    fs::copy_file(stored.string() + ".dat", folder.file("점 1.dat"));
    if (fs::exists(stored.string() + ".cor")) {
        fs::copy_file(stored.string() + ".cor", folder.file("kelvo.cor"));
    }
    const ProgramRun ended = run(folder.file("점 1.dat"));
    const auto expected = [&](const std::string& ending) {
        return TemporaryFolder::readBytes(stored.string() + ending);
    };
    EXPECT_EQ(firstDifference(expected(".out"), folder.bytes("점 1.out"), true), "");
    EXPECT_EQ(firstDifference(expected(".det"), folder.bytes("kelvo.det"), true), "");
    // the wording of a fault is free
    const auto plain = [](std::string text) {
        const auto fault = text.find("run-time error ");
        if (fault == std::string::npos) return text;
        const auto colon = text.find(':', fault);
        return text.erase(colon, text.find('\n', colon) - colon);
    };
    const std::string error = ended.err + "exit code " + std::to_string(ended.exitCode) + "\n";
    EXPECT_EQ(firstDifference(plain(expected(".err")), plain(error), false), "");
    EXPECT_EQ(ended.out, "");
}

std::string fileName(const ::testing::TestParamInfo<std::string>& info) {
    return info.param;
}

INSTANTIATE_TEST_SUITE_P(Stored, StoredRun,
                         ::testing::ValuesIn(testing::goldenCases(testing::goldenFolder() / "batch",
                                                                  ".dat")),
                         fileName);

TEST_F(KelvoBatch, TakesAwayWhatKilledProgramsLeftBesideItsDataFiles) {
    const std::string left = "kelvo.0123456789abcdef.new";
    fs::create_directory(folder.file("survey"));
    folder.put("survey/a.dat", sixPoints());
    folder.put("survey/" + left, "half");
    folder.put(left, "half");
    EXPECT_EQ(run(folder.file("survey/a.dat")).exitCode, 0);
    EXPECT_FALSE(fs::exists(folder.file("survey/" + left)));
    EXPECT_FALSE(fs::exists(folder.file(left)));
}

TEST_F(KelvoBatch, AMissingDataFileIsFault53AndLeavesNoFiles) {
    expectFault(run(folder.file("none.dat")), 53);
    EXPECT_TRUE(fs::is_empty(folder.path()));
}

TEST_F(KelvoBatch, AFolderAsDataFileIsAFault) {
    fs::create_directory(folder.file("d.dat"));
    expectFault(run(folder.file("d.dat")), 75);
}

TEST_F(KelvoBatch, AnEmptyDataFileReadsPastItsEnd) {
    folder.put("a.dat", "");
    expectFault(run(folder.file("a.dat")), 62);
    EXPECT_GT(folder.bytes("a.out").size(), 500U) << "the notes stand";
}

TEST_F(KelvoBatch, AMissingFileOfKnownPointsIsFault53WithTheHeaderWritten) {
    folder.put("a.dat", "CORR\r\nWGS a 37 127 1\r\nend\r\n\r\n");
    expectFault(run(folder.file("a.dat")), 53);
    EXPECT_NE(decodeCodePage(folder.bytes("a.out")).find("기존점에 의한 2차 보정 - 보정함\r\n"),
              std::string::npos);
    EXPECT_EQ(folder.bytes("kelvo.det"), "");
}

TEST_F(KelvoBatch, AFullDiskIsFault61) {
    if (!fs::exists("/dev/full")) GTEST_SKIP() << "no /dev/full here";
    folder.put("a.dat", sixPoints());
    fs::create_symlink("/dev/full", folder.file("a.out"));
    expectFault(run(folder.file("a.dat")), 61);
}

TEST_F(KelvoBatch, AFullDiskForTheDetailIsFault61) {
    if (!fs::exists("/dev/full")) GTEST_SKIP() << "no /dev/full here";
    folder.put("a.dat", "CORR\r\nWGS a 37 127 1\r\nend\r\n\r\n");
    folder.put("kelvo.cor", "k 37 127 10 37.0001 127.0001 30 1\r\n*\r\n*\r\n");
    fs::create_symlink("/dev/full", folder.file("kelvo.det"));
    expectFault(run(folder.file("a.dat")), 61);
}

TEST_F(KelvoBatch, AResultFileThatIsAFolderIsAFault) {
    folder.put("a.dat", sixPoints());
    fs::create_directory(folder.file("a.out"));
    expectFault(run(folder.file("a.dat")), 75);
}

TEST_F(KelvoBatch, AFolderThatMayNotBeWrittenIsAFault) {
    folder.put("a.dat", sixPoints());
    fs::permissions(folder.path(), fs::perms::all & ~fs::perms::owner_write &
                                       ~fs::perms::group_write & ~fs::perms::others_write);
    EXPECT_TRUE(testing::asUnprivileged([&] {
        const ProgramRun ended = run(folder.file("a.dat"));
        expectFault(ended, 70);
        return !HasFailure();
    }));
}

TEST_F(KelvoBatch, ADataFileThatMayNotBeReadIsAFaultAndLeavesItsOldResult) {
    folder.put("a.dat", sixPoints());
    folder.put("a.out", "of yesterday\r\n");
    fs::permissions(folder.file("a.dat"), fs::perms::none);
    fs::permissions(folder.path(), fs::perms::all);
    EXPECT_TRUE(testing::asUnprivileged([&] {
        expectFault(run(folder.file("a.dat")), 70);
        return !HasFailure();
    }));
    EXPECT_EQ(folder.bytes("a.out"), "of yesterday\r\n");
}

TEST_F(KelvoBatch, AnApplicationFolderThatNobodyMayWriteIsAFault) {
    if (!fs::is_directory("/sys")) GTEST_SKIP() << "no /sys here";
    folder.put("a.dat", sixPoints());
    const ProgramRun ended =
        runProgram({.arguments = {kProgram, "--app-folder", "/sys", folder.file("a.dat")},
                    .input = {},
                    .folder = {},
                    .environment = {}});
    EXPECT_EQ(ended.exitCode, 1);
    const std::string head = lastLine(ended.err).substr(0, 17);
    EXPECT_TRUE(head == "run-time error 70" || head == "run-time error 75") << ended.err;
    EXPECT_TRUE(fs::exists(folder.file("a.out"))) << "opened before";
}

TEST_F(KelvoBatch, AMissingApplicationFolderIsAFaultBehindTheResultFile) {
    folder.put("a.dat", sixPoints());
    const ProgramRun ended = runProgram(
        {.arguments = {kProgram, "--app-folder", folder.file("none"), folder.file("a.dat")},
         .input = {},
         .folder = {},
         .environment = {}});
    expectFault(ended, 76);
    EXPECT_TRUE(fs::exists(folder.file("a.out")));
}

TEST_F(KelvoBatch, ARelativeNameStandsInTheCurrentFolder) {
    folder.put("a.dat", sixPoints());
    const ProgramRun ended = runProgram({.arguments = {kProgram, "--app-folder", ".", "a.dat"},
                                         .input = {},
                                         .folder = folder.path(),
                                         .environment = {}});
    EXPECT_EQ(ended.exitCode, 0);
    EXPECT_EQ(ended.err, "");
    EXPECT_NE(decodeCodePage(folder.bytes("a.out")).find("From   가"), std::string::npos);
    EXPECT_EQ(folder.bytes("kelvo.det"), "");
    EXPECT_TRUE(fs::exists(folder.file("kelvo.det")));
}

TEST_F(KelvoBatch, WithoutAFolderGivenTheUsersOneIsMade) {
    folder.put("a.dat", sixPoints());
    const ProgramRun ended = runProgram({.arguments = {kProgram, folder.file("a.dat")},
                                         .input = {},
                                         .folder = {},
                                         .environment = {"XDG_DATA_HOME=" + folder.file("share")}});
    EXPECT_EQ(ended.exitCode, 0) << ended.err;
    EXPECT_TRUE(fs::exists(folder.file("share/Kelvo/kelvo.det")));
    EXPECT_TRUE(fs::is_directory(folder.file("share/Kelvo/data")));
}

TEST_F(KelvoBatch, TheLocaleDoesNotMatter) {
    folder.put("a.dat", sixPoints());
    ASSERT_EQ(run(folder.file("a.dat")).exitCode, 0);
    const std::string usual = folder.bytes("a.out");
    for (const char* locale : {"LC_ALL=C", "LC_ALL=de_DE.UTF-8", "LC_ALL=ko_KR.EUC-KR"}) {
        const ProgramRun ended = runProgram(
            {.arguments = {kProgram, "--app-folder", folder.path(), folder.file("a.dat")},
             .input = {},
             .folder = {},
             .environment = {locale}});
        EXPECT_EQ(ended.exitCode, 0);
        EXPECT_EQ(folder.bytes("a.out"), usual);
    }
}

TEST_F(KelvoBatch, WrongUsageEndsWithTwo) {
    const auto exitCodeOf = [](std::vector<std::string> arguments) {
        arguments.insert(arguments.begin(), kProgram);
        return runProgram({.arguments = arguments, .input = {}, .folder = {}, .environment = {}});
    };
    EXPECT_EQ(exitCodeOf({}).exitCode, 2);
    EXPECT_EQ(exitCodeOf({"--nonsense", "a.dat"}).exitCode, 2);
    EXPECT_EQ(exitCodeOf({"-"}).exitCode, 2);
    EXPECT_EQ(exitCodeOf({"--app-folder"}).exitCode, 2);
    EXPECT_NE(exitCodeOf({}).err, "");
}

TEST_F(KelvoBatch, HelpAndVersionGoToStandardOutput) {
    for (const char* option : {"--help", "--version"}) {
        const ProgramRun ended = runProgram(
            {.arguments = {kProgram, option}, .input = {}, .folder = {}, .environment = {}});
        EXPECT_EQ(ended.exitCode, 0);
        EXPECT_NE(ended.out, "");
        EXPECT_EQ(ended.err, "");
    }
}

TEST_F(KelvoBatch, AMessageTakesOneLineOfStandardErrorAndTheRunGoesOn) {
    // an ellipsoid of zero: the series can't be computed; and a check of the angle, whose text
    // has a line break
    folder.put("a.dat",
               "tm para\r\n0 299\r\n38 127\r\n5 7\r\n1\r\nTM a 1 2 3\r\n*\r\n"
               "zone 2\r\nWGS b 37.2959999991 127 1\r\nend\r\n\r\n");
    const ProgramRun ended = run(folder.file("a.dat"));
    EXPECT_EQ(ended.exitCode, 1) << "the geocentric step of a has no guard";
    folder.put("a.dat", "WGS b 37.2959999991 127 1\r\nend\r\n\r\n");
    const ProgramRun checked = run(folder.file("a.dat"));
    EXPECT_EQ(checked.exitCode, 0);
    EXPECT_EQ(checked.err,
              "message:   37.2959999991도분초를  각도   37.4999999975 로 환산할때 에러가 있습니다. "
              "Program 개발자에게 알려 주시기 바랍니다.\n");
}

}  // namespace
}  // namespace kelvo
