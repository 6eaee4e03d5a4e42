// The file system as the program uses it: a port with one real implementation and, in tests,
// some that fail on purpose. Paths are UTF-8 with the platform's separator.
//
// Faults of every operation: 53 file not found, 61 disk full, 70 permission denied,
// 71 disk not ready, 75 path/file access (a folder opened as a file), 76 path not found.
#pragma once

#include <cstddef>
#include <memory>
#include <span>
#include <string>
#include <string_view>

namespace kelvo {

class ByteReader {
public:
    virtual ~ByteReader() = default;

    // Fills the buffer from the file; fewer bytes than asked, and 0 in the end, mean its end.
    virtual std::size_t read(std::span<char> buffer) = 0;
};

class ByteWriter {
public:
    virtual ~ByteWriter() = default;

    virtual void write(std::string_view bytes) = 0;

    // Hands everything to the system and closes; a failure that comes late shows here.
    virtual void close() = 0;
};

class Disk {
public:
    virtual ~Disk() = default;

    virtual std::unique_ptr<ByteReader> openForReading(const std::string& path) = 0;

    // Replaces what the file held, in place.
    virtual std::unique_ptr<ByteWriter> openForWriting(const std::string& path) = 0;

    // Writes after what the file holds; creates it if it is missing.
    virtual std::unique_ptr<ByteWriter> openForAppending(const std::string& path) = 0;

    // Replaces the file as a whole: afterwards it holds either the old bytes or the new ones,
    // whatever happens on the way. A link is followed, a file that may not be written refused.
    virtual void replace(const std::string& path, std::string_view bytes) = 0;

    // True if both names lead to the same existing file.
    virtual bool sameFile(const std::string& one, const std::string& other) = 0;

    // The current folder without a trailing separator.
    virtual std::string currentFolder() = 0;
    virtual void setCurrentFolder(const std::string& path) = 0;
};

// The disk of the machine.
class PlatformDisk final : public Disk {
public:
    std::unique_ptr<ByteReader> openForReading(const std::string& path) override;
    std::unique_ptr<ByteWriter> openForWriting(const std::string& path) override;
    std::unique_ptr<ByteWriter> openForAppending(const std::string& path) override;
    void replace(const std::string& path, std::string_view bytes) override;
    bool sameFile(const std::string& one, const std::string& other) override;
    std::string currentFolder() override;
    void setCurrentFolder(const std::string& path) override;
};

#ifdef _WIN32
inline constexpr char kPathSeparator = '\\';
inline constexpr bool kFileNamesIgnoreCase = true;
#else
inline constexpr char kPathSeparator = '/';
inline constexpr bool kFileNamesIgnoreCase = false;
#endif

}  // namespace kelvo
