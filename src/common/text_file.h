// Sequential text files in the Korean code page (CP949).
//
// Reading takes CR LF, LF and CR as line ends; writing writes CR LF. All texts handed in and out
// are UTF-8. A file is at its end when no byte follows the line end consumed last.
#pragma once

#include <array>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include "common/disk.h"

namespace kelvo {

// The longest line, or item of a line, that is read, in bytes; a longer one is fault 6.
inline constexpr std::size_t kLongestLine = 16U << 20U;

class TextReader {
public:
    // Faults as Disk::openForReading.
    TextReader(Disk& disk, const std::string& path);
    // Text from wherever the bytes come.
    explicit TextReader(std::unique_ptr<ByteReader> file);

    [[nodiscard]] bool atEnd();

    // Reads one line without its line end. Fault 62 at the end of the file.
    void readLine(std::string& line);

    // Reads one text item: leading blanks go; it ends at a comma or a line end, which goes with
    // it. An item in double quotes is read without them; if it begins with a quote of its own,
    // after the opening one, it ends at a quote with which the item ends. Fault 62 at the end of
    // the file.
    void readTextItem(std::string& item);

    // Reads one number: any run of blanks, commas and line ends parts it from the one before. A
    // text that is no number is fault 13, a number beyond the type fault 6, the end of the file
    // fault 62.
    [[nodiscard]] double readNumber();

    // The line that readLine took last or, after its fault, the one that this struck; the last one
    // for the end of the file. Lines count from 1.
    [[nodiscard]] long lineInHand() const { return lineInHand_; }

private:
    bool fill();
    [[nodiscard]] int peek();
    void skipLineEnd();
    [[nodiscard]] bool isAtEndOfItem();
    void readQuoted();
    static void checkLength(std::size_t length);

    std::unique_ptr<ByteReader> file_;
    std::array<char, 16384> buffer_;
    std::size_t next_ = 0;
    std::size_t end_ = 0;
    bool exhausted_ = false;
    long linesRead_ = 0;  // ended so far, by a line end or by the end of the file
    long lineInHand_ = 1;
    std::string raw_;
};

enum class WriteMode { Replace, Append };

class TextWriter {
public:
    // Opens at once. Faults as Disk::openForWriting and openForAppending.
    TextWriter(Disk& disk, const std::string& path, WriteMode mode = WriteMode::Replace);
    // To wherever the bytes go.
    explicit TextWriter(std::unique_ptr<ByteWriter> file);
    TextWriter(const TextWriter&) = delete;
    TextWriter& operator=(const TextWriter&) = delete;
    // What was written stands in the file, also when the writer goes in the course of a fault.
    ~TextWriter();

    // Writes the text and a line end. A failed write is a fault, at the latest in close().
    void line(std::string_view text);

    void close();

private:
    void flush();

    std::unique_ptr<ByteWriter> file_;
    std::string buffer_;
};

// The largest file that is held as a whole, in bytes; a larger one is fault 6.
inline constexpr std::size_t kLargestText = 64U << 20U;

// The bytes of a file as they stand; more than `largest` are fault 6.
[[nodiscard]] std::string readWholeFile(Disk& disk, const std::string& path,
                                        std::size_t largest = kLargestText);

// The whole text of a file with every line end made CR LF, and a text put in place of a file.
[[nodiscard]] std::string readWholeText(Disk& disk, const std::string& path,
                                        std::size_t largest = kLargestText);
void replaceWholeText(Disk& disk, const std::string& path, std::string_view text);

}  // namespace kelvo
