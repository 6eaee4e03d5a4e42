#include "desktop/panel_stage.h"

#include <QEvent>
#include <QLayout>
#include <algorithm>

namespace kelvo::desktop {

void PanelStage::setUp(const WidgetBook& book, const FilePanel& filePanel) {
    file_ = filePanel;
    background_ = book.find("Image1");
    onePoint_ = book.at("frmeOne");
    plot_ = book.at("pctPlot");
    plotSettings_ = book.at("frmePcfg");
    printMode_ = book.at("frmePrintMode");
    for (QWidget* panel : {onePoint_, file_.panel, plot_, plotSettings_, printMode_}) {
        panel->installEventFilter(this);
    }
    if (background_ != nullptr) background_->lower();
    arrange();
}

// As wide as the row of buttons under a text; higher panels scroll.
QSize PanelStage::minimumSizeHint() const {
    const int row = file_.panel == nullptr ? 0 : file_.panel->minimumSizeHint().width();
    return {std::max(560, row), 360};
}

void PanelStage::resizeEvent(QResizeEvent*) {
    arrange();
}

bool PanelStage::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Show || event->type() == QEvent::Hide) {
        if (event->type() == QEvent::Show) {
            static_cast<QWidget*>(watched)->raise();
            // The plot belongs to the text panel and stands in it.
            if (watched == file_.panel) {
                plot_->raise();
                plotSettings_->raise();
            }
        }
        printMode_->raise();
        arrange();
    }
    return QWidget::eventFilter(watched, event);
}

QRect PanelStage::plotArea() const {
    if (!file_.panel->isVisibleTo(this)) return rect();
    file_.panel->layout()->activate();
    return QRect(file_.body->mapTo(this, QPoint(0, 0)), file_.body->size());
}

void PanelStage::arrange() {
    if (plot_ == nullptr) return;
    if (background_ != nullptr) background_->setGeometry(rect());
    onePoint_->setGeometry(rect());
    file_.panel->setGeometry(rect());
    const QRect area = plotArea();
    const int side =
        std::min(plotSettings_->sizeHint().width() + 10, std::max(120, area.width() / 2));
    plot_->setGeometry(area.adjusted(8, 8, -side, -4));
    plotSettings_->setGeometry(area.right() - side + 1, area.top(), side, area.height());
    const QSize card = printMode_->sizeHint();
    printMode_->setGeometry(QRect(
        QPoint((width() - card.width()) / 2, std::max(0, (height() - card.height()) / 2 - 20)),
        card));
}

}  // namespace kelvo::desktop
