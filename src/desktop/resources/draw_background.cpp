// draw_background FILE.png: draws the window's background, a survey grid over a quiet landscape.
// The picture in this folder was made by it; build the target draw_background to make it again.
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <array>
#include <cmath>
#include <numbers>

namespace {

constexpr int kWidth = 877;
constexpr int kHeight = 647;

struct Ridge {
    double base;
    double height;
    double wave;
    double phase;
    QColor colour;
};

double ridgeAt(const Ridge& ridge, double x) {
    const double t = x / kWidth * 2 * std::numbers::pi;
    const double shape = 0.55 * std::sin(ridge.wave * t + ridge.phase) +
                         0.28 * std::sin(2.3 * ridge.wave * t + 1.7 * ridge.phase) +
                         0.10 * std::sin(5.1 * ridge.wave * t + 0.6 * ridge.phase);
    return ridge.base - ridge.height * shape;
}

void drawRidges(QPainter& painter) {
    const std::array<Ridge, 5> ridges{{{330, 46, 0.9, 0.4, QColor(0xDC, 0xE6, 0xEA)},
                                       {385, 52, 1.2, 2.1, QColor(0xD0, 0xDE, 0xE2)},
                                       {440, 44, 0.8, 4.0, QColor(0xC4, 0xD6, 0xD8)},
                                       {505, 40, 1.5, 1.2, QColor(0xB8, 0xCD, 0xCC)},
                                       {580, 34, 1.1, 5.2, QColor(0xAC, 0xC3, 0xBE)}}};
    for (const Ridge& ridge : ridges) {
        QPainterPath path(QPointF(0, kHeight));
        for (int x = 0; x <= kWidth; x += 3) path.lineTo(x, ridgeAt(ridge, x));
        path.lineTo(kWidth, kHeight);
        path.closeSubpath();
        painter.fillPath(path, ridge.colour);
    }
}

void drawGrid(QPainter& painter) {
    for (int line = 0; line * 40 <= kWidth; ++line) {
        painter.setPen(
            QPen(QColor(60, 90, 110, line % 5 == 0 ? 52 : 24), line % 5 == 0 ? 1.2 : 0.8));
        painter.drawLine(QPointF(line * 40 + 0.5, 0), QPointF(line * 40 + 0.5, kHeight));
        painter.drawLine(QPointF(0, line * 40 + 0.5), QPointF(kWidth, line * 40 + 0.5));
    }
}

// Known points on the ridges, joined to a chain of triangles.
void drawNetwork(QPainter& painter) {
    const std::array<QPointF, 7> points{
        {{118, 372}, {262, 302}, {318, 452}, {468, 352}, {560, 478}, {688, 330}, {792, 446}}};
    painter.setPen(QPen(QColor(70, 100, 120, 90), 1));
    for (std::size_t at = 0; at + 1 < points.size(); ++at) {
        painter.drawLine(points[at], points[at + 1]);
        if (at + 2 < points.size()) painter.drawLine(points[at], points[at + 2]);
    }
    for (const QPointF& point : points) {
        QPainterPath triangle(point + QPointF(0, -9));
        triangle.lineTo(point + QPointF(8, 5));
        triangle.lineTo(point + QPointF(-8, 5));
        triangle.closeSubpath();
        painter.setPen(QPen(QColor(50, 84, 106, 170), 1.4));
        painter.setBrush(QColor(0xF4, 0xF7, 0xF8));
        painter.drawPath(triangle);
        painter.setBrush(QColor(50, 84, 106, 190));
        painter.setPen(Qt::NoPen);
        painter.drawEllipse(point, 1.7, 1.7);
    }
}

}  // namespace

int main(int argc, char** argv) {
    QGuiApplication application(argc, argv);
    if (argc != 2) return 2;
    QImage image(kWidth, kHeight, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    QLinearGradient sky(0, 0, 0, kHeight);
    sky.setColorAt(0, QColor(0xEA, 0xF0, 0xF4));
    sky.setColorAt(0.55, QColor(0xF6, 0xF6, 0xF1));
    sky.setColorAt(1, QColor(0xF1, 0xF3, 0xEE));
    painter.fillRect(image.rect(), sky);
    drawRidges(painter);
    drawGrid(painter);
    drawNetwork(painter);
    painter.end();
    return image.save(QString::fromLocal8Bit(argv[1])) ? 0 : 1;
}
