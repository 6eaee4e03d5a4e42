// Names of files and folders that trip programs, and files that are none.
#include <gtest/gtest.h>

#include <thread>

#include "cli/program_bench.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace kelvo {
namespace {

namespace fs = std::filesystem;
using testing::ProgramRun;
using testing::TemporaryFolder;

const std::string kData = "INPUT deg\r\nWGS a 37.5 127.25 10\r\nend\r\n\r\n";
constexpr std::size_t kLongestName = 255;

class HostilePaths : public testing::ProgramBench {
protected:
    // What a run of kData gives under a harmless name.
    std::string usualReport() {
        folder.put("usual.dat", kData);
        EXPECT_EQ(run(folder.file("usual.dat")).exitCode, 0);
        return folder.bytes("usual.out");
    }
};

TEST_F(HostilePaths, EveryNameThatTheSystemAllowsIsOnlyAName) {
    const std::string usual = usualReport();
    const std::string names[] = {"두 점",  "a,b",        "\"a\"",     "'a'",     "100%", "%s%n",
                                 "a;b",    "$(touch x)", "`touch x`", "a|b",     "a&b",  "a>b",
                                 "*",      "?",          "~",         "a\nb",    "a\tb", "-a",
                                 "\\a\\b", " a ",        "a..b",      "\xff\xfe"};
    for (const std::string& name : names) {
        const std::string place = folder.file(name);
        ASSERT_TRUE(fs::create_directory(place)) << name;
        std::ofstream(place + "/" + name + ".dat", std::ios::binary) << kData;
        const ProgramRun ended = testing::runProgram(
            {.arguments = {kProgram, "--app-folder", place, place + "/" + name + ".dat"},
             .input = {},
             .folder = {},
             .environment = {}});
        EXPECT_EQ(ended.exitCode, 0) << name << ": " << ended.err;
        EXPECT_EQ(TemporaryFolder::readBytes(place + "/" + name + ".out"), usual) << name;
        EXPECT_TRUE(fs::exists(place + "/kelvo.det")) << name;
        EXPECT_EQ(std::distance(fs::directory_iterator(place), fs::directory_iterator()), 3)
            << name;
    }
    EXPECT_FALSE(fs::exists(folder.file("x")));
}

TEST_F(HostilePaths, TheLongestNameWorks) {
    const std::string usual = usualReport();
    const std::string name(kLongestName - 4, 'n');
    folder.put(name + ".dat", kData);
    EXPECT_EQ(run(folder.file(name + ".dat")).exitCode, 0);
    EXPECT_EQ(folder.bytes(name + ".out"), usual);
}

TEST_F(HostilePaths, ANameWithNoRoomForTheEndingIsAFaultAndHarmsNothing) {
    const std::string name(kLongestName, 'n');
    folder.put(name, kData);
    expectFault(run(folder.file(name)), 76);
    EXPECT_EQ(folder.bytes(name), kData);
    EXPECT_EQ(namesIn(folder.path()), name + " ");
}

TEST_F(HostilePaths, ANameTooLongForTheSystemIsAFault) {
    expectFault(run(folder.file(std::string(kLongestName + 1, 'n'))), 76);
    expectFault(run(folder.file(std::string(100'000, 'n'))), 76);
}

TEST_F(HostilePaths, TheReportsOfALinkStandBesideTheLink) {
    const std::string usual = usualReport();
    fs::create_directory(folder.file("far"));
    folder.put("far/data.dat", kData);
    fs::create_symlink("far/data.dat", folder.file("a.dat"));
    EXPECT_EQ(run(folder.file("a.dat")).exitCode, 0);
    EXPECT_EQ(folder.bytes("a.out"), usual);
    EXPECT_EQ(folder.bytes("far/data.dat"), kData);
    EXPECT_EQ(namesIn(folder.file("far")), "data.dat ");
}

TEST_F(HostilePaths, AResultNameThatLeadsBackToTheDataIsRefused) {
    folder.put("a.dat", kData);
    fs::create_symlink("a.dat", folder.file("a.out"));
    expectFault(run(folder.file("a.dat")), 55);
    EXPECT_EQ(folder.bytes("a.dat"), kData);

    fs::remove(folder.file("a.out"));
    fs::create_hard_link(folder.file("a.dat"), folder.file("a.out"));
    expectFault(run(folder.file("a.dat")), 55);
    EXPECT_EQ(folder.bytes("a.dat"), kData);

    folder.put("b.out", kData);
    expectFault(run(folder.file("b.out")), 55);
    EXPECT_EQ(folder.bytes("b.out"), kData);
}

TEST_F(HostilePaths, ADetailNameThatLeadsBackToTheDataOrTheKnownPointsIsRefused) {
    folder.put("a.dat", kData);
    fs::create_symlink("a.dat", folder.file("kelvo.det"));
    expectFault(run(folder.file("a.dat")), 55);
    EXPECT_EQ(folder.bytes("a.dat"), kData);

    fs::remove(folder.file("kelvo.det"));
    folder.put("kelvo.cor", "k 37 127 10 37 127 30 1\r\n*\r\n*\r\n");
    fs::create_symlink("kelvo.cor", folder.file("kelvo.det"));
    expectFault(run(folder.file("a.dat")), 55);
    EXPECT_NE(folder.bytes("kelvo.cor"), "");
}

TEST_F(HostilePaths, ALinkInARingIsAFault) {
    fs::create_symlink("b.dat", folder.file("a.dat"));
    fs::create_symlink("a.dat", folder.file("b.dat"));
    const ProgramRun ended = run(folder.file("a.dat"));
    EXPECT_EQ(ended.exitCode, 1);
    EXPECT_EQ(lastLine(ended.err).substr(0, 15), "run-time error ");
}

TEST_F(HostilePaths, ADeviceWithoutEndIsAFault) {
    if (!fs::exists("/dev/zero")) GTEST_SKIP() << "no /dev/zero here";
    fs::create_symlink("/dev/zero", folder.file("a.dat"));
    expectFault(run(folder.file("a.dat")), 6);
}

TEST_F(HostilePaths, AnEmptyDeviceReadsPastItsEnd) {
    if (!fs::exists("/dev/null")) GTEST_SKIP() << "no /dev/null here";
    fs::create_symlink("/dev/null", folder.file("a.dat"));
    expectFault(run(folder.file("a.dat")), 62);
}

TEST_F(HostilePaths, APipeIsReadAsAFileIs) {
    const std::string usual = usualReport();
    const std::string pipe = folder.file("a.dat");
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    std::thread writer([&] {
        // Waits for the reader, who comes with the program.
        const int end = open(pipe.c_str(), O_WRONLY | O_CLOEXEC);
        EXPECT_EQ(write(end, kData.data(), kData.size()), static_cast<ssize_t>(kData.size()));
        close(end);
    });
    EXPECT_EQ(run(pipe).exitCode, 0);
    // In case the program never opened it.
    const int other = open(pipe.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    writer.join();
    close(other);
    EXPECT_EQ(folder.bytes("a.out"), usual);
}

}  // namespace
}  // namespace kelvo
