// The calls of the system that putting new bytes into a file is made of: a port, so that a test
// can stand in for a disk that fails at any of them or forgets what wasn't settled.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "common/disk.h"

namespace kelvo {

// An open file as the system counts them, from 0 on; below 0 an error of errno with a minus.
using FileHandle = int;

struct FileState {
    bool regular = false;  // no folder, device or pipe
    std::uint64_t links = 1;
};

// Every call gives 0, or what it is asked for, and an error of errno with a minus if it fails.
class FileCalls {
public:
    virtual ~FileCalls() = default;

    // A file that wasn't there, for reading and writing, that nobody takes for a leftover as long
    // as it is open. `open` to all whom the folder and the user's own habits let in, or to the
    // user alone.
    virtual FileHandle createNew(const std::filesystem::path& path, bool open) = 0;

    // What is there, for writing and, where that is allowed, reading. Nothing is emptied.
    virtual FileHandle openThere(const std::filesystem::path& path) = 0;

    virtual int state(FileHandle file, FileState& state) = 0;

    // Owner, group, mode, access list and all attributes of one file for another one. An error
    // means that the other can't have them all.
    virtual int carryAttributes(FileHandle from, FileHandle to) = 0;

    // All bytes from the front.
    virtual int readAll(FileHandle file, std::string& bytes) = 0;

    // All of the bytes, after those written before; at a place from the front.
    virtual int write(FileHandle file, std::string_view bytes) = 0;
    virtual int writeAt(FileHandle file, std::uint64_t place, std::string_view bytes) = 0;

    virtual int cut(FileHandle file, std::uint64_t size) = 0;

    // Sees to room for so many bytes without changing what is read. A disk that can't say is fine.
    virtual int reserve(FileHandle file, std::uint64_t size) = 0;

    // The bytes, or the names of a folder, are on the medium itself afterwards.
    virtual int settle(FileHandle file) = 0;
    virtual int settleFolder(const std::filesystem::path& folder) = 0;

    virtual int close(FileHandle file) = 0;
    virtual int rename(const std::filesystem::path& from, const std::filesystem::path& to) = 0;
    virtual int remove(const std::filesystem::path& path) = 0;
};

// Those of the machine.
class SystemFileCalls final : public FileCalls {
public:
    explicit SystemFileCalls(Pipes pipes = Pipes::Refuse) : pipes_(pipes) {}

    FileHandle createNew(const std::filesystem::path& path, bool open) override;
    FileHandle openThere(const std::filesystem::path& path) override;
    int state(FileHandle file, FileState& state) override;
    int carryAttributes(FileHandle from, FileHandle to) override;
    int readAll(FileHandle file, std::string& bytes) override;
    int write(FileHandle file, std::string_view bytes) override;
    int writeAt(FileHandle file, std::uint64_t place, std::string_view bytes) override;
    int cut(FileHandle file, std::uint64_t size) override;
    int reserve(FileHandle file, std::uint64_t size) override;
    int settle(FileHandle file) override;
    int settleFolder(const std::filesystem::path& folder) override;
    int close(FileHandle file) override;
    int rename(const std::filesystem::path& from, const std::filesystem::path& to) override;
    int remove(const std::filesystem::path& path) override;

    // What else is opened, under the same rule for pipes and with the same errors.
    FileHandle openForReading(const std::filesystem::path& path);
    FileHandle openForAppending(const std::filesystem::path& path);
    // At most so many bytes into the buffer; how many, 0 at the end.
    std::int64_t read(FileHandle file, char* buffer, std::size_t size);

    // The names in a folder; none where it can't be read. (The library's own walk through a folder
    // ends the program where memory ends.)
    [[nodiscard]] std::vector<std::string> namesIn(const std::filesystem::path& folder) const;

    // What a file or folder has to itself, whatever its name; nothing if it isn't there.
    [[nodiscard]] std::optional<std::string> identityOf(const std::filesystem::path& path) const;

    // Removes a file that createNew made and that no program has open any more.
    void removeLeftover(const std::filesystem::path& path);
    // A file of this user alone, and of no program that still runs.
    [[nodiscard]] bool isLeftover(const std::filesystem::path& path);

private:
    Pipes pipes_;
};

}  // namespace kelvo
