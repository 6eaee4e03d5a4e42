// The box of many lines itself: line numbers, marked lines, zoom.
#pragma once

#include <QPlainTextEdit>
#include <map>
#include <vector>

namespace kelvo::desktop {

// Something to be said about a line.
struct LineNote {
    int line = 0;  // counted from 1
    QString text;
};

class TextEditor final : public QPlainTextEdit {
    Q_OBJECT

public:
    explicit TextEditor(QWidget* parent = nullptr);

    // Puts the caret to the front of a line and shows it; the last line for a number beyond it.
    void goToLine(int line);

    // Marks lines, at the edge and under their text; the words show when the pointer rests there.
    // Those before are gone.
    void setNotes(const std::vector<LineNote>& notes);
    [[nodiscard]] QString noteOf(int line) const;

    // Points of the font; between 6 and 40.
    void setTextSize(double points);
    [[nodiscard]] double textSize() const;

signals:
    void textSizeChanged(double points);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool event(QEvent* event) override;

private:
    class Edge;

    [[nodiscard]] int edgeWidth() const;
    void paintEdge(QPaintEvent* event);
    void fitEdge();
    void mark();
    [[nodiscard]] int lineAt(int y) const;

    QWidget* edge_;
    std::map<int, QString> notes_;
};

}  // namespace kelvo::desktop
