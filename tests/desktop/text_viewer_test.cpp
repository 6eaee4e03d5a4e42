// The viewer and editor of text files.
#include <QApplication>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <QTextBlock>
#include <QToolTip>
#include <QWheelEvent>
#include <cmath>

#include "common/code_page.h"
#include "desktop/window_case.h"
#include "desktop/window_tests.h"

using namespace kelvo;
using namespace kelvo::testing;
using desktop::MainWindow;

class TextViewerTest final : public WindowCase {
    Q_OBJECT

private slots:
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
        const auto said = [this] {
            return window_->findChild<QLabel*>("viewerSearchResult")->text();
        };
        QCOMPARE(said(), QStringLiteral("처음부터 다시 찾음"));
        // Backward it goes around at the beginning, to the end.
        QVERIFY(viewer->findNext(true));
        QCOMPARE(said(), QStringLiteral("끝에서부터 다시 찾음"));
        wanted->setText("없는 글");
        QVERIFY(!viewer->findNext(false));
    }

    void aSelectionOfOneLineIsWhatIsLookedFor() {
        open("one two\r\nthree\r\n");
        select(4, 7);
        QTest::keyClick(&editor(), Qt::Key_F, Qt::ControlModifier);
        QCOMPARE(bar("viewerSearch")->text(), QStringLiteral("two"));
        select(4, 10);
        QTest::keyClick(&editor(), Qt::Key_F, Qt::ControlModifier);
        QCOMPARE(bar("viewerSearch")->text(), QStringLiteral("two"));
    }

    void replacingTakesOneAfterTheOtherAndLeavesTheRest() {
        openReplacing("ab Ab ab\r\n", "ab", "x");
        // Nothing is selected yet, so the first click only finds.
        press("viewerReplaceNext");
        QCOMPARE(editor().toPlainText(), QStringLiteral("ab Ab ab\n"));
        press("viewerReplaceNext");
        QCOMPARE(editor().toPlainText(), QStringLiteral("x Ab ab\n"));
        QTest::keyClick(bar("viewerReplacement"), Qt::Key_Return);
        QCOMPARE(editor().toPlainText(), QStringLiteral("x x ab\n"));
        QCOMPARE(editor().textCursor().selectedText(), QStringLiteral("ab"));
    }

    void allAreReplacedInOneStepAlsoByWhatHoldsThem() {
        openReplacing("ab Ab ab\r\n", "ab", "abab");
        press("viewerReplaceAll");
        QCOMPARE(editor().toPlainText(), QStringLiteral("abab abab abab\n"));
        QCOMPARE(window_->findChild<QLabel*>("viewerSearchResult")->text(),
                 QStringLiteral("3곳을 바꿈"));
        editor().undo();
        QCOMPARE(editor().toPlainText(), QStringLiteral("ab Ab ab\n"));
    }

    void withNothingToLookForTheBarStaysAsItIs() {
        openReplacing("ab\r\n", "", "x");
        press("viewerReplaceNext");
        press("viewerReplaceAll");
        QVERIFY(bar("viewerReplacement")->isVisible());
        QVERIFY(bar("viewerSearch")->hasFocus());
        QCOMPARE(editor().toPlainText(), QStringLiteral("ab\n"));
        press("viewerSearchClose");
        QVERIFY(!bar("viewerSearch")->isVisible());
        QVERIFY(editor().hasFocus());
        // F3 without anything to look for asks for it.
        QTest::keyClick(&editor(), Qt::Key_F3);
        QVERIFY(bar("viewerSearch")->hasFocus());
        QVERIFY(!bar("viewerReplacement")->isVisible());
    }

    void theLettersGrowAndShrinkByKeysAndByTheWheel() {
        open("ab\r\n");
        const double usual = viewer().editor().textSize();
        const auto size = [this] { return viewer().editor().textSize(); };
        QTest::keyClick(&editor(), Qt::Key_Plus, Qt::ControlModifier);
        QTest::keyClick(&editor(), Qt::Key_Equal, Qt::ControlModifier);
        QCOMPARE(size(), std::round(std::round(usual) + 1) + 1);
        QTest::keyClick(&editor(), Qt::Key_Minus, Qt::ControlModifier);
        QCOMPARE(size(), std::round(usual) + 1);
        turnWheel(120, Qt::ControlModifier);
        turnWheel(240, Qt::ControlModifier);
        QCOMPARE(size(), std::round(usual) + 3);
        turnWheel(-120, Qt::ControlModifier);
        QCOMPARE(size(), std::round(usual) + 2);
        turnWheel(120, Qt::NoModifier);
        QCOMPARE(size(), std::round(usual) + 2);
        for (int i = 0; i < 60; ++i) turnWheel(-120, Qt::ControlModifier);
        QCOMPARE(size(), 6.0);
        QTest::keyClick(&editor(), Qt::Key_0, Qt::ControlModifier);
        QCOMPARE(size(), usual);
    }

    void thePointerReadsWhatIsNotedOfItsLine() {
        open("WGS A 37 127 0\r\nother\r\nWGS B 37 127 0\r\n");
        viewer().editor().setNotes({{.line = 2, .text = QStringLiteral("모르는 명령")}});
        const auto words = [this](int block) {
            QTextCursor caret(editor().document()->findBlockByNumber(block));
            const QPoint place = editor().cursorRect(caret).center();
            QHelpEvent help(QEvent::ToolTip, place, editor().viewport()->mapToGlobal(place));
            QApplication::sendEvent(editor().viewport(), &help);
            return QToolTip::text();
        };
        QCOMPARE(words(1), QStringLiteral("모르는 명령"));
        QToolTip::hideText();
        QTRY_VERIFY(!QToolTip::isVisible());
        QCOMPARE(words(2), QString());
    }

    void theViewerGivesBackWhatItCannotShow() {
        // Bytes that are no letters, a lone line feed at the end of one line, a form feed.
        const std::string bytes = "*\xFF\x81 \x0C\xA0\r\nend\r\n";
        folder_->put("data/odd.dat", bytes);
        window_->openDataFile(folder_->file("data/odd.dat"));
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
        window_->openDataFile(folder_->file("data/big.dat"));
        QApplication::processEvents();
        QCOMPARE(window_->book().viewer()->editor().document()->blockCount(), 50001);
    }

private:
    [[nodiscard]] QPlainTextEdit& editor() const { return viewer().editor(); }
    [[nodiscard]] QLineEdit* bar(const char* name) const {
        return window_->findChild<QLineEdit*>(name);
    }

    void open(const std::string& text) {
        folder_->put("data/open.dat", text);
        window_->openDataFile(folder_->file("data/open.dat"));
        editor().setFocus();
    }
    void openReplacing(const std::string& text, const QString& wanted, const QString& by) {
        open(text);
        QTest::keyClick(&editor(), Qt::Key_H, Qt::ControlModifier);
        bar("viewerSearch")->setText(wanted);
        bar("viewerReplacement")->setText(by);
    }
    void select(int from, int to) {
        QTextCursor caret = editor().textCursor();
        caret.setPosition(from);
        caret.setPosition(to, QTextCursor::KeepAnchor);
        editor().setTextCursor(caret);
        editor().setFocus();
    }
    void press(const char* name) { window_->findChild<QPushButton*>(name)->click(); }
    void turnWheel(int angle, Qt::KeyboardModifiers keys) {
        QWheelEvent wheel(QPointF(5, 5), editor().mapToGlobal(QPointF(5, 5)), QPoint(),
                          QPoint(0, angle), Qt::NoButton, keys, Qt::NoScrollPhase, false);
        QApplication::sendEvent(editor().viewport(), &wheel);
    }
};

std::unique_ptr<QObject> kelvo::testing::textViewerTest() {
    return std::make_unique<TextViewerTest>();
}

#include "text_viewer_test.moc"
