#include "exchange/gdal/files_in_waiting.h"

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <string_view>
#include <system_error>
#include <vector>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include "common/file_links.h"
#include "exchange/point_files.h"

namespace kelvo {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kFrontOfName = ".kelvo-unfinished-";
constexpr std::string_view kLettersToCome = "XXXXXX";

int openFolder(const fs::path& folder) {
    return ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
}

bool isNameOfFolder(const std::string& name) {
    return name.starts_with(kFrontOfName) &&
           name.size() == kFrontOfName.size() + kLettersToCome.size();
}

// Where a file system has no locks, or doesn't let us, everything stays.
void removeWhatWasLeft(const fs::path& parent) {
    std::error_code error;
    std::vector<fs::path> folders;
    for (fs::directory_iterator entry(parent, error), end; !error && entry != end;
         entry.increment(error)) {
        if (isNameOfFolder(entry->path().filename().string())) folders.push_back(entry->path());
    }
    for (const fs::path& folder : folders) {
        const int lock = openFolder(folder);
        if (lock < 0) continue;
        if (flock(lock, LOCK_EX | LOCK_NB) == 0) fs::remove_all(folder, error);
        ::close(lock);
    }
}

[[noreturn]] void fail(int error, const std::string& path) {
    throw ExchangeFault(sentenceOf(error, path));
}

void settle(const fs::path& file, const std::string& given) {
    const int descriptor = ::open(file.c_str(), O_RDONLY | O_CLOEXEC);
    if (descriptor < 0) fail(errno, given);
    const int failed = fsync(descriptor) != 0 && errno != EINVAL && errno != EROFS ? errno : 0;
    ::close(descriptor);
    if (failed != 0) fail(failed, given);
}

}  // namespace

std::string sentenceOf(int error, const std::string& path) {
    switch (error) {
        case ENOSPC:
        case EFBIG:
        case EDQUOT:
            return "디스크가 꽉 찼습니다 (" + path + ")";
        case EACCES:
        case EPERM:
        case EROFS:
            return "파일을 쓸 권한이 없습니다 (" + path + ")";
        case ENOENT:
        case ENOTDIR:
            return "폴더를 찾을 수 없습니다 (" + path + ")";
        default:
            return "파일을 쓸 수 없습니다: " + std::string(std::strerror(error)) + " (" + path +
                   ")";
    }
}

FilesInWaiting::FilesInWaiting(const std::string& target)
    : given_(target), target_(endOfLinks(target)) {
    std::error_code ignored;
    const fs::file_status status = fs::status(target_, ignored);
    if (fs::exists(status) && !fs::is_regular_file(status))
        throw ExchangeFault("파일이 아니어서 쓸 수 없습니다 (" + given_ + ")");
    if (fs::exists(status) && access(target_.c_str(), W_OK) != 0) fail(errno, given_);
    const fs::path parent = target_.has_parent_path() ? target_.parent_path() : fs::path(".");
    removeWhatWasLeft(parent);
    makeFolder(parent);
}

void FilesInWaiting::makeFolder(const fs::path& parent) {
    for (;;) {
        std::error_code error;
        std::string pattern = (parent / kFrontOfName).string().append(kLettersToCome);
        if (mkdtemp(pattern.data()) == nullptr) fail(errno, given_);
        folder_ = pattern;
        lock_ = openFolder(folder_);
        if (lock_ >= 0) flock(lock_, LOCK_EX);
        // Before it was locked somebody else may have taken it for one that was left.
        if (fs::exists(folder_, error) || error) return;
        if (lock_ >= 0) ::close(lock_);
    }
}

FilesInWaiting::~FilesInWaiting() {
    std::error_code ignored;
    fs::remove_all(folder_, ignored);
    if (lock_ >= 0) ::close(lock_);
}

void FilesInWaiting::takePlaces(bool all) const {
    std::vector<fs::path> files;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder_)) {
        if (all && entry.path().filename() != target_.filename()) files.push_back(entry.path());
    }
    files.push_back(folder_ / target_.filename());
    for (const fs::path& file : files) settle(file, given_);
    std::error_code error;
    const fs::path parent = target_.parent_path();
    if (all) {
        for (const char* const index : {".qix", ".sbn", ".sbx"})
            fs::remove(fs::path(target_).replace_extension(index), error);
    }
    for (const fs::path& file : files) {
        const fs::path place = parent / file.filename();
        const fs::file_status old = fs::status(place, error);
        if (fs::exists(old)) fs::permissions(file, old.permissions(), error);
        fs::rename(file, place, error);
        if (error) fail(error.value(), given_);
    }
}

}  // namespace kelvo
