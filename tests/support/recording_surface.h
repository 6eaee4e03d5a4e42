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

    void Line(double x1, double y1, double x2, double y2, std::int32_t colour, int form) override;
    void Circle(double x, double y, double radius, std::int32_t colour, double start, double end,
                double aspect, int form) override;

    [[nodiscard]] std::int32_t ForeColor() const override { return foreColor_; }
    void setForeColor(std::int32_t colour) override;
    [[nodiscard]] std::int32_t BackColor() const override { return backColor_; }
    void setBackColor(std::int32_t colour) override;
    [[nodiscard]] std::int32_t FillColor() const override { return fillColor_; }
    void setFillColor(std::int32_t colour) override;
    [[nodiscard]] int FillStyle() const override { return fillStyle_; }
    void setFillStyle(int style) override;
    [[nodiscard]] int DrawMode() const override { return drawMode_; }
    void setDrawMode(int mode) override;
    void setDrawWidth(double pixels) override;
    void setScaleMode(int mode) override;

    void setFont(const std::string& face) override;
    [[nodiscard]] std::string FontName() const override { return face_; }
    [[nodiscard]] int FontWeight() const override { return bold_ ? 700 : 400; }
    [[nodiscard]] double fontsize() const override { return fontsize_; }
    void setFontsize(double points) override;
    void setFontBold(bool on) override;
    void setFontItalic(bool on) override;
    void setFontStrikethru(bool on) override;
    void setFontUnderline(bool on) override;
    [[nodiscard]] double TextHeight(std::string_view text) const override;
    [[nodiscard]] double TextWidth(std::string_view text) const override;
    void setCurrentX(double x) override;
    void setCurrentY(double y) override;
    void print(std::string_view text) override;

    void Cls() override;
    void EndDoc() override;
    void NewPage() override;
    void setOrientation(int orientation) override;
    [[nodiscard]] double TwipsPerPixelX() const override;
    [[nodiscard]] double TwipsPerPixelY() const override { return TwipsPerPixelX(); }

    [[nodiscard]] int GetDeviceCaps(int index) const override;
    void CreateFontIndirectA(const LogicalFont& font) override;
    void SelectCreatedFont() override;
    void TextOutA(std::int32_t x, std::int32_t y, std::string_view text, int length) override;
    void SelectOldFont() override;
    void DeleteCreatedFont() override;

    int colourPlanes = 1;  // what GetDeviceCaps 14 answers

private:
    void member(const std::string& name, const std::string& value);
    void member(const std::string& name, int value);

    Kind kind_;
    LineSink sink_;
    std::int32_t foreColor_ = 0;
    std::int32_t backColor_ = 16777215;
    std::int32_t fillColor_ = 0;
    int fillStyle_ = 1;
    int drawMode_ = 13;
    std::string face_;
    bool bold_ = false;
    double fontsize_ = 9;
};

}  // namespace kelvo::testing
