// Files that take their place as a whole, on a real disk.
#include "convert/whole_output.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <filesystem>
#include <string>
#include <thread>

#include "common/run_time_fault.h"
#include "convert/file_identity.h"
#include "support/faults.h"
#include "support/temporary_folder.h"

namespace kelvo {
namespace {

namespace fs = std::filesystem;

class WholeOutput : public ::testing::Test {
protected:
    void TearDown() override { EXPECT_NE(::fcntl(STDOUT_FILENO, F_GETFD), -1) << "not theirs"; }
    [[nodiscard]] std::size_t filesThere() const {
        return static_cast<std::size_t>(
            std::distance(fs::directory_iterator(folder.path()), fs::directory_iterator()));
    }
    // The fault of opening, 0 for none.
    static int faultOfOpening(const std::string& path) {
        return testing::faultOf([&] { return wholeFile(path); });
    }
    static fs::perms permissions(const std::string& path) { return fs::status(path).permissions(); }

    testing::TemporaryFolder folder;
};

TEST_F(WholeOutput, TakesItsPlaceWhenItIsClosedAndNotBefore) {
    folder.put("a", "old");
    const auto file = wholeFile(folder.file("a"));
    file->write("ne");
    file->write("w");
    EXPECT_EQ(folder.bytes("a"), "old");
    file->close();
    EXPECT_EQ(folder.bytes("a"), "new");
    EXPECT_EQ(filesThere(), 1U);
}

// So that a killed program leaves nothing, where the file system knows files without a name.
TEST_F(WholeOutput, HasNoNameUntilItIsClosed) {
    const int unnamed = ::open(folder.path().c_str(), O_TMPFILE | O_WRONLY, 0600);
    if (unnamed < 0) GTEST_SKIP() << "no files without a name here";
    ::close(unnamed);
    const auto file = wholeFile(folder.file("a"));
    file->write("new");
    EXPECT_EQ(filesThere(), 0U);
    file->close();
    EXPECT_EQ(filesThere(), 1U);
}

TEST_F(WholeOutput, ThatIsNeverClosedLeavesTheOldFileAndNothingElse) {
    folder.put("a", "old");
    wholeFile(folder.file("a"))->write("new");
    EXPECT_EQ(folder.bytes("a"), "old");
    EXPECT_EQ(filesThere(), 1U);
    wholeFile(folder.file("b"))->write("new");
    EXPECT_EQ(filesThere(), 1U);
}

TEST_F(WholeOutput, KeepsEveryPermissionOfTheOldFile) {
    folder.put("a", "old");
    for (const unsigned bits : {0640U, 0604U, 0755U, 02750U, 04711U}) {
        fs::permissions(folder.file("a"), static_cast<fs::perms>(bits));
        wholeFile(folder.file("a"))->close();
        EXPECT_EQ(permissions(folder.file("a")), static_cast<fs::perms>(bits)) << bits;
    }
}

TEST_F(WholeOutput, ANewFileHasThePermissionsOfAnyOther) {
    const mode_t mask = ::umask(0);
    wholeFile(folder.file("a"))->close();
    ::umask(mask);
    EXPECT_EQ(permissions(folder.file("a")), static_cast<fs::perms>(0666));
}

TEST_F(WholeOutput, ALinkIsFollowedEvenToWhatIsNotThereYet) {
    fs::create_symlink("target", folder.file("link"));
    const auto file = wholeFile(folder.file("link"));
    file->write("new");
    file->close();
    EXPECT_TRUE(fs::is_symlink(folder.file("link")));
    EXPECT_EQ(folder.bytes("target"), "new");
}

TEST_F(WholeOutput, WhatCannotBeWrittenIsAFaultAtOnce) {
    EXPECT_NE(faultOfOpening(folder.path()), 0);
    EXPECT_NE(faultOfOpening(folder.file("gone/a")), 0);
    EXPECT_NE(faultOfOpening(folder.file("gone") + "/"), 0);
    EXPECT_EQ(faultOfOpening(folder.file("a")), 0);
    EXPECT_EQ(filesThere(), 0U);
}

TEST_F(WholeOutput, AFolderThatGoesBeforeTheEndIsAFault) {
    fs::create_directory(folder.file("sub"));
    const auto file = wholeFile(folder.file("sub/a"));
    file->write("new");
    fs::remove_all(folder.file("sub"));
    EXPECT_THROW(file->close(), RuntimeFault);
}

TEST_F(WholeOutput, ADirectoryInItsPlaceAtTheEndIsAFaultThatLeavesNothing) {
    const auto file = wholeFile(folder.file("a"));
    file->write("new");
    fs::create_directory(folder.file("a"));
    EXPECT_THROW(file->close(), RuntimeFault);
    EXPECT_EQ(filesThere(), 1U);
}

TEST_F(WholeOutput, APipeIsWrittenInPlaceAsTheBytesCome) {
    const std::string path = folder.file("pipe");
    ASSERT_EQ(::mkfifo(path.c_str(), 0600), 0);
    std::string read;
    std::thread reader([&] { read = testing::TemporaryFolder::readBytes(path); });
    {
        const auto pipe = wholeFile(path);
        pipe->write("a");
        pipe->write("bc");
        pipe->close();
    }
    reader.join();
    EXPECT_EQ(read, "abc");
    EXPECT_TRUE(fs::is_fifo(path));
}

TEST_F(WholeOutput, ADeviceThatIsFullIsAFault) {
    const auto full = wholeFile("/dev/full");
    EXPECT_THROW(full->write("a"), RuntimeFault);
}

TEST_F(WholeOutput, AFileIsKnownByWhatItIsAndNotByItsName) {
    folder.put("a", "four");
    folder.put("b", "four");
    fs::create_hard_link(folder.file("a"), folder.file("hard"));
    fs::create_symlink("a", folder.file("soft"));
    const auto a = identityOfFile(folder.file("a"));
    ASSERT_TRUE(a);
    EXPECT_EQ(a->size, 4U);
    EXPECT_TRUE(a->isSameFile(*identityOfFile(folder.file("hard"))));
    EXPECT_TRUE(a->isSameFile(*identityOfFile(folder.file("soft"))));
    EXPECT_FALSE(a->isSameFile(*identityOfFile(folder.file("b"))));
    EXPECT_FALSE((FileIdentity{.device = 1, .number = 2, .size = 3})
                     .isSameFile({.device = 2, .number = 2, .size = 3}));
    EXPECT_FALSE(identityOfFile(folder.file("gone")));
    EXPECT_FALSE(identityOfFile(folder.path()));
    EXPECT_FALSE(identityOfFile("/dev/null"));
    EXPECT_FALSE(identityOfStream(-1));
}

// Neither too few nor too many: standard output isn't theirs.
TEST_F(WholeOutput, ClosesItsOwnDescriptorsOnly) {
    const auto open = [] {
        std::string numbers;
        for (int number = 0; number < 256; ++number)
            if (::fcntl(number, F_GETFD) != -1) numbers += std::to_string(number) + " ";
        return numbers;
    };
    const std::string before = open();
    {
        const auto file = wholeFile(folder.file("a"));
        file->write("new");
        file->close();
        EXPECT_EQ(open(), before);
        wholeFile(folder.file("b"))->write("given up");
        wholeFile("/dev/null")->write("device");
        const auto in = standardInput();
        standardOutput()->close();
        EXPECT_NE(open(), before);
    }
    EXPECT_EQ(open(), before);
}

// Standard input for as long as this lives.
class InputFrom {
public:
    explicit InputFrom(int descriptor) : kept_(::dup(STDIN_FILENO)) {
        ::dup2(descriptor, STDIN_FILENO);
        ::close(descriptor);
    }
    ~InputFrom() {
        ::dup2(kept_, STDIN_FILENO);
        ::close(kept_);
    }
    InputFrom(const InputFrom&) = delete;
    InputFrom& operator=(const InputFrom&) = delete;

private:
    int kept_;
};

TEST_F(WholeOutput, StandardInputIsReadToItsEnd) {
    std::array<int, 2> ends{};
    ASSERT_EQ(::pipe(ends.data()), 0);
    const InputFrom input(ends[0]);
    const auto reader = standardInput();
    std::thread writer([&] {
        for (const char letter : {'a', 'b', 'c', 'd', 'e'}) {
            EXPECT_EQ(::write(ends[1], &letter, 1), 1);
            std::this_thread::yield();
        }
        ::close(ends[1]);
    });
    std::array<char, 3> three{};
    EXPECT_EQ(reader->read(three), 3U);
    EXPECT_EQ(std::string(three.data(), 3), "abc");
    EXPECT_EQ(reader->read(three), 2U);
    EXPECT_EQ(std::string(three.data(), 2), "de");
    EXPECT_EQ(reader->read(three), 0U);
    writer.join();
}

TEST_F(WholeOutput, AFolderAsStandardInputIsAFaultThatNamesIt) {
    const InputFrom input(::open(folder.path().c_str(), O_RDONLY));
    const auto reader = standardInput();
    std::array<char, 3> three{};
    try {
        std::ignore = reader->read(three);
        FAIL();
    } catch (const RuntimeFault& fault) {
        EXPECT_NE(fault.text().find("standard input"), std::string::npos) << fault.text();
    }
}

TEST_F(WholeOutput, DescriptorZeroIsClosedLikeAnyOther) {
    const int kept = ::dup(STDIN_FILENO);
    ::close(STDIN_FILENO);
    wholeFile(folder.file("a"))->write("new");  // the lowest number that is free
    const bool isClosed = ::fcntl(STDIN_FILENO, F_GETFD) == -1;
    ::dup2(kept, STDIN_FILENO);
    ::close(kept);
    EXPECT_TRUE(isClosed);
}

}  // namespace
}  // namespace kelvo
