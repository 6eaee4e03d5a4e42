#include "convert/vector_sink.h"

#include <algorithm>
#include <utility>

#include "common/fixed_width.h"
#include "common/number_text.h"
#include "convert/refusal.h"
#include "convert/vector_refusal.h"
#include "exchange/load_point_files.h"

namespace kelvo {

namespace {

// As cells print them; an origin is printed with as many as it has.
constexpr int kDecimalsOfAngle = 10;
constexpr int kDecimalsOfGrid = 6;
constexpr int kDecimalsOfHeight = 4;
constexpr int kDecimalsOfOrigin = 12;

int decimalsOf(ColumnKind kind, AngleForm angles) {
    switch (kind) {
        case ColumnKind::Angle:
            // Degrees, minutes and seconds with something between them are text.
            return angles == AngleForm::Degrees || angles == AngleForm::Dms ? kDecimalsOfAngle : -1;
        case ColumnKind::Grid:
            return kDecimalsOfGrid;
        case ColumnKind::Height:
            return kDecimalsOfHeight;
        case ColumnKind::Origin:
            break;
    }
    return kDecimalsOfOrigin;
}

std::vector<PointColumn> columnsOfFile(const std::vector<OutputColumn>& columns, AngleForm angles) {
    std::vector<PointColumn> all{{"name"}};
    all.reserve(columns.size() + 2);
    for (const OutputColumn& column : columns)
        all.push_back({std::string(column.name), decimalsOf(column.kind, angles)});
    all.push_back({"status"});
    return all;
}

PlaceSystem systemOfGeometry(const VectorOutput& output) {
    if (limitsOf(output.format).system == StatedSystem::Wgs84) return PlaceSystem::Wgs;
    return placeSystemOf(output.geometry.value_or(output.systems.front()));
}

Place placeIn(PlaceSystem system, const ConvertedPoint& point) {
    switch (system) {
        case PlaceSystem::User:
            return {.x = point.UserLam, .y = point.UserPhi, .height = point.UserH};
        case PlaceSystem::Tm:
            return {.x = point.TmY, .y = point.TmX, .height = point.TmH};
        case PlaceSystem::Utm:
            return {.x = point.UtmY, .y = point.UtmX, .height = point.UtmH};
        case PlaceSystem::WgsUtm:
            return {.x = point.WgsUtmY, .y = point.WgsUtmX, .height = point.WgsUtmH};
        case PlaceSystem::Wgs:
            break;
    }
    return {.x = point.WgsLam, .y = point.WgsPhi, .height = point.WgsH};
}

}  // namespace

PlaceSystem placeSystemOf(OutputSystem system) {
    switch (system) {
        case OutputSystem::User:
            return PlaceSystem::User;
        case OutputSystem::Tm:
            return PlaceSystem::Tm;
        case OutputSystem::Utm:
            return PlaceSystem::Utm;
        case OutputSystem::WgsUtm:
            return PlaceSystem::WgsUtm;
        case OutputSystem::Wgs:
            break;
    }
    return PlaceSystem::Wgs;
}

VectorSink::VectorSink(const VectorOutput& output, Definition definition)
    : output_(output),
      definition_(std::move(definition)),
      columns_(columnsOf(output.systems)),
      system_(systemOfGeometry(output)) {
    require(output);
    // A grid's system needs the origin that the first point chooses.
    if (!hasOrigins()) open(0);
}

void VectorSink::require(const VectorOutput& output) const {
    const FormatLimits& limits = limitsOf(output.format);
    const std::string name(limits.name);
    if (output.geometry && !limits.hasGeometry)
        throw Refusal("--geometry: " + name + " has no geometry, only columns");
    if (output.geometry && limits.system == StatedSystem::Wgs84 &&
        *output.geometry != OutputSystem::Wgs)
        throw Refusal("--geometry: " + name + " is in WGS84 latitude and longitude only");
}

bool VectorSink::hasOrigins() const {
    return limitsOf(output_.format).hasGeometry && system_ != PlaceSystem::Wgs &&
           system_ != PlaceSystem::User;
}

double VectorSink::originOf(const ConvertedPoint& point) const {
    if (system_ == PlaceSystem::Tm) return point.Lam0;
    return system_ == PlaceSystem::Utm ? point.ULam0 : point.WgsULam0;
}

void VectorSink::open(double Lam0) {
    const bool angles = system_ == PlaceSystem::Wgs || system_ == PlaceSystem::User;
    writer_ = orRefusal([&] {
        return loadPointFiles()->create({.format = output_.format,
                                         .path = output_.path,
                                         .columns = columnsOfFile(columns_, output_.angles),
                                         .system = coordinateSystemOf(definition_, system_, Lam0),
                                         .placesAreAngles = angles,
                                         .points = output_.points});
    });
    for (const Unplaced& point : std::exchange(waiting_, {}))
        writeUnplaced(point.name, point.status);
}

void VectorSink::noteOrigin(const ConvertedPoint& point) {
    if (!hasOrigins()) return;
    const double Lam0 = originOf(point);
    if (!Lam0_) {
        Lam0_ = Lam0;
        open(Lam0);
    } else if (*Lam0_ != Lam0) {
        throw Refusal(
            "점들의 원점이 하나가 아닙니다 (" + generalText(*Lam0_) + ", " + generalText(Lam0) +
            "). 파일 하나에는 좌표계가 하나이므로 --geometry wgs로 쓰거나 원점별로 나누십시오");
    }
}

void VectorSink::writeUnplaced(std::string_view name, std::string_view status) {
    row_.assign(columns_.size() + 2, std::string_view());
    row_.front() = name;
    row_.back() = status;
    if (!limitsOf(output_.format).holdsUnplaced) ++leftOut_;
    orRefusal([this] { writer_->write(row_, std::nullopt); });
}

void VectorSink::takeRow(const RowBlock& block, std::size_t i) {
    const auto status = block.statuses.find(i);
    if (status != block.statuses.end()) {
        if (writer_) return writeUnplaced(block.names[i], status->second);
        waiting_.push_back({std::string(block.names[i]), status->second});
        return;
    }
    const ConvertedPoint& point = block.points[i];
    noteOrigin(point);
    metresBeside_ = std::max(metresBeside_, metresBesideSystem(definition_, system_, point));
    cells_.clear();
    ends_.clear();
    for (const OutputColumn& column : columns_) {
        appendCell(cells_, column, point, output_.angles);
        ends_.push_back(cells_.size());
    }
    row_.assign(1, block.names[i]);
    std::size_t begin = 0;
    for (const std::size_t end : ends_) {
        row_.push_back(std::string_view(cells_).substr(begin, end - begin));
        begin = end;
    }
    row_.emplace_back();
    orRefusal([&] { writer_->write(row_, placeIn(system_, point)); });
}

void VectorSink::take(const RowBlock& block) {
    for (std::size_t i = 0; i < block.size(); ++i) takeRow(block, i);
}

void VectorSink::finish() {
    if (!writer_)
        open(system_ == PlaceSystem::Tm ? definition_.tm.Lam0 : definition_.utm.projection.Lam0);
    orRefusal([this] { writer_->finish(); });
}

std::vector<std::string> VectorSink::notes() const {
    const FormatLimits& limits = limitsOf(output_.format);
    const std::string name(limits.name);
    std::vector<std::string> notes;
    if (limits.system == StatedSystem::Wgs84 && output_.systems.front() != OutputSystem::Wgs)
        notes.push_back(name + " is in WGS84 latitude and longitude, and so are the points");
    if (limits.system == StatedSystem::None)
        notes.push_back(name + " carries no coordinate reference system");
    if (leftOut_ > 0)
        notes.push_back(name + " holds no point without coordinates: " + std::to_string(leftOut_) +
                        " left out");
    if (limits.system == StatedSystem::Any && differsFromItsSystem(definition_, system_)) {
        std::string metres;
        genSub::appendFormatNum(metres, metresBeside_, 1, 3);
        notes.push_back(
            "first adjustment and known points have no place in a coordinate reference system: the "
            "points stand up to " +
            metres.substr(metres.find_first_not_of(' ')) +
            " m beside the place that it gives their WGS84 coordinates");
    }
    return notes;
}

}  // namespace kelvo
