#include "common/file_replacement.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <cstdio>
#include <optional>
#include <random>
#include <string>
#include <utility>

#include "common/file_faults.h"

namespace kelvo {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kNameFront = "kelvo.";
constexpr std::string_view kNewEnd = ".new";
constexpr std::string_view kCopyEnd = ".copy";
constexpr std::size_t kNameDigits = 16;

// An open file, closed when it goes.
class OpenFile {
public:
    OpenFile(FileCalls& calls, FileHandle handle) : calls_(&calls), handle_(handle) {}
    OpenFile(OpenFile&& other) noexcept
        : calls_(other.calls_), handle_(std::exchange(other.handle_, -EBADF)) {}
    OpenFile& operator=(OpenFile&&) = delete;
    ~OpenFile() { close(); }

    [[nodiscard]] bool isOpen() const { return handle_ >= 0; }
    [[nodiscard]] int error() const { return isOpen() ? 0 : handle_; }
    [[nodiscard]] FileHandle handle() const { return handle_; }
    int close() { return isOpen() ? calls_->close(std::exchange(handle_, -EBADF)) : 0; }

private:
    FileCalls* calls_;
    FileHandle handle_;
};

// A file of its own, removed when it goes unless it was kept.
class NewFile {
public:
    NewFile(FileCalls& calls, fs::path path, FileHandle handle)
        : calls_(&calls), path_(std::move(path)), file_(calls, handle) {}
    NewFile(NewFile&& other) noexcept
        : calls_(other.calls_),
          path_(std::exchange(other.path_, {})),
          file_(std::move(other.file_)) {}
    NewFile& operator=(NewFile&&) = delete;
    ~NewFile() {
        if (path_.empty()) return;
        file_.close();
        calls_->remove(path_);
    }

    [[nodiscard]] OpenFile& file() { return file_; }
    [[nodiscard]] const fs::path& path() const { return path_; }

    // Gives it another name, under which it stays. Open until then, or it would be a leftover;
    // but Windows renames no open file.
    int keepAs(const fs::path& name) {
#ifdef _WIN32
        file_.close();
#endif
        const int error = calls_->rename(path_, name);
        if (error == 0) path_.clear();
        return error;
    }

private:
    FileCalls* calls_;
    fs::path path_;
    OpenFile file_;
};

bool isRefused(int error) {
    return error == -EACCES || error == -EPERM || error == -EROFS;
}

std::string randomName(std::string_view end) {
    std::random_device random;
    std::array<char, kNameDigits + 1> digits{};
    std::snprintf(digits.data(), digits.size(), "%08x%08x", random(), random());
    // The name is its own, so that also the longest name allowed has room beside it.
    return std::string(kNameFront).append(digits.data()).append(end);
}

bool isNameWith(std::string_view name, std::string_view end) {
    if (!name.starts_with(kNameFront) || !name.ends_with(end)) return false;
    if (name.size() != kNameFront.size() + kNameDigits + end.size()) return false;
    const std::string_view digits = name.substr(kNameFront.size(), kNameDigits);
    return digits.find_first_not_of("0123456789abcdef") == std::string_view::npos;
}

NewFile newFileIn(FileCalls& calls, const fs::path& folder, bool open) {
    constexpr int kAttempts = 8;
    for (int i = 1;; ++i) {
        fs::path path = folder / randomName(kNewEnd);
        const FileHandle handle = calls.createNew(path, open);
        if (handle == -EEXIST && i < kAttempts) continue;
        if (handle < 0) path.clear();
        return {calls, std::move(path), handle};
    }
}

// What is there, nothing if nothing is.
std::optional<OpenFile> whatIsThere(FileCalls& calls, const fs::path& target) {
    OpenFile old(calls, calls.openThere(target));
    if (old.isOpen()) return old;
    if (old.error() == -ENOENT) return std::nullopt;
    raiseError(-old.error(), target);
}

// A file beside the target that can take its place with nothing lost; nothing if none can.
std::optional<NewFile> newFileFor(FileCalls& calls, const fs::path& target,
                                  const std::optional<OpenFile>& old, const FileState& state) {
    if (old && (!state.regular || state.links > 1)) return std::nullopt;
    // Until it has the old one's mode nobody else may look into it.
    NewFile beside = newFileIn(calls, target.parent_path(), !old);
    const int error = beside.file().error();
    if (error < 0 && old && isRefused(error)) return std::nullopt;
    if (error < 0) raiseError(-error, target);
    if (old && calls.carryAttributes(old->handle(), beside.file().handle()) < 0)
        return std::nullopt;
    return beside;
}

FileState stateOf(FileCalls& calls, const fs::path& target, const std::optional<OpenFile>& old) {
    FileState state;
    if (!old) return state;
    if (const int error = calls.state(old->handle(), state); error < 0) raiseError(-error, target);
    return state;
}

int overwrite(FileCalls& calls, FileHandle file, std::string_view bytes) {
    if (const int error = calls.writeAt(file, 0, bytes); error < 0) return error;
    if (const int error = calls.cut(file, bytes.size()); error < 0) return error;
    return calls.settle(file);
}

// What stands by while a file is written in place.
struct Copy {
    std::string target;
    std::string before;
    std::string after;
};

constexpr std::string_view kCopyHead = "kelvo copy 1\n";

std::string bytesOf(const Copy& copy) {
    std::string bytes(kCopyHead);
    for (const std::string* part : {&copy.target, &copy.before, &copy.after})
        bytes.append(std::to_string(part->size())).append("\n").append(*part).append("\n");
    return bytes;
}

std::optional<std::string> nextPart(std::string_view& rest) {
    std::size_t size = 0;
    const auto [end, error] = std::from_chars(rest.data(), rest.data() + rest.size(), size);
    if (error != std::errc()) return std::nullopt;
    rest.remove_prefix(static_cast<std::size_t>(end - rest.data()));
    if (rest.size() < 2 || size > rest.size() - 2) return std::nullopt;
    std::string part(rest.substr(1, size));
    rest.remove_prefix(size + 2);
    return part;
}

std::optional<Copy> copyIn(std::string_view bytes) {
    if (!bytes.starts_with(kCopyHead)) return std::nullopt;
    bytes.remove_prefix(kCopyHead.size());
    auto target = nextPart(bytes);
    auto before = nextPart(bytes);
    auto after = nextPart(bytes);
    if (!target || !before || !after) return std::nullopt;
    return Copy{std::move(*target), std::move(*before), std::move(*after)};
}

// Puts the copy beside the target or, where that may not be, among the temporary files. The path
// of the copy, or the error.
int standBy(FileCalls& calls, const fs::path& target, const std::string& bytes, fs::path& copy) {
    std::error_code ignored;
    int error = -ENOSPC;
    for (const fs::path& folder : {target.parent_path(), fs::temp_directory_path(ignored)}) {
        NewFile fresh = newFileIn(calls, folder, false);
        error = fresh.file().error();
        if (error == 0) error = calls.write(fresh.file().handle(), bytes);
        if (error == 0) error = calls.settle(fresh.file().handle());
        if (error == 0) error = fresh.file().close();
        copy = folder / randomName(kCopyEnd);
        if (error == 0) error = fresh.keepAs(copy);
        if (error == 0) {
            calls.settleFolder(folder);
            return 0;
        }
    }
    return error;
}

void writeInPlace(FileCalls& calls, const fs::path& target, OpenFile& old, std::string_view bytes) {
    std::error_code nowhere;
    const fs::path absolute = fs::absolute(target, nowhere);
    Copy copy{.target = (nowhere ? target : absolute).string(),
              .before = {},
              .after = std::string(bytes)};
    int error = calls.readAll(old.handle(), copy.before);
    // A file that may only be written: without a look at it nothing could be put back.
    if (error < 0) raiseError(-error, target);
    error = calls.reserve(old.handle(), bytes.size());
    if (error < 0) raiseError(-error, target);
    fs::path place;
    error = standBy(calls, target, bytesOf(copy), place);
    if (error < 0) raiseError(-error, target);
    error = overwrite(calls, old.handle(), bytes);
    // If not even what was there can be put back, the copy stays for the next start.
    const bool whole = error == 0 || overwrite(calls, old.handle(), copy.before) == 0;
    if (whole) calls.remove(place);
    if (error < 0) raiseError(-error, target);
}

// A device or a pipe has nothing to keep.
void writeStraight(FileCalls& calls, const fs::path& target, OpenFile& old,
                   std::string_view bytes) {
    int error = calls.write(old.handle(), bytes);
    if (error == 0) error = old.close();
    if (error < 0) raiseError(-error, target);
}

// Writes as it goes, beside the target or in it.
class AnewWriter final : public ByteWriter {
public:
    AnewWriter(std::unique_ptr<FileCalls> calls, fs::path target)
        : calls_(std::move(calls)),
          target_(std::move(target)),
          old_(whatIsThere(*calls_, target_)) {
        const FileState state = stateOf(*calls_, target_, old_);
        if (auto made = newFileFor(*calls_, target_, old_, state)) {
            beside_.emplace(std::move(*made));
            old_.reset();
        } else if (state.regular) {
            check(calls_->cut(old_->handle(), 0));
        }
    }

    void write(std::string_view bytes) override {
        OpenFile& file = beside_ ? beside_->file() : *old_;
        check(calls_->write(file.handle(), bytes));
    }

    void close() override {
        if (!beside_) {
            check(old_->close());
            return;
        }
        const int error = beside_->keepAs(target_);
        if (isRefused(error)) {
            copyIntoTarget(error);
        } else {
            check(error);
        }
        check(beside_->file().close());
    }

private:
    // In a folder where only owners may rename.
    void copyIntoTarget(int refused) {
        OpenFile target(*calls_, calls_->openThere(target_));
        if (!target.isOpen()) check(refused);
        const OpenFile from(*calls_, calls_->openThere(beside_->path()));
        std::string bytes;
        check(calls_->readAll(from.handle(), bytes));
        check(overwrite(*calls_, target.handle(), bytes));
    }

    void check(int error) const {
        if (error < 0) raiseError(-error, target_);
    }

    std::unique_ptr<FileCalls> calls_;
    fs::path target_;
    std::optional<OpenFile> old_;
    std::optional<NewFile> beside_;
};

}  // namespace

void replaceFile(FileCalls& calls, const fs::path& target, std::string_view bytes) {
    std::optional<OpenFile> old = whatIsThere(calls, target);
    const FileState state = stateOf(calls, target, old);
    if (old && !state.regular) {
        writeStraight(calls, target, *old, bytes);
        return;
    }
    if (std::optional<NewFile> beside = newFileFor(calls, target, old, state)) {
        old.reset();
        int error = calls.write(beside->file().handle(), bytes);
        if (error == 0) error = calls.settle(beside->file().handle());
        if (error < 0) raiseError(-error, target);
        error = beside->keepAs(target);
        if (error == 0) {
            // So that the new name outlives a power cut, too; a folder that can't be opened
            // changes nothing.
            calls.settleFolder(target.parent_path());
            return;
        }
        std::optional<OpenFile> again;
        if (isRefused(error)) {
            if (auto there = whatIsThere(calls, target)) again.emplace(std::move(*there));
        }
        if (!again) raiseError(-error, target);
        writeInPlace(calls, target, *again, bytes);
        return;
    }
    writeInPlace(calls, target, *old, bytes);
}

std::unique_ptr<ByteWriter> writeAnew(std::unique_ptr<FileCalls> calls, const fs::path& target) {
    return std::make_unique<AnewWriter>(std::move(calls), target);
}

void finishInPlace(FileCalls& calls, const fs::path& copyPath, std::string_view bytes) {
    const std::optional<Copy> copy = copyIn(bytes);
    if (!copy) return;
    OpenFile file(calls, calls.openThere(fs::path(copy->target)));
    std::string held;
    if (!file.isOpen() || calls.readAll(file.handle(), held) < 0) return;
    // Every byte is of before or of after, or was never written; or else somebody was here since.
    const auto byteOf = [](const std::string& text, std::size_t at) {
        return at < text.size() ? text[at] : '\0';
    };
    for (std::size_t i = 0; i < held.size(); ++i) {
        const char byte = held[i];
        if (byte != byteOf(copy->before, i) && byte != byteOf(copy->after, i) && byte != '\0') {
            calls.remove(copyPath);
            return;
        }
    }
    if (overwrite(calls, file.handle(), copy->after) == 0) calls.remove(copyPath);
}

bool isNameOfNewFile(std::string_view name) {
    return isNameWith(name, kNewEnd);
}

bool isNameOfCopy(std::string_view name) {
    return isNameWith(name, kCopyEnd);
}

}  // namespace kelvo
