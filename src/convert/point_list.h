// A list of points that another program made, as rows of cells to choose columns from.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "common/disk.h"
#include "exchange/point_files.h"

namespace kelvo {

// Rows of a list that are read; a run holds no more points.
inline constexpr std::size_t kMostListRows = 10000;

struct PointList {
    std::vector<std::string> header;             // empty where the first row is none
    std::vector<std::vector<std::string>> rows;  // UTF-8, blanks around the cells taken away
    bool goesOn = false;                         // there are more rows than are read
    // Of a file with geometry, whose columns are name, northing or latitude, easting or longitude,
    // height; angles are decimal degrees. A point without coordinates has empty cells.
    std::optional<SystemOfFile> system;

    // The most cells of a row.
    [[nodiscard]] std::size_t columns() const;
};

// Text in UTF-8 or code page 949: delimited by commas, semicolons or tabs, whichever comes first in
// its first row, or by blanks where none does. A first row without any number is the header. Empty
// rows are left out. Refusal for bytes that are no text and for a text without rows.
[[nodiscard]] PointList pointListOfText(std::string_view bytes);

// By the ending of the name: a format of other programs, otherwise text. Refusal, a sentence that
// names the file, where it can't be read or holds no points.
[[nodiscard]] PointList pointListOfFile(Disk& disk, const std::string& path);

}  // namespace kelvo
