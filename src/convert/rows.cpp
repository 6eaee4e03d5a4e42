#include "convert/rows.h"

#include <utility>

namespace kelvo {

void RowBlock::clear() {
    names.clear();
    given.clear();
    lines.clear();
    statuses.clear();
    points.clear();
    text.clear();
    raw.clear();
    kept.clear();
    written.clear();
}

void RowBlock::add(std::string_view name, const GivenPoint& values, long line) {
    names.push_back(name);
    given.push_back(values);
    lines.push_back(line);
}

void RowBlock::addUnread(std::string_view name, long line, std::string reason) {
    statuses[given.size()] = std::move(reason);
    add(name, {}, line);
}

}  // namespace kelvo
