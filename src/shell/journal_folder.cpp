#include "shell/journal_folder.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <random>
#include <utility>

#include "common/file_calls.h"
#include "common/file_faults.h"
#include "common/folder_turn.h"
#include "common/path_text.h"
#include "common/text_file.h"

namespace kelvo {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kPathHead = "파일: ";
constexpr std::string_view kTimeHead = "시각: ";
constexpr std::string_view kLineEnd = "\r\n";
constexpr std::chrono::milliseconds kNoPatience{0};
constexpr std::size_t kNameLength = 16;
// A text takes more room in UTF-8 than in its file.
constexpr std::size_t kLargestEntry = 2 * kLargestText;

const char* fileOf(JournalStore::Shelf shelf) {
    return shelf == JournalStore::Shelf::OnView ? "viewer.txt" : "discarded.txt";
}

std::string newName() {
    std::random_device random;
    std::array<char, kNameLength + 1> name{};
    std::snprintf(name.data(), name.size(), "%08x%08x", random(), random());
    return name.data();
}

bool isName(std::string_view name) {
    return name.size() == kNameLength &&
           name.find_first_not_of("0123456789abcdef") == std::string_view::npos;
}

std::string bytesOf(const UnsavedText& text) {
    std::string bytes(kPathHead);
    bytes.append(pathAsLine(text.path)).append(kLineEnd);
    bytes.append(kTimeHead).append(text.since).append(kLineEnd).append(kLineEnd);
    return bytes.append(text.text);
}

// The rest of a line that begins so, which goes with it.
std::optional<std::string> lineBehind(std::string_view head, std::string_view& rest) {
    const std::size_t end = rest.find(kLineEnd);
    if (!rest.starts_with(head) || end == std::string_view::npos) return std::nullopt;
    std::string line(rest.substr(head.size(), end - head.size()));
    rest.remove_prefix(end + kLineEnd.size());
    return line;
}

std::optional<UnsavedText> textIn(std::string_view bytes) {
    const auto path = lineBehind(kPathHead, bytes);
    const auto since = path ? lineBehind(kTimeHead, bytes) : std::nullopt;
    if (!since || !bytes.starts_with(kLineEnd)) return std::nullopt;
    bytes.remove_prefix(kLineEnd.size());
    return UnsavedText{pathFromText(*path), std::string(bytes), *since};
}

}  // namespace

JournalFolder::JournalFolder(const std::string& applicationFolder)
    : root_(pathOf(applicationFolder) / "unsaved") {}

JournalFolder::~JournalFolder() {
    // Folders that held nothing any more went with it; the rest is for the next start.
    ownTurn_.reset();
    if (!own_.empty()) removeIfEmpty(own_);
}

bool JournalFolder::haveOwnFolder() {
    if (!own_.empty()) return true;
    std::error_code error;
    fs::create_directory(root_, error);
    fs::permissions(root_, fs::perms::owner_all, error);
    constexpr int kAttempts = 8;
    for (int i = 0; i < kAttempts; ++i) {
        const fs::path folder = root_ / newName();
        if (!fs::create_directory(folder, error)) return false;
        // Somebody who tidies up may have come between.
        auto turn = takeTurnAt(folder, kNoPatience);
        if (!turn || !fs::exists(folder, error)) continue;
        own_ = folder;
        ownTurn_ = std::move(turn);
        return true;
    }
    return false;
}

bool JournalFolder::keep(Shelf shelf, const UnsavedText& text) {
    if (!haveOwnFolder()) return false;
    try {
        disk_.replace(textOf(own_ / fileOf(shelf)), bytesOf(text));
        return true;
    } catch (const RuntimeFault&) {
        return false;
    }
}

void JournalFolder::clear(Shelf shelf) {
    if (own_.empty()) return;
    std::error_code ignored;
    fs::remove(own_ / fileOf(shelf), ignored);
    if (!fs::is_empty(own_, ignored)) return;
    ownTurn_.reset();
    removeIfEmpty(std::exchange(own_, {}));
}

void JournalFolder::removeIfEmpty(const fs::path& folder) {
    std::error_code ignored;
    // A save that was cut short leaves its beginning.
    disk_.tidy(textOf(folder));
    fs::remove(folder, ignored);
    fs::remove(root_, ignored);
}

void JournalFolder::takeWhatWasLeft() {
    if (std::exchange(looked_, true)) return;
    std::error_code error;
    for (const std::string& name : SystemFileCalls().namesIn(root_)) {
        const fs::path folder = root_ / pathOf(name);
        if (!isName(name) || folder == own_) continue;
        if (auto turn = takeTurnAt(folder, kNoPatience)) left_.emplace(name, std::move(turn));
    }
    for (auto at = left_.begin(); at != left_.end();) {
        const fs::path folder = root_ / at->first;
        const bool holdsText = fs::exists(folder / fileOf(Shelf::OnView), error) ||
                               fs::exists(folder / fileOf(Shelf::Discarded), error);
        if (!holdsText) removeIfEmpty(folder);
        at = holdsText ? std::next(at) : left_.erase(at);
    }
}

std::vector<JournalStore::Left> JournalFolder::left(Shelf shelf) {
    takeWhatWasLeft();
    std::vector<std::pair<fs::file_time_type, Left>> found;
    for (const auto& [name, turn] : left_) {
        const fs::path file = root_ / name / fileOf(shelf);
        std::error_code error;
        const auto time = fs::last_write_time(file, error);
        if (error) continue;
        try {
            if (auto text = textIn(readWholeFile(disk_, textOf(file), kLargestEntry)))
                found.emplace_back(time, Left{std::move(*text), name});
        } catch (const RuntimeFault&) {
            // It stays for a start that can read it.
        }
    }
    std::stable_sort(found.begin(), found.end(),
                     [](const auto& one, const auto& other) { return one.first > other.first; });
    std::vector<Left> result;
    result.reserve(found.size());
    for (auto& [time, left] : found) result.push_back(std::move(left));
    return result;
}

void JournalFolder::forget(Shelf shelf, const std::string& name) {
    const auto at = left_.find(name);
    if (at == left_.end()) return;
    const fs::path folder = root_ / name;
    std::error_code ignored;
    fs::remove(folder / fileOf(shelf), ignored);
    if (!fs::is_empty(folder, ignored)) return;
    left_.erase(at);
    removeIfEmpty(folder);
}

}  // namespace kelvo
