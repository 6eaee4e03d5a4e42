// The rows of the point table by their names.
#pragma once

#include <string>
#include <unordered_map>

#include "common/point_table.h"

namespace kelvo {

// Names count in any case of letters, and the earlier of two rows with one name counts. Grows with
// the table of one run, so that looking up many pairs costs no more than the points and the pairs.
class RowsByName {
public:
    // Takes in the rows that have come since.
    void update(const PointTable& points);

    // 0 if there is none of that name, whole and not as a report cuts it.
    [[nodiscard]] int rowOf(const std::string& name) const;

private:
    std::unordered_map<std::string, int> rows_;
    int taken_ = 0;
};

}  // namespace kelvo
