#include "support/memory_disk.h"

#include <algorithm>
#include <cstring>
#include <utility>

#include "common/code_page.h"
#include "common/run_time_fault.h"

namespace kelvo::testing {

class MemoryReader final : public ByteReader {
public:
    MemoryReader(const MemoryDisk& disk, std::string path)
        : disk_(disk), path_(std::move(path)), bytes_(disk.files.at(path_)) {}

    std::size_t read(std::span<char> buffer) override {
        disk_.check("read", path_);
        const std::size_t count = std::min(buffer.size(), bytes_.size() - position_);
        std::memcpy(buffer.data(), bytes_.data() + position_, count);
        position_ += count;
        return count;
    }

private:
    const MemoryDisk& disk_;
    std::string path_;
    std::string bytes_;
    std::size_t position_ = 0;
};

class MemoryWriter final : public ByteWriter {
public:
    MemoryWriter(MemoryDisk& disk, std::string path) : disk_(disk), path_(std::move(path)) {}

    void write(std::string_view bytes) override {
        disk_.check("write", path_);
        disk_.files[path_].append(bytes);
    }
    void close() override { disk_.check("close", path_); }

private:
    MemoryDisk& disk_;
    std::string path_;
};

class MemoryTurn final : public Turn {
public:
    MemoryTurn(MemoryDisk& disk, std::string folder) : disk_(disk), folder_(std::move(folder)) {}
    ~MemoryTurn() override { disk_.inTurn.erase(folder_); }
    MemoryTurn(const MemoryTurn&) = delete;
    MemoryTurn& operator=(const MemoryTurn&) = delete;

private:
    MemoryDisk& disk_;
    std::string folder_;
};

MemoryDisk::MemoryDisk() : folders{"/"} {}

// Nobody waits: whoever has its turn would have to end it in the same thread.
std::unique_ptr<Turn> MemoryDisk::takeTurn(const std::string& folder) {
    if (!inTurn.insert(folder).second) return nullptr;
    return std::make_unique<MemoryTurn>(*this, folder);
}

void MemoryDisk::check(const std::string& operation, const std::string& path) const {
    if (before) before(operation, path);
}

std::string MemoryDisk::full(const std::string& path) const {
    if (!path.empty() && path.front() == '/') return path;
    return (current_ == "/" ? current_ : current_ + "/") + path;
}

void MemoryDisk::requireFolderOf(const std::string& path) const {
    if (folders.count(path) != 0) raise(Fault::PathFileAccess);
    const std::size_t slash = path.rfind('/');
    const std::string folder = slash == 0 ? "/" : path.substr(0, slash);
    if (folders.count(folder) == 0) raise(Fault::PathNotFound);
}

std::unique_ptr<ByteReader> MemoryDisk::openForReading(const std::string& path) {
    check("openForReading", path);
    if (path.empty()) raise(Fault::PathNotFound);
    requireFolderOf(full(path));
    if (!has(full(path))) raise(Fault::FileNotFound);
    return std::make_unique<MemoryReader>(*this, full(path));
}

std::unique_ptr<ByteWriter> MemoryDisk::openForWriting(const std::string& path) {
    check("openForWriting", path);
    if (path.empty()) raise(Fault::PathNotFound);
    requireFolderOf(full(path));
    files[full(path)].clear();
    return std::make_unique<MemoryWriter>(*this, full(path));
}

std::unique_ptr<ByteWriter> MemoryDisk::openForAppending(const std::string& path) {
    check("openForAppending", path);
    if (path.empty()) raise(Fault::PathNotFound);
    requireFolderOf(full(path));
    files.try_emplace(full(path));
    return std::make_unique<MemoryWriter>(*this, full(path));
}

void MemoryDisk::replace(const std::string& path, std::string_view bytes) {
    check("replace", path);
    if (path.empty()) raise(Fault::PathNotFound);
    requireFolderOf(full(path));
    files[full(path)] = bytes;
}

void MemoryDisk::rename(const std::string& from, const std::string& to) {
    check("rename", from);
    if (!has(full(from))) raise(Fault::FileNotFound);
    requireFolderOf(full(to));
    files[full(to)] = std::exchange(files[full(from)], {});
    files.erase(full(from));
}

bool MemoryDisk::sameFile(const std::string& one, const std::string& other) {
    return full(one) == full(other) && (has(full(one)) || folders.count(full(one)) != 0);
}

void MemoryDisk::setCurrentFolder(const std::string& path) {
    check("setCurrentFolder", path);
    if (folders.count(full(path)) == 0) raise(Fault::PathNotFound);
    current_ = full(path);
}

void MemoryDisk::putText(const std::string& path, std::string_view text) {
    files[path] = encodeCodePage(text);
}

std::string MemoryDisk::bytes(const std::string& path) const {
    const auto found = files.find(path);
    return found == files.end() ? std::string() : found->second;
}

std::string MemoryDisk::text(const std::string& path) const {
    return decodeCodePage(bytes(path));
}

}  // namespace kelvo::testing
