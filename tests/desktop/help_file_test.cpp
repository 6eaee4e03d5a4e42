// The help text of the application folder.
#include "desktop/help_file.h"

#include <QSettings>
#include <QTest>
#include <fstream>

#include "desktop/window_case.h"
#include "desktop/window_tests.h"
#include "support/temporary_folder.h"

using namespace kelvo;
using namespace kelvo::testing;
using desktop::provideHelpFile;

class HelpFileTest final : public QObject {
    Q_OBJECT

private slots:
    void init() { failOnWarnings(); }

    void aMissingHelpIsWritten() {
        Place at;
        at.start("첫 도움말");
        QCOMPARE(at.help(), std::string("첫 도움말"));
        QVERIFY(!at.hasOld());
    }

    void aNewProgramRenewsAHelpThatNobodyEdited() {
        Place at;
        at.start("첫 도움말");
        at.start("새 도움말");
        QCOMPARE(at.help(), std::string("새 도움말"));
        QVERIFY(!at.hasOld());
    }

    void anEditedHelpStaysUntilTheProgramBringsAnotherAndIsThenKeptBeside() {
        Place at;
        at.start("첫 도움말");
        at.folder.put("KelvoHelp.txt", "고친 도움말");
        at.start("첫 도움말");
        QCOMPARE(at.help(), std::string("고친 도움말"));
        at.start("새 도움말");
        QCOMPARE(at.help(), std::string("새 도움말"));
        QCOMPARE(readBytes(at.folder.file("KelvoHelp.txt.old")), std::string("고친 도움말"));
    }

    // A program before this one didn't remember what it brought.
    void aHelpOfUnknownOriginIsKeptBeside() {
        Place at;
        at.folder.put("KelvoHelp.txt", "옛 도움말");
        at.start("새 도움말");
        QCOMPARE(at.help(), std::string("새 도움말"));
        QCOMPARE(readBytes(at.folder.file("KelvoHelp.txt.old")), std::string("옛 도움말"));
    }

private:
    struct Place {
        TemporaryFolder folder;

        void start(const char* text) {
            QSettings settings(qtText(folder.file("window.ini")), QSettings::IniFormat);
            provideHelpFile(qtText(folder.path()), QByteArray(text), settings);
        }
        [[nodiscard]] std::string help() const { return readBytes(folder.file("KelvoHelp.txt")); }
        [[nodiscard]] bool hasOld() const {
            return QFile::exists(qtText(folder.file("KelvoHelp.txt.old")));
        }
    };
};

std::unique_ptr<QObject> kelvo::testing::helpFileTest() {
    return std::make_unique<HelpFileTest>();
}

#include "help_file_test.moc"
