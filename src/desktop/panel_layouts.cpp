#include "desktop/panel_layouts.h"

#include <QFrame>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>
#include <array>

#include "desktop/box_grid.h"
#include "desktop/folding_pair.h"
#include "desktop/panel_keys.h"
#include "desktop/plot_view.h"
#include "desktop/text_viewer.h"
#include "shell/boxes_without_number.h"

namespace kelvo::desktop {

namespace {

// A bar in the colour of a selection, with the caption of the panel.
QFrame* captionBar(ElidedLabel*& caption) {
    auto* bar = new QFrame;
    bar->setAutoFillBackground(true);
    bar->setBackgroundRole(QPalette::Highlight);
    auto* row = new QHBoxLayout(bar);
    row->setContentsMargins(10, 4, 10, 4);
    caption = new ElidedLabel(bar);
    caption->setForegroundRole(QPalette::HighlightedText);
    row->addWidget(caption, 1);
    return bar;
}

QPushButton* exportButton(const char* name) {
    auto* button = new QPushButton(QStringLiteral("내보내기"));
    button->setObjectName(QString::fromLatin1(name));
    button->setToolTip(QStringLiteral(
        "변환한 점을 다른 프로그램의 파일로 씁니다 (GeoPackage, Shapefile, DXF, ...)"));
    return button;
}

}  // namespace

std::function<void()> clicker(WidgetBook& book, std::string_view button) {
    return [clicked = qobject_cast<QPushButton*>(book.at(button))] { clicked->click(); };
}

bool goToBoxWithoutNumber(WidgetBook& book, std::initializer_list<std::string_view> frames) {
    const Control* box = firstBoxWithoutNumber(book.form(), frames);
    if (box == nullptr) return false;
    book.at(box->name())->setFocus(Qt::OtherFocusReason);
    return true;
}

FilePanel layOutFilePanel(WidgetBook& book) {
    FilePanel parts;
    parts.panel = book.at("frmeFile");
    auto* column = new QVBoxLayout(parts.panel);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);

    QFrame* bar = captionBar(parts.path);
    parts.path->setObjectName(QStringLiteral("frmeFileCaption"));
    column->addWidget(bar);

    parts.body = new QWidget(parts.panel);
    auto* body = new QVBoxLayout(parts.body);
    body->setContentsMargins(8, 8, 8, 4);
    body->addWidget(book.at("Richtxt"));
    column->addWidget(parts.body, 1);

    auto* saving = new QHBoxLayout;
    saving->addWidget(book.at("cmdShow"));
    saving->addStretch(1);
    saving->addWidget(book.at("cmdSave"));
    saving->addWidget(book.at("cmdSaveAs"));
    parts.exporting = exportButton("exportPoints");
    saving->addWidget(parts.exporting);
    auto* leaving = new QHBoxLayout;
    leaving->addStretch(1);
    for (const char* name : {"cmdPrint", "cmdPrintMode", "cmdClose"}) {
        leaving->addWidget(book.at(name));
    }
    auto* commands = new FoldingPair(saving, leaving, 1, 0);
    for (QLayout* row : {static_cast<QLayout*>(saving), static_cast<QLayout*>(leaving),
                         static_cast<QLayout*>(commands)}) {
        row->setSpacing(8);
    }
    auto* bottom = new QVBoxLayout;
    bottom->setContentsMargins(8, 2, 8, 8);
    bottom->addLayout(commands);
    column->addLayout(bottom);

    // The button closes without a question; a key doesn't, where that would lose work.
    new PanelKeys(*parts.panel, {}, [&book] {
        if (!book.viewer()->isModified()) clicker(book, "cmdClose")();
    });
    return parts;
}

QPushButton* layOutPlotSettings(WidgetBook& book) {
    auto* manual = new QVBoxLayout(book.at("frmeManual"));
    manual->setContentsMargins(8, 5, 8, 6);
    manual->setSpacing(3);
    const auto named = [&](std::string_view label, std::string_view box) {
        manual->addWidget(book.at(label));
        manual->addWidget(book.at(box));
        if (auto* words = qobject_cast<QLabel*>(book.at(label))) words->setBuddy(book.at(box));
    };
    manual->addWidget(book.at("lblStart"));
    named("lblX", "txtXb");
    named("lblY", "txtYb");
    for (const char* name : {"txtSpan", "txtInter"}) {
        if (QWidget* label = book.labelOf(name)) manual->addWidget(label);
        manual->addWidget(book.at(name));
    }

    // A low window scrolls the settings and keeps them readable.
    auto* content = new QWidget;
    auto* scroll = new QScrollArea;
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setFocusPolicy(Qt::NoFocus);
    scroll->setWidget(content);
    auto* edge = new QVBoxLayout(book.at("frmePcfg"));
    edge->setContentsMargins(0, 0, 0, 0);
    edge->addWidget(scroll);

    auto* column = new QVBoxLayout(content);
    column->setContentsMargins(10, 10, 10, 10);
    for (const char* name : {"optWGS", "optUGS", "optXY"}) column->addWidget(book.at(name));
    column->addSpacing(10);
    for (const char* name : {"optAuto", "optManual", "frmeManual"}) {
        column->addWidget(book.at(name));
    }
    column->addSpacing(10);
    auto* size = new QHBoxLayout;
    if (QWidget* label = book.labelOf("txtFontSize")) size->addWidget(label);
    size->addWidget(book.at("txtFontSize"), 1);
    column->addLayout(size);
    column->addSpacing(10);
    column->addWidget(book.at("cmdPlot"));
    auto* saving = new QPushButton(QStringLiteral("그림 저장..."));
    saving->setObjectName(QStringLiteral("plotSave"));
    saving->setAutoDefault(true);
    saving->setToolTip(QStringLiteral("PNG, SVG, PDF 파일로 저장합니다 (Ctrl+S)"));
    QObject::connect(saving, &QPushButton::clicked, saving, [&book] { book.plotView()->saveAs(); });
    column->addWidget(saving);
    QPushButton* const exporting = exportButton("exportPlotted");
    exporting->setAutoDefault(true);
    column->addWidget(exporting);
    column->addStretch(1);
    scroll->setMinimumWidth(content->sizeHint().width() + 16);

    const auto draw = [&book] {
        if (!goToBoxWithoutNumber(book, {"frmePcfg"})) clicker(book, "cmdPlot")();
    };
    new PanelKeys(*book.at("frmePcfg"), draw, clicker(book, "cmdShow"));
    new PanelKeys(*book.at("pctPlot"), {}, clicker(book, "cmdShow"));
    return exporting;
}

void layOutPrintMode(WidgetBook& book) {
    QWidget* panel = book.at("frmePrintMode");
    auto* edge = new QVBoxLayout(panel);
    edge->setContentsMargins(0, 0, 0, 0);
    auto* card = new QFrame;
    card->setFrameStyle(QFrame::StyledPanel | QFrame::Raised);
    auto* scroll = new QScrollArea;
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setFocusPolicy(Qt::NoFocus);
    scroll->setWidget(card);
    edge->addWidget(scroll);

    auto* column = new QVBoxLayout(card);
    column->setContentsMargins(0, 0, 0, 12);
    ElidedLabel* caption = nullptr;
    QFrame* bar = captionBar(caption);
    caption->setWholeText(panel->property("caption").toString());
    column->addWidget(bar);

    const auto line = [column](std::initializer_list<QWidget*> widgets, int indent) {
        auto* row = new QHBoxLayout;
        row->setContentsMargins(14 + indent, 2, 14, 2);
        for (QWidget* widget : widgets) {
            if (widget != nullptr) row->addWidget(widget);
        }
        row->addStretch(1);
        column->addLayout(row);
    };
    column->addSpacing(6);
    line({book.at("optFast")}, 0);
    line({book.labelOf("txtLmr"), book.at("txtLmr")}, 24);
    column->addSpacing(8);
    line({book.at("Option1")}, 0);
    line({book.at("cmbFont"), book.at("cmbFontStyle"), book.at("cmbSize")}, 24);
    line({book.at("chk1"), book.at("chk2")}, 24);
    column->addSpacing(10);
    auto* commands = new QHBoxLayout;
    commands->setContentsMargins(14, 0, 14, 0);
    commands->addStretch(1);
    commands->addWidget(book.at("cmdModeSave"));
    commands->addWidget(book.at("cmdModeCancel"));
    column->addLayout(commands);

    const std::array<std::pair<const char*, const char*>, 3> names{
        {{"cmbFont", "글꼴"}, {"cmbFontStyle", "글꼴 모양"}, {"cmbSize", "크기"}}};
    for (const auto& [name, words] : names) {
        if (book.labelOf(name) == nullptr) {
            book.at(name)->setAccessibleName(QString::fromUtf8(words));
        }
    }

    // What people expect of a panel that works like a dialog.
    new PanelKeys(*panel, clicker(book, "cmdModeSave"), clicker(book, "cmdModeCancel"));
}

}  // namespace kelvo::desktop
