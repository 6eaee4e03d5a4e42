#include "desktop/paper_surface.h"

#include <QPainter>
#include <utility>

#include "desktop/picture_painter.h"
#include "desktop/twips.h"

namespace kelvo::desktop {

namespace {

constexpr int kPaperPixelsPerInch = 600;

}  // namespace

PaperSurface::PaperSurface()
    : PictureSurface({.twipsPerPixel = kTwipsPerInch / kPaperPixelsPerInch,
                      .pixelsPerInch = kPaperPixelsPerInch,
                      .erasedByBackColor = false}) {}

void PaperSurface::EndDoc() {
    if (isTouched()) NewPage();
}

void PaperSurface::NewPage() {
    const bool landscape = members().Orientation == SheetOrientation::Landscape;
    sheets_.push_back({takePicture(), landscape});
}

std::vector<Sheet> PaperSurface::takeSheets() {
    EndDoc();
    return std::exchange(sheets_, {});
}

void setUpPrinter(QPrinter& printer) {
    printer.setPageSize(QPageSize(QPageSize::A4));
    printer.setFullPage(true);
    printer.setPageMargins(QMarginsF(0, 0, 0, 0));
    printer.setCreator(QStringLiteral("Kelvo"));
}

bool paintSheets(QPrinter& printer, const std::vector<Sheet>& sheets) {
    QPainter painter;
    bool first = true;
    for (const Sheet& sheet : sheets) {
        printer.setPageOrientation(sheet.landscape ? QPageLayout::Landscape
                                                   : QPageLayout::Portrait);
        if (first) {
            // The printer dialog may have changed what the drawing relies on.
            printer.setFullPage(true);
            printer.setPageMargins(QMarginsF(0, 0, 0, 0));
            if (!painter.begin(&printer)) return false;
            first = false;
        } else if (!printer.newPage()) {
            return false;
        }
        const double scale = printer.resolution() / kTwipsPerInch;
        painter.save();
        painter.scale(scale, scale);
        paintPicture(painter, sheet.picture, Medium::Paper);
        painter.restore();
    }
    return first || painter.end();
}

}  // namespace kelvo::desktop
