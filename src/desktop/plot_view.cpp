#include "desktop/plot_view.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QFileDialog>
#include <QGuiApplication>
#include <QMenu>
#include <QPainter>
#include <QToolTip>
#include <algorithm>
#include <chrono>
#include <cmath>
#include <utility>

#include "desktop/picture_files.h"
#include "desktop/picture_painter.h"
#include "desktop/twips.h"

namespace kelvo::desktop {

namespace {

constexpr double kMostMagnified = 60;
constexpr double kKeyStep = 60;  // pixels that an arrow key moves the picture
constexpr double kReach = 8;     // pixels from the pointer to a point that it names
constexpr int kTilesWide = 4;
constexpr int kTilesHigh = 4;

}  // namespace

PlotView::PlotView(QWidget* parent) : QWidget(parent), surface_(DeviceUnits{}) {
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
    setCursor(Qt::CrossCursor);
    shown_ = framed(surface_.picture());
    rest_.setSingleShot(true);
    rest_.setInterval(std::chrono::milliseconds(60));
    connect(&rest_, &QTimer::timeout, this, &PlotView::startTiles);
    connect(&nextTile_, &QTimer::timeout, this, &PlotView::paintTile);
}

QSize PlotView::sizeHint() const {
    return {620, 640};
}
QSize PlotView::minimumSizeHint() const {
    return {300, 320};
}

void PlotView::refresh() {
    if (surface_.revision() == takenRevision_) return;
    takenRevision_ = surface_.revision();
    shown_ = framed(surface_.picture());
    image_ = QImage();
    showAll();
    update();
}

double PlotView::scaleOfAll() const {
    return std::min(std::max(1, width()) / shown_.frame.width(),
                    std::max(1, height()) / shown_.frame.height());
}

double PlotView::magnification() const {
    return sight_.scale / scaleOfAll();
}

void PlotView::showAll() {
    seesAll_ = true;
    look({shown_.frame.center(), scaleOfAll()});
}

QPointF PlotView::toSurface(const QPointF& place) const {
    return sight_.middle + (place - QPointF(width(), height()) / 2) / sight_.scale;
}

QPointF PlotView::toWidget(const QPointF& twips) const {
    return (twips - sight_.middle) * sight_.scale + QPointF(width(), height()) / 2;
}

void PlotView::look(const Sight& sight) {
    if (sight == sight_) return;
    sight_ = sight;
    nextTile_.stop();
    rest_.start();
    update();
}

void PlotView::magnify(double factor, const QPointF& about) {
    const double all = scaleOfAll();
    const double scale = std::clamp(sight_.scale * factor, all, all * kMostMagnified);
    if (scale <= all) return showAll();
    seesAll_ = false;
    const QPointF fixed = toSurface(about);
    look({fixed - (about - QPointF(width(), height()) / 2) / scale, scale});
}

void PlotView::moveBy(const QPointF& pixels) {
    QPointF middle = sight_.middle - pixels / sight_.scale;
    // The middle stays on the picture, so that it can't get lost.
    middle.setX(std::clamp(middle.x(), shown_.frame.left(), shown_.frame.right()));
    middle.setY(std::clamp(middle.y(), shown_.frame.top(), shown_.frame.bottom()));
    seesAll_ = false;
    look({middle, sight_.scale});
}

QImage PlotView::emptyImage() const {
    const double ratio = devicePixelRatioF();
    QImage image((QSizeF(size()) * ratio).toSize(), QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    image.fill(shown_.picture.paper);
    return image;
}

void PlotView::paintOn(QImage& image, const QRect& tile) const {
    QPainter painter(&image);
    painter.setClipRect(tile);
    painter.translate(QPointF(width(), height()) / 2);
    painter.scale(sight_.scale, sight_.scale);
    painter.translate(-sight_.middle);
    paintPart(painter, shown_,
              QRectF(toSurface(tile.topLeft()),
                     toSurface(tile.topLeft() + QPoint(tile.width(), tile.height()))));
}

void PlotView::paintSharp() {
    rest_.stop();
    nextTile_.stop();
    image_ = emptyImage();
    imageSight_ = sight_;
    paintOn(image_, rect());
}

void PlotView::startTiles() {
    coming_ = emptyImage();
    tile_ = 0;
    nextTile_.start();
}

void PlotView::paintTile() {
    const int wide = (width() + kTilesWide - 1) / kTilesWide;
    const int high = (height() + kTilesHigh - 1) / kTilesHigh;
    paintOn(coming_, QRect(tile_ % kTilesWide * wide, tile_ / kTilesWide * high, wide, high));
    if (++tile_ < kTilesWide * kTilesHigh) return;
    nextTile_.stop();
    image_ = std::exchange(coming_, QImage());
    imageSight_ = sight_;
    update();
}

void PlotView::paintEvent(QPaintEvent*) {
    if (image_.isNull()) paintSharp();
    QPainter painter(this);
    const QSizeF painted = QSizeF(image_.size()) / image_.devicePixelRatio();
    if (imageSight_ == sight_ && painted.toSize() == size()) {
        painter.drawImage(QPoint(0, 0), image_);
        return;
    }
    // On the move the last picture is enough; a sharp one follows.
    painter.fillRect(rect(), shown_.picture.paper);
    const double grown = sight_.scale / imageSight_.scale;
    painter.translate(toWidget(imageSight_.middle));
    painter.scale(grown, grown);
    painter.drawImage(QPointF(-painted.width() / 2, -painted.height() / 2), image_);
}

void PlotView::resizeEvent(QResizeEvent*) {
    nextTile_.stop();
    rest_.start();
    if (seesAll_ || sight_.scale < scaleOfAll()) showAll();
}

QImage PlotView::wholePicture() const {
    constexpr double kScale = 1 / kTwipsPerPixel * 2;
    QImage image((shown_.frame.size() * kScale).toSize(), QImage::Format_RGB32);
    image.fill(shown_.picture.paper);
    QPainter painter(&image);
    painter.scale(kScale, kScale);
    painter.translate(-shown_.frame.topLeft());
    paintPicture(painter, shown_.picture, Medium::Pixels);
    return image;
}

void PlotView::copy() {
    QGuiApplication::clipboard()->setImage(wholePicture());
}

void PlotView::contextMenuEvent(QContextMenuEvent* event) {
    QMenu menu(this);
    menu.addAction(QStringLiteral("그림을 파일로 저장(&S)..."), this, &PlotView::saveAs);
    menu.addAction(QStringLiteral("그림 복사(&C)"), this, &PlotView::copy);
    menu.addSeparator();
    menu.addAction(QStringLiteral("모두 보기(&A)"), this, &PlotView::showAll);
    menu.exec(event->globalPos());
}

void PlotView::keyPressEvent(QKeyEvent* event) {
    const QPointF middle(width() / 2.0, height() / 2.0);
    if (event->matches(QKeySequence::Save) || event->matches(QKeySequence::SaveAs)) return saveAs();
    if (event->matches(QKeySequence::Copy)) return copy();
    switch (event->key()) {
        case Qt::Key_Plus:
        case Qt::Key_Equal:
            return magnify(1.25, middle);
        case Qt::Key_Minus:
            return magnify(1 / 1.25, middle);
        case Qt::Key_0:
        case Qt::Key_Home:
            return showAll();
        case Qt::Key_Left:
            return moveBy({kKeyStep, 0});
        case Qt::Key_Right:
            return moveBy({-kKeyStep, 0});
        case Qt::Key_Up:
            return moveBy({0, kKeyStep});
        case Qt::Key_Down:
            return moveBy({0, -kKeyStep});
        default:
            QWidget::keyPressEvent(event);
    }
}

void PlotView::wheelEvent(QWheelEvent* event) {
    const double steps = event->angleDelta().y() / 120.0;
    if (steps != 0) magnify(std::pow(1.25, steps), event->position());
    event->accept();
}

void PlotView::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return QWidget::mousePressEvent(event);
    handIsDown_ = true;
    handAt_ = event->pos();
    setCursor(Qt::ClosedHandCursor);
}

void PlotView::mouseMoveEvent(QMouseEvent* event) {
    if (handIsDown_) {
        moveBy(event->pos() - handAt_);
        handAt_ = event->pos();
        return;
    }
    if (!placeAt) return;
    const auto [coordinates, point] = placeAt(toSurface(event->position()), kReach / sight_.scale);
    emit pointedAt(coordinates);
    QToolTip::showText(event->globalPosition().toPoint(), point, this);
}

void PlotView::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    handIsDown_ = false;
    setCursor(Qt::CrossCursor);
}

void PlotView::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) showAll();
}

void PlotView::leaveEvent(QEvent*) {
    emit pointedAt(QString());
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
    if (savePicture(shown_, path)) {
        emit saved(path, leftOutNote(shown_.pointsLeftOut));
    } else {
        emit saveFailed(path);
    }
}

}  // namespace kelvo::desktop
