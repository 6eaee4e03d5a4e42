#include <cerrno>
#include <memory>
#include <string>
#include <vector>

#include "common/file_calls.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace kelvo {

namespace fs = std::filesystem;

namespace {

// A call that a signal interrupted is made again.
template <class Call>
auto repeated(const Call& call) {
    auto result = call();
    while (result < 0 && errno == EINTR) result = call();
    return result;
}

template <class Call>
int resultOf(const Call& call) {
    const auto result = repeated(call);
    return result < 0 ? -errno : static_cast<int>(result);
}

// Something that may keep its reader waiting without end.
bool waits(const struct stat& status, FileHandle file) {
    return S_ISFIFO(status.st_mode) || S_ISSOCK(status.st_mode) ||
           (S_ISCHR(status.st_mode) && isatty(file) != 0);
}

// Opens without waiting for the other end of a pipe; afterwards the file waits as files do.
FileHandle openAtOnce(const fs::path& path, int flags) {
    const FileHandle file = resultOf([&] { return open(path.c_str(), flags | O_NONBLOCK, 0666); });
    if (file < 0) return file;
    fcntl(file, F_SETFL, fcntl(file, F_GETFL) & ~O_NONBLOCK);
    return file;
}

using Names = std::vector<std::string>;

// The names of a file's attributes; none where the disk has none.
int attributeNames(FileHandle file, Names& names) {
    std::string buffer;
    while (true) {
        const ssize_t size = flistxattr(file, nullptr, 0);
        if (size < 0) return errno == ENOTSUP ? 0 : -errno;
        buffer.resize(static_cast<std::size_t>(size));
        const ssize_t filled = flistxattr(file, buffer.data(), buffer.size());
        if (filled < 0 && errno == ERANGE) continue;
        if (filled < 0) return -errno;
        buffer.resize(static_cast<std::size_t>(filled));
        break;
    }
    for (std::size_t at = 0; at < buffer.size(); at = buffer.find('\0', at) + 1)
        names.emplace_back(buffer.c_str() + at);
    return 0;
}

bool attributeOf(FileHandle file, const std::string& name, std::string& value) {
    const ssize_t size = fgetxattr(file, name.c_str(), nullptr, 0);
    if (size < 0) return false;
    value.resize(static_cast<std::size_t>(size));
    const ssize_t filled = fgetxattr(file, name.c_str(), value.data(), value.size());
    return filled == size;
}

int carryExtendedAttributes(FileHandle from, FileHandle to) {
    Names wanted;
    Names there;
    for (const auto& [file, names] : {std::pair(from, &wanted), std::pair(to, &there)}) {
        if (const int error = attributeNames(file, *names); error < 0) return error;
    }
    std::string value;
    std::string already;
    for (const std::string& name : wanted) {
        if (!attributeOf(from, name, value)) return -EIO;
        if (attributeOf(to, name, already) && already == value) continue;
        if (fsetxattr(to, name.c_str(), value.data(), value.size(), 0) != 0) return -errno;
    }
    // The folder may hand down an access list that the old file doesn't have.
    for (const std::string& name : there) {
        if (!attributeOf(from, name, value) && fremovexattr(to, name.c_str()) != 0) return -errno;
    }
    return 0;
}

}  // namespace

FileHandle SystemFileCalls::createNew(const fs::path& path, bool open) {
    const mode_t mode = open ? 0666 : 0600;
    const FileHandle file = resultOf([&] {
        return ::open(path.c_str(), O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, mode);
    });
    if (file < 0) return file;
    // Whoever tidies up takes only what isn't locked; what it took in this moment isn't ours.
    struct stat status {};
    const bool taken = flock(file, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
    if (taken || fstat(file, &status) != 0 || status.st_nlink == 0) {
        close(file);
        return -EEXIST;
    }
    return file;
}

FileHandle SystemFileCalls::openThere(const fs::path& path) {
    for (const int access : {O_RDWR, O_WRONLY}) {
        const int flags = access | O_NOCTTY | O_CLOEXEC;
        struct stat status {};
        const bool pipe = stat(path.c_str(), &status) == 0 && S_ISFIFO(status.st_mode);
        // For both ends at once a pipe would never be found without its other one.
        if (pipe && access == O_RDWR) continue;
        const FileHandle file = pipe && pipes_ == Pipes::Wait
                                    ? resultOf([&] { return open(path.c_str(), flags); })
                                    : openAtOnce(path, flags);
        if (file >= 0 || (file != -EACCES && file != -EPERM)) return file;
    }
    return -EACCES;
}

FileHandle SystemFileCalls::openForReading(const fs::path& path) {
    constexpr int flags = O_RDONLY | O_NOCTTY | O_CLOEXEC;
    const FileHandle file = pipes_ == Pipes::Wait
                                ? resultOf([&] { return open(path.c_str(), flags); })
                                : openAtOnce(path, flags);
    if (file < 0) return file;
    struct stat status {};
    int error = fstat(file, &status) != 0 ? -errno : 0;
    if (error == 0 && S_ISDIR(status.st_mode)) error = -EISDIR;
    if (error == 0 && pipes_ == Pipes::Refuse && waits(status, file)) error = -EINVAL;
    if (error == 0) return file;
    close(file);
    return error;
}

FileHandle SystemFileCalls::openForAppending(const fs::path& path) {
    constexpr int flags = O_WRONLY | O_CREAT | O_APPEND | O_NOCTTY | O_CLOEXEC;
    if (pipes_ == Pipes::Wait) return resultOf([&] { return open(path.c_str(), flags, 0666); });
    return openAtOnce(path, flags);
}

std::int64_t SystemFileCalls::read(FileHandle file, char* buffer, std::size_t size) {
    const ssize_t count = repeated([&] { return ::read(file, buffer, size); });
    return count < 0 ? -errno : count;
}

int SystemFileCalls::state(FileHandle file, FileState& state) {
    struct stat status {};
    if (fstat(file, &status) != 0) return -errno;
    state.regular = S_ISREG(status.st_mode);
    state.links = status.st_nlink;
    return S_ISDIR(status.st_mode) ? -EISDIR : 0;
}

int SystemFileCalls::carryAttributes(FileHandle from, FileHandle to) {
    struct stat wanted {};
    struct stat there {};
    if (fstat(from, &wanted) != 0 || fstat(to, &there) != 0) return -errno;
    if ((wanted.st_uid != there.st_uid || wanted.st_gid != there.st_gid) &&
        fchown(to, wanted.st_uid, wanted.st_gid) != 0)
        return -errno;
    if (const int error = carryExtendedAttributes(from, to); error < 0) return error;
    return fchmod(to, wanted.st_mode & 07777U) == 0 ? 0 : -errno;
}

int SystemFileCalls::readAll(FileHandle file, std::string& bytes) {
    bytes.clear();
    std::string buffer(65536, '\0');
    while (true) {
        const ssize_t count = repeated([&] {
            return pread(file, buffer.data(), buffer.size(), static_cast<off_t>(bytes.size()));
        });
        if (count < 0) return -errno;
        if (count == 0) return 0;
        bytes.append(buffer, 0, static_cast<std::size_t>(count));
    }
}

int SystemFileCalls::write(FileHandle file, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t count = repeated([&] { return ::write(file, bytes.data(), bytes.size()); });
        if (count < 0) return -errno;
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
    return 0;
}

int SystemFileCalls::writeAt(FileHandle file, std::uint64_t place, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t count = repeated(
            [&] { return pwrite(file, bytes.data(), bytes.size(), static_cast<off_t>(place)); });
        if (count < 0) return -errno;
        bytes.remove_prefix(static_cast<std::size_t>(count));
        place += static_cast<std::uint64_t>(count);
    }
    return 0;
}

int SystemFileCalls::cut(FileHandle file, std::uint64_t size) {
    return resultOf([&] { return ftruncate(file, static_cast<off_t>(size)); });
}

int SystemFileCalls::reserve(FileHandle file, std::uint64_t size) {
#ifdef FALLOC_FL_KEEP_SIZE
    if (size == 0) return 0;
    const int error =
        resultOf([&] { return fallocate(file, FALLOC_FL_KEEP_SIZE, 0, static_cast<off_t>(size)); });
    return error == -EOPNOTSUPP || error == -ENOSYS ? 0 : error;
#else
    return 0;
#endif
}

int SystemFileCalls::settle(FileHandle file) {
    const int error = resultOf([&] { return fsync(file); });
    // What has no medium of its own has nothing to settle.
    return error == -EINVAL || error == -EROFS ? 0 : error;
}

int SystemFileCalls::settleFolder(const fs::path& folder) {
    const FileHandle file = resultOf([&] {
        return open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    });
    if (file < 0) return file;
    const int error = settle(file);
    close(file);
    return error;
}

int SystemFileCalls::close(FileHandle file) {
    // Also an interrupted close has closed.
    return ::close(file) == 0 || errno == EINTR ? 0 : -errno;
}

int SystemFileCalls::rename(const fs::path& from, const fs::path& to) {
    return ::rename(from.c_str(), to.c_str()) == 0 ? 0 : -errno;
}

int SystemFileCalls::remove(const fs::path& path) {
    return unlink(path.c_str()) == 0 ? 0 : -errno;
}

std::vector<std::string> SystemFileCalls::namesIn(const fs::path& folder) const {
    const std::unique_ptr<DIR, int (*)(DIR*)> stream(opendir(folder.c_str()), &closedir);
    std::vector<std::string> names;
    while (const dirent* entry = stream ? readdir(stream.get()) : nullptr) {
        const std::string_view name = entry->d_name;
        if (name != "." && name != "..") names.emplace_back(name);
    }
    return names;
}

std::optional<std::string> SystemFileCalls::identityOf(const fs::path& path) const {
    struct stat status {};
    if (stat(path.c_str(), &status) != 0) return std::nullopt;
    return std::to_string(status.st_dev) + ":" + std::to_string(status.st_ino);
}

bool SystemFileCalls::isLeftover(const fs::path& path) {
    struct stat status {};
    if (lstat(path.c_str(), &status) != 0 || !S_ISREG(status.st_mode) || status.st_uid != geteuid())
        return false;
    const FileHandle file = open(path.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    if (file < 0) return false;
    const bool free = flock(file, LOCK_EX | LOCK_NB) == 0;
    close(file);
    return free;
}

void SystemFileCalls::removeLeftover(const fs::path& path) {
    struct stat status {};
    if (lstat(path.c_str(), &status) != 0 || !S_ISREG(status.st_mode)) return;
    const FileHandle file = open(path.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    if (file < 0) return;
    struct stat locked {};
    // Removed under the lock, and only if the name still leads to what was locked.
    if (flock(file, LOCK_EX | LOCK_NB) == 0 && lstat(path.c_str(), &status) == 0 &&
        fstat(file, &locked) == 0 && status.st_ino == locked.st_ino)
        unlink(path.c_str());
    close(file);
}

}  // namespace kelvo
