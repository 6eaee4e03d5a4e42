// Mutates inputs that are made of lines: besides the bytes it moves whole lines and words about,
// puts in lines that the target knows, and numbers at which arithmetic breaks.
#include <algorithm>
#include <random>
#include <vector>

#include "fuzz/fuzz_target.h"

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t maxSize);

namespace kelvo::fuzz {
namespace {

using Random = std::minstd_rand;
using Lines = std::vector<std::string>;

constexpr std::string_view kNumbers[] = {
    "0",     "1",          "-1",          "0.5",         "2.5",       "-0",         "90",
    "-90",   "180",        "360",         "89.9999",     "127.3",     "37.3",       "37.2959999991",
    "128",   "126.000001", "32767",       "32768",       "-32769",    "2147483648", "1e-300",
    "1e300", "1e308",      "-1e308",      "5e-324",      "1e39",      "1e-40",      "1e15",
    "1e16",  "9e99",       "6377397.155", "299.1528128", "500000",    "200000",     "&HFFFF",
    "1d5",   "1e400",      "0.9996",      "100000",      "1000000000"};

// Where integers end, as numbers and as exponents.
constexpr std::string_view kLimits[] = {"2147483647",
                                        "-2147483649",
                                        "4294967296",
                                        "9223372036854775807",
                                        "-9223372036854775809",
                                        "18446744073709551616",
                                        "1e2147483648",
                                        "1e-2147483649",
                                        "1e9223372036854775807",
                                        "0.1e-9223372036854775808",
                                        "1e18446744073709551616"};

std::size_t below(Random& random, std::size_t limit) {
    return limit == 0 ? 0 : random() % limit;
}

template <class Container>
decltype(auto) oneOf(Random& random, Container& all) {
    return all[below(random, std::size(all))];
}

Lines linesOf(std::string_view text) {
    Lines lines;
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        lines.emplace_back(text.substr(0, end));
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    }
    return lines;
}

// Puts another word in place of one of the line's.
void replaceWord(Random& random, std::string& line, std::string_view word) {
    const std::size_t start = line.find_first_not_of(" \t,", below(random, line.size() + 1));
    if (start == std::string::npos) return;
    const std::size_t end = std::min(line.find_first_of(" \t,\r", start), line.size());
    line.replace(start, end - start, word);
}

std::string aWord(Random& random, const Lines& lines) {
    const std::string& line = oneOf(random, lines);
    const std::size_t start = below(random, line.size() + 1);
    return line.substr(start, line.find_first_of(" \t,\r", start) - start);
}

void mutateLines(Random& random, Lines& lines, std::span<const std::string_view> known) {
    const std::size_t at = below(random, lines.size() + 1);
    const auto place = lines.begin() + static_cast<std::ptrdiff_t>(at);
    switch (random() % 9) {
        case 0:
        case 1:
            lines.insert(place, std::string(oneOf(random, known)));
            return;
        case 2:
            if (place != lines.end()) lines.erase(place);
            return;
        case 3:
            if (place != lines.end()) lines.insert(place, std::string(oneOf(random, lines)));
            return;
        case 4:
            if (place != lines.end()) std::swap(*place, oneOf(random, lines));
            return;
        case 5:
            if (place != lines.end()) replaceWord(random, *place, aWord(random, lines));
            return;
        case 6:
            if (place != lines.end()) replaceWord(random, *place, oneOf(random, kLimits));
            return;
        default:
            if (place != lines.end()) replaceWord(random, *place, oneOf(random, kNumbers));
            return;
    }
}

}  // namespace
}  // namespace kelvo::fuzz

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size,
                                               std::size_t maxSize, unsigned seed) {
    using namespace kelvo::fuzz;
    Random random(seed + 1);
    const auto known = knownLines();
    if (known.empty() || random() % 3 == 0) return LLVMFuzzerMutate(data, size, maxSize);
    Lines lines = linesOf(textOf(data, size));
    for (unsigned i = 0; i <= random() % 3; ++i) mutateLines(random, lines, known);
    std::string text;
    for (const std::string& line : lines) text.append(line).append("\n");
    const std::size_t length = std::min(text.size(), maxSize);
    std::copy_n(text.begin(), length, data);
    return length;
}
