// The documents of the files that were on view: coming back to a file brings back its undo
// history, its caret and where it was scrolled to.
#pragma once

#include <QObject>
#include <QTextDocument>
#include <deque>
#include <string>

namespace kelvo::desktop {

// The text of a document with CR LF line ends, and of a text of the form with the toolkit's.
[[nodiscard]] std::string plainText(const QTextDocument& document);

class ViewerDocuments final : public QObject {
public:
    explicit ViewerDocuments(QObject* parent);

    struct Kept {
        QString path;
        QTextDocument* document = nullptr;
        int caret = 0;
        int scrolled = 0;  // lines
    };

    // The document of a file, holding this text and not modified. A text other than the one it
    // held becomes a step that can be undone, if somebody has edited there; else it starts afresh.
    Kept& open(const QString& path, const std::string& text);

    // Those of other files, the latest first, beyond which documents are given up.
    static constexpr std::size_t kMost = 6;

private:
    [[nodiscard]] Kept take(const QString& path);

    std::deque<Kept> kept_;
};

}  // namespace kelvo::desktop
