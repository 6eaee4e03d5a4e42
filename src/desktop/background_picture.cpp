#include "desktop/background_picture.h"

#include <QPainter>

namespace kelvo::desktop {

BackgroundPicture::BackgroundPicture(QWidget* parent)
    : QWidget(parent), picture_(QStringLiteral(":/kelvo/background.png")) {}

// From the top left corner on, scaled so that it covers the window.
void BackgroundPicture::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), palette().window());
    if (picture_.isNull()) return;
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const QSizeF covering = QSizeF(picture_.size()).scaled(size(), Qt::KeepAspectRatioByExpanding);
    const bool dark = palette().window().color().lightness() < 128;
    painter.setOpacity(dark ? 0.25 : 1.0);
    painter.drawPixmap(QRectF(QPointF(0, 0), covering), picture_, QRectF(picture_.rect()));
}

}  // namespace kelvo::desktop
