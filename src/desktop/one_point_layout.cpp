// The one-point panel: the four frames as a chain with arrows between them, and below each pair
// the parameters that their arrows work with.
#include <QApplication>
#include <QFont>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>
#include <algorithm>
#include <array>

#include "desktop/angle_reading.h"
#include "desktop/box_grid.h"
#include "desktop/coordinate_clipboard.h"
#include "desktop/panel_keys.h"
#include "desktop/panel_layouts.h"

namespace kelvo::desktop {

namespace {

QLayout* arrows(WidgetBook& book, std::string_view there, std::string_view words,
                std::string_view back) {
    auto* column = new QVBoxLayout;
    column->setSpacing(4);
    column->addStretch(2);
    for (const std::string_view name : {there, words, back}) {
        QWidget* widget = book.at(name);
        if (auto* button = qobject_cast<QPushButton*>(widget)) {
            QFont font = button->font();
            font.setPointSizeF(font.pointSizeF() * 1.3);
            button->setFont(font);
            button->setFixedWidth(54);
        }
        column->addWidget(widget, 0, Qt::AlignHCenter);
    }
    column->addStretch(3);
    return column;
}

void layOutWgs(WidgetBook& book) {
    BoxGrid grid(book, "frmeWGS");
    grid.row({book.at("optWdeg"),
              clipboardButtons(
                  book, {CoordinateForm::Degrees, {"txtWdegPhi", "txtWdegLam", "txtWdegTH"}})});
    grid.boxes({"txtWdegPhi"});
    grid.boxes({"txtWdegLam"});
    grid.boxes({"txtWdegTH"});
    grid.gap();
    grid.row(
        {book.at("optWdms"),
         clipboardButtons(book, {CoordinateForm::Dms, {"txtWdmsPhi", "txtWdmsLam", "txtWdmsTH"}})});
    grid.boxes({"txtWdmsPhi"});
    grid.boxes({"txtWdmsLam"});
    grid.boxes({"txtWdmsTH"});
    grid.gap();
    grid.boxes({"txtwGeoid"});
    grid.boxes({"txtwH"});
    grid.stretch();
}

void layOutUser(WidgetBook& book) {
    BoxGrid grid(book, "Frame2");
    grid.row({book.at("optBdeg"),
              clipboardButtons(
                  book, {CoordinateForm::Degrees, {"txtBdegPhi", "txtBdegLam", "txtBdegH"}})});
    grid.boxes({"txtBdegPhi"});
    grid.boxes({"txtBdegLam"});
    grid.boxes({"txtBdegH"});
    grid.gap();
    grid.row(
        {book.at("optBdms"),
         clipboardButtons(book, {CoordinateForm::Dms, {"txtBdmsPhi", "txtBdmsLam", "txtBdmsH"}})});
    grid.boxes({"txtBdmsPhi"});
    grid.boxes({"txtBdmsLam"});
    grid.boxes({"txtBdmsH"});
    grid.gap();
    grid.boxes({"txtBGeoid"});
    grid.boxes({"txtBTH"});
    grid.stretch();
}

void layOutGrids(WidgetBook& book) {
    BoxGrid tm(book, "Frame3");
    tm.row({}, clipboardButtons(book, {CoordinateForm::Grid, {"txtX", "txtY", "txtH"}}));
    tm.boxes({"txtX"});
    tm.boxes({"txtY"});
    tm.boxes({"txtH"});
    tm.gap();
    tm.boxes({"txtGeoid"});
    tm.boxes({"txtTH"});
    tm.stretch();

    BoxGrid utm(book, "Frame13");
    utm.row({}, clipboardButtons(book, {CoordinateForm::Grid, {"txtUX", "txtUY", "txtUH"}}));
    utm.boxes({"txtUX"});
    utm.boxes({"txtUY"});
    utm.boxes({"txtUH"});
    utm.stretch();

    // The order of the axes confuses: X is the northing here.
    for (const char* north : {"txtX", "txtUX"}) {
        book.at(north)->setToolTip(QStringLiteral("X: 북쪽(N) 방향, m"));
    }
    for (const char* east : {"txtY", "txtUY"}) {
        book.at(east)->setToolTip(QStringLiteral("Y: 동쪽(E) 방향, m"));
    }
}

// The frame or button that stands in the panel itself and holds this control.
std::string partOfPanel(const Form& form, const Control& control) {
    const Control* part = &control;
    while (part != nullptr && part->parent() != "frmeOne") part = form.find(part->parent());
    return part == nullptr ? std::string() : part->name();
}

// Along the work: the coordinates with their arrows from left to right, then the parameters.
void orderTabs(WidgetBook& book) {
    constexpr std::array<std::string_view, 5> parameterFrames{"Frame4", "Frame10", "Frame8",
                                                              "Frame5", "Frame14"};
    QWidget* previous = nullptr;
    const auto next = [&previous](QWidget* widget) {
        if (widget->focusPolicy() == Qt::NoFocus) return;
        if (previous != nullptr) QWidget::setTabOrder(previous, widget);
        previous = widget;
    };
    for (const bool parameters : {false, true}) {
        for (const Control& control : book.form().controls()) {
            const std::string part = partOfPanel(book.form(), control);
            if (part.empty() || part == "cmdOneClose") continue;
            const bool isParameter = std::find(parameterFrames.begin(), parameterFrames.end(),
                                               part) != parameterFrames.end();
            if (isParameter == parameters) next(book.at(control.name()));
        }
    }
    next(book.at("cmdOneClose"));
}

}  // namespace

void layOutOnePointPanel(WidgetBook& book) {
    layOutWgs(book);
    layOutUser(book);
    layOutGrids(book);
    layOutParameters(book);

    auto* content = new QWidget;
    auto* rows = new QVBoxLayout(content);
    rows->setContentsMargins(8, 4, 8, 8);
    rows->setSpacing(6);

    auto* chain = new QHBoxLayout;
    chain->setSpacing(6);
    chain->addWidget(book.at("frmeWGS"), 3);
    chain->addLayout(arrows(book, "cmdW2B", "lblDatum", "cmdB2W"));
    chain->addWidget(book.at("Frame2"), 3);
    chain->addLayout(arrows(book, "cmdGP2TM", "lblGrid", "cmdTM2GP"));
    chain->addWidget(book.at("Frame3"), 3);
    chain->addLayout(arrows(book, "cmdTM2UTM", "lblUtm", "cmdUTM2TM"));
    auto* last = new QVBoxLayout;
    last->addWidget(book.at("Frame13"), 1);
    last->addWidget(book.at("lblHeights"));
    last->addWidget(book.at("lblGeoid"));
    last->addWidget(book.at("cmdOneClose"), 0, Qt::AlignRight | Qt::AlignBottom);
    chain->addLayout(last, 3);
    rows->addLayout(chain);

    auto* parameters = new QHBoxLayout;
    parameters->setSpacing(6);
    parameters->addWidget(book.at("Frame4"), 5);
    auto* corrections = new QVBoxLayout;
    corrections->addWidget(book.at("Frame10"));
    corrections->addWidget(book.at("Frame8"), 1);
    parameters->addLayout(corrections, 2);
    parameters->addWidget(book.at("Frame5"), 4);
    parameters->addWidget(book.at("Frame14"), 4);
    rows->addLayout(parameters);
    rows->addStretch(1);

    auto* scroll = new QScrollArea;
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setFocusPolicy(Qt::NoFocus);
    scroll->setWidget(content);
    auto* panel = new QVBoxLayout(book.at("frmeOne"));
    panel->setContentsMargins(0, 0, 0, 0);
    panel->addWidget(scroll);
    orderTabs(book);

    sayReadingsOfAngles(book);
    const auto goOn = [&book] {
        if (QWidget* box = QApplication::focusWidget()) {
            takeAngleAsNumber(book, box);
            QKeyEvent tab(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier);
            QApplication::sendEvent(box, &tab);
        }
    };
    // Closing takes the parameters over, and a box that holds no number would end the program.
    const auto leave = [&book] {
        if (!goToBoxWithoutNumber(book, {"Frame4", "Frame8", "Frame5", "Frame14"})) {
            clicker(book, "cmdOneClose")();
        }
    };
    new PanelKeys(*book.at("frmeOne"), goOn, leave);
}

}  // namespace kelvo::desktop
