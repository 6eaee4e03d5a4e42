#include "desktop/main_window.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCloseEvent>
#include <QDir>
#include <QMenuBar>
#include <QSettings>
#include <QStandardPaths>
#include <QStatusBar>
#include <QToolButton>
#include <chrono>
#include <cmath>

#include "common/code_page.h"
#include "desktop/fault_report.h"
#include "desktop/file_drop.h"
#include "desktop/menu_keys.h"
#include "desktop/native_paths.h"
#include "desktop/text_viewer.h"
#include "shell/main.h"

namespace kelvo::desktop {

namespace {

constexpr double kTwipsPerPixel = 15;
constexpr int kEntryOpen = 2;  // mnuFileItem(2): 기존파일 열기

}  // namespace

MainWindow::MainWindow(const std::string& applicationFolder)
    : applicationFolder_(applicationFolder),
      messages_(dialogParent_),
      dialogs_(dialogParent_, [this]() -> QPrinter& { return systemPrinter(); }),
      rawPrinter_([this](const QString& text) { tellInStatusLine(text); }),
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
    addThemeButton();
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
    layOutPlotSettings(*book_);
    layOutPrintMode(*book_);
    stage_->setUp(*book_, filePanel_);

    filePanel_.panel->installEventFilter(this);
    filePanel_.path->setWholeText(filePanel_.panel->property("caption").toString());
    connect(book_->viewer(), &TextViewer::modifiedChanged, this, [this] { showUnsavedMark(); });
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

void MainWindow::addThemeButton() {
    auto* button = new QToolButton(this);
    button->setObjectName(QStringLiteral("theme"));
    button->setText(QStringLiteral("◐"));
    button->setAutoRaise(true);
    // Not higher than a menu, or the bar's lower edge breaks between the menus.
    button->setFixedHeight(fontMetrics().height());
    button->setFocusPolicy(Qt::NoFocus);
    button->setToolTip(QStringLiteral("밝은 화면 / 어두운 화면"));
    button->setAccessibleName(QStringLiteral("밝은 화면 / 어두운 화면"));
    connect(button, &QToolButton::clicked, this, [this] {
        const Theme theme = isDark() ? Theme::Light : Theme::Dark;
        setTheme(*static_cast<QApplication*>(QApplication::instance()), theme);
        QSettings(settingsFile(), QSettings::IniFormat)
            .setValue(QStringLiteral("theme"), nameOf(theme));
    });
    menuBar()->setCornerWidget(button);
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

void MainWindow::openResultFile(const std::string& path) {
    gate_.run([this, &path] { program_->OpenRichText(path); });
}

void MainWindow::openFiles(const std::vector<std::string>& paths) {
    const std::string& path = paths.front();
    if (qt(path).endsWith(QLatin1String(".dat"), Qt::CaseInsensitive)) {
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
    showUnsavedMark();
    if (paper_.sheetsAreWaiting()) printWaitingSheets();
}

void MainWindow::tellInStatusLine(const QString& text) {
    constexpr std::chrono::milliseconds kLongEnoughToRead{20'000};
    statusBar()->showMessage(text, static_cast<int>(kLongEnoughToRead.count()));
}

// The mark says that the text differs from the file it came from; nothing is ever asked.
void MainWindow::showUnsavedMark() {
    TextViewer* viewer = book_->viewer();
    if (!viewer->hasUntakenText()) {
        const bool unsaved = program_->textIsUnsaved();
        if (viewer->isModified() != unsaved) viewer->setModified(unsaved);
    }
    filePanel_.unsavedMark->setVisible(viewer->isModified());
}

bool MainWindow::eventFilter(QObject* watched, QEvent* event) {
    if (watched == filePanel_.panel && event->type() == QEvent::DynamicPropertyChange) {
        filePanel_.path->setWholeText(filePanel_.panel->property("caption").toString());
    }
    return QMainWindow::eventFilter(watched, event);
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
