#include "shell/place_for_lines.h"

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

#include "batch/language.h"
#include "common/letter_case.h"
#include "shell/data_file_words.h"

namespace kelvo {

namespace {

using Block = LinesToCome::Block;

constexpr std::string_view kIndent = "   ";

struct LineOfText {
    std::string_view text;
    LinesToCome before;  // what the line before has left
    bool readsDegrees = false;
};

bool isBlank(std::string_view line) {
    return line.find_first_not_of(" \t,\r") == std::string_view::npos;
}

std::string_view wordAt(std::string_view line, const std::vector<DataFileWord>& words,
                        std::size_t at) {
    return at < words.size() ? line.substr(words[at].at, words[at].length) : std::string_view();
}

// The form of angles that a line asks for, if it does.
std::optional<bool> formAskedFor(std::string_view line, const std::vector<DataFileWord>& words) {
    if (words.empty() || words.front().kind != WordKind::Command) return std::nullopt;
    const std::string form = upperCased(wordAt(line, words, 1));
    if (commandOf(upperCased(wordAt(line, words, 0)) + " " + form + " ") != Command::Input)
        return std::nullopt;
    return form == "DEG";
}

class TextLines {
public:
    explicit TextLines(std::string_view text) {
        LinesToCome state;
        bool degrees = false;
        for (bool goesOn = true; goesOn;) {
            const std::size_t end = text.find('\n');
            const std::string_view line = text.substr(0, end);
            lines_.push_back({.text = line, .before = state, .readsDegrees = degrees});
            const auto words = wordsOfDataLine(line, state);
            degrees = formAskedFor(line, words).value_or(degrees);
            goesOn = end != std::string_view::npos;
            if (goesOn) text.remove_prefix(end + 1);
        }
        lines_.push_back({.text = {}, .before = state, .readsDegrees = degrees});
    }

    // Those of the text; one more stands for its end.
    [[nodiscard]] std::size_t count() const { return lines_.size() - 1; }
    [[nodiscard]] const LineOfText& at(std::size_t line) const { return lines_[line]; }

    // The line `end`, or the end of the text.
    [[nodiscard]] std::size_t endLine() const {
        const auto after = std::ranges::find(
            lines_, Block::End, [](const LineOfText& line) { return line.before.block; });
        return after == lines_.end() ? count()
                                     : static_cast<std::size_t>(after - lines_.begin()) - 1;
    }

    // Whether the line goes on with what stands in front of it.
    [[nodiscard]] bool belongsToLineBefore(std::size_t line) const {
        const LineOfText& here = lines_[line];
        return here.before.parameterLines > 0 ||
               (here.text.starts_with(kIndent) && !isBlank(here.text));
    }

private:
    std::vector<LineOfText> lines_;
};

}  // namespace

PlaceForLines placeForLines(std::string_view text, std::size_t caretLine, std::size_t caretColumn) {
    const TextLines lines(text);
    const std::size_t end = lines.endLine();
    std::size_t line = std::min(caretLine, lines.count() - 1);
    if (caretColumn > 0 && !isBlank(lines.at(line).text)) ++line;
    line = std::min(line, end);
    while (line < end && lines.belongsToLineBefore(line)) ++line;
    bool onlyBlank = true;
    for (std::size_t rest = line; rest < lines.count(); ++rest)
        onlyBlank = onlyBlank && isBlank(lines.at(rest).text);
    return {.line = line, .readsDegrees = lines.at(line).readsDegrees, .needsEnd = onlyBlank};
}

}  // namespace kelvo
