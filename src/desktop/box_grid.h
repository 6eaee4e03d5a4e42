// A grid of boxes with their labels in front and their units after them.
#pragma once

#include <QGridLayout>
#include <string_view>

#include "desktop/widget_book.h"

namespace kelvo::desktop {

class BoxGrid {
public:
    // Pixels between two rows; more where a panel has room.
    static constexpr int kRowSpacing = 3;

    // Lays out the widget of the frame.
    BoxGrid(WidgetBook& book, std::string_view frame);

    // The next row holds these boxes side by side.
    void boxes(std::initializer_list<std::string_view> names);
    // The next row holds these widgets side by side, over all columns.
    void row(std::initializer_list<QWidget*> widgets, QWidget* atTheEdge = nullptr);
    void gap();
    // Pushes everything up.
    void stretch();

    // How many letters a box shows.
    void setBoxWidth(int letters) { letters_ = letters; }

private:
    WidgetBook& book_;
    QGridLayout* grid_;
    int row_ = 0;
    int letters_ = 16;
};

}  // namespace kelvo::desktop
