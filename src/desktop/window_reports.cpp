// What leaves the window: sheets to the printer, and the report of a fault.
#include <QApplication>
#include <QFileInfo>
#include <QLabel>
#include <QMessageBox>
#include <QPrintPreviewDialog>
#include <QPushButton>

#include "desktop/fault_report.h"
#include "desktop/main_window.h"

namespace kelvo::desktop {

QPrinter& MainWindow::systemPrinter() {
    if (!printer_) {
        printer_ = std::make_unique<QPrinter>(QPrinter::HighResolution);
        setUpPrinter(*printer_);
    }
    return *printer_;
}

QString MainWindow::documentName() const {
    const bool plotOnView = program_->form().find("pctPlot")->visible();
    const QString name = QFileInfo(filePanel_.path->wholeText()).completeBaseName();
    return plotOnView ? name + QStringLiteral("-그림") : name;
}

void MainWindow::printWaitingSheets() {
    std::vector<Sheet> sheets = paper_.takeSheets();
    if (onSheets) {
        onSheets(std::move(sheets));
        return;
    }
    // The preview prints through the system's dialog, or into a PDF file without a printer.
    QPrinter& printer = systemPrinter();
    printer.setDocName(documentName());
    QPrintPreviewDialog preview(&printer, this);
    preview.setObjectName(QStringLiteral("printPreview"));
    preview.setWindowTitle(QStringLiteral("인쇄 미리보기"));
    preview.resize(size().boundedTo(QSize(900, 1000)));
    connect(&preview, &QPrintPreviewDialog::paintRequested, this,
            [this, &sheets](QPrinter* target) {
                if (paintSheets(*target, sheets)) return;
                QMessageBox::warning(this, QString(),
                                     QStringLiteral("인쇄할 수 없습니다. 프린터와 파일 이름을 "
                                                    "확인하십시오."));
            });
    preview.exec();
}

void MainWindow::reportFault(int number, const std::string& text) {
    QApplication::restoreOverrideCursor();
    Rescued rescued;
    if (book_) {
        book_->takeViewerText();
        if (program_->textIsUnsaved()) {
            program_->keepUnsavedText();
            rescued = rescueUnsavedText();
        }
    }
    const QString report = faultReport(number, text, rescued);
    if (dialogParent_.nobodyAnswers) {
        // Nobody is there to read it.
    } else if (onFaultReport) {
        onFaultReport(report);
    } else {
        QMessageBox box(QMessageBox::Critical, QStringLiteral("Kelvo"), report, QMessageBox::Ok,
                        isVisible() ? this : nullptr);
        box.setTextFormat(Qt::PlainText);
        box.setTextInteractionFlags(Qt::TextSelectableByMouse);
        box.button(QMessageBox::Ok)->setText(QStringLiteral("확인(&O)"));
        box.exec();
    }
    QApplication::exit(1);
}

}  // namespace kelvo::desktop
