#include "exchange/xml/kml_points.h"

#include "common/blanks.h"
#include "exchange/point_file_faults.h"
#include "exchange/xml/place_text.h"

namespace kelvo {

namespace {

// Names often stand on lines of their own.
std::string onOneLine(std::string_view name) {
    std::string line(trimmed(name, kBlanksAndLineEnds));
    std::erase_if(line, [](char letter) { return letter == '\n' || letter == '\r'; });
    return line;
}

}  // namespace

// By the names that other formats have for these shapes.
std::string KmlPoints::Placemark::otherShape() const {
    const int others = lines + areas + nested;
    if (others == 0) return isCollection && points > 1 ? "MULTIPOINT" : "";
    if (points > 0 || nested > 0 || (lines > 0 && areas > 0)) return "GEOMETRYCOLLECTION";
    const std::string shape = lines > 0 ? "LINESTRING" : "POLYGON";
    return isCollection ? "MULTI" + shape : shape;
}

KmlPoints::Part KmlPoints::partOf(std::string_view name) const {
    const Part above = parts_.empty() ? Part::Folder : parts_.back();
    switch (above) {
        case Part::Folder:
            if (parts_.empty() || name == "Document" || name == "Folder") return Part::Folder;
            return name == "Placemark" ? Part::Placemark : Part::Other;
        case Part::Placemark:
            if (name == "name") return Part::Name;
            if (name == "MultiGeometry") return Part::Collection;
            [[fallthrough]];
        case Part::Collection:
            if (name == "Point") return Part::Point;
            if (name == "LineString" || name == "LinearRing" || name == "Polygon" ||
                name == "MultiGeometry")
                return Part::Shape;
            return Part::Other;
        case Part::Point:
            return name == "coordinates" ? Part::Coordinates : Part::Other;
        default:
            return Part::Other;
    }
}

void KmlPoints::noteShape(std::string_view name) {
    if (name == "Polygon")
        ++placemark_.areas;
    else if (name == "MultiGeometry")
        ++placemark_.nested;
    else
        ++placemark_.lines;
}

void KmlPoints::begin(std::string_view name, XmlAttributes /*attributes*/) {
    const Part part = partOf(name);
    parts_.push_back(part);
    text_.clear();
    if (part == Part::Folder) folders_.emplace_back();
    if (part == Part::Placemark) placemark_ = {};
    if (part == Part::Collection) placemark_.isCollection = true;
    if (part == Part::Point) ++placemark_.points;
    if (part == Part::Shape) noteShape(name);
}

void KmlPoints::text(std::string_view piece) {
    const Part part = parts_.back();
    if (part == Part::Name || part == Part::Coordinates) text_ += piece;
}

void KmlPoints::end() {
    const Part part = parts_.back();
    parts_.pop_back();
    if (part == Part::Folder) folders_.pop_back();
    if (part == Part::Name && !placemark_.name) placemark_.name = onOneLine(text_);
    if (part == Part::Coordinates && placemark_.points == 1) placemark_.place = firstPlaceIn(text_);
    if (part == Part::Placemark) endPlacemark();
}

void KmlPoints::endPlacemark() {
    Folder& folder = folders_.back();
    const std::string other = placemark_.otherShape();
    if (!other.empty()) {
        if (folder.points) failOtherShape(other, path_);
        folder.otherShape = found_.otherShape = other;
        return;
    }
    if (placemark_.points == 0 && !placemark_.isCollection) return;
    if (!folder.otherShape.empty()) failOtherShape(folder.otherShape, path_);
    folder.points = true;
    found_.points.push_back({.name = placemark_.name.value_or(""), .place = placemark_.place});
}

}  // namespace kelvo
