// Which columns of delimited text hold what.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kelvo {

// A column by its number from 1, or by its name in the header.
struct ColumnWish {
    std::size_t number = 0;  // 0: by name
    std::string name;
};

// Name, first, second, third value; none for what isn't there.
struct ColumnWishes {
    std::array<std::optional<ColumnWish>, 4> columns{
        ColumnWish{.number = 1, .name = {}}, ColumnWish{.number = 2, .name = {}},
        ColumnWish{.number = 3, .name = {}}, ColumnWish{.number = 4, .name = {}}};
    bool chosen = false;  // by the user: each must be there

    [[nodiscard]] bool byName() const;
};

// "A,B,C,D". Refusal for more than four, for a coordinate left out, for one named twice and for an
// empty entry.
[[nodiscard]] ColumnWishes columnWishesOf(std::string_view text);

inline constexpr std::size_t kNoColumn = static_cast<std::size_t>(-1);

// Places from 0, kNoColumn for what isn't there.
struct ColumnPlaces {
    std::size_t name = 0;
    std::size_t first = 1;
    std::size_t second = 2;
    std::size_t third = 3;
};

// The places of numbered columns; named ones have none yet.
[[nodiscard]] ColumnPlaces numberedPlaces(const ColumnWishes& wishes);

// The places in a file with this first row, which is its header or not. Refusal for a wish that it
// doesn't have, and for two that lead to one column.
[[nodiscard]] ColumnPlaces placesOf(const ColumnWishes& wishes,
                                    const std::vector<std::string_view>& firstRow, bool isHeader);

}  // namespace kelvo
