#include "common/letter_case.h"

#include "common/utf8.h"

namespace kelvo {

namespace {

// Runs of small letters of the code page and the distance to their capitals. The dotless i has
// the capital I, whose own small letter is another one: it has no way back.
struct CaseRun {
    char32_t first;
    char32_t last;
    char32_t toUpper;  // subtracted
    bool bothWays;
};

constexpr CaseRun kCaseRuns[] = {
    {U'a', U'z', 32, true},     {0x00E6, 0x00E6, 32, true},    // æ
    {0x00F0, 0x00F0, 32, true}, {0x00F8, 0x00F8, 32, true},    // ð ø
    {0x00FE, 0x00FE, 32, true}, {0x0111, 0x0111, 1, true},     // þ đ
    {0x0127, 0x0127, 1, true},  {0x0131, 0x0131, 232, false},  // ħ ı
    {0x0133, 0x0133, 1, true},  {0x0140, 0x0140, 1, true},     // ĳ ŀ
    {0x0142, 0x0142, 1, true},  {0x014B, 0x014B, 1, true},     // ł ŋ
    {0x0153, 0x0153, 1, true},  {0x0167, 0x0167, 1, true},     // œ ŧ
    {0x03B1, 0x03C1, 32, true}, {0x03C3, 0x03C9, 32, true},    // Greek
    {0x0430, 0x044F, 32, true}, {0x0451, 0x0451, 80, true},    // Cyrillic
    {0x2170, 0x2179, 16, true}, {0x24D0, 0x24E9, 26, true},    // Roman numerals, circled
    {0xFF41, 0xFF5A, 32, true},                                // full-width
};

template <typename Mapping>
std::string mapped(std::string_view text, Mapping mapping) {
    std::string result;
    result.reserve(text.size());
    while (!text.empty()) {
        const Utf8Character character = firstCharacter(text);
        const char32_t changed = mapping(character.code);
        if (changed == character.code)
            result.append(text.substr(0, character.length));
        else
            appendUtf8(changed, result);
        text.remove_prefix(character.length);
    }
    return result;
}

}  // namespace

char32_t upperCased(char32_t character) {
    for (const CaseRun& run : kCaseRuns)
        if (character >= run.first && character <= run.last) return character - run.toUpper;
    return character;
}

char32_t lowerCased(char32_t character) {
    for (const CaseRun& run : kCaseRuns) {
        const char32_t lower = character + run.toUpper;
        if (run.bothWays && lower >= run.first && lower <= run.last) return lower;
    }
    return character;
}

std::string upperCased(std::string_view text) {
    return mapped(text, [](char32_t c) { return upperCased(c); });
}

std::string lowerCased(std::string_view text) {
    return mapped(text, [](char32_t c) { return lowerCased(c); });
}

bool sameIgnoringCase(std::string_view one, std::string_view other) {
    while (!one.empty() && !other.empty()) {
        const Utf8Character a = firstCharacter(one);
        const Utf8Character b = firstCharacter(other);
        // Bytes that belong to no character are the same only as they stand.
        const bool same = a.code == 0xFFFD || b.code == 0xFFFD
                              ? one.substr(0, a.length) == other.substr(0, b.length)
                              : upperCased(a.code) == upperCased(b.code);
        if (!same) return false;
        one.remove_prefix(a.length);
        other.remove_prefix(b.length);
    }
    return one.empty() && other.empty();
}

}  // namespace kelvo
