#include <cerrno>
#include <limits>
#include <string>

#include "common/file_calls.h"
#include "common/file_faults.h"

// After what it needs.
#include <windows.h>

#include <fcntl.h>
#include <io.h>
#include <share.h>
#include <sys/stat.h>

namespace kelvo {

namespace fs = std::filesystem;

namespace {

int lastError() {
    switch (GetLastError()) {
        case ERROR_FILE_NOT_FOUND:
            return -ENOENT;
        case ERROR_PATH_NOT_FOUND:
        case ERROR_INVALID_NAME:
            return -ENOTDIR;
        case ERROR_DISK_FULL:
        case ERROR_HANDLE_DISK_FULL:
            return -ENOSPC;
        case ERROR_NOT_READY:
            return -EIO;
        default:
            return -EACCES;
    }
}

FileHandle openFile(const fs::path& path, int flags) {
    std::error_code ignored;
    if (fs::is_directory(path, ignored)) return -EISDIR;
    // A virus scanner or a copy holds a file for a moment.
    constexpr int kAttempts = 10;
    constexpr DWORD kPause = 20;  // milliseconds
    for (int i = 1;; ++i) {
        int file = -1;
        const errno_t error = _wsopen_s(&file, path.c_str(), flags | _O_BINARY | _O_NOINHERIT,
                                        _SH_DENYNO, _S_IREAD | _S_IWRITE);
        if (error == 0) return file;
        if (error != EACCES || GetLastError() != ERROR_SHARING_VIOLATION || i == kAttempts)
            return -error;
        Sleep(kPause);
    }
}

HANDLE systemHandle(FileHandle file) {
    return reinterpret_cast<HANDLE>(_get_osfhandle(file));  // NOLINT: that is how it is given
}

constexpr std::size_t kMostAtOnce = 1U << 30U;

}  // namespace

FileHandle SystemFileCalls::createNew(const fs::path& path, bool /*open*/) {
    return openFile(path, _O_RDWR | _O_CREAT | _O_EXCL);
}

FileHandle SystemFileCalls::openThere(const fs::path& path) {
    return openFile(path, _O_RDWR);
}

FileHandle SystemFileCalls::openForReading(const fs::path& path) {
    return openFile(path, _O_RDONLY);
}

FileHandle SystemFileCalls::openForAppending(const fs::path& path) {
    return openFile(path, _O_WRONLY | _O_CREAT | _O_APPEND);
}

std::int64_t SystemFileCalls::read(FileHandle file, char* buffer, std::size_t size) {
    const auto most = static_cast<unsigned>(size < kMostAtOnce ? size : kMostAtOnce);
    const int count = _read(file, buffer, most);
    return count < 0 ? -errno : count;
}

int SystemFileCalls::state(FileHandle file, FileState& state) {
    BY_HANDLE_FILE_INFORMATION information{};
    state.regular = GetFileType(systemHandle(file)) == FILE_TYPE_DISK;
    if (state.regular && GetFileInformationByHandle(systemHandle(file), &information) != 0)
        state.links = information.nNumberOfLinks;
    return 0;
}

// Replacing a file hands its owner and access list on.
int SystemFileCalls::carryAttributes(FileHandle /*from*/, FileHandle /*to*/) {
    return 0;
}

int SystemFileCalls::readAll(FileHandle file, std::string& bytes) {
    bytes.clear();
    if (_lseeki64(file, 0, SEEK_SET) < 0) return -errno;
    std::string buffer(65536, '\0');
    while (true) {
        const std::int64_t count = read(file, buffer.data(), buffer.size());
        if (count <= 0) return static_cast<int>(count);
        bytes.append(buffer, 0, static_cast<std::size_t>(count));
    }
}

int SystemFileCalls::write(FileHandle file, std::string_view bytes) {
    while (!bytes.empty()) {
        const std::string_view part = bytes.substr(0, kMostAtOnce);
        const int count = _write(file, part.data(), static_cast<unsigned>(part.size()));
        if (count < 0) return -errno;
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
    return 0;
}

int SystemFileCalls::writeAt(FileHandle file, std::uint64_t place, std::string_view bytes) {
    if (_lseeki64(file, static_cast<std::int64_t>(place), SEEK_SET) < 0) return -errno;
    return write(file, bytes);
}

int SystemFileCalls::cut(FileHandle file, std::uint64_t size) {
    return -_chsize_s(file, static_cast<std::int64_t>(size));
}

int SystemFileCalls::reserve(FileHandle /*file*/, std::uint64_t /*size*/) {
    return 0;
}

int SystemFileCalls::settle(FileHandle file) {
    return _commit(file) == 0 ? 0 : -errno;
}

int SystemFileCalls::settleFolder(const fs::path& /*folder*/) {
    return 0;
}

int SystemFileCalls::close(FileHandle file) {
    return _close(file) == 0 ? 0 : -errno;
}

int SystemFileCalls::rename(const fs::path& from, const fs::path& to) {
    if (ReplaceFileW(to.c_str(), from.c_str(), nullptr, REPLACEFILE_IGNORE_MERGE_ERRORS, nullptr,
                     nullptr) != 0)
        return 0;
    if (MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) !=
        0)
        return 0;
    return lastError();
}

int SystemFileCalls::remove(const fs::path& path) {
    return DeleteFileW(path.c_str()) != 0 ? 0 : lastError();
}

std::vector<std::string> SystemFileCalls::namesIn(const fs::path& folder) const {
    std::vector<std::string> names;
    std::error_code error;
    for (fs::directory_iterator at(folder, error), end; !error && at != end; at.increment(error))
        names.push_back(textOf(at->path().filename()));
    return names;
}

std::optional<std::string> SystemFileCalls::identityOf(const fs::path& path) const {
    constexpr DWORD kAllMayUseIt = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    const HANDLE file = CreateFileW(path.c_str(), 0, kAllMayUseIt, nullptr, OPEN_EXISTING,
                                    FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (file == INVALID_HANDLE_VALUE) return std::nullopt;
    BY_HANDLE_FILE_INFORMATION information{};
    const bool known = GetFileInformationByHandle(file, &information) != 0;
    CloseHandle(file);
    if (!known) return std::nullopt;
    return std::to_string(information.dwVolumeSerialNumber) + ":" +
           std::to_string(information.nFileIndexHigh) + ":" +
           std::to_string(information.nFileIndexLow);
}

bool SystemFileCalls::isLeftover(const fs::path& path) {
    // A program that still writes it doesn't share it with one that wants it alone.
    const HANDLE file = CreateFileW(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING,
                                    FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) return false;
    CloseHandle(file);
    return true;
}

void SystemFileCalls::removeLeftover(const fs::path& path) {
    if (isLeftover(path)) DeleteFileW(path.c_str());
}

}  // namespace kelvo
