// Golden files: what a test compares with, and a readable account of the first difference.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace kelvo::testing {

// tests/golden
[[nodiscard]] std::filesystem::path goldenFolder();

// The names of the cases of a folder: files with the ending, without it, sorted.
[[nodiscard]] std::vector<std::string> goldenCases(const std::filesystem::path& folder,
                                                   const std::string& ending);

// Empty if both are equal, otherwise the first lines that differ, as expected and as found.
// Bytes beyond ASCII show as CP949 when `codePage` is set, as UTF-8 otherwise.
[[nodiscard]] std::string firstDifference(const std::string& expected, const std::string& found,
                                          bool codePage);

}  // namespace kelvo::testing
