// The bottom line of the window, and what is done with the text on view beside the form's buttons.
#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QTest>
#include <QTextBlock>
#include <QTextLayout>
#include <fstream>

#include "desktop/look_menu.h"
#include "desktop/status_bar.h"
#include "desktop/window_case.h"
#include "desktop/window_tests.h"

using namespace kelvo;
using namespace kelvo::testing;

namespace {

// A point at latitude 89 and longitude 20 brings messages.
constexpr const char* kTwoBadPoints =
    "* head\r\nUGS A 37.3533 127.0 30\r\n    B 89.5959 20.0 31\r\n"
    "    C 37.3534 127.0 30\r\n    D 89.5959 20.0 31\r\nend\r\n \r\n";

}  // namespace

class TextOnViewTest final : public WindowCase {
    Q_OBJECT

private slots:
    void theBottomLineSaysWhatARunDidAndWhereTheCaretIs() {
        openData("a.dat", "WGS A 37.3533 126.3229 30\r\nend\r\n \r\n");
        hands_->click("mnuBatchGo");
        QCOMPARE(sentence(), QStringLiteral("1점 변환, 보고서 ") + path("a.out"));
        QCOMPARE(label("statusPlace")->text(), QStringLiteral("1행 1열"));
        viewer().editor().moveCursor(QTextCursor::Down);
        QCOMPARE(label("statusPlace")->text(), QStringLiteral("2행 1열"));
        QVERIFY(!window_->findChild<QPushButton*>("statusMessages")->isVisible());
    }

    void aMessageOfARunLeadsToItsLineInTheDataFile() {
        openData("a.dat", kTwoBadPoints);
        hands_->click("mnuBatchGo");
        auto* button = window_->findChild<QPushButton*>("statusMessages");
        QVERIFY(button->isVisible());
        QTest::mouseClick(button, Qt::LeftButton);
        auto* list = window_->findChild<QListWidget*>("statusMessageList");
        QVERIFY(list->isVisible());
        QVERIFY2(list->item(0)->text().startsWith(QStringLiteral("3행")),
                 qPrintable(list->item(0)->text()));
        list->setCurrentRow(list->count() - 1);
        QTest::keyClick(list, Qt::Key_Return);
        QVERIFY(!list->isVisible());
        QCOMPARE(qtText(window_->program().fileOnView()), path("a.dat"));
        QCOMPARE(viewer().editor().textCursor().blockNumber(), 4);
        QVERIFY(!viewer().editor().noteOf(3).isEmpty());
        QVERIFY(viewer().editor().noteOf(4).isEmpty());
    }

    void whatTheCheckFindsIsMarkedInTheDataFileAndGoesWhenItIsMended() {
        openData("a.dat",
                 "1st 0 0 -24\r\nWGS A 37.3533 126.3229 30\r\nWSG B 37.3633 126.3429 30\r\nend\r\n "
                 "\r\n");
        auto* button = window_->findChild<QPushButton*>("statusFindings");
        QVERIFY(button->isVisible());
        QVERIFY(!viewer().editor().noteOf(3).isEmpty());
        QTest::mouseClick(button, Qt::LeftButton);
        auto* list = window_->findChild<QListWidget*>("statusMessageList");
        QVERIFY(list->count() > 0);
        list->setCurrentRow(list->count() - 1);
        QTest::keyClick(list, Qt::Key_Return);
        QCOMPARE(viewer().editor().textCursor().blockNumber(), 2);
        for (int letter = 0; letter < 3; ++letter) QTest::keyClick(keyTarget(), Qt::Key_Delete);
        QTest::keyClicks(keyTarget(), QStringLiteral("WGS"));
        QTRY_VERIFY(viewer().editor().noteOf(3).isEmpty());
        QVERIFY2(!button->isVisible(), qPrintable(button->text()));
        // A report isn't checked.
        hands_->click("mnuBatchGo");
        QVERIFY(!button->isVisible());
    }

    void controlSSavesTheTextOnViewToTheFileOnView() {
        openData("a.dat", "* a\r\nend\r\n");
        QTest::keyClicks(keyTarget(), QStringLiteral("*x "));
        QVERIFY(label("unsavedMark")->isVisible());
        QTest::keyClick(keyTarget(), Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(readBytes(folder_->file("data/a.dat")), std::string("*x * a\r\nend\r\n"));
        QVERIFY(window_->book().at("frmeFile")->isVisible());
        QVERIFY(!label("unsavedMark")->isVisible());
        QCOMPARE(sentence(), QStringLiteral("저장했습니다: ") + path("a.dat"));
    }

    void whatControlSWouldWriteIsSaid() {
        openData("a.dat", "WGS A 37.3533 126.3229 30\r\nend\r\n \r\n");
        QCOMPARE(label("statusSaving")->text(), QStringLiteral("Ctrl+S: a.dat"));
        hands_->click("mnuBatchGo");
        QCOMPARE(label("statusSaving")->text(), QStringLiteral("Ctrl+S: a.out"));
        hands_->click("cmdShow");
        QCOMPARE(label("statusSaving")->text(), QStringLiteral("Ctrl+S: 그림을 파일로"));
        const std::size_t before = hands_->lines.size();
        QTest::keyClick(keyTarget(), Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(hands_->lines.size(), before + 1);
        QVERIFY(hands_->lines.back().starts_with("dialog|save"));
        QTest::mouseClick(window_->findChild<QPushButton*>("plotSave"), Qt::LeftButton);
        QCOMPARE(hands_->lines.size(), before + 2);
        hands_->click("cmdShow");
        hands_->click("cmdClose");
        QCOMPARE(label("statusSaving")->text(), QString());
    }

    void undoOutlivesARun() {
        openData("a.dat", "WGS A 37.3533 126.3229 30\r\nend\r\n \r\n");
        QTest::keyClicks(keyTarget(), QStringLiteral("*"));
        QTest::keyClick(keyTarget(), Qt::Key_Return);
        QTest::keyClick(keyTarget(), Qt::Key_S, Qt::ControlModifier);
        hands_->click("mnuBatchGo");
        hands_->click("mnuBatchEdit");
        QVERIFY(viewer().text().starts_with("*\r\nWGS"));
        QTest::keyClick(keyTarget(), Qt::Key_Z, Qt::ControlModifier);
        QTest::keyClick(keyTarget(), Qt::Key_Z, Qt::ControlModifier);
        QVERIFY2(viewer().text().starts_with("WGS"), viewer().text().substr(0, 20).c_str());
        QVERIFY(label("unsavedMark")->isVisible());
    }

    // The panel's button and F5 ask nothing (required); one step back brings the text again.
    void textThatWasClosedUnsavedIsOneUndoAway() {
        openData("a.dat", "* a\r\nend\r\n");
        QTest::keyClicks(keyTarget(), QStringLiteral("*x "));
        hands_->click("cmdClose");
        hands_->click("mnuBatchEdit");
        QCOMPARE(viewer().text(), std::string("* a\r\nend\r\n"));
        QTest::keyClick(keyTarget(), Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(viewer().text(), std::string("*x * a\r\nend\r\n"));
    }

    void aResultFileThatIsThereOpensFromTheMenu() {
        folder_->put("data/earlier.out", "earlier\r\n");
        hands_->dialogResults.push_back(folder_->file("data/earlier.out"));
        window_->findChild<QAction*>("workOpenResult")->trigger();
        QVERIFY(window_->book().at("frmeFile")->isVisible());
        QCOMPARE(viewer().text(), std::string("earlier\r\n"));
        // Looking at it makes it no data file.
        QVERIFY(!qtText(window_->program().state().RecentFiles[1]).endsWith("earlier.out"));
    }

    void theWordsOfADataFileHaveColoursAndAReportHasNone() {
        openData("a.dat", "WGS A 37.3533 126.3229 30\r\n* words\r\nend\r\n \r\n");
        QTRY_VERIFY(formats(0) >= 5);
        QCOMPARE(formats(1), 1);
        hands_->click("mnuBatchGo");
        QApplication::processEvents();
        for (int line = 0; line < viewer().editor().document()->blockCount(); ++line) {
            QCOMPARE(formats(line), 0);
        }
    }

    void theTextGrowsWithControlPlusAndGoesBackWithControlZero() {
        openData("a.dat", "end\r\n");
        const double before = viewer().editor().textSize();
        QTest::keyClick(keyTarget(), Qt::Key_Equal, Qt::ControlModifier);
        QTest::keyClick(keyTarget(), Qt::Key_Equal, Qt::ControlModifier);
        QVERIFY(viewer().editor().textSize() > before);
        hands_->click("mnuCorrShow");
        QTest::keyClick(keyTarget(), Qt::Key_0, Qt::ControlModifier);
        QCOMPARE(viewer().editor().textSize(), before);
    }

    void replacingAllIsOneStepBack() {
        const std::string text = "a1 a2\r\na3\r\n";
        openData("a.dat", text);
        QTest::keyClick(keyTarget(), Qt::Key_H, Qt::ControlModifier);
        QTest::keyClicks(keyTarget(), QStringLiteral("a"));
        window_->findChild<QLineEdit*>("viewerReplacement")->setText(QStringLiteral("점"));
        QTest::mouseClick(window_->findChild<QPushButton*>("viewerReplaceAll"), Qt::LeftButton);
        QCOMPARE(viewer().text(), std::string("점1 점2\r\n점3\r\n"));
        viewer().editor().undo();
        QCOMPARE(viewer().text(), text);
    }

    void aThemeIsChosenByKeyboardAndTheSystemIsFollowedAgain() {
        auto* look = window_->findChild<desktop::LookMenu*>("look");
        const auto isDark = [] { return QApplication::palette().base().color().lightness() < 128; };
        const auto choose = [look](int entry) { look->menu()->actions().at(entry)->trigger(); };
        bool dark = false;
        look->systemIsDark = [&dark] { return dark; };
        choose(2);
        QVERIFY(isDark());
        choose(0);
        QVERIFY(!isDark());
        dark = true;
        QEvent change(QEvent::ThemeChange);
        QApplication::sendEvent(window_.get(), &change);
        QVERIFY(isDark());
        choose(1);
        QVERIFY(!isDark());
        QVERIFY(readBytes(folder_->file("window.ini")).find("light") != std::string::npos);
        QVERIFY(look->focusPolicy() == Qt::TabFocus);
    }

    void theTextOfTheInterfaceGrowsAndComesBack() {
        auto* look = window_->findChild<desktop::LookMenu*>("look");
        const double before = QApplication::font().pointSizeF();
        const QList<QAction*> entries = look->menu()->actions();
        entries.last()->trigger();
        QVERIFY(QApplication::font().pointSizeF() > before * 1.5);
        QTRY_VERIFY(window_->menuBar()->font().pointSizeF() > before * 1.5);
        entries.at(entries.size() - 4)->trigger();
        QCOMPARE(QApplication::font().pointSizeF(), before);
    }

private:
    void openData(const std::string& name, const std::string& text) {
        folder_->put("data/" + name, text);
        window_->openDataFile(folder_->file("data/" + name));
        if (!window_->book().at("frmeFile")->isVisible()) hands_->click("mnuBatchEdit");
    }
    [[nodiscard]] QString path(const char* name) const {
        return qtText(folder_->file(std::string("data/") + name));
    }
    [[nodiscard]] QLabel* label(const char* name) const {
        return window_->findChild<QLabel*>(name);
    }
    [[nodiscard]] QString sentence() const {
        return qtText(window_->program().status().sentence());
    }
    [[nodiscard]] int formats(int line) const {
        return static_cast<int>(
            viewer().editor().document()->findBlockByNumber(line).layout()->formats().size());
    }
};

std::unique_ptr<QObject> kelvo::testing::textOnViewTest() {
    return std::make_unique<TextOnViewTest>();
}

#include "text_on_view_test.moc"
