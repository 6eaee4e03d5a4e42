#include "convert/delimited_source.h"

#include <algorithm>
#include <array>
#include <utility>

#include "common/run_time_fault.h"
#include "common/utf8.h"
#include "convert/coordinate_text.h"
#include "convert/delimited_fields.h"
#include "convert/refusal.h"

namespace kelvo {

namespace {

constexpr std::size_t kReadAtOnce = std::size_t{64} << 10U;
// A block holds no more bytes than this, unless one row alone does.
constexpr std::size_t kBytesOfBlock = std::size_t{128} << 10U;
constexpr std::size_t kMostColumns = 32;

std::string placed(const std::string& reason, long line) {
    return reason + " (line " + std::to_string(line) + ")";
}

bool isNumberAt(const std::vector<std::string_view>& row, std::size_t place) {
    return place < row.size() && readCoordinate(row[place]).isSpelled();
}

// By the rule for a first line: no coordinate in it is a number.
bool isHeader(const std::vector<std::string_view>& row, const ColumnWishes& wishes) {
    const ColumnPlaces places = numberedPlaces(wishes);
    for (const std::size_t place : {places.first, places.second, places.third})
        if (isNumberAt(row, place)) return false;
    for (std::size_t i = 1; i < wishes.columns.size(); ++i)
        if (wishes.columns[i] && readCoordinate(wishes.columns[i]->name).isSpelled()) return false;
    return true;
}

// The value, or why there is none.
std::string complaintOf(const CoordinateRead& read, std::string_view text, bool mayBeMissing) {
    using enum CoordinateRead::Outcome;
    switch (read.outcome) {
        case Number:
            return {};
        case Empty:
            return mayBeMissing ? std::string() : "좌표가 비어 있습니다";
        case NoNumber:
            return "숫자가 아닙니다: " + quotedPiece(text);
        case OutOfRange:
            return "숫자가 너무 큽니다: " + quotedPiece(text);
    }
    return {};
}

}  // namespace

DelimitedSource::DelimitedSource(std::unique_ptr<ByteReader> input, const ColumnWishes& wishes,
                                 std::uint64_t size)
    : input_(std::move(input)), size_(size) {
    takeFirstRow(wishes);
}

bool DelimitedSource::refill() {
    if (exhausted_) return false;
    buffer_.erase(0, next_);
    next_ = 0;
    const std::size_t had = buffer_.size();
    buffer_.resize(had + kReadAtOnce);
    std::size_t count = 0;
    try {
        count = input_->read(std::span(buffer_).subspan(had));
    } catch (const RuntimeFault& fault) {
        throw Refusal(fault.text());
    }
    buffer_.resize(had + count);
    exhausted_ = count == 0;
    return count > 0;
}

// What the first line is split by; for that it must be there, quoted line ends and all.
char DelimitedSource::delimiterOfFirstLine() {
    const auto shown = [this] { return waiting().substr(0, kLongestRow); };
    const auto isWhole = [](std::string_view text) {
        return text.size() == kLongestRow || firstLineOf(text).size() < text.size();
    };
    while (!isWhole(shown()) && refill()) {
    }
    return delimiterOf(firstLineOf(shown()));
}

bool DelimitedSource::hasRow(std::size_t& length) {
    const char delimiter = knowsDelimiter_ ? delimiter_ : delimiterOfFirstLine();
    for (;;) {
        const std::string_view text = waiting();
        const std::size_t end = endOfRow(text, delimiter);
        if (end != std::string_view::npos && end < kLongestRow) {
            length = end + 1;
            return true;
        }
        if (end != std::string_view::npos || text.size() > kLongestRow)
            throw Refusal("line " + std::to_string(line_) + ": 한 행이 " +
                          std::to_string(kLongestRow) +
                          "바이트보다 깁니다. 닫지 않은 따옴표가 있는지 확인하십시오");
        if (!refill()) {
            length = waiting().size();
            return length > 0;
        }
    }
}

void DelimitedSource::pass(std::size_t length) {
    const std::string_view row = waiting().substr(0, length);
    line_ += std::count(row.begin(), row.end(), '\n');
    next_ += length;
    taken_.fetch_add(length, std::memory_order_relaxed);
}

// Lines without any character, which are counted all the same.
void DelimitedSource::skipEmptyLines() {
    for (std::size_t length = 0; hasRow(length);) {
        if (!withoutLineEnd(waiting().substr(0, length)).empty()) return;
        pass(length);
    }
}

void DelimitedSource::takeFirstRow(const ColumnWishes& wishes) {
    places_ = numberedPlaces(wishes);
    while (buffer_.size() < kUtf8Mark.size() && refill()) {
    }
    next_ = buffer_.size() - withoutMark(buffer_).size();
    taken_ = next_;
    skipEmptyLines();
    std::size_t length = 0;
    if (!hasRow(length)) return;
    std::string row(withoutLineEnd(waiting().substr(0, length)));
    delimiter_ = delimiterOf(row);
    knowsDelimiter_ = true;
    const auto fields = allFields(row, delimiter_);
    const bool header = isHeader(fields, wishes);
    places_ = placesOf(wishes, fields, header);
    if (header) pass(length);
}

bool DelimitedSource::gather(RowBlock& block) {
    while (block.raw.size() < kRowsOfBlock && block.text.size() < kBytesOfBlock) {
        std::size_t length = 0;
        if (!hasRow(length)) break;
        const std::string_view row = withoutLineEnd(waiting().substr(0, length));
        if (!row.empty()) {
            block.raw.push_back({.offset = block.text.size(), .length = row.size()});
            block.lines.push_back(line_);
            block.text += row;
        }
        pass(length);
    }
    return !block.raw.empty();
}

void DelimitedSource::readRow(RowBlock& block, const RawRow& raw, long line) const {
    std::array<std::string_view, kMostColumns> few;
    std::vector<std::string_view> many;
    std::span<std::string_view> fields = few;
    const std::size_t last =
        std::max({places_.first, places_.second, places_.name == kNoColumn ? 0 : places_.name,
                  places_.third == kNoColumn ? 0 : places_.third});
    if (last >= few.size()) {
        many.resize(last + 1);
        fields = many;
    }
    const SplitRow split =
        splitFields(std::span(block.text).subspan(raw.offset, raw.length), delimiter_, fields);
    const auto has = [&](std::size_t place) { return place < split.count; };
    const bool hasName = places_.name != kNoColumn && has(places_.name);
    const std::string_view name = hasName ? fields[places_.name] : std::string_view();
    const auto bad = [&](const std::string& reason) {
        block.statuses[block.given.size()] = placed(reason, line);
        block.names.push_back(name);
        block.given.emplace_back();
    };
    if (split.unclosedQuote) return bad("따옴표가 닫히지 않았습니다");
    if (!has(places_.first) || !has(places_.second) || (places_.name != kNoColumn && !hasName))
        return bad("칸이 모자랍니다");
    const std::string_view first = fields[places_.first];
    const std::string_view second = fields[places_.second];
    const bool hasThird = places_.third != kNoColumn && has(places_.third);
    const std::string_view third = hasThird ? fields[places_.third] : std::string_view();
    const CoordinateRead x = readCoordinate(first);
    const CoordinateRead y = readCoordinate(second);
    const CoordinateRead h = readCoordinate(third);
    for (const auto& [read, text, mayBeMissing] :
         {std::tuple(&x, first, false), std::tuple(&y, second, false), std::tuple(&h, third, true)})
        if (const std::string complaint = complaintOf(*read, text, mayBeMissing);
            !complaint.empty())
            return bad(complaint);
    block.names.push_back(name);
    block.given.push_back({.first = x.value, .second = y.value, .height = h.value});
}

void DelimitedSource::read(RowBlock& block) const {
    for (std::size_t i = 0; i < block.raw.size(); ++i) readRow(block, block.raw[i], block.lines[i]);
}

double DelimitedSource::progress() const {
    if (size_ == 0) return -1;
    return std::min(1.0, static_cast<double>(taken_.load(std::memory_order_relaxed)) /
                             static_cast<double>(size_));
}

}  // namespace kelvo
