// What the plot object asks of a drawing surface: a picture on the screen, or the printer.
//
// Coordinates are twips (1/1440 inch), y growing downward, the origin at the top left of the
// surface (on paper: of the sheet). Colours are 24-bit, red in the lowest byte. A surface may
// raise a RuntimeFault from any member.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace kelvo {

// Forms of Line and Circle.
inline constexpr int kFormLine = 6;
inline constexpr int kFormBox = 22;        // outline of the box between the two corners
inline constexpr int kFormFilledBox = 38;  // the box filled
inline constexpr int kFormCircle = 0;      // a whole circle; colour and angles don't count
inline constexpr int kFormArc = 192;       // from start to end, radians, counter-clockwise

// The platform's logical font, as handed to CreateFontIndirectA; all else in it is zero.
struct LogicalFont {
    std::int32_t lfHeight = 0;      // pixels, the height of the character cell
    std::int32_t lfEscapement = 0;  // tenths of a degree, counter-clockwise
    std::int32_t lfWeight = 0;
    std::uint8_t lfCharSet = 0;
    std::string lfFaceName;  // UTF-8
};

class Surface {
public:
    virtual ~Surface() = default;

    virtual void Line(double x1, double y1, double x2, double y2, std::int32_t colour,
                      int form) = 0;
    virtual void Circle(double x, double y, double radius, std::int32_t colour, double start,
                        double end, double aspect, int form) = 0;

    [[nodiscard]] virtual std::int32_t ForeColor() const = 0;
    virtual void setForeColor(std::int32_t colour) = 0;
    [[nodiscard]] virtual std::int32_t BackColor() const = 0;
    virtual void setBackColor(std::int32_t colour) = 0;
    [[nodiscard]] virtual std::int32_t FillColor() const = 0;
    virtual void setFillColor(std::int32_t colour) = 0;
    [[nodiscard]] virtual int FillStyle() const = 0;  // 0 solid, 1 transparent
    virtual void setFillStyle(int style) = 0;
    [[nodiscard]] virtual int DrawMode() const = 0;  // raster operation 1 to 16; 13 copies
    virtual void setDrawMode(int mode) = 0;
    virtual void setDrawWidth(double pixels) = 0;  // at least 1
    virtual void setScaleMode(int mode) = 0;       // 1 = twips

    virtual void setFont(const std::string& face) = 0;  // keeps size and boldness
    [[nodiscard]] virtual std::string FontName() const = 0;
    [[nodiscard]] virtual int FontWeight() const = 0;   // 400, 700 when bold
    [[nodiscard]] virtual double fontsize() const = 0;  // points
    virtual void setFontsize(double points) = 0;
    virtual void setFontBold(bool on) = 0;
    virtual void setFontItalic(bool on) = 0;
    virtual void setFontStrikethru(bool on) = 0;
    virtual void setFontUnderline(bool on) = 0;
    [[nodiscard]] virtual double TextHeight(std::string_view text) const = 0;
    [[nodiscard]] virtual double TextWidth(std::string_view text) const = 0;
    virtual void setCurrentX(double x) = 0;  // where printed text starts: top left of its cell
    virtual void setCurrentY(double y) = 0;
    virtual void print(std::string_view text) = 0;

    virtual void Cls() = 0;                            // screen
    virtual void EndDoc() = 0;                         // printer: finish the print job
    virtual void NewPage() = 0;                        // printer: start a new sheet
    virtual void setOrientation(int orientation) = 0;  // printer: 1 portrait, 2 landscape
    [[nodiscard]] virtual double TwipsPerPixelX() const = 0;
    [[nodiscard]] virtual double TwipsPerPixelY() const = 0;

    // The platform's text calls, on this surface's handle. GetDeviceCaps index 90 is the pixels
    // per inch of its height, 14 the number of colour planes. Coordinates are pixels; the point
    // is the top left of the text cell before turning. `length` is in bytes of the code page.
    [[nodiscard]] virtual int GetDeviceCaps(int index) const = 0;
    virtual void CreateFontIndirectA(const LogicalFont& font) = 0;
    virtual void SelectCreatedFont() = 0;
    virtual void TextOutA(std::int32_t x, std::int32_t y, std::string_view text, int length) = 0;
    virtual void SelectOldFont() = 0;
    virtual void DeleteCreatedFont() = 0;
};

}  // namespace kelvo
