#include "exchange/xml/gpx_points.h"

#include <optional>

#include "exchange/xml/place_text.h"

namespace kelvo {

void GpxKinds::begin(std::string_view name, XmlAttributes /*attributes*/) {
    wayPoints_ |= name == "wpt";
    route_ |= name == "rtept";
}

std::string GpxKinds::element() const {
    if (wayPoints_) return "wpt";
    return route_ ? "rtept" : "trkpt";
}

void GpxPoints::begin(std::string_view name, XmlAttributes attributes) {
    if (depth_ == 0) {
        if (name == element_) beginPoint(attributes);
        return;
    }
    ++depth_;
    if (depth_ != 2) return;
    child_ = name;
    wanted_ = name == "name" || name == "ele";
    text_.clear();
}

void GpxPoints::beginPoint(XmlAttributes attributes) {
    depth_ = 1;
    point_ = {};
    std::optional<double> north;
    std::optional<double> east;
    for (const auto& [name, value] : attributes) {
        if (name == "lat") north = numberIn(value);
        if (name == "lon") east = numberIn(value);
    }
    if (north && east) point_.place = Place{.x = *east, .y = *north, .height = 0};
}

void GpxPoints::text(std::string_view piece) {
    if (depth_ == 2 && wanted_) text_ += piece;
}

void GpxPoints::end() {
    if (depth_ == 0) return;
    if (--depth_ == 0) {
        found_.points.push_back(std::move(point_));
        return;
    }
    if (depth_ != 1) return;
    if (child_ == "name") point_.name = text_;
    if (child_ == "ele" && point_.place) {
        if (const auto height = numberIn(text_))
            point_.place->height = *height;
        else
            point_.place.reset();
    }
}

}  // namespace kelvo
