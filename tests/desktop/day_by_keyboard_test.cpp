// A day's work without a mouse: every step is a key, pressed where the keyboard is just then.
#include <QApplication>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QTest>
#include <QTimer>
#include <functional>

#include "common/code_page.h"
#include "desktop/look_of_window.h"
#include "desktop/window_case.h"
#include "desktop/window_tests.h"

using namespace kelvo;
using namespace kelvo::testing;

namespace {

constexpr const char* kData =
    "OUTPUT  ddd-mm-ssss\r\n"
    "WGS    A1           37.35332567   126.32293454   30.1756\r\n"
    "       A2           37.35772984   126.33223244   31.2534\r\n"
    "end\r\n";
constexpr const char* kAddedLine = "       A3           37.34474747   126.32519737   30.5823";
constexpr int kMostTabs = 120;

}  // namespace

class DayByKeyboardTest final : public WindowCase {
    Q_OBJECT

private slots:
    void aDaysWorkNeedsNoMouse() {
        hands_.reset();  // boxes and dialogs are answered by keys, too
        folder_->put("data/day.dat", kData);
        const std::string data = folder_->file("data/day.dat");

        inDialog([&] { typeLine(qtText(data)); });
        press(Qt::Key_O, Qt::ControlModifier);
        backInTheWindow();
        press(Qt::Key_F4);
        QCOMPARE(focused(), QStringLiteral("Richtxt"));
        QCOMPARE(qtText(viewer().text()), QString::fromUtf8(kData));

        press(Qt::Key_Home, Qt::ControlModifier);
        for (int line = 0; line < 3; ++line) press(Qt::Key_Down);
        typeLine(QString::fromUtf8(kAddedLine));
        press(Qt::Key_S, Qt::ControlModifier);
        QVERIFY(readBytes(data).find(std::string(kAddedLine) + "\r\nend") != std::string::npos);

        press(Qt::Key_F5);
        const std::string result = readBytes(folder_->file("data/day.out"));
        QVERIFY(result.find("A3") != std::string::npos);
        QCOMPARE(qtText(viewer().text()), qtText(decodeCodePage(result)));
        press(Qt::Key_F, Qt::ControlModifier);
        typeLine(QStringLiteral("A3"));
        QCOMPARE(viewer().editor().textCursor().selectedText(), QStringLiteral("A3"));
        press(Qt::Key_Escape);
        QVERIFY(viewer().isVisible());

        convertAPointThereAndBack();
        if (QTest::currentTestFailed()) return;
        drawAndPrint();
        if (QTest::currentTestFailed()) return;
        chooseTheDarkTheme();
        if (QTest::currentTestFailed()) return;

        backInTheWindow();
        press(Qt::Key_F10);
        QVERIFY(window_->menuBar()->activeAction() != nullptr);
        press(Qt::Key_Down);
        QTRY_VERIFY(QApplication::activePopupWidget() != nullptr);
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Up);
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Return);
        QVERIFY(window_->gate().isClosed());
        QVERIFY(report_.isEmpty());
    }

private:
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(keyTarget(), key, modifiers);
    }

    static void typeLine(const QString& text) {
        QTest::keyClicks(QApplication::focusWidget(), text);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    }

    // What the manager of windows does when a dialog or menu closes; this platform has none.
    void backInTheWindow() {
        QTRY_VERIFY((window_->activateWindow(), QApplication::activeWindow() == window_.get()));
        QTRY_VERIFY(QApplication::focusWidget() != nullptr);
    }

    // What to do in the dialog that the next key opens.
    void inDialog(const std::function<void()>& work) {
        QTimer::singleShot(0, window_.get(), [work] {
            QTRY_VERIFY(QApplication::activeModalWidget() != nullptr);
            QTRY_VERIFY(
                QApplication::activeModalWidget()->isAncestorOf(QApplication::focusWidget()));
            work();
        });
    }

    void tabTo(const QString& name) {
        for (int tab = 0; tab < kMostTabs && focused() != name; ++tab) {
            // A text takes the plain Tab as a letter.
            press(Qt::Key_Tab,
                  focused() == QStringLiteral("Richtxt") ? Qt::ControlModifier : Qt::NoModifier);
        }
        QCOMPARE(focused(), name);
    }

    void pressButton(const char* name) {
        tabTo(QString::fromLatin1(name));
        if (!QTest::currentTestFailed()) press(Qt::Key_Space);
    }

    [[nodiscard]] std::string textOf(const char* name) const { return form().find(name)->text(); }

    void convertAPointThereAndBack() {
        press(Qt::Key_F2);
        QCOMPARE(focused(), QStringLiteral("txtWdmsPhi"));
        for (const char* number : {"37.35332567", "126.32293454", "30.1756"}) {
            QTest::keyClicks(keyTarget(), QString::fromLatin1(number));
            press(Qt::Key_Tab);
        }
        pressButton("cmdW2B");
        pressButton("cmdGP2TM");
        const double north = std::stod(textOf("txtX"));
        QVERIFY2(north > 450000 && north < 460000, textOf("txtX").c_str());
        tabTo(QStringLiteral("txtBdmsPhi"));
        QTest::keyClicks(keyTarget(), QStringLiteral("30"));
        pressButton("cmdTM2GP");
        pressButton("cmdB2W");
        QVERIFY2(std::abs(std::stod(textOf("txtWdmsPhi")) - 37.35332567) < 2e-8,
                 textOf("txtWdmsPhi").c_str());
        QVERIFY2(std::abs(std::stod(textOf("txtWdmsLam")) - 126.32293454) < 2e-8,
                 textOf("txtWdmsLam").c_str());
        press(Qt::Key_Escape);
        QVERIFY(!window_->book().at("frmeOne")->isVisible());
    }

    void drawAndPrint() {
        press(Qt::Key_F5);
        QCOMPARE(focused(), QStringLiteral("Richtxt"));
        pressButton("cmdPrint");
        QVERIFY(!sheets_.empty());
        pressButton("cmdShow");
        QWidget* plot = window_->book().at("pctPlot");
        QVERIFY(plot->isVisible());
        tabTo(QStringLiteral("txtFontSize"));
        QTest::keyClicks(keyTarget(), QStringLiteral("11"));
        press(Qt::Key_Return);
        QVERIFY(readBytes(folder_->file("plot.cfg")).find(" 11 ") != std::string::npos);
        pressButton("cmdPrintMode");
        QVERIFY(window_->book().at("frmePrintMode")->isVisible());
        press(Qt::Key_Escape);
        QVERIFY(plot->isVisible());
    }

    void chooseTheDarkTheme() {
        QTimer::singleShot(0, window_.get(), [] {
            QTRY_VERIFY(QApplication::activePopupWidget() != nullptr);
            QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_D);
        });
        press(Qt::Key_V, Qt::AltModifier);
        QTRY_VERIFY(QApplication::activePopupWidget() == nullptr);
        QCOMPARE(desktop::themeOf(*qApp), desktop::Theme::Dark);
    }
};

std::unique_ptr<QObject> kelvo::testing::dayByKeyboardTest() {
    return std::make_unique<DayByKeyboardTest>();
}

#include "day_by_keyboard_test.moc"
