#include "desktop/framed_picture.h"

#include "desktop/picture_painter.h"

namespace kelvo::desktop {

namespace {

// A plot is 137 mm wide and, with its two lines of text, about 162 mm high.
constexpr QRectF kPage(0, 0, 8100, 9450);
constexpr double kMargin = 200;  // twips

bool isShown(const DrawnItem& item, const QRectF& extent, const QRectF& reach) {
    const auto* text = std::get_if<DrawnText>(&item);
    return text != nullptr ? reach.contains(text->corner) : reach.contains(extent);
}

}  // namespace

FramedPicture framed(const PlotPicture& picture) {
    const QRectF reach =
        kPage.adjusted(-kPage.width(), -kPage.height(), kPage.width(), kPage.height());
    FramedPicture shown;
    shown.picture.paper = picture.paper;
    shown.picture.looks = picture.looks;
    shown.picture.items.reserve(picture.items.size());
    const PictureExtent extentOfItem(picture);
    QRectF all;
    for (const DrawnItem& item : picture.items) {
        const QRectF extent = extentOfItem(item);
        if (isShown(item, extent, reach)) {
            shown.picture.items.push_back(item);
            shown.extents.push_back(extent);
            all |= extent;
        } else if (std::holds_alternative<DrawnCircle>(item)) {
            ++shown.pointsLeftOut;
        }
    }
    if (all.isEmpty()) all |= kPage;
    shown.frame = all.adjusted(-kMargin, -kMargin, kMargin, kMargin);
    return shown;
}

void paintPart(QPainter& painter, const FramedPicture& shown, const QRectF& part) {
    if (part.contains(shown.frame)) return paintPicture(painter, shown.picture, Medium::Pixels);
    PlotPicture visible;
    visible.paper = shown.picture.paper;
    visible.looks = shown.picture.looks;
    for (std::size_t at = 0; at < shown.extents.size(); ++at) {
        if (part.intersects(shown.extents[at])) visible.items.push_back(shown.picture.items[at]);
    }
    paintPicture(painter, visible, Medium::Pixels);
}

QString leftOutNote(int points) {
    if (points == 0) return {};
    return QStringLiteral("멀리 떨어진 점 %1개는 그림에 들어 있지 않습니다").arg(points);
}

}  // namespace kelvo::desktop
