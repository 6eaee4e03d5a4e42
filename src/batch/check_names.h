// The rules on names: of points among each other, and of the pairs whose distance is asked for.
#pragma once

#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "batch/check_finding.h"
#include "geodesy/transverse_mercator.h"

namespace kelvo {

class CheckedNames {
public:
    // The points come in the order of their rows. The origin is that of their TM coordinates.
    void addPoint(const std::string& name, const TextLine& line, const Projection& origin,
                  Findings& findings);

    // A pair of names, in the fields from that one on, after the points that have come so far.
    void addPair(const TextLine& line, int nameField);

    // When all points have come: each pair against them.
    void checkPairs(Findings& findings) const;

private:
    struct Row {
        long line = 0;
        Projection origin;
    };
    struct Pair {
        TextLine line;
        int nameField = 1;
        std::size_t pointsBefore = 0;
    };

    [[nodiscard]] std::optional<std::size_t> rowOf(std::string_view name) const;
    void checkPair(const Pair& pair, Findings& findings) const;
    // Its row if a run finds it there.
    std::optional<std::size_t> checkName(const Pair& pair, const TextField& name,
                                         Findings& findings) const;

    std::vector<Row> rows_;
    std::vector<Pair> pairs_;
    std::unordered_map<std::string, std::size_t> firstOfName_;
    std::unordered_map<std::string, std::size_t> firstOfCut_;  // as a report shows the name
};

}  // namespace kelvo
