#include "support/recording_surface.h"

#include <array>
#include <charconv>

#include "common/fixed_width.h"
#include "support/escape.h"

namespace kelvo::testing {
namespace {

// Whatever the locale says of points and commas. The longest double has 309 integer digits.
std::string decimals4(double value) {
    std::array<char, 330> text{};
    const auto [end, error] =
        std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed, 4);
    return {text.data(), end};
}

template <typename... Words>
std::string joined(const Words&... words) {
    std::string line;
    ((line += (line.empty() ? "" : " ") + words), ...);
    return line;
}

}  // namespace

void RecordingSurface::member(const std::string& name, const std::string& value) {
    sink_(name + " = " + value);
}

void RecordingSurface::member(const std::string& name, int value) {
    member(name, std::to_string(value));
}

void RecordingSurface::Line(double x1, double y1, double x2, double y2, std::int32_t colour,
                            int form) {
    sink_(joined(std::string("Line"), decimals4(x1), decimals4(y1), decimals4(x2), decimals4(y2),
                 std::to_string(colour), std::to_string(form)));
}

void RecordingSurface::Circle(double x, double y, double radius, std::int32_t colour, double start,
                              double end, double aspect, int form) {
    sink_(joined(std::string("Circle"), decimals4(x), decimals4(y), decimals4(radius),
                 std::to_string(colour), decimals4(start), decimals4(end), decimals4(aspect),
                 std::to_string(form)));
}

void RecordingSurface::setForeColor(std::int32_t colour) {
    member("ForeColor", colour);
    foreColor_ = colour;
}

void RecordingSurface::setBackColor(std::int32_t colour) {
    member("BackColor", colour);
    backColor_ = colour;
}

void RecordingSurface::setFillColor(std::int32_t colour) {
    member("FillColor", colour);
    fillColor_ = colour;
}

void RecordingSurface::setFillStyle(int style) {
    member("FillStyle", style);
    fillStyle_ = style;
}

void RecordingSurface::setDrawMode(int mode) {
    member("DrawMode", mode);
    drawMode_ = mode;
}

void RecordingSurface::setDrawWidth(double pixels) {
    member("DrawWidth", decimals4(pixels));
}

void RecordingSurface::setScaleMode(int mode) {
    member("ScaleMode", mode);
}

void RecordingSurface::setFont(const std::string& face) {
    member("Font", escaped(face));
    face_ = face;
}

void RecordingSurface::setFontsize(double points) {
    member("fontsize", decimals4(points));
    fontsize_ = points;
}

void RecordingSurface::setFontBold(bool on) {
    member("FontBold", on ? 1 : 0);
    bold_ = on;
}

void RecordingSurface::setFontItalic(bool on) {
    member("FontItalic", on ? 1 : 0);
}

void RecordingSurface::setFontStrikethru(bool on) {
    member("FontStrikethru", on ? 1 : 0);
}

void RecordingSurface::setFontUnderline(bool on) {
    member("FontUnderline", on ? 1 : 0);
}

double RecordingSurface::TextHeight(std::string_view /*text*/) const {
    return 20 * fontsize_;
}

double RecordingSurface::TextWidth(std::string_view text) const {
    return 10 * fontsize_ * genSub::DisplayLen(text);
}

void RecordingSurface::setCurrentX(double x) {
    member("CurrentX", decimals4(x));
}

void RecordingSurface::setCurrentY(double y) {
    member("CurrentY", decimals4(y));
}

void RecordingSurface::print(std::string_view text) {
    sink_("print " + escaped(text));
}

void RecordingSurface::Cls() {
    sink_("Cls");
}

void RecordingSurface::EndDoc() {
    sink_("EndDoc");
}

void RecordingSurface::NewPage() {
    sink_("NewPage");
}

void RecordingSurface::setOrientation(int orientation) {
    member("Orientation", orientation);
}

double RecordingSurface::TwipsPerPixelX() const {
    return kind_ == Kind::Screen ? 15 : 2.4;
}

int RecordingSurface::GetDeviceCaps(int index) const {
    constexpr int kPlanes = 14;
    constexpr int kPixelsPerInchHigh = 90;
    if (index == kPlanes) return colourPlanes;
    if (index == kPixelsPerInchHigh) return kind_ == Kind::Screen ? 96 : 600;
    return 0;
}

void RecordingSurface::CreateFontIndirectA(const LogicalFont& font) {
    sink_(joined(std::string("CreateFontIndirectA"), std::to_string(font.lfHeight),
                 std::to_string(font.lfEscapement), std::to_string(font.lfWeight),
                 std::to_string(font.lfCharSet), escaped(font.lfFaceName)));
}

void RecordingSurface::SelectCreatedFont() {
    sink_("SelectObject");
}

void RecordingSurface::TextOutA(std::int32_t x, std::int32_t y, std::string_view text, int length) {
    sink_(joined(std::string("TextOutA"), std::to_string(x), std::to_string(y),
                 std::to_string(length), escaped(text)));
}

void RecordingSurface::SelectOldFont() {
    sink_("SelectObject");
}

void RecordingSurface::DeleteCreatedFont() {
    sink_("DeleteObject");
}

}  // namespace kelvo::testing
