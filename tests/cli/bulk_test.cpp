// Several data files in one call of the built kelvo-batch.
#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "support/program.h"
#include "support/temporary_folder.h"

namespace kelvo {
namespace {

using testing::ProgramRun;
using testing::runProgram;
using testing::TemporaryFolder;

// A UTM point in front of a row that an earlier run may have filled.
const std::string kUtm = "UTM u 4098671.926334 233069.905228 7\r\nend\r\n\r\n";
const std::string kWgs = "WGS w 37.3 127 50\r\nend\r\n\r\n";
// Latitudes beyond the reach of the shift are reported in a message, and the run goes on.
const std::string kFarNorth = "INPUT deg\r\nWGS n 80 127 0\r\nend\r\n\r\n";

class Bulk : public ::testing::Test {
protected:
    ProgramRun run(std::vector<std::string> arguments) {
        arguments.insert(arguments.begin(),
                         {KELVO_BINARY_DIR "/kelvo-batch", "--app-folder", folder.path()});
        return runProgram(
            {.arguments = arguments, .input = {}, .folder = folder.path(), .environment = {}});
    }

    TemporaryFolder folder;
};

TEST_F(Bulk, EachFileGetsTheReportsOfARunOfItsOwn) {
    folder.put("w.dat", kWgs);
    folder.put("u.dat", kUtm);
    ASSERT_EQ(run({"w.dat"}).exitCode, 0);
    const std::string w = folder.bytes("w.out");
    ASSERT_EQ(run({"u.dat"}).exitCode, 0);
    const std::string u = folder.bytes("u.out");
    ASSERT_NE(w, u);
    std::filesystem::remove(folder.file("w.out"));
    std::filesystem::remove(folder.file("u.out"));

    EXPECT_EQ(run({"w.dat", "u.dat"}).exitCode, 0);
    EXPECT_EQ(folder.bytes("w.out"), w);
    EXPECT_EQ(folder.bytes("u.out"), u);
}

TEST_F(Bulk, TheDetailOfEachStandsBesideItAndThatOfTheLastInTheApplicationFolder) {
    folder.put("kelvo.cor", "기지 37.3 127 30 37.2959 127.0007 40 1\r\n*\r\n*\r\n");
    folder.put("a.dat", "CORRECTION\r\n" + kWgs);
    folder.put("b.dat", kWgs);
    EXPECT_EQ(run({"b.dat", "a.dat"}).exitCode, 0);
    EXPECT_FALSE(folder.bytes("a.det").empty());
    EXPECT_EQ(folder.bytes("kelvo.det"), folder.bytes("a.det"));
    EXPECT_TRUE(std::filesystem::exists(folder.file("b.det")));
    EXPECT_TRUE(folder.bytes("b.det").empty());
}

TEST_F(Bulk, AFileThatFailsIsNamedAndDoesNotStopTheOthers) {
    folder.put("w.dat", kWgs);
    const ProgramRun ended = run({"missing.dat", "w.dat"});
    EXPECT_EQ(ended.exitCode, 1);
    EXPECT_EQ(ended.err.find("missing.dat: run-time error 53: "), 0U) << ended.err;
    EXPECT_FALSE(folder.bytes("w.out").empty());
}

TEST_F(Bulk, QuietKeepsMessagesBackButNotFaults) {
    folder.put("n.dat", kFarNorth);
    EXPECT_NE(run({"n.dat"}).err, "");
    EXPECT_EQ(run({"--quiet", "n.dat"}).err, "");
    EXPECT_NE(run({"--quiet", "missing.dat"}).err, "");
}

TEST_F(Bulk, NoBarIsDrawnWhereThereIsNoTerminal) {
    std::vector<std::string> names;
    for (int i = 0; i < 8; ++i) {
        names.push_back("w" + std::to_string(i) + ".dat");
        folder.put(names.back(), kWgs);
    }
    EXPECT_EQ(run(names).err, "");
}

TEST_F(Bulk, ADataFileWhoseDetailIsThatOfTheApplicationFolderKeepsIt) {
    folder.put("first.dat", kWgs);
    folder.put("kelvo.cor",
               "k1 37.30 127.00 10 37.2950 127.0007 20 1\r\nk2 37.40 127.10 12 37.3950 127.1007 22 "
               "1\r\n*\r\n*\r\n");
    folder.put("kelvo.dat", "CORR\r\nWGS w 37.3 127 50\r\nend\r\n\r\n");
    EXPECT_EQ(run({"first.dat", "kelvo.dat"}).exitCode, 0);
    EXPECT_NE(folder.bytes("kelvo.det").find("w  "), std::string::npos);
}

TEST_F(Bulk, AnOldDetailOfAFileThatFailsIsNotTakenForThatOfTheLastRun) {
    folder.put("first.dat", kWgs);
    folder.put("gone.det", "OLD");
    EXPECT_EQ(run({"first.dat", "gone.dat"}).exitCode, 1);
    EXPECT_FALSE(std::filesystem::exists(folder.file("kelvo.det")));
}

TEST_F(Bulk, TheDetailOfALastRunThatFailsIsTheOneThatStands) {
    const std::string known = "기지 37.3 127 30 37.2959 127.0007 40 1\r\n*\r\n*\r\n";
    folder.put("kelvo.cor", known);
    folder.put("one.dat", "CORRECTION\r\n" + kWgs);
    folder.put("two.dat", "CORRECTION\r\nWGS two 37.3 127 50\r\nTM PARA\r\n1 2\r\n");
    ASSERT_EQ(run({"two.dat"}).exitCode, 1);
    const std::string two = folder.bytes("kelvo.det");
    ASSERT_NE(two.find("two"), std::string::npos) << "its detail begins before the fault";
    ASSERT_EQ(run({"one.dat"}).exitCode, 0);
    EXPECT_EQ(run({"one.dat", "two.dat"}).exitCode, 1);
    EXPECT_EQ(folder.bytes("two.det"), two);
    EXPECT_EQ(folder.bytes("kelvo.det"), two);
}

// No run is allowed to harm what another one of the same call reads or has written.
class SharedFiles : public Bulk {
protected:
    SharedFiles() {
        folder.put("kelvo.cor", "known\r\n");
        for (const char* name : {"x.dat", "x.txt", "x.det", "y.dat", "kelvo.dat"})
            folder.put(name, kWgs);
    }
    // All files and what they hold.
    [[nodiscard]] std::string everything() const {
        std::map<std::string, std::string> files;
        for (const auto& entry : std::filesystem::directory_iterator(folder.path()))
            if (entry.is_regular_file())
                files[entry.path().filename()] = TemporaryFolder::readBytes(entry.path());
        std::string all;
        for (const auto& [name, bytes] : files) all += name + "=" + bytes + "|";
        return all;
    }
    void expectRefused(const std::vector<std::string>& names) {
        const std::string before = everything();
        const ProgramRun ended = run(names);
        EXPECT_EQ(ended.exitCode, 2) << names.back() << ended.err;
        EXPECT_NE(ended.err.find("would"), std::string::npos) << ended.err;
        EXPECT_TRUE(everything() == before) << names.front() << " " << names.back();
    }
};

TEST_F(SharedFiles, OfOneResultAreRefused) {
    expectRefused({"x.dat", "x.txt"});
    expectRefused({"x.dat", "x.dat"});
    expectRefused({"x.dat", "./x.txt"});
    expectRefused({"y.dat", "x.dat", folder.file("x.txt")});
}

TEST_F(SharedFiles, ThatAreTheDetailOfAnotherAreRefused) {
    expectRefused({"x.dat", "x.det"});
    expectRefused({"x.dat", "./x.det"});
    expectRefused({"x.det", "x.dat"});
}

TEST_F(SharedFiles, BehindLinksAreRefused) {
    std::filesystem::create_symlink("x.dat", folder.file("y.out"));
    expectRefused({"y.dat", "x.dat"});
    std::filesystem::remove(folder.file("y.out"));
    std::filesystem::create_hard_link(folder.file("x.dat"), folder.file("y.det"));
    expectRefused({"x.dat", "y.dat"});
    std::filesystem::remove(folder.file("y.det"));
    std::filesystem::create_directory_symlink(".", folder.file("here"));
    expectRefused({"x.dat", "here/x.txt"});
}

TEST_F(SharedFiles, ThatTheDetailOfTheLastRunWouldTakeAreRefused) {
    expectRefused({"kelvo.dat", "y.dat"});
    std::filesystem::create_symlink("x.dat", folder.file("kelvo.det"));
    expectRefused({"x.dat", "y.dat"});
    std::filesystem::remove(folder.file("kelvo.det"));
    std::filesystem::create_symlink("kelvo.cor", folder.file("kelvo.det"));
    expectRefused({"x.dat", "y.dat"});
}

TEST_F(SharedFiles, ThatOnlyLookAlikeAreNot) {
    EXPECT_EQ(run({"x.dat", "y.dat"}).exitCode, 0);
    EXPECT_EQ(run({"x.dat", "kelvo.dat"}).exitCode, 0);
    folder.put("X.txt", kWgs);
    EXPECT_EQ(run({"x.dat", "X.txt"}).exitCode, 0) << "case tells names apart here";
    EXPECT_FALSE(folder.bytes("X.out").empty());
}

}  // namespace
}  // namespace kelvo
