#include "desktop/point_import.h"

#include <QClipboard>
#include <QFileDialog>
#include <QFileInfo>
#include <QGuiApplication>
#include <QTextBlock>
#include <QTextCursor>

#include "convert/refusal.h"
#include "desktop/import_dialog.h"
#include "desktop/text_viewer.h"
#include "shell/imported_points.h"

namespace kelvo::desktop {

namespace {

// In front of a line of the text; one beyond the last is its end. One step for undo.
void insertLines(TextEditor& editor, std::size_t line, QString text) {
    const QTextDocument& document = *editor.document();
    QTextCursor cursor(editor.document());
    const QTextBlock block = document.findBlockByNumber(static_cast<int>(line));
    if (block.isValid()) {
        cursor.setPosition(block.position());
    } else {
        cursor.movePosition(QTextCursor::End);
        text.prepend(QLatin1Char('\n'));
        text.chop(1);
    }
    cursor.insertText(text);
    editor.setTextCursor(cursor);
    editor.ensureCursorVisible();
}

}  // namespace

void PointImport::warn(const std::string& sentence) {
    messages_.show({.text = sentence, .icon = Icon::Warning, .buttons = Buttons::Ok, .title = {}});
}

bool PointImport::dataFileIsOnView() {
    const bool isThere =
        book_.at("Richtxt")->isVisible() &&
        qt(program_.fileOnView()).endsWith(QLatin1String(".dat"), Qt::CaseInsensitive);
    if (!isThere)
        warn("점은 화면에 열려 있는 데이터 파일(.dat)로 가져옵니다. 먼저 데이터 파일을 여십시오.");
    return isThere;
}

void PointImport::askForFile(QWidget* parent) {
    if (!dataFileIsOnView()) return;
    QFileDialog dialog(parent, QStringLiteral("점 가져오기"));
    dialog.setFileMode(QFileDialog::ExistingFile);
    QString endings = QStringLiteral("*.csv *.txt");
    for (const FormatLimits& format : vectorFormats())
        endings += QStringLiteral(" *.") + qt(std::string(format.ending));
    dialog.setNameFilters(
        {QStringLiteral("점 목록 (%1)").arg(endings), QStringLiteral("모든 파일 (*)")});
    dialog.setDirectory(QFileInfo(qt(program_.fileOnView())).absolutePath());
    if (dialog.exec() != QDialog::Accepted) return;
    const QString path = dialog.selectedFiles().value(0);
    take(parent, QFileInfo(path).fileName(),
         [this, &path] { return pointListOfFile(disk_, path.toStdString()); });
}

void PointImport::takeClipboard(QWidget* parent) {
    if (!dataFileIsOnView()) return;
    take(parent, QStringLiteral("클립보드"),
         [] { return pointListOfText(QGuiApplication::clipboard()->text().toStdString()); });
}

void PointImport::take(QWidget* parent, const QString& from,
                       const std::function<PointList()>& read) {
    try {
        insert(parent, from, read());
    } catch (const Refusal& refusal) {
        warn(std::string("가져올 수 없습니다: ") + refusal.what());
    }
}

void PointImport::insert(QWidget* parent, const QString& from, const PointList& list) {
    TextEditor& editor = book_.viewer()->editor();
    const QTextCursor caret = editor.textCursor();
    const std::string text = editor.toPlainText().toStdString();
    ImportDialog dialog(list, from, parent, [&](const ImportChoice& choice) {
        return importedLines(list, choice, text, static_cast<std::size_t>(caret.blockNumber()),
                             static_cast<std::size_t>(caret.positionInBlock()));
    });
    if (dialog.exec() != QDialog::Accepted) return;
    const ImportedLines& made = dialog.lines();
    insertLines(editor, made.line, qt(made.text));
    editor.setFocus(Qt::OtherFocusReason);
    book_.say(QStringLiteral("%1점을 %2행에 가져왔습니다: %3 (Ctrl+Z로 되돌립니다)")
                  .arg(made.points)
                  .arg(made.line + 1)
                  .arg(from));
}

}  // namespace kelvo::desktop
