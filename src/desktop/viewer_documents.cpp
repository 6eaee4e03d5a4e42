#include "desktop/viewer_documents.h"

#include <QPlainTextDocumentLayout>
#include <QTextCursor>
#include <algorithm>

namespace kelvo::desktop {

std::string plainText(const QTextDocument& document) {
    // The raw text keeps blanks that don't break; paragraphs and lines end in marks of their own.
    QString text = document.toRawText();
    text.replace(QChar::ParagraphSeparator, QLatin1Char('\n'));
    text.replace(QChar::LineSeparator, QLatin1Char('\n'));
    text.replace(QLatin1Char('\n'), QStringLiteral("\r\n"));
    return text.toStdString();
}

ViewerDocuments::ViewerDocuments(QObject* parent) : QObject(parent) {}

ViewerDocuments::Kept ViewerDocuments::take(const QString& path) {
    const auto found = std::find_if(kept_.begin(), kept_.end(),
                                    [&path](const Kept& kept) { return kept.path == path; });
    if (found != kept_.end()) {
        Kept kept = *found;
        kept_.erase(found);
        return kept;
    }
    auto* document = new QTextDocument(this);
    document->setDocumentLayout(new QPlainTextDocumentLayout(document));
    return {.path = path, .document = document};
}

ViewerDocuments::Kept& ViewerDocuments::open(const QString& path, const std::string& text) {
    Kept kept = take(path);
    QTextDocument& document = *kept.document;
    const QString shown = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
    if (plainText(document) != text) {
        if (document.isUndoAvailable() || document.isRedoAvailable()) {
            QTextCursor all(&document);
            all.beginEditBlock();
            all.select(QTextCursor::Document);
            all.insertText(shown);
            all.endEditBlock();
        } else {
            document.setPlainText(shown);
        }
        kept.caret = kept.scrolled = 0;
    }
    document.setModified(false);
    kept_.push_front(kept);
    while (kept_.size() > kMost) {
        kept_.back().document->deleteLater();
        kept_.pop_back();
    }
    return kept_.front();
}

}  // namespace kelvo::desktop
