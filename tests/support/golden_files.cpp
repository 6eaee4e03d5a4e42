#include "support/golden_files.h"

#include <algorithm>

#include "common/code_page.h"

namespace kelvo::testing {
namespace {

std::vector<std::string> linesOf(const std::string& bytes) {
    std::vector<std::string> lines;
    std::size_t at = 0;
    while (at < bytes.size()) {
        const std::size_t end = bytes.find('\n', at);
        const std::size_t next = end == std::string::npos ? bytes.size() : end + 1;
        lines.push_back(bytes.substr(at, next - at));
        at = next;
    }
    return lines;
}

std::string shown(const std::vector<std::string>& lines, std::size_t i, bool codePage) {
    if (i >= lines.size()) return "(end of file)";
    std::string text = codePage ? decodeCodePage(lines[i]) : lines[i];
    for (const auto& [from, to] : {std::pair{"\r", "\\r"}, std::pair{"\n", "\\n"}}) {
        if (const auto at = text.find(from); at != std::string::npos) text.replace(at, 1, to);
    }
    return "|" + text + "|";
}

}  // namespace

std::filesystem::path goldenFolder() {
    return std::filesystem::path(KELVO_SOURCE_DIR) / "tests" / "golden";
}

std::vector<std::string> goldenCases(const std::filesystem::path& folder,
                                     const std::string& ending) {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        if (entry.path().extension() == ending) names.push_back(entry.path().stem().string());
    }
    std::sort(names.begin(), names.end());
    return names;
}

std::string firstDifference(const std::string& expected, const std::string& found, bool codePage) {
    if (expected == found) return {};
    const auto want = linesOf(expected);
    const auto have = linesOf(found);
    std::size_t i = 0;
    while (i < want.size() && i < have.size() && want[i] == have[i]) ++i;
    return "line " + std::to_string(i + 1) + "\n  expected " + shown(want, i, codePage) +
           "\n  found    " + shown(have, i, codePage);
}

}  // namespace kelvo::testing
