// Rows of points on their way through a conversion: read, converted, written. A format of points is
// a source and a sink.
#pragma once

#include <cstddef>
#include <deque>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "conversion/converted_point.h"

namespace kelvo {

// What a format found between two row ends and hasn't looked into yet.
struct RawRow {
    std::size_t offset = 0;  // in `text`
    std::size_t length = 0;
};

// Some rows, one after another. A block is used again and again, so that nothing is allocated for a
// row. Where nothing else is said the vectors have one entry a row.
struct RowBlock {
    // As read.
    std::vector<std::string_view> names;  // UTF-8 or whatever the file held; into `text` or `kept`
    std::vector<GivenPoint> given;
    std::vector<long> lines;  // the line, or the number of the feature, from 1
    // By the place of the row: why it can't be converted, first because of what was read, then for
    // every bad point. The numbers of a bad point mean nothing.
    std::map<std::size_t, std::string> statuses;

    // As converted.
    std::vector<ConvertedPoint> points;

    // For the formats alone: a source's text and rows, what it made itself, a sink's text.
    std::string text;
    std::vector<RawRow> raw;
    std::deque<std::string> kept;
    std::string written;

    [[nodiscard]] std::size_t size() const { return given.size(); }
    void clear();
    // A row with its values, or without any and the reason.
    void add(std::string_view name, const GivenPoint& values, long line);
    void addUnread(std::string_view name, long line, std::string reason);
};

// Rows that a block holds at most; enough for what gains from points side by side, few enough for
// the caches.
inline constexpr std::size_t kRowsOfBlock = 1024;

// Where rows come from. Refusal for what can't be read.
class RowSource {
public:
    virtual ~RowSource() = default;

    // Fills the block, which is clear, with the next rows, at most kRowsOfBlock; false at the end.
    // One thread at a time.
    virtual bool gather(RowBlock& block) = 0;

    // What can be done with a gathered block on any thread, beside other blocks: afterwards its
    // rows are read.
    virtual void read(RowBlock& /*block*/) const {}

    // How far the source has come, from 0 to 1; below 0 where nobody knows. Beside gather.
    [[nodiscard]] virtual double progress() const { return -1; }
};

// Where rows go. Refusal for what can't be written.
class RowSink {
public:
    virtual ~RowSink() = default;

    // What can be done with a converted block on any thread, beside other blocks.
    virtual void prepare(RowBlock& /*block*/) const {}

    // Takes the rows of a prepared block, in the order in which they were gathered. One thread at a
    // time.
    virtual void take(const RowBlock& block) = 0;

    // All rows are there: the result takes its place. Without it what was there before stays.
    virtual void finish() = 0;

    // What the user should know of the result, a sentence each.
    [[nodiscard]] virtual std::vector<std::string> notes() const { return {}; }
};

}  // namespace kelvo
