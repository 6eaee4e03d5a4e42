#include "desktop/roomy_text.h"

#include <QApplication>
#include <QEvent>
#include <QGridLayout>
#include <algorithm>
#include <cmath>
#include <utility>

#include "desktop/box_grid.h"

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
        content->layout()->activate();
        neededPlain_ = needed_();
        plainSize_ = plain;
    }
    const QSize room = scroll_.viewport()->size();
    const double fits = std::min(double(room.width()) / std::max(1, neededPlain_.width()),
                                 double(room.height()) / std::max(1, neededPlain_.height()));
    const double times = std::clamp(std::floor(fits * kSteps) / kSteps, 1.0, kMostTimes);
    if (content->font().pointSizeF() != plain * times) {
        QFont font;
        if (times > 1) font.setPointSizeF(plain * times);
        content->setFont(font);
    }
    spreadRows(*content, room);
}

// What height is still left goes between the rows, as far as that helps the eye.
void RoomyText::spreadRows(QWidget& content, QSize room) {
    const QList<QGridLayout*> grids = content.findChildren<QGridLayout*>();
    const auto heightWith = [&](int spacing) {
        // The inner ones first: each makes only the layout around it forget its sizes.
        for (auto grid = grids.rbegin(); grid != grids.rend(); ++grid) {
            (*grid)->setVerticalSpacing(spacing);
            (*grid)->parentWidget()->updateGeometry();
        }
        content.layout()->activate();
        return content.heightForWidth(room.width());
    };
    const int tight = heightWith(BoxGrid::kRowSpacing);
    const int perPixel = heightWith(BoxGrid::kRowSpacing + 1) - tight;
    const int most = content.fontMetrics().height() * 2 / 3;
    const int more = perPixel <= 0 ? 0 : std::clamp((room.height() - tight) / perPixel, 0, most);
    heightWith(BoxGrid::kRowSpacing + more);
}

}  // namespace kelvo::desktop
