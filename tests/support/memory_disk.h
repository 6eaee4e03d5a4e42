// A disk in memory, and one that fails at a chosen operation.
#pragma once

#include <functional>
#include <map>
#include <set>
#include <string>

#include "common/disk.h"

namespace kelvo::testing {

// Files by full path; a path with a folder needs that folder to be known. Holds bytes.
class MemoryDisk final : public Disk {
public:
    MemoryDisk();

    std::unique_ptr<ByteReader> openForReading(const std::string& path) override;
    std::unique_ptr<ByteWriter> openForWriting(const std::string& path) override;
    std::unique_ptr<ByteWriter> openForAppending(const std::string& path) override;
    void replace(const std::string& path, std::string_view bytes) override;
    void rename(const std::string& from, const std::string& to) override;
    bool sameFile(const std::string& one, const std::string& other) override;
    std::string placeOf(const std::string& path) override { return full(path); }
    void tidy(const std::string& folder) override { tidied.insert(folder); }
    std::unique_ptr<Turn> takeTurn(const std::string& folder) override;
    std::string currentFolder() override { return current_; }
    void setCurrentFolder(const std::string& path) override;

    // For tests: what stands on the disk. Texts are UTF-8 and are put down in the code page.
    void putBytes(const std::string& path, std::string bytes) { files[path] = std::move(bytes); }
    void putText(const std::string& path, std::string_view text);
    void addFolder(const std::string& path) { folders.insert(path); }
    [[nodiscard]] bool has(const std::string& path) const { return files.count(path) != 0; }
    [[nodiscard]] std::string bytes(const std::string& path) const;
    [[nodiscard]] std::string text(const std::string& path) const;  // decoded, line ends kept

    // Called in front of every operation with its name ("read", "write", "close", "openForReading",
    // "openForWriting", "openForAppending", "replace", "rename", "setCurrentFolder") and path; may
    // raise a fault, which is how failures are injected.
    std::function<void(const std::string& operation, const std::string& path)> before;

    std::map<std::string, std::string> files;
    std::set<std::string> folders;
    std::set<std::string> tidied;  // folders that were tidied up
    std::set<std::string> inTurn;  // folders at which somebody has its turn now

private:
    void check(const std::string& operation, const std::string& path) const;
    [[nodiscard]] std::string full(const std::string& path) const;
    void requireFolderOf(const std::string& path) const;

    friend class MemoryReader;
    friend class MemoryWriter;
    std::string current_ = "/";
};

}  // namespace kelvo::testing
