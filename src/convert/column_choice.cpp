#include "convert/column_choice.h"

#include <algorithm>
#include <charconv>

#include "common/blanks.h"
#include "convert/coordinate_text.h"
#include "convert/refusal.h"

namespace kelvo {

namespace {

constexpr std::size_t kName = 0;
constexpr std::size_t kThird = 3;

[[noreturn]] void refuse(const std::string& reason) {
    throw Refusal("--columns: " + reason);
}

std::optional<ColumnWish> wishOf(std::string_view entry) {
    if (entry == "-") return std::nullopt;
    if (entry.empty()) refuse("an entry is empty");
    const bool isNumber =
        std::all_of(entry.begin(), entry.end(), [](char c) { return c >= '0' && c <= '9'; });
    if (!isNumber) return ColumnWish{.number = 0, .name = std::string(entry)};
    std::size_t number = 0;
    const auto [end, error] = std::from_chars(entry.data(), entry.data() + entry.size(), number);
    if (error != std::errc{} || number == 0)
        refuse("there is no column " + quotedPiece(entry) + "; they count from 1");
    return ColumnWish{.number = number, .name = {}};
}

std::string_view nameAt(const std::vector<std::string_view>& row, std::size_t place) {
    return trimmed(row[place]);
}

std::size_t placeOf(const ColumnWish& wish, const std::vector<std::string_view>& row,
                    bool isHeader) {
    if (wish.number > 0) {
        if (wish.number > row.size())
            refuse("there is no column " + std::to_string(wish.number) + "; the first line has " +
                   std::to_string(row.size()));
        return wish.number - 1;
    }
    std::size_t found = kNoColumn;
    for (std::size_t place = 0; isHeader && place < row.size(); ++place) {
        if (nameAt(row, place) != wish.name) continue;
        if (found != kNoColumn) refuse("the header names " + quotedPiece(wish.name) + " twice");
        found = place;
    }
    if (found == kNoColumn)
        refuse("there is no column " + quotedPiece(wish.name) +
               (isHeader ? " in the header" : "; the first line is no header"));
    return found;
}

}  // namespace

bool ColumnWishes::byName() const {
    return std::any_of(columns.begin(), columns.end(),
                       [](const auto& wish) { return wish && wish->number == 0; });
}

ColumnWishes columnWishesOf(std::string_view text) {
    ColumnWishes wishes;
    wishes.chosen = true;
    wishes.columns.fill(std::nullopt);
    std::size_t count = 0;
    for (bool goesOn = true; goesOn; ++count) {
        if (count == wishes.columns.size()) refuse("more than four entries");
        const std::size_t comma = text.find(',');
        goesOn = comma != std::string_view::npos;
        wishes.columns[count] = wishOf(trimmed(text.substr(0, comma)));
        if (goesOn) text.remove_prefix(comma + 1);
    }
    for (std::size_t i = kName + 1; i < kThird; ++i)
        if (!wishes.columns[i]) refuse("the first and the second value must be there");
    for (std::size_t i = 0; i < wishes.columns.size(); ++i)
        for (std::size_t k = i + 1; k < wishes.columns.size(); ++k) {
            const auto& one = wishes.columns[i];
            const auto& other = wishes.columns[k];
            if (one && other && one->number == other->number && one->name == other->name)
                refuse("a column is named twice");
        }
    return wishes;
}

ColumnPlaces numberedPlaces(const ColumnWishes& wishes) {
    const auto place = [&](std::size_t i) {
        const auto& wish = wishes.columns[i];
        return wish && wish->number > 0 ? wish->number - 1 : kNoColumn;
    };
    return {.name = place(0), .first = place(1), .second = place(2), .third = place(3)};
}

ColumnPlaces placesOf(const ColumnWishes& wishes, const std::vector<std::string_view>& firstRow,
                      bool isHeader) {
    if (!wishes.chosen) return numberedPlaces(wishes);
    std::array<std::size_t, 4> places{};
    for (std::size_t i = 0; i < places.size(); ++i) {
        const auto& wish = wishes.columns[i];
        places[i] = wish ? placeOf(*wish, firstRow, isHeader) : kNoColumn;
        if (places[i] != kNoColumn &&
            std::find(places.begin(), places.begin() + static_cast<std::ptrdiff_t>(i), places[i]) !=
                places.begin() + static_cast<std::ptrdiff_t>(i))
            refuse("a column is named twice");
    }
    return {.name = places[0], .first = places[1], .second = places[2], .third = places[3]};
}

}  // namespace kelvo
