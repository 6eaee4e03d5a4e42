// Text that was typed and not saved, whatever ends the program: nothing of it is lost.
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDir>
#include <QDirIterator>
#include <QLabel>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <csignal>
#include <fstream>
#include <iterator>
#include <memory>

#include "common/application_folder.h"
#include "common/code_page.h"
#include "desktop/end_signals.h"
#include "desktop/main_window.h"
#include "desktop/text_viewer.h"
#include "desktop/window_case.h"
#include "desktop/window_hands.h"
#include "desktop/window_tests.h"
#include "support/temporary_folder.h"

using namespace kelvo;
using namespace kelvo::testing;
using desktop::MainWindow;

class UnsavedTextTest : public QObject {
    Q_OBJECT

private slots:
    void init() {
        failOnWarnings();
        folder_ = std::make_unique<TemporaryFolder>();
        makeApplicationFolder(folder_->path());
        window_ = std::make_unique<MainWindow>(folder_->path());
        window_->onFaultReport = [this](const QString& report) { report_ = report; };
        hands_ = std::make_unique<WindowHands>(*window_);
        report_.clear();
        QVERIFY(window_->start());
    }

    void cleanup() {
        hands_.reset();
        window_.reset();
        folder_.reset();
    }

    void aFaultPutsUnsavedTextOntoTheClipboardAndKeepsLettersOfNoCodePage() {
        hands_->click("mnuBatchEdit");
        window_->book().viewer()->editor().selectAll();
        window_->book().viewer()->editor().insertPlainText("é 글\n");
        hands_->click("mnuCorrShow");
        const QStringList rescued =
            QDir(qtText(folder_->path())).entryList({"rescue-*.txt"}, QDir::Files);
        QCOMPARE(rescued.size(), 1);
        QCOMPARE(readBytes(folder_->file(rescued.first().toStdString())),
                 std::string("\xEF\xBB\xBFé 글\r\n"));
        QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("é 글\r\n"));
        QVERIFY(report_.contains(QStringLiteral("클립보드")));
    }

    void whatIsTypedIsInTheJournalAFewSecondsLater() {
        hands_->click("mnuBatchEdit");
        // Typing that never pauses.
        QTimer typing;
        connect(&typing, &QTimer::timeout, window_.get(),
                [this] { window_->book().viewer()->editor().insertPlainText("글"); });
        typing.start(100);
        QTRY_VERIFY_WITH_TIMEOUT(!journalText().isEmpty(), 7000);
        typing.stop();
        hands_->click("cmdSave");
        QVERIFY(journalText().isEmpty());
        QVERIFY(!QDir(qtText(folder_->file("unsaved"))).exists());
    }

    void aTextThatWasUnsavedAtTheEndIsOfferedAtTheNextStart() {
        hands_->click("mnuBatchEdit");
        window_->book().viewer()->editor().selectAll();
        window_->book().viewer()->editor().insertPlainText("저녁 내내\n친 글\n");
        window_->close();
        window_.reset();

        MainWindow next(folder_->path());
        WindowHands hands(next);
        QVERIFY(next.start());
        auto* bar = next.findChild<QWidget*>("unsavedTextBar");
        QVERIFY(bar->isVisible());
        QVERIFY(next.findChild<QLabel*>("unsavedTextWords")->text().contains("test.dat"));
        QTest::mouseClick(next.findChild<QPushButton*>("unsavedTextBringBack"), Qt::LeftButton);
        QVERIFY(!bar->isVisible());
        QCOMPARE(next.book().viewer()->text(), std::string("저녁 내내\r\n친 글\r\n"));
        QVERIFY(next.findChild<QLabel*>("unsavedMark")->isVisible());
        hands.click("cmdSave");
        QCOMPARE(readBytes(folder_->file("data/test.dat")),
                 encodeCodePage("저녁 내내\r\n친 글\r\n"));
        QVERIFY(!QDir(qtText(folder_->file("unsaved"))).exists());
    }

    void anOfferThatIsPutAsideDoesNotComeAgain() {
        hands_->click("mnuBatchEdit");
        window_->book().viewer()->editor().insertPlainText("글\n");
        window_->close();
        window_.reset();
        {
            MainWindow next(folder_->path());
            QVERIFY(next.start());
            auto* aside = next.findChild<QPushButton*>("unsavedTextPutAside");
            QVERIFY(aside->isVisible());
            QTest::mouseClick(aside, Qt::LeftButton);
            QVERIFY(!aside->isVisible());
            QVERIFY(next.program().canBringBackText());
            next.close();
        }
        MainWindow last(folder_->path());
        QVERIFY(last.start());
        QVERIFY(!last.findChild<QWidget*>("unsavedTextBar")->isVisible());
        QVERIFY(last.program().canBringBackText());
    }

    void theMarkIsThereWithTheFirstLetter() {
        hands_->click("mnuBatchEdit");
        auto* mark = window_->findChild<QLabel*>("unsavedMark");
        QVERIFY(!mark->isVisible());
        window_->book().viewer()->editor().insertPlainText("글");
        QVERIFY(mark->isVisible());
    }

    void whatAClickOnCloseDiscardedComesBackByTheHelpMenu() {
        auto* help = window_->findChild<QMenu*>("mnuHelp");
        auto* bringBack = window_->findChild<QAction*>("bringBackText");
        QVERIFY(help != nullptr && bringBack != nullptr);
        QVERIFY(help->actions().contains(bringBack));
        emit help->aboutToShow();
        QVERIFY(!bringBack->isEnabled());

        hands_->click("mnuBatchEdit");
        window_->book().viewer()->editor().selectAll();
        window_->book().viewer()->editor().insertPlainText("한나절 친 글\n");
        hands_->click("cmdClose");
        emit help->aboutToShow();
        QVERIFY(bringBack->isEnabled());
        bringBack->trigger();
        QCOMPARE(window_->book().viewer()->text(), std::string("한나절 친 글\r\n"));
        QVERIFY(window_->book().viewer()->isVisible());
        QVERIFY(window_->findChild<QLabel*>("unsavedMark")->isVisible());
        emit help->aboutToShow();
        QVERIFY(!bringBack->isEnabled());
    }

    void theViewersContextMenuOffersWhatARunDiscarded() {
        hands_->click("mnuBatchEdit");
        window_->book().viewer()->editor().insertPlainText("친 글\n");
        hands_->click("mnuBatchGo");
        auto* bringBack = window_->findChild<QAction*>("bringBackText");
        QVERIFY(bringBack != nullptr);
        bool wasOffered = false;
        QTimer look;
        connect(&look, &QTimer::timeout, [&] {
            auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            if (menu == nullptr) return;
            look.stop();
            wasOffered = menu->actions().contains(bringBack) && bringBack->isEnabled() &&
                         menu->actions().size() > 1;
            menu->close();
        });
        look.start(10);
        QPlainTextEdit& editor = window_->book().viewer()->editor();
        QContextMenuEvent wish(QContextMenuEvent::Mouse, QPoint(20, 20),
                               editor.mapToGlobal(QPoint(20, 20)));
        QApplication::sendEvent(editor.viewport(), &wish);
        QTRY_VERIFY(wasOffered);
    }

    void nothingUnsavedLeavesNothingBehind() {
        hands_->click("mnuBatchEdit");
        hands_->click("mnuBatchGo");
        window_->close();
        window_.reset();
        QVERIFY(!QDir(qtText(folder_->file("unsaved"))).exists());
    }

    void anEndingSessionKeepsTextAndSettings() {
        hands_->click("mnuOneOpen");
        hands_->type("txtdPhi", "0.25");
        hands_->click("mnuBatchEdit");
        window_->book().viewer()->editor().insertPlainText("글\n");
        window_->prepareForTheEnd();
        QVERIFY(journalText().startsWith("글\r\n"));
        QVERIFY(readBytes(folder_->file("kelvo.cfg")).find(" .25 ") != std::string::npos);
        QVERIFY(window_->isVisible());
    }

    void aSignalEndsTheWindowAsClosingDoes() {
        const desktop::EndSignals ends;
        connect(&ends, &desktop::EndSignals::endWanted, window_.get(),
                &MainWindow::endWithoutAsking);
        hands_->click("mnuOneOpen");
        hands_->type("txtdPhi", "0.25");
        hands_->click("mnuBatchEdit");
        window_->book().viewer()->editor().insertPlainText("글\n");
        QTimer::singleShot(0, [] { std::raise(SIGTERM); });
        QCOMPARE(QApplication::exec(), 0);
        QVERIFY(journalText().startsWith("글\r\n"));
        QVERIFY(readBytes(folder_->file("kelvo.cfg")).find(" .25 ") != std::string::npos);
        QVERIFY(report_.isEmpty());
    }

    void aSignalOverABoxThatHoldsNoNumberEndsWithExitCode1AndNoReport() {
        const desktop::EndSignals ends;
        connect(&ends, &desktop::EndSignals::endWanted, window_.get(),
                &MainWindow::endWithoutAsking);
        hands_->type("txtFontSize", "여덟");
        QTimer::singleShot(0, [] { std::raise(SIGHUP); });
        QCOMPARE(QApplication::exec(), 1);
        QVERIFY(report_.isEmpty());
    }

    void aSignalWhileABoxStandsEndsTheWindowAfterAll() {
        hands_.reset();  // they would answer the box
        const desktop::EndSignals ends;
        connect(&ends, &desktop::EndSignals::endWanted, window_.get(),
                &MainWindow::endWithoutAsking);
        QTimer::singleShot(0, window_.get(),
                           [this] { window_->book().action("mnuPrintDetail")->trigger(); });
        QTimer wait;
        connect(&wait, &QTimer::timeout, [&wait] {
            if (QApplication::activeModalWidget() == nullptr) return;
            wait.stop();
            std::raise(SIGTERM);
        });
        wait.start(10);
        QCOMPARE(QApplication::exec(), 0);
        QVERIFY(!QFile::exists(qtText(folder_->file("Kelvo.out"))));
    }

private:
    // What a program that starts now would be offered.
    QByteArray journalText() const {
        QDirIterator at(qtText(folder_->file("unsaved")), {"viewer.txt"}, QDir::Files,
                        QDirIterator::Subdirectories);
        if (!at.hasNext()) return {};
        QFile file(at.next());
        if (!file.open(QIODevice::ReadOnly)) return {};
        const QByteArray bytes = file.readAll();
        return bytes.mid(bytes.indexOf("\r\n\r\n") + 4);
    }

    std::unique_ptr<TemporaryFolder> folder_;
    std::unique_ptr<MainWindow> window_;
    std::unique_ptr<WindowHands> hands_;
    QString report_;
};

std::unique_ptr<QObject> kelvo::testing::unsavedTextTest() {
    return std::make_unique<UnsavedTextTest>();
}

#include "unsaved_text_test.moc"
