#include "shell/imported_points.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "batch/language.h"
#include "common/code_page.h"
#include "common/fixed_width.h"
#include "common/letter_case.h"
#include "convert/coordinate_text.h"
#include "shell/place_for_lines.h"

namespace kelvo {

namespace {

using Row = std::vector<std::string>;

constexpr int kNameColumns = 10;  // of a name in the tables of a report
constexpr std::size_t kMostNamed = 5;

std::string_view wordOf(System system) {
    switch (system) {
        case System::Wgs:
            return "WGS";
        case System::User:
            return "UGS";
        case System::Tm:
            return "TM";
        case System::Utm:
            return "UTM";
    }
    return {};
}

std::string_view cellAt(const Row& row, std::size_t column) {
    return column < row.size() ? std::string_view(row[column]) : std::string_view();
}

// How many, and the first of them.
class Named {
public:
    void add(std::string_view which) {
        if (++count_ > kMostNamed) return;
        if (count_ > 1) names_ += ", ";
        names_ += quotedPiece(which);
    }
    void warn(std::vector<std::string>& warnings, std::string_view sentence) const {
        if (count_ == 0) return;
        warnings.push_back(std::to_string(count_) + std::string(sentence) + ": " + names_ +
                           (count_ > kMostNamed ? ", ..." : ""));
    }

private:
    std::size_t count_ = 0;
    std::string names_;
};

// A name is one field: no gaps of a data file in it, nothing that isn't a letter.
std::string oneField(std::string_view name) {
    std::string field(name);
    for (char& letter : field) {
        const auto code = static_cast<unsigned char>(letter);
        if (letter == ' ' || letter == ',' || code < 0x20 || code == 0x7F) letter = '_';
    }
    return field;
}

class LineMaker {
public:
    LineMaker(const ImportChoice& choice, ImportedLines& made) : choice_(choice), made_(made) {}

    void take(const Row& row, std::size_t number) {
        const std::string_view north = cellAt(row, choice_.north);
        const std::string_view east = cellAt(row, choice_.east);
        std::string_view height = cellAt(row, choice_.height);
        const CoordinateRead x = readCoordinate(north);
        const CoordinateRead y = readCoordinate(east);
        const CoordinateRead h = readCoordinate(height);
        using enum CoordinateRead::Outcome;
        const bool readable = x.outcome == Number && y.outcome == Number &&
                              (h.outcome == Number || h.outcome == Empty);
        if (!readable || (x.value == 0 && y.value == 0)) {
            unread_.add(std::to_string(number) + "행");
            return;
        }
        if (h.outcome == Empty) {
            ++withoutHeight_;
            height = "0";
        }
        const std::string name = nameOf(cellAt(row, choice_.name), number);
        if (hasAngles(choice_.system)) checkAngles(name, x.value, y.value);
        append(name, north, east, height);
    }

    void finish() const {
        std::vector<std::string>& warnings = made_.warnings;
        unread_.warn(warnings, "개 행은 좌표를 읽을 수 없어 빠집니다");
        longNames_.warn(warnings, "개 이름이 10칸보다 길어 보고서의 표에서 잘립니다");
        changedNames_.warn(warnings, "개 이름은 데이터 파일에 그대로 쓸 수 없어 바꿉니다");
        strangeNames_.warn(warnings,
                           "개 이름에 데이터 파일(코드 페이지 949)에 없는 글자가 있습니다");
        farAngles_.warn(warnings, "개 점의 위도나 경도가 범위 밖입니다");
        badDms_.warn(warnings, "개 점의 분이나 초가 60 이상입니다");
        if (withoutHeight_ > 0)
            warnings.push_back(std::to_string(withoutHeight_) + "개 점은 높이가 없어 0으로 씁니다");
    }

private:
    std::string nameOf(std::string_view cell, std::size_t number) {
        if (cell.empty()) return std::to_string(number);
        std::string name = oneField(cell);
        // The first line would begin a block of parameters instead.
        if (made_.points == 0 && isCommandOfParameters(name)) name.insert(0, 1, '_');
        if (name != cell) changedNames_.add(cell);
        if (genSub::DisplayLen(name) > kNameColumns) longNames_.add(name);
        if (decodeCodePage(encodeCodePage(name)) != name) strangeNames_.add(name);
        return name;
    }

    [[nodiscard]] bool isCommandOfParameters(const std::string& name) const {
        const std::string word(wordOf(choice_.system));
        return commandOf(upperCased(word + " " + name + " ")) != commandOf(word + " A ");
    }

    void checkAngles(const std::string& name, double latitude, double longitude) {
        if (std::abs(latitude) > 90 || std::abs(longitude) > 180) farAngles_.add(name);
        if (choice_.angles == ListAngles::Dms &&
            !(isPackedAngle(latitude) && isPackedAngle(longitude)))
            badDms_.add(name);
    }

    void append(const std::string& name, std::string_view north, std::string_view east,
                std::string_view height) {
        std::string& text = made_.text;
        constexpr int kWordColumns = 7;
        genSub::appendFormatText(text, made_.points == 0 ? wordOf(choice_.system) : "",
                                 kWordColumns, genSub::Align::Left);
        text += name;
        text.append(static_cast<std::size_t>(std::max(kNameColumns - genSub::DisplayLen(name), 0)),
                    ' ');
        for (const std::string_view number : {north, east, height}) {
            text += "   ";
            text += number;
        }
        text += '\n';
        ++made_.points;
    }

    const ImportChoice& choice_;
    ImportedLines& made_;
    Named unread_;
    Named longNames_;
    Named changedNames_;
    Named strangeNames_;
    Named farAngles_;
    Named badDms_;
    std::size_t withoutHeight_ = 0;
};

bool isTakenTwice(const ImportChoice& choice) {
    return choice.north == choice.east || choice.height == choice.north ||
           choice.height == choice.east;
}

// What the system that the file states says against the one chosen.
std::optional<std::string> doubtAboutSystem(const PointList& list, const ImportChoice& choice) {
    if (!list.system || !list.system->stated) return std::nullopt;
    const std::string system = "파일의 좌표계(" + list.system->name + ")는 ";
    if (list.system->geographic != hasAngles(choice.system))
        return system + (list.system->geographic ? "경위도인데 직교좌표를 골랐습니다"
                                                 : "직교좌표인데 경위도를 골랐습니다");
    const bool onWgs84 = isWgs84Axis(list.system->semiMajorAxis);
    if (onWgs84 != (choice.system == System::Wgs))
        return system + "고른 좌표계와 타원체가 다릅니다. 파라미터를 확인하십시오";
    return std::nullopt;
}

}  // namespace

ImportedLines importedLines(const PointList& list, const ImportChoice& choice,
                            std::string_view text, std::size_t caretLine, std::size_t caretColumn) {
    const PlaceForLines place = placeForLines(text, caretLine, caretColumn);
    ImportedLines made;
    made.line = place.line;
    if (const auto doubt = doubtAboutSystem(list, choice)) made.warnings.push_back(*doubt);
    if (isTakenTwice(choice)) {
        made.warnings.emplace_back("한 열을 두 좌표로 골랐습니다");
        return made;
    }
    LineMaker lines(choice, made);
    for (std::size_t i = 0; i < list.rows.size(); ++i) lines.take(list.rows[i], i + 1);
    lines.finish();
    if (list.goesOn)
        made.warnings.push_back("한 번에 " + std::to_string(kMostListRows) +
                                "점까지 변환합니다. 그 뒤의 점은 빠집니다");
    if (made.points == 0) return made;
    const bool degrees = choice.angles == ListAngles::Degrees;
    if (hasAngles(choice.system) && degrees != place.readsDegrees) {
        constexpr std::string_view kDegrees = "INPUT  deg\n";
        constexpr std::string_view kDms = "INPUT  ddd.mmssss\n";
        made.text.insert(0, degrees ? kDegrees : kDms);
        made.text += degrees ? kDms : kDegrees;
    }
    if (place.needsEnd) made.text += "end\n \n";
    return made;
}

}  // namespace kelvo
