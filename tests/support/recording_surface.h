// A drawing surface that writes a line for each member written and each drawing call made, in
// the form of the drivers' transcripts, and measures text by fixed metrics.
#pragma once

#include <functional>
#include <string>

#include "plot/surface.h"

namespace kelvo::testing {

// Takes one line without its line end. It may raise a RuntimeFault: so a surface fails in tests.
using LineSink = std::function<void(const std::string& line)>;

// Numbers are written with four decimals, colours, forms, modes, booleans and the integers of
// the text calls plainly, texts with \r \n \t \\ escaped. Reading leaves no line.
class RecordingSurface final : public Surface {
public:
    enum class Kind { Screen, Printer };

    RecordingSurface(Kind kind, LineSink sink) : kind_(kind), sink_(std::move(sink)) {}

    void Line(double x1, double y1, double x2, double y2, std::int32_t colour,
              LineForm form) override;
    void Circle(double x, double y, double radius, std::int32_t colour, double start, double end,
                double aspect, CircleForm form) override;

    [[nodiscard]] const SurfaceMembers& members() const override { return members_; }
    void write(SurfaceMember member, const SurfaceValue& value) override;

    [[nodiscard]] double TextHeight(std::string_view text) const override;
    [[nodiscard]] double TextWidth(std::string_view text) const override;
    void print(std::string_view text) override;

    void Cls() override;
    void EndDoc() override;
    void NewPage() override;
    [[nodiscard]] double TwipsPerPixelX() const override;
    [[nodiscard]] double TwipsPerPixelY() const override { return TwipsPerPixelX(); }

    [[nodiscard]] int GetDeviceCaps(DeviceCap index) const override;
    void CreateFontIndirectA(const LogicalFont& font) override;
    void SelectObject(SelectedFont font) override;
    void TextOutA(std::int32_t x, std::int32_t y, std::string_view text, int length) override;
    void DeleteObject() override;

    int colourPlanes = 1;  // what GetDeviceCaps 14 answers

private:
    Kind kind_;
    LineSink sink_;
    SurfaceMembers members_;
};

}  // namespace kelvo::testing
