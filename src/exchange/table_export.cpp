#include "exchange/table_export.h"

#include <array>
#include <string_view>
#include <vector>

#include "common/fixed_width.h"
#include "exchange/load_point_files.h"

namespace kelvo {

namespace {

using P = PointRec;

struct TableColumn {
    std::string_view name;
    int decimals;  // 10 of an angle, 6 of a grid, 4 of a height
    double P::*value;
};

constexpr std::array kColumns{
    TableColumn{"wgs_lat", 10, &P::WgsPhi},   TableColumn{"wgs_lon", 10, &P::WgsLam},
    TableColumn{"wgs_h", 4, &P::WgsH},        TableColumn{"user_lat", 10, &P::UserPhi},
    TableColumn{"user_lon", 10, &P::UserLam}, TableColumn{"user_h", 4, &P::UserH},
    TableColumn{"tm_x", 6, &P::TmX},          TableColumn{"tm_y", 6, &P::TmY},
    TableColumn{"tm_h", 4, &P::TmH},          TableColumn{"utm_x", 6, &P::UtmX},
    TableColumn{"utm_y", 6, &P::UtmY},        TableColumn{"utm_h", 4, &P::UtmH},
    TableColumn{"wgsutm_x", 6, &P::WgsUtmX},  TableColumn{"wgsutm_y", 6, &P::WgsUtmY},
    TableColumn{"wgsutm_h", 4, &P::WgsUtmH}};

std::string cellOf(const TableColumn& column, const PointRec& point) {
    std::string cell;
    genSub::appendFormatNum(cell, point.*column.value, 8, column.decimals);
    cell.erase(0, cell.find_first_not_of(' '));
    return cell;
}

}  // namespace

void exportTables(const PointTable& points, const std::string& path) {
    const VectorFormat format = vectorFormatOf(path).value_or(VectorFormat::GeoPackage);
    const bool drawing = format == VectorFormat::Dxf;
    PointLayer layer{.format = format,
                     .path = path,
                     .columns = {{"name"}},
                     .system = "EPSG:4326",
                     .placesAreAngles = !drawing,
                     .points = static_cast<std::uint64_t>(points.PointCount)};
    for (const TableColumn& column : kColumns)
        layer.columns.push_back({std::string(column.name), column.decimals});
    const auto writer = loadPointFiles()->create(layer);
    for (int i = 1; i <= points.PointCount; ++i) {
        const PointRec& point = points.row(i);
        std::vector<std::string> cells{point.name};
        for (const TableColumn& column : kColumns) cells.push_back(cellOf(column, point));
        const Place place = drawing
                                ? Place{.x = point.TmY, .y = point.TmX, .height = point.TmH}
                                : Place{.x = point.WgsLam, .y = point.WgsPhi, .height = point.WgsH};
        writer->write(std::vector<std::string_view>(cells.begin(), cells.end()), place);
    }
    writer->finish();
}

}  // namespace kelvo
