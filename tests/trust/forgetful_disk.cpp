#include "trust/forgetful_disk.h"

#include <algorithm>
#include <cerrno>

namespace kelvo::testing {

namespace fs = std::filesystem;

bool ForgetfulDisk::powerIsGone() {
    return cutAt != 0 && ++calls >= cutAt;
}

void ForgetfulDisk::changed(FileHandle file, std::string bytes) {
    at(file).versions.push_back(std::move(bytes));
}

void ForgetfulDisk::renamed(Names names) {
    names_.push_back(std::move(names));
}

void ForgetfulDisk::put(const std::string& path, const std::string& bytes) {
    const int file = nextFile_++;
    files_[file].versions = {bytes};
    names_.back()[path] = file;
}

void ForgetfulDisk::link(const std::string& path, const std::string& other) {
    names_.back()[other] = names_.back().at(path);
}

ForgetfulDisk::Found ForgetfulDisk::now() const {
    Found found;
    for (const auto& [path, file] : names_.back()) found[path] = files_.at(file).versions.back();
    return found;
}

// Names change one after the other, and any number of the last changes may be missing. Of each
// file's bytes any version may be found, none mixed with another file's.
std::vector<ForgetfulDisk::Found> ForgetfulDisk::possibleFinds() const {
    std::vector<Found> finds;
    for (const Names& names : names_) {
        std::vector<Found> some{Found{}};
        for (const auto& entry : names) {
            const auto& [path, file] = entry;
            // Two names of one file show the same version of it.
            const auto first = std::find_if(names.begin(), names.end(), [&](const auto& one) {
                return one.second == entry.second;
            });
            std::vector<Found> next;
            for (const Found& found : some) {
                if (first->first != path) {
                    next.push_back(found);
                    next.back()[path] = found.at(first->first);
                    continue;
                }
                for (const std::string& version : files_.at(file).versions) {
                    next.push_back(found);
                    next.back()[path] = version;
                }
            }
            some = std::move(next);
        }
        finds.insert(finds.end(), some.begin(), some.end());
    }
    return finds;
}

ForgetfulDisk ForgetfulDisk::holding(const Found& files,
                                     const std::map<std::string, std::string>& links) {
    ForgetfulDisk disk;
    for (const auto& [path, bytes] : files)
        if (links.count(path) == 0) disk.put(path, bytes);
    for (const auto& [path, target] : links)
        if (files.count(target) != 0) disk.link(target, path);
    return disk;
}

FileHandle ForgetfulDisk::createNew(const fs::path& path, bool open) {
    if (powerIsGone()) return -EIO;
    if (open) ++madeOpen;
    if (!closedFolder.empty() && path.parent_path() == closedFolder) return -EACCES;
    Names names = names_.back();
    if (names.count(path.string()) != 0) return -EEXIST;
    const int file = nextFile_++;
    files_[file] = File{};
    names[path.string()] = file;
    renamed(std::move(names));
    open_[nextHandle_] = file;
    return nextHandle_++;
}

FileHandle ForgetfulDisk::openThere(const fs::path& path) {
    if (powerIsGone()) return -EIO;
    const auto found = names_.back().find(path.string());
    if (found == names_.back().end()) return -ENOENT;
    open_[nextHandle_] = found->second;
    return nextHandle_++;
}

int ForgetfulDisk::state(FileHandle file, FileState& state) {
    state.regular = true;
    const Names& names = names_.back();
    state.links = static_cast<std::uint64_t>(std::count_if(
        names.begin(), names.end(), [&](const auto& one) { return one.second == open_.at(file); }));
    return 0;
}

int ForgetfulDisk::carryAttributes(FileHandle from, FileHandle /*to*/) {
    const auto foreign = names_.back().find(foreignFile);
    return foreign != names_.back().end() && foreign->second == open_.at(from) ? -EPERM : 0;
}

int ForgetfulDisk::readAll(FileHandle file, std::string& bytes) {
    bytes = at(file).versions.back();
    return 0;
}

// Half of the bytes may arrive before the other half.
int ForgetfulDisk::write(FileHandle file, std::string_view bytes) {
    if (powerIsGone()) return -EIO;
    const std::string before = at(file).versions.back();
    changed(file, before + std::string(bytes.substr(0, bytes.size() / 2)));
    changed(file, before + std::string(bytes));
    return 0;
}

int ForgetfulDisk::writeAt(FileHandle file, std::uint64_t place, std::string_view bytes) {
    if (powerIsGone()) return -EIO;
    for (const std::size_t count : {bytes.size() / 2, bytes.size()}) {
        std::string now = at(file).versions.back();
        now.resize(std::max<std::size_t>(now.size(), place + count));
        now.replace(place, count, bytes.substr(0, count));
        changed(file, std::move(now));
    }
    return 0;
}

int ForgetfulDisk::cut(FileHandle file, std::uint64_t size) {
    if (powerIsGone()) return -EIO;
    std::string bytes = at(file).versions.back();
    bytes.resize(size);
    changed(file, std::move(bytes));
    return 0;
}

int ForgetfulDisk::reserve(FileHandle /*file*/, std::uint64_t /*size*/) {
    if (powerIsGone()) return -EIO;
    return 0;
}

int ForgetfulDisk::settle(FileHandle file) {
    if (powerIsGone()) return -EIO;
    if (!forgetsToSettle) at(file).versions = {at(file).versions.back()};
    return 0;
}

int ForgetfulDisk::settleFolder(const fs::path& /*folder*/) {
    if (powerIsGone()) return -EIO;
    if (!forgetsToSettle) names_ = {names_.back()};
    return 0;
}

int ForgetfulDisk::close(FileHandle file) {
    open_.erase(file);
    return 0;
}

int ForgetfulDisk::rename(const fs::path& from, const fs::path& to) {
    if (powerIsGone()) return -EIO;
    if (!stickyFolder.empty() && to.parent_path() == stickyFolder && to.extension() != ".copy")
        return -EPERM;
    Names names = names_.back();
    const auto source = names.find(from.string());
    if (source == names.end()) return -ENOENT;
    names[to.string()] = source->second;
    names.erase(from.string());
    renamed(std::move(names));
    return 0;
}

int ForgetfulDisk::remove(const fs::path& path) {
    if (powerIsGone()) return -EIO;
    Names names = names_.back();
    if (names.erase(path.string()) == 0) return -ENOENT;
    renamed(std::move(names));
    return 0;
}

}  // namespace kelvo::testing
