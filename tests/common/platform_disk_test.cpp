#include <gtest/gtest.h>

#include <array>

#include "common/disk.h"
#include "support/faults.h"
#include "support/temporary_folder.h"

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
}

TEST(PlatformDisk, AFileThatMayNotBeWrittenIsRefusedAlsoForReplacing) {
    if (geteuid() == 0) GTEST_SKIP() << "root may write everything";
    const TemporaryFolder folder;
    PlatformDisk disk;
    folder.put("a", "old");
    fs::permissions(folder.file("a"), fs::perms::owner_read);
    for (const int fault : {faultOf([&] { disk.openForWriting(folder.file("a")); }),
                            faultOf([&] { disk.replace(folder.file("a"), "new"); })}) {
        EXPECT_TRUE(fault == 70 || fault == 75) << fault;
    }
    EXPECT_EQ(folder.bytes("a"), "old");
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

}  // namespace
}  // namespace kelvo
