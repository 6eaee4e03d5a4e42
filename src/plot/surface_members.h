// The properties of a drawing surface: their names, their values, their start.
#pragma once

#include <cstdint>
#include <string>
#include <variant>

namespace kelvo {

// How a pen meets what stands on the surface. Paper is what stands there.
enum class RasterMode : std::int16_t {
    Black = 1,
    NotPenAndNotPaper = 2,
    NotPenAndPaper = 3,
    NotPen = 4,
    PenAndNotPaper = 5,
    NotPaper = 6,
    PenXorPaper = 7,
    NotPenOrNotPaper = 8,
    PenAndPaper = 9,
    NotPenXorPaper = 10,
    Nothing = 11,
    NotPenOrPaper = 12,
    CopyPen = 13,
    PenOrNotPaper = 14,
    PenOrPaper = 15,
    White = 16,
};

enum class FillKind : std::int16_t { Solid = 0, None = 1 };
enum class ScaleUnit : std::int16_t { Twips = 1 };
enum class SheetOrientation : std::int16_t { Portrait = 1, Landscape = 2 };

// The state of a surface; a new one begins like this. Colours are 24-bit, red in the lowest byte.
struct SurfaceMembers {
    std::int32_t ForeColor = 0;
    std::int32_t BackColor = 0xFFFFFF;
    std::int32_t FillColor = 0;
    FillKind FillStyle = FillKind::None;
    RasterMode DrawMode = RasterMode::CopyPen;
    double DrawWidth = 1;  // pixels of the surface
    ScaleUnit ScaleMode = ScaleUnit::Twips;
    std::string Font;     // its name; naming another one keeps size and boldness
    double fontsize = 9;  // points
    bool FontBold = false;
    bool FontItalic = false;
    bool FontStrikethru = false;
    bool FontUnderline = false;
    double CurrentX = 0;  // twips
    double CurrentY = 0;
    SheetOrientation Orientation = SheetOrientation::Portrait;
};

enum class SurfaceMember {
    ForeColor,
    BackColor,
    FillColor,
    FillStyle,
    DrawMode,
    DrawWidth,
    ScaleMode,
    Font,
    fontsize,
    FontBold,
    FontItalic,
    FontStrikethru,
    FontUnderline,
    CurrentX,
    CurrentY,
    Orientation,
};

using SurfaceValue = std::variant<std::int32_t, double, bool, std::string, RasterMode, FillKind,
                                  ScaleUnit, SheetOrientation>;

// Puts a value into its place. A value of another type than the member's is
// std::bad_variant_access.
void assign(SurfaceMembers& members, SurfaceMember member, const SurfaceValue& value);

}  // namespace kelvo
