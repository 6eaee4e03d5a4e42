#include "shell/data_file_words.h"

#include <algorithm>
#include <array>
#include <string>

#include "batch/language.h"
#include "common/letter_case.h"
#include "common/number_text.h"

namespace kelvo {

namespace {

using Words = std::vector<DataFileWord>;
using Block = LinesToCome::Block;

constexpr std::string_view kGaps(" \t,\0", 4);
constexpr std::string_view kIndent = "   ";

// The words where the run finds them, nothing known of them yet.
Words split(std::string_view line) {
    Words words;
    for (std::size_t at = line.find_first_not_of(kGaps); at != std::string_view::npos;) {
        const std::size_t end = std::min(line.find_first_of(kGaps, at), line.size());
        words.push_back({.at = at, .length = end - at});
        at = line.find_first_not_of(kGaps, end);
    }
    return words;
}

void name(Words& words, std::size_t from, std::initializer_list<WordKind> kinds) {
    for (const WordKind kind : kinds) {
        if (from < words.size()) words[from++].kind = kind;
    }
}

void namePoint(Words& words, std::size_t from) {
    name(words, from, {WordKind::Name, WordKind::North, WordKind::East, WordKind::Height});
}

void nameNumbers(Words& words, std::size_t from) {
    for (std::size_t at = from; at < words.size(); ++at) words[at].kind = WordKind::Number;
}

bool isNumber(std::string_view line, const Words& words, std::size_t at) {
    return at < words.size() && leadingNumber(line.substr(words[at].at, words[at].length)) != 0;
}

// The line's first two words as the table of commands wants them.
std::string keyOf(std::string_view line, const Words& words) {
    std::string key;
    for (std::size_t at = 0; at < std::min<std::size_t>(words.size(), 2); ++at) {
        key.append(line.substr(words[at].at, words[at].length)).append(" ");
    }
    return upperCased(key);
}

LinesToCome nameCommand(std::string_view line, Words& words, Command command) {
    words.front().kind = WordKind::Command;
    const int further = static_cast<int>(furtherLines(command).size());
    switch (command) {
        case Command::SevenParameters:
        case Command::TmParameters:
        case Command::UtmParameters:
            // "7 para" and "tm para" are two words, "7para" is one.
            if (words.size() > 1 && upperCased(line.substr(words[1].at, 4)) == "PARA")
                words[1].kind = WordKind::Command;
            return {.block = Block::Parameters, .parameterLines = further};
        case Command::UtmPointsOrOrigin:
            if (!isNumber(line, words, 2) && !isNumber(line, words, 3)) {
                nameNumbers(words, 1);
                return {};
            }
            namePoint(words, 1);
            return {.block = Block::Points};
        case Command::TmPoints:
        case Command::WgsPoints:
        case Command::UserPoints:
            namePoint(words, 1);
            return {.block = Block::Points};
        case Command::Distance:
            name(words, 1, {WordKind::Name, WordKind::Name});
            return {.block = Block::Distances};
        case Command::End:
            return {.block = Block::End};
        default:
            nameNumbers(words, 1);
            return {};
    }
}

}  // namespace

std::vector<DataFileWord> wordsOfDataLine(std::string_view line, LinesToCome& state) {
    Words words = split(line);
    if (state.block == Block::End) return words;
    if (state.block == Block::Parameters && state.parameterLines > 0) {
        nameNumbers(words, 0);
        if (--state.parameterLines == 0) state = {};
        return words;
    }
    const bool goesOn = line.starts_with(kIndent) && !words.empty();
    if (goesOn && state.block == Block::Points) {
        namePoint(words, 0);
        return words;
    }
    if (goesOn && state.block == Block::Distances) {
        name(words, 0, {WordKind::Name, WordKind::Name});
        return words;
    }
    state = {};
    if (words.empty()) return words;
    if (line.starts_with('*')) return {{.at = 0, .length = line.size(), .kind = WordKind::Comment}};
    if (const auto command = commandOf(keyOf(line, words)))
        state = nameCommand(line, words, *command);
    return words;
}

}  // namespace kelvo
