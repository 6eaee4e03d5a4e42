#include "trust/faulty_disk.h"

#include <algorithm>

namespace kelvo::testing {

class FaultyDisk::Reader final : public ByteReader {
public:
    Reader(FaultyDisk& disk, std::unique_ptr<ByteReader> under, std::string path)
        : disk_(disk), under_(std::move(under)), path_(std::move(path)) {}
    std::size_t read(std::span<char> buffer) override {
        disk_.pass("read " + path_);
        if (disk_.shortReads != 0) buffer = buffer.first(std::min(disk_.shortReads, buffer.size()));
        return under_->read(buffer);
    }

private:
    FaultyDisk& disk_;
    std::unique_ptr<ByteReader> under_;
    std::string path_;
};

class FaultyDisk::Writer final : public ByteWriter {
public:
    Writer(FaultyDisk& disk, std::unique_ptr<ByteWriter> under, std::string path)
        : disk_(disk), under_(std::move(under)), path_(std::move(path)) {}
    void write(std::string_view bytes) override {
        if (disk_.failsNow("write " + path_)) {
            if (disk_.how_ == Failing::Half) under_->write(bytes.substr(0, bytes.size() / 2));
            raise(disk_.fault_);
        }
        under_->write(bytes);
    }
    void close() override {
        disk_.pass("close " + path_);
        under_->close();
    }

private:
    FaultyDisk& disk_;
    std::unique_ptr<ByteWriter> under_;
    std::string path_;
};

void FaultyDisk::arm(int at, Fault fault, Failing how) {
    armed_ = true;
    at_ = at;
    count_ = 0;
    fault_ = fault;
    how_ = how;
    done.clear();
    failed.clear();
}

bool FaultyDisk::failsNow(const std::string& operation) {
    if (!armed_) return false;
    done.push_back(operation);
    ++count_;
    const bool fails = at_ != 0 && (count_ == at_ || (how_ == Failing::FromThere && count_ > at_));
    if (fails && failed.empty()) failed = operation;
    return fails;
}

std::unique_ptr<ByteReader> FaultyDisk::openForReading(const std::string& path) {
    pass("openForReading " + path);
    return std::make_unique<Reader>(*this, under_.openForReading(path), path);
}

std::unique_ptr<ByteWriter> FaultyDisk::openForWriting(const std::string& path) {
    pass("openForWriting " + path);
    return std::make_unique<Writer>(*this, under_.openForWriting(path), path);
}

std::unique_ptr<ByteWriter> FaultyDisk::openForAppending(const std::string& path) {
    pass("openForAppending " + path);
    return std::make_unique<Writer>(*this, under_.openForAppending(path), path);
}

void FaultyDisk::replace(const std::string& path, std::string_view bytes) {
    pass("replace " + path);
    under_.replace(path, bytes);
}

void FaultyDisk::rename(const std::string& from, const std::string& to) {
    pass("rename " + from);
    under_.rename(from, to);
}

std::string FaultyDisk::currentFolder() {
    pass("currentFolder");
    return under_.currentFolder();
}

void FaultyDisk::setCurrentFolder(const std::string& path) {
    pass("setCurrentFolder " + path);
    under_.setCurrentFolder(path);
}

}  // namespace kelvo::testing
