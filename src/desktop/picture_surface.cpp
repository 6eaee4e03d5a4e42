#include "desktop/picture_surface.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace kelvo::desktop {

namespace {

constexpr double kTwipsPerPoint = 20;
constexpr int kCapsPixelsPerInch = 90;
constexpr int kCapsColourPlanes = 14;

QColor colourOf(std::int32_t value) {
    return QColor(value & 0xFF, (value >> 8) & 0xFF, (value >> 16) & 0xFF);
}

QString qt(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

bool same(const TextLook& one, const TextLook& other) {
    return one.face == other.face && !(one.em < other.em) && !(other.em < one.em) &&
           one.bold == other.bold && one.italic == other.italic &&
           one.strikethru == other.strikethru && one.underline == other.underline;
}

TextLook lookOfNewSurface() {
    return {QStringLiteral("굴림"), 9 * kTwipsPerPoint};
}

}  // namespace

PictureSurface::PictureSurface(DeviceUnits units)
    : units_(units), look_(lookOfNewSurface()), face_(look_) {}

Pen PictureSurface::pen(std::int32_t colour) const {
    return {colourOf(colour), std::max(1.0, drawWidth_) * units_.twipsPerPixel, drawMode_};
}

void PictureSurface::add(DrawnItem item) {
    picture_.items.push_back(std::move(item));
    ++revision_;
}

void PictureSurface::Line(double x1, double y1, double x2, double y2, std::int32_t colour,
                          int form) {
    if (form == kFormLine) {
        add(DrawnLine{pen(colour), {x1, y1}, {x2, y2}});
        return;
    }
    const QRectF box = QRectF(QPointF(x1, y1), QPointF(x2, y2)).normalized();
    add(DrawnBox{pen(colour), box, form == kFormFilledBox});
}

void PictureSurface::Circle(double x, double y, double radius, std::int32_t colour, double start,
                            double end, double aspect, int form) {
    DrawnCircle circle;
    circle.centre = {x, y};
    circle.radiusX = circle.radiusY = std::abs(radius);
    if (form == kFormCircle) {
        circle.pen = pen(foreColor_);
        circle.filled = fillStyle_ == 0;
        circle.fill = colourOf(fillColor_);
    } else {
        circle.pen = pen(colour);
        circle.start = start;
        circle.end = end;
        // An aspect is height to width; the radius stands for the longer of the two.
        if (aspect > 0 && aspect < 1) circle.radiusY *= aspect;
        if (aspect > 1) circle.radiusX /= aspect;
    }
    add(circle);
}

void PictureSurface::setBackColor(std::int32_t colour) {
    backColor_ = colour;
    Cls();
}

void PictureSurface::changeLook(const TextLook& look) {
    if (same(look, look_)) return;
    look_ = look;
    face_ = TextFace(look);
}

void PictureSurface::setFont(const std::string& face) {
    TextLook look = look_;
    look.face = qt(face);
    changeLook(look);
}

std::string PictureSurface::FontName() const {
    return look_.face.toStdString();
}

double PictureSurface::fontsize() const {
    return look_.em / kTwipsPerPoint;
}

void PictureSurface::setFontsize(double points) {
    TextLook look = look_;
    look.em = points * kTwipsPerPoint;
    changeLook(look);
}

void PictureSurface::setFontBold(bool on) {
    TextLook look = look_;
    look.bold = on;
    changeLook(look);
}

void PictureSurface::setFontItalic(bool on) {
    TextLook look = look_;
    look.italic = on;
    changeLook(look);
}

void PictureSurface::setFontStrikethru(bool on) {
    TextLook look = look_;
    look.strikethru = on;
    changeLook(look);
}

void PictureSurface::setFontUnderline(bool on) {
    TextLook look = look_;
    look.underline = on;
    changeLook(look);
}

double PictureSurface::TextHeight(std::string_view) const {
    return face_.height();
}

double PictureSurface::TextWidth(std::string_view text) const {
    return face_.width(qt(text));
}

std::size_t PictureSurface::placeOf(const TextLook& look) {
    // Neighbouring texts mostly look alike, so the search starts at the end.
    for (std::size_t place = picture_.looks.size(); place > 0; --place) {
        if (same(picture_.looks[place - 1], look)) return place - 1;
    }
    picture_.looks.push_back(look);
    return picture_.looks.size() - 1;
}

void PictureSurface::addText(QPointF corner, double angle, const TextLook& look,
                             const QString& text) {
    if (text.isEmpty()) return;
    add(DrawnText{colourOf(foreColor_), corner, angle, placeOf(look), text});
}

void PictureSurface::print(std::string_view text) {
    addText(current_, 0, look_, qt(text));
    current_ = QPointF(0, current_.y() + face_.height());
}

void PictureSurface::Cls() {
    picture_.clear();
    picture_.paper = colourOf(backColor_);
    current_ = QPointF();
    ++revision_;
}

PlotPicture PictureSurface::takePicture() {
    PlotPicture taken = std::exchange(picture_, PlotPicture{});
    picture_.paper = taken.paper;
    current_ = QPointF();
    ++revision_;
    return taken;
}

int PictureSurface::GetDeviceCaps(int index) const {
    if (index == kCapsPixelsPerInch) return units_.pixelsPerInch;
    if (index == kCapsColourPlanes) return units_.colourPlanes;
    return 0;
}

void PictureSurface::TextOutA(std::int32_t x, std::int32_t y, std::string_view text, int) {
    const QPointF corner(x * units_.twipsPerPixel, y * units_.twipsPerPixel);
    if (!createdIsSelected_) {
        addText(corner, 0, look_, qt(text));
        return;
    }
    TextLook look;
    look.face = qt(created_.lfFaceName);
    look.bold = created_.lfWeight >= 700;
    // The record gives the height of the cell, the look the height of the em.
    const double cell = created_.lfHeight * units_.twipsPerPixel;
    look.em = cell;
    const double cellOfThatEm = TextFace(look).height();
    if (cellOfThatEm > 0) look.em = cell * cell / cellOfThatEm;
    addText(corner, created_.lfEscapement / 10.0, look, qt(text));
}

}  // namespace kelvo::desktop
