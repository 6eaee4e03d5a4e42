// Where the window stands: as the form says on the first start, then as its user left it.
#pragma once

#include <QRect>
#include <QSettings>
#include <QWidget>

namespace kelvo::desktop {

class WindowPlace final : public QObject {
public:
    explicit WindowPlace(QWidget& window);

    // Puts the frame of the window, title bar included, into this rectangle of the screen. How
    // wide the frame is may be known only after the window has been shown.
    void put(const QRect& frame);

    // The place that was remembered takes the place of the one put; nothing on a first start.
    void restore(const QSettings& settings);
    void remember(QSettings& settings) const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void fitFrame();

    QWidget& window_;
    QSize frame_;    // what the window with its frame is to measure; empty when nothing waits
    QSize without_;  // what it measures until then
};

}  // namespace kelvo::desktop
