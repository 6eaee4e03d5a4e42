// genSub: the tokeniser of all data lines and the store of its fields.
#pragma once

#include <array>
#include <string>
#include <string_view>

namespace kelvo {

// The current line and its fields, each kept as text, double and single. Fields count from 1;
// entry 0 is never written. An absent field is empty and 0.
// A number that the text spells but the type can't hold is 0 in that array.
struct FieldStore {
    static constexpr int kMostFields = 100;

    std::string LineBuf;

    // Fault 9 for an index outside 0..100.
    [[nodiscard]] const std::string& FieldStr(int n) const;
    [[nodiscard]] double FieldNum(int n) const;
    [[nodiscard]] float FieldSng(int n) const;

    std::array<std::string, kMostFields + 1> strings;
    std::array<double, kMostFields + 1> doubles{};
    std::array<float, kMostFields + 1> singles{};
    int filled = 0;  // fields after this one are empty
};

namespace genSub {

// Takes the next field off the front of a text that is split as ParseFields splits a line; empty
// when there is none.
[[nodiscard]] std::string_view takeField(std::string_view& rest);

// Splits LineBuf into at most maxFields fields, at blanks, commas, tabs and NULs, of which any
// run counts as one. Every field of the line before is gone. Fault 9 for more than 100.
void ParseFields(FieldStore& store, int maxFields);

// Parses with `last` as limit and joins the fields first to last, one blank after each; stops
// at the first empty one.
[[nodiscard]] std::string JoinFields(FieldStore& store, int first, int last);

}  // namespace genSub
}  // namespace kelvo
