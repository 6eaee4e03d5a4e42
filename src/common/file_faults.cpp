#include "common/file_faults.h"

#include <cerrno>
#include <system_error>

namespace kelvo {

namespace fs = std::filesystem;

fs::path pathOf(std::string_view text) {
    return {std::u8string(text.begin(), text.end())};
}

std::string textOf(const fs::path& path) {
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
}

Fault faultOf(int error, const fs::path& path) {
    std::error_code ignored;
    switch (error) {
        case ENOENT:
            // A missing folder and a missing file have one error; the folder tells them apart.
            if (!path.has_filename()) return Fault::PathNotFound;
            return path.has_parent_path() && !fs::is_directory(path.parent_path(), ignored)
                       ? Fault::PathNotFound
                       : Fault::FileNotFound;
        case ENOTDIR:
        case ENAMETOOLONG:
            return Fault::PathNotFound;
        case ENOSPC:
        case EFBIG:
#ifdef EDQUOT
        case EDQUOT:
#endif
            return Fault::DiskFull;
        case EACCES:
        case EPERM:
        case EROFS:
            return fs::is_directory(path, ignored) ? Fault::PathFileAccess
                                                   : Fault::PermissionDenied;
        case EIO:
        case ENXIO:
        case ENODEV:
            return Fault::DiskNotReady;
        default:
            return Fault::PathFileAccess;
    }
}

void raiseError(int error, const fs::path& path) {
    raiseError(error, path, textOf(path));
}

void raiseError(int error, const fs::path& path, const std::string& name) {
    const Fault fault = faultOf(error, path);
    raise(fault, std::string(faultSentence(fault)) + " (" + name + ")");
}

}  // namespace kelvo
