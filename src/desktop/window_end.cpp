// What the window does so that no text is lost that was typed into it.
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QDateTime>
#include <QMenu>
#include <QMenuBar>
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

// Closing the panel, a run and a load ask nothing; here is what they took off the view.
void MainWindow::addBringBack() {
    auto* bringBack = new QAction(QStringLiteral("되살리기"), this);
    bringBack->setObjectName(QStringLiteral("bringBackText"));
    bringBack->setStatusTip(QStringLiteral("저장하지 않고 닫은 글을 다시 보여 줍니다"));
    connect(bringBack, &QAction::triggered, this,
            [this] { gate_.run([this] { program_->bringBackText(); }); });
    const auto renew = [this, bringBack] { bringBack->setEnabled(program_->canBringBackText()); };

    if (auto* help = menuBar()->findChild<QMenu*>(QStringLiteral("mnuHelp"))) {
        help->addAction(bringBack);
        connect(help, &QMenu::aboutToShow, bringBack, renew);
    }
    book_->viewer()->addFurtherAction(bringBack);
    connect(book_->viewer(), &TextViewer::menuComes, bringBack, renew);
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
