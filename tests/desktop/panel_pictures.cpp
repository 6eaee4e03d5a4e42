// panel_pictures FOLDER [dark]: a picture of each panel for the documents, with a day's work in it.
#include <QAction>
#include <QApplication>
#include <QDir>
#include <QPrintPreviewDialog>
#include <QTest>
#include <QTimer>
#include <cstdio>
#include <fstream>

#include "common/application_folder.h"
#include "common/code_page.h"
#include "desktop/import_dialog.h"
#include "desktop/look_of_window.h"
#include "desktop/main_window.h"
#include "desktop/text_viewer.h"
#include "desktop/window_hands.h"

namespace {

using namespace kelvo;

constexpr const char* kData =
    "7 para\r\n"
    "   115.8    -474.99     -674.11\r\n"
    "   1.16     -2.31      -1.63\r\n"
    "   -6.43\r\n"
    "CORRECTION\r\n"
    "OUTPUT  ddd-mm-ssss\r\n"
    "\r\n"
    "*  시점부터 종점까지\r\n"
    "WGS    인천No-3     37.35332567   126.32293454   30.1756\r\n"
    "       인천부두끝   37.35772984   126.33223244   31.2534\r\n"
    "       TP-153       37.34474747   126.32519737   30.5823\r\n"
    "       송도1        37.35012210   126.31583310   27.9120\r\n"
    "       송도2        37.34582200   126.33102400   28.4410\r\n"
    "TM     계양산       454884.2345   160963.974   395.4\r\n"
    "\r\n"
    "DIST   인천No-3     TP-153\r\n"
    "       송도1        송도2\r\n"
    "end\r\n";

constexpr const char* kKnownPoints =
    "*  이름      WGS위도      WGS경도       타원체고  위도         경도          표고     "
    "가중치\r\n"
    "인천No-3   37.35332667  126.32293448  30.1756   37.35230997  126.32365917  11.5423   1\r\n"
    "강화12     37.43120000  126.27000000  42.0000   37.43018942  126.27074150  24.1180   1\r\n"
    "TP-153     37.34480000  126.57000000  40.2500   37.34381009  126.57075821  19.8640   1\r\n"
    "서울원점   37.33000000  127.00360000  88.8000   37.32498464  127.00436298  65.7120   1\r\n"
    "*\r\n"
    "*  끝\r\n";

// As a receiver writes it, with a name that is too wide for the tables.
constexpr const char* kReceiverList =
    "점명,위도,경도,타원체고,정밀도\r\n"
    "송도3,37.38214467,126.64120833,28.1170,0.012\r\n"
    "송도4,37.38190281,126.64933194,28.3025,0.011\r\n"
    "송도국제교입구,37.37744131,126.65307522,31.8862,0.015\r\n"
    "수준점7,37.37601908,126.66158114,27.5401,0.010\r\n"
    "수준점8,37.37455219,126.66920056,27.6188,0.010\r\n";

void put(const std::string& path, const std::string& text) {
    std::ofstream(path, std::ios::binary) << encodeCodePage(text);
}

class Pictures {
public:
    explicit Pictures(const QString& folder) : folder_(folder) {}

    void take(QWidget& widget, const QString& name) {
        QApplication::processEvents();
        QTest::qWait(150);
        const QImage image = widget.grab().toImage();
        const QImage plain = image.convertToFormat(QImage::Format_RGB888);
        if (!plain.save(folder_.filePath(name + QStringLiteral(".png")), "PNG", 0)) {
            std::fprintf(stderr, "%s not written\n", qPrintable(name));
            good_ = false;
        }
    }

    // Of the dialog that the action opens; it is then cancelled.
    template <class Dialog>
    void takeDialog(QAction& action, const QString& name) {
        QTimer watch;
        bool taken = false;
        QObject::connect(&watch, &QTimer::timeout, &watch, [&] {
            auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
            if (dialog == nullptr) return;
            watch.stop();
            take(*dialog, name);
            taken = true;
            dialog->reject();
        });
        watch.start(20);
        action.trigger();
        good_ &= taken;
    }

    [[nodiscard]] bool good() const { return good_; }

private:
    QDir folder_;
    bool good_ = true;
};

}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    if (argc != 2 && argc != 3) return 2;
    const auto theme = argc == 3 ? desktop::Theme::Dark : desktop::Theme::Light;
    desktop::setUpFonts(application);
    desktop::setTheme(application, theme);

    const QString place = QDir::tempPath() + QStringLiteral("/Kelvo");
    QDir(place).removeRecursively();
    const std::string folder = place.toStdString();
    makeApplicationFolder(folder);
    put(folder + "/data/현장1.dat", kData);
    put(folder + "/kelvo.cor", kKnownPoints);

    desktop::MainWindow window(folder);
    std::vector<desktop::Sheet> sheets;
    window.onSheets = [&sheets](std::vector<desktop::Sheet> taken) { sheets = std::move(taken); };
    window.onFaultReport = [](const QString& report) {
        std::fprintf(stderr, "%s\n", qPrintable(report));
    };
    testing::WindowHands hands(window);
    Pictures pictures(QString::fromLocal8Bit(argv[1]));
    if (!window.start()) return 1;
    window.showSample();
    pictures.take(window, "start");
    window.openDataFile(folder + "/data/현장1.dat");
    hands.click("cmdClose");

    hands.click("mnuBatchEdit");
    pictures.take(window, "data");
    put(folder + "/data/수신기.csv", kReceiverList);
    hands.dialogResults.emplace_back(folder + "/data/수신기.csv");
    pictures.takeDialog<desktop::ImportDialog>(*window.findChild<QAction*>("workImport"), "import");
    hands.click("mnuCorrEdit");
    pictures.take(window, "known-points");
    hands.click("mnuBatchGo");
    QTextCursor caret = window.book().viewer()->editor().textCursor();
    caret.movePosition(QTextCursor::End);
    window.book().viewer()->editor().setTextCursor(caret);
    pictures.take(window, "result");
    hands.click("cmdShow");
    hands.click("optXY");
    hands.click("cmdPlot");
    pictures.take(window, "plot");
    hands.click("cmdPrint");
    if (!sheets.empty()) {
        QPrinter printer(QPrinter::HighResolution);
        desktop::setUpPrinter(printer);
        QPrintPreviewDialog preview(&printer);
        QObject::connect(&preview, &QPrintPreviewDialog::paintRequested,
                         [&sheets](QPrinter* target) {
                             if (!desktop::paintSheets(*target, sheets)) std::puts("no preview");
                         });
        preview.setWindowTitle(QStringLiteral("인쇄 미리보기"));
        preview.resize(760, 860);
        preview.show();
        pictures.take(preview, "preview");
    }
    hands.click("mnuCorrShow");
    pictures.take(window, "detail");

    hands.click("mnuOneOpen");
    hands.choose("cmb7Para", 1);
    hands.click("optWdms");
    hands.type("txtWdmsPhi", "37.35332567");
    hands.type("txtWdmsLam", "126.32293454");
    hands.type("txtWdmsTH", "30.1756");
    hands.click("cmdW2B");
    hands.click("cmdGP2TM");
    hands.click("cmdTM2UTM");
    pictures.take(window, "one-point");
    desktop::setTheme(application, desktop::Theme::Dark);
    pictures.take(window, "one-point-dark");
    desktop::setTheme(application, theme);
    hands.click("mnuPrintMode");
    pictures.take(window, "print-mode");
    hands.click("cmdModeCancel");
    hands.click("mnuPrintBrief");
    hands.click("mnuPrintShow");
    pictures.take(window, "saved-results");
    return pictures.good() ? 0 : 1;
}
