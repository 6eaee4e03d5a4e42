// The picture behind the panels: decoration, it holds no function.
#pragma once

#include <QPixmap>
#include <QWidget>

namespace kelvo::desktop {

class BackgroundPicture final : public QWidget {
public:
    explicit BackgroundPicture(QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QPixmap picture_;
};

}  // namespace kelvo::desktop
