#include "desktop/roomy_text.h"

#include <QApplication>
#include <QEvent>
#include <algorithm>
#include <cmath>
#include <utility>

namespace kelvo::desktop {

namespace {

constexpr double kMostTimes = 1.75;
constexpr double kSteps = 10;  // in steps of a tenth: not another size with each pixel

}  // namespace

RoomyText::RoomyText(QScrollArea& scroll, std::function<QSize()> needed)
    : QObject(&scroll), scroll_(scroll), needed_(std::move(needed)) {
    scroll.viewport()->installEventFilter(this);
}

bool RoomyText::eventFilter(QObject* watched, QEvent* event) {
    const bool concerns = event->type() == QEvent::Resize || event->type() == QEvent::Show ||
                          event->type() == QEvent::ApplicationFontChange;
    // Later: a size given to the text within its layout's own event would be lost.
    if (concerns) QMetaObject::invokeMethod(this, &RoomyText::fit, Qt::QueuedConnection);
    return QObject::eventFilter(watched, event);
}

void RoomyText::fit() {
    QWidget* content = scroll_.widget();
    if (content == nullptr || !scroll_.isVisible()) return;
    const double plain = QApplication::font().pointSizeF();
    if (plain != plainSize_) {
        content->setFont(QFont());
        neededPlain_ = needed_();
        plainSize_ = plain;
    }
    const QSize room = scroll_.viewport()->size();
    const double fits = std::min(double(room.width()) / std::max(1, neededPlain_.width()),
                                 double(room.height()) / std::max(1, neededPlain_.height()));
    const double times = std::clamp(std::floor(fits * kSteps) / kSteps, 1.0, kMostTimes);
    if (content->font().pointSizeF() == plain * times) return;
    QFont font;
    if (times > 1) font.setPointSizeF(plain * times);
    content->setFont(font);
}

}  // namespace kelvo::desktop
