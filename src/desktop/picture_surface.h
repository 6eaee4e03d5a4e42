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
    bool erasedByBackColor = true;  // a picture box is; paper keeps what is printed on it
};

class PictureSurface : public Surface {
public:
    explicit PictureSurface(DeviceUnits units);

    [[nodiscard]] const PlotPicture& picture() const { return picture_; }
    // Counts up with each change, so that a view knows when to paint again.
    [[nodiscard]] unsigned revision() const { return revision_; }

    void Line(double x1, double y1, double x2, double y2, std::int32_t colour,
              LineForm form) override;
    void Circle(double x, double y, double radius, std::int32_t colour, double start, double end,
                double aspect, CircleForm form) override;

    [[nodiscard]] const SurfaceMembers& members() const override { return members_; }
    // A background colour erases what is drawn, as setting a picture's background does.
    void write(SurfaceMember member, const SurfaceValue& value) override;

    [[nodiscard]] double TextHeight(std::string_view text) const override;
    [[nodiscard]] double TextWidth(std::string_view text) const override;
    void print(std::string_view text) override;

    void Cls() override;
    void EndDoc() override {}
    void NewPage() override {}
    [[nodiscard]] double TwipsPerPixelX() const override { return units_.twipsPerPixel; }
    [[nodiscard]] double TwipsPerPixelY() const override { return units_.twipsPerPixel; }

    [[nodiscard]] int GetDeviceCaps(DeviceCap index) const override;
    void CreateFontIndirectA(const LogicalFont& font) override { created_ = font; }
    void SelectObject(SelectedFont font) override { selected_ = font; }
    void TextOutA(std::int32_t x, std::int32_t y, std::string_view text, int length) override;
    void DeleteObject() override { selected_ = SelectedFont::Old; }

protected:
    // The picture so far; leaves an empty one.
    [[nodiscard]] PlotPicture takePicture();
    // Something was drawn or printed since, an empty line counts.
    [[nodiscard]] bool isTouched() const { return touched_; }

private:
    [[nodiscard]] Pen pen(std::int32_t colour) const;
    void add(DrawnItem item);
    void addText(QPointF corner, double angle, const TextLook& look, const QString& text);
    [[nodiscard]] std::size_t placeOf(const TextLook& look);
    void changeLook(const TextLook& look);

    DeviceUnits units_;
    PlotPicture picture_;
    bool touched_ = false;
    unsigned revision_ = 0;
    SurfaceMembers members_;
    TextLook look_;
    TextFace face_;  // of the look, made once for all texts that look alike
    LogicalFont created_;
    SelectedFont selected_ = SelectedFont::Old;
};

}  // namespace kelvo::desktop
