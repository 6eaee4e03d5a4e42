// The plot picture in the window: always white paper, sharp at any size. The wheel magnifies it
// about the pointer, the hand moves it; neither touches the scale that it was drawn with.
#pragma once

#include <QImage>
#include <QTimer>
#include <QWidget>
#include <functional>

#include "desktop/framed_picture.h"
#include "desktop/picture_surface.h"

namespace kelvo::desktop {

class PlotView final : public QWidget {
    Q_OBJECT

public:
    explicit PlotView(QWidget* parent = nullptr);

    [[nodiscard]] PictureSurface& surface() { return surface_; }

    // Takes over what was drawn on the surface since the last time, and shows the whole of it.
    void refresh();

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

    // Magnification 1 shows the whole picture.
    [[nodiscard]] double magnification() const;
    void magnify(double factor, const QPointF& about);
    void showAll();

    // Between the widget and the surface (twips).
    [[nodiscard]] QPointF toSurface(const QPointF& place) const;
    [[nodiscard]] QPointF toWidget(const QPointF& twips) const;

    // Paints the sharp picture of what is in sight at once; it comes by itself, too.
    void paintSharp();

    // Asks for a name and writes the picture there, the whole of it.
    void saveAs();
    void copy();

    // Texts for a place of the surface: the second one names a point near by.
    std::function<std::pair<QString, QString>(QPointF twips, double reach)> placeAt;

signals:
    void saved(const QString& path, const QString& note);
    void saveFailed(const QString& path);
    void pointedAt(const QString& coordinates);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    // What part of the surface the widget shows: its middle, and pixels to the twip.
    struct Sight {
        QPointF middle;
        double scale = 1;
        bool operator==(const Sight&) const = default;
    };

    [[nodiscard]] double scaleOfAll() const;
    void look(const Sight& sight);
    void moveBy(const QPointF& pixels);
    void startTiles();
    void paintTile();
    void paintOn(QImage& image, const QRect& tile) const;
    [[nodiscard]] QImage emptyImage() const;
    [[nodiscard]] QImage wholePicture() const;

    PictureSurface surface_;
    unsigned takenRevision_ = 0;
    FramedPicture shown_;
    Sight sight_;
    bool seesAll_ = true;  // also when the window gets another size
    QImage image_;
    Sight imageSight_;
    // After the last movement the picture is painted sharp, tile by tile: with thousands of
    // points in sight all of it at once would hold up the next movement.
    QTimer rest_;
    QTimer nextTile_;
    QImage coming_;
    int tile_ = 0;
    QPoint handAt_;
    bool handIsDown_ = false;
};

}  // namespace kelvo::desktop
