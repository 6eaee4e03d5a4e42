#include "convert/whole_output.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <random>
#include <system_error>
#include <utility>

#include "common/file_faults.h"
#include "common/file_links.h"

namespace kelvo {

namespace {

namespace fs = std::filesystem;

constexpr mode_t kPermissionsOfNewFile = 0666;  // less what the user masks
constexpr mode_t kPermissionBits = 07777;

// An open file that is closed in the end.
class Descriptor {
public:
    explicit Descriptor(int number) : number_(number) {}
    Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
    Descriptor& operator=(Descriptor&& other) noexcept {
        std::swap(number_, other.number_);
        return *this;
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor() {
        if (number_ >= 0) ::close(number_);
    }

    [[nodiscard]] int number() const { return number_; }
    [[nodiscard]] bool isOpen() const { return number_ >= 0; }

private:
    int number_;
};

// 0, or the error.
int writeAll(int descriptor, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t count = ::write(descriptor, bytes.data(), bytes.size());
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) return errno;
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
    return 0;
}

std::string folderOf(const std::string& path) {
    const std::string folder = fs::path(path).parent_path().string();
    return folder.empty() ? "." : folder;
}

// A name in the folder that no other program, and no other copy of this one, is using.
std::string freshName(const std::string& folder) {
    std::random_device random;
    std::array<char, 40> name{};
    std::snprintf(name.data(), name.size(), "/kelvo.%08x%08x.new", random(), random());
    return folder + name.data();
}

class WholeFile final : public ByteWriter {
public:
    WholeFile(std::string path, std::string target)
        : path_(std::move(path)), target_(std::move(target)), file_(openUnnamed()) {
        struct stat old {};
        if (::stat(target_.c_str(), &old) != 0) return;
        // Where the owner can't be kept, the new file is the user's own, as with any copy.
        if (::fchown(file_.number(), old.st_uid, old.st_gid) != 0 &&
            ::fchown(file_.number(), static_cast<uid_t>(-1), old.st_gid) != 0)
            errno = 0;
        if (::fchmod(file_.number(), old.st_mode & kPermissionBits) != 0)
            raiseError(errno, target_, path_);
    }
    ~WholeFile() override { forget(); }
    WholeFile(const WholeFile&) = delete;
    WholeFile& operator=(const WholeFile&) = delete;

    void write(std::string_view bytes) override {
        if (const int error = writeAll(file_.number(), bytes); error != 0) fail(error);
    }

    // The bytes are on the medium before the name is, so that a power cut leaves one of the two.
    void close() override {
        if (::fsync(file_.number()) != 0 && errno != EINVAL && errno != EROFS) fail(errno);
        if (name_.empty()) giveName();
        if (std::rename(name_.c_str(), target_.c_str()) != 0) fail(errno);
        name_.clear();
        file_ = Descriptor(-1);
        const Descriptor folder(::open(folderOf(target_).c_str(), O_RDONLY | O_DIRECTORY));
        if (folder.isOpen()) ::fsync(folder.number());
    }

private:
    [[noreturn]] void fail(int error) {
        forget();
        raiseError(error, target_, path_);
    }

    void forget() {
        if (!name_.empty()) ::unlink(name_.c_str());
        name_.clear();
    }

    Descriptor openUnnamed() {
        const std::string folder = folderOf(target_);
#ifdef O_TMPFILE
        Descriptor unnamed(
            ::open(folder.c_str(), O_TMPFILE | O_WRONLY | O_CLOEXEC, kPermissionsOfNewFile));
        if (unnamed.isOpen() && ::access("/proc/self/fd", X_OK) == 0) return unnamed;
#endif
        std::string name = freshName(folder);
        Descriptor named(
            ::open(name.c_str(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, kPermissionsOfNewFile));
        if (!named.isOpen()) raiseError(errno, target_, path_);
        name_ = std::move(name);
        return named;
    }

    void giveName() {
        std::string name = freshName(folderOf(target_));
        const std::string open = "/proc/self/fd/" + std::to_string(file_.number());
        if (::linkat(AT_FDCWD, open.c_str(), AT_FDCWD, name.c_str(), AT_SYMLINK_FOLLOW) != 0)
            fail(errno);
        name_ = std::move(name);
    }

    std::string path_;    // as the user wrote it
    std::string target_;  // where its links lead
    std::string name_;    // of the new file, while it has one
    Descriptor file_;
};

// A device, a pipe, standard output: written as the bytes come.
class InPlace final : public ByteWriter {
public:
    InPlace(Descriptor file, std::string name) : file_(std::move(file)), name_(std::move(name)) {}

    void write(std::string_view bytes) override {
        const int error = writeAll(file_.number(), bytes);
        if (error == EPIPE) throw ClosedPipe();
        if (error != 0) raiseError(error, name_);
    }
    void close() override {}

private:
    Descriptor file_;
    std::string name_;
};

class FromDescriptor final : public ByteReader {
public:
    FromDescriptor(Descriptor file, std::string name)
        : file_(std::move(file)), name_(std::move(name)) {}

    std::size_t read(std::span<char> buffer) override {
        std::size_t total = 0;
        while (total < buffer.size()) {
            const ssize_t count =
                ::read(file_.number(), buffer.data() + total, buffer.size() - total);
            if (count < 0 && errno == EINTR) continue;
            if (count < 0) raiseError(errno, name_);
            if (count == 0) break;
            total += static_cast<std::size_t>(count);
        }
        return total;
    }

private:
    Descriptor file_;
    std::string name_;
};

Descriptor duplicate(int descriptor, const std::string& name) {
    Descriptor copy(::dup(descriptor));
    if (!copy.isOpen()) raiseError(errno, name);
    return copy;
}

}  // namespace

std::unique_ptr<ByteWriter> wholeFile(const std::string& path) {
    const std::string target = endOfLinks(path).string();
    struct stat old {};
    if (::stat(target.c_str(), &old) == 0) {
        if (S_ISDIR(old.st_mode)) raiseError(EISDIR, target, path);
        Descriptor there(::open(target.c_str(), O_WRONLY | O_CLOEXEC));
        if (!there.isOpen()) raiseError(errno, target, path);
        if (!S_ISREG(old.st_mode)) return std::make_unique<InPlace>(std::move(there), path);
    }
    return std::make_unique<WholeFile>(path, target);
}

std::unique_ptr<ByteWriter> standardOutput() {
    const std::string name = "standard output";
    return std::make_unique<InPlace>(duplicate(STDOUT_FILENO, name), name);
}

std::unique_ptr<ByteReader> standardInput() {
    const std::string name = "standard input";
    return std::make_unique<FromDescriptor>(duplicate(STDIN_FILENO, name), name);
}

}  // namespace kelvo
