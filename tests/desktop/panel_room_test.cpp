// The one-point panel in small and in large windows.
#include <QApplication>
#include <QLineEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>

#include "desktop/window_case.h"
#include "desktop/window_tests.h"

using namespace kelvo;
using namespace kelvo::testing;

class PanelRoomTest final : public WindowCase {
    Q_OBJECT

private slots:
    void cleanup() {
        desktop::setTextPercent(*qApp, 100);
        WindowCase::cleanup();
    }

    // The windows' shares of screens of 800 x 600 at scale 1 and 1.5.
    void aSmallWindowScrollsUpAndDownOnly() {
        hands_->click("mnuOneOpen");
        for (const QSize size : {QSize(704, 528), QSize(469, 352)}) {
            give(size);
            QCOMPARE(scroll().horizontalScrollBar()->maximum(), 0);
            QVERIFY(scroll().verticalScrollBar()->maximum() > 0);
        }
    }

    void theFramesOfASmallWindowStandBelowEachOtherAndNeverOverlap() {
        hands_->click("mnuOneOpen");
        const std::vector<const char*> frames{"frmeWGS", "Frame2", "Frame3", "Frame13", "Frame4",
                                              "Frame10", "Frame8", "Frame5", "Frame14"};
        for (const QSize size : {QSize(469, 352), QSize(704, 528), QSize(1202, 676)}) {
            give(size);
            for (std::size_t one = 0; one < frames.size(); ++one) {
                for (std::size_t other = 0; other < one; ++other) {
                    QVERIFY2(!placeOf(frames[one]).intersects(placeOf(frames[other])), frames[one]);
                }
            }
        }
    }

    void aLargeWindowEnlargesTheTextAndScrollsNothing() {
        hands_->click("mnuOneOpen");
        const double plain = QApplication::font().pointSizeF();
        give(QSize(1202, 676));
        QCOMPARE(sizeOf("txtX"), plain);
        give(QSize(2253, 1267));
        QVERIFY(sizeOf("txtX") > 1.5 * plain);
        QCOMPARE(scroll().horizontalScrollBar()->maximum(), 0);
        QCOMPARE(scroll().verticalScrollBar()->maximum(), 0);
        QVERIFY(placeOf("Frame14").bottom() * 4 > scroll().viewport()->height() * 3);
        give(QSize(1202, 676));
        QCOMPARE(sizeOf("txtX"), plain);
    }

    void theNumbersFollowTheTextSizeOfTheInterface() {
        hands_->click("mnuOneOpen");
        give(QSize(1202, 676));
        const double plain = QApplication::font().pointSizeF();
        desktop::setTextPercent(*qApp, 135);
        QTRY_COMPARE(sizeOf("txtX"), plain * 1.35);
        const auto* box = hands_->widget<QLineEdit>("txta");
        QVERIFY(box->width() > box->fontMetrics().horizontalAdvance(box->text()));
    }

private:
    void give(const QSize& size) {
        window_->resize(size);
        QTest::qWait(0);
        QApplication::processEvents();
    }

    [[nodiscard]] QScrollArea& scroll() const {
        return *window_->book().at("frmeOne")->findChild<QScrollArea*>();
    }

    [[nodiscard]] double sizeOf(const char* name) const {
        return window_->book().at(name)->font().pointSizeF();
    }

    [[nodiscard]] QRect placeOf(const char* name) const {
        const QWidget* frame = window_->book().at(name);
        return {frame->mapTo(scroll().widget(), QPoint()), frame->size()};
    }
};

std::unique_ptr<QObject> kelvo::testing::panelRoomTest() {
    return std::make_unique<PanelRoomTest>();
}

#include "panel_room_test.moc"
