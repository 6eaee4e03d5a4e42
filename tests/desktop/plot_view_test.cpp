// The plot on the screen: looking closer, moving about, pointing, saving.
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QFile>
#include <QImage>
#include <QMenu>
#include <QPainter>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
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

    void theKeysMagnifyMoveAndShowTheWhole() {
        PlotView& plot = shownPlot();
        QTest::keyClick(&plot, Qt::Key_Plus);
        QTest::keyClick(&plot, Qt::Key_Equal);
        QVERIFY(qFuzzyCompare(plot.magnification(), 1.25 * 1.25));
        QTest::keyClick(&plot, Qt::Key_Minus);
        QVERIFY(qFuzzyCompare(plot.magnification(), 1.25));
        turnWheel(plot, QPointF(plot.width() / 2.0, plot.height() / 2.0), 6);
        const QPointF held = plot.toSurface(QPointF(100, 100));
        // An arrow looks that way, so the picture goes the other way.
        const auto movedBy = [&](Qt::Key arrow) {
            const QPointF before = plot.toWidget(held);
            QTest::keyClick(&plot, arrow);
            return plot.toWidget(held) - before;
        };
        const QPointF left = movedBy(Qt::Key_Left);
        QVERIFY(left.x() > 1 && qAbs(left.y()) < 0.01);
        const QPointF right = movedBy(Qt::Key_Right);
        QVERIFY(qAbs(right.x() + left.x()) < 0.01 && qAbs(right.y()) < 0.01);
        const QPointF up = movedBy(Qt::Key_Up);
        QVERIFY(up.y() > 1 && qAbs(up.x()) < 0.01);
        const QPointF down = movedBy(Qt::Key_Down);
        QVERIFY(qAbs(down.y() + up.y()) < 0.01 && qAbs(down.x()) < 0.01);
        QTest::keyClick(&plot, Qt::Key_Home);
        QVERIFY(qFuzzyCompare(plot.magnification(), 1.0));
    }

    void aDoubleClickShowsTheWhole() {
        PlotView& plot = shownPlot();
        turnWheel(plot, QPointF(100, 100), 4);
        QTest::mouseDClick(&plot, Qt::RightButton, {}, QPoint(100, 100));
        QVERIFY(plot.magnification() > 2);
        QTest::mouseDClick(&plot, Qt::LeftButton, {}, QPoint(100, 100));
        QVERIFY(qFuzzyCompare(plot.magnification(), 1.0));
    }

    void theWholeIsCopiedHoweverCloseOneLooks() {
        PlotView& plot = shownPlot();
        const auto copied = [&plot] {
            QGuiApplication::clipboard()->clear();
            QTest::keyClick(&plot, Qt::Key_C, Qt::ControlModifier);
            return QGuiApplication::clipboard()->image();
        };
        const QImage whole = copied();
        QVERIFY(whole.width() > plot.width());
        QImage empty = whole;
        empty.fill(Qt::white);
        QVERIFY(whole != empty);
        turnWheel(plot, QPointF(100, 100), 6);
        QCOMPARE(copied(), whole);
    }

    void thePictureIsSavedUnderTheNameGiven() {
        PlotView& plot = shownPlot();
        const std::string named = folder_->file("a.svg");
        hands_->dialogResults = {named, folder_->file("bare")};
        QTest::keyClick(&plot, Qt::Key_S, Qt::ControlModifier);
        QVERIFY(readBytes(named).starts_with("<?xml"));
        QCOMPARE(said_, QStringLiteral("그림을 저장했습니다: ") + qtText(named));
        QTest::keyClick(&plot, Qt::Key_S, Qt::ControlModifier);
        QVERIFY(readBytes(folder_->file("bare.png")).starts_with("\x89PNG"));
    }

    void aPictureThatCannotBeSavedIsTold() {
        PlotView& plot = shownPlot();
        const std::string unknown = folder_->file("a.bmp");
        hands_->dialogResults = {unknown};
        QTest::keyClick(&plot, Qt::Key_S, Qt::ControlModifier);
        const std::string& box = hands_->lines.back();
        QVERIFY2(box.find("a.bmp 파일을 저장할 수 없습니다.") != std::string::npos, box.c_str());
        QVERIFY(!QFile::exists(qtText(unknown)));
        // Giving up says nothing.
        const std::size_t lines = hands_->lines.size();
        QTest::keyClick(&plot, Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(hands_->lines.size(), lines + 1);
        QVERIFY(hands_->lines.back().starts_with("dialog|save|"));
    }

    void theMenuOfThePictureOffersSavingCopyingAndTheWhole() {
        PlotView& plot = shownPlot();
        turnWheel(plot, QPointF(100, 100), 4);
        QStringList offered;
        QTimer::singleShot(0, &plot, [&offered] {
            auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            QVERIFY(menu != nullptr);
            for (const QAction* action : menu->actions()) offered << action->text();
            menu->setActiveAction(menu->actions().last());
            QTest::keyClick(menu, Qt::Key_Return);
        });
        QContextMenuEvent asked(QContextMenuEvent::Mouse, {50, 50},
                                plot.mapToGlobal(QPoint(50, 50)));
        QApplication::sendEvent(&plot, &asked);
        const QStringList expected{QStringLiteral("그림을 파일로 저장(&S)..."),
                                   QStringLiteral("그림 복사(&C)"), QString(),
                                   QStringLiteral("모두 보기(&A)")};
        QCOMPARE(offered, expected);
        QVERIFY(qFuzzyCompare(plot.magnification(), 1.0));
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
