// The plot object: the font, and text turned by an angle.
#include "common/checked_arithmetic.h"
#include "common/code_page.h"
#include "common/fixed_width.h"
#include "common/letter_case.h"
#include "plot/clsplot1.h"
#include "plot/plot_constants.h"

namespace kelvo {
namespace {

constexpr std::size_t kFaceNameBytes = 32;  // the platform's record, zero byte included
constexpr std::uint8_t kDefaultCharacterSet = 1;
constexpr std::int32_t kPointsPerInch = 72;

// The text as it comes through the platform's code page.
std::string inCodePage(std::string_view text) {
    return decodeCodePage(encodeCodePage(text));
}

}  // namespace

void clsplot1::ptextR(std::string_view text, double x, double y, double angle, double size,
                      std::string_view font) {
    sizeStep(size);
    if (BoxErase_ == 1) erase(textBox(x, y, text));
    Surface& on = surface();
    const double X = quotient(cx(x), on.TwipsPerPixelX());
    const double Y = quotient(cy(y), on.TwipsPerPixelY());
    const int dpi = on.GetDeviceCaps(DeviceCap::PixelsPerInchHigh);

    // Above zero, so the platform takes it as the height of the character cell.
    RotFont_.lfHeight = roundedInteger32(on.fontsize() * dpi) / kPointsPerInch;
    RotFont_.lfWeight = on.FontWeight();
    RotFont_.lfEscapement = roundedInteger32(angle * 10);
    RotFont_.lfCharSet = kDefaultCharacterSet;
    const std::string face = font.empty() ? on.FontName() : std::string(font);
    if (encodeCodePage(face).size() + 1 > kFaceNameBytes)
        raise(Fault::Subscript, "글꼴 이름이 너무 깁니다: " + face);
    RotFont_.lfFaceName = inCodePage(face);

    // Opens the printer's page, which its text calls need.
    if (onPrinter()) on.print("");
    on.CreateFontIndirectA(RotFont_);
    on.SelectObject(SelectedFont::Created);
    on.TextOutA(roundedInteger32(X), roundedInteger32(Y), inCodePage(text),
                genSub::DisplayLen(text));
    on.SelectObject(SelectedFont::Old);
    on.DeleteObject();
    if (BoxErase_ == 1) pfillMode(kFillBlack);
}

void clsplot1::ChangeFont(std::string_view name) {
    if (name == FontName_) return;
    surface().setFont(std::string(name));
    FontName_ = name;
}

void clsplot1::ChangeFontStyle(double which, std::string_view flag) {
    const bool on = upperCased(flag.substr(0, 1)) == "T";
    if (which == 0) {
        surface().setFontBold(false);
        surface().setFontItalic(false);
        surface().setFontStrikethru(false);
        surface().setFontUnderline(false);
    }
    if (which == 1) surface().setFontBold(on);
    if (which == 2) surface().setFontItalic(on);
    if (which == 3) surface().setFontStrikethru(on);
    if (which == 4) surface().setFontUnderline(on);
}

}  // namespace kelvo
