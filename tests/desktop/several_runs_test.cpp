// Several data files in one go, and the point on the panel as texts for a spreadsheet.
#include <QAction>
#include <QClipboard>
#include <QFile>
#include <QLineEdit>
#include <QProgressDialog>
#include <QTest>

#include "desktop/several_runs.h"
#include "desktop/window_case.h"
#include "desktop/window_tests.h"

using namespace kelvo;
using namespace kelvo::testing;

class SeveralRunsTest final : public WindowCase {
    Q_OBJECT

private slots:
    void eachFileIsARunOfItsOwn() {
        const std::vector<std::string> paths = putData(3);
        window_->convertFiles(paths);
        for (int file = 1; file <= 3; ++file) {
            const std::string report = readBytes(folder_->file(result(file)));
            QVERIFY(report.find("P" + std::to_string(file)) != std::string::npos);
        }
        QVERIFY(!hands_->lines.empty());
        const std::string& box = hands_->lines.back();
        QVERIFY2(box.find("데이터 파일 3개 중 3개를 끝냈습니다.") != std::string::npos,
                 box.c_str());
        QVERIFY2(box.find("d2.dat: 1점, 알림 0개") != std::string::npos, box.c_str());
    }

    void theFilesAreChosenInOneDialog() {
        (void)putData(2);
        hands_->dialogResults = {"\"" + folder_->file("data/d1.dat") + "\" \"" +
                                 folder_->file("data/d2.dat") + "\""};
        window_->findChild<QAction*>("workSeveral")->trigger();
        const std::string& box = hands_->lines.back();
        QVERIFY2(box.find("데이터 파일 2개 중 2개를 끝냈습니다.") != std::string::npos,
                 box.c_str());
        hands_->lines.clear();
        window_->findChild<QAction*>("workSeveral")->trigger();
        QCOMPARE(hands_->lines.size(), std::size_t{1});
    }

    // The reports are those of runs made one by one.
    void theReportsAreThoseOfSingleRuns() {
        const std::vector<std::string> paths = putData(2);
        window_->openDataFile(paths[1]);
        hands_->click("mnuBatchGo");
        const std::string alone = readBytes(folder_->file(result(2)));
        window_->convertFiles(paths);
        QVERIFY(!alone.empty());
        QCOMPARE(readBytes(folder_->file(result(2))), alone);
    }

    void aFileThatIsGoneIsSaidAndTheOthersAreConverted() {
        const std::vector<std::string> paths = putData(2);
        QVERIFY(QFile::remove(qtText(paths[0])));
        window_->convertFiles(paths);
        const std::string& box = hands_->lines.back();
        QVERIFY2(box.find("d1.dat: 열지 못했습니다") != std::string::npos, box.c_str());
        QVERIFY(QFile::exists(qtText(folder_->file(result(2)))));
    }

    void cancellingLeavesTheFilesThatAreStillToCome() {
        const std::vector<std::string> paths = putData(3);
        desktop::SeveralRuns runs(window_->program(), window_->book(),
                                  [this](const std::string& path) {
                                      window_->openDataFile(path);
                                      return true;
                                  });
        runs.onProgress = [this](int done) {
            if (done == 1) window_->findChild<QProgressDialog*>("severalRuns")->cancel();
        };
        const QStringList done = runs.convert(paths, window_.get());
        QCOMPARE(done.size(), 1);
        QVERIFY(!QFile::exists(qtText(folder_->file(result(2)))));
    }

    void theConvertedPointIsCopiedAsALineAndAsATable() {
        convertOnePoint();
        const auto copied = [this](const char* action) {
            window_->findChild<QAction*>(action)->trigger();
            return QGuiApplication::clipboard()->text();
        };
        const QStringList line = copied("workCopyLine").split('\t');
        QCOMPARE(line.size(), 12);
        QCOMPARE(line[0], QStringLiteral("37.35332567"));
        QCOMPARE(line[6], hands_->widget<QLineEdit>("txtX")->text().trimmed());
        QCOMPARE(line[11], hands_->widget<QLineEdit>("txtUH")->text().trimmed());
        const QStringList table = copied("workCopyTable").split('\n');
        QCOMPARE(table.size(), 6);  // headings, four systems, the end of the last
        for (const QString& row : table.first(5)) QCOMPARE(row.split('\t').size(), 4);
        QCOMPARE(table[3].split('\t').first(), QStringLiteral("TM"));
        QCOMPARE(table[3].split('\t')[1], line[6]);
    }

    void theReadingOfAnAngleIsSaidWhileItIsTyped() {
        hands_->click("mnuOneOpen");
        hands_->click("optWdms");
        auto* box = hands_->widget<QLineEdit>("txtWdmsPhi");
        box->setFocus();
        box->selectAll();
        QTest::keyClicks(box, QStringLiteral("37.35332567"));
        QVERIFY2(said_.contains(QStringLiteral("37°35′33.2567″")), qPrintable(said_));
        box->selectAll();
        QTest::keyClicks(box, QStringLiteral("37-35-33.2567"));
        QVERIFY2(said_.contains(QStringLiteral("37.35332567")), qPrintable(said_));
        QCOMPARE(form().find("txtWdmsPhi")->text(), std::string("37-35-33.2567"));
        QTest::keyClick(box, Qt::Key_Return);
        QCOMPARE(form().find("txtWdmsPhi")->text(), std::string("37.35332567"));
        QCOMPARE(focused(), QStringLiteral("txtWdmsLam"));
    }

private:
    [[nodiscard]] static std::string result(int file) {
        return "data/d" + std::to_string(file) + ".out";
    }
    std::vector<std::string> putData(int files) {
        std::vector<std::string> paths;
        for (int file = 1; file <= files; ++file) {
            const std::string number = std::to_string(file);
            folder_->put("data/d" + number + ".dat",
                         "WGS P" + number + " 37.353" + number + " 126.3229 30\r\nend\r\n \r\n");
            paths.push_back(folder_->file("data/d" + number + ".dat"));
        }
        return paths;
    }
    void convertOnePoint() {
        hands_->click("mnuOneOpen");
        hands_->choose("cmb7Para", 1);
        hands_->click("optWdms");
        hands_->click("optBdms");
        hands_->type("txtWdmsPhi", "37.35332567");
        hands_->type("txtWdmsLam", "126.32293454");
        hands_->type("txtWdmsTH", "30.1756");
        for (const char* arrow : {"cmdW2B", "cmdGP2TM", "cmdTM2UTM"}) hands_->click(arrow);
    }
};

std::unique_ptr<QObject> kelvo::testing::severalRunsTest() {
    return std::make_unique<SeveralRunsTest>();
}

#include "several_runs_test.moc"
