#include "desktop/text_on_view.h"

#include <QAction>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QPushButton>
#include <QShortcut>

#include "common/run_time_fault.h"
#include "desktop/plot_view.h"
#include "desktop/text_viewer.h"

namespace kelvo::desktop {

namespace {

constexpr int kMostCheckedLines = 20'000;  // checking more would hold up the typing

}  // namespace

TextOnView::TextOnView(frmKelvo& program, WidgetBook& book, StatusBar& status,
                       MessageBoxes& messages)
    : program_(program), book_(book), status_(status), messages_(messages) {
    TextViewer* viewer = book.viewer();
    connect(viewer, &TextViewer::modifiedChanged, this,
            [this](bool on) { status_.setUnsaved(on && textIsOnView()); });
    connect(viewer, &TextViewer::loaded, this, &TextOnView::check);
    connect(viewer, &TextViewer::edited, this, &TextOnView::check);
    connect(viewer, &TextViewer::placeChanged, this, [this] {
        if (textIsOnView()) status_.setPlace(book_.viewer()->place());
    });
    connect(book.plotView(), &PlotView::pointedAt, this,
            [this](const QString& coordinates) { status_.setPlace(coordinates); });
    connect(&status, &StatusBar::lineWanted, this, &TextOnView::goToLine);

    // Of the window: the plot stands beside the text's panel, not in it.
    auto* keys = new QShortcut(QKeySequence::Save, viewer->window());
    connect(keys, &QShortcut::activated, this, &TextOnView::save);

    auto* saving = new QAction(QStringLiteral("저장\tCtrl+S"), this);
    connect(saving, &QAction::triggered, this, &TextOnView::save);
    auto* opening = new QAction(QStringLiteral("결과 파일 열기(&O)..."), this);
    connect(opening, &QAction::triggered, this, &TextOnView::openResult);
    viewer->addFurtherAction(saving);
    viewer->addFurtherAction(opening);
    connect(&status.bringBack(), &QPushButton::clicked, this,
            [this] { book_.gate().run([this] { program_.bringBackText(); }); });
}

bool TextOnView::plotIsOnView() const {
    return book_.at("pctPlot")->isVisible();
}

bool TextOnView::textIsOnView() const {
    return book_.at("Richtxt")->isVisible();
}

// The mark says that the text differs from the file it came from; nothing is ever asked.
void TextOnView::refresh() {
    TextViewer* viewer = book_.viewer();
    if (!viewer->hasUntakenText()) {
        const bool unsaved = program_.textIsUnsaved();
        if (viewer->isModified() != unsaved) viewer->setModified(unsaved);
    }
    status_.bringBack().setVisible(program_.canBringBackText());
    status_.setUnsaved(textIsOnView() && viewer->isModified());
    status_.setPlace(textIsOnView() ? viewer->place() : QString());
    showSaving();
    showNotes();
}

void TextOnView::showSaving() {
    if (plotIsOnView()) {
        status_.setSaving(QStringLiteral("Ctrl+S: 그림을 파일로"), {});
    } else if (textIsOnView() && !program_.fileOnView().empty()) {
        const QString path = qt(program_.fileOnView());
        status_.setSaving(QStringLiteral("Ctrl+S: ") + QFileInfo(path).fileName(), path);
    } else {
        status_.setSaving({}, {});
    }
}

void TextOnView::check() {
    findings_.clear();
    const QString path = qt(program_.fileOnView());
    TextViewer* viewer = book_.viewer();
    if (path.endsWith(QLatin1String(".dat"), Qt::CaseInsensitive) &&
        viewer->editor().blockCount() <= kMostCheckedLines) {
        findings_ = program_.findingsIn(viewer->text());
    }
    status_.setFindings(path, findings_);
    showNotes();
}

void TextOnView::showNotes() {
    std::vector<LineNote> notes;
    for (const RunMessage& finding : findings_) {
        notes.push_back({static_cast<int>(finding.line), qt(finding.text)});
    }
    const StatusLine& line = program_.status();
    if (!line.messages().empty() && line.dataFile() == program_.fileOnView()) {
        for (const RunMessage& message : line.messages()) {
            notes.push_back({static_cast<int>(message.line), qt(message.text)});
        }
    }
    book_.viewer()->editor().setNotes(notes);
}

void TextOnView::save() {
    if (plotIsOnView()) return book_.plotView()->saveAs();
    if (!textIsOnView()) return;
    book_.gate().run([this] {
        try {
            program_.saveOnView();
        } catch (const RuntimeFault& fault) {
            messages_.show({.text = "저장하지 못했습니다: " + fault.text(),
                            .icon = Icon::Warning,
                            .buttons = Buttons::Ok,
                            .title = {}});
        }
    });
}

void TextOnView::goToLine(const QString& path, int line) {
    const bool isThere = textIsOnView() && program_.fileOnView() == path.toStdString();
    if (!isThere) {
        if (!QFileInfo(path).isReadable()) return;
        book_.gate().run([this, &path] { program_.OpenRichText(path.toStdString()); });
    }
    book_.viewer()->editor().goToLine(line);
    book_.viewer()->setFocus(Qt::OtherFocusReason);
}

void TextOnView::openResult() {
    QFileDialog dialog(book_.viewer(), QStringLiteral("결과 파일 열기"));
    dialog.setFileMode(QFileDialog::ExistingFile);
    dialog.setNameFilters(
        {QStringLiteral("결과 파일 (*.out *.det)"), QStringLiteral("모든 파일 (*)")});
    dialog.setDirectory(QFileInfo(qt(program_.state().RecentFiles[1])).absolutePath());
    if (dialog.exec() != QDialog::Accepted) return;
    const QString path = QDir::toNativeSeparators(dialog.selectedFiles().value(0));
    if (!QFileInfo(path).isReadable()) return;
    book_.gate().run([this, &path] { program_.OpenRichText(path.toStdString()); });
}

}  // namespace kelvo::desktop
