// The window as a person meets it, without a screen.
#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDir>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QTest>
#include <QTimer>
#include <fstream>
#include <iterator>
#include <memory>

#include "common/application_folder.h"
#include "common/code_page.h"
#include "desktop/look_of_window.h"
#include "desktop/main_window.h"
#include "desktop/text_viewer.h"
#include "desktop/window_hands.h"
#include "support/temporary_folder.h"

using namespace kelvo;
using namespace kelvo::testing;
using desktop::MainWindow;

namespace {

QString qtText(const std::string& text) {
    return QString::fromStdString(text);
}

std::string readBytes(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

// What a widget shows as its caption, the way a person would read it.
QString captionOf(const QWidget* widget) {
    if (const auto* button = qobject_cast<const QAbstractButton*>(widget)) return button->text();
    if (const auto* box = qobject_cast<const QGroupBox*>(widget)) return box->title();
    if (const auto* label = qobject_cast<const QLabel*>(widget)) return label->text();
    return widget->property("caption").toString();
}

}  // namespace

class WindowTest : public QObject {
    Q_OBJECT

private slots:
    void init() {
        folder_ = std::make_unique<TemporaryFolder>();
        makeApplicationFolder(folder_->path());
        window_ = std::make_unique<MainWindow>(folder_->path());
        window_->onFaultReport = [this](const QString& report) { report_ = report; };
        window_->onSheets = [this](std::vector<desktop::Sheet> sheets) {
            sheets_ = std::move(sheets);
        };
        hands_ = std::make_unique<WindowHands>(*window_);
        window_->book().onSay = [this](const QString& text) { said_ = text; };
        report_.clear();
        sheets_.clear();
        QVERIFY(window_->start());
        window_->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(window_.get()));
    }

    void cleanup() {
        hands_.reset();
        window_.reset();
        folder_.reset();
    }

    void everyControlHasAWidgetUnderItsName() {
        for (const Control& control : form().controls()) {
            const QString name = qtText(control.name());
            switch (control.kind()) {
                case ControlKind::Window:
                    QCOMPARE(window_->objectName(), name);
                    QCOMPARE(window_->windowTitle(), qtText(control.caption()));
                    continue;
                case ControlKind::MenuItem:
                case ControlKind::Menu: {
                    const QAction* action = window_->book().action(control.name());
                    QVERIFY2(action != nullptr, qPrintable(name));
                    QCOMPARE(action->isEnabled(), control.enabled());
                    if (!action->isSeparator()) QCOMPARE(action->text(), qtText(control.caption()));
                    continue;
                }
                case ControlKind::MenuArray: {
                    const auto entries = window_->book().action("mnuFile")->menu()->actions();
                    QCOMPARE(static_cast<int>(entries.size()), control.highestIndex() + 1);
                    continue;
                }
                default:
                    break;
            }
            const QWidget* widget = window_->findChild<QWidget*>(name);
            QVERIFY2(widget != nullptr, qPrintable(name));
            QCOMPARE(widget->accessibleDescription(), name);
            QVERIFY2(widget->isEnabledTo(widget->parentWidget()) == control.enabled(),
                     qPrintable(name));
            if (!control.label().empty()) {
                QCOMPARE(widget->accessibleName(), qtText(control.label()));
            }
            if (const auto* box = qobject_cast<const QLineEdit*>(widget)) {
                QCOMPARE(box->text(), qtText(control.text()));
            } else if (control.caption() == "->") {
                QCOMPARE(captionOf(widget), QStringLiteral("→"));
            } else if (control.caption() == "<-") {
                QCOMPARE(captionOf(widget), QStringLiteral("←"));
            } else if (!control.caption().empty()) {
                QCOMPARE(captionOf(widget), qtText(control.caption()));
            }
        }
    }

    // The frame, so that the title bar is on the screen; 0.88 of the screen are the frame's, too.
    void theFrameStandsInTheScreensCorner() {
        const Control* window = form().find("frmKelvo");
        QCOMPARE(window_->frameGeometry().topLeft(), QPoint(0, 0));
        QVERIFY(window_->geometry().top() > 0);  // this platform's frames have a title bar
        QCOMPARE(window_->frameGeometry().size(),
                 QSize(qRound(window->width() / 15), qRound(window->height() / 15)));
    }

    void theWindowComesBackWhereItWasLeft() {
        window_->resize(640, 500);
        window_->move(60, 70);
        QApplication::processEvents();
        const QRect left = window_->frameGeometry();
        window_->close();
        MainWindow next(folder_->path());
        QVERIFY(next.start());
        QCOMPARE(next.frameGeometry(), left);
    }

    // Every widget lies in the widget of its control's parent, so that panels hide as a whole.
    void everyControlLiesInItsParent() {
        for (const Control& control : form().controls()) {
            const QWidget* widget = window_->book().find(control.name());
            const QWidget* parent = window_->book().find(control.parent());
            if (widget == nullptr || parent == nullptr) continue;
            QVERIFY2(parent->isAncestorOf(widget), qPrintable(qtText(control.name())));
        }
    }

    void theOnePointPanelSaysWhereItsHeightsComeFrom() {
        hands_->click("mnuOneOpen");
        QStringList shown;
        for (const QLabel* label : window_->book().at("frmeOne")->findChildren<QLabel*>()) {
            if (label->isVisible()) shown << label->text();
        }
        QVERIFY(shown.contains("표고 = 타원체고 - 지오이드고"));
        QVERIFY(shown.contains("지오이드고는 개략치임"));
    }

    void textGoesBothWays() {
        hands_->click("mnuOneOpen");
        for (Control& control : form().controls()) {
            if (control.kind() != ControlKind::TextBox || control.design().multiLine) continue;
            auto* box = hands_->widget<QLineEdit>(control.name());
            control.setText("12.5");
            QCOMPARE(box->text(), QStringLiteral("12.5"));
            if (!box->isVisible() || !box->isEnabled() || box->isReadOnly()) continue;
            box->selectAll();
            QTest::keyClicks(box, QStringLiteral("37.25"));
            QVERIFY2(control.text() == "37.25", control.name().c_str());
        }
    }

    void enabledStateAndValueFollowTheForm() {
        hands_->click("mnuOneOpen");
        hands_->click("optUser");
        QVERIFY(hands_->widget<QLineEdit>("txtLam0")->isEnabled());
        hands_->click("optJeju");
        QVERIFY(!hands_->widget<QLineEdit>("txtLam0")->isEnabled());
        QCOMPARE(hands_->widget<QLineEdit>("txtX0")->text(), QStringLiteral("550000"));
        QVERIFY(hands_->widget<QRadioButton>("optJeju")->isChecked());
        QVERIFY(!hands_->widget<QRadioButton>("optUser")->isChecked());
        hands_->choose("cmb7Para", 1);
        QCOMPARE(hands_->widget<QComboBox>("cmb7Para")->currentIndex(), 1);
        QCOMPARE(hands_->widget<QLineEdit>("txtdS")->text(), QStringLiteral("-6.43"));
        QVERIFY(!hands_->widget<QLineEdit>("txtdS")->isEnabled());
    }

    // Assistive technology toggles a button without clicking it.
    void optionsAndCheckBoxesToggledFromOutsideReachTheForm() {
        for (Control& control : form().controls()) {
            const bool option = control.kind() == ControlKind::OptionButton;
            if (!option && control.kind() != ControlKind::CheckBox) continue;
            QWidget* widget = window_->book().at(control.name());
            QAccessibleInterface* outside = QAccessible::queryAccessibleInterface(widget);
            QCOMPARE(outside->role(), option ? QAccessible::RadioButton : QAccessible::CheckBox);
            const bool before = control.value();
            outside->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
            // An option goes off by another one only.
            QVERIFY2(control.value() == (option || !before), control.name().c_str());
            QCOMPARE(qobject_cast<QAbstractButton*>(widget)->isChecked(), control.value());
        }
        // The last one of each group was toggled last; its handler has run.
        QVERIFY(form().find("optUser")->value());
        QVERIFY(form().find("txtLam0")->enabled());
        QVERIFY(form().find("frmeManual")->enabled());
    }

    void theWheelOverAListOrBoxWithoutFocusChangesNothing() {
        hands_->click("mnuOneOpen");
        hands_->choose("cmb7Para", 1);
        window_->book().at("txta")->setFocus(Qt::TabFocusReason);
        for (const char* name : {"cmb7Para", "txtdX", "txtWdmsPhi"}) {
            QWidget* widget = window_->book().at(name);
            QWheelEvent wheel(QPointF(4, 4), widget->mapToGlobal(QPointF(4, 4)), QPoint(),
                              QPoint(0, -120), Qt::NoButton, Qt::NoModifier,
                              Qt::NoScrollPhase, false);
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

    void everythingOfTheOnePointPanelFitsOnASmallScreen() {
        hands_->click("mnuOneOpen");
        window_->resize(1202, 676);  // the window's share of a screen of 1366 x 768
        QApplication::processEvents();
        const QRect inside = window_->centralWidget()->rect();
        for (const Control& control : form().controls()) {
            const QWidget* widget = window_->book().find(control.name());
            if (widget == nullptr || !widget->isVisible()) continue;
            const QRect place(widget->mapTo(window_->centralWidget(), QPoint()), widget->size());
            QVERIFY2(inside.contains(place), control.name().c_str());
        }
    }

    void aRunShowsItsResultAndThePlotIsOneClickAway() {
        hands_->click("mnuBatchGo");
        QVERIFY(window_->book().at("frmeFile")->isVisible());
        QVERIFY(window_->book().viewer()->text().find("인천No-3") != std::string::npos);
        QVERIFY(!window_->book().at("pctPlot")->isVisible());
        hands_->click("cmdShow");
        QVERIFY(window_->book().at("pctPlot")->isVisible());
        QVERIFY(!window_->book().at("Richtxt")->isVisible());
        QVERIFY(!window_->book().plotView()->surface().picture().items.empty());
        hands_->click("cmdPrint");
        QCOMPARE(sheets_.size(), std::size_t{1});
    }

    void printingATextTakes62LinesToTheSheet() {
        std::string text;
        for (int line = 0; line < 63; ++line) text += "line\r\n";
        folder_->put("long.dat", text + "end\r\n");
        window_->openDataFile(qtText(folder_->file("long.dat")));
        // The numbers are on view only after a run has said so.
        hands_->click("mnuBatchGo");
        hands_->type("Richtxt", text);
        hands_->click("cmdPrint");
        QCOMPARE(sheets_.size(), std::size_t{2});
        QCOMPARE(sheets_[0].picture.items.size(), std::size_t{62});
        QCOMPARE(sheets_[1].picture.items.size(), std::size_t{1});
    }

    void unsavedTextIsMarkedUntilItIsSaved() {
        hands_->click("mnuBatchEdit");
        auto* mark = window_->findChild<QLabel*>("unsavedMark");
        QVERIFY(!mark->isVisible());
        window_->book().viewer()->editor().insertPlainText("*\n");
        QVERIFY(mark->isVisible());
        hands_->click("cmdSave");
        hands_->click("mnuBatchEdit");
        QVERIFY(!mark->isVisible());
        QVERIFY(readBytes(folder_->file("data/test.dat")).starts_with("*\r\n"));
    }

    void aFaultPutsUnsavedTextIntoARescueFile() {
        hands_->click("mnuBatchEdit");
        window_->book().viewer()->editor().selectAll();
        window_->book().viewer()->editor().insertPlainText("저녁 내내\n친 글\n");
        hands_->click("mnuCorrShow");  // no run has made the file yet
        QVERIFY(report_.contains("53"));
        QVERIFY(window_->gate().isClosed());
        const QStringList rescued =
            QDir(qtText(folder_->path())).entryList({"rescue-*.txt"}, QDir::Files);
        QCOMPARE(rescued.size(), 1);
        QVERIFY(report_.contains(rescued.first()));
        QCOMPARE(readBytes(folder_->file(rescued.first().toStdString())),
                 encodeCodePage("저녁 내내\r\n친 글\r\n"));
    }

    void aFaultWithoutUnsavedTextLeavesNoRescueFile() {
        hands_->click("mnuCorrShow");
        QVERIFY(report_.contains("53"));
        QVERIFY(QDir(qtText(folder_->path())).entryList({"rescue-*"}, QDir::Files).isEmpty());
    }

    // The window closes all the same, which by itself would end the program with 0.
    void closingOverABoxThatHoldsNoNumberEndsWithExitCode1() {
        hands_->type("txtFontSize", "여덟");
        QTimer::singleShot(0, window_.get(), [this] { window_->close(); });
        QCOMPARE(QApplication::exec(), 1);
        QVERIFY(report_.contains("13"));
        QVERIFY(!window_->isVisible());
    }

    void closingWithoutAFaultEndsWithExitCode0() {
        QTimer::singleShot(0, window_.get(), [this] { window_->close(); });
        QCOMPARE(QApplication::exec(), 0);
        QVERIFY(report_.isEmpty());
    }

    void aDataFileDroppedAnywhereIsOpened() {
        folder_->put("data/other.dat", "*\r\nend\r\n");
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(qtText(folder_->file("data/other.dat")))});
        hands_->click("mnuOneOpen");
        QPlainTextEdit& editor = window_->book().viewer()->editor();
        for (QWidget* place : std::initializer_list<QWidget*>{
                 window_.get(), window_->book().at("txtdX"), editor.viewport()}) {
            window_->openDataFile(qtText(folder_->file("data/test.dat")));
            drop(place, data);
            QVERIFY(window_->windowTitle().endsWith("other.dat"));
            QVERIFY(window_->book().viewer()->text() == "*\r\nend\r\n");
        }
        QCOMPARE(hands_->widget<QLineEdit>("txtdX")->text(), QStringLiteral("115.8"));
    }

    void aDroppedResultFileIsShown() {
        folder_->put("data/old.out", "1234\r\n");
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(qtText(folder_->file("data/old.out")))});
        drop(window_.get(), data);
        QVERIFY(window_->book().viewer()->text() == readBytes(folder_->file("data/old.out")));
        QVERIFY(window_->windowTitle().endsWith("test.dat"));  // the data file is the same
    }

    void textIsStillDroppedIntoTheText() {
        hands_->click("mnuBatchEdit");
        QMimeData data;
        data.setText("* 끌어다 놓은 글 ");
        drop(window_->book().viewer()->editor().viewport(), data);
        QVERIFY(window_->book().viewer()->text().find("끌어다 놓은 글") != std::string::npos);
    }

    void aGroupOfCoordinatesIsCopiedAndPasted() {
        hands_->click("mnuOneOpen");
        hands_->click("optWdms");
        paste("paste txtWdmsPhi", "37.35332567, 126.32293454\t30.1756\n");
        QCOMPARE(textsOf({"txtWdmsPhi", "txtWdmsLam", "txtWdmsTH"}),
                 (QStringList{"37.35332567", "126.32293454", "30.1756"}));
        QVERIFY2(said_.contains("37°35′33.2567″"), qPrintable(said_));
        QTest::mouseClick(window_->findChild<QWidget*>("copy txtWdmsPhi"), Qt::LeftButton);
        QCOMPARE(QApplication::clipboard()->text(),
                 QStringLiteral("37.35332567\t126.32293454\t30.1756"));
    }

    void aRowOfOurOwnReportIsPastedIntoEitherGroup() {
        hands_->click("mnuOneOpen");
        const char* row = "101  37-35-33.2567 126-32-29.3454 30.1756";
        paste("paste txtWdmsPhi", row);
        QCOMPARE(textsOf({"txtWdmsPhi", "txtWdmsLam", "txtWdmsTH"}),
                 (QStringList{"37.35332567", "126.32293454", "30.1756"}));
        hands_->click("optWdeg");
        paste("paste txtWdegPhi", row);
        QCOMPARE(textsOf({"txtWdegPhi", "txtWdegLam", "txtWdegTH"}),
                 (QStringList{"37.5925713055556", "126.541484833333", "30.1756"}));
        paste("paste txtX", "101\t454572.77052\t159435.67323");
        QCOMPARE(textsOf({"txtX", "txtY"}), (QStringList{"454572.77052", "159435.67323"}));
        QVERIFY2(said_.contains("높이는 그대로"), qPrintable(said_));
    }

    void aPasteThatIsRefusedChangesNothingAndSaysWhy() {
        hands_->click("mnuOneOpen");
        hands_->type("txtWdmsPhi", "37.1");
        paste("paste txtWdmsPhi", "37,35332567 126,32293454 30,1756");
        QCOMPARE(textsOf({"txtWdmsPhi"}), QStringList{"37.1"});
        QVERIFY2(said_.contains("쉼표"), qPrintable(said_));
        // A closed group takes nothing.
        const QStringList before = textsOf({"txtWdegPhi"});
        paste("paste txtWdegPhi", "37.5 126.5");
        QCOMPARE(textsOf({"txtWdegPhi"}), before);
        QVERIFY2(said_.contains("닫혀"), qPrintable(said_));
    }

    void searchFindsOnAndAround() {
        hands_->click("mnuBatchEdit");
        auto* viewer = window_->book().viewer();
        viewer->editor().setFocus();
        QTest::keyClick(&viewer->editor(), Qt::Key_F, Qt::ControlModifier);
        auto* wanted = window_->findChild<QLineEdit*>("viewerSearch");
        QVERIFY(wanted->isVisible());
        wanted->setText("인천No-3");
        QVERIFY(viewer->findNext(false));
        const int first = viewer->editor().textCursor().position();
        QVERIFY(viewer->findNext(false));
        QVERIFY(viewer->editor().textCursor().position() > first);
        while (viewer->editor().textCursor().position() > first) QVERIFY(viewer->findNext(false));
        wanted->setText("없는 글");
        QVERIFY(!viewer->findNext(false));
    }

    void theViewerGivesBackWhatItCannotShow() {
        // Bytes that are no letters, a lone line feed at the end of one line, a form feed.
        const std::string bytes = "*\xFF\x81 \x0C\xA0\r\nend\r\n";
        folder_->put("data/odd.dat", bytes);
        window_->openDataFile(qtText(folder_->file("data/odd.dat")));
        QTextCursor caret(window_->book().viewer()->editor().document());
        caret.insertText("x");
        caret.deletePreviousChar();
        hands_->click("cmdSave");
        QCOMPARE(readBytes(folder_->file("data/odd.dat")), bytes);
    }

    void threeMegabytesOpenWhole() {
        std::string text;
        for (int line = 0; line < 50000; ++line)
            text += "* 인천No-3  37.35332567  126.32293454  30.1756  \r\n";
        folder_->put("data/big.dat", encodeCodePage(text));
        window_->openDataFile(qtText(folder_->file("data/big.dat")));
        QApplication::processEvents();
        QCOMPARE(window_->book().viewer()->editor().document()->blockCount(), 50001);
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

    void closingWritesTheSettings() {
        hands_->click("mnuOneOpen");
        hands_->type("txtdPhi", "0.25");
        window_->close();
        QVERIFY(readBytes(folder_->file("kelvo.cfg")).find(" .25 ") != std::string::npos);
    }

    void twoWindowsOnOneFolderLeaveItsFilesWhole() {
        MainWindow other(folder_->path());
        QVERIFY(other.start());
        WindowHands otherHands(other);
        for (int turn = 0; turn < 5; ++turn) {
            hands_->click("mnuBatchGo");
            otherHands.click("mnuBatchGo");
        }
        window_->close();
        other.close();
        const std::string configuration = readBytes(folder_->file("kelvo.cfg"));
        QCOMPARE(std::count(configuration.begin(), configuration.end(), '\n'), 18);
        QVERIFY(!QFile::exists(qtText(folder_->file("kelvo.lock"))));
    }

private:
    static QString focused() {
        const QWidget* widget = QApplication::focusWidget();
        return widget == nullptr ? QString() : widget->objectName();
    }

    void paste(const char* button, const char* text) {
        said_.clear();
        QApplication::clipboard()->setText(QString::fromUtf8(text));
        QTest::mouseClick(window_->findChild<QWidget*>(button), Qt::LeftButton);
    }

    [[nodiscard]] QStringList textsOf(std::initializer_list<const char*> boxes) const {
        QStringList texts;
        for (const char* box : boxes) texts << hands_->widget<QLineEdit>(box)->text();
        return texts;
    }

    // What gets a key that is pressed now.
    [[nodiscard]] QWidget* keyTarget() const {
        QWidget* widget = QApplication::focusWidget();
        return widget == nullptr ? window_.get() : widget;
    }

    static void drop(QWidget* place, const QMimeData& data) {
        QDragEnterEvent enter(QPoint(4, 4), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(place, &enter);
        QVERIFY(enter.isAccepted());
        QDragMoveEvent move(QPoint(4, 4), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(place, &move);
        QDropEvent drop(QPointF(4, 4), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(place, &drop);
        QVERIFY(drop.isAccepted());
    }

    Form& form() { return window_->program().form(); }

    std::unique_ptr<TemporaryFolder> folder_;
    std::unique_ptr<MainWindow> window_;
    std::unique_ptr<WindowHands> hands_;
    QString report_;
    QString said_;
    std::vector<desktop::Sheet> sheets_;
};

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    desktop::setUpFonts(application);
    desktop::setTheme(application, desktop::Theme::Light);
    WindowTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "window_test.moc"
