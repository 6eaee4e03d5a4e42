#include "shell/recent_files.h"

#include <algorithm>
#include <vector>

#include "common/letter_case.h"

namespace kelvo {

namespace {

constexpr std::size_t kMostRecent = 5;
// "C:\": the top folder of a drive keeps its separator.
constexpr std::size_t kDriveRootLength = 3;

std::string nameForList(const std::string& name, Disk& disk) {
    std::string lowered = lowerCased(name);
    if (kFileNamesIgnoreCase || disk.sameFile(name, lowered)) return lowered;
    return name;
}

}  // namespace

std::array<std::string, 6> withNameOnTop(const std::array<std::string, 6>& list,
                                         const std::string& name, Disk& disk) {
    std::vector<std::string> next{nameForList(name, disk)};
    for (std::size_t i = 1; i <= kMostRecent && !list[i].empty(); ++i) {
        const bool known = std::any_of(next.begin(), next.end(), [&](const std::string& entry) {
            return sameIgnoringCase(entry, list[i]);
        });
        if (!known) next.push_back(list[i]);
    }
    next.resize(kMostRecent);
    std::array<std::string, 6> result;
    std::move(next.begin(), next.end(), result.begin() + 1);
    return result;
}

std::string folderToWorkIn(std::string_view path) {
    const std::size_t separator = path.rfind(kPathSeparator);
    if (separator == std::string_view::npos || separator == 0) return {};
    const std::string_view withSeparator = path.substr(0, separator + 1);
    if (withSeparator.size() == kDriveRootLength) return std::string(withSeparator);
    return std::string(path.substr(0, separator));
}

}  // namespace kelvo
