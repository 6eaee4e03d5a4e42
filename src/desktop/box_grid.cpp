#include "desktop/box_grid.h"

#include <QHBoxLayout>

#include "desktop/number_box.h"

namespace kelvo::desktop {

namespace {

constexpr int kColumnsOfBox = 3;  // label, box, unit
constexpr int kToTheEdge = -1;

}  // namespace

BoxGrid::BoxGrid(WidgetBook& book, std::string_view frame)
    : book_(book), grid_(new QGridLayout(book.at(frame))) {
    grid_->setContentsMargins(8, 5, 8, 6);
    grid_->setHorizontalSpacing(5);
    grid_->setVerticalSpacing(kRowSpacing);
}

void BoxGrid::boxes(std::initializer_list<std::string_view> names) {
    int column = 0;
    for (const std::string_view name : names) {
        QWidget* box = book_.at(name);
        if (QWidget* label = book_.labelOf(name)) {
            grid_->addWidget(label, row_, column, Qt::AlignRight | Qt::AlignVCenter);
        }
        if (auto* number = qobject_cast<NumberBox*>(box)) number->setLetters(letters_);
        QWidget* unit = book_.unitOf(name);
        grid_->addWidget(box, row_, column + 1, 1, unit == nullptr ? 2 : 1);
        if (unit != nullptr) grid_->addWidget(unit, row_, column + 2);
        grid_->setColumnStretch(column + 1, 1);
        column += kColumnsOfBox;
    }
    ++row_;
}

void BoxGrid::row(std::initializer_list<QWidget*> widgets, QWidget* atTheEdge) {
    auto* line = new QHBoxLayout;
    line->setSpacing(8);
    for (QWidget* widget : widgets) line->addWidget(widget);
    line->addStretch(1);
    if (atTheEdge != nullptr) line->addWidget(atTheEdge);
    grid_->addLayout(line, row_, 0, 1, kToTheEdge);
    ++row_;
}

void BoxGrid::gap() {
    grid_->setRowMinimumHeight(row_, 4);
    ++row_;
}

void BoxGrid::stretch() {
    grid_->setRowStretch(row_, 1);
    ++row_;
}

}  // namespace kelvo::desktop
