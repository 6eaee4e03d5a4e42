// The points of a GPX file.
#pragma once

#include <string>
#include <vector>

#include "exchange/xml/found_in_xml.h"
#include "exchange/xml/xml_stream.h"

namespace kelvo {

// Finds what the points of the file are: way points, or else those of a route, or else of a track.
class GpxKinds final : public XmlEvents {
public:
    void begin(std::string_view name, XmlAttributes attributes) override;
    void end() override {}
    void text(std::string_view /*piece*/) override {}

    [[nodiscard]] bool wayPoints() const { return wayPoints_; }
    // The element that is a point of the file.
    [[nodiscard]] std::string element() const;

private:
    bool wayPoints_ = false;
    bool route_ = false;
};

// Puts the points into `found`, which outlives it.
class GpxPoints final : public XmlEvents {
public:
    GpxPoints(FoundInXml& found, std::string element)
        : found_(found), element_(std::move(element)) {}

    void begin(std::string_view name, XmlAttributes attributes) override;
    void end() override;
    void text(std::string_view piece) override;

private:
    void beginPoint(XmlAttributes attributes);

    FoundInXml& found_;
    std::string element_;
    int depth_ = 0;  // inside of a point, itself counted
    bool wanted_ = false;
    PointOfFile point_;
    std::string child_;
    std::string text_;
};

}  // namespace kelvo
