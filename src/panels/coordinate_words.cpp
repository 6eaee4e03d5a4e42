#include "panels/coordinate_words.h"

#include <algorithm>
#include <array>
#include <cctype>

#include "common/utf8.h"

namespace kelvo {

namespace {

// Stand for the signs of an angle once they have been told apart.
constexpr char kDegreeSign = '\x01';
constexpr char kMinuteSign = '\x02';
constexpr char kSecondSign = '\x03';

bool isDigit(char letter) {
    return letter >= '0' && letter <= '9';
}

bool endsInDigit(const std::string& text) {
    return !text.empty() && isDigit(text.back());
}

bool isGap(char letter) {
    return letter == ' ' || letter == '\t' || letter == '\n' || letter == ';' || letter == ',';
}

// One letter as the words are told apart by; 0 for a letter that stays what it is.
char plainLetter(char32_t code, bool afterDigit) {
    switch (code) {
        case U'\r':
        case U'\u00A0':
        case U'\u3000':
            return ' ';
        case U'−':
        case U'–':
            return '-';
        case U'°':
        case U'º':
            return kDegreeSign;
        case U'\'':
        case U'′':
        case U'’':
            return kMinuteSign;
        case U'"':
        case U'″':
        case U'”':
            return kSecondSign;
        case U'도':
            return afterDigit ? kDegreeSign : '\0';
        case U'분':
            return afterDigit ? kMinuteSign : '\0';
        case U'초':
            return afterDigit ? kSecondSign : '\0';
        default:
            return '\0';
    }
}

std::string withPlainSigns(std::string_view text) {
    std::string plain;
    while (!text.empty()) {
        const Utf8Character character = firstCharacter(text);
        const char letter = plainLetter(character.code, endsInDigit(plain));
        if (letter != '\0')
            plain += letter;
        else
            plain.append(text.substr(0, character.length));
        text.remove_prefix(character.length);
    }
    return plain;
}

// Takes the blanks out of an angle: minutes go with the degrees in front of them, seconds with the
// minutes. A report has blanks where a figure has one place only ("37- 5- 1.5000").
std::string withAnglesTogether(const std::string& plain) {
    std::string result;
    for (std::size_t at = 0; at < plain.size(); ++at) {
        const bool afterHyphen = plain[at] == '-' && endsInDigit(result);
        const bool afterDegrees = plain[at] == kDegreeSign;
        result += plain[at];
        if (!afterDegrees && !afterHyphen && plain[at] != kMinuteSign) continue;
        const std::size_t number = std::min(plain.find_first_not_of(' ', at + 1), plain.size());
        const std::size_t behind =
            std::min(plain.find_first_not_of("0123456789.", number), plain.size());
        const char sign = plain.c_str()[behind];  // '\0' at the end
        const bool minutesFollow = sign == kMinuteSign;
        const bool secondsFollow = !minutesFollow && sign != kDegreeSign;
        const bool together = afterHyphen || (afterDegrees ? minutesFollow : secondsFollow);
        if (number < behind && together) at = number - 1;
    }
    return result;
}

// Takes digits off the front.
std::string digits(std::string_view& rest) {
    const std::size_t length = std::min(rest.find_first_not_of("0123456789"), rest.size());
    std::string taken(rest.substr(0, length));
    rest.remove_prefix(length);
    return taken;
}

bool takes(std::string_view& rest, std::string_view oneOf) {
    if (rest.empty() || oneOf.find(rest.front()) == std::string_view::npos) return false;
    rest.remove_prefix(1);
    return true;
}

// A number from end to end; false otherwise.
bool isNumber(std::string_view rest) {
    takes(rest, "+-");
    const bool integerPart = !digits(rest).empty();
    const bool decimals = takes(rest, ".") && !digits(rest).empty();
    if (!integerPart && !decimals) return false;
    if (takes(rest, "eE")) {
        takes(rest, "+-");
        if (digits(rest).empty()) return false;
    }
    return rest.empty();
}

// Makes the word an angle if it is one from end to end.
void readAngle(std::string_view rest, CoordinateWord& word) {
    const bool negative = !rest.empty() && rest.front() == '-';
    takes(rest, "+-");
    const std::string degrees = digits(rest);
    const bool signs = !rest.empty() && rest.front() == kDegreeSign;
    if (!takes(rest, "-:\x01")) return;
    const std::string minutes = digits(rest);
    if (!takes(rest, signs ? "\x02" : "-:")) return;
    std::string seconds = digits(rest);
    if (degrees.empty() || degrees.size() > 3 || minutes.empty() || minutes.size() > 2 ||
        seconds.empty() || seconds.size() > 2) {
        return;
    }
    if (takes(rest, ".")) {
        const std::string decimals = digits(rest);
        if (decimals.empty()) return;
        seconds += '.' + decimals;
    }
    takes(rest, "\x03");
    if (!rest.empty()) return;
    word.kind = CoordinateWord::Kind::Angle;
    word.degrees = degrees;
    word.minutes = minutes;
    word.seconds = seconds;
    word.negative = negative;
}

char hemisphereOf(char letter) {
    const char upper = static_cast<char>(std::toupper(static_cast<unsigned char>(letter)));
    return std::string_view("NSEW").find(upper) == std::string_view::npos ? '\0' : upper;
}

bool beginsWithDigit(std::string_view text) {
    return !text.empty() && isDigit(text.front());
}

// Whether a hemisphere may follow: a digit, a point or a sign.
bool takesHemisphere(std::string_view text) {
    return !text.empty() &&
           std::string_view("0123456789.\x01\x03").find(text.back()) != std::string_view::npos;
}

CoordinateWord wordOf(std::string_view text) {
    CoordinateWord word;
    word.text = text;
    std::string_view core = text;
    if (hemisphereOf(core.front()) != '\0' && beginsWithDigit(core.substr(1))) {
        word.hemisphere = hemisphereOf(core.front());
        core.remove_prefix(1);
    } else if (hemisphereOf(core.back()) != '\0' &&
               takesHemisphere(core.substr(0, core.size() - 1))) {
        word.hemisphere = hemisphereOf(core.back());
        core.remove_suffix(1);
    }
    readAngle(core, word);
    if (word.kind == CoordinateWord::Kind::Angle) return word;
    const bool inDegrees = core.back() == kDegreeSign;
    if (inDegrees || core.back() == 'm' || core.back() == 'M') core.remove_suffix(1);
    if (isNumber(core)) {
        word.kind = CoordinateWord::Kind::Number;
        word.saysDegrees = inDegrees;
        word.text = core.front() == '+' ? core.substr(1) : core;
    }
    return word;
}

// A hemisphere that stands alone belongs to the number in front, or to the next one.
void joinHemispheres(std::vector<CoordinateWord>& words) {
    for (std::size_t at = 0; at < words.size();) {
        const std::string& text = words[at].text;
        const char hemisphere = text.size() == 1 ? hemisphereOf(text[0]) : '\0';
        const auto free = [&](std::size_t place) {
            return place < words.size() && words[place].kind != CoordinateWord::Kind::Other &&
                   words[place].hemisphere == '\0';
        };
        if (hemisphere == '\0' || !(free(at - 1) || free(at + 1))) {
            ++at;
            continue;
        }
        words[free(at - 1) ? at - 1 : at + 1].hemisphere = hemisphere;
        words.erase(words.begin() + static_cast<std::ptrdiff_t>(at));
    }
}

}  // namespace

bool CoordinateWord::isWhole() const {
    return isNumber() && std::all_of(text.begin(), text.end(), isDigit);
}

bool CoordinateWord::hasDigits() const {
    return std::any_of(text.begin(), text.end(), isDigit);
}

CoordinateLine coordinateWords(std::string_view text) {
    const std::string plain = withAnglesTogether(withPlainSigns(text));
    CoordinateLine line;
    std::size_t begin = 0;
    std::size_t lastEnd = 0;  // of the word before
    for (std::size_t at = 0; at <= plain.size(); ++at) {
        if (at < plain.size() && !isGap(plain[at])) continue;
        if (at > begin) {
            if (!line.words.empty()) {
                const bool tight = plain.substr(lastEnd, begin - lastEnd) == "," &&
                                   isDigit(plain[lastEnd - 1]) && isDigit(plain[begin]);
                (tight ? line.tightCommas : line.otherGaps) = true;
            }
            line.words.push_back(wordOf(std::string_view(plain).substr(begin, at - begin)));
            lastEnd = at;
        }
        begin = at + 1;
    }
    joinHemispheres(line.words);
    return line;
}

}  // namespace kelvo
