#include "desktop/data_file_highlighter.h"

#include <QApplication>
#include <QPalette>
#include <array>

namespace kelvo::desktop {

namespace {

struct Colours {
    QRgb light;
    QRgb dark;
};

// In the order of WordKind. A column keeps its colour, so that a shifted one is seen at once.
constexpr std::array<Colours, 8> kColours{{
    {0xFF1F4E79, 0xFF7FB8E6},  // command
    {0xFF5B3A8C, 0xFFC3A6F0},  // name
    {0xFF0F6B3C, 0xFF7FD1A0},  // north
    {0xFF8A4B00, 0xFFE8B36B},  // east
    {0xFF5A5A5A, 0xFFB8B8B8},  // height
    {0xFF0F6B6B, 0xFF7FCACA},  // number
    {0xFF707880, 0xFF9AA4AC},  // comment
    {0xFF8C9298, 0xFF80868C},  // unread
}};

// The state of a line for the next one, as a number.
int numberOf(const LinesToCome& state) {
    return static_cast<int>(state.block) * 16 + state.parameterLines;
}

LinesToCome stateOf(int number) {
    if (number < 0) return {};
    return {.block = static_cast<LinesToCome::Block>(number / 16), .parameterLines = number % 16};
}

}  // namespace

DataFileHighlighter::DataFileHighlighter(QTextDocument* document) : QSyntaxHighlighter(document) {}

QTextCharFormat DataFileHighlighter::formatOf(WordKind kind) const {
    const Colours& colours = kColours[static_cast<std::size_t>(kind)];
    const bool dark = QApplication::palette().base().color().lightness() < 128;
    QTextCharFormat format;
    format.setForeground(QColor::fromRgb(dark ? colours.dark : colours.light));
    if (kind == WordKind::Command) format.setFontWeight(QFont::Bold);
    if (kind == WordKind::Unread) format.setFontItalic(true);
    return format;
}

void DataFileHighlighter::highlightBlock(const QString& line) {
    LinesToCome state = stateOf(previousBlockState());
    const QByteArray bytes = line.toUtf8();
    const std::string_view text(bytes.data(), static_cast<std::size_t>(bytes.size()));
    for (const DataFileWord& word : wordsOfDataLine(text, state)) {
        const auto letters = [&bytes](std::size_t at, std::size_t length) {
            return static_cast<int>(
                QString::fromUtf8(bytes.constData() + at, static_cast<qsizetype>(length)).size());
        };
        setFormat(letters(0, word.at), letters(word.at, word.length), formatOf(word.kind));
    }
    setCurrentBlockState(numberOf(state));
}

}  // namespace kelvo::desktop
