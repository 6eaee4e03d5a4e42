#include <gtest/gtest.h>

#include <array>

#include "common/disk.h"
#include "support/faults.h"
#include "support/temporary_folder.h"

#include <sys/stat.h>

namespace kelvo {
namespace {

namespace fs = std::filesystem;
using testing::faultOf;
using testing::TemporaryFolder;

void put(Disk& disk, const std::string& path, std::string_view bytes) {
    const auto writer = disk.openForWriting(path);
    writer->write(bytes);
    writer->close();
}

TEST(PlatformDisk, WritesReplacesAppendsAndReads) {
    const TemporaryFolder folder;
    PlatformDisk disk;
    const std::string path = folder.file("가.dat");
    put(disk, path, "something long");
    put(disk, path, "short");
    const auto appender = disk.openForAppending(path);
    appender->write(" and more");
    appender->close();
    const auto reader = disk.openForReading(path);
    std::array<char, 64> buffer{};
    const std::size_t count = reader->read(buffer);
    EXPECT_EQ(std::string(buffer.data(), count), "short and more");
    EXPECT_EQ(reader->read(buffer), 0U);
}

TEST(PlatformDisk, NumbersItsFaults) {
    const TemporaryFolder folder;
    PlatformDisk disk;
    EXPECT_EQ(faultOf([&] { disk.openForReading(folder.file("none")); }), 53);
    EXPECT_EQ(faultOf([&] { disk.openForReading(folder.file("no/none")); }), 76);
    EXPECT_EQ(faultOf([&] { disk.openForWriting(folder.file("no/none")); }), 76);
    EXPECT_EQ(faultOf([&] { disk.openForReading(folder.path()); }), 75);
    EXPECT_EQ(faultOf([&] { disk.openForWriting(folder.path()); }), 75);
    EXPECT_EQ(faultOf([&] { disk.replace(folder.file("no/none"), "x"); }), 76);
}

TEST(PlatformDisk, AFullDiskIsFault61) {
    if (!fs::exists("/dev/full")) GTEST_SKIP() << "no /dev/full here";
    PlatformDisk disk;
    EXPECT_EQ(faultOf([&] {
                  const auto writer = disk.openForWriting("/dev/full");
                  writer->write("x");
                  writer->close();
              }),
              61);
    EXPECT_EQ(faultOf([&] { disk.openForAppending("/dev/full")->write("x"); }), 61);
}

TEST(PlatformDisk, ReplacingFollowsALinkAndLeavesNothingBeside) {
    const TemporaryFolder folder;
    PlatformDisk disk;
    folder.put("real", "old");
    fs::create_symlink(folder.file("real"), folder.file("link"));
    disk.replace(folder.file("link"), "new");
    EXPECT_TRUE(fs::is_symlink(folder.file("link")));
    EXPECT_EQ(folder.bytes("real"), "new");
    int files = 0;
    for ([[maybe_unused]] const auto& entry : fs::directory_iterator(folder.path())) ++files;
    EXPECT_EQ(files, 2);
}

TEST(PlatformDisk, KnowsOneFileUnderTwoNames) {
    const TemporaryFolder folder;
    PlatformDisk disk;
    folder.put("a", "x");
    folder.put("b", "x");
    fs::create_symlink(folder.file("a"), folder.file("c"));
    EXPECT_TRUE(disk.sameFile(folder.file("a"), folder.file("c")));
    EXPECT_FALSE(disk.sameFile(folder.file("a"), folder.file("b")));
    EXPECT_FALSE(disk.sameFile(folder.file("none"), folder.file("none")));
}

TEST(PlatformDisk, KnowsOnePlaceAlsoWhereNothingIsYet) {
    const TemporaryFolder folder;
    PlatformDisk disk;
    folder.put("a", "x");
    fs::create_symlink("b", folder.file("to b"));
    fs::create_directory_symlink(folder.path(), folder.file("here"));
    EXPECT_EQ(disk.placeOf(folder.file("a")), disk.placeOf(folder.file("here/./a")));
    EXPECT_EQ(disk.placeOf(folder.file("b")), disk.placeOf(folder.file("here/b")));
    EXPECT_EQ(disk.placeOf(folder.file("b")), disk.placeOf(folder.file("to b")));
    EXPECT_NE(disk.placeOf(folder.file("a")), disk.placeOf(folder.file("b")));
    EXPECT_NE(disk.placeOf(folder.file("b")), disk.placeOf(folder.file("B")));
    EXPECT_NE(disk.placeOf(folder.file("b")), disk.placeOf(folder.file("none/b")));
}

TEST(PlatformDisk, RenamesOverWhatHadTheName) {
    const TemporaryFolder folder;
    PlatformDisk disk;
    folder.put("a", "new");
    folder.put("b", "old");
    disk.rename(folder.file("a"), folder.file("b"));
    EXPECT_EQ(folder.bytes("b"), "new");
    EXPECT_FALSE(fs::exists(folder.file("a")));
    EXPECT_EQ(faultOf([&] { disk.rename(folder.file("a"), folder.file("b")); }), 53);
}

TEST(PlatformDisk, ANameWithANulIsNoFile) {
    const TemporaryFolder folder;
    PlatformDisk disk;
    folder.put("a", "x");
    const std::string name = folder.file("a") + std::string(1, '\0') + "b";
    EXPECT_EQ(faultOf([&] { disk.openForReading(name); }), 53);
    EXPECT_EQ(faultOf([&] { disk.replace(name, "y"); }), 53);
    EXPECT_EQ(folder.bytes("a"), "x");
}

TEST(PlatformDisk, APipeThatNobodyFeedsIsRefusedAtOnce) {
    const TemporaryFolder folder;
    PlatformDisk disk;
    ASSERT_EQ(mkfifo(folder.file("pipe").c_str(), 0600), 0);
    EXPECT_EQ(faultOf([&] { disk.openForReading(folder.file("pipe")); }), 75);
    EXPECT_EQ(faultOf([&] { disk.openForWriting(folder.file("pipe")); }), 71);
    EXPECT_EQ(faultOf([&] { disk.openForAppending(folder.file("pipe")); }), 71);
    EXPECT_EQ(faultOf([&] { disk.replace(folder.file("pipe"), "x"); }), 71);
}

TEST(PlatformDisk, TidyingTakesAwayWhatAKilledSaveLeft) {
    const TemporaryFolder folder;
    PlatformDisk disk;
    folder.put("kelvo.0123456789abcdef.new", "half");
    folder.put("kelvo.0123456789abcdeg.new", "another's");
    folder.put("my.new", "mine");
    disk.tidy(folder.path());
    EXPECT_FALSE(fs::exists(folder.file("kelvo.0123456789abcdef.new")));
    EXPECT_TRUE(fs::exists(folder.file("kelvo.0123456789abcdeg.new")));
    EXPECT_TRUE(fs::exists(folder.file("my.new")));
}

TEST(PlatformDisk, TidyingLeavesWhatAProgramStillWrites) {
    const TemporaryFolder folder;
    PlatformDisk disk;
    const auto report = disk.openForWriting(folder.file("a.out"));
    report->write("half");
    disk.tidy(folder.path());
    report->close();
    EXPECT_EQ(folder.bytes("a.out"), "half");
}

TEST(PlatformDisk, OnlyOneHasItsTurnAtAFolder) {
    const TemporaryFolder folder;
    PlatformDisk disk;
    auto turn = disk.takeTurn(folder.path());
    EXPECT_NE(turn, nullptr);
    EXPECT_EQ(disk.takeTurn(folder.path()), nullptr);
    turn.reset();
    EXPECT_NE(disk.takeTurn(folder.path()), nullptr);
    EXPECT_EQ(disk.takeTurn(folder.file("none")), nullptr);
    EXPECT_EQ(std::distance(fs::directory_iterator(folder.path()), fs::directory_iterator()), 0);
}

}  // namespace
}  // namespace kelvo
