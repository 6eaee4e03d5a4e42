// The parameter frames of the one-point panel.
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QVBoxLayout>

#include "desktop/box_grid.h"
#include "desktop/panel_layouts.h"

namespace kelvo::desktop {

namespace {

constexpr int kParameterLetters = 11;

void layOutShift(WidgetBook& book) {
    BoxGrid grid(book, "Frame4");
    grid.setBoxWidth(kParameterLetters - 2);
    grid.row({book.labelOf("cmb7Para"), book.at("cmb7Para")});
    grid.boxes({"txtdX", "txtOmega"});
    grid.boxes({"txtdY", "txtPhi"});
    grid.boxes({"txtdZ", "txtKappa"});
    grid.boxes({"txtdS"});
    grid.row({book.at("optMolod"), book.at("optBursa")});
    grid.boxes({"Text1", "Text2"});
    grid.stretch();
    // Shown only: nothing reads them, so that typing there would mislead.
    for (const char* name : {"Text1", "Text2"}) {
        if (auto* box = qobject_cast<QLineEdit*>(book.at(name))) {
            box->setReadOnly(true);
            box->setFocusPolicy(Qt::ClickFocus);
        }
    }
}

void layOutCorrections(WidgetBook& book) {
    BoxGrid known(book, "Frame10");
    known.row({book.at("OptCorr"), book.at("OptNoCorr")});

    BoxGrid first(book, "Frame8");
    first.setBoxWidth(kParameterLetters - 2);
    first.row({book.at("lblUserPhi")});
    first.row({book.at("lblPlusdPhi")});
    first.boxes({"txtdPhi"});
    first.boxes({"txtdLam"});
    first.boxes({"txtdH"});
    first.stretch();
}

void layOutTm(WidgetBook& book) {
    BoxGrid ellipsoid(book, "Frame1");
    ellipsoid.setBoxWidth(kParameterLetters);
    ellipsoid.boxes({"txta"});
    ellipsoid.boxes({"txtf"});

    auto* add = new QVBoxLayout(book.at("Frame7"));
    add->setContentsMargins(8, 5, 8, 6);
    add->setSpacing(3);
    add->addWidget(book.at("optAdd"));
    add->addWidget(book.at("optNotAdd"));

    BoxGrid origin(book, "Frame6");
    origin.setBoxWidth(kParameterLetters - 3);
    origin.row({book.at("optWest"), book.at("optCenter"), book.at("optEast")});
    origin.row({book.at("optEastSea"), book.at("optJeju"), book.at("optUser")});
    origin.boxes({"txtPhi0", "txtLam0"});
    origin.boxes({"txtX0", "txtY0"});
    origin.boxes({"txtS0"});
    origin.stretch();

    auto* all = new QGridLayout(book.at("Frame5"));
    all->setContentsMargins(6, 4, 6, 6);
    all->setSpacing(4);
    all->addWidget(book.at("Frame1"), 0, 0);
    all->addWidget(book.at("Frame7"), 0, 1);
    all->addWidget(book.at("Frame6"), 1, 0, 1, 2);
    all->setRowStretch(1, 1);
    all->setColumnStretch(0, 1);
}

void layOutUtm(WidgetBook& book) {
    BoxGrid ellipsoid(book, "Frame15");
    ellipsoid.setBoxWidth(kParameterLetters);
    ellipsoid.boxes({"txtUa"});
    ellipsoid.boxes({"txtUf"});

    BoxGrid origin(book, "Frame16");
    origin.setBoxWidth(kParameterLetters - 3);
    origin.row({book.at("optUTM3"), book.at("optUTM9"), book.at("optUUser")});
    origin.boxes({"txtUPhi0", "txtULam0"});
    origin.boxes({"txtUX0", "txtUY0"});
    origin.boxes({"txtUS0"});
    origin.stretch();

    auto* all = new QVBoxLayout(book.at("Frame14"));
    all->setContentsMargins(6, 4, 6, 6);
    all->setSpacing(4);
    all->addWidget(book.at("Frame15"));
    all->addWidget(book.at("Frame16"), 1);
}

}  // namespace

void layOutParameters(WidgetBook& book) {
    layOutShift(book);
    layOutCorrections(book);
    layOutTm(book);
    layOutUtm(book);
}

}  // namespace kelvo::desktop
