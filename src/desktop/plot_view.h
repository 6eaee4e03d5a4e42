// The plot picture in the window: always white paper, sharp at any size, to be saved as a file
// from its context menu.
#pragma once

#include <QImage>
#include <QWidget>

#include "desktop/picture_surface.h"

namespace kelvo::desktop {

class PlotView final : public QWidget {
    Q_OBJECT

public:
    explicit PlotView(QWidget* parent = nullptr);

    [[nodiscard]] PictureSurface& surface() { return surface_; }

    // Paints the surface anew if it was drawn on.
    void refresh();

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

    // Asks for a name and writes the picture there.
    void saveAs();

signals:
    void saveFailed(const QString& path);

protected:
    void paintEvent(QPaintEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void render();

    PictureSurface surface_;
    QImage image_;
    unsigned drawnRevision_ = 0;
};

}  // namespace kelvo::desktop
