#include "desktop/plot_view.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QFileDialog>
#include <QGuiApplication>
#include <QMenu>
#include <QPainter>
#include <algorithm>

#include "desktop/picture_files.h"
#include "desktop/picture_painter.h"

namespace kelvo::desktop {

namespace {

// A plot is 137 mm wide and, with its two lines of text, about 162 mm high; margins around it.
constexpr double kPageWidth = 8100;
constexpr double kPageHeight = 9450;
constexpr double kPageMargin = 150;

}  // namespace

PlotView::PlotView(QWidget* parent) : QWidget(parent), surface_(DeviceUnits{}) {
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setToolTip(QStringLiteral("오른쪽 단추를 누르면 그림을 파일로 저장할 수 있습니다."));
}

QSize PlotView::sizeHint() const {
    return {620, 640};
}
QSize PlotView::minimumSizeHint() const {
    return {300, 320};
}

void PlotView::refresh() {
    if (surface_.revision() != drawnRevision_) update();
}

void PlotView::render() {
    const double ratio = devicePixelRatioF();
    const QSize pixels = (QSizeF(size()) * ratio).toSize();
    if (image_.size() == pixels && drawnRevision_ == surface_.revision()) return;
    drawnRevision_ = surface_.revision();
    image_ = QImage(pixels, QImage::Format_RGB32);
    image_.setDevicePixelRatio(ratio);
    const PlotPicture& picture = surface_.picture();
    image_.fill(picture.paper);

    // The footer names the data file, so a long path makes the page wider, to a point.
    const QRectF page(0, 0, kPageWidth, kPageHeight);
    QRectF wanted = page | (extentOf(picture) & page.adjusted(-2000, -2000, 4000, 2000));
    wanted.adjust(-kPageMargin, -kPageMargin, kPageMargin, kPageMargin);
    const double scale = std::min(width() / wanted.width(), height() / wanted.height());
    QPainter painter(&image_);
    painter.translate((width() - wanted.width() * scale) / 2,
                      (height() - wanted.height() * scale) / 2);
    painter.scale(scale, scale);
    painter.translate(-wanted.topLeft());
    paintPicture(painter, picture, Medium::Pixels);
}

void PlotView::paintEvent(QPaintEvent*) {
    render();
    QPainter painter(this);
    painter.drawImage(QPoint(0, 0), image_);
}

void PlotView::contextMenuEvent(QContextMenuEvent* event) {
    QMenu menu(this);
    menu.addAction(QStringLiteral("그림을 파일로 저장(&S)..."), this, &PlotView::saveAs);
    menu.addAction(QStringLiteral("그림 복사(&C)"), this, [this] {
        render();
        QGuiApplication::clipboard()->setImage(image_);
    });
    menu.exec(event->globalPos());
}

void PlotView::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Save) || event->matches(QKeySequence::SaveAs)) {
        saveAs();
    } else if (event->matches(QKeySequence::Copy)) {
        render();
        QGuiApplication::clipboard()->setImage(image_);
    } else {
        QWidget::keyPressEvent(event);
    }
}

void PlotView::saveAs() {
    QFileDialog dialog(this, QStringLiteral("그림 저장"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setNameFilters({QStringLiteral("PNG 그림 (*.png)"), QStringLiteral("SVG 그림 (*.svg)"),
                           QStringLiteral("PDF 문서 (*.pdf)")});
    dialog.setDefaultSuffix(QStringLiteral("png"));
    connect(&dialog, &QFileDialog::filterSelected, &dialog, [&dialog](const QString& filter) {
        for (const char* ending : {"png", "svg", "pdf"}) {
            if (filter.contains(QLatin1String(ending))) dialog.setDefaultSuffix(ending);
        }
    });
    dialog.selectFile(QStringLiteral("kelvo-plot"));
    if (dialog.exec() != QDialog::Accepted) return;
    const QString path = dialog.selectedFiles().value(0);
    if (!savePicture(surface_.picture(), path)) emit saveFailed(path);
}

}  // namespace kelvo::desktop
