#include "convert/point_list.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <utility>

#include "common/blanks.h"
#include "common/run_time_fault.h"
#include "common/text_file.h"
#include "convert/coordinate_text.h"
#include "convert/delimited_fields.h"
#include "convert/refusal.h"
#include "exchange/load_point_files.h"
#include "library/text_bytes.h"

namespace kelvo {

namespace {

using Row = std::vector<std::string>;

bool isEmpty(const Row& row) {
    return std::ranges::all_of(row, [](const std::string& cell) { return cell.empty(); });
}

bool holdsNumber(const Row& row) {
    return std::ranges::any_of(
        row, [](const std::string& cell) { return readCoordinate(cell).isSpelled(); });
}

// False where no further row is wanted.
bool take(PointList& list, Row row) {
    if (isEmpty(row)) return true;
    if (list.rows.empty() && list.header.empty() && !holdsNumber(row)) {
        list.header = std::move(row);
        return true;
    }
    list.goesOn = list.rows.size() == kMostListRows;
    if (!list.goesOn) list.rows.push_back(std::move(row));
    return !list.goesOn;
}

Row cellsByBlanks(std::string_view line) {
    Row cells;
    for (std::size_t at = line.find_first_not_of(kBlanksAndLineEnds);
         at != std::string_view::npos;) {
        const std::size_t end = std::min(line.find_first_of(kBlanksAndLineEnds, at), line.size());
        cells.emplace_back(line.substr(at, end - at));
        at = line.find_first_not_of(kBlanksAndLineEnds, end);
    }
    return cells;
}

Row cellsByDelimiter(std::string line, char delimiter) {
    Row cells;
    for (const std::string_view field : allFields(line, delimiter))
        cells.emplace_back(trimmed(field, kBlanksAndLineEnds));
    return cells;
}

std::string shortestText(double value) {
    std::array<char, 400> digits{};
    const auto [end, error] = std::to_chars(digits.data(), digits.data() + digits.size(), value,
                                            std::chars_format::fixed);
    return {digits.data(), end};
}

PointList listOfGeometry(VectorFormat format, const std::string& path) {
    const auto reader = loadPointFiles()->open(format, path);
    PointList list;
    list.system = reader->system();
    list.header = {"이름", "북쪽(위도)", "동쪽(경도)", "높이"};
    for (PointOfFile point; reader->read(point);) {
        Row row{std::string(trimmed(point.name, kBlanksAndLineEnds)), {}, {}, {}};
        if (point.place)
            row = {std::move(row.front()), shortestText(point.place->y),
                   shortestText(point.place->x), shortestText(point.place->height)};
        list.goesOn = list.rows.size() == kMostListRows;
        if (list.goesOn) break;
        list.rows.push_back(std::move(row));
    }
    return list;
}

PointList listOfSheet(VectorFormat format, const std::string& path) {
    const auto reader = loadPointFiles()->openSheet(format, path);
    PointList list;
    for (std::vector<std::string> cells; reader->read(cells);) {
        Row row;
        for (const std::string& cell : cells) row.emplace_back(trimmed(cell, kBlanksAndLineEnds));
        if (!take(list, std::move(row))) break;
    }
    return list;
}

PointList listOfPath(Disk& disk, const std::string& path) {
    const auto format = vectorFormatOf(path);
    if (!format) return pointListOfText(readWholeFile(disk, path));
    return limitsOf(*format).hasGeometry ? listOfGeometry(*format, path)
                                         : listOfSheet(*format, path);
}

}  // namespace

std::size_t PointList::columns() const {
    std::size_t most = header.size();
    for (const Row& row : rows) most = std::max(most, row.size());
    return most;
}

PointList pointListOfText(std::string_view bytes) {
    if (bytes.find('\0') != std::string_view::npos) throw Refusal("글로 된 점 목록이 아닙니다");
    const std::string text = textOfBytes(bytes);
    std::string_view rest = text;
    rest.remove_prefix(std::min(rest.find_first_not_of(kBlanksAndLineEnds), rest.size()));
    const std::string_view first = firstLineOf(rest);
    const bool byBlanks = first.find_first_of(",;\t") == std::string_view::npos;
    const char delimiter = delimiterOf(first);
    PointList list;
    while (!rest.empty()) {
        const std::size_t end = byBlanks ? rest.find('\n') : endOfRow(rest, delimiter);
        const std::string_view line = withoutLineEnd(rest.substr(0, end));
        if (!take(list,
                  byBlanks ? cellsByBlanks(line) : cellsByDelimiter(std::string(line), delimiter)))
            break;
        rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
    }
    if (list.rows.empty()) throw Refusal("점이 하나도 없습니다");
    return list;
}

PointList pointListOfFile(Disk& disk, const std::string& path) {
    try {
        PointList list = listOfPath(disk, path);
        if (list.rows.empty()) throw Refusal("점이 하나도 없습니다");
        return list;
    } catch (const ExchangeFault& fault) {
        throw Refusal(fault.what());
    } catch (const RuntimeFault& fault) {
        throw Refusal(fault.text());
    } catch (const Refusal& refusal) {
        throw Refusal(refusal.what() + std::string(" (") + path + ")");
    }
}

}  // namespace kelvo
