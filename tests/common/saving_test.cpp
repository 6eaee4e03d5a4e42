// What a file keeps when its content is replaced.
#include <gtest/gtest.h>

#include <array>
#include <cerrno>
#include <optional>

#include "common/disk.h"
#include "common/file_calls.h"
#include "common/file_replacement.h"
#include "support/faults.h"
#include "support/temporary_folder.h"
#include "support/unprivileged.h"

#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace kelvo {
namespace {

namespace fs = std::filesystem;
using testing::asUnprivileged;
using testing::faultOf;
using testing::kNobody;
using testing::TemporaryFolder;

struct stat statusOf(const std::string& path) {
    struct stat status {};
    EXPECT_EQ(lstat(path.c_str(), &status), 0) << path;
    return status;
}

int filesIn(const std::string& folder) {
    return static_cast<int>(
        std::distance(fs::directory_iterator(folder), fs::directory_iterator()));
}

void writeAnew(Disk& disk, const std::string& path, std::string_view bytes) {
    const auto writer = disk.openForWriting(path);
    writer->write(bytes);
    writer->close();
}

// Both ways of putting new bytes into a file: a save, and a report of a run.
class Saving : public ::testing::TestWithParam<bool> {
protected:
    void save(const std::string& path, std::string_view bytes) {
        if (GetParam())
            disk.replace(path, bytes);
        else
            writeAnew(disk, path, bytes);
    }

    const TemporaryFolder folder;
    PlatformDisk disk;
};

TEST_P(Saving, KeepsOwnerAndGroup) {
    if (geteuid() != 0) GTEST_SKIP() << "only root may give files away";
    folder.put("a", "old");
    ASSERT_EQ(chown(folder.file("a").c_str(), 1234, 5678), 0);
    save(folder.file("a"), "new");
    EXPECT_EQ(folder.bytes("a"), "new");
    EXPECT_EQ(statusOf(folder.file("a")).st_uid, 1234U);
    EXPECT_EQ(statusOf(folder.file("a")).st_gid, 5678U);
}

TEST_P(Saving, KeepsTheMode) {
    for (const mode_t mode : {0600U, 0640U, 0664U, 0755U}) {
        folder.put("a", "old");
        ASSERT_EQ(chmod(folder.file("a").c_str(), mode), 0);
        save(folder.file("a"), "new");
        EXPECT_EQ(statusOf(folder.file("a")).st_mode & 07777U, mode);
    }
}

TEST(NewFile, IsForItsUserAloneUnlessItMayBeOpen) {
    const TemporaryFolder folder;
    SystemFileCalls calls;
    const mode_t usual = umask(022);
    for (const bool open : {false, true}) {
        const FileHandle file = calls.createNew(folder.file(open ? "open" : "private"), open);
        ASSERT_GE(file, 0);
        calls.close(file);
    }
    umask(usual);
    EXPECT_EQ(statusOf(folder.file("private")).st_mode & 07777U, 0600U);
    EXPECT_EQ(statusOf(folder.file("open")).st_mode & 07777U, 0644U);
}

// A folder without the file, in which every other name is taken.
struct EveryNameTaken final : FileCalls {
    using Path = std::filesystem::path;
    FileHandle createNew(const Path& /*path*/, bool /*open*/) override {
        return ++tried < 100 ? -EEXIST : -ENOSPC;  // or else one that never gives up has no end
    }
    FileHandle openThere(const Path& /*path*/) override { return -ENOENT; }
    int state(FileHandle /*file*/, FileState& /*state*/) override { return -EBADF; }
    int carryAttributes(FileHandle /*from*/, FileHandle /*to*/) override { return -EBADF; }
    int readAll(FileHandle /*file*/, std::string& /*bytes*/) override { return -EBADF; }
    int write(FileHandle /*file*/, std::string_view /*bytes*/) override { return -EBADF; }
    int writeAt(FileHandle /*file*/, std::uint64_t /*place*/, std::string_view /*bytes*/) override {
        return -EBADF;
    }
    int cut(FileHandle /*file*/, std::uint64_t /*size*/) override { return -EBADF; }
    int reserve(FileHandle /*file*/, std::uint64_t /*size*/) override { return -EBADF; }
    int settle(FileHandle /*file*/) override { return -EBADF; }
    int settleFolder(const Path& /*folder*/) override { return 0; }
    int close(FileHandle /*file*/) override { return -EBADF; }
    int rename(const Path& /*from*/, const Path& /*to*/) override { return -ENOENT; }
    int remove(const Path& /*path*/) override { return -ENOENT; }

    int tried = 0;
};

TEST(NewFile, IsGivenUpAfterEightNamesThatWereTaken) {
    EveryNameTaken calls;
    EXPECT_NE(testing::faultOf([&] { replaceFile(calls, "/a/b", "new"); }), 0);
    EXPECT_EQ(calls.tried, 8);
}

TEST(SystemFileCalls, ReadingAllTakesThePlaceOfWhatTheTextHeld) {
    const TemporaryFolder folder;
    folder.put("a", "content");
    SystemFileCalls calls;
    const FileHandle file = calls.openForReading(folder.file("a"));
    ASSERT_GE(file, 0);
    std::string bytes = "something longer than the content";
    EXPECT_EQ(calls.readAll(file, bytes), 0);
    EXPECT_EQ(bytes, "content");
    calls.close(file);
}

TEST(SystemFileCalls, RemovingAndReservingSayWhetherTheyCould) {
    const TemporaryFolder folder;
    folder.put("a", "content");
    SystemFileCalls calls;
    const FileHandle file = calls.openThere(folder.file("a"));
    ASSERT_GE(file, 0);
    EXPECT_EQ(calls.reserve(file, 0), 0);
    EXPECT_EQ(calls.reserve(file, 5000), 0);
    EXPECT_LT(calls.reserve(file, std::uint64_t{1} << 62), 0) << "no disk has so much";
    EXPECT_EQ(folder.bytes("a"), "content");
    calls.close(file);
    EXPECT_EQ(calls.remove(folder.file("a")), 0);
    EXPECT_EQ(calls.remove(folder.file("a")), -ENOENT);
}

TEST(SystemFileCalls, CarryingAttributesBringsAllOfThemAndLeavesNoOther) {
    const TemporaryFolder folder;
    const std::string a = folder.file("a");
    const std::string b = folder.file("b");
    folder.put("a", "a");
    folder.put("b", "b");
    ASSERT_EQ(chmod(a.c_str(), 0640), 0);
    const bool kept = setxattr(a.c_str(), "user.kelvo", "note", 4, 0) == 0;
    if (kept) {
        ASSERT_EQ(setxattr(a.c_str(), "user.second", "more", 4, 0), 0);
        ASSERT_EQ(setxattr(b.c_str(), "user.other", "own", 3, 0), 0);
    }
    SystemFileCalls calls;
    const FileHandle from = calls.openThere(folder.file("a"));
    const FileHandle to = calls.openThere(folder.file("b"));
    EXPECT_EQ(calls.carryAttributes(from, to), 0);
    EXPECT_EQ(calls.carryAttributes(-1, to), -EBADF);
    calls.close(from);
    calls.close(to);
    EXPECT_EQ(statusOf(b).st_mode & 07777U, 0640U);
    if (!kept) return;
    std::array<char, 16> value{};
    for (const auto& [name, held] :
         {std::pair{"user.kelvo", "note"}, std::pair{"user.second", "more"}}) {
        EXPECT_EQ(getxattr(b.c_str(), name, value.data(), value.size()), 4) << name;
        EXPECT_STREQ(value.data(), held);
    }
    EXPECT_EQ(getxattr(b.c_str(), "user.other", value.data(), value.size()), -1);
}

TEST(SystemFileCalls, ALeftoverIsAFileOfThisUserThatNobodyHolds) {
    const TemporaryFolder folder;
    folder.put("file", "");
    fs::create_directory(folder.file("folder"));
    fs::create_symlink(folder.file("file"), folder.file("link"));
    SystemFileCalls calls;
    EXPECT_TRUE(calls.isLeftover(folder.file("file")));
    for (const char* const other : {"folder", "link", "missing"})
        EXPECT_FALSE(calls.isLeftover(folder.file(other))) << other;
    if (geteuid() != 0) return;
    ASSERT_EQ(chown(folder.file("file").c_str(), 1234, 5678), 0);
    EXPECT_FALSE(calls.isLeftover(folder.file("file")));
}

TEST_P(Saving, KeepsHardLinks) {
    folder.put("a", "old and longer");
    fs::create_hard_link(folder.file("a"), folder.file("b"));
    save(folder.file("a"), "new");
    EXPECT_EQ(folder.bytes("b"), "new");
    EXPECT_EQ(statusOf(folder.file("b")).st_nlink, 2U);
    EXPECT_EQ(filesIn(folder.path()), 2);
}

TEST_P(Saving, KeepsExtendedAttributes) {
    folder.put("a", "old");
    if (setxattr(folder.file("a").c_str(), "user.kelvo", "note", 4, 0) != 0)
        GTEST_SKIP() << "no extended attributes here";
    ASSERT_EQ(setxattr(folder.file("a").c_str(), "user.second", "more", 4, 0), 0);
    save(folder.file("a"), "new");
    EXPECT_EQ(folder.bytes("a"), "new");
    for (const auto& [name, held] :
         {std::pair{"user.kelvo", "note"}, std::pair{"user.second", "more"}}) {
        std::array<char, 16> value{};
        EXPECT_EQ(getxattr(folder.file("a").c_str(), name, value.data(), value.size()), 4);
        EXPECT_STREQ(value.data(), held);
    }
}

// u::rw- u:1234:rw- g::r-- m::rw- o::--- as the system stores it.
const std::string kAccessList(
    "\x02\x00\x00\x00"
    "\x01\x00\x06\x00\xff\xff\xff\xff"
    "\x02\x00\x06\x00\xd2\x04\x00\x00"
    "\x04\x00\x04\x00\xff\xff\xff\xff"
    "\x10\x00\x06\x00\xff\xff\xff\xff"
    "\x20\x00\x00\x00\xff\xff\xff\xff",
    44);

TEST_P(Saving, KeepsTheAccessList) {
    folder.put("a", "old");
    if (setxattr(folder.file("a").c_str(), "system.posix_acl_access", kAccessList.data(),
                 kAccessList.size(), 0) != 0)
        GTEST_SKIP() << "no access lists here";
    save(folder.file("a"), "new");
    std::array<char, 64> value{};
    const ssize_t size =
        getxattr(folder.file("a").c_str(), "system.posix_acl_access", value.data(), value.size());
    ASSERT_GT(size, 0);
    EXPECT_EQ(std::string(value.data(), static_cast<std::size_t>(size)), kAccessList);
}

TEST_P(Saving, GivesNoAccessListThatTheFileDidNotHave) {
    folder.put("a", "old");
    if (setxattr(folder.path().c_str(), "system.posix_acl_default", kAccessList.data(),
                 kAccessList.size(), 0) != 0)
        GTEST_SKIP() << "no access lists here";
    save(folder.file("a"), "new");
    EXPECT_EQ(folder.bytes("a"), "new");
    EXPECT_LT(getxattr(folder.file("a").c_str(), "system.posix_acl_access", nullptr, 0), 0);
}

TEST_P(Saving, WritesAWritableFileInAFolderThatMayNotBeWritten) {
    folder.put("a", "old and longer");
    ASSERT_EQ(chmod(folder.file("a").c_str(), 0666), 0);
    ASSERT_EQ(chmod(folder.path().c_str(), 0555), 0);
    EXPECT_TRUE(asUnprivileged([&] {
        save(folder.file("a"), "new");
        return true;
    }));
    EXPECT_EQ(folder.bytes("a"), "new");
    ASSERT_EQ(chmod(folder.path().c_str(), 0755), 0);
    EXPECT_EQ(filesIn(folder.path()), 1);
}

TEST_P(Saving, KeepsTheOwnerOfAFileThatBelongsToAnother) {
    if (geteuid() != 0) GTEST_SKIP() << "only root may give files away";
    folder.put("a", "old and longer");
    ASSERT_EQ(chmod(folder.file("a").c_str(), 0666), 0);
    ASSERT_EQ(chmod(folder.path().c_str(), 0777), 0);
    EXPECT_TRUE(asUnprivileged([&] {
        save(folder.file("a"), "new");
        return true;
    }));
    EXPECT_EQ(folder.bytes("a"), "new");
    EXPECT_EQ(statusOf(folder.file("a")).st_uid, 0U);
    EXPECT_EQ(filesIn(folder.path()), 1);
}

TEST_P(Saving, WritesAFileOfAnotherInAFolderWhereOnlyOwnersMayRename) {
    if (geteuid() != 0) GTEST_SKIP() << "only root may give files away";
    folder.put("a", "old and longer");
    ASSERT_EQ(chmod(folder.file("a").c_str(), 0666), 0);
    ASSERT_EQ(chmod(folder.path().c_str(), 01777), 0);
    EXPECT_TRUE(asUnprivileged([&] {
        save(folder.file("a"), "new");
        return true;
    }));
    EXPECT_EQ(folder.bytes("a"), "new");
    EXPECT_EQ(filesIn(folder.path()), 1);
}

TEST_P(Saving, AFileThatMayNotBeWrittenIsRefused) {
    folder.put("a", "old");
    ASSERT_EQ(chmod(folder.file("a").c_str(), 0444), 0);
    ASSERT_EQ(chmod(folder.path().c_str(), 0777), 0);
    EXPECT_TRUE(
        asUnprivileged([&] { return faultOf([&] { save(folder.file("a"), "new"); }) == 70; }));
    EXPECT_EQ(folder.bytes("a"), "old");
    EXPECT_EQ(filesIn(folder.path()), 1);
}

TEST_P(Saving, ANewFileInAFolderThatMayNotBeWrittenIsRefused) {
    ASSERT_EQ(chmod(folder.path().c_str(), 0555), 0);
    EXPECT_TRUE(
        asUnprivileged([&] { return faultOf([&] { save(folder.file("a"), "new"); }) == 70; }));
}

TEST_P(Saving, ANewFileTakesTheUsualMode) {
    const mode_t before = umask(027);
    save(folder.file("a"), "new");
    umask(before);
    EXPECT_EQ(statusOf(folder.file("a")).st_mode & 07777U, 0640U);
}

TEST_P(Saving, FollowsALinkAlsoWhereNothingIsYet) {
    fs::create_symlink("real", folder.file("link"));
    save(folder.file("link"), "new");
    EXPECT_TRUE(fs::is_symlink(folder.file("link")));
    EXPECT_EQ(folder.bytes("real"), "new");
    save(folder.file("link"), "newer");
    EXPECT_EQ(folder.bytes("real"), "newer");
    EXPECT_EQ(filesIn(folder.path()), 2);
}

INSTANTIATE_TEST_SUITE_P(BothWays, Saving, ::testing::Bool(),
                         [](const auto& way) { return way.param ? "Save" : "Report"; });

TEST(Report, StandsApartUntilItIsClosed) {
    const TemporaryFolder folder;
    PlatformDisk disk;
    folder.put("a", "the report before");
    const auto writer = disk.openForWriting(folder.file("a"));
    writer->write("half a ");
    EXPECT_EQ(folder.bytes("a"), "the report before");
    writer->write("report");
    writer->close();
    EXPECT_EQ(folder.bytes("a"), "half a report");
    EXPECT_EQ(filesIn(folder.path()), 1);
}

TEST(Report, ThatIsNeverClosedLeavesTheOneBefore) {
    const TemporaryFolder folder;
    PlatformDisk disk;
    folder.put("a", "the report before");
    disk.openForWriting(folder.file("a"))->write("half a ");
    EXPECT_EQ(folder.bytes("a"), "the report before");
    EXPECT_EQ(filesIn(folder.path()), 1);
}

}  // namespace
}  // namespace kelvo
