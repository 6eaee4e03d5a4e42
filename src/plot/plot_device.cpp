// The plot object: page, window, pen position, sheets and colours.
#include <cmath>

#include "common/checked_arithmetic.h"
#include "common/letter_case.h"
#include "common/paths.h"
#include "common/plane_geometry.h"
#include "plot/clsplot1.h"
#include "plot/plot_constants.h"

namespace kelvo {

using genSub::Log10Guard;

clsplot1::clsplot1(MessageBoxes& messages, ProgramStarter& programs, Surface& printer)
    : messages_(messages), programs_(programs), printer_(printer) {
    Class_Initialize();
}

void clsplot1::Class_Initialize() {
    Curxs_ = 1;
    Curys_ = 1;
}

Surface& clsplot1::surface() const {
    if (surface_ == nullptr) raise(Fault::InvalidCall, "그림을 그릴 면이 정해지지 않았습니다");
    return *surface_;
}

void clsplot1::pinitialize(double x0, double y0, double sx, double sy, double kind,
                           Surface& surface) {
    pwindow(0, 0, 1, 1, 0, 0, 1, 1, 0);
    OffX_ = x0;
    OffY_ = y0;
    ScaleX_ = sx == 0 ? 1 : sx;
    ScaleY_ = sy == 0 ? 1 : sy;
    ScaleMean_ = finite(ScaleY_ * 0.5 + ScaleX_ * 0.5);
    surface_ = &surface;
    pKind_ = toSingle(kind);
    if (onPrinter())
        surface.setScaleMode(ScaleUnit::Twips);
    else
        surface.setForeColor(kBlack);
    FontName_ = "굴림체";
    surface.setFont(FontName_);
}

void clsplot1::pwindow(double pl, double ul, double pr, double ur, double pb, double ub, double pt,
                       double ut, double kind) {
    WinKind_ = kind;
    PageLeft_ = pl;
    PageBottom_ = pb;
    UserLeft_ = ul;
    UserBottom_ = ub;
    bool bad = !linearX() && !logarithmicX();
    if (linearX()) {
        if (ul != ur)
            Curxs_ = quotient(pr - pl, ur - ul);
        else
            bad = true;
    } else if (logarithmicX()) {
        if (ur > 0 && ul > 0 && ul != ur)
            Curxs_ = quotient(pr - pl, Log10Guard(quotient(ur, ul)));
        else
            bad = true;
    }
    if (linearY()) {
        if (ub != ut)
            Curys_ = quotient(pt - pb, ut - ub);
        else
            bad = true;
    } else if (logarithmicY()) {
        if (ut > 0 && ub > 0 && ub != ut)
            Curys_ = quotient(pt - pb, Log10Guard(quotient(ut, ub)));
        else
            bad = true;
    }
    if (bad)
        messages_.show(
            {.text = "Error in sub PWINDOW\r\n top or bottom maybe the same check and try again",
             .icon = Icon::Warning,
             .buttons = Buttons::Ok,
             .title = {}});
}

double clsplot1::cx(double x) const {
    float xs = 0;
    if (linearX())
        xs = toSingle(PageLeft_ + Curxs_ * (x - UserLeft_));
    else if (logarithmicX())
        xs = toSingle(PageLeft_ + Curxs_ * Log10Guard(quotient(x, UserLeft_)));
    return finite(kTwipsPerMillimetre * (ScaleX_ * static_cast<double>(xs) + OffX_));
}

double clsplot1::cy(double y) const {
    double ys = 0;  // at full precision, unlike x (required)
    if (linearY())
        ys = PageBottom_ + Curys_ * (y - UserBottom_);
    else if (logarithmicY())
        ys = PageBottom_ + Curys_ * Log10Guard(quotient(y, UserBottom_));
    return finite(kTwipsPerMillimetre * (ScaleY_ * ys + OffY_));
}

double clsplot1::cxInv(double X) const {
    const double m = quotient(X / kTwipsPerMillimetre - OffX_, ScaleX_);
    if (linearX()) return finite(UserLeft_ + quotient(m - PageLeft_, Curxs_));
    if (logarithmicX())
        return finite(std::exp(kLn10 * (Log10Guard(UserLeft_) + quotient(m - PageLeft_, Curxs_))));
    return 0;
}

double clsplot1::cyInv(double Y) const {
    const double m = quotient(Y / kTwipsPerMillimetre - OffY_, ScaleY_);
    if (linearY()) return finite(UserBottom_ + quotient(m - PageBottom_, Curys_));
    if (logarithmicY())
        return finite(
            std::exp(kLn10 * (Log10Guard(UserBottom_) + quotient(m - PageBottom_, Curys_))));
    return 0;
}

double clsplot1::shiftedX(double x, double dx) const {
    const double a = Curxs_ < 0 ? -1 : 1;
    return finite(kTwipsPerMillimetre * (ScaleX_ * (dx * a)) + cx(x));
}

double clsplot1::shiftedY(double y, double dy) const {
    const double b = Curys_ < 0 ? -1 : 1;
    return finite(kTwipsPerMillimetre * (ScaleY_ * (dy * b)) + cy(y));
}

void clsplot1::pmoveto(double x, double y) {
    LastX_ = x;
    LastY_ = y;
}

void clsplot1::pmoverelto(double dx, double dy) {
    LastX_ = finite(LastX_ + dx);
    LastY_ = finite(LastX_ + dy);  // required: from x
}

void clsplot1::pmovemmto(double x, double dx, double y, double dy) {
    const double X = shiftedX(x, dx);
    const double Y = shiftedY(y, dy);
    LastX_ = cxInv(X);
    LastY_ = cyInv(Y);
}

double clsplot1::penWidth(double w) const {
    const double p = finite(ScaleMean_ * ((kTwipsPerMillimetre * w) / kTwipsPerMillimetre));
    return p < 1 ? 1 : p;
}

void clsplot1::plwidth(double w) {
    const double p = penWidth(w);
    surface().setDrawWidth(p);
}

void clsplot1::latchWidth(double lw) {
    if (lw == 0 || lw == LineWidth_) return;
    plwidth(lw);
    LineWidth_ = lw;
}

void clsplot1::Clear() {
    if (onScreen()) surface().Cls();
    if (onPrinter()) surface().EndDoc();
}

namespace {

constexpr std::string_view kNextPage = "Preceed to Next Page ? ";

}  // namespace

void clsplot1::SkipPage() {
    if (onPrinter()) surface().EndDoc();
    if (onScreen()) messages_.tell(kNextPage);
}

void clsplot1::SkipPage1() {
    if (onPrinter()) surface().NewPage();
    if (onScreen()) messages_.tell(kNextPage);
}

void clsplot1::EndPlot() {
    if (onPrinter()) surface().EndDoc();
}

void clsplot1::ChangeOrint(double orientation) {
    if (onScreen() || orientation == Orient_) return;
    messages_.show({.text = "change printer orientation at control pannel",
                    .icon = Icon::Warning,
                    .buttons = Buttons::Ok,
                    .title = {}});
    genSub::RunProgram(programs_, messages_, "control.exe");
    Orient_ = roundedInteger16(orientation);
}

void clsplot1::SetOrint(double orientation) {
    surface().setOrientation(orientation <= 1 ? SheetOrientation::Portrait
                                              : SheetOrientation::Landscape);
}

void clsplot1::ChangeColor(std::int32_t colour, double which) {
    if (!ColorOn_) {
        surface().setForeColor(kBlack);
        ForeNow_ = kBlack;
        return;
    }
    if (which == 1 && colour != BackNow_) {
        surface().setBackColor(colour);
        BackNow_ = colour;
    }
    if (which == 2 && colour != ForeNow_) {
        surface().setForeColor(colour);
        ForeNow_ = colour;
    }
}

void clsplot1::setBlackWhite(bool on) {
    ColorOn_ = on;
}

void clsplot1::setPrinterType(std::string_view text) {
    PrinterColor_ = upperCased(text) == "T";
}

void clsplot1::GetPrinterMode(bool on) {
    setPrinterType(printer_.GetDeviceCaps(DeviceCap::ColourPlanes) < 2 ? "F" : "T");
    setBlackWhite(on);
}

}  // namespace kelvo
