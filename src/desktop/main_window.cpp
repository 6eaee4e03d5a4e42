#include "desktop/main_window.h"

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QCloseEvent>
#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QMenuBar>
#include <QSettings>
#include <QStandardPaths>
#include <QStatusBar>
#include <QUrl>
#include <algorithm>
#include <cmath>

#include "desktop/fault_report.h"
#include "desktop/file_drop.h"
#include "desktop/menu_keys.h"
#include "desktop/native_paths.h"
#include "desktop/text_viewer.h"
#include "panels/point_texts.h"
#include "shell/main.h"

namespace kelvo::desktop {

namespace {

constexpr double kTwipsPerPixel = 15;
constexpr qsizetype kMostLinesOfABox = 20;
constexpr int kEntryOpen = 2;  // mnuFileItem(2): 기존파일 열기

}  // namespace

MainWindow::MainWindow(const std::string& applicationFolder)
    : applicationFolder_(applicationFolder),
      messages_(dialogParent_),
      dialogs_(dialogParent_, [this]() -> QPrinter& { return systemPrinter(); }),
      rawPrinter_([this](const QString& text) { book_->say(text); }),
      alarm_(gate_),
      journal_(applicationFolder),
      unsavedTextBar_(new UnsavedTextBar(this)) {
    setObjectName(QStringLiteral("frmKelvo"));
    setAccessibleDescription(QStringLiteral("frmKelvo"));
    dialogParent_.window = this;
    gate_.before = [this](EventGate::Event event) { beforeEvent(event); };
    gate_.after = [this](EventGate::Event event) { afterEvent(event); };
    gate_.onFault = [this](int number, const std::string& text) { reportFault(number, text); };

    program_ = std::make_unique<frmKelvo>(applicationFolder, Services{.disk = disk_,
                                                                      .messages = messages_,
                                                                      .programs = programs_,
                                                                      .dialogs = dialogs_,
                                                                      .rawPrinter = rawPrinter_,
                                                                      .beeper = beeper_,
                                                                      .clock = clock_,
                                                                      .screen = primaryScreen_,
                                                                      .pointer = pointer_,
                                                                      .surfaces = *this,
                                                                      .programEnd = end_,
                                                                      .alarm = alarm_,
                                                                      .journal = journal_});
    stage_ = new PanelStage;
    setCentralWidget(stage_);
    book_ = std::make_unique<WidgetBook>(program_->form(), gate_, *menuBar(), stage_);
    buildPanels();
    bindWindow();
    addShortcuts();
    leadIntoMenus(*menuBar());
    addBottomLine();
    addCornerMenus();
    new FileDrop(*this, [this](const std::vector<std::string>& paths) { openFiles(paths); });
    watchUnsavedText();
    addBringBack();
}

MainWindow::~MainWindow() {
    // The widgets go before what they call.
    gate_.close();
    setCentralWidget(nullptr);
}

Surface& MainWindow::screen() {
    return book_->plotView()->surface();
}

void MainWindow::buildPanels() {
    layOutOnePointPanel(*book_);
    filePanel_ = layOutFilePanel(*book_);
    for (QPushButton* button : {filePanel_.exporting, layOutPlotSettings(*book_)})
        connect(button, &QPushButton::clicked, this, [this] { export_->ask(this); });
    layOutPrintMode(*book_);
    stage_->setUp(*book_, filePanel_);

    filePanel_.panel->installEventFilter(this);
    filePanel_.path->setWholeText(filePanel_.panel->property("caption").toString());
    book_->plotView()->placeAt = [this](QPointF twips, double reach) {
        const PlotPlace place = program_->plotPlaceAt(twips.x(), twips.y(), reach);
        return std::pair(qt(place.coordinates), qt(place.point));
    };
    connect(book_->plotView(), &PlotView::saveFailed, this, [this](const QString& path) {
        messages_.show(
            {.text = (path + QStringLiteral(" 파일을 저장할 수 없습니다.")).toStdString(),
             .icon = Icon::Warning,
             .buttons = Buttons::Ok,
             .title = {}});
    });
}

void MainWindow::bindWindow() {
    Control* window = program_->form().find("frmKelvo");
    if (window == nullptr) return;
    setWindowTitle(qt(window->caption()));
    window->watch([this, window](Property property) {
        if (property == Property::Caption) setWindowTitle(qt(window->caption()));
        if (property == Property::Place && window->width() > 0) {
            const auto pixels = [](double twips) {
                return static_cast<int>(std::lround(twips / kTwipsPerPixel));
            };
            place_.put({pixels(window->left()), pixels(window->top()), pixels(window->width()),
                        pixels(window->height())});
        }
    });
}

void MainWindow::addShortcuts() {
    const auto key = [this](const char* name, const QKeySequence& keys) {
        if (QAction* action = book_->action(name)) action->setShortcut(keys);
    };
    key("mnuBatchGo", Qt::Key_F5);
    key("mnuBatchEdit", Qt::Key_F4);
    key("mnuOneOpen", Qt::Key_F2);
    key("mnuHelpFile", QKeySequence::HelpContents);
}

void MainWindow::addBottomLine() {
    status_ = new StatusBar(program_->status(), this);
    statusBar()->setSizeGripEnabled(false);
    statusBar()->addPermanentWidget(status_, 1);
    text_ = new TextOnView(*program_, *book_, *status_, messages_);
    text_->setParent(this);
    export_ = std::make_unique<PointExport>(*program_, *status_, disk_, messages_);
    import_ = std::make_unique<PointImport>(*program_, *book_, disk_, messages_);
    connect(status_, &StatusBar::folderWanted, this, [this](const QString& folder) {
        if (onFolder) return onFolder(folder);
        QDesktopServices::openUrl(QUrl::fromLocalFile(folder));
    });
    book_->onSay = [this](const QString& text) { program_->status().say(text.toStdString()); };
    connect(book_->plotView(), &PlotView::saved, this,
            [this](const QString& path, const QString& note) {
                QString said =
                    QStringLiteral("그림을 저장했습니다: ") + QDir::toNativeSeparators(path);
                if (!note.isEmpty()) said += QStringLiteral(" (") + note + QLatin1Char(')');
                book_->say(said);
            });
}

void MainWindow::addCornerMenus() {
    auto* corner = new QWidget(this);
    auto* row = new QHBoxLayout(corner);
    row->setContentsMargins(0, 0, 4, 0);
    row->setSpacing(2);
    auto* work = new WorkMenu(corner);
    fillWorkMenu(*work);
    look_ = new LookMenu(settingsFile(), corner);
    row->addWidget(work);
    row->addWidget(look_);
    menuBar()->setCornerWidget(corner);
}

void MainWindow::fillWorkMenu(WorkMenu& menu) {
    menu.add(QStringLiteral("결과 파일 열기(&O)..."), QStringLiteral("workOpenResult"),
             [this] { text_->openResult(); });
    menu.add(QStringLiteral("여러 데이터 파일 변환(&R)..."), QStringLiteral("workSeveral"),
             [this] { chooseDataFiles(); });
    menu.addSeparator();
    menu.add(QStringLiteral("변환한 점 내보내기(&E)..."), QStringLiteral("workExport"),
             [this] { export_->ask(this); });
    menu.add(QStringLiteral("파일에서 점 가져오기(&I)..."), QStringLiteral("workImport"),
             [this] { import_->askForFile(this); });
    menu.add(QStringLiteral("클립보드에서 점 가져오기(&V)..."),
             QStringLiteral("workImportClipboard"), [this] { import_->takeClipboard(this); });
    menu.addSeparator();
    menu.add(QStringLiteral("변환한 점을 한 줄로 복사(&L)"), QStringLiteral("workCopyLine"),
             [this] { copyPoint(pointAsLine(program_->form())); });
    menu.add(QStringLiteral("변환한 점을 표로 복사(&T)"), QStringLiteral("workCopyTable"),
             [this] { copyPoint(pointAsTable(program_->form())); });
}

void MainWindow::copyPoint(const std::string& text) {
    QGuiApplication::clipboard()->setText(qt(text));
    book_->say(QStringLiteral("복사했습니다: ") + qt(text).simplified());
}

void MainWindow::chooseDataFiles() {
    QFileDialog dialog(this, QStringLiteral("여러 데이터 파일 변환"));
    dialog.setFileMode(QFileDialog::ExistingFiles);
    dialog.setNameFilter(QStringLiteral("데이터 파일 (*.dat)"));
    dialog.setDirectory(QFileInfo(qt(program_->state().RecentFiles[1])).absolutePath());
    if (dialog.exec() != QDialog::Accepted) return;
    std::vector<std::string> paths;
    for (const QString& path : dialog.selectedFiles()) {
        paths.push_back(QDir::toNativeSeparators(path).toStdString());
    }
    convertFiles(paths);
}

void MainWindow::convertFiles(const std::vector<std::string>& paths) {
    SeveralRuns runs(*program_, *book_, [this](const std::string& path) {
        openDataFile(path);
        const QFileInfo current(qt(program_->state().RecentFiles[1]));
        return current == QFileInfo(qt(path));
    });
    const QStringList done = runs.convert(paths, this);
    if (gate_.isClosed()) return;
    QString text =
        QStringLiteral("데이터 파일 %1개 중 %2개를 끝냈습니다.").arg(paths.size()).arg(done.size());
    for (const QString& line : done.first(std::min(done.size(), kMostLinesOfABox))) {
        text += QLatin1Char('\n') + line;
    }
    if (done.size() > kMostLinesOfABox) text += QStringLiteral("\n...");
    messages_.tell(text.toStdString());
}

bool MainWindow::start() {
    gate_.run([this] { Main(*program_); });
    if (gate_.isClosed()) return false;
    place_.restore(QSettings(settingsFile(), QSettings::IniFormat));
    offerUnsavedText();
    show();
    return true;
}

QString MainWindow::settingsFile() const {
    return QDir(qt(applicationFolder_)).filePath(QStringLiteral("window.ini"));
}

void MainWindow::openDataFile(const std::string& path) {
    gate_.run([this, &path] {
        dialogs_.chooseNext(path);
        program_->form().find("mnuFileItem")->clickEntry(kEntryOpen);
    });
    dialogs_.forgetChosen();
}

void MainWindow::showSample() {
    gate_.run([this] { program_->form().find("mnuBatchEdit")->click(); });
    if (!gate_.isClosed())
        program_->status().say("보기 데이터 파일입니다. F5를 누르면 변환하고 보고서를 보입니다.");
}

void MainWindow::openResultFile(const std::string& path) {
    gate_.run([this, &path] { program_->OpenRichText(path); });
}

void MainWindow::openFiles(const std::vector<std::string>& paths) {
    const auto isDataFile = [](const std::string& path) {
        return qt(path).endsWith(QLatin1String(".dat"), Qt::CaseInsensitive);
    };
    if (paths.size() > 1 && std::all_of(paths.begin(), paths.end(), isDataFile)) {
        return convertFiles(paths);
    }
    const std::string& path = paths.front();
    if (isDataFile(path)) {
        openDataFile(path);
    } else {
        openResultFile(path);
    }
}

void MainWindow::beforeEvent(EventGate::Event event) {
    if (event == EventGate::Event::Typing) return;
    book_->takeViewerText();
}

void MainWindow::afterEvent(EventGate::Event /*event*/) {
    if (dialogParent_.nobodyAnswers && !end_.hasEnded()) {
        // The end was wanted while this event was on its way.
        QMetaObject::invokeMethod(this, &MainWindow::endWithoutAsking, Qt::QueuedConnection);
    }
    if (end_.hasEnded()) {
        gate_.close();
        QApplication::exit(0);
        return;
    }
    book_->plotView()->refresh();
    text_->refresh();
    if (paper_.sheetsAreWaiting()) printWaitingSheets();
}

bool MainWindow::eventFilter(QObject* watched, QEvent* event) {
    if (watched == filePanel_.panel && event->type() == QEvent::DynamicPropertyChange) {
        filePanel_.path->setWholeText(filePanel_.panel->property("caption").toString());
    }
    return QMainWindow::eventFilter(watched, event);
}

bool MainWindow::event(QEvent* event) {
    if (event->type() == QEvent::ThemeChange) look_->followSystem();
    return QMainWindow::event(event);
}

void MainWindow::closeEvent(QCloseEvent* event) {
    QSettings settings(settingsFile(), QSettings::IniFormat);
    place_.remember(settings);
    if (!gate_.isClosed()) {
        gate_.run([this] { program_->Form_Close(); });
    }
    event->setAccepted(gate_.isClosed());
}

}  // namespace kelvo::desktop
