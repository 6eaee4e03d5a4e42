// The window as a person meets it, without a screen.
#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QPrintDialog>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QTimer>
#include <fstream>

#include "common/code_page.h"
#include "desktop/window_case.h"
#include "desktop/window_tests.h"

using namespace kelvo;
using namespace kelvo::testing;
using desktop::MainWindow;

namespace {

// What a widget shows as its caption, the way a person would read it.
QString captionOf(const QWidget* widget) {
    if (const auto* button = qobject_cast<const QAbstractButton*>(widget)) return button->text();
    if (const auto* box = qobject_cast<const QGroupBox*>(widget)) return box->title();
    if (const auto* label = qobject_cast<const QLabel*>(widget)) return label->text();
    return widget->property("caption").toString();
}

}  // namespace

class WindowTest final : public WindowCase {
    Q_OBJECT

private slots:
    void aFirstStartShowsTheSampleAndTheKeyThatRunsIt() {
        window_->showSample();
        QVERIFY(viewer().isVisible());
        QVERIFY2(viewer().text().find("end") != std::string::npos, viewer().text().c_str());
        QCOMPARE(QFileInfo(qtText(window_->program().fileOnView())).fileName(),
                 QStringLiteral("test.dat"));
        QVERIFY(window_->program().status().sentence().find("F5") != std::string::npos);
        QTest::keyClick(keyTarget(), Qt::Key_F5);
        QVERIFY(window_->program().status().sentence().find("변환, 보고서") != std::string::npos);
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

    // A separator with a text shows it as the title of what follows.
    void separatorsHaveNoText() {
        int separators = 0;
        for (const QAction* menu : window_->menuBar()->actions()) {
            for (const QAction* action : menu->menu()->actions()) {
                if (!action->isSeparator()) continue;
                ++separators;
                QVERIFY2(action->text().isEmpty(), qPrintable(action->objectName()));
            }
        }
        QVERIFY(separators >= 5);
    }

    void aLongPathKeepsItsFileNameInSight() {
        const QString folders = QStringLiteral("/data/") + QString(120, QLatin1Char('x'));
        const std::string path = folder_->path() + folders.toStdString() + "/현장1.dat";
        QVERIFY(QDir().mkpath(qtText(folder_->path()) + folders));
        std::ofstream(path) << "*\r\nend\r\n";
        window_->openDataFile(path);
        window_->resize(700, 500);
        QApplication::processEvents();
        const auto* shown = window_->findChild<QLabel*>("frmeFileCaption");
        QVERIFY2(shown->text().endsWith(QStringLiteral("현장1.dat")), qPrintable(shown->text()));
        QVERIFY(shown->fontMetrics().horizontalAdvance(shown->text()) <= shown->width());
        QCOMPARE(shown->toolTip(), qtText(path));
    }

    void aPrintedDocumentIsNamedAfterItsFile() {
        folder_->put("data/현장1.dat", "WGS A 37.3533 126.3229 30\r\nend\r\n\r\n");
        window_->openDataFile(folder_->file("data/현장1.dat"));
        hands_->click("mnuBatchGo");
        QCOMPARE(window_->documentName(), QStringLiteral("현장1"));
        hands_->click("cmdShow");
        QCOMPARE(window_->documentName(), QStringLiteral("현장1-그림"));
        hands_->click("mnuCorrShow");
        QCOMPARE(window_->documentName(), QStringLiteral("kelvo"));
    }

    void thePrinterSetupIsLeftBySayingItIsFine() {
        hands_.reset();
        QStringList captions;
        QTimer::singleShot(0, window_.get(), [&captions] {
            QTRY_VERIFY(qobject_cast<QPrintDialog*>(QApplication::activeModalWidget()) != nullptr);
            auto* dialog = qobject_cast<QPrintDialog*>(QApplication::activeModalWidget());
            captions << dialog->windowTitle();
            for (const auto* button : dialog->findChildren<QPushButton*>()) {
                captions << button->text();
            }
            dialog->reject();
        });
        window_->book().action("mnuPrinterSelect")->trigger();
        QVERIFY2(captions.contains(QStringLiteral("Printer설정")), qPrintable(captions.join('|')));
        QVERIFY2(captions.contains(QStringLiteral("확인(&O)")), qPrintable(captions.join('|')));
        for (const QString& caption : captions) {
            QVERIFY2(!caption.contains(QStringLiteral("인쇄")) &&
                         !caption.contains(QStringLiteral("Print(")) &&
                         caption != QStringLiteral("&Print"),
                     qPrintable(caption));
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
        window_->openDataFile(folder_->file("long.dat"));
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
            window_->openDataFile(folder_->file("data/test.dat"));
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

    void aMissingPrintProgramIsReportedInTheStatusLine() {
        const QByteArray path = qgetenv("PATH");
        qputenv("PATH", "/nowhere");
        hands_->click("mnuBatchGo");
        hands_->click("mnuPrintMode");
        hands_->click("optFast");
        hands_->click("cmdModeSave");
        hands_->click("cmdPrint");
        qputenv("PATH", path);
        QVERIFY2(said_.contains("lp"), qPrintable(said_));
    }

    void closingWritesTheSettings() {
        hands_->click("mnuOneOpen");
        hands_->type("txtdPhi", "0.25");
        window_->close();
        QVERIFY(readBytes(folder_->file("kelvo.cfg")).find(" .25 ") != std::string::npos);
    }

private:
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
};

std::unique_ptr<QObject> kelvo::testing::windowTest() {
    return std::make_unique<WindowTest>();
}

#include "window_test.moc"
