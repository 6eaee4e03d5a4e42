#include "panels/coordinate_text.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

#include "common/letter_case.h"
#include "common/number_text.h"
#include "panels/coordinate_words.h"

namespace kelvo {

namespace {

using Words = std::vector<CoordinateWord>;

constexpr double kHighest = 10'000;       // m; nothing on a survey stands higher
constexpr double kOfACoordinate = 1'000;  // m; what a grid coordinate has at least, as a rule

constexpr const char* kNoPoint =
    "한 점의 좌표로 읽을 수 없습니다. 위도 경도 높이 (또는 X Y 높이) 차례로 복사하십시오";
constexpr const char* kTwoWays =
    "점 이름인지 좌표인지 알 수 없어 붙여 넣지 않았습니다. 이름을 빼고 복사하십시오";
constexpr const char* kComma =
    "쉼표가 소수점인지 나눔표인지 알 수 없어 붙여 넣지 않았습니다. 소수점은 점(.)으로 쓰십시오";
constexpr const char* kManyPoints =
    "여러 점이 들어 있어 붙여 넣지 않았습니다. 한 점만 복사하십시오";
constexpr const char* kWholeDegrees =
    "도, 분, 초인지 도인지 알 수 없어 붙여 넣지 않았습니다. 도는 소수점까지 쓰십시오";

// The minutes and seconds in the decimals of a ddd.mmssss are below 60.
bool isDmsNumber(const std::string& number) {
    const std::size_t point = number.find('.');
    const std::string decimals =
        (point == std::string::npos ? std::string() : number.substr(point + 1)) + "0000";
    return decimals[0] < '6' && decimals[2] < '6';
}

struct Candidate {
    std::vector<std::string> texts;
    bool wholeDegrees = false;  // a coordinate is spelt without decimals
};

// One way to read the words.
class WordReader {
public:
    WordReader(const Words& words, std::size_t from, CoordinateForm form, bool anglesInThreeWords)
        : words_(words), at_(from), form_(form), inThreeWords_(anglesInThreeWords) {}

    // The coordinates of a point up to the last word; nothing if the words don't fit.
    std::optional<Candidate> read() {
        const bool both = form_ == CoordinateForm::Grid
                              ? takeLength() && takeLength()
                              : takeAngle(90, "NS") && takeAngle(180, "EW");
        const bool whole = both && (at_ == words_.size() || takeHeight()) && at_ == words_.size();
        return whole ? std::optional(found_) : std::nullopt;
    }

private:
    [[nodiscard]] bool left(std::size_t count) const { return words_.size() - at_ >= count; }

    bool takeLength() {
        if (!left(1) || !words_[at_].isNumber() || words_[at_].hemisphere != 0) return false;
        const NumberRead number = readNumber(words_[at_].text);
        found_.texts.push_back(words_[at_++].text);
        return !number.tooLarge;
    }

    bool takeHeight() {
        return left(1) && std::abs(leadingNumber(words_[at_].text)) < kHighest && takeLength();
    }

    bool takeAngle(double most, std::string_view hemispheres) {
        if (!left(inThreeWords_ ? 3 : 1)) return false;
        CoordinateWord word = words_[at_];
        if (inThreeWords_ && !joinThreeWords(word)) return false;
        at_ += inThreeWords_ ? 3 : 1;
        if (word.hemisphere != 0 && hemispheres.find(word.hemisphere) == std::string_view::npos)
            return false;
        return word.isNumber() ? takeNumber(word, most) : takeParts(word, most);
    }

    bool joinThreeWords(CoordinateWord& word) const {
        const CoordinateWord& minutes = words_[at_ + 1];
        const CoordinateWord& seconds = words_[at_ + 2];
        const bool negative = word.text.starts_with('-');
        word.degrees = negative ? word.text.substr(1) : word.text;
        word.minutes = minutes.text;
        word.seconds = seconds.text;
        const std::size_t wholeSeconds = word.seconds.find('.');
        const auto plain = [](const CoordinateWord& part) {
            return part.isNumber() && !part.saysDegrees &&
                   part.text.find_first_not_of("0123456789.") == std::string::npos;
        };
        word.kind = CoordinateWord::Kind::Angle;
        word.negative = negative;
        word.hemisphere = seconds.hemisphere != 0 ? seconds.hemisphere : word.hemisphere;
        return words_[at_].isNumber() && !words_[at_].saysDegrees && minutes.isWhole() &&
               plain(seconds) && word.degrees.size() <= 3 &&
               word.degrees.find_first_not_of("0123456789") == std::string::npos &&
               word.minutes.size() <= 2 && std::min(wholeSeconds, word.seconds.size()) <= 2;
    }

    bool takeNumber(const CoordinateWord& word, double most) {
        const bool plain = word.text.find_first_not_of("+-.0123456789") == std::string::npos;
        const double value = leadingNumber(word.text);
        if (!plain || std::abs(value) > most) return false;
        if (word.hemisphere != 0 && value < 0) return false;
        if (form_ == CoordinateForm::Dms && (word.saysDegrees || !isDmsNumber(word.text)))
            return false;
        if (word.isWhole() && !word.saysDegrees) found_.wholeDegrees = true;
        found_.texts.push_back(withSign(word.text, word));
        return true;
    }

    bool takeParts(const CoordinateWord& word, double most) {
        if (word.kind != CoordinateWord::Kind::Angle || !isProper(word)) return false;
        if (word.hemisphere != 0 && word.negative) return false;
        if (degreesOf(word) > most) return false;
        found_.texts.push_back(withSign(numberOf(word, form_), word));
        return true;
    }

    const Words& words_;
    std::size_t at_;
    CoordinateForm form_;
    bool inThreeWords_;
    Candidate found_;
};

bool isCommandWord(const std::string& text) {
    const std::string upper = upperCased(text);
    return upper == "WGS" || upper == "UGS" || upper == "TM" || upper == "UTM";
}

// A name may be made of digits, or look like an angle ("1-2-3").
bool mayBeName(const CoordinateWord& word) {
    return word.hemisphere == 0 && (word.isWhole() || word.kind == CoordinateWord::Kind::Angle);
}

// Of a grid point with a name of digits in front and one with a height the magnitudes tell more
// than the spelling: heights are small, coordinates large.
bool isLikelyGrid(const std::vector<std::string>& texts) {
    return std::abs(leadingNumber(texts[0])) >= kOfACoordinate &&
           std::abs(leadingNumber(texts[1])) >= kOfACoordinate;
}

void addCandidates(std::vector<Candidate>& all, const Words& words, std::size_t from,
                   CoordinateForm form) {
    for (const bool inThreeWords : {false, true}) {
        if (inThreeWords && form == CoordinateForm::Grid) continue;
        if (auto found = WordReader(words, from, form, inThreeWords).read())
            all.push_back(std::move(*found));
    }
}

CoordinateTexts refused(const char* why) {
    return {.texts = {}, .refusal = why};
}

CoordinateTexts readWords(const CoordinateLine& line, CoordinateForm form) {
    // Words in front are a name or a command of the data file, words at the end a remark.
    const auto isOther = [](const CoordinateWord& word) {
        return word.kind == CoordinateWord::Kind::Other;
    };
    const auto begin = std::find_if_not(line.words.begin(), line.words.end(), isOther);
    auto end = line.words.end();
    while (end != begin && isOther(*(end - 1)) && !(end - 1)->hasDigits()) --end;
    const Words words(begin, end);
    if (words.empty() || std::any_of(words.begin(), words.end(), isOther)) return refused(kNoPoint);
    if (line.tightCommas && line.otherGaps) return refused(kComma);
    const bool named = std::any_of(line.words.begin(), begin, [](const CoordinateWord& word) {
        return !isCommandWord(word.text);
    });

    std::vector<Candidate> all;
    addCandidates(all, words, 0, form);
    if (!named && mayBeName(words.front())) addCandidates(all, words, 1, form);
    if (form == CoordinateForm::Grid && words.front().isWhole() && !named) {
        std::erase_if(all, [](const Candidate& at) { return !isLikelyGrid(at.texts); });
        if (all.empty()) return refused(words.size() > 2 ? kTwoWays : kNoPoint);
    }
    if (all.empty()) return refused(kNoPoint);
    if (all.size() > 1) return refused(kTwoWays);
    if (all.front().wholeDegrees) return refused(kWholeDegrees);
    const std::vector<std::string>& texts = all.front().texts;
    const bool decimals =
        texts[0].find('.') != std::string::npos && texts[1].find('.') != std::string::npos;
    if (line.tightCommas && !decimals) return refused(kComma);
    return {.texts = texts, .refusal = {}};
}

bool holdsManyPoints(std::string_view text, CoordinateForm form) {
    int points = 0;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        const CoordinateLine line = coordinateWords(text.substr(0, end));
        points += readWords(line, form).texts.empty() ? 0 : 1;
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return points > 1;
}

}  // namespace

CoordinateTexts readCoordinates(std::string_view text, CoordinateForm form) {
    if (holdsManyPoints(text, form)) return refused(kManyPoints);
    return readWords(coordinateWords(text), form);
}

}  // namespace kelvo
