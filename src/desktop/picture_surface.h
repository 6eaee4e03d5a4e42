// A drawing surface that keeps what is drawn as a picture.
#pragma once

#include <functional>
#include <string>

#include "desktop/plot_picture.h"
#include "plot/surface.h"

namespace kelvo::desktop {

// Size of a device's pixel and its resolution, as the device reports them.
struct DeviceUnits {
    double twipsPerPixel = 15;
    int pixelsPerInch = 96;
    int colourPlanes = 1;
};

class PictureSurface : public Surface {
public:
    explicit PictureSurface(DeviceUnits units);

    [[nodiscard]] const PlotPicture& picture() const { return picture_; }
    // Counts up with each change, so that a view knows when to paint anew.
    [[nodiscard]] unsigned revision() const { return revision_; }

    void Line(double x1, double y1, double x2, double y2, std::int32_t colour, int form) override;
    void Circle(double x, double y, double radius, std::int32_t colour, double start, double end,
                double aspect, int form) override;

    [[nodiscard]] std::int32_t ForeColor() const override { return foreColor_; }
    void setForeColor(std::int32_t colour) override { foreColor_ = colour; }
    [[nodiscard]] std::int32_t BackColor() const override { return backColor_; }
    // Erases what is drawn, as setting a picture's background does.
    void setBackColor(std::int32_t colour) override;
    [[nodiscard]] std::int32_t FillColor() const override { return fillColor_; }
    void setFillColor(std::int32_t colour) override { fillColor_ = colour; }
    [[nodiscard]] int FillStyle() const override { return fillStyle_; }
    void setFillStyle(int style) override { fillStyle_ = style; }
    [[nodiscard]] int DrawMode() const override { return drawMode_; }
    void setDrawMode(int mode) override { drawMode_ = mode; }
    void setDrawWidth(double pixels) override { drawWidth_ = pixels; }
    void setScaleMode(int) override {}

    void setFont(const std::string& face) override;
    [[nodiscard]] std::string FontName() const override;
    [[nodiscard]] int FontWeight() const override { return look_.bold ? 700 : 400; }
    [[nodiscard]] double fontsize() const override;
    void setFontsize(double points) override;
    void setFontBold(bool on) override;
    void setFontItalic(bool on) override;
    void setFontStrikethru(bool on) override;
    void setFontUnderline(bool on) override;
    [[nodiscard]] double TextHeight(std::string_view text) const override;
    [[nodiscard]] double TextWidth(std::string_view text) const override;
    void setCurrentX(double x) override { current_.setX(x); }
    void setCurrentY(double y) override { current_.setY(y); }
    void print(std::string_view text) override;

    void Cls() override;
    void EndDoc() override {}
    void NewPage() override {}
    void setOrientation(int) override {}
    [[nodiscard]] double TwipsPerPixelX() const override { return units_.twipsPerPixel; }
    [[nodiscard]] double TwipsPerPixelY() const override { return units_.twipsPerPixel; }

    [[nodiscard]] int GetDeviceCaps(int index) const override;
    void CreateFontIndirectA(const LogicalFont& font) override { created_ = font; }
    void SelectCreatedFont() override { createdIsSelected_ = true; }
    void TextOutA(std::int32_t x, std::int32_t y, std::string_view text, int length) override;
    void SelectOldFont() override { createdIsSelected_ = false; }
    void DeleteCreatedFont() override { createdIsSelected_ = false; }

protected:
    // The picture so far; leaves an empty one.
    [[nodiscard]] PlotPicture takePicture();
    [[nodiscard]] bool hasDrawing() const { return !picture_.items.empty(); }

private:
    [[nodiscard]] Pen pen(std::int32_t colour) const;
    void add(DrawnItem item);
    void addText(QPointF corner, double angle, const TextLook& look, const QString& text);
    [[nodiscard]] std::size_t placeOf(const TextLook& look);
    void changeLook(const TextLook& look);

    DeviceUnits units_;
    PlotPicture picture_;
    unsigned revision_ = 0;
    std::int32_t foreColor_ = 0;
    std::int32_t backColor_ = 0xFFFFFF;
    std::int32_t fillColor_ = 0;
    int fillStyle_ = 1;
    int drawMode_ = 13;
    double drawWidth_ = 1;
    TextLook look_;
    TextFace face_;  // of the look, made once for all texts that look alike
    QPointF current_;
    LogicalFont created_;
    bool createdIsSelected_ = false;
};

}  // namespace kelvo::desktop
