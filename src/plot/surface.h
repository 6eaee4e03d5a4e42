// What the plot object asks of a drawing surface: a picture on the screen, or the printer.
//
// Coordinates are twips (1/1440 inch), y growing downward, the origin at the top left of the
// surface (on paper: of the sheet). Colours are 24-bit, red in the lowest byte. A surface may
// raise a RuntimeFault from any member.
//
// A surface implements few members: drawing calls, one write() for every property, one members()
// that gives them all back. The properties' own names stand around these two.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "plot/surface_members.h"

namespace kelvo {

// Numbers of Line.
enum class LineForm {
    Line = 6,
    Box = 22,        // outline of the box between the two corners
    FilledBox = 38,  // the box filled
};

// Numbers of Circle.
enum class CircleForm {
    Whole = 0,  // in the pen's colour; colour, angles and aspect don't count
    Arc = 192,  // from start to end, radians, counter-clockwise
};

// Indexes of GetDeviceCaps.
enum class DeviceCap {
    ColourPlanes = 14,
    PixelsPerInchHigh = 90,
};

// The platform's logical font, as handed to CreateFontIndirectA; all else in it is zero.
struct LogicalFont {
    std::int32_t lfHeight = 0;      // pixels, the height of the character cell
    std::int32_t lfEscapement = 0;  // tenths of a degree, counter-clockwise
    std::int32_t lfWeight = 0;
    std::uint8_t lfCharSet = 0;
    std::string lfFaceName;  // UTF-8
};

enum class SelectedFont { Created, Old };

class Surface {
public:
    virtual ~Surface() = default;

    virtual void Line(double x1, double y1, double x2, double y2, std::int32_t colour,
                      LineForm form) = 0;
    virtual void Circle(double x, double y, double radius, std::int32_t colour, double start,
                        double end, double aspect, CircleForm form) = 0;

    // Every property as it was written last.
    [[nodiscard]] virtual const SurfaceMembers& members() const = 0;
    // Writes one property; the value is of the property's type.
    virtual void write(SurfaceMember member, const SurfaceValue& value) = 0;

    [[nodiscard]] std::int32_t ForeColor() const { return members().ForeColor; }
    void setForeColor(std::int32_t colour) { write(SurfaceMember::ForeColor, colour); }
    [[nodiscard]] std::int32_t BackColor() const { return members().BackColor; }
    void setBackColor(std::int32_t colour) { write(SurfaceMember::BackColor, colour); }
    [[nodiscard]] std::int32_t FillColor() const { return members().FillColor; }
    void setFillColor(std::int32_t colour) { write(SurfaceMember::FillColor, colour); }
    [[nodiscard]] FillKind FillStyle() const { return members().FillStyle; }
    void setFillStyle(FillKind fill) { write(SurfaceMember::FillStyle, fill); }
    [[nodiscard]] RasterMode DrawMode() const { return members().DrawMode; }
    void setDrawMode(RasterMode mode) { write(SurfaceMember::DrawMode, mode); }
    void setDrawWidth(double pixels) { write(SurfaceMember::DrawWidth, pixels); }  // at least 1
    void setScaleMode(ScaleUnit unit) { write(SurfaceMember::ScaleMode, unit); }

    void setFont(const std::string& face) { write(SurfaceMember::Font, face); }
    [[nodiscard]] const std::string& FontName() const { return members().Font; }
    [[nodiscard]] int FontWeight() const { return members().FontBold ? 700 : 400; }
    [[nodiscard]] double fontsize() const { return members().fontsize; }  // points
    void setFontsize(double points) { write(SurfaceMember::fontsize, points); }
    void setFontBold(bool on) { write(SurfaceMember::FontBold, on); }
    void setFontItalic(bool on) { write(SurfaceMember::FontItalic, on); }
    void setFontStrikethru(bool on) { write(SurfaceMember::FontStrikethru, on); }
    void setFontUnderline(bool on) { write(SurfaceMember::FontUnderline, on); }

    // Extent of a text in the current font. Printed text starts at the current point, which is
    // the top left of its cell.
    [[nodiscard]] virtual double TextHeight(std::string_view text) const = 0;
    [[nodiscard]] virtual double TextWidth(std::string_view text) const = 0;
    void setCurrentX(double x) { write(SurfaceMember::CurrentX, x); }
    void setCurrentY(double y) { write(SurfaceMember::CurrentY, y); }
    virtual void print(std::string_view text) = 0;

    virtual void Cls() = 0;      // screen
    virtual void EndDoc() = 0;   // printer: finish the print job
    virtual void NewPage() = 0;  // printer: start a new sheet
    void setOrientation(SheetOrientation sheet) { write(SurfaceMember::Orientation, sheet); }
    [[nodiscard]] virtual double TwipsPerPixelX() const = 0;
    [[nodiscard]] virtual double TwipsPerPixelY() const = 0;
    [[nodiscard]] virtual int GetDeviceCaps(DeviceCap index) const = 0;

    // The platform's text calls on this surface's handle: a font is created, selected, used and
    // deleted. Coordinates are pixels; the point is the top left of the text cell before turning.
    // `length` is in bytes of the code page.
    virtual void CreateFontIndirectA(const LogicalFont& font) = 0;
    virtual void SelectObject(SelectedFont font) = 0;
    virtual void TextOutA(std::int32_t x, std::int32_t y, std::string_view text, int length) = 0;
    virtual void DeleteObject() = 0;  // the created font
};

}  // namespace kelvo
