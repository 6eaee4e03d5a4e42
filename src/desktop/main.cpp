// kelvo: the window.
#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QIcon>
#include <QLibraryInfo>
#include <QMessageBox>
#include <QSettings>
#include <QTranslator>
#include <cstdio>

#include "common/application_folder.h"
#include "common/standard_streams.h"
#include "desktop/end_signals.h"
#include "desktop/fault_report.h"
#include "desktop/help_file.h"
#include "desktop/look_of_window.h"
#include "desktop/main_window.h"
#include "desktop/native_paths.h"

using namespace kelvo;
using namespace kelvo::desktop;

namespace {

// The toolkit would wait for the other end of a pipe.
void setAsideIfNoFile(const QString& path) {
    const QFileInfo found(path);
    if (found.exists() && !found.isFile()) QFile::rename(path, path + QStringLiteral(".old"));
}

int reportStart(const RuntimeFault& fault) {
    QMessageBox::critical(nullptr, QStringLiteral("Kelvo"),
                          faultReport(fault.number(), fault.text(), {}));
    return 1;
}

}  // namespace

int main(int argc, char** argv) {
    secureStandardStreams();
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("kelvo"));
    // No display name: it would stand after the form's titles.
    QApplication::setApplicationVersion(QStringLiteral(KELVO_VERSION));
    QApplication::setDesktopFileName(QStringLiteral("kelvo"));
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/kelvo/icon.png")));

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("측량 좌표변환 프로그램"));
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption folderOption(QStringLiteral("app-folder"),
                                          QStringLiteral("설정과 결과를 두는 폴더"),
                                          QStringLiteral("DIR"));
    const QCommandLineOption themeOption(QStringLiteral("theme"),
                                         QStringLiteral("화면 색: system, light, dark"),
                                         QStringLiteral("NAME"));
    parser.addOptions({folderOption, themeOption});
    parser.addPositionalArgument(QStringLiteral("DATA.dat"), QStringLiteral("열 데이터 파일"),
                                 QStringLiteral("[DATA.dat]"));
    parser.process(application);

    QTranslator dialogs;
    if (dialogs.load(QStringLiteral("qtbase_ko"),
                     QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        QApplication::installTranslator(&dialogs);
    }
    setUpFonts(application);

    try {
        std::string folder = findApplicationFolder();
        if (parser.isSet(folderOption)) {
            folder = QDir(parser.value(folderOption)).absolutePath().toStdString();
        }
        makeApplicationFolder(folder);
        const QString shownFolder = QString::fromStdString(folder);
        const QString settingsFile = QDir(shownFolder).filePath(QStringLiteral("window.ini"));
        setAsideIfNoFile(settingsFile);
        QSettings settings(settingsFile, QSettings::IniFormat);
        QFile help(QStringLiteral(":/kelvo/KelvoHelp.txt"));
        if (help.open(QIODevice::ReadOnly)) provideHelpFile(shownFolder, help.readAll(), settings);
        setTheme(application, themeNamed(parser.isSet(themeOption)
                                             ? parser.value(themeOption)
                                             : settings.value(QStringLiteral("theme")).toString()));

        const int percent = settings.value(QStringLiteral("text"), 100).toInt();
        if (percent != 100) setTextPercent(application, percent);

        // A name on the command line counts from where the program was started, not from the
        // folder of the data file that it will have moved to.
        const QString shownFile = parser.positionalArguments().value(0);
        std::string dataFile;
        if (!shownFile.isEmpty()) dataFile = absoluteName(argumentShownAs(shownFile, argc, argv));

        const bool isFirstStart =
            !QFile::exists(QDir(shownFolder).filePath(QLatin1String(kSettingsFile)));
        MainWindow window(folder);
        if (!window.start()) return 1;
        const EndSignals endSignals;
        QObject::connect(&endSignals, &EndSignals::endWanted, &window,
                         &MainWindow::endWithoutAsking);
        QObject::connect(&application, &QGuiApplication::commitDataRequest, &window,
                         &MainWindow::prepareForTheEnd);
        if (!dataFile.empty())
            window.openDataFile(dataFile);
        else if (isFirstStart)
            window.showSample();
        if (window.gate().isClosed()) return 1;
        return QApplication::exec();
    } catch (const RuntimeFault& fault) {
        return reportStart(fault);
    }
}
