#include "common/point_table.h"

#include "common/run_time_fault.h"

namespace kelvo {

namespace {

void requireRow(int index) {
    if (index < 0 || index > kMostPoints)
        raise(Fault::Subscript, "점은 " + std::to_string(kMostPoints) + "개까지 다룰 수 있습니다");
}

}  // namespace

PointRec& PointTable::row(int index) {
    requireRow(index);
    const auto i = static_cast<std::size_t>(index);
    if (i >= rows_.size()) {
        // Room for all at once, of which only the rows in use become memory: growing by and by
        // would move them again and again.
        rows_.reserve(kMostPoints + 1);
        rows_.resize(i + 1);
    }
    return rows_[i];
}

const PointRec& PointTable::row(int index) const {
    requireRow(index);
    static const PointRec untouched;
    const auto i = static_cast<std::size_t>(index);
    return i < rows_.size() ? rows_[i] : untouched;
}

}  // namespace kelvo
