// Rows and fields of delimited text: quotes as in RFC 4180, rows that end with LF or CR LF.
#pragma once

#include <cstddef>
#include <span>
#include <string_view>
#include <vector>

namespace kelvo {

// The first of comma, semicolon and tab that stands outside quotes; a comma if none does.
[[nodiscard]] char delimiterOf(std::string_view row);

// The text up to the first line end outside quotes; all of it if there is none.
[[nodiscard]] std::string_view firstLineOf(std::string_view text);

// Where the row at the front of the text ends: the place of its LF, npos if the text has no end of
// it. A field that begins with a quote may hold line ends; a quote elsewhere is a letter.
[[nodiscard]] std::size_t endOfRow(std::string_view text, char delimiter);

// The row without its line end and without the CR in front of that.
[[nodiscard]] std::string_view withoutLineEnd(std::string_view row);

struct SplitRow {
    std::size_t count = 0;       // of all fields
    bool unclosedQuote = false;  // the last field begins with a quote that never ends
};

// The fields of a row, without their quotes; at most as many as there is room for, the rest is
// counted. Fields with a doubled quote are made in place, so the row's bytes change.
[[nodiscard]] SplitRow splitFields(std::span<char> row, char delimiter,
                                   std::span<std::string_view> fields);

// All fields of a row.
[[nodiscard]] std::vector<std::string_view> allFields(std::span<char> row, char delimiter);

}  // namespace kelvo
