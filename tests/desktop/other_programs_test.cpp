// The points of a run as files for other programs, and lists of points into a data file.
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QProcess>
#include <QPushButton>
#include <QTableWidget>
#include <QTest>
#include <QTextBlock>
#include <QTimer>
#include <filesystem>

#include "desktop/import_dialog.h"
#include "desktop/window_case.h"
#include "desktop/window_tests.h"

using namespace kelvo;
using namespace kelvo::testing;
using desktop::ImportDialog;

class OtherProgramsTest final : public WindowCase {
    Q_OBJECT

private slots:
    // What a run has written comes back with every printed digit.
    void anExportedRunComesBackAsADataFile_data() {
        QTest::addColumn<QString>("ending");
        for (const char* ending : {"gpkg", "geojson", "shp", "kml", "gpx", "xlsx", "ods"})
            QTest::newRow(ending) << ending;
    }
    void anExportedRunComesBackAsADataFile() {
        if (!hasModule()) QSKIP("built without GDAL (KELVO_EXCHANGE=OFF)");
        QFETCH(QString, ending);
        run();
        const std::string report = readBytes(folder_->file("data/a.out"));
        const std::string path = exportTo(ending.toStdString());
        QVERIFY(QFile::exists(qtText(path)));
        QVERIFY2(sentence().startsWith(QStringLiteral("3점을 ")), qPrintable(sentence()));
        QVERIFY2(sentence().endsWith(qtText(path)), qPrintable(sentence()));

        openData("b.dat", "OUTPUT deg\r\n\r\nend\r\n \r\n");
        moveCaretTo(1);
        bringIn("workImport", path);
        QVERIFY2(said_.startsWith(QStringLiteral("3점을 2행에 가져왔습니다")), qPrintable(said_));
        const QString text = viewer().editor().toPlainText();
        QVERIFY2(text.contains(QStringLiteral("가나")), qPrintable(text));
        QVERIFY2(text.startsWith(QStringLiteral("OUTPUT deg\nINPUT  deg\nWGS    A-1 ")),
                 qPrintable(text));
        QTest::keyClick(keyTarget(), Qt::Key_S, Qt::ControlModifier);
        hands_->click("mnuBatchGo");
        // A sheet has the angles as they are printed, the other formats have them whole.
        const bool isSheet = ending == QStringLiteral("xlsx") || ending == QStringLiteral("ods");
        const auto compared = isSheet ? &firstTableOf : &tablesOf;
        QVERIFY(!compared(report).empty());
        QCOMPARE(compared(readBytes(folder_->file("data/b.out"))), compared(report));
    }

    // A drawing is on the TM grid and says so nowhere.
    void anExportedDrawingComesBackOnTheTmGrid() {
        if (!hasModule()) QSKIP("built without GDAL (KELVO_EXCHANGE=OFF)");
        run();
        const std::string path = exportTo("dxf");
        openData("b.dat", "");
        bringIn("workImport", path);
        const QString text = viewer().editor().toPlainText();
        QVERIFY2(text.startsWith(QStringLiteral("TM     A-1          454572.6396")),
                 qPrintable(text));
        QVERIFY2(text.contains(QStringLiteral("\n       가나         453987.0331")),
                 qPrintable(text));
        QVERIFY2(text.endsWith(QStringLiteral("\nend\n \n")), qPrintable(text));
    }

    void theFolderOfTheFileIsOneClickAwayAsLongAsTheSentenceStands() {
        if (!hasModule()) QSKIP("built without GDAL (KELVO_EXCHANGE=OFF)");
        auto* button = window_->findChild<QPushButton*>("statusOpenFolder");
        QString folder;
        window_->onFolder = [&folder](const QString& path) { folder = path; };
        run();
        QVERIFY(!button->isVisible());
        (void)exportTo("gpkg");
        QVERIFY(button->isVisible());
        QTest::mouseClick(button, Qt::LeftButton);
        QCOMPARE(folder, qtText(folder_->file("data")));
        window_->program().status().say("something else");
        QVERIFY(!button->isVisible());
    }

    void thePlotExportsTheSamePointsByAButtonBelowItsSave() {
        if (!hasModule()) QSKIP("built without GDAL (KELVO_EXCHANGE=OFF)");
        run();
        const auto* save = window_->findChild<QPushButton*>("plotSave");
        auto* button = window_->findChild<QPushButton*>("exportPlotted");
        QVERIFY(button != nullptr);
        QVERIFY(!button->isVisible());
        hands_->click("cmdShow");
        hands_->click("cmdPlot");
        QVERIFY(button->isVisible() && save->isVisible());
        QCOMPARE(button->parentWidget(), save->parentWidget());
        QVERIFY(button->y() > save->y());
        QCOMPARE(button->text(), QStringLiteral("내보내기"));
        QCOMPARE(button->size(), save->size());
        const std::string path = folder_->file("data/plotted.geojson");
        hands_->dialogResults.push_back(path);
        QTest::mouseClick(button, Qt::LeftButton);
        QCOMPARE(readBytes(path).find("\"name\": \"A-1\"") != std::string::npos, true);
        QVERIFY2(sentence().endsWith(qtText(path)), qPrintable(sentence()));
        QVERIFY(window_->findChild<QPushButton*>("statusOpenFolder")->isVisible());
    }

    void withoutARunThereIsNothingToExport() {
        openData("a.dat", "end\r\n \r\n");
        window_->findChild<QPushButton*>("exportPoints")->click();
        QVERIFY2(lastBox().contains(QStringLiteral("내보낼 점이 없습니다")), qPrintable(lastBox()));
    }

    void aNameOfNoKnownFormatIsRefused() {
        if (!hasModule()) QSKIP("built without GDAL (KELVO_EXCHANGE=OFF)");
        run();
        const std::string path = exportTo("doc");
        QVERIFY(!QFile::exists(qtText(path)));
        QVERIFY2(lastBox().contains(QStringLiteral(".gpkg")), qPrintable(lastBox()));
    }

    void aFileThatCannotBeWrittenIsSaid() {
        if (!hasModule()) QSKIP("built without GDAL (KELVO_EXCHANGE=OFF)");
        run();
        hands_->dialogResults.push_back(folder_->file("none/x.gpkg"));
        const QString before = sentence();
        window_->findChild<QAction*>("workExport")->trigger();
        QVERIFY(!QFile::exists(qtText(folder_->file("none/x.gpkg"))));
        QCOMPARE(sentence(), before);
    }

    void anExportIsRefusedWhereItsNameLeadsToAFileOfTheRun() {
        if (!hasModule()) QSKIP("built without GDAL (KELVO_EXCHANGE=OFF)");
        run();
        const std::string path = folder_->file("data/link.gpx");
        std::filesystem::create_symlink(window_->program().state().CorPath, path);
        hands_->dialogResults.push_back(path);
        window_->findChild<QPushButton*>("exportPoints")->click();
        QVERIFY2(lastBox().contains(QStringLiteral("내보내지 못했습니다: 쓸 파일이 이미")),
                 qPrintable(lastBox()));
        QVERIFY(!std::filesystem::exists(path));
    }

    void aTableOnTheClipboardIsOneUndoAway() {
        const QString text = QStringLiteral("* head\nTM     A   1 2 3\n       B   1 2 3\nend\n \n");
        openData("a.dat", QString(text).replace("\n", "\r\n").toStdString());
        moveCaretTo(1);
        QTest::keyClick(keyTarget(), Qt::Key_End);
        QGuiApplication::clipboard()->setText(QStringLiteral(
            "이름\tX\tY\tH\nC-1\t377504.2345\t125963.97\t7\nC-2\t377505\t125964\t8\n"));
        bringIn("workImportClipboard", {});
        QCOMPARE(viewer().editor().toPlainText(),
                 QStringLiteral("* head\nTM     A   1 2 3\n       B   1 2 3\n"
                                "TM     C-1          377504.2345   125963.97   7\n"
                                "       C-2          377505   125964   8\nend\n \n"));
        QVERIFY(viewer().isModified());
        QTest::keyClick(keyTarget(), Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(viewer().editor().toPlainText(), text);
    }

    void theDialogShowsRowsAndLinesAndWarnsBeforeAnythingIsPutIn() {
        openData("a.dat", "end\r\n \r\n");
        folder_->put("list.csv", "name,x,y\n12345678901,377504.2,125963.9\nB,x,y\n");
        hands_->dialogResults.push_back(folder_->file("list.csv"));
        const QString before = viewer().editor().toPlainText();
        inDialog([](ImportDialog& dialog) {
            QCOMPARE(dialog.findChild<QTableWidget*>("importRows")->item(0, 1)->text(),
                     QStringLiteral("377504.2"));
            const QString words = dialog.findChild<QLabel*>("importWarnings")->text();
            QVERIFY2(words.contains(QStringLiteral("1개 이름이 10칸보다 길어")), qPrintable(words));
            QVERIFY2(words.contains(QStringLiteral("빠집니다: 2행")), qPrintable(words));
            auto* lines = dialog.findChild<QPlainTextEdit*>("importLines");
            QVERIFY(lines->toPlainText().startsWith(QStringLiteral("TM ")));
            dialog.findChild<QComboBox*>("importSystem")->setCurrentIndex(3);
            QVERIFY(lines->toPlainText().startsWith(QStringLiteral("UTM ")));
            dialog.findChild<QComboBox*>("importNorth")->setCurrentIndex(0);
            dialog.findChild<QComboBox*>("importEast")->setCurrentIndex(0);
            QVERIFY(!dialog.findChild<QPushButton*>("importAccept")->isEnabled());
            dialog.reject();
        });
        window_->findChild<QAction*>("workImport")->trigger();
        QVERIFY(dialogSeen_);
        QCOMPARE(viewer().editor().toPlainText(), before);
        QVERIFY(!viewer().isModified());
    }

    void pointsComeIntoADataFileOnly() {
        run();  // the report is on view now
        window_->findChild<QAction*>("workImport")->trigger();
        QVERIFY2(lastBox().contains(QStringLiteral("먼저 데이터 파일을 여십시오")),
                 qPrintable(lastBox()));
    }

    void aListThatCannotBeReadIsSaidAndChangesNothing() {
        openData("a.dat", "end\r\n \r\n");
        folder_->put("list.csv", "name,x,y\n");
        hands_->dialogResults.push_back(folder_->file("list.csv"));
        window_->findChild<QAction*>("workImport")->trigger();
        QVERIFY2(lastBox().contains(QStringLiteral("가져올 수 없습니다: 점이 하나도 없습니다")),
                 qPrintable(lastBox()));
        QCOMPARE(viewer().text(), std::string("end\r\n \r\n"));
    }

    // By a copy of this program that has no module beside it.
    void aMissingModuleIsSaidInOneSentence() {
        if (hasModule()) {
            const QString alone = qtText(folder_->file("alone"));
            QVERIFY(QFile::copy(QApplication::applicationFilePath(), alone));
            QProcess program;
            program.setProcessChannelMode(QProcess::MergedChannels);
            program.start(alone, {QStringLiteral("other_programs_test"),
                                  QStringLiteral("aMissingModuleIsSaidInOneSentence")});
            QVERIFY(program.waitForFinished());
            QVERIFY2(program.exitCode() == 0, program.readAll().constData());
            return;
        }
        run();
        window_->findChild<QPushButton*>("exportPoints")->click();
        QVERIFY2(lastBox().contains(QStringLiteral("내보낼 수 없습니다: ")) &&
                     lastBox().contains(QStringLiteral("kelvo-exchange")),
                 qPrintable(lastBox()));
        openData("b.dat", "end\r\n \r\n");
        folder_->put("points.gpx", "");
        hands_->dialogResults.push_back(folder_->file("points.gpx"));
        window_->findChild<QAction*>("workImport")->trigger();
        QVERIFY2(lastBox().contains(QStringLiteral("가져올 수 없습니다: ")) &&
                     lastBox().contains(QStringLiteral("kelvo-exchange")),
                 qPrintable(lastBox()));
    }

private:
    static bool hasModule() {
        return QFile::exists(QApplication::applicationDirPath() + "/kelvo-exchange.so");
    }
    void openData(const std::string& name, const std::string& text) {
        folder_->put("data/" + name, text);
        window_->openDataFile(folder_->file("data/" + name));
    }
    void run() {
        openData("a.dat",
                 "OUTPUT deg\r\nWGS    A-1   37.35332567   126.32293454   30.1756\r\n"
                 "       \xB0\xA1\xB3\xAA   37.35172984   126.53224344   31.2534\r\n"
                 "       C   37.4100   127.0100   12\r\nend\r\n \r\n");
        hands_->click("mnuBatchGo");
    }
    std::string exportTo(const std::string& ending) {
        const std::string path = folder_->file("data/점." + ending);
        hands_->dialogResults.push_back(path);
        window_->findChild<QPushButton*>("exportPoints")->click();
        return path;
    }
    void inDialog(std::function<void(ImportDialog&)> work) {
        dialogSeen_ = false;
        connect(&watch_, &QTimer::timeout, this, [this, work = std::move(work)] {
            auto* dialog = qobject_cast<ImportDialog*>(QApplication::activeModalWidget());
            if (dialog == nullptr) return;
            watch_.stop();
            watch_.disconnect();
            dialogSeen_ = true;
            work(*dialog);
            if (dialog->isVisible()) dialog->reject();
        });
        watch_.start(20);
    }
    void bringIn(const char* action, const std::string& path) {
        if (!path.empty()) hands_->dialogResults.push_back(path);
        inDialog(
            [](ImportDialog& dialog) { dialog.findChild<QPushButton*>("importAccept")->click(); });
        window_->findChild<QAction*>(action)->trigger();
        QVERIFY2(dialogSeen_, qPrintable(lastBox()));
        window_->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(window_.get()));
    }
    void moveCaretTo(int line) {
        QTextCursor caret = viewer().editor().textCursor();
        caret.setPosition(viewer().editor().document()->findBlockByNumber(line).position());
        viewer().editor().setTextCursor(caret);
        viewer().editor().setFocus();
    }
    [[nodiscard]] QString sentence() const {
        return qtText(window_->program().status().sentence());
    }
    [[nodiscard]] QString lastBox() const {
        return hands_->lines.empty() ? QString() : qtText(hands_->lines.back());
    }
    // Without the head, which names files and the form of angles.
    static std::string tablesOf(const std::string& report) {
        const std::size_t first = report.find("\nA-1");
        return first == std::string::npos ? std::string() : report.substr(first);
    }

    static std::string firstTableOf(const std::string& report) {
        const std::string tables = tablesOf(report);
        return tables.substr(0, tables.find("\r\n\r\n"));
    }

    QTimer watch_;
    bool dialogSeen_ = false;
};

std::unique_ptr<QObject> kelvo::testing::otherProgramsTest() {
    return std::make_unique<OtherProgramsTest>();
}

#include "other_programs_test.moc"
