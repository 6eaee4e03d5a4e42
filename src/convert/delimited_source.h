// Points out of delimited text.
#pragma once

#include <atomic>
#include <cstdint>
#include <memory>
#include <string>

#include "common/disk.h"
#include "convert/column_choice.h"
#include "convert/rows.h"

namespace kelvo {

// The longest row that is read, in bytes, its line ends included.
inline constexpr std::size_t kLongestRow = std::size_t{1} << 20U;

class DelimitedSource final : public RowSource {
public:
    // Reads the first row: it chooses the delimiter, and it is a header if none of the coordinate
    // columns in it is a number. Refusal for columns that it doesn't have. `size` is that of the
    // input in bytes, 0 if nobody knows.
    DelimitedSource(std::unique_ptr<ByteReader> input, const ColumnWishes& wishes,
                    std::uint64_t size = 0);

    bool gather(RowBlock& block) override;
    void read(RowBlock& block) const override;
    [[nodiscard]] double progress() const override;

private:
    [[nodiscard]] std::string_view waiting() const {
        return std::string_view(buffer_).substr(next_);
    }
    bool refill();
    [[nodiscard]] char delimiterOfFirstLine();
    // Whether a whole row waits, of this length with its line end.
    bool hasRow(std::size_t& length);
    void readRow(RowBlock& block, const RawRow& raw, long line) const;
    void takeFirstRow(const ColumnWishes& wishes);
    void pass(std::size_t length);
    void skipEmptyLines();

    std::unique_ptr<ByteReader> input_;
    std::uint64_t size_;
    std::atomic<std::uint64_t> taken_{0};
    std::string buffer_;
    std::size_t next_ = 0;
    bool exhausted_ = false;
    long line_ = 1;  // of the next row
    char delimiter_ = ',';
    bool knowsDelimiter_ = false;
    ColumnPlaces places_;
};

}  // namespace kelvo
