// Who has the keyboard, and what Tab, Enter and Esc do.
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QSet>
#include <QTest>
#include <QTimer>
#include <QWheelEvent>

#include "desktop/window_case.h"
#include "desktop/window_tests.h"

using namespace kelvo;
using namespace kelvo::testing;
using desktop::MainWindow;

class KeyboardTest final : public WindowCase {
    Q_OBJECT

private slots:
    void theWheelOverAListOrBoxWithoutFocusChangesNothing() {
        hands_->click("mnuOneOpen");
        hands_->choose("cmb7Para", 1);
        window_->book().at("txta")->setFocus(Qt::TabFocusReason);
        for (const char* name : {"cmb7Para", "txtdX", "txtWdmsPhi"}) {
            QWidget* widget = window_->book().at(name);
            QWheelEvent wheel(QPointF(4, 4), widget->mapToGlobal(QPointF(4, 4)), QPoint(),
                              QPoint(0, -120), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                              false);
            QApplication::sendEvent(widget, &wheel);
        }
        QCOMPARE(form().find("cmb7Para")->index(), 1);
        QCOMPARE(focused(), QStringLiteral("txta"));
    }

    void enteringABoxSelectsItsTextByTabAndByMouse() {
        hands_->click("mnuOneOpen");
        auto* box = hands_->widget<QLineEdit>("txta");
        box->setFocus(Qt::TabFocusReason);
        QCOMPARE(box->selectedText(), box->text());
        hands_->widget<QLineEdit>("txtf")->setFocus(Qt::TabFocusReason);
        QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2));
        QCOMPARE(box->selectedText(), box->text());
    }

    // The boxes of the first adjustment have no such handler, and that difference is required.
    void enteringAFirstAdjustmentSelectsNothing() {
        hands_->click("mnuOneOpen");
        auto* box = hands_->widget<QLineEdit>("txtdPhi");
        QVERIFY(!box->text().isEmpty());
        box->setFocus(Qt::TabFocusReason);
        QVERIFY(box->selectedText().isEmpty());
    }

    void tabWalksAlongTheChainOfFrames() {
        hands_->click("mnuOneOpen");
        hands_->click("optWdms");
        hands_->click("optBdms");
        auto* start = hands_->widget<QLineEdit>("txtWdmsPhi");
        start->setFocus(Qt::TabFocusReason);
        QStringList walk;
        for (int step = 0; step < 8; ++step) {
            walk << QApplication::focusWidget()->objectName();
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        const QStringList expected{"txtWdmsPhi", "txtWdmsLam", "txtWdmsTH", "txtwGeoid",
                                   "txtwH",      "cmdW2B",     "cmdB2W",    "optBdms"};
        QCOMPARE(walk, expected);
    }

    void altAndF10LeadIntoTheMenuBar() {
        hands_->click("mnuOneOpen");
        QMenuBar* bar = window_->menuBar();
        QTest::keyClick(keyTarget(), Qt::Key_F10);
        QVERIFY(bar->activeAction() == bar->actions().first());
        QTest::keyClick(keyTarget(), Qt::Key_Escape);
        QVERIFY(bar->activeAction() == nullptr);
        QCOMPARE(focused(), QStringLiteral("txtWdmsPhi"));
        QTest::keyPress(keyTarget(), Qt::Key_Alt, Qt::AltModifier);
        QTest::keyRelease(keyTarget(), Qt::Key_Alt);
        QVERIFY(bar->activeAction() == bar->actions().first());
        QTest::keyPress(keyTarget(), Qt::Key_Alt, Qt::AltModifier);
        QTest::keyRelease(keyTarget(), Qt::Key_Alt);
        QVERIFY(bar->activeAction() == nullptr);
        QCOMPARE(focused(), QStringLiteral("txtWdmsPhi"));
    }

    void eachPanelTakesTheFocusWhenShownAndGivesItBack() {
        hands_->click("mnuOneOpen");
        QCOMPARE(focused(), QStringLiteral("txtWdmsPhi"));
        hands_->widget<QLineEdit>("txtBdmsLam")->setFocus(Qt::TabFocusReason);
        hands_->click("mnuPrintMode");
        QVERIFY(window_->book().at("frmePrintMode")->isAncestorOf(QApplication::focusWidget()));
        hands_->click("cmdModeCancel");
        QCOMPARE(focused(), QStringLiteral("txtBdmsLam"));
        hands_->click("mnuBatchEdit");
        QCOMPARE(focused(), QStringLiteral("Richtxt"));
        hands_->click("cmdClose");
        QCOMPARE(focused(), QStringLiteral("txtBdmsLam"));
    }

    void noKeyReachesWhatAPanelCovers() {
        hands_->click("mnuBatchGo");
        const std::string result = readBytes(folder_->file("data/test.out"));
        QVERIFY(!result.empty());
        hands_->click("mnuOneOpen");
        window_->book().at("cmdW2B")->setFocus(Qt::TabFocusReason);
        hands_->click("mnuBatchEdit");
        QTest::keyClick(keyTarget(), Qt::Key_Tab);  // a text takes Tab as a letter
        QTest::keyClick(keyTarget(), Qt::Key_Space);
        QVERIFY(readBytes(folder_->file("data/test.out")) == result);
        QSet<QWidget*> walked;
        window_->book().at("cmdClose")->setFocus(Qt::TabFocusReason);
        while (!walked.contains(QApplication::focusWidget())) {
            walked << QApplication::focusWidget();
            QVERIFY2(!window_->book().at("frmeOne")->isAncestorOf(QApplication::focusWidget()),
                     qPrintable(focused()));
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab, Qt::ControlModifier);
            if (focused() == QStringLiteral("Richtxt")) break;
        }
    }

    void typingOverThePrintModeLeavesTheTextBehindItAlone() {
        hands_->click("mnuBatchEdit");
        const std::string before = window_->book().viewer()->text();
        hands_->click("mnuPrintMode");
        for (int press = 0; press < 12; ++press) {
            QTest::keyClicks(keyTarget(), QStringLiteral("7"));
            QTest::keyClick(keyTarget(), Qt::Key_Tab);
        }
        QVERIFY(window_->book().viewer()->text() == before);
        QVERIFY(window_->book().at("frmePrintMode")->isVisible());
    }

    void enterPressesTheButtonThatHasTheFocus() {
        hands_->click("mnuPrintMode");
        hands_->click("optFast");
        hands_->type("txtLmr", "7");
        window_->book().at("cmdModeCancel")->setFocus(Qt::TabFocusReason);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QVERIFY(!window_->book().at("frmePrintMode")->isVisible());
        hands_->click("mnuPrintMode");
        QCOMPARE(hands_->widget<QLineEdit>("txtLmr")->text(), QStringLiteral("0"));
    }

    void enterInAPlotBoxDraws() {
        hands_->click("mnuBatchGo");
        hands_->click("cmdShow");
        hands_->type("txtFontSize", "11");
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QVERIFY(readBytes(folder_->file("plot.cfg")).find(" 11 ") != std::string::npos);
    }

    void enterGoesOnFromBoxToBoxAndEscapeClosesTheOnePointPanel() {
        hands_->click("mnuOneOpen");
        QTest::keyClick(keyTarget(), Qt::Key_Return);
        QCOMPARE(focused(), QStringLiteral("txtWdmsLam"));
        QTest::keyClick(keyTarget(), Qt::Key_Escape);
        QVERIFY(!window_->book().at("frmeOne")->isVisible());
    }

    // Closing this panel stores its boxes, and one without a number would end the program.
    void escapeOverABoxThatHoldsNoNumberGoesThereInstead() {
        hands_->click("mnuOneOpen");
        hands_->type("txtdPhi", "");
        QTest::keyClick(keyTarget(), Qt::Key_Escape);
        QVERIFY(report_.isEmpty());
        QVERIFY(window_->book().at("frmeOne")->isVisible());
        QCOMPARE(focused(), QStringLiteral("txtdPhi"));
    }

    void escapeClosesATextUnlessThatWouldLoseWork() {
        hands_->click("mnuBatchEdit");
        QTest::keyClick(keyTarget(), Qt::Key_Escape);
        QVERIFY(!window_->book().at("frmeFile")->isVisible());
        hands_->click("mnuBatchEdit");
        QTest::keyClicks(keyTarget(), QStringLiteral("*"));
        QTest::keyClick(keyTarget(), Qt::Key_Escape);
        QVERIFY(window_->book().at("frmeFile")->isVisible());
    }

    void enterAndEscapeAnswerBoxes() {
        hands_.reset();  // which would answer them
        form().find("mnuFileItem")->setEntryEnabled(4, true);
        for (const auto& [key, appended] :
             {std::pair{Qt::Key_Escape, false}, std::pair{Qt::Key_Return, true}}) {
            QTimer::singleShot(0, window_.get(), [key = key] {
                QTRY_VERIFY(QApplication::activeModalWidget() != nullptr);
                QTest::keyClick(QApplication::activeModalWidget(), key);
            });
            window_->book().action("mnuPrintDetail")->trigger();
            QCOMPARE(QFile::exists(qtText(folder_->file("Kelvo.out"))), appended);
        }
    }

    void escapeLeavesThePrintModeAndEnterAcceptsIt() {
        hands_->click("mnuPrintMode");
        QWidget* panel = window_->book().at("frmePrintMode");
        QVERIFY(panel->isVisible());
        window_->book().at("cmbFont")->setFocus();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        QVERIFY(!panel->isVisible());
        hands_->click("mnuPrintMode");
        window_->book().at("txtLmr")->setFocus();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QVERIFY(!panel->isVisible());
    }
};

std::unique_ptr<QObject> kelvo::testing::keyboardTest() {
    return std::make_unique<KeyboardTest>();
}

#include "keyboard_test.moc"
