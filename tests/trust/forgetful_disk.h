// A disk in memory that loses its power: what wasn't settled may be there afterwards or not, bytes
// and names apart from each other.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "common/file_calls.h"

namespace kelvo::testing {

class ForgetfulDisk final : public FileCalls {
public:
    void put(const std::string& path, const std::string& bytes);
    void link(const std::string& path, const std::string& other);
    // What of the folder and the file can't be had.
    std::string closedFolder;      // nothing new may be made in it
    std::string foreignFile;       // its owner can't be handed on
    std::string stickyFolder;      // nothing in it may be renamed
    bool forgetsToSettle = false;  // a disk, or a program, that only pretends to

    // The power goes in front of the call of this number, from 1; from there on every call fails
    // and changes nothing. 0: it stays.
    int cutAt = 0;
    int calls = 0;
    int madeOpen = 0;  // new files that others may look into before they hold a byte

    // What may be found after the power is back: every file by its name.
    using Found = std::map<std::string, std::string>;
    [[nodiscard]] std::vector<Found> possibleFinds() const;
    [[nodiscard]] Found now() const;

    // A disk that holds what was found, with steady power.
    [[nodiscard]] static ForgetfulDisk holding(const Found& files,
                                               const std::map<std::string, std::string>& links);

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

private:
    // The bytes after each change since they were last settled, the settled ones first.
    struct File {
        std::vector<std::string> versions{""};
    };
    using Names = std::map<std::string, int>;

    [[nodiscard]] bool powerIsGone();
    File& at(FileHandle file) { return files_.at(open_.at(file)); }
    void changed(FileHandle file, std::string bytes);
    void renamed(Names names);

    std::map<int, File> files_;
    std::vector<Names> names_{Names{}};  // after each change since they were settled
    std::map<FileHandle, int> open_;
    int nextFile_ = 1;
    FileHandle nextHandle_ = 3;
};

}  // namespace kelvo::testing
