// Several data files in one call of the built kelvo-batch.
#include <gtest/gtest.h>

#include <filesystem>
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

}  // namespace
}  // namespace kelvo
