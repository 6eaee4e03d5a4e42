// What stands in a file must not hurt: neither the machine, by memory or time, nor other files.
#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <regex>
#include <set>
#include <sstream>

#include "cli/program_bench.h"

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace kelvo {
namespace {

using testing::ProgramRun;
using testing::TemporaryFolder;

#if defined(__SANITIZE_ADDRESS__)
constexpr bool kSlow = true;
#elif defined(__has_feature)
constexpr bool kSlow = __has_feature(address_sanitizer);
#else
constexpr bool kSlow = false;
#endif

constexpr long kGigabyte = 1L << 30U;
constexpr std::size_t kManyLines = kSlow ? 1'000'000 : 10'000'000;
// Far below the gigabyte that a file holds; the longest line is 16 MB.
constexpr long kMostMemory = kSlow ? 700L << 20U : 100L << 20U;

const std::string kPoint = "WGS a 37.3 127 1\r\n";
const std::string kEnd = "end\r\n\r\n";

class HostileContent : public testing::ProgramBench {
protected:
    // The largest memory that a program of this test took, in bytes.
    static long mostMemory() {
        rusage usage{};
        getrusage(RUSAGE_CHILDREN, &usage);
        return usage.ru_maxrss * 1024;
    }

    void putLines(const std::string& name, const std::string& line, std::size_t count) {
        std::string block;
        for (int i = 0; i < 1000; ++i) block += line;
        std::ofstream out(folder.file(name), std::ios::binary);
        for (std::size_t i = 0; i < count / 1000; ++i) out << block;
    }

    // A file of a gigabyte, all NULs after its head, that takes no room on the disk.
    void putGigabyte(const std::string& name, const std::string& head) {
        folder.put(name, head);
        ASSERT_EQ(truncate(folder.file(name).c_str(), kGigabyte), 0);
    }
};

TEST_F(HostileContent, AGigabyteInOneLineIsAFaultInBoundedMemory) {
    putGigabyte("a.dat", kPoint);
    const ProgramRun ended = run(folder.file("a.dat"));
    expectFault(ended, 6);
    EXPECT_LT(ended.err.size(), 1000U) << "the report doesn't quote the line";
    EXPECT_LT(mostMemory(), kMostMemory);
}

TEST_F(HostileContent, AGigabyteOfKnownPointsInOneLineIsAFaultInBoundedMemory) {
    folder.put("a.dat", "CORR\r\n" + kPoint + kEnd);
    putGigabyte("kelvo.cor", "k 37 127 1 37 127 1\r\n");
    const ProgramRun ended = run(folder.file("a.dat"));
    expectFault(ended, 6);
    EXPECT_LT(mostMemory(), kMostMemory);
}

TEST_F(HostileContent, TenMillionLinesAreReadInBoundedMemory) {
    putLines("a.dat", "*\n", kManyLines);
    EXPECT_EQ(run(folder.file("a.dat")).exitCode, 0);
    EXPECT_LT(mostMemory(), kMostMemory);
}

TEST_F(HostileContent, MillionsOfPointsEndWithTheTableFull) {
    putLines("a.dat", "WGS p 37.3 127 1\n   q 36.1 128 2\n", kManyLines / 2);
    expectFault(run(folder.file("a.dat")), 9);
    EXPECT_LT(mostMemory(), kMostMemory);
}

TEST_F(HostileContent, NoiseEndsTheRunOrIsPassedOver) {
    std::mt19937 random(1);
    for (int i = 0; i < 20; ++i) {
        std::string noise;
        for (int k = 0; k < 65536; ++k) noise += static_cast<char>(random() & 0xFFU);
        folder.put("a.dat", "CORR\r\n" + noise + "\r\n" + kPoint + noise);
        folder.put("kelvo.cor", noise);
        const ProgramRun ended = run(folder.file("a.dat"));
        ASSERT_TRUE(ended.exitCode == 0 || ended.exitCode == 1) << i;
        if (ended.exitCode == 1) {
            ASSERT_EQ(lastLine(ended.err).substr(0, 15), "run-time error ");
        }
    }
}

TEST_F(HostileContent, NulsPartFieldsAsBlanksDo) {
    folder.put("a.dat", "INPUT deg\r\nWGS a 37.5 127.25 10\r\n" + kEnd);
    ASSERT_EQ(run(folder.file("a.dat")).exitCode, 0);
    const std::string usual = folder.bytes("a.out");
    std::string line = "WGS a 37.5 127.25 10";
    std::replace(line.begin(), line.end(), ' ', '\0');
    folder.put("a.dat", "INPUT deg\r\n" + line + "\r\n" + kEnd);
    ASSERT_EQ(run(folder.file("a.dat")).exitCode, 0);
    EXPECT_EQ(folder.bytes("a.out"), usual);
}

TEST_F(HostileContent, ANameOfAMegabyteShowsTenColumns) {
    const std::string name(1U << 20U, 'x');
    folder.put("a.dat",
               "WGS " + name + " 37.3 127 1\r\n   b 36.1 128 2\r\nDIST " + name + " b\r\n" + kEnd);
    const ProgramRun ended = run(folder.file("a.dat"));
    EXPECT_EQ(ended.exitCode, 0) << ended.err.substr(0, 1000);
    const std::string out = folder.bytes("a.out");
    EXPECT_NE(out.find("\r\nxxxxxxxxxx "), std::string::npos);
    EXPECT_LT(mostMemory(), kMostMemory);
}

TEST_F(HostileContent, NothingInAFileReachesAnotherFile) {
    // Names that a shell, a formatter or a path would take for more than a name.
    const std::string names[] = {
        "$(touch${IFS}evil)", "`touch`", ";touch", "|touch", "../evil.out", "/tmp/evil", "%s%n%x",
        "a\x1b[2J",           "--help",  "&",      ">evil"};
    std::string data;
    for (const auto& name : names) data += "WGS " + name + " 37.3 127 1\r\n";
    for (const auto& name : names) data += "DIST " + name + " " + names[0] + "\r\n";
    folder.put("a.dat", data + kEnd);
    folder.put("other.out", "stays");
    EXPECT_EQ(run(folder.file("a.dat")).exitCode, 0);
    EXPECT_EQ(namesIn(folder.path()), "a.dat a.out kelvo.det other.out ");
    EXPECT_EQ(folder.bytes("other.out"), "stays");
    EXPECT_EQ(folder.bytes("a.dat"), data + kEnd);
}

TEST_F(HostileContent, LinesOfTheProgramAreShortAndSteerNoTerminal) {
    const auto check = [](const ProgramRun& ended, int exitCode) {
        EXPECT_EQ(ended.exitCode, exitCode);
        EXPECT_EQ(ended.err.find('\x1b'), std::string::npos);
        std::istringstream lines(ended.err);
        for (std::string line; std::getline(lines, line);) EXPECT_LT(line.size(), 2000U);
    };
    const std::string name = "a\x1b[2J" + std::string(200, 'x') + ".dat";
    check(run(folder.file(name)), 1);
    check(run("--\x1b[2J"), 2);
    check(run(folder.path() + std::string(20'000, '/') + "\x1b[2J"), 1);

    // A name of 15 MB in a fault.
    const std::string point = "p\x1b[2J" + std::string(15'000'000, 'n');
    folder.put("a.dat", "INPUT deg\r\nWGS " + point + " 1e308 1e308 1e308\r\nend\r\n\r\n");
    check(run(folder.file("a.dat")), 1);
}

TEST_F(HostileContent, ARunStartsNoProgramAndPutsTwoFilesInPlace) {
    const std::string tracer = "/usr/bin/strace";
    const std::string calls = folder.file("calls");
    if (access(tracer.c_str(), X_OK) != 0) GTEST_SKIP() << "no strace here";
    folder.put("a.dat",
               "CORR\r\nWGS $(sh) 37.3 127 1\r\nUGS |sh 37.3 127 1\r\nDIST $(sh) |sh\r\n" + kEnd);
    folder.put("kelvo.cor", "$(sh) 37 127 10 37.0001 127.0001 30 1\r\n*\r\n*\r\n");
    // The leak check of a sanitized program can't run under a tracer.
    const ProgramRun ended = testing::runProgram(
        {.arguments = {tracer, "-f", "-qq", "-o", calls, "-e",
                       "trace=execve,execveat,fork,vfork,clone,clone3,openat,open,creat,socket,"
                       "connect,rename,renameat,renameat2,unlink,unlinkat,link,symlink,mkdir",
                       kProgram, "--app-folder", folder.path(), folder.file("a.dat")},
         .input = {},
         .folder = folder.path(),
         .environment = {"ASAN_OPTIONS=detect_leaks=0"}});
    if (ended.exitCode != 0 && folder.bytes("calls").find("execve(") == std::string::npos)
        GTEST_SKIP() << "no tracing here: " << ended.err;
    ASSERT_EQ(ended.exitCode, 0) << ended.err;
    std::istringstream lines(folder.bytes("calls"));
    const std::regex newFile(folder.path() + "/kelvo\\.[0-9a-f]{16}\\.new");
    std::set<std::string> written;
    std::set<std::string> putInPlace;
    int programs = 0;
    for (std::string line; std::getline(lines, line);) {
        if (line.find(".profraw") != std::string::npos) continue;  // the compiler's own measuring
        const std::string first = line.substr(line.find('"') + 1);
        const std::string name = first.substr(0, first.find('"'));
        const std::string last = line.substr(0, line.rfind('"'));
        if (line.find("O_WRONLY") != std::string::npos ||
            line.find("O_RDWR") != std::string::npos) {
            if (!std::regex_match(name, newFile)) written.insert(name);
        } else if (line.find(" rename(") != std::string::npos) {
            EXPECT_TRUE(std::regex_match(name, newFile)) << line;
            putInPlace.insert(last.substr(last.rfind('"') + 1));
        } else if (line.find("execve(") != std::string::npos) {
            ++programs;
        } else {
            EXPECT_NE(line.find("O_RDONLY"), std::string::npos) << line;
        }
    }
    EXPECT_EQ(programs, 1) << "the program itself";
    EXPECT_EQ(written, (std::set<std::string>{folder.file("a.out"), folder.file("kelvo.det")}));
    EXPECT_EQ(putInPlace, written);
}

}  // namespace
}  // namespace kelvo
