// Pipes and devices where the program expects files: nobody waits at a window for their other end.
#include <gtest/gtest.h>

#include <chrono>

#include "support/program.h"
#include "support/temporary_folder.h"

#include <sys/stat.h>

namespace kelvo::testing {
namespace {

namespace fs = std::filesystem;

class Pipes : public ::testing::Test {
protected:
    Pipes() {
        fs::create_directories(folder.file("data"));
        drive("close\n");
    }

    void putPipe(const std::string& name) {
        fs::remove(folder.file(name));
        ASSERT_EQ(mkfifo(folder.file(name).c_str(), 0600), 0);
    }

    // A session that comes to its end, by itself or by a fault, without waiting for anyone.
    ProgramRun drive(const std::string& script) {
        const auto before = std::chrono::steady_clock::now();
        ProgramRun ended =
            runProgram({.arguments = {KELVO_BINARY_DIR "/form_driver", folder.path()},
                        .input = script,
                        .folder = folder.path(),
                        .environment = {}});
        EXPECT_LT(std::chrono::steady_clock::now() - before, std::chrono::seconds(20));
        EXPECT_GE(ended.exitCode, 0) << "it hung";
        return ended;
    }

    const TemporaryFolder folder;
};

TEST_F(Pipes, AmongTheRecentFilesAreNoHindrance) {
    putPipe("data/pipe.dat");
    const std::string cfg = folder.bytes("kelvo.cfg");
    folder.put("kelvo.cfg", cfg + folder.file("data/pipe.dat") + "\r\n");
    EXPECT_EQ(drive("get RecentFiles(2)\nclose\n").out,
              "RecentFiles(2)=" + folder.file("data/pipe.dat") + "\nend\n");
    EXPECT_EQ(drive("click mnuFileItem(8)\nget RecentFiles(1)\n").out,
              "RecentFiles(1)=" + folder.file("data/test.dat") + "\n");
}

TEST_F(Pipes, AsCurrentDataFileAreAFaultOfTheRun) {
    fs::remove(folder.file("data/test.dat"));
    putPipe("data/test.dat");
    const ProgramRun ended = drive("click mnuBatchGo\n");
    EXPECT_EQ(ended.exitCode, 1);
    EXPECT_NE(ended.out.find("fault|75|"), std::string::npos) << ended.out;
}

TEST_F(Pipes, InPlaceOfTheSettingsAreSetAside) {
    for (const char* name : {"kelvo.cfg", "plot.cfg"}) {
        putPipe(name);
        const ProgramRun ended = drive("get Cfg.dX\nclose\n");
        EXPECT_EQ(ended.exitCode, 0) << name << ended.out;
        EXPECT_NE(ended.out.find("Cfg.dX=115.8"), std::string::npos) << name;
        EXPECT_TRUE(fs::is_regular_file(folder.file(name))) << name;
        EXPECT_TRUE(fs::is_fifo(folder.file(std::string(name) + ".old"))) << name;
    }
}

TEST_F(Pipes, InPlaceOfKnownPointsOrResultsAreAFault) {
    putPipe("kelvo.cor");
    EXPECT_NE(drive("click mnuCorrEdit\n").out.find("fault|75|"), std::string::npos);
    putPipe("data/test.out");
    EXPECT_NE(drive("click mnuBatchGo\n").out.find("fault|71|"), std::string::npos);
}

TEST_F(Pipes, OfDevicesThatNeverEndAreAFaultToo) {
    if (!fs::exists("/dev/zero")) GTEST_SKIP() << "no /dev/zero here";
    for (const char* name : {"kelvo.cfg", "plot.cfg"}) {
        fs::remove(folder.file(name));
        fs::create_symlink("/dev/zero", folder.file(name));
        drive("close\n");
        fs::remove(folder.file(name));
    }
}

}  // namespace
}  // namespace kelvo::testing
