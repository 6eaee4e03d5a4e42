// Where the widgets of each panel stand. Every function lays out one panel of the window from
// the widgets in the book.
#pragma once

#include <QLabel>
#include <QPushButton>
#include <QWidget>
#include <functional>
#include <initializer_list>
#include <string_view>

#include "desktop/elided_label.h"
#include "desktop/widget_book.h"

namespace kelvo::desktop {

// The panel of one text file: its caption bar, the text, its commands.
struct FilePanel {
    QWidget* panel = nullptr;
    QWidget* body = nullptr;  // where the text stands, or the plot in its place
    ElidedLabel* path = nullptr;
    QPushButton* exporting = nullptr;
};

// What a press of the button does.
[[nodiscard]] std::function<void()> clicker(WidgetBook& book, std::string_view button);

// Puts the focus on the first box of the frames whose text would end the program when it is read.
// False if there is none.
bool goToBoxWithoutNumber(WidgetBook& book, std::initializer_list<std::string_view> frames);

void layOutOnePointPanel(WidgetBook& book);
void layOutParameters(WidgetBook& book);
[[nodiscard]] FilePanel layOutFilePanel(WidgetBook& book);
// Returns its 내보내기.
[[nodiscard]] QPushButton* layOutPlotSettings(WidgetBook& book);
void layOutPrintMode(WidgetBook& book);

}  // namespace kelvo::desktop
