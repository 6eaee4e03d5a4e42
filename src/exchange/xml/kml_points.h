// The Placemarks of a KML file.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "exchange/xml/found_in_xml.h"
#include "exchange/xml/xml_stream.h"

namespace kelvo {

// A Placemark with a point, or with a collection of exactly one, is a point; without any shape it
// is passed over. A folder of other shapes only is left out; beside points of the same folder they
// are an ExchangeFault. What is found is put into `found`, which outlives it.
class KmlPoints final : public XmlEvents {
public:
    KmlPoints(FoundInXml& found, std::string path) : found_(found), path_(std::move(path)) {}

    void begin(std::string_view name, XmlAttributes attributes) override;
    void end() override;
    void text(std::string_view piece) override;

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

    FoundInXml& found_;
    std::string path_;
    std::vector<Part> parts_;  // from the root to the element that is open
    std::vector<Folder> folders_;
    Placemark placemark_;
    std::string text_;
};

}  // namespace kelvo
