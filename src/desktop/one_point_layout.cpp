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
#include "desktop/folding_pair.h"
#include "desktop/panel_keys.h"
#include "desktop/panel_layouts.h"
#include "desktop/roomy_text.h"

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
    constexpr std::array<std::string_view, 5> ofParameters{"Frame4", "Frame10", "Frame8", "Frame5",
                                                           "Frame14"};
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
            const bool isParameter =
                std::find(ofParameters.begin(), ofParameters.end(), part) != ofParameters.end();
            if (isParameter == parameters) next(book.at(control.name()));
        }
    }
    next(book.at("cmdOneClose"));
}

FoldingPair* pair(QLayout* first, QLayout* second, int firstShare, int secondShare) {
    auto* both = new FoldingPair(first, second, firstShare, secondShare);
    both->setSpacing(6);
    return both;
}

// Frames one below the other; the last one takes what height is left.
QLayout* column(WidgetBook& book, std::initializer_list<std::string_view> frames) {
    auto* stack = new QVBoxLayout;
    for (const std::string_view name : frames) stack->addWidget(book.at(name));
    stack->setStretch(stack->count() - 1, 1);
    return stack;
}

QLayout* afterArrows(QLayout* arrows, QLayout* coordinates) {
    auto* row = new QHBoxLayout;
    row->setSpacing(6);
    row->addLayout(arrows);
    row->addLayout(coordinates, 1);
    return row;
}

// The four frames with their arrows, an arrow's column a fifth to a quarter as wide as a frame.
FoldingPair* chainOfFrames(WidgetBook& book) {
    auto* last = new QVBoxLayout;
    last->addWidget(book.at("Frame13"), 1);
    last->addWidget(book.at("lblHeights"));
    last->addWidget(book.at("lblGeoid"));
    last->addWidget(book.at("cmdOneClose"), 0, Qt::AlignRight | Qt::AlignBottom);

    QLayout* user =
        afterArrows(arrows(book, "cmdW2B", "lblDatum", "cmdB2W"), column(book, {"Frame2"}));
    QLayout* tm =
        afterArrows(arrows(book, "cmdGP2TM", "lblGrid", "cmdTM2GP"), column(book, {"Frame3"}));
    QLayout* utm = afterArrows(arrows(book, "cmdTM2UTM", "lblUtm", "cmdUTM2TM"), last);
    return pair(pair(column(book, {"frmeWGS"}), user, 4, 5), pair(tm, utm, 1, 1), 9, 10);
}

FoldingPair* parameterFrames(WidgetBook& book) {
    return pair(pair(column(book, {"Frame4"}), column(book, {"Frame10", "Frame8"}), 5, 2),
                pair(column(book, {"Frame5"}), column(book, {"Frame14"}), 1, 1), 7, 8);
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

    FoldingPair* chain = chainOfFrames(book);
    FoldingPair* parameters = parameterFrames(book);
    rows->addLayout(chain);
    rows->addLayout(parameters);
    rows->addStretch(1);

    auto* scroll = new QScrollArea;
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setFocusPolicy(Qt::NoFocus);
    scroll->setWidget(content);
    new RoomyText(*scroll, [rows, chain, parameters] {
        const QMargins edges = rows->contentsMargins();
        const int width = std::max(chain->unfoldedWidth(), parameters->unfoldedWidth());
        return QSize(width + edges.left() + edges.right(), rows->minimumSize().height());
    });
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
