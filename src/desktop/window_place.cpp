#include "desktop/window_place.h"

#include <QEvent>
#include <QWindow>

namespace kelvo::desktop {

namespace {

constexpr const char* kPlace = "place";

}  // namespace

WindowPlace::WindowPlace(QWidget& window) : window_(window) {
    window_.installEventFilter(this);
}

void WindowPlace::put(const QRect& frame) {
    window_.move(frame.topLeft());
    window_.resize(frame.size());
    frame_ = frame.size();
    without_ = window_.size();
    fitFrame();
}

void WindowPlace::fitFrame() {
    if (frame_.isEmpty() || window_.windowHandle() == nullptr || !window_.isVisible()) return;
    // Somebody has given it another size meanwhile.
    if (window_.size() != without_) {
        frame_ = QSize();
        return;
    }
    const QMargins margins = window_.windowHandle()->frameMargins();
    if (margins.isNull()) return;
    const QSize inner = frame_.shrunkBy(margins);
    frame_ = QSize();
    window_.resize(inner);
}

bool WindowPlace::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
        case QEvent::Show:
        case QEvent::Move:
        case QEvent::WindowActivate:
        case QEvent::UpdateRequest:
            fitFrame();
            break;
        default:
            break;
    }
    return QObject::eventFilter(watched, event);
}

void WindowPlace::restore(const QSettings& settings) {
    const QByteArray place = settings.value(QLatin1String(kPlace)).toByteArray();
    if (!place.isEmpty() && window_.restoreGeometry(place)) frame_ = QSize();
}

void WindowPlace::remember(QSettings& settings) const {
    settings.setValue(QLatin1String(kPlace), window_.saveGeometry());
}

}  // namespace kelvo::desktop
