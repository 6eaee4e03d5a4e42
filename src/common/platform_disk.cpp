#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <random>
#include <system_error>

#include "common/disk.h"
#include "common/run_time_fault.h"

#ifdef _WIN32
#include <io.h>
#include <windows.h>
#else
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace kelvo {

namespace fs = std::filesystem;

namespace {

fs::path pathOf(const std::string& path) {
    return {std::u8string(path.begin(), path.end())};
}

std::string textOf(const fs::path& path) {
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
}

Fault faultOf(int error, const fs::path& path) {
    std::error_code ignored;
    switch (error) {
        case ENOENT:
            // A missing folder and a missing file have one error; the folder tells them apart.
            if (!path.has_filename()) return Fault::PathNotFound;
            return path.has_parent_path() && !fs::is_directory(path.parent_path(), ignored)
                       ? Fault::PathNotFound
                       : Fault::FileNotFound;
        case ENOTDIR:
        case ENAMETOOLONG:
            return Fault::PathNotFound;
        case ENOSPC:
        case EFBIG:
#ifdef EDQUOT
        case EDQUOT:
#endif
            return Fault::DiskFull;
        case EACCES:
        case EPERM:
        case EROFS:
            return fs::is_directory(path, ignored) ? Fault::PathFileAccess
                                                   : Fault::PermissionDenied;
        case EIO:
        case ENXIO:
        case ENODEV:
            return Fault::DiskNotReady;
        default:
            return Fault::PathFileAccess;
    }
}

[[noreturn]] void raiseError(int error, const fs::path& path) {
    const Fault fault = faultOf(error, path);
    raise(fault, std::string(faultSentence(fault)) + " (" + textOf(path) + ")");
}

using File = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

File openFile(const fs::path& path, const char* mode) {
    std::error_code ignored;
    if (fs::is_directory(path, ignored)) raiseError(EISDIR, path);
#ifdef _WIN32
    const std::wstring wideMode(mode, mode + std::char_traits<char>::length(mode));
    std::FILE* file = _wfopen(path.c_str(), wideMode.c_str());
#else
    std::FILE* file = std::fopen(path.c_str(), mode);
#endif
    if (file == nullptr) raiseError(path.empty() ? ENOTDIR : errno, path);
    // Readers and writers buffer by themselves.
    std::setvbuf(file, nullptr, _IONBF, 0);
    return {file, &std::fclose};
}

class FileReader final : public ByteReader {
public:
    explicit FileReader(fs::path path) : path_(std::move(path)), file_(openFile(path_, "rb")) {}

    std::size_t read(std::span<char> buffer) override {
        const std::size_t count = std::fread(buffer.data(), 1, buffer.size(), file_.get());
        if (count < buffer.size() && std::ferror(file_.get()) != 0) raiseError(errno, path_);
        return count;
    }

private:
    fs::path path_;
    File file_;
};

class FileWriter final : public ByteWriter {
public:
    FileWriter(fs::path path, const char* mode)
        : path_(std::move(path)), file_(openFile(path_, mode)) {}

    void write(std::string_view bytes) override {
        if (std::fwrite(bytes.data(), 1, bytes.size(), file_.get()) != bytes.size())
            raiseError(errno, path_);
    }

    void close() override {
        if (std::fclose(file_.release()) != 0) raiseError(errno, path_);
    }

    // Hands the bytes to the medium itself, so that the rename that follows can't come first.
    void settle() {
#ifdef _WIN32
        if (_commit(_fileno(file_.get())) != 0) raiseError(errno, path_);
#else
        if (fsync(fileno(file_.get())) != 0 && errno != EINVAL && errno != EROFS)
            raiseError(errno, path_);
#endif
    }

private:
    fs::path path_;
    File file_;
};

// A name beside the target that no other program, and no other copy of this one, is using.
fs::path nameBeside(const fs::path& target) {
    std::random_device random;
    std::array<char, 32> suffix{};
    std::snprintf(suffix.data(), suffix.size(), ".%08x%08x.new", random(), random());
    // The name is its own, so that also the longest name allowed has room beside it.
    return target.parent_path() / ("kelvo" + std::string(suffix.data()));
}

// Where a link leads in the end, also if nothing is there yet.
fs::path behindLinks(fs::path path) {
    constexpr int kMostLinks = 40;
    std::error_code error;
    for (int i = 0; i < kMostLinks && fs::is_symlink(fs::symlink_status(path, error)); ++i) {
        const fs::path next = fs::read_symlink(path, error);
        if (error) break;
        path = next.is_absolute() ? next : path.parent_path() / next;
    }
    return path;
}

void renameOver(const fs::path& from, const fs::path& to) {
#ifdef _WIN32
    if (MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) ==
        0)
        raiseError(EACCES, to);
#else
    if (std::rename(from.c_str(), to.c_str()) != 0) raiseError(errno, to);
#endif
}

void settleFolder([[maybe_unused]] const fs::path& folder) {
#ifndef _WIN32
    // So that the new name outlives a power cut; a folder that can't be opened changes nothing.
    const int descriptor = ::open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY);
    if (descriptor < 0) return;
    fsync(descriptor);
    ::close(descriptor);
#endif
}

}  // namespace

std::unique_ptr<ByteReader> PlatformDisk::openForReading(const std::string& path) {
    return std::make_unique<FileReader>(pathOf(path));
}

std::unique_ptr<ByteWriter> PlatformDisk::openForWriting(const std::string& path) {
    return std::make_unique<FileWriter>(pathOf(path), "wb");
}

std::unique_ptr<ByteWriter> PlatformDisk::openForAppending(const std::string& path) {
    return std::make_unique<FileWriter>(pathOf(path), "ab");
}

void PlatformDisk::replace(const std::string& path, std::string_view bytes) {
    const fs::path target = behindLinks(pathOf(path));
    std::error_code ignored;
    const bool there = fs::exists(target, ignored);
    if (there) {
        // A file that may not be written is refused, and a device or pipe is written in place.
        { const File probe = openFile(target, "r+b"); }
        if (!fs::is_regular_file(target, ignored)) {
            FileWriter device(target, "wb");
            device.write(bytes);
            device.close();
            return;
        }
    }
    const fs::path fresh = nameBeside(target);
    try {
        FileWriter writer(fresh, "wb");
        writer.write(bytes);
        writer.settle();
        writer.close();
        if (there) fs::permissions(fresh, fs::status(target, ignored).permissions(), ignored);
        renameOver(fresh, target);
    } catch (const RuntimeFault& fault) {
        fs::remove(fresh, ignored);
        // The user knows the file by its own name, not by the one beside it.
        raise(fault.fault(), std::string(faultSentence(fault.fault())) + " (" + path + ")");
    }
    settleFolder(target.parent_path());
}

bool PlatformDisk::sameFile(const std::string& one, const std::string& other) {
    std::error_code error;
    const bool same = fs::equivalent(pathOf(one), pathOf(other), error);
    return !error && same;
}

std::string PlatformDisk::currentFolder() {
    std::error_code error;
    const fs::path folder = fs::current_path(error);
    if (error) raise(Fault::PathNotFound);
    return textOf(folder);
}

void PlatformDisk::setCurrentFolder(const std::string& path) {
    std::error_code error;
    fs::current_path(pathOf(path), error);
    if (error) raise(Fault::PathNotFound, "폴더를 찾을 수 없습니다 (" + path + ")");
}

}  // namespace kelvo
