#include "exchange/xml/place_text.h"

#include <charconv>
#include <string>

#include "common/blanks.h"

namespace kelvo {

namespace {

// Blanks end a place, except beside a comma.
std::string_view firstOf(std::string_view list) {
    list = trimmed(list, kBlanksAndLineEnds);
    for (std::size_t at = list.find_first_of(kBlanksAndLineEnds); at != std::string_view::npos;) {
        const std::size_t next = list.find_first_not_of(kBlanksAndLineEnds, at);
        if (list[next] != ',' && list[at - 1] != ',') return list.substr(0, at);
        at = list.find_first_of(kBlanksAndLineEnds, next);
    }
    return list;
}

std::string_view cutAtComma(std::string_view& rest) {
    const std::size_t comma = rest.find(',');
    const std::string_view piece = rest.substr(0, comma);
    rest = comma == std::string_view::npos ? std::string_view() : rest.substr(comma + 1);
    return piece;
}

}  // namespace

std::optional<double> numberIn(std::string_view text) {
    text = trimmed(text, kBlanksAndLineEnds);
    if (text.starts_with('+')) text.remove_prefix(1);
    // Letters would be "inf" and "nan" to from_chars.
    if (text.find_first_not_of("0123456789.eE+-") != std::string_view::npos) return std::nullopt;
    double value = 0;
    const char* const last = text.data() + text.size();
    const auto [end, error] = std::from_chars(text.data(), last, value);
    if (error != std::errc{} || end != last) return std::nullopt;
    return value;
}

std::optional<Place> firstPlaceIn(std::string_view list) {
    std::string_view rest = firstOf(list);
    const auto x = numberIn(cutAtComma(rest));
    const auto y = numberIn(cutAtComma(rest));
    const std::string_view height = trimmed(cutAtComma(rest), kBlanksAndLineEnds);
    const auto h = height.empty() ? 0.0 : numberIn(height);
    if (!x || !y || !h) return std::nullopt;
    return Place{.x = *x, .y = *y, .height = *h};
}

}  // namespace kelvo
