// A disk that fails at a chosen operation, in one of several ways, and keeps count.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "common/disk.h"
#include "common/run_time_fault.h"
#include "support/memory_disk.h"

namespace kelvo::testing {

enum class Failing {
    Once,       // the operation isn't carried out, the next one is
    Half,       // half of the bytes of a write arrive first
    FromThere,  // every operation from this one on fails
};

class FaultyDisk final : public Disk {
public:
    explicit FaultyDisk(MemoryDisk& under) : under_(under) {}

    // From now on operations are counted, and number `at`, from 1, fails. 0 only counts.
    void arm(int at, Fault fault, Failing how);
    void disarm() { armed_ = false; }

    // Readers give at most so many bytes at a time.
    std::size_t shortReads = 0;

    // What was done since arming, as "write /app/kelvo.det", and what failed.
    std::vector<std::string> done;
    std::string failed;

    std::unique_ptr<ByteReader> openForReading(const std::string& path) override;
    std::unique_ptr<ByteWriter> openForWriting(const std::string& path) override;
    std::unique_ptr<ByteWriter> openForAppending(const std::string& path) override;
    void replace(const std::string& path, std::string_view bytes) override;
    void rename(const std::string& from, const std::string& to) override;
    bool sameFile(const std::string& one, const std::string& other) override {
        return under_.sameFile(one, other);
    }
    std::string placeOf(const std::string& path) override { return under_.placeOf(path); }
    void tidy(const std::string& folder) override { under_.tidy(folder); }
    std::unique_ptr<Turn> takeTurn(const std::string& folder) override {
        return under_.takeTurn(folder);
    }
    std::string currentFolder() override;
    void setCurrentFolder(const std::string& path) override;

private:
    class Reader;
    class Writer;

    // True if the operation fails now.
    [[nodiscard]] bool failsNow(const std::string& operation);
    void pass(const std::string& operation) {
        if (failsNow(operation)) raise(fault_);
    }

    MemoryDisk& under_;
    bool armed_ = false;
    int at_ = 0;
    int count_ = 0;
    Fault fault_ = Fault::DiskFull;
    Failing how_ = Failing::Once;
};

}  // namespace kelvo::testing
