#include <array>
#include <cerrno>
#include <chrono>
#include <filesystem>
#include <system_error>
#include <utility>

#include "common/disk.h"
#include "common/file_calls.h"
#include "common/file_faults.h"
#include "common/file_links.h"
#include "common/file_replacement.h"
#include "common/folder_turn.h"
#include "common/letter_case.h"

namespace kelvo {

namespace fs = std::filesystem;

namespace {

constexpr std::chrono::milliseconds kPatience{500};

// A file open for reading, or for writing at its end.
class OpenSystemFile {
public:
    OpenSystemFile(Pipes pipes, fs::path path, bool append)
        : calls_(pipes),
          path_(std::move(path)),
          file_(append ? calls_.openForAppending(path_) : calls_.openForReading(path_)) {
        if (file_ < 0) raiseError(-file_, path_);
    }
    ~OpenSystemFile() {
        if (file_ >= 0) calls_.close(file_);
    }
    OpenSystemFile(const OpenSystemFile&) = delete;
    OpenSystemFile& operator=(const OpenSystemFile&) = delete;

    std::size_t read(std::span<char> buffer) {
        const std::int64_t count = calls_.read(file_, buffer.data(), buffer.size());
        if (count < 0) raiseError(static_cast<int>(-count), path_);
        return static_cast<std::size_t>(count);
    }
    void write(std::string_view bytes) {
        if (const int error = calls_.write(file_, bytes); error < 0) raiseError(-error, path_);
    }
    void close() {
        const int error = calls_.close(std::exchange(file_, -EBADF));
        if (error < 0) raiseError(-error, path_);
    }

private:
    SystemFileCalls calls_;
    fs::path path_;
    FileHandle file_;
};

class FileReader final : public ByteReader {
public:
    FileReader(Pipes pipes, fs::path path) : file_(pipes, std::move(path), false) {}
    std::size_t read(std::span<char> buffer) override { return file_.read(buffer); }

private:
    OpenSystemFile file_;
};

class FileAppender final : public ByteWriter {
public:
    FileAppender(Pipes pipes, fs::path path) : file_(pipes, std::move(path), true) {}
    void write(std::string_view bytes) override { file_.write(bytes); }
    void close() override { file_.close(); }

private:
    OpenSystemFile file_;
};

// The system would take such a name for what stands in front of the NUL.
fs::path checkedPath(const std::string& path) {
    if (path.find('\0') != std::string::npos) raise(Fault::FileNotFound);
    return pathOf(path);
}

bool areOneFile(const fs::path& one, const fs::path& other) {
    std::error_code error;
    return fs::equivalent(one, other, error) && !error;
}

// Found out from any file in it whose name has letters.
bool ignoresCase(const SystemFileCalls& calls, const fs::path& folder) {
    if (kFileNamesIgnoreCase) return true;
    for (const std::string& name : calls.namesIn(folder)) {
        std::string changed = upperCased(name);
        if (changed == name) changed = lowerCased(name);
        if (changed != name) return areOneFile(folder / pathOf(name), folder / pathOf(changed));
    }
    return false;
}

void endWhatWasLeftAt(SystemFileCalls& calls, const fs::path& path, const std::string& name) {
    if (isNameOfNewFile(name)) calls.removeLeftover(path);
    if (!isNameOfCopy(name) || !calls.isLeftover(path)) return;
    const FileHandle file = calls.openForReading(path);
    if (file < 0) return;
    std::string bytes;
    const int error = calls.readAll(file, bytes);
    calls.close(file);
    if (error == 0) finishInPlace(calls, path, bytes);
}

void endWhatWasLeft(const fs::path& folder) {
    SystemFileCalls calls;
    for (const std::string& name : calls.namesIn(folder))
        endWhatWasLeftAt(calls, folder / pathOf(name), name);
}

}  // namespace

std::unique_ptr<ByteReader> PlatformDisk::openForReading(const std::string& path) {
    return std::make_unique<FileReader>(pipes_, checkedPath(path));
}

std::unique_ptr<ByteWriter> PlatformDisk::openForWriting(const std::string& path) {
    return writeAnew(std::make_unique<SystemFileCalls>(pipes_), endOfLinks(checkedPath(path)));
}

std::unique_ptr<ByteWriter> PlatformDisk::openForAppending(const std::string& path) {
    return std::make_unique<FileAppender>(pipes_, checkedPath(path));
}

void PlatformDisk::replace(const std::string& path, std::string_view bytes) {
    SystemFileCalls calls(pipes_);
    replaceFile(calls, endOfLinks(checkedPath(path)), bytes);
}

void PlatformDisk::rename(const std::string& from, const std::string& to) {
    SystemFileCalls calls(pipes_);
    const fs::path source = checkedPath(from);
    if (const int error = calls.rename(source, checkedPath(to)); error < 0)
        raiseError(-error, source);
}

bool PlatformDisk::sameFile(const std::string& one, const std::string& other) {
    return areOneFile(pathOf(one), pathOf(other));
}

std::string PlatformDisk::placeOf(const std::string& path) {
    const SystemFileCalls calls;
    const fs::path file = endOfLinks(pathOf(path));
    if (auto identity = calls.identityOf(file)) return *identity;
    const fs::path folder = file.has_parent_path() ? file.parent_path() : fs::path(".");
    const std::string name = textOf(file.filename());
    const auto identity = calls.identityOf(folder);
    if (!identity) return textOf(file);
    return *identity + "/" + (ignoresCase(calls, folder) ? upperCased(name) : name);
}

void PlatformDisk::tidy(const std::string& folder) {
    endWhatWasLeft(pathOf(folder));
    if (std::exchange(temporaryFolderIsTidy_, true)) return;
    std::error_code error;
    const fs::path temporary = fs::temp_directory_path(error);
    if (!error) endWhatWasLeft(temporary);
}

std::unique_ptr<Turn> PlatformDisk::takeTurn(const std::string& folder) {
    return takeTurnAt(pathOf(folder), kPatience);
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
