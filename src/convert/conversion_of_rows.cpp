#include "convert/conversion_of_rows.h"

#include <algorithm>
#include <condition_variable>
#include <exception>
#include <mutex>
#include <thread>

namespace kelvo {

namespace {

// Blocks are gathered in turn, worked on side by side, and taken in the same turn.
class Line {
public:
    Line(RowSource& source, const ConversionOfRows& conversion, RowSink& sink, Watcher& watcher)
        : source_(source), conversion_(conversion), sink_(sink), watcher_(watcher) {}

    void work() {
        try {
            RowBlock block;
            for (std::uint64_t turn = 0; gather(block, turn);) {
                source_.read(block);
                convertBlock(block, conversion_);
                sink_.prepare(block);
                if (!take(block, turn)) return;
            }
        } catch (...) {
            stop(std::current_exception());
        }
    }

    Converted result() {
        if (failure_) std::rethrow_exception(failure_);
        sink_.finish();
        return converted_;
    }

private:
    bool gather(RowBlock& block, std::uint64_t& turn) {
        const std::lock_guard lock(gathering_);
        block.clear();
        if (atEnd_) return false;
        atEnd_ = !source_.gather(block);
        turn = gathered_;
        if (!atEnd_) ++gathered_;
        return !atEnd_;
    }

    // False where the work has stopped.
    bool take(const RowBlock& block, std::uint64_t turn) {
        std::unique_lock lock(taking_);
        itsTurn_.wait(lock, [&] { return taken_ == turn || failure_; });
        if (failure_) return false;
        sink_.take(block);
        converted_.points += block.size();
        converted_.notConverted += block.statuses.size();
        watcher_.taken(block, converted_, source_.progress());
        ++taken_;
        itsTurn_.notify_all();
        return true;
    }

    void stop(std::exception_ptr failure) {
        {
            const std::lock_guard lock(taking_);
            if (!failure_) failure_ = std::move(failure);
        }
        itsTurn_.notify_all();
        const std::lock_guard lock(gathering_);
        atEnd_ = true;
    }

    RowSource& source_;
    const ConversionOfRows& conversion_;
    RowSink& sink_;
    Watcher& watcher_;

    std::mutex gathering_;
    std::uint64_t gathered_ = 0;
    bool atEnd_ = false;

    std::mutex taking_;
    std::condition_variable itsTurn_;
    std::uint64_t taken_ = 0;
    Converted converted_;
    std::exception_ptr failure_;
};

}  // namespace

void convertBlock(RowBlock& block, const ConversionOfRows& conversion) {
    block.points.resize(block.size());
    PointStatuses statuses;
    conversion.converter.convert(conversion.system, conversion.angles, block.given, block.points,
                                 statuses);
    for (const auto& [place, status] : statuses)
        block.statuses.try_emplace(place, conversion.converter.text(status));
}

Converted convertRows(RowSource& source, const ConversionOfRows& conversion, RowSink& sink,
                      Watcher& watcher) {
    Line line(source, conversion, sink, watcher);
    {
        std::vector<std::jthread> others;
        for (unsigned i = 1; i < conversion.jobs; ++i)
            others.emplace_back([&line] { line.work(); });
        line.work();
    }
    return line.result();
}

}  // namespace kelvo
