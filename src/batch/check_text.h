// A data file as text: its lines as a run reads them, and their fields with their places.
#pragma once

#include <array>
#include <string_view>
#include <vector>

namespace kelvo {

struct TextLine {
    long number = 1;        // from 1
    std::string_view text;  // without its end
};

// CR LF, LF and CR end a line; the last line may have no end. An empty text has no line.
[[nodiscard]] std::vector<TextLine> linesOf(std::string_view text);

struct TextField {
    std::string_view text;
    std::size_t at = 0;  // bytes of the line in front of it

    [[nodiscard]] bool empty() const { return text.empty(); }
};

// The fields of a line as genSub::ParseFields splits it, up to more than any command reads.
class LineFields {
public:
    static constexpr int kMost = 12;

    explicit LineFields(std::string_view line);

    [[nodiscard]] int count() const { return count_; }
    // From 1 on; an empty one for a number beyond them.
    [[nodiscard]] const TextField& operator[](int n) const;

private:
    std::array<TextField, kMost + 1> fields_{};
    int count_ = 0;
};

// What the number rule makes of a field, and whether that is what stands there.
struct NumberField {
    enum class State {
        Absent,
        Word,      // no number at the front: read as 0
        TooLarge,  // read as 0
        Cut,       // digits are left over, as in 37-35-33
        Whole,     // or with a unit after it, as in 30.5m
    };
    State state = State::Absent;
    double value = 0;

    [[nodiscard]] bool reads() const { return state == State::Whole; }
};
[[nodiscard]] NumberField numberOf(const TextField& field);

// Whether the line is empty or set apart as a remark: by custom a star stands in front; any other
// mark that is no letter and no digit will do. Full-width blanks in front are blanks.
[[nodiscard]] bool isRemark(const LineFields& fields);

}  // namespace kelvo
