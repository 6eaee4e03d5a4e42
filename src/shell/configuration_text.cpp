#include "shell/configuration_text.h"

#include "common/checked_arithmetic.h"
#include "common/code_page.h"
#include "common/number_text.h"
#include "common/path_text.h"
#include "common/text_constants.h"

namespace kelvo {

namespace {

constexpr std::size_t kZone = 14;  // columns

double numberOf(double value) {
    return value;
}
template <class Named>
double numberOf(Named value) {
    return static_cast<std::int16_t>(value);
}
void assign(double& field, double value) {
    field = value;
}
// Any 16-bit number, also one without a name.
template <class Named>
void assign(Named& field, double value) {
    field = Named{roundedInteger16(value)};
}

// One line of items, each at the start of a zone.
class ZonedLine {
public:
    void text(std::string_view item) {
        if (!line_.empty()) line_.resize((line_.size() / kZone + 1) * kZone, ' ');
        line_ += item;
    }
    [[nodiscard]] const std::string& line() const { return line_; }

private:
    std::string line_;
};

std::string numberText(double value) {
    return (value < 0 ? "" : " ") + generalTextInFile(value) + " ";
}

bool fitsOneLine(std::string_view text) {
    return text.find_first_of("\r\n") == std::string_view::npos && !isLocator(text) &&
           decodeCodePage(encodeCodePage(text)) == text;
}

// A text so that it is read as one item.
std::string itemText(std::string_view text) {
    if (!fitsOneLine(text)) return pathAsLocator(text);
    const bool hasComma = text.find(',') != std::string_view::npos;
    const bool hasQuote = text.find('"') != std::string_view::npos;
    if (hasComma && hasQuote) return std::string(text);
    const bool beginsOddly = text.starts_with(' ') || text.starts_with('"');
    if (!hasComma && !beginsOddly) return std::string(text);
    return "\"" + std::string(text) + "\"";
}

}  // namespace

std::string storedText(const TransPara& Cfg, const StoredNumber& stored) {
    return std::visit([&](auto field) { return numberText(numberOf(Cfg.*field)); }, stored.field);
}

std::string readPath(TextReader& file) {
    std::string item;
    file.readTextItem(item);
    return pathFromText(item);
}

void readParameters(TextReader& file, TransPara& Cfg, FieldStore& fields) {
    Cfg.Editor = readPath(file);
    for (const StoredNumber& stored : kStoredNumbers) {
        const double value = file.readNumber();
        std::visit([&](auto field) { assign(Cfg.*field, value); }, stored.field);
    }
    file.readLine(fields.LineBuf);
    genSub::ParseFields(fields, 2);
    assign(Cfg.AddFlag, double{fields.FieldSng(1)});
    assign(Cfg.CorrFlag, double{fields.FieldSng(2)});
}

std::string parameterLines(const TransPara& Cfg, std::string_view flagGap) {
    std::string text = pathLine(Cfg.Editor);
    ZonedLine line;
    for (const StoredNumber& stored : kStoredNumbers) {
        line.text(storedText(Cfg, stored));
        if (!stored.lineEnds) continue;
        text.append(line.line()).append(kLineEnd);
        line = {};
    }
    line.text(numberText(numberOf(Cfg.AddFlag)));
    line.text(flagGap);
    line.text(numberText(numberOf(Cfg.CorrFlag)));
    return text.append(line.line()).append(kLineEnd);
}

std::string pathLine(std::string_view path) {
    return itemText(path).append(kLineEnd);
}

}  // namespace kelvo
