#include "batch/rows_by_name.h"

#include "common/letter_case.h"

namespace kelvo {

void RowsByName::update(const PointTable& points) {
    while (taken_ < points.PointCount) {
        ++taken_;
        rows_.emplace(upperCased(points.row(taken_).name), taken_);
    }
}

int RowsByName::rowOf(const std::string& name) const {
    const auto found = rows_.find(upperCased(name));
    return found == rows_.end() ? 0 : found->second;
}

}  // namespace kelvo
