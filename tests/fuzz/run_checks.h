// What holds of every run, whatever the data file and the known points are.
#pragma once

#include <cctype>
#include <cmath>
#include <string>
#include <string_view>

#include "fuzz/fuzz_target.h"
#include "support/batch_bench.h"

namespace kelvo::fuzz {

inline std::string lowered(std::string text) {
    for (char& c : text)
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    return text;
}

// Whether the text holds the word with no letter beside it.
inline bool holdsWord(const std::string& text, std::string_view word) {
    const auto isLetter = [&](std::size_t at) {
        return at < text.size() && ((text[at] >= 'a' && text[at] <= 'z') || (text[at] & 0x80) != 0);
    };
    for (std::size_t at = text.find(word); at != std::string::npos; at = text.find(word, at + 1))
        if ((at == 0 || !isLetter(at - 1)) && !isLetter(at + word.size())) return true;
    return false;
}

// No number that isn't one may stand in a report; a point may be named so.
inline void requireNumbers(const std::string& report, const std::string& input) {
    const std::string small = lowered(report);
    for (const std::string_view word : {"nan", "inf"})
        require(!holdsWord(small, word) || lowered(input).find(word) != std::string::npos, "no ",
                word, " in a report");
}

inline void requireLines(const std::string& report) {
    require(report.empty() || report.ends_with("\r\n"), "a report ends with a whole line");
    for (std::size_t at = report.find('\n'); at != std::string::npos;
         at = report.find('\n', at + 1))
        require(at > 0 && report[at - 1] == '\r', "lines end with CR LF");
}

inline void requireFinite(const PointRec& row) {
    for (const double value :
         {row.WgsPhi, row.WgsLam, row.WgsH, row.UserPhi, row.UserLam, row.UserH, row.TmX, row.TmY,
          row.TmH, row.UtmX, row.UtmY, row.UtmH, row.WgsUtmX, row.WgsUtmY, row.WgsUtmH, row.CorrPhi,
          row.CorrLam, row.CorrH})
        require(std::isfinite(value), "the point table holds numbers");
}

// Runs the files on a disk in memory and holds the run to its promises.
inline void checkRun(const std::string& data, const std::string& known) {
    testing::BatchBench bench;
    bench.disk.putBytes(bench.places.dataFile, data);
    bench.disk.putBytes(bench.places.CorPath, known);
    bench.runFile();  // a fault is the only other way out

    require(bench.disk.files.size() == 4, "a run writes two files and no other");
    require(bench.disk.bytes(bench.places.dataFile) == data, "the data file stays as it is");
    require(bench.disk.bytes(bench.places.CorPath) == known, "the known points stay as they are");
    for (const char* report : {"/job/a.out", "/app/kelvo.det"}) {
        requireLines(bench.disk.bytes(report));
        requireNumbers(bench.disk.bytes(report), data + known);
    }
    require(bench.points() >= 0 && bench.points() <= kMostPoints, "rows in use are in the table");
    for (int i = 1; i <= bench.points(); ++i) requireFinite(bench.row(i));
    require(bench.state.known.CorrCount >= 0 && bench.state.known.CorrCount <= kMostCorrPoints,
            "known points in use are in the table");
    require(bench.fault == 0 || !bench.faultText.empty(), "a fault says what went wrong");
}

}  // namespace kelvo::fuzz
