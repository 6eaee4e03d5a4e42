#include "common/text_file.h"

#include <algorithm>
#include <utility>

#include "common/code_page.h"
#include "common/number_text.h"
#include "common/run_time_fault.h"

namespace kelvo {

namespace {

constexpr std::size_t kWriteBuffer = 32768;
constexpr int kEndOfFile = -1;

void closeQuietly(ByteWriter& file) {
    try {
        file.close();
    } catch (const RuntimeFault&) {
        // Another fault is on its way; a late failure of this file adds nothing to it.
    }
}

bool isLineEnd(char c) {
    return c == '\r' || c == '\n';
}

}  // namespace

TextReader::TextReader(Disk& disk, const std::string& path)
    : TextReader(disk.openForReading(path)) {}

TextReader::TextReader(std::unique_ptr<ByteReader> file) : file_(std::move(file)) {}

bool TextReader::fill() {
    if (next_ < end_) return true;
    if (exhausted_) return false;
    next_ = 0;
    end_ = file_->read(buffer_);
    exhausted_ = end_ == 0;
    return end_ > 0;
}

int TextReader::peek() {
    return fill() ? static_cast<unsigned char>(buffer_[next_]) : kEndOfFile;
}

bool TextReader::atEnd() {
    return !fill();
}

void TextReader::checkLength(std::size_t length) {
    if (length > kLongestLine)
        raise(Fault::Overflow,
              "줄의 길이가 한계 " + std::to_string(kLongestLine) + "바이트를 넘었습니다");
}

// Steps over one line end, which stands at the front; the end of the file ends a line as well.
void TextReader::skipLineEnd() {
    const int first = peek();
    ++linesRead_;
    if (first == kEndOfFile) return;
    ++next_;
    if (first == '\r' && peek() == '\n') ++next_;
}

void TextReader::readLine(std::string& line) {
    lineInHand_ = linesRead_ + 1;
    if (atEnd()) {
        lineInHand_ = std::max(1L, linesRead_);
        raise(Fault::InputPastEnd);
    }
    raw_.clear();
    while (fill()) {
        const char* const first = buffer_.data() + next_;
        const char* const last = buffer_.data() + end_;
        const char* const lineEnd = std::find_if(first, last, isLineEnd);
        raw_.append(first, lineEnd);
        checkLength(raw_.size());
        next_ += static_cast<std::size_t>(lineEnd - first);
        if (lineEnd != last) break;
    }
    skipLineEnd();
    line.clear();
    decodeCodePage(raw_, line);
}

bool TextReader::isAtEndOfItem() {
    const int next = peek();
    return next == ',' || next == '\r' || next == '\n' || next == kEndOfFile;
}

// Behind the opening quote; up to the closing one, which goes with it.
void TextReader::readQuoted() {
    bool ownQuotes = false;
    for (int next = peek(); next != kEndOfFile; next = peek()) {
        if (ownQuotes && (next == '\r' || next == '\n')) return;
        ++next_;
        if (next == '"') {
            // `""x"`: a quote that the text itself begins with.
            if (raw_.empty() && !isAtEndOfItem() && peek() != ' ') ownQuotes = true;
            if (!ownQuotes || isAtEndOfItem()) return;
        }
        raw_.push_back(static_cast<char>(next));
        checkLength(raw_.size());
    }
}

void TextReader::readTextItem(std::string& item) {
    if (atEnd()) raise(Fault::InputPastEnd);
    while (peek() == ' ') ++next_;
    raw_.clear();
    const bool quoted = peek() == '"';
    if (quoted) {
        ++next_;
        readQuoted();
    }
    for (std::size_t length = raw_.size(); !isAtEndOfItem(); checkLength(++length)) {
        // Behind the closing quote only the end of the item is looked for.
        if (!quoted) raw_.push_back(buffer_[next_]);
        ++next_;
    }
    if (peek() == ',')
        ++next_;
    else
        skipLineEnd();
    item.clear();
    decodeCodePage(raw_, item);
}

double TextReader::readNumber() {
    const auto isBlank = [](int c) { return c == ' ' || c == '\t'; };
    const auto isLineEnd = [](int c) { return c == '\r' || c == '\n'; };
    for (int c = peek(); isBlank(c) || isLineEnd(c) || c == ','; c = peek()) {
        if (isLineEnd(c))
            skipLineEnd();
        else
            ++next_;
    }
    if (atEnd()) raise(Fault::InputPastEnd);
    raw_.clear();
    for (int c = peek(); c != kEndOfFile && !isBlank(c) && !isLineEnd(c) && c != ','; c = peek()) {
        raw_.push_back(buffer_[next_++]);
        checkLength(raw_.size());
    }
    // What parts it from the next item goes with it, so that a line read next is the next line.
    while (isBlank(peek())) ++next_;
    if (peek() == ',')
        ++next_;
    else if (isLineEnd(peek()))
        skipLineEnd();
    return strictNumber(raw_);
}

TextWriter::TextWriter(Disk& disk, const std::string& path, WriteMode mode)
    : TextWriter(mode == WriteMode::Append ? disk.openForAppending(path)
                                           : disk.openForWriting(path)) {}

TextWriter::TextWriter(std::unique_ptr<ByteWriter> file) : file_(std::move(file)) {
    buffer_.reserve(kWriteBuffer + 1024);
}

TextWriter::~TextWriter() {
    try {
        if (file_) close();
    } catch (const std::exception&) {
        // Another fault is on its way; a late failure of this file adds nothing to it.
        file_.reset();
    }
}

void TextWriter::line(std::string_view text) {
    encodeCodePage(text, buffer_);
    buffer_ += "\r\n";
    if (buffer_.size() >= kWriteBuffer) flush();
}

void TextWriter::flush() {
    if (buffer_.empty()) return;
    const std::string bytes = std::exchange(buffer_, {});
    buffer_.reserve(kWriteBuffer + 1024);
    file_->write(bytes);
}

void TextWriter::close() {
    if (!file_) return;
    const std::unique_ptr<ByteWriter> file = std::exchange(file_, nullptr);
    try {
        if (!buffer_.empty()) file->write(std::exchange(buffer_, {}));
    } catch (const RuntimeFault&) {
        // What did arrive stands.
        closeQuietly(*file);
        throw;
    }
    file->close();
}

std::string readWholeFile(Disk& disk, const std::string& path, std::size_t largest) {
    const auto file = disk.openForReading(path);
    std::string bytes;
    std::array<char, 65536> buffer{};
    while (const std::size_t count = file->read(buffer)) {
        bytes.append(buffer.data(), count);
        if (bytes.size() > largest) raise(Fault::Overflow, "파일이 너무 큽니다 (" + path + ")");
    }
    return bytes;
}

std::string readWholeText(Disk& disk, const std::string& path, std::size_t largest) {
    const std::string bytes = readWholeFile(disk, path, largest);
    std::string text;
    text.reserve(bytes.size() + bytes.size() / 2);
    std::string_view rest = bytes;
    while (!rest.empty()) {
        const auto end = std::find_if(rest.begin(), rest.end(), isLineEnd);
        const auto lineEnd = static_cast<std::size_t>(end - rest.begin());
        decodeCodePage(rest.substr(0, lineEnd), text);
        if (end == rest.end()) break;
        text += "\r\n";
        const bool pair = rest.substr(lineEnd, 2) == "\r\n";
        rest.remove_prefix(lineEnd + (pair ? 2 : 1));
    }
    return text;
}

void replaceWholeText(Disk& disk, const std::string& path, std::string_view text) {
    disk.replace(path, encodeCodePage(text));
}

}  // namespace kelvo
