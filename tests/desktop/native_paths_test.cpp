// Names of files that the toolkit's texts can't hold.
#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QMimeData>
#include <QTest>
#include <array>
#include <memory>

#include "common/application_folder.h"
#include "desktop/main_window.h"
#include "desktop/native_paths.h"
#include "desktop/text_viewer.h"
#include "desktop/window_case.h"
#include "desktop/window_hands.h"
#include "desktop/window_tests.h"
#include "support/temporary_folder.h"

using namespace kelvo;
using namespace kelvo::testing;
using desktop::MainWindow;

class NativePathsTest : public QObject {
    Q_OBJECT

private slots:
    void init() {
        failOnWarnings();
        folder_ = std::make_unique<TemporaryFolder>();
        makeApplicationFolder(folder_->path());
        folder_->put("data/" + kOdd, "*\r\nend\r\n");
    }

    void anArgumentKeepsItsBytes() {
        std::array<char, 8> program{"kelvo"};
        std::array<char, 8> plain{"a.dat"};
        std::string odd = kOdd;
        std::array<char*, 3> argv{program.data(), plain.data(), odd.data()};
        QCOMPARE(desktop::argumentShownAs(QStringLiteral("a.dat"), 3, argv.data()),
                 std::string("a.dat"));
        QCOMPARE(desktop::argumentShownAs(QString::fromLocal8Bit(odd.c_str()), 3, argv.data()),
                 kOdd);
    }

    void aUrlKeepsItsBytes() {
        QCOMPARE(desktop::fileOfUrl(QUrl::fromEncoded("file:///a/%ff%fe%20x.dat")),
                 std::string("/a/\xff\xfe x.dat"));
        QCOMPARE(desktop::fileOfUrl(QUrl::fromLocalFile(QStringLiteral("/a/가 나.dat"))),
                 std::string("/a/가 나.dat"));
        QCOMPARE(desktop::fileOfUrl(QUrl(QStringLiteral("https://a/b.dat"))), std::string());
    }

    void aRelativeNameCountsFromTheCurrentFolder() {
        const QString before = QDir::currentPath();
        QVERIFY(QDir::setCurrent(QString::fromStdString(folder_->path())));
        QCOMPARE(desktop::absoluteName("data/../" + kOdd),
                 std::filesystem::canonical(folder_->path()).string() + "/" + kOdd);
        QDir::setCurrent(before);
    }

    void aDataFileOfSuchANameIsOpenedRunAndRemembered() {
        {
            MainWindow window(folder_->path());
            QVERIFY(window.start());
            window.openDataFile(folder_->file("data/" + kOdd));
            QVERIFY(window.book().viewer()->text() == "*\r\nend\r\n");
            QCOMPARE(window.program().state().RecentFiles[1], folder_->file("data/" + kOdd));
            WindowHands hands(window);
            hands.click("mnuBatchGo");
            QVERIFY(std::filesystem::exists(folder_->file("data/\xff\xfe x.out")));
            window.close();
        }
        MainWindow next(folder_->path());
        QVERIFY(next.start());
        QCOMPARE(next.program().state().RecentFiles[1], folder_->file("data/" + kOdd));
    }

    void aDroppedDataFileOfSuchANameIsOpened() {
        MainWindow window(folder_->path());
        QVERIFY(window.start());
        QMimeData data;
        data.setData(QStringLiteral("text/uri-list"),
                     QByteArray::fromStdString("file://" + folder_->file("data/%ff%fe%20x.dat")));
        QDragEnterEvent enter(QPoint(10, 10), Qt::CopyAction, &data, Qt::LeftButton,
                              Qt::NoModifier);
        QApplication::sendEvent(&window, &enter);
        QDropEvent drop(QPointF(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&window, &drop);
        QCOMPARE(window.program().state().RecentFiles[1], folder_->file("data/" + kOdd));
    }

private:
    const std::string kOdd = "\xff\xfe x.dat";
    std::unique_ptr<TemporaryFolder> folder_;
};

std::unique_ptr<QObject> kelvo::testing::nativePathsTest() {
    return std::make_unique<NativePathsTest>();
}

#include "native_paths_test.moc"
