// The check of texts that stand in a test.
#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "batch/check_data_file.h"

namespace kelvo::testing {

// Three known points near 인천, as kelvo.cor holds them.
inline const std::string kKnownPoints =
    "서울-11   37.34043494 126.58173549 95.064 37.33542837 126.58248480 72.089 2\n"
    "인천No-3  37.35286118 126.32345468 67.644 37.35186070 126.32419061 45.732 1\n"
    "수원12    37.17105294 127.00591154 134.388 37.17003683 127.01066334 111.357 1\n"
    "\n"
    "\n";

inline std::vector<Finding> check(const std::string& data,
                                  const std::string& known = kKnownPoints) {
    return checkDataFile(data, {.path = "kelvo.cor", .text = known});
}

inline std::vector<Finding> checkWithoutKnownPoints(const std::string& data) {
    return checkDataFile(data, {.path = "kelvo.cor", .text = std::nullopt});
}

// The lines that findings of one kind stand at.
inline std::vector<long> linesOf(FindingKind kind, const std::vector<Finding>& findings) {
    std::vector<long> lines;
    for (const Finding& finding : findings)
        if (finding.kind == kind) lines.push_back(finding.line);
    return lines;
}

inline std::string shown(const std::vector<Finding>& findings) {
    std::string text;
    for (const Finding& finding : findings)
        text += (finding.in == Finding::In::KnownPoints ? "kelvo.cor:" : "") +
                std::to_string(finding.line) + ": " + finding.text + "\n";
    return text;
}

// Each finding on a line: its place, with column and length where it is on a field, and its text.
inline std::string placed(const std::vector<Finding>& findings) {
    std::string text;
    for (const Finding& finding : findings) {
        if (finding.in == Finding::In::KnownPoints) text += "kelvo.cor ";
        text += std::to_string(finding.line);
        if (finding.column != 0)
            text += ":" + std::to_string(finding.column) + "+" + std::to_string(finding.length);
        text += " " + finding.text + "\n";
    }
    return text;
}

}  // namespace kelvo::testing
