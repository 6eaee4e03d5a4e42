#include "support/recording_surface.h"

#include <array>
#include <charconv>
#include <type_traits>

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

std::string textOf(const SurfaceValue& value) {
    return std::visit(
        []<class Value>(const Value& held) {
            if constexpr (std::is_same_v<Value, std::string>) {
                return escaped(held);
            } else if constexpr (std::is_same_v<Value, double>) {
                return decimals4(held);
            } else {
                return std::to_string(static_cast<int>(held));
            }
        },
        value);
}

// In the order of the members.
constexpr std::array kMemberNames{"ForeColor",     "BackColor", "FillColor",  "FillStyle",
                                  "DrawMode",      "DrawWidth", "ScaleMode",  "Font",
                                  "fontsize",      "FontBold",  "FontItalic", "FontStrikethru",
                                  "FontUnderline", "CurrentX",  "CurrentY",   "Orientation"};
static_assert(kMemberNames.size() == static_cast<std::size_t>(SurfaceMember::Orientation) + 1);

}  // namespace

void RecordingSurface::write(SurfaceMember member, const SurfaceValue& value) {
    sink_(std::string(kMemberNames[static_cast<std::size_t>(member)]) + " = " + textOf(value));
    assign(members_, member, value);
}

void RecordingSurface::Line(double x1, double y1, double x2, double y2, std::int32_t colour,
                            LineForm form) {
    sink_(joined(std::string("Line"), decimals4(x1), decimals4(y1), decimals4(x2), decimals4(y2),
                 std::to_string(colour), std::to_string(static_cast<int>(form))));
}

void RecordingSurface::Circle(double x, double y, double radius, std::int32_t colour, double start,
                              double end, double aspect, CircleForm form) {
    sink_(joined(std::string("Circle"), decimals4(x), decimals4(y), decimals4(radius),
                 std::to_string(colour), decimals4(start), decimals4(end), decimals4(aspect),
                 std::to_string(static_cast<int>(form))));
}

double RecordingSurface::TextHeight(std::string_view /*text*/) const {
    return 20 * members_.fontsize;
}

double RecordingSurface::TextWidth(std::string_view text) const {
    return 10 * members_.fontsize * genSub::DisplayLen(text);
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

double RecordingSurface::TwipsPerPixelX() const {
    return kind_ == Kind::Screen ? 15 : 2.4;
}

int RecordingSurface::GetDeviceCaps(DeviceCap index) const {
    if (index == DeviceCap::ColourPlanes) return colourPlanes;
    return kind_ == Kind::Screen ? 96 : 600;
}

void RecordingSurface::CreateFontIndirectA(const LogicalFont& font) {
    sink_(joined(std::string("CreateFontIndirectA"), std::to_string(font.lfHeight),
                 std::to_string(font.lfEscapement), std::to_string(font.lfWeight),
                 std::to_string(font.lfCharSet), escaped(font.lfFaceName)));
}

void RecordingSurface::SelectObject(SelectedFont /*font*/) {
    sink_("SelectObject");
}

void RecordingSurface::TextOutA(std::int32_t x, std::int32_t y, std::string_view text, int length) {
    sink_(joined(std::string("TextOutA"), std::to_string(x), std::to_string(y),
                 std::to_string(length), escaped(text)));
}

void RecordingSurface::DeleteObject() {
    sink_("DeleteObject");
}

}  // namespace kelvo::testing
