// Colours for the words of a data file: commands, names, coordinates, what nothing reads.
#pragma once

#include <QSyntaxHighlighter>

#include "shell/data_file_words.h"

namespace kelvo::desktop {

class DataFileHighlighter final : public QSyntaxHighlighter {
public:
    explicit DataFileHighlighter(QTextDocument* document);

protected:
    void highlightBlock(const QString& line) override;

private:
    [[nodiscard]] QTextCharFormat formatOf(WordKind kind) const;
};

}  // namespace kelvo::desktop
