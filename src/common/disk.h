// The file system as the program uses it: a port with one real implementation and, in tests,
// some that fail on purpose. Paths are UTF-8 with the platform's separator.
//
// Faults of every operation: 53 file not found, 61 disk full, 70 permission denied,
// 71 disk not ready, 75 path/file access (a folder opened as a file, or what its reader would have
// to wait for), 76 path not found.
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

// What a program holds while it alone works on a folder; given back when it goes.
class Turn {
public:
    virtual ~Turn() = default;
};

class Disk {
public:
    virtual ~Disk() = default;

    virtual std::unique_ptr<ByteReader> openForReading(const std::string& path) = 0;

    // Replaces what the file held. On the machine's disk that happens when the writer is closed:
    // until then what is written stands apart, so that two programs that write one file never mix,
    // and one that is killed leaves the file as it was. A file that can't be replaced with all
    // that it has (see replace) is emptied at once and written as it goes.
    virtual std::unique_ptr<ByteWriter> openForWriting(const std::string& path) = 0;

    // Writes after what the file holds; creates it if it is missing.
    virtual std::unique_ptr<ByteWriter> openForAppending(const std::string& path) = 0;

    // Replaces the content of the file as a whole: afterwards it holds either the old bytes or the
    // new ones, whatever happens on the way. Owner, group, mode, access list, attributes and hard
    // links stay. A link is followed, a file that may not be written refused.
    virtual void replace(const std::string& path, std::string_view bytes) = 0;

    // Gives a file another name in its folder, in place of whatever had that name.
    virtual void rename(const std::string& from, const std::string& to) = 0;

    // True if both names lead to the same existing file, or to the same folder.
    virtual bool sameFile(const std::string& one, const std::string& other) = 0;

    // What tells files apart: one and the same for all names that lead to one file (spellings,
    // links), also where no file is yet. What is written under one name is read under another if
    // both are at one place.
    virtual std::string placeOf(const std::string& path) = 0;

    // Ends in a folder what programs that were killed while they wrote have left there. Nothing
    // that belongs to a program still running is touched; what fails is left for another time.
    virtual void tidy(const std::string& folder) = 0;

    // Waits until no other program has its turn at the folder, half a second at most: then, or
    // where turns can't be had, it goes on without.
    virtual std::unique_ptr<Turn> takeTurn(const std::string& folder) = 0;

    // The current folder without a trailing separator.
    virtual std::string currentFolder() = 0;
    virtual void setCurrentFolder(const std::string& path) = 0;
};

// How a pipe is met that nobody has opened at its other end.
enum class Pipes {
    Refuse,  // at once, by a fault, for who has a person waiting
    Wait,    // for the other end to come
};

// The disk of the machine.
class PlatformDisk final : public Disk {
public:
    explicit PlatformDisk(Pipes pipes = Pipes::Refuse) : pipes_(pipes) {}

    std::unique_ptr<ByteReader> openForReading(const std::string& path) override;
    std::unique_ptr<ByteWriter> openForWriting(const std::string& path) override;
    std::unique_ptr<ByteWriter> openForAppending(const std::string& path) override;
    void replace(const std::string& path, std::string_view bytes) override;
    void rename(const std::string& from, const std::string& to) override;
    bool sameFile(const std::string& one, const std::string& other) override;
    std::string placeOf(const std::string& path) override;
    void tidy(const std::string& folder) override;
    std::unique_ptr<Turn> takeTurn(const std::string& folder) override;
    std::string currentFolder() override;
    void setCurrentFolder(const std::string& path) override;

private:
    Pipes pipes_;
    bool temporaryFolderIsTidy_ = false;
};

#ifdef _WIN32
inline constexpr char kPathSeparator = '\\';
inline constexpr bool kFileNamesIgnoreCase = true;
#else
inline constexpr char kPathSeparator = '/';
inline constexpr bool kFileNamesIgnoreCase = false;
#endif

}  // namespace kelvo
