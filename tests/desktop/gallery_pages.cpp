#include "gallery_pages.h"

#include <cmath>
#include <vector>

namespace kelvo::testing {

namespace {

constexpr double kSide = 160;  // mm
constexpr std::int32_t kRed = 0x0000FF;
constexpr std::int32_t kBlue = 0xC04000;
constexpr std::int32_t kGreen = 0x00A000;

class NobodyThere final : public MessageBoxes, public ProgramStarter {
public:
    Answer show(const Message&) override { return Answer::Ok; }
    void start(const std::string&) override {}
};

void useWholePage(clsplot1& object) {
    object.pwindow(0, 0, kSide, kSide, 0, kSide, kSide, 0, 0);
}

void drawLines(clsplot1& object, Surface&) {
    for (int width = 1; width <= 5; ++width) {
        const double y = 158.0 - 4 * width;
        object.pline(5, y, 45, y, width);
        object.pline(50, y, 70, y - 10, width);
        object.pline(75, y, 95, y, width, true);
    }
    object.ptext("pline 1-5, alt", 5, 157, 8);
    object.pmoveto(105, 132);
    for (const double turn : {0.0, 72.0, 144.0, 216.0, 288.0}) {
        const double t = turn * 3.141592654 / 180;
        object.plinerelto(15 * std::cos(t), 15 * std::sin(t), 2);
    }
    object.pmoveto(135, 140);
    object.plineto(155, 140, 1);
    object.plinemmto(155, 0, 140, 15, 1);
    object.plinemmto(155, -20, 140, 15, 3);
    double y = 125;
    for (const auto& [dash, gap] : {std::pair{3.0, 1.0}, {6.0, 2.0}, {1.0, 1.0}, {10.0, 0.0}}) {
        object.plinedot(5, y, 75, y, 1, dash, gap);
        object.plinedot(80, y, 150, y - 12, 2, dash, gap);
        y -= 5;
    }
    object.plinedot(5, 100, 35, 75, 2, 3, 1);
    object.plinedot(75, 75, 40, 100, 1, 4, 2);
    object.plinedot(80, 70, 80, 95, 1, 3, 1);
    for (int width = 1; width <= 4; ++width) {
        object.pbox(5.0 + 18 * width, 48, 18.0 + 18 * width, 66, width);
    }
    for (int angle = 0; angle < 360; angle += 45) {
        const double t = angle * 3.141592654 / 180;
        object.parrow(30 + 5 * std::cos(t), 22 + 5 * std::sin(t), 14, 8, angle, 1);
    }
    object.parrow(80, 22, 60, 20, 0, 2);
    object.ptext("parrow", 100, 40, 8);
}

void drawCircles(clsplot1& object, Surface& surface) {
    constexpr std::array<std::pair<double, double>, 8> spans{
        {{0, 360}, {0, 0}, {0, 90}, {90, 180}, {180, 300}, {300, 60}, {-45, 45}, {-1, 359}}};
    for (std::size_t place = 0; place < spans.size(); ++place) {
        const double x = 22.0 + 38.0 * static_cast<double>(place % 4);
        const double y = 138.0 - 40.0 * static_cast<double>(place / 4);
        const auto& [start, end] = spans[place];
        const int from = static_cast<int>(start);
        const int to = static_cast<int>(end);
        object.pcircle(x, y, 14, start, end, 1 + static_cast<double>(place % 3));
        object.ptextC(std::to_string(from) + ".." + std::to_string(to), x - 10, x + 10, y, 8);
        if (place == 2) continue;
        object.pcircledot(x, y - 80, 14, start, end, 1 + static_cast<double>(place % 3), 3, 1.5);
    }
    surface.setForeColor(kRed);
    object.pcircledot(98, 58, 14, 20, 340, 1, 6, 3);
    object.pcircle(98, 58, 8, 20, 340, 3);
    surface.setForeColor(0);
}

void drawFills(clsplot1& object, Surface& surface) {
    object.pFillBox(5, 135, 30, 155, kRed);
    object.pfill(35, 155, 60, 135, kBlue);
    object.pFillCircle(80, 145, 10, kGreen);
    object.pFillCircle(105, 145, 10, 0);
    double x = 20;
    for (const double turn : {0.0, 30.0, 90.0, 135.0}) {
        object.pFillEllipse(x, 112, 16, turn, 0.5, x < 50 ? kBlue : kGreen);
        x += 38;
    }
    const std::vector<double> triangleX{5, 35, 15};
    const std::vector<double> triangleY{65, 70, 92};
    object.pFillPoly(triangleX, triangleY, 3, kRed);
    // A stroke beside an upright side has no height left, so two of these quarters stay empty;
    // slightly turned the square is full.
    const std::vector<double> squareX{42, 56, 56, 42};
    const std::vector<double> squareY{78, 78, 92, 92};
    object.pFillPoly(squareX, squareY, 4, 0);
    const std::vector<double> turnedX{58, 71.9, 71, 57.1};
    const std::vector<double> turnedY{62, 62.9, 76.8, 75.9};
    object.pFillPoly(turnedX, turnedY, 4, 0);
    std::vector<double> hexagonX;
    std::vector<double> hexagonY;
    for (int corner = 0; corner < 6; ++corner) {
        const double t = (corner * 60 + 10) * 3.141592654 / 180;
        hexagonX.push_back(92 + 14 * std::cos(t));
        hexagonY.push_back(79 + 14 * std::sin(t));
    }
    object.pFillPoly(hexagonX, hexagonY, 6, kGreen);
    const std::vector<double> flatX{112, 155, 150, 118};
    const std::vector<double> flatY{70, 75, 90, 86};
    object.pFillPoly(flatX, flatY, 4, kBlue);
    object.ptext("pFillPoly", 112, 64, 8);
    // Every mode over white and over a coloured band.
    object.pFillBox(0, 28, 158, 40, 0xA0C0FF);
    for (int mode = 1; mode <= 16; ++mode) {
        const double left = 2.0 + (mode - 1) * 9.7;
        object.ptext(std::to_string(mode), left, 54, 8);
        surface.setForeColor(kBlue);
        surface.setDrawMode(RasterMode::CopyPen);
        object.pfillMode(mode);
        object.pline(left + 3, 20, left + 3, 50, 12);
        surface.setDrawMode(RasterMode::CopyPen);
        surface.setForeColor(0);
    }
}

void drawSymbols(clsplot1& object, Surface&) {
    double y = 148;
    for (const double size : {2.0, 4.0, 8.0, 16.0}) {
        for (int kind = 0; kind <= 5; ++kind) {
            double width = 1;
            object.ticmark(15.0 + kind * 26, y, size, kind, width);
            double wide = 2;
            object.ticmark(28.0 + kind * 26, y, size * 0.6, kind, wide);
        }
        y -= 6 + size * 1.1;
    }
    // In a window of other units, running downward on the right half.
    object.pwindow(0, 127, 80, 127.01, 95, 37.01, 160, 37, 0);
    object.ptext("127.00, 37.00", 127.001, 37.0092, 8);
    for (int kind = 0; kind <= 5; ++kind) {
        double width = 1;
        object.ticmark(127.001 + 0.0015 * kind, 37.005, 8, kind, width);
    }
    object.pwindow(160, 0, 80, 100, 95, 0, 160, 100, 0);
    object.ptext("x, y down", 60, 8, 8);
    for (int kind = 0; kind <= 5; ++kind) {
        double width = 1;
        object.ticmark(10 + 15.0 * kind, 45, 8, kind, width);
    }
    useWholePage(object);
}

void drawGrids(clsplot1& object, Surface&) {
    object.setBlackWhite(true);
    object.pgrid(8, 0, 74, 10, 5, 1, 8, 10, 74, 0, 5, 1, 0, kRed, kBlue);
    object.pgrid(88, 0, 154, 100, 50, 10, 8, 100, 74, 1, 2, 1, 1, kRed, kBlue);
    object.pgrid(8, 1, 74, 1000, 2, 1, 88, 10, 154, 0, 5, 1, 2, kRed, kBlue);
    object.pgrid(88, 0.1, 154, 10, 0.2, 0.1, 88, 1000, 154, 10, 50, 10, 3, kRed, kBlue);
    object.ChangeColor(0, 2);
    useWholePage(object);
    const std::array<const char*, 4> names{"0: linear", "1: y log", "2: x log", "3: both log"};
    for (std::size_t kind = 0; kind < names.size(); ++kind) {
        const double left = kind % 2 == 0 ? 8 : 88;
        object.ptext(names[kind], left, kind < 2 ? 154 : 74, 8);
    }
    object.setBlackWhite(false);
}

void drawTexts(clsplot1& object, Surface&) {
    double y = 152;
    for (const double size : {2.0, 6.0, 8.0, 10.0, 14.0, 20.0}) {
        object.pline(3, y, 75, y, 1);
        object.ptext("인천No-3 위도gjÅ 37-30-15", 3, y, size);
        y -= 4 + size * 0.3;
    }
    object.pline(100, 157, 100, 100, 1);
    object.pline(150, 157, 150, 100, 1);
    y = 152;
    for (const char* text : {"가운데", "ptextC 가운데 맞춤", "1"}) {
        object.pline(100, y, 150, y, 1);
        object.ptextC(text, 100, 150, y, 10);
        y -= 8;
    }
    object.pFillBox(100, 105, 150, 128, 0x80D0FF);
    object.pclear(1);
    object.ptext("지워진 바탕", 105, 118, 12);
    object.ptextR("turned", 140, 126, 90, 9);
    object.pclear(0);
    object.pfillMode(13);
    object.pvtext("세로글 ABC", 85, 105, 5, 0, 11);
    object.pline(80, 105, 90, 105, 1);
    y = 100;
    for (const double value : {3.14159, -12.5, 0.0, 127.305}) {
        object.pvalue(value, 100, y, 6, 3, 9);
        object.pformvalue(value, 130, y, "#0.00", 0);
        y -= 4;
    }
    for (int style = 0; style <= 4; ++style) {
        object.ChangeFontStyle(0, "t");
        object.ChangeFontStyle(style, "t");
        object.ptext("글꼴 모양 Style " + std::to_string(style), 3, 108.0 - style * 5, 10);
    }
    object.ChangeFontStyle(0, "t");
    for (int angle = 0; angle < 360; angle += 30) {
        object.ptextR("      127-30-15 경도", 40, 40, angle, 9);
    }
    for (const int angle : {0, 45, 90, 180, 270}) {
        object.ptextR("      궁서 북 " + std::to_string(angle), 120, 40, angle, 12, "궁서");
    }
    for (const double x : {40.0, 120.0}) {
        object.pline(x - 3, 40, x + 3, 40, 1);
        object.pline(x, 37, x, 43, 1);
    }
}

}  // namespace

std::array<GalleryPage, 6> galleryPages() {
    return {{{"lines", drawLines},
             {"circles", drawCircles},
             {"fills", drawFills},
             {"symbols", drawSymbols},
             {"grids", drawGrids},
             {"texts", drawTexts}}};
}

void drawGalleryPage(const GalleryPage& page, SurfaceKind kind, Surface& surface) {
    NobodyThere nobody;
    clsplot1 object(nobody, nobody, surface);
    object.pinitialize(0, 0, 1, 1, static_cast<int>(kind), surface);
    useWholePage(object);
    page.draw(object, surface);
}

}  // namespace kelvo::testing
