// The Placemarks of a KML file.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "exchange/xml/points_in_xml.h"

namespace kelvo {

// A Placemark with a point, or with a collection of exactly one, is a point; without any shape it
// is passed over. A folder of other shapes only is left out; beside points of the same folder they
// are an ExchangeFault.
class KmlPoints final : public PointsInXml {
public:
    explicit KmlPoints(std::string path) : path_(std::move(path)) {}

    void begin(std::string_view name, XmlAttributes attributes) override;
    void end() override;
    void text(std::string_view piece) override;
    [[nodiscard]] std::string otherShape() const override { return otherShape_; }

private:
    // What an element is where it stands.
    enum class Part { Folder, Placemark, Name, Collection, Point, Coordinates, Shape, Other };
    struct Folder {
        bool points = false;
        std::string otherShape;
    };
    struct Placemark {
        std::optional<std::string> name;
        std::optional<Place> place;
        int points = 0;
        int lines = 0;
        int areas = 0;
        int nested = 0;  // collections inside of a collection
        bool isCollection = false;

        [[nodiscard]] std::string otherShape() const;  // empty for a point or nothing
    };

    [[nodiscard]] Part partOf(std::string_view name) const;
    void noteShape(std::string_view name);
    void endPlacemark();

    std::string path_;
    std::vector<Part> parts_;  // from the root to the element that is open
    std::vector<Folder> folders_;
    Placemark placemark_;
    std::string text_;
    std::string otherShape_;
};

}  // namespace kelvo
