// What the window does so that no text is lost that was typed into it.
#include <QApplication>
#include <QClipboard>
#include <QDateTime>
#include <chrono>

#include "desktop/main_window.h"
#include "desktop/text_viewer.h"
#include "shell/rescue.h"

namespace kelvo::desktop {

namespace {

// Typing without a pause is handed over as often as this.
constexpr std::chrono::seconds kLatestTake{2};

}  // namespace

void MainWindow::watchUnsavedText() {
    latestTake_.setSingleShot(true);
    connect(&book_->viewer()->editor(), &QPlainTextEdit::textChanged, this, [this] {
        if (!latestTake_.isActive()) latestTake_.start(kLatestTake);
    });
    connect(&latestTake_, &QTimer::timeout, this,
            [this] { gate_.run([this] { book_->takeViewerText(); }, EventGate::Event::Typing); });
    addToolBar(Qt::TopToolBarArea, unsavedTextBar_);
    connect(unsavedTextBar_, &UnsavedTextBar::bringBack, this, [this] {
        gate_.run([this] { program_->bringBackWaitingText(); });
        offerUnsavedText();
    });
    connect(unsavedTextBar_, &UnsavedTextBar::putAside, this, [this] {
        gate_.run([this] { program_->putWaitingTextAside(); });
        offerUnsavedText();
    });
}

void MainWindow::offerUnsavedText() {
    unsavedTextBar_->offer(program_->waitingText());
}

void MainWindow::keepUnsavedText() {
    book_->takeViewerText();
    if (!program_->keepUnsavedText()) (void)rescueUnsavedText();
}

Rescued MainWindow::rescueUnsavedText() {
    const UnsavedText text = program_->textOnView();
    Rescued rescued{.wasNeeded = true};
    const QString stamp = QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-HHmmss"));
    const auto folders = rescueFolders(applicationFolder_, text.path);
    if (const auto path = rescueText(disk_, folders, stamp.toStdString(), text.text))
        rescued.file = qt(*path);
    QGuiApplication::clipboard()->setText(qt(text.text));
    return rescued;
}

void MainWindow::prepareForTheEnd() {
    keepUnsavedText();
    if (gate_.isBusy() || gate_.isClosed()) return;
    dialogParent_.nobodyAnswers = true;
    try {
        program_->saveSettings();
    } catch (const RuntimeFault&) {
        // A box holds no number, or there is no room: the settings stay as they were.
    }
    dialogParent_.nobodyAnswers = false;
}

void MainWindow::endWithoutAsking() {
    dialogParent_.nobodyAnswers = true;
    keepUnsavedText();
    constexpr int kMostBoxes = 20;
    for (int i = 0; i < kMostBoxes; ++i) {
        QWidget* box = QApplication::activeModalWidget();
        if (box == nullptr) break;
        box->close();
    }
    if (gate_.isBusy()) return;  // it goes on here when the event is through
    if (gate_.isClosed()) {
        QApplication::exit(1);
    } else {
        close();
    }
}

}  // namespace kelvo::desktop
