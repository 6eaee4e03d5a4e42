#include "convert/delimited_fields.h"

namespace kelvo {

namespace {

constexpr char kQuote = '"';

// The place after the quote that closes a field, `at` being the place after the one that opens it;
// npos if none does.
std::size_t afterClosingQuote(std::string_view text, std::size_t at) {
    for (;;) {
        at = text.find(kQuote, at);
        if (at == std::string_view::npos) return at;
        if (at + 1 == text.size() || text[at + 1] != kQuote) return at + 1;
        at += 2;
    }
}

// A quoted field without its quotes, moved together in place; what follows the closing quote up to
// the delimiter belongs to the field.
std::string_view unquoted(std::span<char> field) {
    char* to = field.data();
    bool inside = true;
    for (std::size_t i = 1; i < field.size(); ++i) {
        const char c = field[i];
        if (inside && c == kQuote) {
            inside = i + 1 < field.size() && field[i + 1] == kQuote;
            if (!inside) continue;
            ++i;
        }
        *to++ = c;
    }
    return {field.data(), static_cast<std::size_t>(to - field.data())};
}

}  // namespace

char delimiterOf(std::string_view row) {
    for (const char delimiter : {',', ';', '\t'}) {
        bool inside = false;
        for (const char c : row) {
            if (c == kQuote) inside = !inside;
            if (c == delimiter && !inside) return delimiter;
        }
    }
    return ',';
}

std::string_view firstLineOf(std::string_view text) {
    bool inside = false;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] == kQuote) inside = !inside;
        if (text[at] == '\n' && !inside) return text.substr(0, at);
    }
    return text;
}

std::size_t endOfRow(std::string_view text, char delimiter) {
    const std::size_t lineEnd = text.find('\n');
    const std::size_t quote = text.substr(0, lineEnd).find(kQuote);
    if (quote == std::string_view::npos) return lineEnd;
    bool atFieldStart = true;
    for (std::size_t at = 0; at < text.size();) {
        const char c = text[at];
        if (c == '\n') return at;
        if (c == kQuote && atFieldStart) {
            at = afterClosingQuote(text, at + 1);
            if (at == std::string_view::npos) return at;
            atFieldStart = false;
        } else {
            atFieldStart = c == delimiter;
            ++at;
        }
    }
    return std::string_view::npos;
}

std::string_view withoutLineEnd(std::string_view row) {
    if (row.ends_with('\n')) {
        row.remove_suffix(1);
        if (row.ends_with('\r')) row.remove_suffix(1);
    }
    return row;
}

SplitRow splitFields(std::span<char> row, char delimiter, std::span<std::string_view> fields) {
    SplitRow split;
    const std::string_view text(row.data(), row.size());
    for (std::size_t start = 0; start <= text.size();) {
        const bool quoted = start < text.size() && text[start] == kQuote;
        std::size_t from = start;
        if (quoted) {
            from = afterClosingQuote(text, start + 1);
            split.unclosedQuote = from == std::string_view::npos;
            if (split.unclosedQuote) from = text.size();
        }
        std::size_t end = text.find(delimiter, from);
        if (end == std::string_view::npos) end = text.size();
        if (split.count < fields.size())
            fields[split.count] = quoted ? unquoted(row.subspan(start, end - start))
                                         : text.substr(start, end - start);
        ++split.count;
        start = end + 1;
    }
    return split;
}

std::vector<std::string_view> allFields(std::span<char> row, char delimiter) {
    std::vector<std::string_view> fields(row.size() + 1);
    fields.resize(splitFields(row, delimiter, fields).count);
    return fields;
}

}  // namespace kelvo
