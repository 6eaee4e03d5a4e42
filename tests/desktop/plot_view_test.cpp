// The plot on the screen: looking closer, moving about, pointing, saving.
#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QSignalSpy>
#include <QTest>
#include <QToolTip>
#include <QWheelEvent>

#include "desktop/picture_painter.h"
#include "desktop/plot_view.h"
#include "desktop/window_case.h"
#include "desktop/window_tests.h"

using namespace kelvo;
using namespace kelvo::testing;
using desktop::PlotView;

class PlotViewTest final : public WindowCase {
    Q_OBJECT

private slots:
    void theWheelMagnifiesAboutThePointerAndLeavesTheScaleAlone() {
        PlotView& plot = shownPlot();
        const std::string settings = readBytes(folder_->file("plot.cfg"));
        const std::string boxes = form().find("txtXb")->text() + form().find("txtSpan")->text();
        const QPointF pointer(100, 120);
        const QPointF under = plot.toSurface(pointer);
        turnWheel(plot, pointer, 4);
        QVERIFY(plot.magnification() > 2);
        QVERIFY(QLineF(plot.toWidget(under), pointer).length() < 0.01);
        turnWheel(plot, pointer, -20);
        QVERIFY(qFuzzyCompare(plot.magnification(), 1.0));
        QVERIFY(readBytes(folder_->file("plot.cfg")) == settings);
        QVERIFY(form().find("txtXb")->text() + form().find("txtSpan")->text() == boxes);
    }

    void theHandMovesThePicture() {
        PlotView& plot = shownPlot();
        turnWheel(plot, QPointF(plot.width() / 2.0, plot.height() / 2.0), 6);
        const QPointF held = plot.toSurface(QPointF(100, 100));
        QTest::mousePress(&plot, Qt::LeftButton, {}, QPoint(100, 100));
        QMouseEvent move(QEvent::MouseMove, QPointF(140, 90), plot.mapToGlobal(QPointF(140, 90)),
                         Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&plot, &move);
        QTest::mouseRelease(&plot, Qt::LeftButton, {}, QPoint(140, 90));
        QVERIFY(QLineF(plot.toWidget(held), QPointF(140, 90)).length() < 0.01);
        QTest::keyClick(&plot, Qt::Key_0);
        QVERIFY(qFuzzyCompare(plot.magnification(), 1.0));
    }

    void thePointerNamesPlaceAndPoint() {
        PlotView& plot = shownPlot();
        QSignalSpy places(&plot, &PlotView::pointedAt);
        const desktop::DrawnCircle* circle = nullptr;
        for (const desktop::DrawnItem& item : plot.surface().picture().items) {
            if (circle == nullptr) circle = std::get_if<desktop::DrawnCircle>(&item);
        }
        QVERIFY(circle != nullptr);
        const auto [coordinates, point] = plot.placeAt(circle->centre, 30);
        QVERIFY2(point.startsWith(QStringLiteral("인천No-3")), qPrintable(point));
        QTest::mouseMove(&plot, plot.toWidget(circle->centre).toPoint());
        QTRY_VERIFY(!places.isEmpty());
        QVERIFY(places.last().first().toString().startsWith(QStringLiteral("X 4")));
    }

    // What is seen while the picture moves is the last one, magnified; then comes the sharp one.
    void thePictureBecomesSharpWhenItRests() {
        PlotView& plot = shownPlot();
        turnWheel(plot, QPointF(200, 200), 3);
        const auto sharp = [&plot] {
            QImage image(plot.size(), QImage::Format_RGB32);
            image.fill(Qt::white);
            QPainter painter(&image);
            painter.translate(plot.toWidget({0, 0}));
            const double scale = QLineF(plot.toWidget({0, 0}), plot.toWidget({1, 0})).length();
            painter.scale(scale, scale);
            desktop::paintPicture(painter, plot.surface().picture(), desktop::Medium::Pixels);
            return image;
        };
        QTRY_COMPARE(plot.grab().toImage().convertToFormat(QImage::Format_RGB32), sharp());
    }

    void aNewPlotShowsTheWholeAgain() {
        PlotView& plot = shownPlot();
        turnWheel(plot, QPointF(200, 200), 5);
        hands_->click("cmdPlot");
        QVERIFY(qFuzzyCompare(plot.magnification(), 1.0));
    }

    void aWindowOfAnotherSizeStillShowsTheWhole() {
        PlotView& plot = shownPlot();
        window_->resize(1000, 500);
        QApplication::processEvents();
        QVERIFY(qFuzzyCompare(plot.magnification(), 1.0));
        window_->resize(600, 600);
        QApplication::processEvents();
        QVERIFY(qFuzzyCompare(plot.magnification(), 1.0));
    }

private:
    PlotView& shownPlot() {
        hands_->click("mnuBatchGo");
        hands_->click("cmdShow");
        PlotView& plot = *window_->book().plotView();
        QApplication::processEvents();
        return plot;
    }

    static void turnWheel(PlotView& plot, const QPointF& at, int steps) {
        QWheelEvent wheel(at, plot.mapToGlobal(at), QPoint(), QPoint(0, 120 * steps), Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&plot, &wheel);
    }
};

std::unique_ptr<QObject> kelvo::testing::plotViewTest() {
    return std::make_unique<PlotViewTest>();
}

#include "plot_view_test.moc"
