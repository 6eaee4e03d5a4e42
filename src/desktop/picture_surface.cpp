#include "desktop/picture_surface.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "desktop/qt_text.h"
#include "desktop/twips.h"

namespace kelvo::desktop {

namespace {

QColor colourOf(std::int32_t value) {
    return QColor(value & 0xFF, (value >> 8) & 0xFF, (value >> 16) & 0xFF);
}

bool same(const TextLook& one, const TextLook& other) {
    return one.face == other.face && !(one.em < other.em) && !(other.em < one.em) &&
           one.bold == other.bold && one.italic == other.italic &&
           one.strikethru == other.strikethru && one.underline == other.underline;
}

// What a surface that was given no face draws with.
constexpr const char* kFirstFace = "굴림";

TextLook lookOf(const SurfaceMembers& members) {
    return {.face = qt(members.Font),
            .em = members.fontsize * kTwipsPerPoint,
            .bold = members.FontBold,
            .italic = members.FontItalic,
            .strikethru = members.FontStrikethru,
            .underline = members.FontUnderline};
}

SurfaceMembers newMembers() {
    SurfaceMembers members;
    members.Font = kFirstFace;
    return members;
}

}  // namespace

PictureSurface::PictureSurface(DeviceUnits units)
    : units_(units), members_(newMembers()), look_(lookOf(members_)), face_(look_) {}

Pen PictureSurface::pen(std::int32_t colour) const {
    return {colourOf(colour), std::max(1.0, members_.DrawWidth) * units_.twipsPerPixel,
            members_.DrawMode};
}

void PictureSurface::add(DrawnItem item) {
    picture_.items.push_back(std::move(item));
    touched_ = true;
    ++revision_;
}

void PictureSurface::Line(double x1, double y1, double x2, double y2, std::int32_t colour,
                          LineForm form) {
    if (form == LineForm::Line) {
        add(DrawnLine{pen(colour), {x1, y1}, {x2, y2}});
        return;
    }
    const QRectF box = QRectF(QPointF(x1, y1), QPointF(x2, y2)).normalized();
    add(DrawnBox{pen(colour), box, form == LineForm::FilledBox});
}

void PictureSurface::Circle(double x, double y, double radius, std::int32_t colour, double start,
                            double end, double aspect, CircleForm form) {
    DrawnCircle circle;
    circle.centre = {x, y};
    circle.radiusX = circle.radiusY = std::abs(radius);
    if (form == CircleForm::Whole) {
        circle.pen = pen(members_.ForeColor);
        circle.filled = members_.FillStyle == FillKind::Solid;
        circle.fill = colourOf(members_.FillColor);
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

void PictureSurface::write(SurfaceMember member, const SurfaceValue& value) {
    assign(members_, member, value);
    switch (member) {
        case SurfaceMember::BackColor:
            if (units_.erasedByBackColor) Cls();
            return;
        case SurfaceMember::Font:
        case SurfaceMember::fontsize:
        case SurfaceMember::FontBold:
        case SurfaceMember::FontItalic:
        case SurfaceMember::FontStrikethru:
        case SurfaceMember::FontUnderline:
            return changeLook(lookOf(members_));
        default:
            return;
    }
}

void PictureSurface::changeLook(const TextLook& look) {
    if (same(look, look_)) return;
    look_ = look;
    face_ = TextFace(look);
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
    add(DrawnText{colourOf(members_.ForeColor), corner, angle, placeOf(look), text});
}

void PictureSurface::print(std::string_view text) {
    touched_ = true;
    addText({members_.CurrentX, members_.CurrentY}, 0, look_, qt(text));
    members_.CurrentX = 0;
    members_.CurrentY += face_.height();
}

void PictureSurface::Cls() {
    touched_ = false;
    picture_.clear();
    picture_.paper = colourOf(members_.BackColor);
    members_.CurrentX = members_.CurrentY = 0;
    ++revision_;
}

PlotPicture PictureSurface::takePicture() {
    PlotPicture taken = std::exchange(picture_, PlotPicture{});
    touched_ = false;
    picture_.paper = taken.paper;
    members_.CurrentX = members_.CurrentY = 0;
    ++revision_;
    return taken;
}

int PictureSurface::GetDeviceCaps(DeviceCap index) const {
    return index == DeviceCap::ColourPlanes ? units_.colourPlanes : units_.pixelsPerInch;
}

void PictureSurface::TextOutA(std::int32_t x, std::int32_t y, std::string_view text, int) {
    const QPointF corner(x * units_.twipsPerPixel, y * units_.twipsPerPixel);
    if (selected_ == SelectedFont::Old) {
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
