// Where the widgets of each panel stand. Every function lays out one panel of the window from
// the widgets in the book.
#pragma once

#include <QLabel>
#include <QWidget>

#include "desktop/widget_book.h"

namespace kelvo::desktop {

// The panel of one text file: its caption bar, the text, its commands.
struct FilePanel {
    QWidget* panel = nullptr;
    QWidget* body = nullptr;  // where the text stands, or the plot in its place
    QLabel* path = nullptr;
    QLabel* unsavedMark = nullptr;
};

void layOutOnePointPanel(WidgetBook& book);
void layOutParameters(WidgetBook& book);
[[nodiscard]] FilePanel layOutFilePanel(WidgetBook& book);
void layOutPlotSettings(WidgetBook& book);
void layOutPrintMode(WidgetBook& book);

}  // namespace kelvo::desktop
