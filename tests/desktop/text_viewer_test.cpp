// The viewer and editor of text files.
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTest>

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
};

std::unique_ptr<QObject> kelvo::testing::textViewerTest() {
    return std::make_unique<TextViewerTest>();
}

#include "text_viewer_test.moc"
