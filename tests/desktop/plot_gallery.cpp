// plot_gallery FOLDER: draws all that a surface and the plot object offer into PNG files and
// prints it, with a text in each style, into PDF files: to be looked at by a person. Run it with
// QT_QPA_PLATFORM=offscreen where there is no display.
#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QPrinter>
#include <array>
#include <cstdio>
#include <string>

#include "desktop/korean_faces.h"
#include "desktop/paper_surface.h"
#include "desktop/picture_painter.h"
#include "desktop/picture_surface.h"
#include "gallery_pages.h"

using namespace kelvo;
using kelvo::desktop::Medium;
using kelvo::desktop::PaperSurface;
using kelvo::desktop::PictureSurface;
using namespace kelvo::testing;

namespace {

constexpr std::array<const char*, 8> kFaces{"굴림", "굴림체", "궁서", "궁서체",
                                            "돋움", "돋움체", "바탕", "바탕체"};

void label(PictureSurface& surface, double x, double y, const std::string& text) {
    surface.setFont("굴림");
    surface.setFontsize(9);
    surface.setCurrentX(x);
    surface.setCurrentY(y);
    surface.print(text);
}

void drawFaces(PictureSurface& surface) {
    double y = 200;
    for (const char* face : kFaces) {
        for (const double size : {8.0, 10.0, 14.0}) {
            surface.setFont(face);
            surface.setFontsize(size);
            surface.setCurrentX(200);
            surface.setCurrentY(y);
            surface.print(std::string(face) + " 인천No-3 |위도|abcdefgh|1234.5678 지오이드고 ─│±※");
            y += surface.TextHeight("A");
        }
        y += 60;
    }
    int style = 0;
    for (const char* face : {"굴림체", "바탕체"}) {
        for (style = 0; style < 4; ++style) {
            surface.setFont(face);
            surface.setFontsize(11);
            surface.setFontBold(style == 1);
            surface.setFontItalic(style == 2);
            surface.setFontUnderline(style == 3);
            surface.setFontStrikethru(style == 3);
            surface.setCurrentX(200);
            surface.setCurrentY(y);
            surface.print("굵게 기울임꼴 밑줄 취소선 Bold Italic 37-30-15");
            y += surface.TextHeight("A");
        }
    }
}

void drawTurned(PictureSurface& surface) {
    for (int angle = 0; angle < 360; angle += 30) {
        LogicalFont font;
        font.lfHeight = 16;
        font.lfEscapement = angle * 10;
        font.lfWeight = angle % 60 == 0 ? 700 : 400;
        font.lfCharSet = 1;
        font.lfFaceName = angle % 90 == 0 ? "굴림체" : "바탕체";
        surface.CreateFontIndirectA(font);
        surface.SelectObject(SelectedFont::Created);
        surface.TextOutA(300, 300, "          경도 127-30-15", 24);
        surface.SelectObject(SelectedFont::Old);
        surface.DeleteObject();
    }
    surface.setDrawWidth(1);
    surface.Line(4500, 4300, 4500, 4700, 0, LineForm::Line);
    surface.Line(4300, 4500, 4700, 4500, 0, LineForm::Line);
}

void drawShapes(PictureSurface& surface) {
    for (int width = 1; width <= 6; ++width) {
        surface.setDrawWidth(width);
        const double y = 300.0 + width * 200;
        surface.Line(300, y, 3000, y, 0, LineForm::Line);
        surface.Line(3200, y, 5200, y + 500, 0x0000FF, LineForm::Line);
    }
    surface.setDrawWidth(1);
    surface.setForeColor(0);
    surface.Circle(900, 3200, 500, 0, 0, 0, 0, CircleForm::Whole);
    surface.setFillStyle(FillKind::Solid);
    surface.setFillColor(0x00C000);
    surface.Circle(2200, 3200, 500, 0, 0, 0, 0, CircleForm::Whole);
    surface.setFillStyle(FillKind::None);
    surface.setDrawWidth(3);
    surface.Circle(3500, 3200, -500, 0xC00000, 0, 1.570796, 0, CircleForm::Arc);
    surface.Circle(4800, 3200, 500, 0xC000C0, 4.7, 1.0, 0, CircleForm::Arc);
    surface.Circle(6100, 3200, 500, 0, 0, 3.141592654, 0.5, CircleForm::Arc);
    surface.setDrawWidth(1);
    surface.Line(300, 4200, 1500, 5000, 0, LineForm::Box);
    surface.Line(3000, 5000, 1800, 4200, 0xC0C000, LineForm::FilledBox);
}

void drawModes(PictureSurface& surface) {
    surface.setDrawMode(RasterMode::CopyPen);
    surface.Line(0, 2000, 9000, 3000, 0x80C0FF, LineForm::FilledBox);
    for (int mode = 1; mode <= 16; ++mode) {
        const double x = 100.0 + (mode - 1) * 540;
        surface.setDrawMode(static_cast<RasterMode>(mode));
        surface.Line(x, 1500, x + 400, 3500, 0xC04020, LineForm::FilledBox);
        surface.setDrawWidth(4);
        surface.Line(x, 3700, x + 400, 4300, 0xC04020, LineForm::Line);
        surface.setDrawMode(RasterMode::CopyPen);
        label(surface, x + 100, 1200, std::to_string(mode));
    }
}

bool save(const PictureSurface& surface, const QString& folder, const std::string& name) {
    bool good = true;
    for (const double zoom : {1.0, 1.6}) {
        const int side = static_cast<int>(620 * zoom);
        QImage image(side, side, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        painter.scale(zoom / 15, zoom / 15);
        paintPicture(painter, surface.picture(), Medium::Pixels);
        painter.end();
        good = image.save(QString("%1/%2-%3.png").arg(folder, name.c_str()).arg(zoom)) && good;
    }
    return good;
}

bool print(PaperSurface& paper, const QString& path) {
    QPrinter printer(QPrinter::HighResolution);
    kelvo::desktop::setUpPrinter(printer);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(path);
    return paintSheets(printer, paper.takeSheets());
}

// Seventy lines in columns: one full sheet and a second one begun.
std::string sampleText() {
    std::string text;
    for (int line = 1; line <= 70; ++line) {
        text += std::to_string(100 + line).substr(1) +
                " | 인천No-3   |  37-35-33.2567 | 126-32-29.3454 |    30.1756 | 지오이드고\r\n";
    }
    return text;
}

}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    if (argc != 2) {
        std::fputs("usage: plot_gallery FOLDER\n", stderr);
        return 2;
    }
    kelvo::desktop::installFaceSubstitutes();
    const QString folder = QString::fromLocal8Bit(argv[1]);

    using Draw = void (*)(PictureSurface&);
    constexpr std::array<std::pair<const char*, Draw>, 4> pages{{{"faces", drawFaces},
                                                                 {"turned", drawTurned},
                                                                 {"shapes", drawShapes},
                                                                 {"modes", drawModes}}};
    bool good = true;
    for (const auto& [name, draw] : pages) {
        PictureSurface surface({});
        draw(surface);
        good = save(surface, folder, name) && good;
    }
    PaperSurface paper;
    for (const GalleryPage& page : kelvo::testing::galleryPages()) {
        PictureSurface surface({});
        drawGalleryPage(page, SurfaceKind::Screen, surface);
        good = save(surface, folder, page.name) && good;
        drawGalleryPage(page, SurfaceKind::Printer, paper);
        paper.EndDoc();
    }
    for (const PointPlot kind : {PointPlot::WGS, PointPlot::UGS, PointPlot::XY}) {
        for (const bool manual : {false, true}) {
            if (manual && kind != PointPlot::XY) continue;
            PictureSurface surface({});
            drawSamplePlot(SurfaceKind::Screen, surface, kind, manual);
            const std::string name =
                "plot-" + std::to_string(static_cast<int>(kind)) + (manual ? "-manual" : "");
            good = save(surface, folder, name) && good;
            drawSamplePlot(SurfaceKind::Printer, paper, kind, manual);
        }
    }
    good = print(paper, folder + "/gallery.pdf") && good;

    const std::string text = sampleText();
    int style = 0;
    for (const char* font : {"굴림체", "바탕체", "돋움", "궁서"}) {
        printSampleText(paper, "kelvo.tmp", text, {.font = font, .style = style++});
    }
    printSampleText(paper, "kelvo.tmp", text, {.size = "12", .strikethru = true});
    printSampleText(paper, "kelvo.tmp", text, {.size = "7", .underline = true});
    good = print(paper, folder + "/text.pdf") && good;
    return good ? 0 : 1;
}
