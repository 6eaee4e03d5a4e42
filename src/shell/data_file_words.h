// What each word of a data file's line is to the run, for an editor that colours them.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace kelvo {

enum class WordKind {
    Command,
    Name,   // of a point
    North,  // latitude, X
    East,   // longitude, Y
    Height,
    Number,   // of a parameter, or a form of angles
    Comment,  // a line that begins with "*"
    Unread,   // nothing reads it
};

struct DataFileWord {
    std::size_t at = 0;  // bytes of UTF-8 from the start of the line
    std::size_t length = 0;
    WordKind kind = WordKind::Unread;
};

// What a line leaves to the next one.
struct LinesToCome {
    enum class Block { None, Points, Distances, Parameters, End };

    Block block = Block::None;
    int parameterLines = 0;  // still to be read by a command of several lines

    bool operator==(const LinesToCome&) const = default;
};

// Takes what the line before has left, gives what this one leaves.
[[nodiscard]] std::vector<DataFileWord> wordsOfDataLine(std::string_view line, LinesToCome& state);

}  // namespace kelvo
