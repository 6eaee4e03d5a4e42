#include "common/folder_turn.h"

#include <thread>

#ifdef _WIN32
#include <windows.h>
#else
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>
#include <cerrno>
#endif

namespace kelvo {

namespace {

constexpr std::chrono::milliseconds kPause{5};

#ifdef _WIN32

// A file that only one may have open, and that goes with it.
class FolderTurn final : public Turn {
public:
    explicit FolderTurn(const std::filesystem::path& folder)
        : file_(CreateFileW((folder / "kelvo.lock").c_str(), GENERIC_WRITE, 0, nullptr, OPEN_ALWAYS,
                            FILE_FLAG_DELETE_ON_CLOSE, nullptr)) {}
    ~FolderTurn() override {
        if (isTaken()) CloseHandle(file_);
    }
    FolderTurn(const FolderTurn&) = delete;
    FolderTurn& operator=(const FolderTurn&) = delete;

    [[nodiscard]] bool isTaken() const { return file_ != INVALID_HANDLE_VALUE; }
    [[nodiscard]] static bool mayComeYet() {
        return GetLastError() == ERROR_SHARING_VIOLATION || GetLastError() == ERROR_ACCESS_DENIED;
    }

private:
    HANDLE file_;
};

#else

// The folder itself is locked, so that no file of its own has to be made and forgotten.
class FolderTurn final : public Turn {
public:
    explicit FolderTurn(const std::filesystem::path& folder)
        : file_(open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)),
          taken_(file_ >= 0 && flock(file_, LOCK_EX | LOCK_NB) == 0) {}
    ~FolderTurn() override {
        if (file_ >= 0) close(file_);
    }
    FolderTurn(const FolderTurn&) = delete;
    FolderTurn& operator=(const FolderTurn&) = delete;

    [[nodiscard]] bool isTaken() const { return taken_; }
    [[nodiscard]] static bool mayComeYet() { return errno == EWOULDBLOCK; }

private:
    int file_;
    bool taken_;
};

#endif

}  // namespace

std::unique_ptr<Turn> takeTurnAt(const std::filesystem::path& folder,
                                 std::chrono::milliseconds patience) {
    for (auto waited = kPause;; waited += kPause) {
        auto turn = std::make_unique<FolderTurn>(folder);
        if (turn->isTaken()) return turn;
        if (!FolderTurn::mayComeYet() || waited > patience) return nullptr;
        std::this_thread::sleep_for(kPause);
    }
}

}  // namespace kelvo
