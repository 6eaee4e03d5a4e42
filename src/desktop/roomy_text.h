// The text of a panel that scrolls: as large as its room allows, up to three quarters more than the
// text of the application, and the rows spread over what is left.
#pragma once

#include <QObject>
#include <QScrollArea>
#include <functional>

namespace kelvo::desktop {

class RoomyText final : public QObject {
    Q_OBJECT

public:
    // `needed` is the size, in pixels, that the panel needs with the text it has now.
    RoomyText(QScrollArea& scroll, std::function<QSize()> needed);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void fit();
    static void spreadRows(QWidget& content, QSize room);

    QScrollArea& scroll_;
    std::function<QSize()> needed_;
    QSize neededPlain_;     // with the text of the application
    double plainSize_ = 0;  // of that text, in points
};

}  // namespace kelvo::desktop
