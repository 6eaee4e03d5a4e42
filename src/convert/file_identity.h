// Whether two names, or a name and a stream, are one file.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace kelvo {

struct FileIdentity {
    std::uint64_t device{};
    std::uint64_t number{};
    std::uint64_t size{};  // bytes

    [[nodiscard]] bool isSameFile(const FileIdentity& other) const {
        return device == other.device && number == other.number;
    }
};

// Of an ordinary file, by whatever spelling or link; none for devices and pipes, which may well be
// read and written, and for what isn't there.
[[nodiscard]] std::optional<FileIdentity> identityOfFile(const std::string& path);
[[nodiscard]] std::optional<FileIdentity> identityOfStream(int descriptor);

}  // namespace kelvo
