// The plot object: draws on a surface in millimetres of a page or in any units of the user.
//
// This is a complete drawing object, of which the program's own pictures use a part: the point
// plots draw with pwindow, pline, ptext, ptextR and ticmark, printing with ptext and the font. The
// rest (dashes, arcs, arrow, fills, logarithmic grids, values, stacked text) is kept on purpose.
//
// Three systems of coordinates: user (whatever pwindow says), page (millimetres), surface (twips,
// 56.7 to the millimetre, y growing downward). Call pinitialize first, then pwindow.
//
// Numbers are 64-bit. Rounded to 32 bits are only the page x inside cx, where plinemmto leaves
// the pen, pKind, and the widths of three symbols of ticmark (required; cy isn't rounded).
// Nothing that isn't finite reaches a surface: a division by zero is fault 11 (0/0 is 6), a value
// out of range fault 6. A call stops at its fault; what has reached the surface stands, and kept
// values aren't put back. Drawing without a surface is fault 5, which pline swallows.
// No call draws without end: plinedot, pcircledot and pgrid stop after kMostStrokes strokes a
// call, a triangle of a fill after kMostTriangleStrokes.
//
// Widths lw are surface pixels at magnification 1; 0 keeps the pen as it is. Angles are degrees,
// counter-clockwise. Sizes of text are points. "mm" are millimetres of the page.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "common/ports.h"
#include "plot/surface.h"

namespace kelvo {

// The kinds that pinitialize takes as numbers.
enum class SurfaceKind { Printer = 1, Screen = 2 };

class clsplot1 {
public:
    static constexpr int kMostStrokes = 100'000;
    // Strokes get wider one by one, so this many cover a height of 380 m on the screen.
    static constexpr int kMostTriangleStrokes = 2'000;

    // `printer` is asked for its colours by GetPrinterMode only. All three are kept by reference.
    clsplot1(MessageBoxes& messages, ProgramStarter& programs, Surface& printer);

    // Read-only values: mm per user unit (per power of ten on a logarithmic axis), the pen in
    // user units, the kind of surface (1 the printer, 2 the screen).
    [[nodiscard]] double Curxs() const { return Curxs_; }
    [[nodiscard]] double Curys() const { return Curys_; }
    [[nodiscard]] double LastX() const { return LastX_; }
    [[nodiscard]] double LastY() const { return LastY_; }
    [[nodiscard]] float pKind() const { return pKind_; }

    // User to surface. A window of unknown kind gives the page's origin.
    [[nodiscard]] double cx(double x) const;
    [[nodiscard]] double cy(double y) const;

    // --- Page, window, pen, colours: plot_device.cpp ---

    // Binds the object to a surface: origin (mm) and magnification of the page (0 counts as 1),
    // a window of page mm, a black pen (not on the printer) and the default font.
    void pinitialize(double x0, double y0, double sx, double sy, double kind, Surface& surface);

    // The window: page mm pl, pr, pb, pt belong to the user values ul, ur, ub, ut. kind 0 linear,
    // 1 y logarithmic, 2 x logarithmic, 3 both. An axis without extent, a logarithmic axis not
    // above 0 and an unknown kind are reported in one message; the axis keeps its former scale, but
    // kind and origin are those of the refused window (required). An axis may run backward.
    void pwindow(double pl, double ul, double pr, double ur, double pb, double ub, double pt,
                 double ut, double kind);

    void pmoveto(double x, double y);
    // Required: the new LastY comes from the new LastX, not from the old LastY.
    void pmoverelto(double dx, double dy);
    // To (x, y) shifted by mm in the direction in which the user values grow.
    void pmovemmto(double x, double dx, double y, double dy);
    void plwidth(double w);

    void Clear();      // a new drawing: erases the screen, ends the printer's job
    void SkipPage();   // next sheet: ends the printer's job; a message on the screen
    void SkipPage1();  // next sheet within the job; a message on the screen
    void EndPlot();

    // Asks the user to change the printer's orientation and starts control.exe, unless it was
    // asked for last. Fault 6 beyond 16 bits.
    void ChangeOrint(double orientation);
    void SetOrint(double orientation);  // up to 1 portrait, otherwise landscape

    // which 1 background, 2 pen. With the colours off the pen becomes black and that is all.
    void ChangeColor(std::int32_t colour, double which);
    void setBlackWhite(bool on);                 // required: true switches the colours on
    void setPrinterType(std::string_view text);  // "T": the printer has colours
    void GetPrinterMode(bool on);                // sets both, the type by the printer's planes

    // --- Lines: lines.cpp ---

    // With alt true the line is green. A fault that the surface raises ends the call quietly.
    void pline(double x1, double y1, double x2, double y2, double lw, bool alt = false);
    void plineto(double x, double y, double lw);
    void plinerelto(double dx, double dy, double lw);
    // From the pen to (x, y) shifted by mm in the direction in which the user values grow.
    void plinemmto(double x, double dx, double y, double dy, double lw);
    // dash and gap in mm. Whole periods only, the rest stays undrawn; heads for (x2, y2) only
    // where Curxs is positive and Curys negative (required).
    void plinedot(double x1, double y1, double x2, double y2, double lw, double dash, double gap);
    // Sets the pen's width whatever lw was before, without remembering it (required).
    void pbox(double x1, double y1, double x2, double y2, double lw);
    // length and width in user units, angle in degrees. The bar stands 0.1 radian off the
    // square, the head's outline is open (required).
    void parrow(double x, double y, double length, double width, double angle, double lw);

    // --- Circles: circles.cpp ---

    // r in user units of x. A span of 358 to 363 degrees, and of 0 to 0, is the whole circle.
    void pcircle(double x, double y, double r, double start, double end, double lw);
    // dash and gap in mm; the way after the last whole period is drawn solid.
    void pcircledot(double x, double y, double r, double start, double end, double lw, double dash,
                    double gap);

    // --- Fills: fills.cpp ---

    // DrawMode 1 to 16; 6 and any other does nothing; 1 becomes 13 on a printer with colours.
    void pfillMode(double mode);
    void pfill(double x1, double y1, double x2, double y2, std::int32_t colour);
    void pFillBox(double x1, double y1, double x2, double y2, std::int32_t colour);
    // Fault 6 where the surface's pen or fill colour is above 32767 (required).
    void pFillCircle(double x, double y, double r, std::int32_t colour);
    // Semi-axis a, the other one ratio x a, turned clockwise by `turn` degrees. The right size
    // only where Curxs is 1; a corner on a zero x or y breaks the fan (both required).
    void pFillEllipse(double x, double y, double a, double turn, double ratio, std::int32_t colour);
    // The polygon of the first n corners, as a fan around their mean. Fault 9 for n beyond the
    // lists, fault 6 for n = 0 and where the surface's pen colour is above 32767 (required).
    void pFillPoly(std::span<const double> xs, std::span<const double> ys, int n,
                   std::int32_t colour);

    // --- Text: plot_text.cpp, plot_font.cpp ---

    // Sets the surface's font size: at least 3 points on the screen, 1 elsewhere.
    void ptheight(double h);
    // In all text calls size 0 means the size given last. 0.8 of the text's height lies above y.
    void ptext(std::string_view text, double x, double y, double size);
    // Centred between x1 and x2; with the erased box the box lands elsewhere (required).
    void ptextC(std::string_view text, double x1, double x2, double y, double size);
    // Turned by `angle` degrees about the top left corner of its cell, which is (x, y). A font
    // name of 32 bytes and more in the code page is fault 9.
    void ptextR(std::string_view text, double x, double y, double angle, double size,
                std::string_view font = {});
    // Upright characters, `pitch` mm apart toward growing y, in the size sz - 1. Fault 6 beyond
    // 16 bits.
    void pvtext(std::string_view text, double x, double y, double pitch, double unused, double sz);
    void pvalue(double value, double x, double y, int width, int decimals, double size);
    // By a format picture of "0", "#" and "."; a size of 0 keeps the font as it stands.
    void pformvalue(double value, double x, double y, std::string_view format, double size);
    void pclear(double v);  // 1: text wipes its background from now on, 0: no longer
    void ChangeFont(std::string_view name);
    // which 0 all off, 1 bold, 2 italic, 3 strike-through, 4 underline; on if flag begins with T.
    void ChangeFontStyle(double which, std::string_view flag);

    // --- Grid and symbols: grid.cpp, symbols.cpp ---

    // pwindow and its grid; mx, my major and nx, ny minor steps, on a logarithmic axis those of
    // the first decade. Major lines lie over minor ones.
    void pgrid(double pl, double ul, double pr, double ur, double mx, double nx, double pb,
               double ub, double pt, double ut, double my, double ny, double kind,
               std::int32_t majorColour, std::int32_t minorColour);
    // A symbol of `size` mm: 0 circle, 1 triangle up, 2 box, 3 plus, 4 cross, 5 triangle down.
    // Kinds 3 and 4 multiply the caller's lw by 1.4 (required).
    void ticmark(double x, double y, double size, double kind, double& lw);

    // --- Not meant for callers, but open to whoever checks a figure ---

    void Class_Initialize();
    [[nodiscard]] double cxInv(double X) const;  // 0 in a window of unknown kind
    [[nodiscard]] double cyInv(double Y) const;
    // Fills a triangle (user units) with strokes along its first side, each wider than the last.
    void pFillTri(double x1, double y1, double x2, double y2, double x3, double y3);
    // The part of the first side, moved by distance and direction, that lies between the others.
    struct Stroke {
        double ax = 0, ay = 0, bx = 0, by = 0;
    };
    [[nodiscard]] static Stroke TriStroke(double x1, double y1, double x2, double y2, double x3,
                                          double y3, double distance, double direction);

private:
    struct Box {
        double left = 0, top = 0, right = 0, bottom = 0;
    };
    struct Arc {
        double x = 0, y = 0, radius = 0;  // surface
        double start = 0, end = 0;        // degrees
        [[nodiscard]] bool whole() const { return start == 0 && end == 0; }
    };
    struct GridAxis;

    [[nodiscard]] Surface& surface() const;
    [[nodiscard]] bool onPrinter() const { return isKind(SurfaceKind::Printer); }
    [[nodiscard]] bool onScreen() const { return isKind(SurfaceKind::Screen); }
    // A caller may bind to a number of its own, which is neither.
    [[nodiscard]] bool isKind(SurfaceKind kind) const { return pKind_ == static_cast<float>(kind); }
    [[nodiscard]] double surfaceRadius(double r) const;
    [[nodiscard]] bool linearX() const { return WinKind_ == 0 || WinKind_ == 1; }
    [[nodiscard]] bool logarithmicX() const { return WinKind_ == 2 || WinKind_ == 3; }
    [[nodiscard]] bool linearY() const { return WinKind_ == 0 || WinKind_ == 2; }
    [[nodiscard]] bool logarithmicY() const { return WinKind_ == 1 || WinKind_ == 3; }
    // Surface coordinates of the user point shifted by mm toward growing user values.
    [[nodiscard]] double shiftedX(double x, double dx) const;
    [[nodiscard]] double shiftedY(double y, double dy) const;

    [[nodiscard]] double penWidth(double w) const;  // in surface pixels
    void latchWidth(double lw);
    void lineTo(double x1, double y1, double x2, double y2);
    [[nodiscard]] Arc arcOf(double x, double y, double r, double start, double end) const;

    void sizeStep(double size);
    [[nodiscard]] Box textBox(double x, double y, std::string_view text) const;
    void erase(const Box& box);
    // Prints at the surface's X; y is the user's, measured by the height of `heightOf`.
    void printAt(double X, double y, std::string_view text, std::string_view heightOf);

    void gridLine(const GridAxis& axis, double v, double lw, int& strokesLeft);
    void drawLinearAxis(const GridAxis& axis, int& strokesLeft);
    void drawLogarithmicAxis(const GridAxis& axis, int& strokesLeft);

    MessageBoxes& messages_;
    ProgramStarter& programs_;
    Surface& printer_;

    double LastX_ = 0;
    double LastY_ = 0;
    double WinKind_ = 0;
    double PageLeft_ = 0;    // mm at UserLeft_
    double PageBottom_ = 0;  // mm at UserBottom_
    double UserLeft_ = 0;
    double UserBottom_ = 0;
    double Curxs_ = 0;
    double Curys_ = 0;
    double LineWidth_ = 0;       // the width last latched
    double TextSize_ = 0;        // the size last given to a text operation
    std::int16_t BoxErase_ = 0;  // 1: text is drawn on an erased box
    double OffX_ = 0;            // page origin on the surface, mm
    double OffY_ = 0;
    double ScaleX_ = 0;  // magnification of the page
    double ScaleY_ = 0;
    double ScaleMean_ = 0;  // for widths, radii and text
    Surface* surface_ = nullptr;
    float pKind_ = 0;
    std::int16_t Orient_ = 0;
    std::string FontName_;
    std::int32_t BackNow_ = 0;
    std::int32_t ForeNow_ = 0;
    bool ColorOn_ = false;
    bool PrinterColor_ = false;
    LogicalFont RotFont_;
};

}  // namespace kelvo
