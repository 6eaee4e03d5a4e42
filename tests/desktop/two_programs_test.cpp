// Two programs at work on one application folder, a box standing in the middle.
#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QMessageBox>
#include <QProcess>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <memory>

#include "common/application_folder.h"
#include "desktop/main_window.h"
#include "desktop/window_case.h"
#include "desktop/window_hands.h"
#include "desktop/window_tests.h"
#include "support/temporary_folder.h"

using namespace kelvo;
using namespace kelvo::testing;
using desktop::MainWindow;

namespace {

const std::string kKnown =
    "k1 37.30 127.00 10 37.2950 127.0007 20 1\r\nk2 37.40 127.10 12 37.3950 127.1007 22 1\r\n"
    "*\r\n*\r\n";

// High latitudes are told of in a box, in the middle of the run.
std::string dataFile(const std::string& name, bool withABox) {
    std::string data = "CORRECTION\r\nINPUT deg\r\nWGS " + name + "0 37.3 127 1\r\n";
    for (int i = 1; i < 1500; ++i) data += "    " + name + std::to_string(i) + " 37.3 127 1\r\n";
    if (withABox) data += "    far 60 127 1\r\n";
    for (int i = 1500; i < 3000; ++i) data += "    " + name + std::to_string(i) + " 37.3 127 1\r\n";
    return data + "end\r\n\r\n";
}

}  // namespace

class TwoProgramsTest : public QObject {
    Q_OBJECT

private slots:
    void init() {
        failOnWarnings();
        folder_ = std::make_unique<TemporaryFolder>();
        makeApplicationFolder(folder_->path());
        folder_->put("kelvo.cor", kKnown);
        folder_->put("data/mine.dat", dataFile("mine", true));
        folder_->put("data/theirs.dat", dataFile("theirs", false));
        folder_->put("data/other.dat", dataFile("other", true));
        theirDetail_ = detailOf("theirs");
        otherDetail_ = detailOf("other");
        myDetail_ = detailOf("mine");
        window_ = std::make_unique<MainWindow>(folder_->path());
        QVERIFY(window_->start());
        window_->openDataFile(folder_->file("data/mine.dat"));
    }

    void cleanup() {
        window_.reset();
        folder_.reset();
    }

    void aBatchWhileABoxOfARunStandsNeitherMixesNorWaits() {
        int boxes = 0;
        whileABoxStands([&] {
            ++boxes;
            batch("theirs");
            QCOMPARE(detail(), theirDetail_);
        });
        QCOMPARE(boxes, 1);
        QCOMPARE(detail(), myDetail_);
        QCOMPARE(folder_->bytes("data/mine.out"), myReport_);
        nothingIsLeft();
    }

    void aBatchOfTheSameDataWhileABoxStandsLeavesAWholeReport() {
        whileABoxStands([&] { batch("mine"); });
        QCOMPARE(detail(), myDetail_);
        QCOMPARE(folder_->bytes("data/mine.out"), myReport_);
        nothingIsLeft();
    }

    void twoWindowsBothWithABoxStandingDoNotMix() {
        MainWindow other(folder_->path());
        QVERIFY(other.start());
        other.openDataFile(folder_->file("data/other.dat"));
        // The other one's box stands upon this one's, so its run ends first.
        whileABoxStands([&] {
            QTimer answer;
            connect(&answer, &QTimer::timeout, &answer, [] { answerBox(); });
            answer.start(5);
            other.book().action("mnuBatchGo")->trigger();
            answer.stop();
            QCOMPARE(detail(), otherDetail_);
        });
        QCOMPARE(detail(), myDetail_);
        QCOMPARE(folder_->bytes("data/other.out").size(), otherReport_.size());
        nothingIsLeft();
    }

    void aClickDoesNotWaitForAnotherProgramsTurn() {
        PlatformDisk disk;
        const auto turn = disk.takeTurn(folder_->path());
        QVERIFY(turn != nullptr);
        QElapsedTimer clock;
        clock.start();
        window_->book().action("mnuBatchEdit")->trigger();
        window_->book().action("mnuOneOpen")->trigger();
        QVERIFY2(clock.elapsed() < 500, "looking at a text takes no turn");
        clock.restart();
        window_->close();
        QVERIFY2(clock.elapsed() < 2500, "two files are saved, each after half a second");
    }

    void whatTheOtherWindowSavedOutlivesThisOne() {
        MainWindow other(folder_->path());
        QVERIFY(other.start());
        WindowHands otherHands(other);
        otherHands.click("mnuOneOpen");
        otherHands.type("txtdPhi", "0.25");
        other.close();
        window_->close();
        MainWindow next(folder_->path());
        QVERIFY(next.start());
        QCOMPARE(next.program().state().Cfg.dPhi, 0.25);
    }

private:
    static void answerBox() {
        if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget()))
            box->button(QMessageBox::Ok)->click();
    }

    // Runs mine.dat in the window; when its box has come up `work` is done, then it is answered.
    void whileABoxStands(const std::function<void()>& work) {
        bool done = false;
        QTimer watch;
        connect(&watch, &QTimer::timeout, this, [&] {
            if (done || QApplication::activeModalWidget() == nullptr) return;
            done = true;
            work();
            answerBox();
        });
        watch.start(5);
        window_->book().action("mnuBatchGo")->trigger();
        QVERIFY2(done, "no box stood in the middle of the run");
    }

    void batch(const QString& name) {
        QProcess program;
        program.start(
            QStringLiteral(KELVO_BINARY_DIR "/kelvo-batch"),
            {QStringLiteral("--app-folder"), QString::fromStdString(folder_->path()),
             QString::fromStdString(folder_->file("data/" + name.toStdString() + ".dat"))});
        QVERIFY(program.waitForFinished(20'000));
        QCOMPARE(program.exitCode(), 0);
    }

    // What a run of its own leaves.
    std::string detailOf(const QString& name) {
        batch(name);
        const std::string report = folder_->bytes("data/" + name.toStdString() + ".out");
        (name == QLatin1String("mine") ? myReport_ : otherReport_) = report;
        return detail();
    }
    std::string detail() { return folder_->bytes("kelvo.det"); }

    void nothingIsLeft() {
        QVERIFY(QDir(QString::fromStdString(folder_->path())).entryList({"*.new"}).isEmpty());
        QVERIFY(QDir(QString::fromStdString(folder_->file("data"))).entryList({"*.new"}).isEmpty());
    }

    std::unique_ptr<TemporaryFolder> folder_;
    std::unique_ptr<MainWindow> window_;
    std::string theirDetail_;
    std::string otherDetail_;
    std::string myDetail_;
    std::string myReport_;
    std::string otherReport_;
};

std::unique_ptr<QObject> kelvo::testing::twoProgramsTest() {
    return std::make_unique<TwoProgramsTest>();
}

#include "two_programs_test.moc"
