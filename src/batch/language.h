// The data-file language: its words, in one table that everything else about them is made from or
// checked against.
#pragma once

#include <array>
#include <optional>
#include <span>
#include <string_view>

namespace kelvo {

enum class Command {
    SevenParameters,
    FirstAdjustment,
    Correction,
    NoCorrection,
    Zone,
    Add,
    Input,
    Output,
    TmParameters,
    TmPoints,
    UtmParameters,
    UtmPointsOrOrigin,
    WgsPoints,
    UserPoints,
    Distance,
    End,
};

// What a command is for.
enum class CommandKind { Parameter, AngleForm, Points, Distance, End };

struct CommandWord {
    std::string_view word;     // as data files write it
    std::string_view key;      // the first two letters that select it
    std::string_view longest;  // in capitals; who means the command writes a beginning of it
    Command command;
    CommandKind kind;
    // With kParaWord at this character of the line's first two words, or the one after it, the
    // line begins a block of parameters instead. 0: it never does.
    std::size_t paraAt = 0;
    Command withPara = Command::End;
};

// In the order in which keys are compared.
[[nodiscard]] std::span<const CommandWord> commandWords();

// The command of a line by its first two words in capitals, each followed by a blank; none for a
// comment, an empty line or words that are no command.
[[nodiscard]] std::optional<Command> commandOf(std::string_view keyLine);

// What makes parameters of a line that would be points.
inline constexpr std::string_view kParaWord = "PARA";

// How many numbers each further line of a command holds; empty for a command of one line.
[[nodiscard]] std::span<const int> furtherLines(Command command);

}  // namespace kelvo
