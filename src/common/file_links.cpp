#include "common/file_links.h"

#include <system_error>

namespace kelvo {

namespace fs = std::filesystem;

fs::path endOfLinks(fs::path path) {
    constexpr int kMostLinks = 40;  // as Linux has it
    std::error_code error;
    for (int i = 0; i < kMostLinks && fs::is_symlink(fs::symlink_status(path, error)); ++i) {
        const fs::path next = fs::read_symlink(path, error);
        if (error) break;
        path = next.is_absolute() ? next : path.parent_path() / next;
    }
    return path;
}

}  // namespace kelvo
