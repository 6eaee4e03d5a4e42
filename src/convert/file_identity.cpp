#include "convert/file_identity.h"

#include <sys/stat.h>

namespace kelvo {

namespace {

std::optional<FileIdentity> identityOf(const struct stat& status) {
    if (!S_ISREG(status.st_mode)) return std::nullopt;
    return FileIdentity{.device = status.st_dev,
                        .number = status.st_ino,
                        .size = static_cast<std::uint64_t>(status.st_size)};
}

}  // namespace

std::optional<FileIdentity> identityOfFile(const std::string& path) {
    struct stat status {};
    if (::stat(path.c_str(), &status) != 0) return std::nullopt;
    return identityOf(status);
}

std::optional<FileIdentity> identityOfStream(int descriptor) {
    struct stat status {};
    if (::fstat(descriptor, &status) != 0) return std::nullopt;
    return identityOf(status);
}

}  // namespace kelvo
