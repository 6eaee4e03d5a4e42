// A small strict reader of geodesy cases; the form stands at the head of cases.txt.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kelvo::testing {

struct CaseReport {
    int checks = 0;                       // lines that compared something
    std::vector<std::string> complaints;  // "line N: ..." for every failure or unreadable line
};

[[nodiscard]] CaseReport runCases(std::string_view text);

}  // namespace kelvo::testing
